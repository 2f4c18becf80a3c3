#include "validate_request.h"

#include "arguments/word_check.h"
#include "manifest/manifest_source.h"
#include "report_rules.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace ZelPackage {
namespace {

using Zel::PackageModel::FixChoice;
using Zel::PackageModel::Severity;

const QLatin1String formatOption("format");
const QLatin1String colorOption("color");
const QLatin1String failOnOption("fail-on");
const QLatin1String ignoreOption("ignore");
const QLatin1String quietOption("quiet");
const QLatin1String explainOption("explain");
const QLatin1String fixOption("fix");
const QLatin1String unsafeFixesOption("unsafe-fixes");
const QLatin1String diffOption("diff");
const QLatin1String stdinNameOption("stdin-name");
const QLatin1String configOption("config");
const QLatin1String baselineOption("baseline");
const QLatin1String writeBaselineOption("write-baseline");

// A word and its meaning.
template<typename Value>
struct Choice {
    const char *word;
    Value value;
};

const std::array formats{Choice<decltype(&makeTextWriter)>{"text", makeTextWriter},
                         Choice<decltype(&makeTextWriter)>{"json", makeJsonWriter},
                         Choice<decltype(&makeTextWriter)>{"sarif", makeSarifWriter},
                         Choice<decltype(&makeTextWriter)>{"github", makeGithubWriter}};
constexpr std::array colors{Choice<Console::Color>{"auto", Console::Color::Auto},
                            Choice<Console::Color>{"always", Console::Color::Always},
                            Choice<Console::Color>{"never", Console::Color::Never}};
constexpr std::array severities{Choice<Severity>{"error", Severity::Error},
                                Choice<Severity>{"warning", Severity::Warning},
                                Choice<Severity>{"note", Severity::Note}};

// The value of an option, by default the first choice; nullopt after reporting an unknown word.
template<typename Choices>
auto chosen(const QCommandLineParser &arguments, QLatin1String option, const Choices &choices,
            Console &console) {
    using Value = decltype(choices.front().value);
    if (!arguments.isSet(option))
        return std::make_optional<Value>(choices.front().value);
    QStringList words;
    for (const auto &choice : choices)
        words += QLatin1String(choice.word);
    const QString word = arguments.value(option);
    if (!checkWord(word, words,
                   QCoreApplication::translate("zel-package", "'--%1' cannot be '%2'%3")
                       .arg(option, QStringLiteral("%1"), QStringLiteral("%2")),
                   QCoreApplication::translate("zel-package", "; it is one of %1.")
                       .arg(words.join(QStringLiteral(", "))),
                   console))
        return std::optional<Value>();
    return std::make_optional<Value>(choices.at(std::size_t(words.indexOf(word))).value);
}

std::optional<QSet<QString>> ignoredRules(const QStringList &values, Console &console) {
    QSet<QString> ignored;
    if (values.isEmpty())
        return ignored;
    const QStringList known = changeableRuleIds();
    bool areKnown = true;
    const QStringList ids = values.join(u',').split(u',');
    for (const QString &id : ids) {
        if (!known.contains(id)) {
            console.printMessage(
                id == malformedRuleId
                    ? QCoreApplication::translate("zel-package", "'%1' cannot be ignored.").arg(id)
                    : unknownRule(id, known));
            areKnown = false;
        }
        ignored += id;
    }
    return areKnown ? std::make_optional(ignored) : std::nullopt;
}

std::optional<FixChoice> fixesIn(const QCommandLineParser &arguments) {
    if (arguments.isSet(unsafeFixesOption))
        return FixChoice::All;
    const bool isSet = arguments.isSet(fixOption) || arguments.isSet(diffOption);
    return isSet ? std::make_optional(FixChoice::Safe) : std::nullopt;
}

bool hasStream(const QStringList &files) {
    return std::any_of(files.begin(), files.end(), isStandardStream);
}

} // namespace

bool ValidateRequest::printsManifests() const {
    return fixes && (showsDiff || hasStream(arguments));
}

QList<QCommandLineOption> validateOptions() {
    const auto option = [](QLatin1String name, const QString &description,
                           const QString &value = {}) {
        return QCommandLineOption(name, description, value);
    };
    return {
        option(formatOption,
               QCoreApplication::translate(
                   "zel-package", "The output format: text (the default), json, sarif or github."),
               QStringLiteral("FORMAT")),
        option(failOnOption,
               QCoreApplication::translate("zel-package",
                                           "The lowest severity that sets the exit status to 1: "
                                           "error (the default), warning or note."),
               QStringLiteral("SEVERITY")),
        option(ignoreOption,
               QCoreApplication::translate("zel-package",
                                           "Do not report findings of these rules; separate IDs by "
                                           "commas, or repeat the option."),
               QStringLiteral("ID,...")),
        option(fixOption,
               QCoreApplication::translate(
                   "zel-package", "Apply the safe fixes, and report the remaining findings.")),
        option(unsafeFixesOption,
               QCoreApplication::translate("zel-package",
                                           "Also apply fixes that may change the meaning.")),
        option(diffOption, QCoreApplication::translate(
                               "zel-package", "Write nothing; print the fixes as a unified diff.")),
        option(configOption,
               QCoreApplication::translate("zel-package",
                                           "Use this configuration instead of the nearest "
                                           ".zel-package.toml."),
               QStringLiteral("FILE")),
        option(baselineOption,
               QCoreApplication::translate("zel-package",
                                           "Do not report the findings listed in this file."),
               QStringLiteral("FILE")),
        option(
            writeBaselineOption,
            QCoreApplication::translate("zel-package", "Write the findings to this file instead."),
            QStringLiteral("FILE")),
        option(stdinNameOption,
               QCoreApplication::translate("zel-package",
                                           "The name of the manifest from standard input."),
               QStringLiteral("NAME")),
        option(quietOption,
               QCoreApplication::translate(
                   "zel-package",
                   "Print only findings that set the exit status to 1, and no summary.")),
        option(colorOption,
               QCoreApplication::translate("zel-package",
                                           "Whether to use color: auto (the default, on a "
                                           "terminal), always or never."),
               QStringLiteral("WHEN")),
        option(explainOption, QCoreApplication::translate(
                                  "zel-package", "Explain each rule with findings at the end."))};
}

std::optional<ValidateRequest> validateRequest(const QCommandLineParser &arguments,
                                               Console &console) {
    const auto makeWriter = chosen(arguments, formatOption, formats, console);
    const auto color = chosen(arguments, colorOption, colors, console);
    const auto failOn = chosen(arguments, failOnOption, severities, console);
    const auto ignored = ignoredRules(arguments.values(ignoreOption), console);
    if (!makeWriter || !color || !failOn || !ignored)
        return {};
    const QStringList files = arguments.positionalArguments();
    if (arguments.isSet(stdinNameOption) && !hasStream(files)) {
        console.printMessage(QCoreApplication::translate(
                                 "zel-package", "'--%1' requires standard input, '-', as a FILE.")
                                 .arg(stdinNameOption));
        return {};
    }
    if (isStandardStream(arguments.value(writeBaselineOption))) {
        console.printMessage(
            QCoreApplication::translate("zel-package", "'--%1' requires a file name.")
                .arg(writeBaselineOption));
        return {};
    }
    return ValidateRequest{files,
                           *makeWriter,
                           *color,
                           arguments.isSet(failOnOption) ? failOn : std::nullopt,
                           *ignored,
                           arguments.isSet(quietOption),
                           arguments.isSet(explainOption),
                           fixesIn(arguments),
                           arguments.isSet(diffOption),
                           arguments.value(stdinNameOption),
                           arguments.value(configOption),
                           arguments.value(baselineOption),
                           arguments.value(writeBaselineOption)};
}

} // namespace ZelPackage
