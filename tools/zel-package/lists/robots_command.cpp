#include "program_command.h"

#include "arguments/format_option.h"
#include "console/json_list.h"
#include "console/text_layout.h"
#include "console/text_table.h"

#include <packagemodel/requirements.h>

namespace ZelPackage {
namespace {

QList<QCommandLineOption> options() {
    return {formatOption()};
}

void printJson(Console &console) {
    JsonListForm form(QLatin1String("robots"), console);
    const auto &robots = Zel::RobotRequirement::prettyRobotNames();
    for (auto robot = robots.begin(); robot != robots.end(); ++robot)
        form.add({{QStringLiteral("name"), robot.value()}, {QStringLiteral("model"), robot.key()}});
    form.finish();
}

void printTable(Console &console) {
    TextTable table({{QCoreApplication::translate("zel-package", "robot")},
                     {QCoreApplication::translate("zel-package", "model")}});
    const auto &robots = Zel::RobotRequirement::prettyRobotNames();
    for (auto robot = robots.begin(); robot != robots.end(); ++robot)
        table.addRow({{printable(robot.value())}, {printable(robot.key())}});
    console.print(table.toText(console, 0));
}

ExitStatus run(const QCommandLineParser &arguments, Console &console) {
    const auto format = formatOf(arguments, console);
    if (!format)
        return Failure;
    format == OutputFormat::Json ? printJson(console) : printTable(console);
    return Fine;
}

} // namespace

const ProgramCommand robotsCommand{
    "robots",
    QT_TRANSLATE_NOOP("zel-package", "List the known robots"),
    QT_TRANSLATE_NOOP("zel-package", "[--format text|json]"),
    QT_TRANSLATE_NOOP(
        "zel-package",
        "Lists the robot families and models that a package may require, with the model to use in "
        "a robot requirement; it is empty for any robot. Manifests may also require other robots."),
    0,
    0,
    options,
    run,
};

} // namespace ZelPackage
