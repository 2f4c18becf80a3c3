#include "publishing.h"

#include "document/document.h"
#include "widgets/plain_text.h"

#include <packagemodel/package_scripts.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QPushButton>

#include <filesystem>

namespace Editor {
namespace {

constexpr int maximumListed = 10;

QString text(const char *source) {
    return QCoreApplication::translate("Editor::Publishing", source);
}

QStringList errorsOf(const Document &document) {
    QStringList errors;
    for (const auto &issue : document.issues()) {
        if (issue.severity == Zel::PackageModel::Severity::Error)
            errors.append(issue.plainText());
    }
    return errors;
}

// The published texts that cannot be converted to plain text.
QStringList malformedScripts(const Document &document) {
    document.package()->syncRecord();
    Zel::PackageInfoModel published(*document.package());
    published.trimExtraInfo();
    QStringList errors;
    const auto scripts = Zel::PackageModel::scriptErrors(&published);
    for (const auto &script : scripts) {
        const auto path = Tano::FieldPath::parse(Zel::toUtf8(script.path));
        errors.append((path ? Zel::PackageModel::label(*path) : script.path) +
                      QStringLiteral(": ") + script.text);
    }
    return errors;
}

QString listed(QStringList lines) {
    const auto count = int(lines.size());
    if (count > maximumListed) {
        lines = lines.mid(0, maximumListed);
        lines.append(text(QT_TRANSLATE_NOOP("Editor::Publishing", "… and %1 more"))
                         .arg(count - maximumListed));
    }
    return lines.join(u'\n');
}

bool isAccepted(const Document &document, QWidget *window) {
    const QString title = text(QT_TRANSLATE_NOOP("Editor::Publishing", "Publish"));
    if (const QStringList scripts = malformedScripts(document); !scripts.isEmpty()) {
        PlainMessageBox box(
            QMessageBox::Critical, title,
            text(QT_TRANSLATE_NOOP("Editor::Publishing", "A package with malformed speech scripts "
                                                         "cannot be published.")),
            QMessageBox::Ok, window);
        box.setInformativeText(listed(scripts));
        box.exec();
        return false;
    }
    const QStringList errors = errorsOf(document);
    if (errors.isEmpty())
        return true;
    PlainMessageBox box(
        QMessageBox::Warning, title,
        text(QT_TRANSLATE_NOOP("Editor::Publishing", "The package still has errors.")),
        QMessageBox::Cancel, window);
    box.setInformativeText(listed(errors));
    const QPushButton *anyway = box.addButton(
        text(QT_TRANSLATE_NOOP("Editor::Publishing", "Publish Anyway")), QMessageBox::AcceptRole);
    box.setDefaultButton(QMessageBox::Cancel);
    box.exec();
    return box.clickedButton() == anyway;
}

std::filesystem::path pathOf(const QString &fileName) {
    return QFile::encodeName(fileName).toStdString();
}

// Compares files, since the open one may have another name.
bool isOpenFile(const Document &document, const QString &fileName) {
    std::error_code error;
    return !document.fileName().isEmpty() &&
           std::filesystem::equivalent(pathOf(document.fileName()), pathOf(fileName), error);
}

QString chosenFile(const Document &document, QWidget *window) {
    const QString folder =
        document.fileName().isEmpty() ? QString() : QFileInfo(document.fileName()).absolutePath();
    QString fileName = QDir(folder).filePath(QStringLiteral("published.xml"));
    do {
        fileName = QFileDialog::getSaveFileName(
            window, text(QT_TRANSLATE_NOOP("Editor::Publishing", "Publish the Manifest")), fileName,
            text(QT_TRANSLATE_NOOP("Editor::Publishing", "Manifests (*.xml);;All files (*)")));
        if (!isOpenFile(document, fileName))
            return fileName;
        PlainMessageBox box(
            QMessageBox::Warning, text(QT_TRANSLATE_NOOP("Editor::Publishing", "Publish")),
            text(QT_TRANSLATE_NOOP("Editor::Publishing", "This is the manifest that is open.")),
            QMessageBox::Ok, window);
        box.setInformativeText(text(QT_TRANSLATE_NOOP(
            "Editor::Publishing", "Publishing would replace it by a copy with fewer texts. Choose "
                                  "another file.")));
        box.exec();
    } while (true);
}

} // namespace

void publish(Document &document, QWidget *window) {
    if (!isAccepted(document, window))
        return;
    const QString fileName = chosenFile(document, window);
    if (fileName.isEmpty() || document.publish(fileName))
        return;
    PlainMessageBox box(QMessageBox::Critical,
                        text(QT_TRANSLATE_NOOP("Editor::Publishing", "Publish")),
                        document.errorString(), QMessageBox::Ok, window);
    box.setInformativeText(QDir::toNativeSeparators(fileName));
    box.exec();
}

} // namespace Editor
