#include "arguments/suggestion.h"
#include "console/labeled_list.h"
#include "console/text_layout.h"
#include "program_command.h"

#include <algorithm>
#include <array>

namespace ZelPackage {
namespace {

const std::array commands{&newCommand,       &showCommand,  &getCommand,     &validateCommand,
                          &formatCommand,    &setCommand,   &publishCommand, &explainCommand,
                          &languagesCommand, &robotsCommand};

const QLatin1String programName("zel-package");

QString translated(const char *text) {
    return QCoreApplication::translate("zel-package", text);
}

QString paragraph(const QString &text, const Console &console) {
    return wrapped(text, console.width()).join(u'\n') % QStringLiteral("\n\n");
}

QString titled(const QString &title, const LabeledList &fields, const Console &console) {
    return console.styled(title, Style::Heading) % u'\n' % fields.toText(console, 2);
}

QString usageOf(const ProgramCommand &command) {
    const QString usage = programName % u' ' % QLatin1String(command.name);
    return *command.usage ? usage % u' ' % translated(command.usage) : usage;
}

void printHelp(Console &console) {
    LabeledList list;
    for (const ProgramCommand *command : commands)
        list.add(QLatin1String(command->name), translated(command->summary));
    console.print(
        QCoreApplication::translate("zel-package", "Usage: %1")
            .arg(QStringLiteral("zel-package COMMAND [ARGUMENT...]\n\n")) %
        paragraph(QCoreApplication::translate("zel-package",
                                              "Makes, shows, checks, edits and rewrites the "
                                              "manifests of robot application packages."),
                  console) %
        titled(QCoreApplication::translate("zel-package", "Commands"), list, console) % u'\n');
    LabeledList options;
    options.add(QStringLiteral("-h, --help"),
                QCoreApplication::translate("zel-package",
                                            "Show this help; after a command, that command's."));
    options.add(QStringLiteral("--version"),
                QCoreApplication::translate("zel-package", "Show the version of the program."));
    console.print(titled(QCoreApplication::translate("zel-package", "Options"), options, console));
}

QString labelOf(const QCommandLineOption &option) {
    QStringList names;
    const auto optionNames = option.names();
    for (const QString &name : optionNames)
        names += (name.size() == 1 ? QStringLiteral("-") : QStringLiteral("--")) % name;
    const QString label = names.join(QStringLiteral(", "));
    return option.valueName().isEmpty() ? label : label % u' ' % option.valueName();
}

void printHelp(const ProgramCommand &command, Console &console) {
    console.print(QCoreApplication::translate("zel-package", "Usage: %1").arg(usageOf(command)) %
                  QStringLiteral("\n\n") % paragraph(translated(command.description), console));
    LabeledList list;
    const auto options = command.options();
    for (const QCommandLineOption &option : options)
        list.add(labelOf(option), option.description());
    list.add(QStringLiteral("-h, --help"),
             QCoreApplication::translate("zel-package", "Show this help."));
    console.print(titled(QCoreApplication::translate("zel-package", "Options"), list, console));
}

QStringList dashed(const QStringList &names) {
    QStringList result;
    for (const QString &name : names)
        result += QStringLiteral("--") % name;
    return result;
}

void tellUnknownOption(const QString &option, const QStringList &known, const QString &helpOf,
                       Console &console) {
    console.tell(QCoreApplication::translate("zel-package", "There is no option '%1'%2")
                     .arg(option, suggestion(option, known,
                                             QCoreApplication::translate(
                                                 "zel-package", "; '%1 --help' lists the options.")
                                                 .arg(helpOf))));
}

// Tells what is wrong with the arguments of a command, if anything is.
bool checkArguments(const ProgramCommand &command, const QStringList &knownOptions,
                    const QCommandLineParser &parser, bool isParsed, Console &console) {
    const QStringList unknown = parser.unknownOptionNames();
    if (!unknown.isEmpty()) {
        const QString &name = unknown.constFirst();
        tellUnknownOption((name.size() == 1 ? QStringLiteral("-") : QStringLiteral("--")) % name,
                          dashed(knownOptions), programName % u' ' % QLatin1String(command.name),
                          console);
        return false;
    }
    if (!isParsed) {
        console.tell(parser.errorText());
        return false;
    }
    const QStringList arguments = parser.positionalArguments();
    if (arguments.size() < command.minArguments) {
        console.tell(QCoreApplication::translate("zel-package", "An argument is missing: %1")
                         .arg(usageOf(command)));
        return false;
    }
    if (arguments.size() > command.maxArguments) {
        console.tell(QCoreApplication::translate("zel-package", "'%1' is one argument too many: %2")
                         .arg(arguments.at(command.maxArguments), usageOf(command)));
        return false;
    }
    return true;
}

ExitStatus runCommand(const ProgramCommand &command, const QStringList &arguments,
                      Console &console) {
    QCommandLineParser parser;
    const QCommandLineOption help(QStringList{QStringLiteral("h"), QStringLiteral("help")});
    QList<QCommandLineOption> options = command.options();
    options += help;
    parser.addOptions(options);
    QStringList names;
    for (const QCommandLineOption &option : std::as_const(options))
        names += option.names().constLast();

    const bool isParsed = parser.parse(QStringList{programName} + arguments);
    if (parser.isSet(help)) {
        printHelp(command, console);
        return Fine;
    }
    return checkArguments(command, names, parser, isParsed, console) ? command.run(parser, console)
                                                                     : Failure;
}

const ProgramCommand *commandNamed(const QString &name) {
    const auto it =
        std::find_if(commands.begin(), commands.end(), [&](const ProgramCommand *command) {
            return name == QLatin1String(command->name);
        });
    return it == commands.end() ? nullptr : *it;
}

void tellUnknownCommand(const QString &name, Console &console) {
    QStringList names;
    for (const ProgramCommand *command : commands)
        names += QLatin1String(command->name);
    console.tell(QCoreApplication::translate("zel-package", "There is no command '%1'%2")
                     .arg(name, suggestion(name, names,
                                           QCoreApplication::translate(
                                               "zel-package",
                                               "; 'zel-package --help' lists the commands."))));
}

} // namespace

ExitStatus runProgram(const QStringList &arguments, Console &console) {
    if (arguments.isEmpty()) {
        console.tell(QCoreApplication::translate(
            "zel-package", "A command is missing; 'zel-package --help' lists the commands."));
        return Failure;
    }
    const QString &first = arguments.constFirst();
    if (first == QLatin1String("--help") || first == QLatin1String("-h")) {
        printHelp(console);
        return Fine;
    }
    if (first == QLatin1String("--version")) {
        console.print(programName % u' ' % QCoreApplication::applicationVersion() % u'\n');
        return Fine;
    }
    if (const ProgramCommand *command = commandNamed(first))
        return runCommand(*command, arguments.mid(1), console);
    if (first.startsWith(u'-'))
        tellUnknownOption(first, {QStringLiteral("--help"), QStringLiteral("--version")},
                          programName, console);
    else
        tellUnknownCommand(first, console);
    return Failure;
}

} // namespace ZelPackage
