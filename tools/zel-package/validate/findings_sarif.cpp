#include "findings_writer.h"

#include "arguments/native_text.h"
#include "console/json_list.h"
#include "manifest/manifest_source.h"
#include "report_rules.h"

#include <QCoreApplication>
#include <QDir>
#include <QJsonArray>

namespace ZelPackage {
namespace {

using Zel::PackageModel::Rule;

QJsonObject textObject(const QString &text) {
    return {{QStringLiteral("text"), text}};
}

// Braces stand for placeholders.
QJsonObject messageObject(const QString &text) {
    return textObject(
        QString(text).replace(u'{', QStringLiteral("{{")).replace(u'}', QStringLiteral("}}")));
}

// Relative to the working directory where the file is below it; otherwise absolute. RFC 3986.
QString uriOf(const QString &file) {
    const QString path = QDir::cleanPath(file);
    const auto encoded = [](const QString &text) {
        return QString::fromLatin1(
            QByteArray::fromStdString(nativeBytes(text)).toPercentEncoding("/"));
    };
    if (QDir::isRelativePath(path) && path != QLatin1String("..") &&
        !path.startsWith(QLatin1String("../")))
        return encoded(path);
    return QStringLiteral("file://") % encoded(QDir::cleanPath(QDir::current().filePath(path)));
}

QJsonObject artifactLocation(const QString &file) {
    QJsonObject location{{QStringLiteral("uri"), uriOf(file)}};
    if (isStandardStream(file))
        location[QStringLiteral("description")] =
            textObject(QCoreApplication::translate("zel-package", "Standard input."));
    return location;
}

QJsonObject ruleObject(const Rule &rule) {
    return {{QStringLiteral("id"), rule.id},
            {QStringLiteral("shortDescription"), messageObject(messageForm(rule))},
            {QStringLiteral("fullDescription"), messageObject(rule.explanation)},
            {QStringLiteral("help"), messageObject(rule.remedy)},
            {QStringLiteral("defaultConfiguration"),
             QJsonObject{{QStringLiteral("level"), wordOf(rule.severity)}}}};
}

QJsonObject toolObject(const QVector<Rule> &rules) {
    QJsonArray ruleObjects;
    for (const Rule &rule : rules)
        ruleObjects += ruleObject(rule);
    const QString version = QCoreApplication::applicationVersion();
    const QJsonObject driver{
        {QStringLiteral("name"), QStringLiteral("zel-package")},
        {QStringLiteral("version"), version},
        {QStringLiteral("semanticVersion"), version},
        //: The language of this translation, as RFC 5646 writes it.
        {QStringLiteral("language"), QCoreApplication::translate("zel-package", "en-US")},
        {QStringLiteral("rules"), ruleObjects}};
    return {{QStringLiteral("driver"), driver}};
}

QJsonObject locationObject(const ManifestFinding &finding) {
    const QJsonObject region{{QStringLiteral("startLine"), qint64(finding.position.line)},
                             {QStringLiteral("startColumn"), qint64(finding.position.column)}};
    QJsonObject location{
        {QStringLiteral("physicalLocation"),
         QJsonObject{{QStringLiteral("artifactLocation"), artifactLocation(finding.file)},
                     {QStringLiteral("region"), region}}}};
    if (!finding.field.isEmpty())
        location[QStringLiteral("logicalLocations")] =
            QJsonArray{QJsonObject{{QStringLiteral("fullyQualifiedName"), finding.field},
                                   {QStringLiteral("kind"), QStringLiteral("member")}}};
    return location;
}

class SarifWriter : public FindingsWriter {
public:
    explicit SarifWriter(Console &console)
        : m_console(console)
        , m_rules(reportRules())
        , m_ruleIds(idsOf(m_rules))
        , m_results(console) {}

    // The members of an object may stand in any order; the results stand before what is known only
    // after them.
    void begin() override {
        m_console.print(
            QStringLiteral("{\"$schema\": "
                           "\"https://docs.oasis-open.org/sarif/sarif/v2.1.0/errata01/os/schemas/"
                           "sarif-schema-2.1.0.json\",\n\"version\": \"2.1.0\",\n"
                           "\"runs\": [{\"tool\": ") %
            jsonText(toolObject(m_rules), QJsonDocument::Compact) %
            QStringLiteral(",\n\"columnKind\": \"unicodeCodePoints\",\n\"results\": ["));
    }

    void write(const ManifestFinding &finding) override {
        QJsonObject result{{QStringLiteral("ruleId"), finding.ruleId},
                           {QStringLiteral("ruleIndex"), int(m_ruleIds.indexOf(finding.ruleId))},
                           {QStringLiteral("level"), wordOf(finding.severity)},
                           {QStringLiteral("message"), messageObject(finding.text)},
                           {QStringLiteral("locations"), QJsonArray{locationObject(finding)}}};
        // The same finding, wherever its line moves to.
        if (!finding.field.isEmpty())
            result[QStringLiteral("partialFingerprints")] =
                QJsonObject{{QStringLiteral("ruleAndField/v1"),
                             QString(finding.ruleId % u':' % finding.field)}};
        m_results.add(result);
    }

    void writeUnreadable(const QString &file, const QString &trouble) override {
        notify(QStringLiteral("error"), file, trouble);
    }

    void writeTruncated(const QString &file, const QString &note) override {
        notify(QStringLiteral("warning"), file, note);
    }

    void finish(const Report &report) override {
        // A malformed manifest is a result; a file that could not be read makes the run incomplete.
        QJsonObject invocation{{QStringLiteral("executionSuccessful"), report.unreadable == 0},
                               {QStringLiteral("exitCode"), int(report.status)}};
        if (!m_notifications.isEmpty())
            invocation[QStringLiteral("toolExecutionNotifications")] = m_notifications;
        m_console.print(QStringLiteral("],\n\"invocations\": [") %
                        jsonText(invocation, QJsonDocument::Compact) % QStringLiteral("]}]}\n"));
    }

private:
    void notify(const QString &level, const QString &file, const QString &text) {
        const QJsonObject location{
            {QStringLiteral("physicalLocation"),
             QJsonObject{{QStringLiteral("artifactLocation"), artifactLocation(file)}}}};
        m_notifications += QJsonObject{{QStringLiteral("level"), level},
                                       {QStringLiteral("message"), messageObject(text)},
                                       {QStringLiteral("locations"), QJsonArray{location}}};
    }

    Console &m_console;
    QVector<Rule> m_rules;
    QStringList m_ruleIds;
    JsonList m_results;
    QJsonArray m_notifications; // at most as many as there are arguments
};

} // namespace

std::unique_ptr<FindingsWriter> makeSarifWriter(Console &console) {
    return std::make_unique<SarifWriter>(console);
}

} // namespace ZelPackage
