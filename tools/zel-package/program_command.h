#pragma once

#include "console/console.h"

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QList>

namespace ZelPackage {

/// One command of the program. Grouped commands have names of two words: "texts export". Texts are
/// translated in the context "zel-package".
struct ProgramCommand {
    static constexpr int anyNumber = 1'000'000;

    const char *name;
    const char *summary;     ///< one line for the list of commands
    const char *usage;       ///< the arguments
    const char *description; ///< a paragraph about its effect
    int minArguments;        ///< the number of positional arguments
    int maxArguments;
    QList<QCommandLineOption> (*options)();
    /// `arguments` has been checked against options and the number of arguments.
    ExitStatus (*run)(const QCommandLineParser &arguments, Console &console);
    /// The number of leading arguments that are file names and may have any bytes.
    int fileArguments = anyNumber;
};

extern const ProgramCommand diffCommand;
extern const ProgramCommand explainCommand;
extern const ProgramCommand formatCommand;
extern const ProgramCommand getCommand;
extern const ProgramCommand languagesCommand;
extern const ProgramCommand mergeCommand;
extern const ProgramCommand newCommand;
extern const ProgramCommand publishCommand;
extern const ProgramCommand robotsCommand;
extern const ProgramCommand setCommand;
extern const ProgramCommand showCommand;
extern const ProgramCommand textsExportCommand;
extern const ProgramCommand textsImportCommand;
extern const ProgramCommand textsStatusCommand;
extern const ProgramCommand validateCommand;

/// All commands, in the order in which the help lists them.
QVector<const ProgramCommand *> programCommands();

/// The command with this name, or null.
const ProgramCommand *commandNamed(const QString &name);

/// The words that may follow a group: "export" after "texts". Without a group, the first words of
/// all names.
QStringList commandWords(const QString &group = {});

/// Runs the program: general options, or a command with its arguments.
[[nodiscard]] ExitStatus runProgram(const QStringList &arguments, Console &console);

} // namespace ZelPackage
