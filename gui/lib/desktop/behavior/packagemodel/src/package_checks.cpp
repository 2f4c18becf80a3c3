#include "package_checks.h"

#include <packagemodel/package_info_model.h>

#include <QRegularExpression>
#include <QSet>
#include <QStringBuilder>

#include <algorithm>

namespace Zel::PackageModel {
namespace {

const QRegularExpression k_packageUIDRegexp(
    QRegularExpression::anchoredPattern(QStringLiteral("(?=.*[a-z\\-_])[_\\-a-z0-9]{1,50}")));

QString indexed(const char *list, int index, const char *field) {
    return QStringLiteral("%1[%2].%3")
        .arg(QLatin1String(list), QString::number(index), QLatin1String(field));
}

QString selected(const QString &list, const QString &selector) {
    return list + QLatin1Char('[') + selector + QLatin1Char(']');
}

bool isSet(const SoftwareVersion &version) {
    return version.fieldsCount() > 0;
}

bool isReversed(const SoftwareVersion &min, const SoftwareVersion &max) {
    return isSet(max) && max < min;
}

} // namespace

void checkUid(const PackageInfoModel &package, Findings &findings) {
    const QString uid = package.uid();
    if (uid.isEmpty() || !k_packageUIDRegexp.match(uid).hasMatch())
        findings.push_back({RuleId::UidInvalid, QStringLiteral("uid"), {}, {}});
}

void checkRobotRequirements(const PackageInfoModel &package, Findings &findings) {
    const QVector<RobotRequirement> requirements = package.robotRequirements();
    if (requirements.isEmpty()) {
        findings.push_back(
            {RuleId::RobotRequirementsMissing, QStringLiteral("robotRequirements"), {}, {}});
        return;
    }
    for (int i = 0; i < requirements.size(); ++i) {
        const RobotRequirement &requirement = requirements.at(i);
        const auto found = [&](RuleId rule, const char *field, const QStringList &arguments) {
            findings.push_back({rule, indexed("robotRequirements", i, field), arguments, {}});
        };
        if (requirement.model.isEmpty())
            found(RuleId::RobotModelMissing, "model", {});
        if (isReversed(requirement.minBodyVersion, requirement.maxBodyVersion))
            found(RuleId::RobotBodyRangeReversed, "maxBodyVersion", {requirement.model});
        if (isReversed(requirement.minHeadVersion, requirement.maxHeadVersion))
            found(RuleId::RobotHeadRangeReversed, "maxHeadVersion", {requirement.model});
    }
}

void checkBrioRequirements(const PackageInfoModel &package, Findings &findings) {
    const QVector<BrioRequirement> requirements = package.brioRequirements();
    if (requirements.isEmpty()) {
        findings.push_back(
            {RuleId::BrioRequirementMissing, QStringLiteral("brioRequirements"), {}, {}});
        return;
    }
    for (int i = 0; i < requirements.size(); ++i) {
        const BrioRequirement &requirement = requirements.at(i);
        if (!isSet(requirement.minVersion)) {
            findings.push_back(
                {RuleId::BrioMinimumMissing, indexed("brioRequirements", i, "minVersion"), {}, {}});
            return;
        }
        if (isReversed(requirement.minVersion, requirement.maxVersion)) {
            findings.push_back({RuleId::BrioRangeReversed,
                                indexed("brioRequirements", i, "maxVersion"),
                                {SoftwareVersionUtils::toString(requirement.maxVersion),
                                 SoftwareVersionUtils::toString(requirement.minVersion)},
                                {}});
        }
    }
}

void checkNames(const PackageInfoModel &package, Findings &findings) {
    const RobotLanguage defaultLanguage = Language::defaultLanguage();
    for (const RobotLanguage &language : package.supportedLanguages()) {
        if (package.hasNameFor(language))
            continue;
        const bool isDefault = language == defaultLanguage;
        findings.push_back({isDefault ? RuleId::NameMissingDefault : RuleId::NameMissing,
                            QStringLiteral("names"),
                            {},
                            language});
    }
    // The default language is named first.
    std::stable_partition(findings.begin(), findings.end(), [](const Finding &finding) {
        return finding.rule != RuleId::NameMissing;
    });
}

void checkDescriptions(const PackageInfoModel &package, Findings &findings) {
    for (const RobotLanguage &language : package.supportedLanguages()) {
        if (!package.hasDescriptionFor(language))
            findings.push_back(
                {RuleId::DescriptionMissing, QStringLiteral("descriptions"), {}, language});
    }
}

void checkTriggerSentences(const PackageInfoModel &package, const BehaviorInfoModel &behavior,
                           Findings &findings) {
    const auto &all = behavior.languagesToTriggerSentences();
    const bool isTriggered = std::any_of(all.begin(), all.end(), [](const auto &sentences) {
        return std::any_of(sentences.first.begin(), sentences.first.end(),
                           [](const QString &sentence) { return !sentence.isEmpty(); });
    });
    if (!isTriggered)
        return;

    QSet<QString> present;
    for (const auto &[sentences, language] : all) {
        if (!sentences.isEmpty())
            present.insert(language.isoCode());
    }
    const QString path = behavior.path();
    const QString field =
        selected(QStringLiteral("behaviors"), path) % QLatin1String(".triggerSentences");
    const QStringList arguments{path};
    for (const RobotLanguage &language : package.supportedLanguages()) {
        if (!present.contains(language.isoCode()))
            findings.push_back({RuleId::TriggerSentencesMissing, field, arguments, language});
    }
}

bool speaksOfLanguages(RuleId rule) {
    return rule >= RuleId::NameMissingDefault;
}

QString pathOf(const Finding &finding) {
    return speaksOfLanguages(finding.rule) ? selected(finding.field, finding.language.isoCode())
                                           : finding.field;
}

RobotLanguages languagesOf(const Findings &findings, RuleId rule) {
    RobotLanguages languages;
    for (const Finding &finding : findings) {
        if (finding.rule == rule)
            languages.push_back(finding.language);
    }
    return languages;
}

QString message(const Finding &finding, const RobotLanguages &languages) {
    QString text = ruleMessage(finding.rule);
    for (const QString &argument : finding.arguments)
        text = text.arg(argument);
    return speaksOfLanguages(finding.rule) ? text.arg(languagesUiNamesList(languages)) : text;
}

QString languagesUiNamesList(const RobotLanguages &languages) {
    QString text;
    for (const RobotLanguage &language : languages) {
        if (!text.isEmpty() && !language.uiName().isEmpty())
            text += QLatin1String(", ");
        text += language.uiName();
    }
    return text;
}

} // namespace Zel::PackageModel
