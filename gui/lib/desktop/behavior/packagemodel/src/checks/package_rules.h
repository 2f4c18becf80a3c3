#pragma once

#include <packagemodel/package_issues.h>

namespace Zel::PackageModel {

/// The rules by the order of their table.
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
    TriggerSentencesMissing, // the last one of the messages
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

/// Whether a rule is one of those that messages and live flags are made from.
constexpr bool hasMessage(RuleId rule) {
    return rule <= RuleId::TriggerSentencesMissing;
}

/// A row of the table, in the source language.
struct RuleRow {
    const char *id;
    Severity severity;
    const char *message; // translated in the context "QObject" if hasMessage()
    const char *explanation;
    const char *remedy;
    const char *example; // part of a manifest; null for none
};

const RuleRow &ruleRow(RuleId rule);

/// The message of a rule in the language of the application, its placeholders not yet filled.
QString ruleMessage(RuleId rule);

} // namespace Zel::PackageModel
