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

/// A fault in one field. Findings of a rule about languages that differ only in the language share
/// one message and their texts.
struct Finding {
    RuleId rule;
    Tano::FieldPath field; // for a rule about languages, the field with an entry per language
    QStringList arguments; // of the message, without the language
    RobotLanguage language;
    std::optional<Tano::UnknownNode> node = {};
};
using Findings = std::vector<Finding>;

// Each concern is checked in one place; each check appends its findings.

void checkUid(const PackageInfoModel &package, Findings &findings);
void checkRobotRequirements(const PackageInfoModel &package, Findings &findings);
void checkBrioRequirements(const PackageInfoModel &package, Findings &findings);
void checkNames(const PackageInfoModel &package, Findings &findings);
void checkDescriptions(const PackageInfoModel &package, Findings &findings);
/// The checks of the package itself, in message order.
using Check = void (*)(const PackageInfoModel &package, Findings &findings);
constexpr std::array<Check, 5> applicationChecks{
    checkUid, checkRobotRequirements, checkBrioRequirements, checkNames, checkDescriptions};

/// `occurrence` is the index of the behavior among those with the same path.
void checkTriggerSentences(const PackageInfoModel &package, const BehaviorInfoModel &behavior,
                           int occurrence, Findings &findings);

/// Whether the last placeholder of the rule's message is a list of languages.
bool speaksOfLanguages(RuleId rule);

/// The path of the field at fault, for example "names[fr_FR]".
Tano::FieldPath pathOf(const Finding &finding);

/// The languages of the findings of one rule.
RobotLanguages languagesOf(const Findings &findings, RuleId rule);

/// The message for findings of one rule that differ only in their language.
QString message(const Finding &finding, const RobotLanguages &languages);

/// The display names of the languages, joined by ", ".
QString languagesUiNamesList(const RobotLanguages &languages);

} // namespace PackageModel
} // namespace Zel
