#include "translation_exchange.h"

#include "models/text_groups.h"
#include "widgets/plain_text.h"

#include <packagemodel/text_states.h>

#include <tano/save_file.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLocale>
#include <QPushButton>

#include <algorithm>

namespace Editor {

using Zel::PackageModel::TextImport;
using Zel::PackageModel::TextOutcome;
using Zel::PackageModel::TextUnit;

namespace {

class Exchange {
    Q_DECLARE_TR_FUNCTIONS(Editor::Exchange)

public:
    Exchange(QWidget *parent, Document &document)
        : m_parent(parent)
        , m_document(document) {}

    void write(const LanguagePair &languages);
    void read();
    QString fill(const LanguagePair &languages);

private:
    QString proposal(const QString &name) const;
    void show(QMessageBox::Icon icon, const QString &title, const QString &text,
              const QStringList &lines = {});
    void fail(const QString &title, const QString &file, const QString &reason);
    bool wantsChangedSources(int count);
    TextImport imported(const QVector<TextUnit> &units);
    void report(const QVector<TextUnit> &units, const TextImport &result);

    QWidget *m_parent;
    Document &m_document;
};

QString filters() {
    return Exchange::tr("XLIFF files (*.xlf *.xliff);;All files (*)");
}

int countOf(const TextImport &result, TextOutcome outcome) {
    return int(std::count_if(result.units.begin(), result.units.end(),
                             [&](const auto &unit) { return unit.outcome == outcome; }));
}

// Beside the document, or in the current folder if it has no file.
QString Exchange::proposal(const QString &name) const {
    return m_document.fileName().isEmpty()
               ? name
               : QFileInfo(m_document.fileName()).absoluteDir().filePath(name);
}

void Exchange::show(QMessageBox::Icon icon, const QString &title, const QString &text,
                    const QStringList &lines) {
    constexpr int most = 5; // others are in the details
    PlainMessageBox box(icon, title, text, QMessageBox::Ok, m_parent);
    if (lines.size() > most)
        box.setDetailedText(lines.join(u'\n'));
    else if (!lines.isEmpty())
        box.setInformativeText(lines.join(u'\n'));
    box.exec();
}

void Exchange::fail(const QString &title, const QString &file, const QString &reason) {
    show(QMessageBox::Warning, title, reason, {QDir::toNativeSeparators(file)});
}

void Exchange::write(const LanguagePair &languages) {
    const QString title = tr("Export Texts");
    const QString file = QFileDialog::getSaveFileName(
        m_parent, title, proposal(languages.language + QStringLiteral(".xlf")), filters());
    if (file.isEmpty())
        return;
    const QString manifest = QFileInfo(m_document.fileName()).fileName();
    QString error;
    const QByteArray xliff = Zel::PackageModel::exportXliff(
        m_document.package(), {languages.language, languages.sourceLanguage, false, manifest},
        &error);
    Tano::FileToSave content;
    content.path = Zel::toUtf8(file);
    content.bytes = xliff.toStdString();
    if (error.isEmpty())
        error = Zel::fromUtf8(Tano::saveFile(content).error);
    if (!error.isEmpty())
        fail(title, file, error);
}

bool Exchange::wantsChangedSources(int count) {
    PlainMessageBox box(
        QMessageBox::Question, tr("Import Texts"),
        tr("Texts whose source has changed since the export: %1").arg(QLocale().toString(count)),
        QMessageBox::Yes | QMessageBox::No, m_parent);
    box.setInformativeText(tr("Import their translations too?"));
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

TextImport Exchange::imported(const QVector<TextUnit> &units) {
    TextImport result = Zel::PackageModel::importTexts(m_document.package(), units, {false, true});
    const int changed = countOf(result, TextOutcome::SourceChanged);
    if (result.error.isEmpty() && changed > 0 && wantsChangedSources(changed))
        result = Zel::PackageModel::importTexts(m_document.package(), units, {true, true});
    return result;
}

void Exchange::report(const QVector<TextUnit> &units, const TextImport &result) {
    QStringList skipped;
    for (int i = 0; i < units.size(); ++i) {
        const QString &reason = result.units.at(i).reason;
        if (!reason.isEmpty())
            skipped += tr("Line %1, %2: %3")
                           .arg(QString::number(units.at(i).line),
                                Zel::PackageModel::label(units.at(i).path), reason);
    }
    const auto number = [](int count) { return QLocale().toString(count); };
    const QString summary =
        result.error.isEmpty()
            ? tr("Texts imported: %1. Unchanged: %2. Not translated: %3. Skipped: %4.")
                  .arg(number(countOf(result, TextOutcome::Imported)),
                       number(countOf(result, TextOutcome::Unchanged)),
                       number(countOf(result, TextOutcome::Untranslated)),
                       number(int(skipped.size())))
            : tr("Nothing was imported: some texts are malformed speech scripts.");
    show(result.error.isEmpty() ? QMessageBox::Information : QMessageBox::Warning,
         tr("Import Texts"), summary, skipped);
}

void Exchange::read() {
    const QString title = tr("Import Texts");
    const QString name =
        QFileDialog::getOpenFileName(m_parent, title, proposal(QString()), filters());
    if (name.isEmpty())
        return;
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly)) {
        fail(title, name, file.errorString());
        return;
    }
    const auto parsed = Zel::PackageModel::parseXliff(file.readAll());
    if (!parsed.error.isEmpty()) {
        fail(title, name,
             tr("Line %1, column %2: %3")
                 .arg(QString::number(parsed.line), QString::number(parsed.column), parsed.error));
        return;
    }
    const TextImport result = imported(parsed.units);
    m_document.edit(result.edits, title);
    report(parsed.units, result);
}

QString Exchange::fill(const LanguagePair &languages) {
    QVector<TextUnit> units;
    const auto texts = Zel::PackageModel::translatableTexts(
        m_document.package(), languages.language, languages.sourceLanguage);
    for (auto text : texts) {
        if (!text.target.isEmpty() || text.source.isEmpty())
            continue;
        text.target = text.source;
        // A malformed script would prevent the import of all texts.
        if (Zel::PackageModel::textState(text) != Zel::PackageModel::TextState::Malformed)
            units.append({text.path, {}, text.source, text.target});
    }
    const TextImport result =
        Zel::PackageModel::importTexts(m_document.package(), units, {true, true});
    m_document.edit(result.edits, tr("Fill missing texts"));
    return tr("Filled from the source: %1.")
        .arg(QLocale().toString(countOf(result, TextOutcome::Imported)));
}

} // namespace

void exportTexts(QWidget *parent, Document &document, const LanguagePair &languages) {
    Exchange(parent, document).write(languages);
}

void importTexts(QWidget *parent, Document &document) {
    Exchange(parent, document).read();
}

QString fillMissingTexts(Document &document, const LanguagePair &languages) {
    return Exchange(nullptr, document).fill(languages);
}

} // namespace Editor
