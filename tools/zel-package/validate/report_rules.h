#pragma once

#include "console/console.h"

#include <packagemodel/issue_report.h>

#include <QJsonObject>
#include <QString>
#include <QStringList>
#include <QVector>

#include <optional>

namespace ZelPackage {

// The rules that are the program's own.

extern const QLatin1String malformedRuleId; ///< of manifests that cannot be read as such
extern const QLatin1String baselineUnusedRuleId;
extern const QLatin1String ignoreUnusedRuleId;
extern const QLatin1String ignoreUnknownRuleId;

/// All rules that findings are reported under: the model's and, behind them, the program's own.
QVector<Zel::PackageModel::Rule> reportRules();

QStringList idsOf(const QVector<Zel::PackageModel::Rule> &rules);

/// The ids of the rules that can be ignored and given another severity.
QStringList changeableRuleIds();

/// "error", "warning" and "note", in every language.
QStringList severityWords();
/// The severity of a word; nothing for another word.
std::optional<Zel::PackageModel::Severity> severityOf(const QString &word);

/// The message of one of the program's own rules, its placeholders not yet filled.
QString messageOf(QLatin1String ownRule);

/// The rule's message as plain text, "…" where it names something.
QString messageForm(const Zel::PackageModel::Rule &rule);

/// The message, explanation, remedy and example of a rule, in lines of the width of the terminal.
QString explanationOf(const Zel::PackageModel::Rule &rule, const Console &console);

/// A rule as "rules" of schema/rules.schema.json has it.
QJsonObject ruleJson(const Zel::PackageModel::Rule &rule);

/// The sentence that there is no such rule, with the nearest ones.
QString unknownRule(const QString &id, const QStringList &known);

} // namespace ZelPackage
