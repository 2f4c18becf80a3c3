#include "command.h"

#include "set_fields.h"

namespace ZelPackage {
namespace {

QList<QCommandLineOption> options() {
    return {
        {QLatin1String(dryRunOption),
         QCoreApplication::translate("zel-package", "Write nothing; print what would change, as a "
                                                    "unified diff.")}};
}

} // namespace

const Command setCommand{
    "set",
    QT_TRANSLATE_NOOP("zel-package", "Set fields of a manifest"),
    QT_TRANSLATE_NOOP("zel-package", "FILE FIELD=VALUE... [--dry-run]"),
    QT_TRANSLATE_NOOP(
        "zel-package",
        "Sets fields, named as in 'show --format json': author=Ines, names[fr_FR]=Goûter, "
        "robotRequirements[0].maxBodyVersion=3.1, behaviors[greet].tags[en_US][0]=hello. The key "
        "[+] appends to a list. An empty VALUE clears a text and removes an item. Either all "
        "fields are set or, where one is wrong, none. The file is rewritten in the canonical form "
        "with nothing lost. '-' takes standard input and writes to standard output."),
    2,
    Command::anyNumber,
    options,
    setFields,
};

} // namespace ZelPackage
