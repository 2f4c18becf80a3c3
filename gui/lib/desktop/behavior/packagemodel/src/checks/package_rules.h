#pragma once

#include <packagemodel/package_issues.h>

namespace Zel::PackageModel {

/// The rules, in table order.
enum class RuleId {
    UidInvalid,
    RobotRequirementsMissing,
    RobotModelMissing,
    RobotBodyRangeReversed,
    RobotHeadRangeReversed,
    BrioRequirementMissing,
    BrioMinimumMissing,
    BrioRangeReversed,
    NameMissingDefault,
    NameMissing,
    DescriptionMissing,
    TriggerSentencesMissing, // the last rule with a message in the validator
    ScriptMalformed,
    BehaviorPathDuplicate,
    TopicNameDuplicate,
    ServiceNameDuplicate,
    PermissionDuplicate,
    KeyEmpty,
    NatureUnknown,
    LanguageUnknown,
    RobotUnknown,
    VersionInvalid,
    DateInvalid,
    TextUnlisted,
    TextBlank,
    TopicFileMissing,
    IconInvalid,
    SupportedLanguageMissing,
    ElementUnknown,
    AttributeUnknown,
    MergeConflict,
};

/// Whether the validator's messages and live flags use the rule.
constexpr bool hasMessage(RuleId rule) {
    return rule <= RuleId::TriggerSentencesMissing;
}

/// A row of the table, untranslated.
struct RuleRow {
    const char *id;
    Severity severity;
    const char *message; // translated in the context "QObject" if hasMessage()
    const char *explanation;
    const char *remedy;
    const char *example; // a manifest fragment; may be null
};

const RuleRow &ruleRow(RuleId rule);

/// The translated message of a rule, with its placeholders.
QString ruleMessage(RuleId rule);

} // namespace Zel::PackageModel
