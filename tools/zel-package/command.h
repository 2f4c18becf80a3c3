#pragma once

#include "console/console.h"

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QList>

namespace ZelPackage {

/// One command of the program. The texts are translated in the context "zel-package".
struct Command {
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
};

extern const Command explainCommand;
extern const Command formatCommand;
extern const Command languagesCommand;
extern const Command newCommand;
extern const Command publishCommand;
extern const Command robotsCommand;
extern const Command setCommand;
extern const Command showCommand;
extern const Command validateCommand;

/// Runs the program: general options, or a command with its arguments.
[[nodiscard]] ExitStatus runProgram(const QStringList &arguments, Console &console);

} // namespace ZelPackage
