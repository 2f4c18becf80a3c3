#pragma once

#include "console/console.h"

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QList>

namespace ZelPackage {

/// One command of the program. The name of a command in a group has two words: "texts export". The
/// texts are translated in the context "zel-package".
struct ProgramCommand {
    static constexpr int anyNumber = 1'000'000;

    const char *name;
    const char *summary;     ///< a line for the list of commands
    const char *usage;       ///< the arguments
    const char *description; ///< what it does, in a paragraph
    int minArguments;        ///< arguments that are no options
    int maxArguments;
    QList<QCommandLineOption> (*options)();
    /// `arguments` has its options and the right number of arguments.
    ExitStatus (*run)(const QCommandLineParser &arguments, Console &console);
    /// How many of the first arguments are names of files, which may have any bytes.
    int fileArguments = anyNumber;
};

extern const ProgramCommand explainCommand;
extern const ProgramCommand formatCommand;
extern const ProgramCommand getCommand;
extern const ProgramCommand languagesCommand;
extern const ProgramCommand newCommand;
extern const ProgramCommand publishCommand;
extern const ProgramCommand robotsCommand;
extern const ProgramCommand setCommand;
extern const ProgramCommand showCommand;
extern const ProgramCommand textsExportCommand;
extern const ProgramCommand textsImportCommand;
extern const ProgramCommand textsStatusCommand;
extern const ProgramCommand validateCommand;

/// All commands, in the order of the help.
QVector<const ProgramCommand *> programCommands();

/// The command with a name; null for none.
const ProgramCommand *commandNamed(const QString &name);

/// The words that a name continues with after a group: "export" after "texts". Without a group, the
/// first words of all names.
QStringList commandWords(const QString &group = {});

/// Runs the program: general options, or a command with its arguments.
[[nodiscard]] ExitStatus runProgram(const QStringList &arguments, Console &console);

} // namespace ZelPackage
