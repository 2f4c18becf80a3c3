#include "field_edit.h"

#include "child_fields.h"
#include "field_table.h"
#include "requirement_command.h"

#include <packagemodel/set_string.h>
#include <packagemodel/supported_languages_command.h>

#include <array>

namespace ZelPackage {
namespace {

using Zel::PackageInfoModel;
using Zel::PackageLocalizedStringCommand;
using Zel::PackageStringCommand;

template<PackageStringCommand::WhatString what>
Command setText(const Edit &edit, PackageInfoModel &package, const QStringList &) {
    return std::make_unique<PackageStringCommand>(&package, edit.value(), what, true);
}

template<PackageLocalizedStringCommand::WhatString what>
Command setLocalizedText(const Edit &edit, PackageInfoModel &package, const QStringList &keys) {
    const auto language = edit.language(keys.constFirst());
    if (!language)
        return {};
    return std::make_unique<PackageLocalizedStringCommand>(&package, edit.value(), what, *language,
                                                           true);
}

Command setVersion(const Edit &edit, PackageInfoModel &package, const QStringList &) {
    const auto version = edit.version();
    if (version && version->fieldsCount() == 0)
        return edit.refuse(QCoreApplication::translate("zel-package", "A package has a version."));
    if (!version)
        return {};
    return std::make_unique<Zel::PackageGenericValueCommand<Zel::SoftwareVersion>>(&package,
                                                                                   *version);
}

// One of the package's two lists of languages.
struct LanguageList {
    const Zel::RobotLanguages &(PackageInfoModel::*languages)() const;
    void (PackageInfoModel::*add)(const Zel::RobotLanguage &language);
    void (PackageInfoModel::*remove)(const Zel::RobotLanguage &language);

    bool contains(const PackageInfoModel &package, const Zel::RobotLanguage &language) const {
        const Zel::RobotLanguages &all = (package.*languages)();
        return std::find(all.begin(), all.end(), language) != all.end();
    }
};

constexpr LanguageList supportedLanguages{&PackageInfoModel::supportedLanguages,
                                          &PackageInfoModel::addSupportedLanguage,
                                          &PackageInfoModel::removeSupportedLanguage};
constexpr LanguageList descriptionLanguages{&PackageInfoModel::descriptionLanguages,
                                            &PackageInfoModel::addDescriptionLanguage,
                                            &PackageInfoModel::removeDescriptionLanguage};

class SwitchLanguageCommand : public Zel::PackageLanguageCommand {
public:
    SwitchLanguageCommand(PackageInfoModel *package, const LanguageList &list,
                          const Zel::RobotLanguage &language)
        : PackageLanguageCommand(package, language)
        , m_list(list) {
        setText(QCoreApplication::translate("zel-package", "Switch language %1")
                    .arg(language.isoCode()));
    }

    void switchLanguage() override {
        const bool isThere = m_list.contains(*model(), language());
        (model()->*(isThere ? m_list.remove : m_list.add))(language());
    }

private:
    const LanguageList &m_list;
};

// "[+]=CODE" adds a language, "[CODE]=" removes it.
template<const LanguageList &list>
Command switchLanguage(const Edit &edit, PackageInfoModel &package, const QStringList &keys) {
    const bool isAdded = keys.constFirst() == appendKey;
    if (!isAdded && !edit.value().isEmpty())
        return edit.refuse(QCoreApplication::translate(
            "zel-package", "[+]=CODE adds a language, [CODE]= removes it."));
    const auto language = edit.language(isAdded ? edit.value() : keys.constFirst());
    if (!language)
        return {};
    if (list.contains(package, *language) == isAdded)
        return edit.refuse(
            isAdded ? QCoreApplication::translate("zel-package", "The list has '%1' already.")
                          .arg(language->isoCode())
                    : QCoreApplication::translate("zel-package", "The list does not have '%1'.")
                          .arg(language->isoCode()));
    return std::make_unique<SwitchLanguageCommand>(&package, list, *language);
}

constexpr std::array packageFields{
    FieldRow<PackageInfoModel>{"uid", "", setText<PackageStringCommand::Uid>},
    FieldRow<PackageInfoModel>{"version", "", setVersion},
    FieldRow<PackageInfoModel>{"typeVersion", "", setText<PackageStringCommand::TypeVersion>},
    FieldRow<PackageInfoModel>{"installer", "", setText<PackageStringCommand::Installer>},
    FieldRow<PackageInfoModel>{"author", "", setText<PackageStringCommand::Author>},
    FieldRow<PackageInfoModel>{"organization", "", setText<PackageStringCommand::Organization>},
    FieldRow<PackageInfoModel>{"date", "", setText<PackageStringCommand::Date>},
    FieldRow<PackageInfoModel>{"channel", "", setText<PackageStringCommand::Channel>},
    FieldRow<PackageInfoModel>{"path", "", setText<PackageStringCommand::Path>},
    FieldRow<PackageInfoModel>{"supportedLanguages", "[CODE]", switchLanguage<supportedLanguages>},
    FieldRow<PackageInfoModel>{"descriptionLanguages", "[CODE]",
                               switchLanguage<descriptionLanguages>},
    FieldRow<PackageInfoModel>{"names", "[CODE]",
                               setLocalizedText<PackageLocalizedStringCommand::Name>},
    FieldRow<PackageInfoModel>{"descriptions", "[CODE]",
                               setLocalizedText<PackageLocalizedStringCommand::Description>},
    FieldRow<PackageInfoModel>{"robotRequirements", "[N].FIELD", editRobotRequirement},
    FieldRow<PackageInfoModel>{"brioRequirements", "[N].FIELD", editBrioRequirement},
    FieldRow<PackageInfoModel>{"behaviors", "[PATH].FIELD", editBehavior},
    FieldRow<PackageInfoModel>{"dialogs", "[NAME].FIELD", editDialog},
    FieldRow<PackageInfoModel>{"services", "[NAME].FIELD", editService},
};

} // namespace

Command commandFor(const Assignment &assignment, PackageInfoModel &package, Console &console) {
    return makeCommand(packageFields, Edit(assignment, console), package, 0);
}

} // namespace ZelPackage
