#include "program_command.h"

#include "console/text_table.h"
#include "report_rules.h"

namespace ZelPackage {
namespace {

using Zel::PackageModel::Rule;

QList<QCommandLineOption> options() {
    return {};
}

QString tableOf(const QVector<Rule> &rules, const Console &console) {
    TextTable table({{QCoreApplication::translate("zel-package", "rule")},
                     {QCoreApplication::translate("zel-package", "severity")},
                     {QCoreApplication::translate("zel-package", "message")}});
    for (const Rule &rule : rules)
        table.addRow({{rule.id}, {wordOf(rule.severity)}, {messageForm(rule)}});
    return table.toText(console, 0);
}

ExitStatus run(const QCommandLineParser &arguments, Console &console) {
    const QVector<Rule> rules = reportRules();
    const QStringList ids = arguments.positionalArguments();
    if (ids.isEmpty()) {
        console.print(tableOf(rules, console));
        return Fine;
    }
    const QStringList known = idsOf(rules);
    const auto index = known.indexOf(ids.constFirst());
    if (index < 0) {
        console.tell(unknownRule(ids.constFirst(), known));
        return Failure;
    }
    console.print(explanationOf(rules.at(index), console));
    return Fine;
}

} // namespace

const ProgramCommand explainCommand{
    "explain",
    QT_TRANSLATE_NOOP("zel-package", "Explain what 'validate' finds"),
    QT_TRANSLATE_NOOP("zel-package", "[ID]"),
    QT_TRANSLATE_NOOP("zel-package",
                      "Tells what the rule ID of 'validate' is for and how to mend what it finds; "
                      "without an ID, lists all rules."),
    0,
    1,
    options,
    run,
};

} // namespace ZelPackage
