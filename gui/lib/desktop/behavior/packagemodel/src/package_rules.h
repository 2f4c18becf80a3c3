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
    TriggerSentencesMissing,
};

/// A row of the table, in the source language.
struct RuleRow {
    const char *id;
    Severity severity;
    const char *message; // translated in the context "QObject"
    const char *explanation;
    const char *remedy;
};

const RuleRow &ruleRow(RuleId rule);

/// The message of a rule in the language of the application, its placeholders not yet filled.
QString ruleMessage(RuleId rule);

} // namespace Zel::PackageModel
