#include "field_edit.h"

#include "child_fields.h"
#include "field_table.h"
#include "requirement_fields.h"

#include <algorithm>
#include <array>

namespace ZelPackage {
namespace {

using Zel::PackageInfoModel;

template<void (PackageInfoModel::*set)(const QString &text)>
bool setText(const Edit &edit, PackageInfoModel &package, const QStringList &) {
    (package.*set)(edit.value());
    return true;
}

template<void (PackageInfoModel::*set)(const QString &text, const Zel::RobotLanguage &language)>
bool setLocalizedText(const Edit &edit, PackageInfoModel &package, const QStringList &keys) {
    const auto language = edit.language(keys.constFirst());
    if (language)
        (package.*set)(edit.value(), *language);
    return language.has_value();
}

bool setVersion(const Edit &edit, PackageInfoModel &package, const QStringList &) {
    const auto version = edit.version();
    if (version && version->fieldsCount() == 0)
        return edit.refuse(QCoreApplication::translate("zel-package", "A package has a version."));
    if (version)
        package.setVersion(*version);
    return version.has_value();
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

// "[+]=CODE" adds a language, "[CODE]=" removes it.
template<const LanguageList &list>
bool switchLanguage(const Edit &edit, PackageInfoModel &package, const QStringList &keys) {
    const bool isAdded = keys.constFirst() == appendKey;
    if (!isAdded && !edit.value().isEmpty())
        return edit.refuse(QCoreApplication::translate(
            "zel-package", "[+]=CODE adds a language, [CODE]= removes it."));
    const auto language = edit.language(isAdded ? edit.value() : keys.constFirst());
    if (!language)
        return false;
    if (list.contains(package, *language) == isAdded)
        return edit.refuse(
            isAdded ? QCoreApplication::translate("zel-package", "The list has '%1' already.")
                          .arg(language->isoCode())
                    : QCoreApplication::translate("zel-package", "The list does not have '%1'.")
                          .arg(language->isoCode()));
    (package.*(isAdded ? list.add : list.remove))(*language);
    return true;
}

constexpr std::array packageFields{
    FieldRow<PackageInfoModel>{"uid", "", setText<&PackageInfoModel::setUid>},
    FieldRow<PackageInfoModel>{"version", "", setVersion},
    FieldRow<PackageInfoModel>{"typeVersion", "", setText<&PackageInfoModel::setTypeVersion>},
    FieldRow<PackageInfoModel>{"installer", "", setText<&PackageInfoModel::setInstaller>},
    FieldRow<PackageInfoModel>{"author", "", setText<&PackageInfoModel::setAuthor>},
    FieldRow<PackageInfoModel>{"organization", "", setText<&PackageInfoModel::setOrganization>},
    FieldRow<PackageInfoModel>{"date", "", setText<&PackageInfoModel::setDate>},
    FieldRow<PackageInfoModel>{"channel", "", setText<&PackageInfoModel::setChannel>},
    FieldRow<PackageInfoModel>{"path", "", setText<&PackageInfoModel::setPath>},
    FieldRow<PackageInfoModel>{"supportedLanguages", "[CODE]", switchLanguage<supportedLanguages>},
    FieldRow<PackageInfoModel>{"descriptionLanguages", "[CODE]",
                               switchLanguage<descriptionLanguages>},
    FieldRow<PackageInfoModel>{"names", "[CODE]", setLocalizedText<&PackageInfoModel::setName>},
    FieldRow<PackageInfoModel>{"descriptions", "[CODE]",
                               setLocalizedText<&PackageInfoModel::setDescription>},
    FieldRow<PackageInfoModel>{"robotRequirements", "[N].FIELD", editRobotRequirement},
    FieldRow<PackageInfoModel>{"brioRequirements", "[N].FIELD", editBrioRequirement},
    FieldRow<PackageInfoModel>{"behaviors", "[PATH].FIELD", editBehavior},
    FieldRow<PackageInfoModel>{"dialogs", "[NAME].FIELD", editDialog},
    FieldRow<PackageInfoModel>{"services", "[NAME].FIELD", editService},
};

} // namespace

bool assign(const Assignment &assignment, PackageInfoModel &package, Console &console) {
    return setField(packageFields, Edit(assignment, console), package, 0);
}

} // namespace ZelPackage
