#include "report_rules.h"

#include "arguments/suggestion.h"
#include "console/text_layout.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>

namespace ZelPackage {

using Zel::PackageModel::Rule;
using Zel::PackageModel::Severity;

namespace {

const QLatin1String lessThan("&lt;"); // the one entity that messages have

QString indented(const QString &text, const Console &console) {
    QString result;
    const QStringList lines = wrapped(text, console.width() - 2);
    for (const QString &line : lines)
        result += QStringLiteral("  ") % line % u'\n';
    return result;
}

} // namespace

const QLatin1String malformedRuleId("manifest-malformed");

QVector<Rule> reportRules() {
    QVector<Rule> rules = Zel::PackageModel::rules();
    rules.append(
        {malformedRuleId, Severity::Error,
         QCoreApplication::translate("zel-package", "The manifest is malformed."),
         QCoreApplication::translate(
             "zel-package",
             "The file is no well-formed XML in UTF-8, or it holds what a manifest cannot hold at "
             "that place. Nothing else in it is checked. Whatever is ignored, the exit status is "
             "2."),
         QCoreApplication::translate("zel-package",
                                     "Mend the file at the line and column that are given, then "
                                     "check it again.")});
    return rules;
}

QStringList idsOf(const QVector<Rule> &rules) {
    QStringList ids;
    for (const Rule &rule : rules)
        ids += rule.id;
    return ids;
}

QLatin1String wordOf(Severity severity) {
    switch (severity) {
    case Severity::Note:
        return QLatin1String("note");
    case Severity::Warning:
        return QLatin1String("warning");
    case Severity::Error:
        break;
    }
    return QLatin1String("error");
}

QString messageForm(const Rule &rule) {
    static const QRegularExpression placeholder(QStringLiteral("%[0-9]"));
    return QString(rule.message)
        .replace(lessThan, QLatin1String("<"))
        .replace(placeholder, QStringLiteral("…"));
}

QString explanationOf(const Rule &rule, const Console &console) {
    return console.styled(rule.id, Style::Heading) % u' ' %
           console.styled(u'(' % wordOf(rule.severity) % u')', Style::Faint) % u'\n' %
           indented(messageForm(rule), console) % u'\n' % indented(rule.explanation, console) %
           u'\n' % indented(rule.remedy, console);
}

void tellUnknownRule(const QString &id, const QStringList &known, Console &console) {
    const QStringList near = Zel::nearWords(id, known);
    const QString hint =
        near.isEmpty()
            ? QCoreApplication::translate("zel-package", "; 'zel-package explain' lists the rules.")
            : QCoreApplication::translate("zel-package", "; did you mean '%1'?")
                  .arg(near.join(QStringLiteral("', '")));
    console.tell(
        QCoreApplication::translate("zel-package", "There is no rule '%1'%2").arg(id, hint));
}

} // namespace ZelPackage
