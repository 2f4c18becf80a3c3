#pragma once

#include "package_rules.h"

#include <tano/field_path.h>
#include <tano/manifest_reader.h>
#include <zel/robot_language.h>

#include <QString>
#include <QStringList>

#include <array>
#include <vector>

namespace Zel {

class BehaviorInfoModel;
class PackageInfoModel;

namespace PackageModel {

/// What a check found in one field. Findings of a rule about languages that differ only in their
/// language make one message; they share their texts.
struct Finding {
    RuleId rule;
    Tano::FieldPath field; // for a rule about languages, the one with an entry per language
    QStringList arguments; // of the message, except for the language
    RobotLanguage language;
    std::optional<Tano::UnknownNode> node = {};
};
using Findings = std::vector<Finding>;

// Each concern is checked in one place; each check appends what it finds.

void checkUid(const PackageInfoModel &package, Findings &findings);
void checkRobotRequirements(const PackageInfoModel &package, Findings &findings);
void checkBrioRequirements(const PackageInfoModel &package, Findings &findings);
void checkNames(const PackageInfoModel &package, Findings &findings);
void checkDescriptions(const PackageInfoModel &package, Findings &findings);
/// Those of the package itself, in the order of their messages.
using Check = void (*)(const PackageInfoModel &package, Findings &findings);
constexpr std::array<Check, 5> applicationChecks{
    checkUid, checkRobotRequirements, checkBrioRequirements, checkNames, checkDescriptions};

/// `occurrence` is the number of the behavior among those with the same path.
void checkTriggerSentences(const PackageInfoModel &package, const BehaviorInfoModel &behavior,
                           int occurrence, Findings &findings);

/// Whether the last placeholder of the rule's message is for languages.
bool speaksOfLanguages(RuleId rule);

/// The path of the field at fault, for example "names[fr_FR]".
Tano::FieldPath pathOf(const Finding &finding);

/// The languages of the findings of one rule.
RobotLanguages languagesOf(const Findings &findings, RuleId rule);

/// The message about some findings of one rule, which differ in their language at most.
QString message(const Finding &finding, const RobotLanguages &languages);

/// The names that the user knows the languages by, joined by ", ".
QString languagesUiNamesList(const RobotLanguages &languages);

} // namespace PackageModel
} // namespace Zel
