#include <packagemodel/package_info_utils.h>

#include "checks/package_checks.h"

#include <packagemodel/package_info_model.h>

#include <algorithm>
#include <cstring>
#include <utility>
#include <vector>

namespace Zel {
namespace PackageModel {
namespace {

Findings run(Check check, const PackageInfoModel *package) {
    Findings findings;
    check(*package, findings);
    return findings;
}

Findings triggerSentenceFindings(const PackageInfoModel *package,
                                 const BehaviorInfoModel *behavior) {
    Findings findings;
    checkTriggerSentences(*package, *behavior, 0, findings);
    return findings;
}

// Whether two findings differ only in their language.
bool haveOneMessage(const Finding &a, const Finding &b) {
    return speaksOfLanguages(a.rule) && speaksOfLanguages(b.rule) &&
           std::strcmp(ruleRow(a.rule).message, ruleRow(b.rule).message) == 0 &&
           a.arguments == b.arguments;
}

// Appends one message per finding, combining consecutive findings that differ only in language.
void appendMessages(const Findings &findings, QStringList &errors, QStringList &warnings) {
    for (auto first = findings.begin(); first != findings.end();) {
        RobotLanguages languages{first->language};
        auto next = std::next(first);
        for (; next != findings.end() && haveOneMessage(*first, *next); ++next)
            languages.push_back(next->language);
        const bool isError = ruleRow(first->rule).severity == Severity::Error;
        (isError ? errors : warnings).append(message(*first, languages));
        first = next;
    }
}

// Runs one check whose messages are all errors.
bool validateAlone(Check check, const PackageInfoModel *package, QStringList &errors) {
    errors.clear();
    if (!package)
        return false;
    QStringList warnings;
    appendMessages(run(check, package), errors, warnings);
    return errors.isEmpty();
}

// A text in a language, else in the default language, else empty.
template<typename TextIn>
QString withFallback(TextIn &&textIn, const RobotLanguage &language) {
    const QString text = textIn(language);
    return text.isEmpty() ? textIn(Language::defaultLanguage()) : text;
}

} // namespace

QString nameFromLanguage(const PackageInfoModel *package, const RobotLanguage &language) {
    return package ? package->name(language) : QString();
}

QString descriptionFromLanguage(const PackageInfoModel *package, const RobotLanguage &language) {
    return package ? package->description(language) : QString();
}

QString uiName(const PackageInfoModel *package, const RobotLanguage &language) {
    const auto textIn = [&](const RobotLanguage &wanted) {
        return wanted.isoCode().isEmpty() ? QString() : nameFromLanguage(package, wanted);
    };
    const QString name = withFallback(textIn, language);
    return name.isEmpty() && package ? package->uid() : name;
}

QString uiDescription(const PackageInfoModel *package, const RobotLanguage &language) {
    const auto textIn = [&](const RobotLanguage &wanted) {
        return wanted.isoCode().isEmpty() ? QString() : descriptionFromLanguage(package, wanted);
    };
    return withFallback(textIn, language);
}

bool validate(const PackageInfoModel *package, QStringList &errors, QStringList &warnings) {
    const bool applicationIsValid = validateApplication(package, errors, warnings);
    QMap<QString, QStringList> behaviorMessages;
    const bool behaviorsAreValid = validateBehaviors(package, behaviorMessages);
    for (const QStringList &messages : std::as_const(behaviorMessages))
        errors += messages;
    return applicationIsValid && behaviorsAreValid;
}

bool validateApplication(const PackageInfoModel *package, QStringList &errors,
                         QStringList &warnings) {
    errors.clear();
    warnings.clear();
    if (!package)
        return false;
    for (const Check check : applicationChecks)
        appendMessages(run(check, package), errors, warnings);
    return errors.isEmpty() && warnings.isEmpty();
}

bool validateBehaviors(const PackageInfoModel *package,
                       QMap<QString, QStringList> &behaviorMessages) {
    behaviorMessages.clear();
    if (!package)
        return false;
    const auto behaviors = package->behaviors();
    for (const BehaviorInfoModel *behavior : behaviors) {
        const Findings findings = triggerSentenceFindings(package, behavior);
        const RobotLanguages missing = languagesOf(findings, RuleId::TriggerSentencesMissing);
        if (!languagesUiNamesList(missing).isEmpty())
            behaviorMessages[behavior->path()].append(message(findings.front(), missing));
    }
    return behaviorMessages.isEmpty();
}

bool validatePackageUID(const PackageInfoModel *package, QStringList &errors) {
    return validateAlone(checkUid, package, errors);
}

bool validateRobotRequirements(const PackageInfoModel *package, QStringList &errors) {
    return validateAlone(checkRobotRequirements, package, errors);
}

bool validateBrioRequirements(const PackageInfoModel *package, QStringList &errors) {
    return validateAlone(checkBrioRequirements, package, errors);
}

bool validateApplicationNames(const PackageInfoModel *package, RobotLanguages &missingDefault,
                              RobotLanguages &missingOthers) {
    missingDefault.clear();
    missingOthers.clear();
    if (!package)
        return false;
    const Findings findings = run(checkNames, package);
    missingDefault = languagesOf(findings, RuleId::NameMissingDefault);
    missingOthers = languagesOf(findings, RuleId::NameMissing);
    return findings.empty();
}

bool validateApplicationDescriptions(const PackageInfoModel *package, RobotLanguages &missing) {
    missing.clear();
    if (!package)
        return false;
    missing = languagesOf(run(checkDescriptions, package), RuleId::DescriptionMissing);
    return missing.empty();
}

bool validateBehaviorTriggerSentences(const PackageInfoModel *package,
                                      BehaviorsMissingLanguages &result) {
    result.clear();
    if (!package)
        return false;
    const auto behaviors = package->behaviors();
    result.reserve(std::size_t(behaviors.size()));
    bool allPassed = true;
    for (const BehaviorInfoModel *behavior : behaviors) {
        RobotLanguages missing;
        allPassed = validateTriggerSentences(package, behavior, missing) && allPassed;
        result.emplace_back(behavior->path(), std::move(missing));
    }
    return allPassed;
}

bool validateTriggerSentences(const PackageInfoModel *package, const BehaviorInfoModel *behavior,
                              RobotLanguages &missing) {
    missing.clear();
    if (!package || !behavior)
        return false;
    missing =
        languagesOf(triggerSentenceFindings(package, behavior), RuleId::TriggerSentencesMissing);
    return missing.empty();
}

} // namespace PackageModel

namespace BehaviorModel {

QString nameFromLocale(const BehaviorInfoModel *behavior, const RobotLanguage &language) {
    return behavior ? behavior->name(language) : QString();
}

QString uiName(const BehaviorInfoModel *behavior, const RobotLanguage &language) {
    const auto textIn = [&](const RobotLanguage &wanted) {
        return nameFromLocale(behavior, wanted);
    };
    const QString name = PackageModel::withFallback(textIn, language);
    return name.isEmpty() && behavior ? behavior->path() : name;
}

} // namespace BehaviorModel
} // namespace Zel
