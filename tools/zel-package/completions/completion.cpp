#include "completion.h"

#include "field_completion.h"
#include "program_command.h"
#include "validate/report_rules.h"

#include <zel/language.h>

#include <QRegularExpression>

#include <algorithm>

namespace ZelPackage {
namespace {

const QLatin1String helpOption("--help");

QStringList languageCodes() {
    QStringList codes;
    for (const Zel::RobotLanguage &language : Zel::Language::knownLanguages())
        codes += language.isoCode();
    return codes;
}

QStringList after(const QString &start, const QStringList &words) {
    QStringList result;
    for (const QString &word : words)
        result += start % word;
    return result;
}

// The alternatives in "text|json", which follows an option in the usage.
QStringList alternatives(const ProgramCommand &command, const QString &option) {
    const QRegularExpression form(u'-' % QRegularExpression::escape(option) %
                                  QStringLiteral(R"( ([a-z]+(\|[a-z]+)+))"));
    const auto match = form.match(QLatin1String(command.usage));
    return match.hasMatch() ? match.captured(1).split(u'|') : QStringList();
}

QStringList valuesOf(const ProgramCommand &command, const QCommandLineOption &option,
                     const QString &typed) {
    if (option.valueName() == QLatin1String("CODE"))
        return languageCodes();
    if (!option.valueName().startsWith(QLatin1String("ID")))
        return alternatives(command, option.names().constLast());
    QStringList ids = idsOf(reportRules());
    ids.removeAll(malformedRuleId);
    return after(typed.left(typed.lastIndexOf(u',') + 1), ids);
}

// The option, with a value, that a word names as "--name" or "-n"; null if there is none.
const QCommandLineOption *optionOf(const QString &word, const QList<QCommandLineOption> &options) {
    const QString name = word.mid(word.startsWith(QLatin1String("--")) ? 2 : 1);
    const auto it = std::find_if(options.begin(), options.end(), [&](const auto &option) {
        return !option.valueName().isEmpty() && option.names().contains(name);
    });
    return word.startsWith(u'-') && it != options.end() ? &*it : nullptr;
}

QStringList labels(const QList<QCommandLineOption> &options) {
    QStringList result{helpOption};
    for (const QCommandLineOption &option : options)
        result += QStringLiteral("--") % option.names().constLast();
    return result;
}

// Completes an argument from its placeholder in the usage, such as the second of "FILE FIELD...
// [--option]".
QStringList arguments(const ProgramCommand &command, const QStringList &before,
                      const QString &typed) {
    const QStringList usage =
        QString(QLatin1String(command.usage)).section(QStringLiteral("--"), 0, 0).split(u' ');
    QStringList placeholders;
    for (const QString &word : usage) {
        if (!word.isEmpty() && word != QLatin1String("["))
            placeholders += QString(word).remove(u'.').remove(u'[').remove(u']');
    }
    if (before.size() >= command.maxArguments || placeholders.isEmpty())
        return {};
    const QString placeholder =
        placeholders.at(std::min(int(before.size()), int(placeholders.size()) - 1));
    if (placeholder == QLatin1String("ID"))
        return idsOf(reportRules());
    if (placeholder.startsWith(QLatin1String("FIELD")))
        return fieldCompletions(before.constFirst(), typed,
                                placeholder.contains(u'=') ? FieldUse::Set : FieldUse::Get);
    return {};
}

QStringList candidates(const ProgramCommand &command, const QStringList &before,
                       const QString &typed) {
    const QList<QCommandLineOption> options = command.options();
    const auto equalsSign = typed.indexOf(u'=');
    const QString start = typed.left(equalsSign + 1);
    if (const auto *option = optionOf(typed.left(equalsSign), options); option && equalsSign > 0)
        return after(start, valuesOf(command, *option, typed.mid(equalsSign + 1)));
    if (const auto *option = before.isEmpty() ? nullptr : optionOf(before.constLast(), options))
        return valuesOf(command, *option, typed);
    if (typed.startsWith(u'-'))
        return labels(options);
    QCommandLineParser parser;
    parser.addOptions(options);
    static_cast<void>(parser.parse(QStringList{QString()} + before));
    return arguments(command, parser.positionalArguments(), typed);
}

} // namespace

QStringList completions(const QStringList &words) {
    const QString typed = words.isEmpty() ? QString() : words.constLast();
    const QStringList before = words.mid(0, words.size() - 1);
    QStringList result;
    if (before.isEmpty()) {
        result = commandWords() + QStringList{helpOption, QStringLiteral("--version")};
    } else if (const auto *command = commandNamed(before.constFirst())) {
        result = candidates(*command, before.mid(1), typed);
    } else if (before.size() == 1) {
        result = commandWords(before.constFirst());
        if (!result.isEmpty())
            result += helpOption;
    } else if (const auto *inner = commandNamed(before.at(0) % u' ' % before.at(1))) {
        result = candidates(*inner, before.mid(2), typed);
    }
    const auto isOther = [&](const QString &word) { return !word.startsWith(typed); };
    result.erase(std::remove_if(result.begin(), result.end(), isOther), result.end());
    return result;
}

} // namespace ZelPackage
