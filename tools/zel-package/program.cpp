#include "arguments/option_check.h"
#include "arguments/suggestion.h"
#include "arguments/word_check.h"
#include "completions/completion.h"
#include "console/labeled_list.h"
#include "console/text_layout.h"
#include "manifest/manifest_source.h"
#include "program_command.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace ZelPackage {
namespace {

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

// "Usage: ...", wrapped between arguments.
QString usageLines(const QString &usage, const Console &console) {
    static const QRegularExpression gap(QStringLiteral(R"( (?![^\[]*\]))"));
    QStringList lines{QCoreApplication::translate("zel-package", "Usage: %1").arg(QString())};
    const QString margin(4, u' ');
    const auto words = usage.split(gap);
    for (const QString &word : words) {
        const bool isSpaced = lines.constLast().endsWith(u' ');
        const QString line = lines.constLast() % QString(isSpaced ? 0 : 1, u' ') % word;
        if (displayWidth(line) <= console.width())
            lines.last() = line;
        else
            lines += margin % word;
    }
    return lines.join(u'\n') % QStringLiteral("\n\n");
}

QString usageOf(const ProgramCommand &command) {
    const QString usage = programName % u' ' % QLatin1String(command.name);
    return *command.usage ? usage % u' ' % translated(command.usage) : usage;
}

// Commands that share their first word, or all commands.
struct CommandGroup {
    const char *name;
    const char *description;

    QString start() const { return *name ? QLatin1String(name) % u' ' : QString(); }
    QString program() const { return QString(programName % u' ' % QLatin1String(name)).trimmed(); }
};

constexpr std::array groups{
    CommandGroup{"", QT_TRANSLATE_NOOP("zel-package",
                                       "Creates, shows, checks, edits and rewrites the manifests "
                                       "of robot application packages.")},
    CommandGroup{"texts", QT_TRANSLATE_NOOP("zel-package",
                                            "Exchanges the texts of packages with translators.")}};

void printHelp(const CommandGroup &group, Console &console) {
    LabeledList list;
    for (const ProgramCommand *command : programCommands()) {
        const QString name = QLatin1String(command->name);
        if (name.startsWith(group.start()))
            list.add(name.mid(group.start().size()), translated(command->summary));
    }
    console.print(usageLines(group.program() % QStringLiteral(" COMMAND [ARGUMENT...]"), console) %
                  paragraph(translated(group.description), console) %
                  titled(QCoreApplication::translate("zel-package", "Commands"), list, console) %
                  u'\n');
    LabeledList options;
    options.add(
        QStringLiteral("-h, --help"),
        QCoreApplication::translate("zel-package", "Show this help; after a command, its help."));
    if (!*group.name)
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
    console.print(usageLines(usageOf(command), console) %
                  paragraph(translated(command.description), console));
    LabeledList list;
    const auto options = command.options();
    for (const QCommandLineOption &option : options)
        list.add(labelOf(option), option.description());
    list.add(QStringLiteral("-h, --help"),
             QCoreApplication::translate("zel-package", "Show this help."));
    console.print(titled(QCoreApplication::translate("zel-package", "Options"), list, console));
}

void reportUnknownOption(const QString &option, const QList<QCommandLineOption> &options,
                         const QString &helpOf, Console &console) {
    QStringList known;
    for (const QCommandLineOption &each : options)
        known += QStringLiteral("--") % each.names().constLast();
    const bool isShortened = !option.startsWith(QLatin1String("--")) && option.size() > 2;
    console.printMessage(
        QCoreApplication::translate("zel-package", "Unknown option '%1'%2")
            .arg(option, suggestion(isShortened ? u'-' % option : option, known,
                                    QCoreApplication::translate("zel-package",
                                                                "; '%1 --help' lists the options.")
                                        .arg(helpOf))));
}

// Splits arguments into options and positional ones; messages name `program`.
bool parse(const QStringList &arguments, const QList<QCommandLineOption> &options,
           const QString &program, QCommandLineParser &parser, Console &console) {
    parser.addOptions(options);
    if (const auto unknown = unknownOption(arguments, options)) {
        reportUnknownOption(*unknown, options, program, console);
        return false;
    }
    const bool isParsed = parser.parse(QStringList{program} + arguments);
    if (!isParsed)
        console.printMessage(parser.errorText());
    return isParsed;
}

// The errors of QCommandLineParser::errorText() that can occur.
[[maybe_unused]] constexpr std::array parserSentences{
    QT_TRANSLATE_NOOP("QCommandLineParser", "Missing value after '%1'."),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Unexpected value after '%1'.")};

bool checkCount(const QStringList &arguments, const ProgramCommand &command, Console &console) {
    if (arguments.size() < command.minArguments) {
        const QString usage = translated(command.usage);
        console.printMessage(
            QCoreApplication::translate("zel-package", "Missing argument %1; usage: %2")
                .arg(usage.section(u' ', int(arguments.size()), int(arguments.size())).remove(u'.'),
                     usageOf(command)));
        return false;
    }
    if (arguments.size() > command.maxArguments) {
        console.printMessage(QCoreApplication::translate("zel-package", "Unexpected argument '%1'.")
                                 .arg(arguments.at(command.maxArguments)));
        return false;
    }
    return true;
}

QCommandLineOption helpOption() {
    return QCommandLineOption(QStringList{QStringLiteral("h"), QStringLiteral("help")});
}

bool namesFile(const QCommandLineOption &option) {
    return option.valueName() == QLatin1String("FILE") ||
           option.valueName() == QLatin1String("OUT");
}

// Everything but file names must be valid UTF-8.
bool checkTexts(const ProgramCommand &command, const QList<QCommandLineOption> &options,
                const QCommandLineParser &parser, Console &console) {
    QStringList texts = parser.positionalArguments().mid(command.fileArguments);
    for (const QCommandLineOption &option : options) {
        if (!namesFile(option))
            texts += parser.values(option);
    }
    return std::all_of(texts.begin(), texts.end(),
                       [&](const QString &text) { return checkText(text, console); });
}

// Files have names, and standard input can be read only once.
bool checkFiles(const ProgramCommand &command, const QList<QCommandLineOption> &options,
                const QCommandLineParser &parser, Console &console) {
    QStringList inputs = parser.positionalArguments().mid(0, command.fileArguments);
    QString reason;
    if (inputs.contains(QString()))
        reason = QCoreApplication::translate("zel-package", "The name of a file is empty.");
    for (const QCommandLineOption &option : options) {
        const QStringList files = namesFile(option) ? parser.values(option) : QStringList();
        if (files.contains(QString()))
            reason = QCoreApplication::translate("zel-package", "'--%1' requires a file name.")
                         .arg(option.names().constLast());
        if (option.valueName() == QLatin1String("FILE"))
            inputs += files;
    }
    if (std::count_if(inputs.begin(), inputs.end(), isStandardStream) > 1)
        reason = QCoreApplication::translate("zel-package", "'-' can be given only once.");
    if (!reason.isEmpty())
        console.printMessage(reason);
    return reason.isEmpty();
}

ExitStatus runCommand(const ProgramCommand &command, const QStringList &arguments,
                      Console &console) {
    QCommandLineParser parser;
    const QCommandLineOption help = helpOption();
    const QString program = programName % u' ' % QLatin1String(command.name);
    const QList<QCommandLineOption> options = command.options();
    if (!parse(arguments, options + QList{help}, program, parser, console))
        return Failure;
    if (parser.isSet(help)) {
        printHelp(command, console);
        return Fine;
    }
    const bool isFine = checkCount(parser.positionalArguments(), command, console) &&
                        checkTexts(command, options, parser, console) &&
                        checkFiles(command, options, parser, console);
    return isFine ? command.run(parser, console) : Failure;
}

// Runs the program with an option instead of a command.
ExitStatus runOption(const CommandGroup &group, const QStringList &arguments, Console &console) {
    QCommandLineParser parser;
    const QCommandLineOption help = helpOption();
    const QCommandLineOption version(QStringLiteral("version"));
    const auto options = *group.name ? QList{help} : QList{help, version};
    if (!parse(arguments, options, group.program(), parser, console))
        return Failure;
    const QStringList others = parser.positionalArguments();
    if (!others.isEmpty()) {
        console.printMessage(QCoreApplication::translate("zel-package", "Unexpected argument '%1'.")
                                 .arg(others.constFirst()));
        return Failure;
    }
    if (parser.isSet(help))
        printHelp(group, console);
    else
        console.print(programName % u' ' % QCoreApplication::applicationVersion() % u'\n');
    return Fine;
}

void reportUnknownCommand(const CommandGroup &group, const QString &name, Console &console) {
    const QString hint =
        QCoreApplication::translate("zel-package", "; '%1 --help' lists the commands.")
            .arg(group.program());
    console.printMessage(QCoreApplication::translate("zel-package", "Unknown command '%1'%2")
                             .arg(group.start() % name,
                                  suggestion(name, commandWords(QLatin1String(group.name)), hint)));
}

ExitStatus runGroup(const CommandGroup &group, const QStringList &arguments, Console &console) {
    if (arguments.isEmpty()) {
        console.printMessage(QCoreApplication::translate(
                                 "zel-package", "Missing command; '%1 --help' lists the commands.")
                                 .arg(group.program()));
        return Failure;
    }
    const QString &first = arguments.constFirst();
    if (const ProgramCommand *command = commandNamed(group.start() % first))
        return runCommand(*command, arguments.mid(1), console);
    for (const CommandGroup &inner : groups) {
        if (!*group.name && !first.isEmpty() && first == QLatin1String(inner.name))
            return runGroup(inner, arguments.mid(1), console);
    }
    if (first.startsWith(u'-'))
        return runOption(group, arguments, console);
    reportUnknownCommand(group, first, console);
    return Failure;
}

} // namespace

QVector<const ProgramCommand *> programCommands() {
    return {&newCommand,     &showCommand,        &getCommand,         &validateCommand,
            &formatCommand,  &setCommand,         &diffCommand,        &mergeCommand,
            &publishCommand, &textsExportCommand, &textsImportCommand, &textsStatusCommand,
            &explainCommand, &languagesCommand,   &robotsCommand};
}

const ProgramCommand *commandNamed(const QString &name) {
    for (const ProgramCommand *command : programCommands()) {
        if (name == QLatin1String(command->name))
            return command;
    }
    return nullptr;
}

QStringList commandWords(const QString &group) {
    const QString start = group.isEmpty() ? QString() : QString(group % u' ');
    QStringList words;
    for (const ProgramCommand *command : programCommands()) {
        const QString name = QLatin1String(command->name);
        if (name.startsWith(start))
            words += name.mid(start.size()).section(u' ', 0, 0);
    }
    words.removeDuplicates();
    return words;
}

ExitStatus runProgram(const QStringList &arguments, Console &console) {
    if (!arguments.isEmpty() && arguments.constFirst() == QLatin1String("--complete")) {
        const QStringList words = completions(arguments.mid(1)); // for the scripts in completions/
        for (const QString &word : words)
            console.print(word % u'\n');
        return Fine;
    }
    return runGroup(groups.front(), arguments, console);
}

} // namespace ZelPackage
