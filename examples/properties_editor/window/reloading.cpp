#include "reloading.h"

#include "document/change_list.h"
#include "document/document.h"
#include "widgets/plain_text.h"

#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace Editor {
namespace {

enum class Choice { Cancel, Reload, Merge };

QString text(const char *source) {
    return QCoreApplication::translate("Editor::Reloading", source);
}

QString title() {
    return text(QT_TRANSLATE_NOOP("Editor::Reloading", "Reload"));
}

void addList(QVBoxLayout *layout, const QString &heading, const QStringList &lines) {
    auto *list = new QListWidget;
    list->setUniformItemSizes(true);
    list->setAlternatingRowColors(true);
    list->setAccessibleName(heading);
    list->addItems(lines);
    auto *label = new QLabel(heading);
    label->setBuddy(list);
    layout->addWidget(label);
    layout->addWidget(list);
}

Choice ask(const ChangeList &ours, const ChangeList &theirs, QWidget *window) {
    QDialog dialog(window);
    dialog.setWindowTitle(title());
    auto *layout = new QVBoxLayout(&dialog);
    addList(layout, text(QT_TRANSLATE_NOOP("Editor::Reloading", "Your unsaved changes:")),
            ours.lines);
    addList(layout, text(QT_TRANSLATE_NOOP("Editor::Reloading", "Changes in the file:")),
            theirs.lines);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
    auto *merge = buttons->addButton(text(QT_TRANSLATE_NOOP("Editor::Reloading", "Keep Both")),
                                     QDialogButtonBox::AcceptRole);
    auto *reload = buttons->addButton(text(QT_TRANSLATE_NOOP("Editor::Reloading", "Discard Yours")),
                                      QDialogButtonBox::DestructiveRole);
    merge->setEnabled(!theirs.lines.isEmpty());
    layout->addWidget(buttons);
    (merge->isEnabled() ? merge : buttons->button(QDialogButtonBox::Cancel))->setDefault(true);
    Choice choice = Choice::Cancel;
    const auto choose = [&](Choice chosen) {
        choice = chosen;
        dialog.accept();
    };
    QObject::connect(merge, &QPushButton::clicked, &dialog, [&] { choose(Choice::Merge); });
    QObject::connect(reload, &QPushButton::clicked, &dialog, [&] { choose(Choice::Reload); });
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    dialog.resize(640, 420);
    dialog.exec();
    return choice;
}

void showFailure(const Document &document, QWidget *window) {
    PlainMessageBox box(QMessageBox::Critical, title(), document.errorString(), QMessageBox::Ok,
                        window);
    box.setInformativeText(QDir::toNativeSeparators(document.fileName()));
    box.exec();
}

void merge(Document &document, QWidget *window) {
    const auto conflicts = document.mergeWithFile();
    if (!conflicts) {
        showFailure(document, window);
        return;
    }
    if (conflicts->isEmpty())
        return;
    QStringList fields;
    for (const auto &conflict : *conflicts)
        fields.append(Zel::PackageModel::label(conflict.path));
    PlainMessageBox box(
        QMessageBox::Warning, title(),
        text(QT_TRANSLATE_NOOP("Editor::Reloading", "These fields were changed on both sides. They "
                                                    "keep your values, and are listed as problems "
                                                    "until you decide.")),
        QMessageBox::Ok, window);
    box.setInformativeText(fields.join(u'\n'));
    box.exec();
}

} // namespace

void reload(Document &document, QWidget *window) {
    Choice choice = Choice::Reload;
    if (document.isModified()) {
        const auto theirs = document.readAgain();
        if (!theirs) {
            showFailure(document, window);
            return;
        }
        const Zel::PackageInfoModel saved(document.saved());
        choice =
            ask(changesBetween(saved, *document.package()), changesBetween(saved, *theirs), window);
    }
    if (choice == Choice::Merge)
        merge(document, window);
    else if (choice == Choice::Reload && !document.open(document.fileName()))
        showFailure(document, window);
}

} // namespace Editor
