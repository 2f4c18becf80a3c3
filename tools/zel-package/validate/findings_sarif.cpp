#include "findings_writer.h"

#include "arguments/native_text.h"
#include "console/json_list.h"
#include "file_place.h"
#include "fix_changes.h"
#include "manifest/manifest_source.h"
#include "report_rules.h"

#include <packagemodel/translation.h>

#include <QCoreApplication>
#include <QDir>
#include <QJsonArray>

namespace ZelPackage {
namespace {

using Zel::PackageModel::Fix;
using Zel::PackageModel::Rule;

QJsonObject textObject(const QString &text) {
    return {{QStringLiteral("text"), text}};
}

// Escapes braces, which delimit placeholders.
QJsonObject messageObject(const QString &text) {
    return textObject(
        QString(text).replace(u'{', QStringLiteral("{{")).replace(u'}', QStringLiteral("}}")));
}

// Files below the working directory have URIs (RFC 3986) relative to this base.
constexpr QLatin1String baseId("%SRCROOT%");

QString encoded(const QString &path) {
    return QString::fromLatin1(QByteArray::fromStdString(nativeBytes(path)).toPercentEncoding("/"));
}

QString fileUri(const QString &path) {
    return QStringLiteral("file://") % encoded(path);
}

QJsonObject artifactLocation(const QString &file) {
    const QString path = pathBelowHere(file);
    QJsonObject location;
    if (isBelow(path))
        location = {{QStringLiteral("uri"), encoded(path)}, {QStringLiteral("uriBaseId"), baseId}};
    else
        location = {{QStringLiteral("uri"), fileUri(path)}};
    if (isStandardStream(file))
        location[QStringLiteral("description")] =
            textObject(QCoreApplication::translate("zel-package", "Standard input."));
    return location;
}

QJsonObject ruleObject(const Rule &rule) {
    return {{QStringLiteral("id"), rule.id},
            {QStringLiteral("shortDescription"), messageObject(messageForm(rule))},
            {QStringLiteral("fullDescription"), messageObject(rule.explanation)},
            {QStringLiteral("help"), textObject(rule.remedy)},
            {QStringLiteral("defaultConfiguration"),
             QJsonObject{{QStringLiteral("level"), severityWord(rule.severity)}}}};
}

QJsonObject toolObject(const QVector<Rule> &rules) {
    QJsonArray ruleObjects;
    for (const Rule &rule : rules)
        ruleObjects += ruleObject(rule);
    const QString version = QCoreApplication::applicationVersion();
    const QJsonObject driver{{QStringLiteral("name"), QStringLiteral("zel-package")},
                             {QStringLiteral("version"), version},
                             {QStringLiteral("semanticVersion"), version},
                             {QStringLiteral("informationUri"),
                              QStringLiteral("https://packagemodel.example/docs/validation")},
                             {QStringLiteral("language"), Zel::translationLanguage()},
                             {QStringLiteral("rules"), ruleObjects}};
    return {{QStringLiteral("driver"), driver}};
}

QJsonObject locationObject(const QString &file, const ManifestFinding &finding) {
    const QJsonObject region{{QStringLiteral("startLine"), qint64(finding.position.line)},
                             {QStringLiteral("startColumn"), qint64(finding.position.column)}};
    QJsonObject location{{QStringLiteral("physicalLocation"),
                          QJsonObject{{QStringLiteral("artifactLocation"), artifactLocation(file)},
                                      {QStringLiteral("region"), region}}}};
    if (!finding.field.isEmpty())
        location[QStringLiteral("logicalLocations")] =
            QJsonArray{QJsonObject{{QStringLiteral("fullyQualifiedName"), finding.field},
                                   {QStringLiteral("kind"), QStringLiteral("member")}}};
    return location;
}

// Replaces whole lines, up to the start of the following one.
QJsonObject replacementObject(const LineChange &change) {
    const QJsonObject region{{QStringLiteral("startLine"), change.firstLine},
                             {QStringLiteral("startColumn"), 1},
                             {QStringLiteral("endLine"), change.firstLine + change.count},
                             {QStringLiteral("endColumn"), 1}};
    return {{QStringLiteral("deletedRegion"), region},
            {QStringLiteral("insertedContent"), textObject(QString::fromStdString(change.lines))}};
}

QJsonObject fixObject(const Fix &fix, const QString &file, const std::vector<LineChange> &changes) {
    QJsonArray replacements;
    for (const LineChange &change : changes)
        replacements += replacementObject(change);
    const QJsonObject change{{QStringLiteral("artifactLocation"), artifactLocation(file)},
                             {QStringLiteral("replacements"), replacements}};
    return {{QStringLiteral("description"), textObject(fix.title)},
            {QStringLiteral("artifactChanges"), QJsonArray{change}}};
}

class SarifWriter : public FindingsWriter {
public:
    explicit SarifWriter(Console &console)
        : m_console(console)
        , m_rules(reportRules())
        , m_ruleIds(idsOf(m_rules))
        , m_results(console) {}

    bool needsFixes() const override { return true; }
    std::size_t neededContent() const override { return FixChanges::longestManifest; }

    // Members of an object may have any order, so results precede what is only known at the end.
    void begin() override {
        const QString root = QDir::currentPath();
        const QJsonObject base{
            {QStringLiteral("uri"), root.endsWith(u'/') ? fileUri(root) : fileUri(root % u'/')}};
        m_console.print(
            QStringLiteral("{\"$schema\": "
                           "\"https://docs.oasis-open.org/sarif/sarif/v2.1.0/errata01/os/schemas/"
                           "sarif-schema-2.1.0.json\",\n\"version\": \"2.1.0\",\n"
                           "\"runs\": [{\"tool\": ") %
            jsonText(toolObject(m_rules), QJsonDocument::Compact) %
            QStringLiteral(",\n\"originalUriBaseIds\": ") %
            jsonText({{baseId, base}}, QJsonDocument::Compact) %
            QStringLiteral(",\n\"columnKind\": \"unicodeCodePoints\",\n\"results\": ["));
    }

    void write(const CheckedManifest &manifest) override {
        FixChanges changes(manifest);
        for (const ManifestFinding &finding : manifest.findings)
            m_results.add(resultObject(manifest.file, finding, changes));
    }

    void writeError(const QString &file, const QString &reason) override {
        notify(QStringLiteral("error"), file, reason);
    }

    void writeTruncated(const QString &file, const QString &note) override {
        notify(QStringLiteral("warning"), file, note);
    }

    void finish(const Report &report) override {
        // A malformed manifest is a result; an unreadable file makes the run incomplete.
        QJsonObject invocation{{QStringLiteral("executionSuccessful"), report.unreadable == 0},
                               {QStringLiteral("exitCode"), int(report.status)}};
        if (!m_notifications.isEmpty())
            invocation[QStringLiteral("toolExecutionNotifications")] = m_notifications;
        m_console.print(QStringLiteral("],\n\"invocations\": [") %
                        jsonText(invocation, QJsonDocument::Compact) % QStringLiteral("]}]}\n"));
    }

private:
    QJsonObject resultObject(const QString &file, const ManifestFinding &finding,
                             FixChanges &changes) const {
        QJsonObject result{
            {QStringLiteral("ruleId"), finding.ruleId},
            {QStringLiteral("ruleIndex"), int(m_ruleIds.indexOf(finding.ruleId))},
            {QStringLiteral("level"), severityWord(finding.severity)},
            {QStringLiteral("message"), messageObject(finding.text)},
            {QStringLiteral("locations"), QJsonArray{locationObject(file, finding)}}};
        // Identifies the finding even if its line moves.
        if (!finding.field.isEmpty())
            result[QStringLiteral("partialFingerprints")] =
                QJsonObject{{QStringLiteral("ruleAndField/v1"),
                             QString(finding.ruleId % u':' % finding.field)}};
        QJsonArray fixes;
        for (const Fix &fix : finding.fixes) {
            if (const auto made = changes.of(fix); !made.empty())
                fixes += fixObject(fix, file, made);
        }
        if (!fixes.isEmpty())
            result[QStringLiteral("fixes")] = fixes;
        return result;
    }

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
    QJsonArray m_notifications; // at most one per argument
};

} // namespace

std::unique_ptr<FindingsWriter> makeSarifWriter(Console &console) {
    return std::make_unique<SarifWriter>(console);
}

} // namespace ZelPackage
