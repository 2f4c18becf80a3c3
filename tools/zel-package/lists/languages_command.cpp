#include "program_command.h"

#include "arguments/format_option.h"
#include "console/json_list.h"
#include "console/text_layout.h"
#include "console/text_table.h"

#include <packagemodel/language_name.h>

#include <zel/language.h>

namespace ZelPackage {
namespace {

QList<QCommandLineOption> options() {
    return {formatOption()};
}

void printJson(Console &console) {
    JsonListForm form(QLatin1String("languages"), console);
    for (const Zel::RobotLanguage &language : Zel::Language::knownLanguages()) {
        form.add({{QStringLiteral("code"), language.isoCode()},
                  {QStringLiteral("name"), Zel::PackageModel::languageName(language)},
                  {QStringLiteral("englishName"), language.englishName()},
                  {QStringLiteral("nativeName"), language.nativeName()},
                  {QStringLiteral("speech"), language.nuanceCode()}});
    }
    form.finish();
}

void printTable(Console &console) {
    // Native names are in the last column, where right-to-left text cannot shift other columns.
    TextTable table({{QCoreApplication::translate("zel-package", "code")},
                     {QCoreApplication::translate("zel-package", "name")},
                     {QCoreApplication::translate("zel-package", "speech")},
                     {QCoreApplication::translate("zel-package", "native name")}});
    for (const Zel::RobotLanguage &language : Zel::Language::knownLanguages()) {
        table.addRow({{language.isoCode()},
                      {Zel::PackageModel::languageName(language)},
                      {language.nuanceCode()},
                      {language.nativeName()}});
    }
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

const ProgramCommand languagesCommand{
    "languages",
    QT_TRANSLATE_NOOP("zel-package", "List the known languages"),
    QT_TRANSLATE_NOOP("zel-package", "[--format text|json]"),
    QT_TRANSLATE_NOOP(
        "zel-package",
        "Lists the known languages: the code used in manifests, the name, the code of the speech "
        "engine if it has a voice, and the native name. Manifests may also use other languages."),
    0,
    0,
    options,
    run,
};

} // namespace ZelPackage
