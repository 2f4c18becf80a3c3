#include "package_checks.h"

#include <packagemodel/package_info_model.h>

#include <QRegularExpression>

#include <algorithm>
#include <vector>

namespace Zel::PackageModel {
namespace {

using Tano::FieldPath;

const QRegularExpression k_packageUIDRegexp(
    QRegularExpression::anchoredPattern(QStringLiteral("(?=.*[a-z\\-_])[_\\-a-z0-9]{1,50}")));

FieldPath fieldNamed(const char *name) {
    return FieldPath().field(name);
}

FieldPath indexed(const char *list, int index, const char *field) {
    return fieldNamed(list).index(index).field(field);
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
        findings.push_back({RuleId::UidInvalid, fieldNamed("uid"), {}, {}});
}

void checkRobotRequirements(const PackageInfoModel &package, Findings &findings) {
    const QVector<RobotRequirement> requirements = package.robotRequirements();
    if (requirements.isEmpty()) {
        findings.push_back(
            {RuleId::RobotRequirementsMissing, fieldNamed("robotRequirements"), {}, {}});
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
            {RuleId::BrioRequirementMissing, fieldNamed("brioRequirements"), {}, {}});
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
                            fieldNamed("names"),
                            {},
                            language});
    }
    // The default language comes first.
    std::stable_partition(findings.begin(), findings.end(), [](const Finding &finding) {
        return finding.rule != RuleId::NameMissing;
    });
}

void checkDescriptions(const PackageInfoModel &package, Findings &findings) {
    for (const RobotLanguage &language : package.supportedLanguages()) {
        if (!package.hasDescriptionFor(language))
            findings.push_back(
                {RuleId::DescriptionMissing, fieldNamed("descriptions"), {}, language});
    }
}

void checkTriggerSentences(const PackageInfoModel &package, const BehaviorInfoModel &behavior,
                           int occurrence, Findings &findings) {
    const auto &all = behavior.languagesToTriggerSentences();
    const bool isTriggered = std::any_of(all.begin(), all.end(), [](const auto &sentences) {
        return std::any_of(sentences.first.begin(), sentences.first.end(),
                           [](const QString &sentence) { return !sentence.isEmpty(); });
    });
    if (!isTriggered)
        return;

    const auto isLess = [](const QString *a, const QString *b) { return *a < *b; };
    std::vector<const QString *> present;
    present.reserve(all.size());
    for (const auto &[sentences, language] : all) {
        if (!sentences.isEmpty())
            present.push_back(&language.isoCode());
    }
    std::sort(present.begin(), present.end(), isLess);
    QStringList arguments;
    FieldPath field;
    for (const RobotLanguage &language : package.supportedLanguages()) {
        if (std::binary_search(present.begin(), present.end(), &language.isoCode(), isLess))
            continue;
        if (arguments.isEmpty()) {
            arguments = QStringList{behavior.path()};
            field = fieldNamed("behaviors")
                        .entry(toUtf8(behavior.path()), occurrence)
                        .field("triggerSentences");
        }
        findings.push_back({RuleId::TriggerSentencesMissing, field, arguments, language});
    }
}

bool speaksOfLanguages(RuleId rule) {
    return rule >= RuleId::NameMissingDefault && hasMessage(rule);
}

FieldPath pathOf(const Finding &finding) {
    return speaksOfLanguages(finding.rule)
               ? FieldPath(finding.field).key(toUtf8(finding.language.isoCode()))
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
    // Values of further rules may contain "%1", so they are all inserted at once.
    const QStringList &values = finding.arguments;
    if (!hasMessage(finding.rule) && values.size() == 3)
        return text.arg(values.at(0), values.at(1), values.at(2));
    if (!hasMessage(finding.rule) && values.size() == 2)
        return text.arg(values.at(0), values.at(1));
    for (const QString &value : values)
        text = text.arg(value);
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
