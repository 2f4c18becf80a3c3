#pragma once

#include "console/console.h"

#include <packagemodel/issue_report.h>

#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

namespace ZelPackage {

// Rules defined by the program itself.

extern const QLatin1String malformedRuleId; ///< for manifests that cannot be parsed
extern const QLatin1String baselineUnusedRuleId;
extern const QLatin1String ignoreUnusedRuleId;
extern const QLatin1String ignoreUnknownRuleId;

/// All rules that may be reported: those of the model, then the program's.
QVector<Zel::PackageModel::Rule> reportRules();

QStringList idsOf(const QVector<Zel::PackageModel::Rule> &rules);

/// The ids of rules that can be ignored or given another severity.
QStringList changeableRuleIds();

/// "error", "warning" and "note", in every language.
QStringList severityWords();
/// The severity with this name, or nullopt.
std::optional<Zel::PackageModel::Severity> severityOf(const QString &word);

/// The message of one of the program's rules, with placeholders.
QString messageOf(QLatin1String ownRule);

/// The rule's message as plain text, with "…" for placeholders.
QString messageForm(const Zel::PackageModel::Rule &rule);

/// The message, explanation, remedy and example of a rule, wrapped to the terminal's width.
QString explanationOf(const Zel::PackageModel::Rule &rule, const Console &console);

/// A rule as described by "rules" in schema/rules.schema.json.
QJsonObject ruleJson(const Zel::PackageModel::Rule &rule);

/// The error for an unknown rule, with suggestions.
QString unknownRule(const QString &id, const QStringList &known);

} // namespace ZelPackage
