#pragma once

#include "console/console.h"

#include <packagemodel/package_issues.h>

#include <QString>
#include <QStringList>
#include <QVector>

namespace ZelPackage {

/// The rule of manifests that cannot be read as such, the only one that is the program's own.
extern const QLatin1String malformedRuleId;

/// All rules that findings are reported under: the model's and, last, the program's own.
QVector<Zel::PackageModel::Rule> reportRules();

QStringList idsOf(const QVector<Zel::PackageModel::Rule> &rules);

/// "error" or "warning", in every language.
QLatin1String wordOf(Zel::PackageModel::Severity severity);

/// The rule's message as plain text, "…" where it names something.
QString messageForm(const Zel::PackageModel::Rule &rule);

/// What there is to know about a rule, in lines of the width of the terminal.
QString explanationOf(const Zel::PackageModel::Rule &rule, const Console &console);

/// Tells that there is no such rule, and which it may be.
void tellUnknownRule(const QString &id, const QStringList &known, Console &console);

} // namespace ZelPackage
