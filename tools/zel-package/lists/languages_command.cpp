#include "program_command.h"

#include "console/text_layout.h"
#include "console/text_table.h"

#include <zel/language.h>

namespace ZelPackage {
namespace {

QList<QCommandLineOption> options() {
    return {};
}

ExitStatus run(const QCommandLineParser &, Console &console) {
    // The native names stand last, where writing from right to left moves no other column.
    TextTable table({{QCoreApplication::translate("zel-package", "code")},
                     {QCoreApplication::translate("zel-package", "name")},
                     {QCoreApplication::translate("zel-package", "speech")},
                     {QCoreApplication::translate("zel-package", "native name")}});
    for (const Zel::RobotLanguage &language : Zel::Language::knownLanguages()) {
        table.addRow({{language.isoCode()},
                      {language.uiName()},
                      {language.nuanceCode()},
                      {language.nativeName()}});
    }
    console.print(table.toText(console, 0));
    return Fine;
}

} // namespace

const ProgramCommand languagesCommand{
    "languages",
    QT_TRANSLATE_NOOP("zel-package", "List the known languages"),
    "",
    QT_TRANSLATE_NOOP("zel-package",
                      "Lists the languages that are known: the code that manifests use, the name, "
                      "the code of the speech engine where it has a voice, and the name in the "
                      "language itself. A manifest may use others too."),
    0,
    0,
    options,
    run,
};

} // namespace ZelPackage
