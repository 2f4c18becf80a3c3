#include "coverage.h"

#include <packagemodel/package_info_model.h>

#include <algorithm>

namespace ZelPackage {
namespace {

using Zel::RobotLanguage;

bool isFilled(const QString &text) {
    return !text.isEmpty();
}

bool isFilled(const QStringList &texts) {
    return std::any_of(texts.begin(), texts.end(),
                       [](const QString &text) { return isFilled(text); });
}

// Counts an entry where it has something of its kind in any language.
template<typename Values>
void countIfUsed(Count &count, const Values &values, const RobotLanguage &language) {
    bool isUsed = false;
    bool isPresent = false;
    for (const auto &[value, itsLanguage] : values) {
        isUsed = isUsed || isFilled(value);
        isPresent = isPresent || (itsLanguage == language && isFilled(value));
    }
    if (isUsed)
        count.add(isPresent);
}

bool contains(const Zel::RobotLanguages &languages, const RobotLanguage &language) {
    return std::find(languages.begin(), languages.end(), language) != languages.end();
}

} // namespace

Count LanguageCoverage::total() const {
    Count sum;
    if (!isSupported && !isDescribed)
        return sum;
    sum.add(hasName);
    sum.add(hasDescription);
    sum.add(names);
    sum.add(descriptions);
    if (isSupported) {
        sum.add(tags);
        sum.add(triggerSentences);
        sum.add(loadingResponses);
        sum.add(topics);
    }
    return sum;
}

int LanguageCoverage::percent() const {
    const Count sum = total();
    return sum.expected == 0 ? 0 : sum.present * 100 / sum.expected;
}

LanguageCoverage coverageIn(const RobotLanguage &language, const Zel::PackageInfoModel &package) {
    LanguageCoverage coverage;
    coverage.language = language;
    coverage.isSupported = package.hasLanguageSupport(language);
    coverage.isDescribed = package.hasLanguageDescription(language);
    coverage.hasName = package.hasNameFor(language);
    coverage.hasDescription = package.hasDescriptionFor(language);
    const auto behaviors = package.behaviors();
    for (const Zel::BehaviorInfoModel *behavior : behaviors) {
        coverage.names.add(isFilled(behavior->name(language)));
        countIfUsed(coverage.descriptions, behavior->descriptions(), language);
        countIfUsed(coverage.tags, behavior->languagesToTags(), language);
        countIfUsed(coverage.triggerSentences, behavior->languagesToTriggerSentences(), language);
        countIfUsed(coverage.loadingResponses, behavior->languagesToLoadingResponses(), language);
    }
    const auto dialogs = package.dialogs();
    for (const Zel::DialogInfoModel *dialog : dialogs)
        countIfUsed(coverage.topics, dialog->topics(), language);
    return coverage;
}

Zel::RobotLanguages languagesOf(const Zel::PackageInfoModel &package) {
    Zel::RobotLanguages languages = package.supportedLanguages();
    const auto addMissing = [&languages](const RobotLanguage &language) {
        if (!contains(languages, language))
            languages.push_back(language);
    };
    for (const RobotLanguage &language : package.descriptionLanguages())
        addMissing(language);
    for (const std::string &bytes : package.packageInfo().languageCodes()) {
        const QString code = Zel::fromUtf8(bytes);
        if (!code.endsWith(Zel::PackageModel::k_sa.text()))
            addMissing(Zel::robotLanguage(code));
    }
    return languages;
}

Zel::RobotLanguages scriptLanguagesOf(const Zel::PackageInfoModel &package) {
    Zel::RobotLanguages languages;
    const std::set<std::string> codes = package.packageInfo().languageCodes();
    for (const RobotLanguage &language : languagesOf(package)) {
        if (codes.count(Zel::toUtf8(language.isoCode() % Zel::PackageModel::k_sa.text())) > 0)
            languages.push_back(language);
    }
    return languages;
}

} // namespace ZelPackage
