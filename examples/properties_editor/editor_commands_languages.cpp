#include "editor_commands.h"

#include <packagemodel/package_info_model.h>

#include <QCoreApplication>

#include <algorithm>

namespace Editor {
namespace {

using Zel::PackageInfoModel;
using Zel::RobotLanguage;
using Zel::RobotLanguages;

using Switch = void (PackageInfoModel::*)(const RobotLanguage &language);

// Languages are added at the end, so all from the first difference on go and come again.
void restoreList(PackageInfoModel &package, const RobotLanguages &current,
                 const RobotLanguages &wanted, Switch add, Switch remove) {
    const auto [differs, from] =
        std::mismatch(current.begin(), current.end(), wanted.begin(), wanted.end());
    for (auto language = differs; language != current.end(); ++language)
        (package.*remove)(*language);
    for (auto language = from; language != wanted.end(); ++language)
        (package.*add)(*language);
}

void restoreDescribed(PackageInfoModel &package, const RobotLanguages &wanted) {
    const RobotLanguages current = package.descriptionLanguages();
    restoreList(package, current, wanted, &PackageInfoModel::addDescriptionLanguage,
                &PackageInfoModel::removeDescriptionLanguage);
}

QString commandText(bool isRemoval, const char *removal, const char *addition,
                    const RobotLanguage &language) {
    return QCoreApplication::translate("Editor::Commands", isRemoval ? removal : addition)
        .arg(language.isoCode());
}

} // namespace

SupportedLanguageCommand::SupportedLanguageCommand(PackageInfoModel *model,
                                                   const RobotLanguage &language)
    : PackageLanguageCommand(model, language) {
    setText(commandText(model->hasLanguageSupport(language),
                        QT_TRANSLATE_NOOP("Editor::Commands", "Remove language %1"),
                        QT_TRANSLATE_NOOP("Editor::Commands", "Add language %1"), language));
}

void SupportedLanguageCommand::switchLanguage() {
    m_isDone = !m_isDone;
    if (!m_isDone) {
        restore(m_before);
        return;
    }
    m_before = state();
    if (model()->hasLanguageSupport(language()))
        model()->removeSupportedLanguage(language());
    else
        model()->addSupportedLanguage(language());
}

SupportedLanguageCommand::State SupportedLanguageCommand::state() const {
    State state{model()->supportedLanguages(), model()->descriptionLanguages(), {}};
    const auto dialogs = model()->dialogs();
    for (const Zel::DialogInfoModel *dialog : dialogs)
        state.topics.push_back(dialog->topics());
    return state;
}

void SupportedLanguageCommand::restore(const State &state) {
    const RobotLanguages supported = model()->supportedLanguages();
    restoreList(*model(), supported, state.supported, &PackageInfoModel::addSupportedLanguage,
                &PackageInfoModel::removeSupportedLanguage);
    restoreDescribed(*model(), state.described);
    const auto dialogs = model()->dialogs();
    for (std::size_t i = 0; i < state.topics.size(); ++i) {
        for (const auto &[path, topicLanguage] : state.topics.at(i))
            dialogs.at(int(i))->setTopic(topicLanguage, path);
    }
}

DescriptionLanguageCommand::DescriptionLanguageCommand(PackageInfoModel *model,
                                                       const RobotLanguage &language)
    : PackageLanguageCommand(model, language) {
    setText(commandText(model->hasLanguageDescription(language),
                        QT_TRANSLATE_NOOP("Editor::Commands", "Remove description language %1"),
                        QT_TRANSLATE_NOOP("Editor::Commands", "Add description language %1"),
                        language));
}

void DescriptionLanguageCommand::switchLanguage() {
    m_isDone = !m_isDone;
    if (!m_isDone) {
        restoreDescribed(*model(), m_before);
        return;
    }
    m_before = model()->descriptionLanguages();
    if (model()->hasLanguageDescription(language()))
        model()->removeDescriptionLanguage(language());
    else
        model()->addDescriptionLanguage(language());
}

} // namespace Editor
