#include "report_rules.h"

#include "arguments/suggestion.h"
#include "console/text_layout.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <array>

namespace ZelPackage {

using Zel::PackageModel::Rule;
using Zel::PackageModel::Severity;

namespace {

const QLatin1String lessThan("&lt;"); // the only entity in messages

QString indented(const QString &text, const Console &console) {
    QString result;
    const QStringList lines = wrapped(text, console.width() - 2);
    for (const QString &line : lines)
        result += QStringLiteral("  ") % line % u'\n';
    return result;
}

QString exampleOf(const Rule &rule) {
    if (rule.example.isEmpty())
        return {};
    QString lines = u'\n' % QCoreApplication::translate("zel-package", "  For example:") % u'\n';
    for (const QString &line : rule.example.split(u'\n'))
        lines += QStringLiteral("    ") % line % u'\n';
    return lines;
}

} // namespace

const QLatin1String malformedRuleId("manifest-malformed");
const QLatin1String baselineUnusedRuleId("baseline-unused");
const QLatin1String ignoreUnusedRuleId("ignore-unused");
const QLatin1String ignoreUnknownRuleId("ignore-unknown");

namespace {

struct OwnRule {
    QLatin1String id;
    Severity severity;
    const char *message;
    const char *explanation;
    const char *remedy;
    const char *example;
};

// clang-format off
const std::array ownRules{
    OwnRule{baselineUnusedRuleId, Severity::Note,
     QT_TRANSLATE_NOOP("zel-package", "The baseline lists '%1', which is no longer found here."),
     QT_TRANSLATE_NOOP("zel-package", "A baseline lists known findings, which are not reported. An outdated entry would hide the same finding if it came back."),
     QT_TRANSLATE_NOOP("zel-package", "Update the baseline with --write-baseline."),
     "{\"count\":1,\"field\":\"date\",\"file\":\"manifest.xml\",\"rule\":\"date-invalid\"}"},
    OwnRule{ignoreUnusedRuleId, Severity::Note,
     QT_TRANSLATE_NOOP("zel-package", "The comment ignores '%1', which is not found here."),
     QT_TRANSLATE_NOOP("zel-package", "A comment 'zel-package: ignore' applies to the element after it. If its rules find nothing, it would hide later findings."),
     QT_TRANSLATE_NOOP("zel-package", "Remove the rule from the comment, or the comment."),
     "<!-- zel-package: ignore nature-unknown -->\n<behavior path=\"greet\" nature=\"solitary\"/>"},
    OwnRule{ignoreUnknownRuleId, Severity::Warning,
     QT_TRANSLATE_NOOP("zel-package", "Unknown rule '%1'%2"),
     QT_TRANSLATE_NOOP("zel-package", "A comment 'zel-package: ignore' names a rule that does not exist, so it has no effect."),
     QT_TRANSLATE_NOOP("zel-package", "Use the id of a rule; 'zel-package explain' lists them."),
     "<!-- zel-package: ignore nature -->\n<behavior path=\"greet\" nature=\"solo\"/>"},
    OwnRule{malformedRuleId, Severity::Error,
     QT_TRANSLATE_NOOP("zel-package", "The manifest is malformed."),
     QT_TRANSLATE_NOOP("zel-package", "The file is not well-formed XML in UTF-8, or has content that is not allowed at this position. Nothing else in it is checked, and the exit status is 2."),
     QT_TRANSLATE_NOOP("zel-package", "Correct the file at the reported line and column, then check it again."),
     "<author>Smith & Sons</author>"},
};
// clang-format on

QString translated(const char *text) {
    return QCoreApplication::translate("zel-package", text);
}

} // namespace

QVector<Rule> reportRules() {
    QVector<Rule> rules = Zel::PackageModel::rules();
    for (const OwnRule &rule : ownRules)
        rules.append({rule.id, rule.severity, translated(rule.message),
                      translated(rule.explanation), translated(rule.remedy),
                      QLatin1String(rule.example)});
    return rules;
}

QStringList changeableRuleIds() {
    QStringList ids = idsOf(reportRules());
    ids.removeAll(malformedRuleId);
    return ids;
}

QStringList idsOf(const QVector<Rule> &rules) {
    QStringList ids;
    for (const Rule &rule : rules)
        ids += rule.id;
    return ids;
}

QStringList severityWords() {
    return {severityWord(Severity::Error), severityWord(Severity::Warning),
            severityWord(Severity::Note)};
}

std::optional<Severity> severityOf(const QString &word) {
    for (const Severity severity : {Severity::Error, Severity::Warning, Severity::Note}) {
        if (word == severityWord(severity))
            return severity;
    }
    return {};
}

QString messageOf(QLatin1String ownRule) {
    for (const OwnRule &rule : ownRules) {
        if (rule.id == ownRule)
            return translated(rule.message);
    }
    return {};
}

QString messageForm(const Rule &rule) {
    static const QRegularExpression placeholder(QStringLiteral("%[0-9]"));
    return QString(rule.message)
        .replace(lessThan, QLatin1String("<"))
        .replace(placeholder, QStringLiteral("…"));
}

QString explanationOf(const Rule &rule, const Console &console) {
    return console.styled(rule.id, Style::Heading) % u' ' %
           console.styled(u'(' % severityWord(rule.severity) % u')', Style::Faint) % u'\n' %
           indented(messageForm(rule), console) % u'\n' % indented(rule.explanation, console) %
           u'\n' % indented(rule.remedy, console) % exampleOf(rule);
}

QJsonObject ruleJson(const Rule &rule) {
    QJsonObject object{{QStringLiteral("id"), rule.id},
                       {QStringLiteral("severity"), severityWord(rule.severity)},
                       {QStringLiteral("message"), messageForm(rule)},
                       {QStringLiteral("explanation"), rule.explanation},
                       {QStringLiteral("remedy"), rule.remedy}};
    if (!rule.example.isEmpty())
        object[QStringLiteral("example")] = rule.example;
    return object;
}

QString unknownRule(const QString &id, const QStringList &known) {
    const QStringList near = Zel::nearWords(id, known);
    const QString hint =
        near.isEmpty()
            ? QCoreApplication::translate("zel-package", "; 'zel-package explain' lists the rules.")
            : QCoreApplication::translate("zel-package", "; did you mean '%1'?")
                  .arg(near.join(QStringLiteral("', '")));
    return QCoreApplication::translate("zel-package", "Unknown rule '%1'%2").arg(id, hint);
}

} // namespace ZelPackage
