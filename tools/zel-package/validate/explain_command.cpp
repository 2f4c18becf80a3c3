#include "program_command.h"

#include "arguments/format_option.h"
#include "console/json_list.h"
#include "console/text_table.h"
#include "report_rules.h"

namespace ZelPackage {
namespace {

using Zel::PackageModel::Rule;

QList<QCommandLineOption> options() {
    return {formatOption()};
}

QString tableOf(const QVector<Rule> &rules, const Console &console) {
    TextTable table({{QCoreApplication::translate("zel-package", "rule")},
                     {QCoreApplication::translate("zel-package", "severity")},
                     {QCoreApplication::translate("zel-package", "message")}});
    for (const Rule &rule : rules)
        table.addRow({{rule.id}, {severityWord(rule.severity)}, {messageForm(rule)}});
    return table.toText(console, 0);
}

void printJson(const QVector<Rule> &rules, Console &console) {
    JsonListForm form(QLatin1String("rules"), console);
    for (const Rule &rule : rules)
        form.add(ruleJson(rule));
    form.finish();
}

ExitStatus run(const QCommandLineParser &arguments, Console &console) {
    const auto format = formatOf(arguments, console);
    if (!format)
        return Failure;
    const bool isJson = format == OutputFormat::Json;
    const QVector<Rule> rules = reportRules();
    const QStringList ids = arguments.positionalArguments();
    if (ids.isEmpty()) {
        isJson ? printJson(rules, console) : console.print(tableOf(rules, console));
        return Fine;
    }
    const QStringList known = idsOf(rules);
    const auto index = known.indexOf(ids.constFirst());
    if (index < 0) {
        console.printMessage(unknownRule(ids.constFirst(), known));
        return Failure;
    }
    isJson ? printJson({rules.at(index)}, console)
           : console.print(explanationOf(rules.at(index), console));
    return Fine;
}

} // namespace

const ProgramCommand explainCommand{
    "explain",
    QT_TRANSLATE_NOOP("zel-package", "Explain the rules of 'validate'"),
    QT_TRANSLATE_NOOP("zel-package", "[ID] [--format text|json]"),
    QT_TRANSLATE_NOOP("zel-package", "Explains the purpose of the rule ID of 'validate' and how to "
                                     "correct its findings; without an ID, lists all rules."),
    0,
    1,
    options,
    run,
    0,
};

} // namespace ZelPackage
