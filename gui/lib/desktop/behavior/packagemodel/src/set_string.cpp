#include <packagemodel/set_string.h>

#include "command_ids.h"
#include "entry_call.h"
#include "package_texts.h"

#include <packagemodel/package_info_model.h>

#include <QCoreApplication>

#include <array>

namespace Zel {
namespace {

constexpr const char *plainContext = "Zel::PackageStringCommand";

// In the order of PackageStringCommand::WhatString.
constexpr std::array plainTexts{&installerText,    &uidText,  &typeVersionText, &authorText,
                                &organizationText, &dateText, &channelText,     &pathText};

// One of the package's localized texts and its name.
struct LocalizedText {
    QString (PackageInfoModel::*text)(const RobotLanguage &language) const;
    void (PackageInfoModel::*setText)(const QString &text, const RobotLanguage &language);
    const char *word;
};

constexpr const char *localizedContext = "Zel::PackageLocalizedStringCommand";

// In the order of PackageLocalizedStringCommand::WhatString.
constexpr std::array localizedTexts{
    LocalizedText{&PackageInfoModel::name, &PackageInfoModel::setName,
                  QT_TRANSLATE_NOOP("Zel::PackageLocalizedStringCommand", "name")},
    LocalizedText{&PackageInfoModel::description, &PackageInfoModel::setDescription,
                  QT_TRANSLATE_NOOP("Zel::PackageLocalizedStringCommand", "description")},
};

bool isIn(std::size_t size, int what) {
    return what >= 0 && what < static_cast<int>(size);
}

const PackageText *plainText(int what) {
    return isIn(plainTexts.size(), what) ? plainTexts[std::size_t(what)] : nullptr;
}

const LocalizedText *localizedText(int what) {
    return isIn(localizedTexts.size(), what) ? &localizedTexts[std::size_t(what)] : nullptr;
}

template<typename Row>
QString wordOf(const Row *row, const char *context) {
    return row ? QCoreApplication::translate(context, row->word) : QString();
}

} // namespace

PackageStringCommand::PackageStringCommand(PackageInfoModel *model, const QString &newValue,
                                           WhatString what, bool isFinal)
    : PackageGenericValueCommand(model, QString())
    , m_what(what)
    , m_edit{newValue, value(), isFinal} {
    setText(QCoreApplication::translate("Zel::PackageStringCommand", "Set application's %1")
                .arg(wordOf(plainText(m_what), plainContext)));
}

QString PackageStringCommand::value() const {
    const PackageText *row = plainText(m_what);
    return row ? callOn(model(), row->text) : QString();
}

void PackageStringCommand::setValue(const QString &value) {
    if (const PackageText *row = plainText(m_what))
        callOn(model(), row->setText, value);
}

void PackageStringCommand::undo() {
    setValue(m_edit.oldValue);
}

void PackageStringCommand::redo() {
    setValue(m_edit.newValue);
}

int PackageStringCommand::id() const {
    return CommandId::packageText;
}

bool PackageStringCommand::mergeWith(const QUndoCommand *incoming) {
    return mergeIf<PackageStringCommand>(incoming, [this](const auto &newer) {
        return newer.model() == model() && newer.m_what == m_what && m_edit.takeOver(newer.m_edit);
    });
}

bool PackageStringCommand::isFinalCommand() const {
    return MergeableCommand::isFinalCommand() || m_edit.isFinal;
}

PackageLocalizedStringCommand::PackageLocalizedStringCommand(PackageInfoModel *model,
                                                             const QString &newValue,
                                                             WhatString what,
                                                             const RobotLanguage &language,
                                                             bool isFinal)
    : PackageGenericValueCommand(model, QString())
    , m_what(what)
    , m_language(language)
    , m_edit{newValue, value(), isFinal} {
    setText(QCoreApplication::translate("Zel::PackageLocalizedStringCommand",
                                        "Set application's %1 (%2)")
                .arg(wordOf(localizedText(m_what), localizedContext), m_language.isoCode()));
}

QString PackageLocalizedStringCommand::value() const {
    const LocalizedText *row = localizedText(m_what);
    return row ? callOn(model(), row->text, m_language) : QString();
}

void PackageLocalizedStringCommand::setValue(const QString &value) {
    if (const LocalizedText *row = localizedText(m_what))
        callOn(model(), row->setText, value, m_language);
}

void PackageLocalizedStringCommand::undo() {
    setValue(m_edit.oldValue);
}

void PackageLocalizedStringCommand::redo() {
    setValue(m_edit.newValue);
}

int PackageLocalizedStringCommand::id() const {
    return CommandId::packageText;
}

bool PackageLocalizedStringCommand::mergeWith(const QUndoCommand *incoming) {
    return mergeIf<PackageLocalizedStringCommand>(incoming, [this](const auto &newer) {
        return newer.model() == model() && newer.m_what == m_what &&
               newer.m_language == m_language && m_edit.takeOver(newer.m_edit);
    });
}

bool PackageLocalizedStringCommand::isFinalCommand() const {
    return MergeableCommand::isFinalCommand() || m_edit.isFinal;
}

} // namespace Zel
