#include "findings_writer.h"

#include "arguments/native_text.h"
#include "console/json_list.h"
#include "report_rules.h"

#include <packagemodel/package_json.h>

#include <QJsonArray>

namespace ZelPackage {
namespace {

using Zel::PackageModel::Fix;

QJsonArray jsonOf(const QVector<Fix> &fixes) {
    QJsonArray list;
    for (const Fix &fix : fixes) {
        const QJsonObject edits =
            QJsonDocument::fromJson(Zel::PackageModel::toJson(fix.edits)).object();
        list += QJsonObject{{QStringLiteral("title"), fix.title},
                            {QStringLiteral("safe"), fix.isSafe},
                            {QStringLiteral("edits"), edits[QStringLiteral("edits")]}};
    }
    return list;
}

// {"format": 1, "findings": [...], "unreadable": [...], "rules": [...], "summary": {...}}, with the
// rules only on request; see schema/validation.schema.json.
class JsonWriter : public FindingsWriter {
public:
    explicit JsonWriter(Console &console)
        : m_console(console)
        , m_findings(console) {}

    bool needsFixes() const override { return true; }

    void begin() override {
        m_console.print(
            QStringLiteral("{\"format\": %1,\n\"findings\": [").arg(Zel::PackageModel::jsonFormat));
    }

    void write(const CheckedManifest &manifest) override {
        for (const ManifestFinding &finding : manifest.findings) {
            m_findings.add({{QStringLiteral("file"), withVisibleBytes(manifest.file)},
                            {QStringLiteral("line"), qint64(finding.position.line)},
                            {QStringLiteral("column"), qint64(finding.position.column)},
                            {QStringLiteral("id"), finding.ruleId},
                            {QStringLiteral("severity"), severityWord(finding.severity)},
                            {QStringLiteral("field"), finding.field},
                            {QStringLiteral("text"), finding.text},
                            {QStringLiteral("fixes"), jsonOf(finding.fixes)}});
        }
    }

    void writeError(const QString &file, const QString &reason) override {
        m_unreadable += QJsonObject{{QStringLiteral("file"), withVisibleBytes(file)},
                                    {QStringLiteral("text"), reason}};
    }

    void finish(const Report &report) override {
        m_console.print(QStringLiteral("],\n\"unreadable\": ["));
        JsonList unreadable(m_console);
        for (const QJsonObject &file : std::as_const(m_unreadable))
            unreadable.add(file);
        if (!report.explained.isEmpty())
            writeRules(report.explained);
        const QJsonObject summary{{QStringLiteral("files"), report.files},
                                  {QStringLiteral("errors"), report.errors},
                                  {QStringLiteral("warnings"), report.warnings},
                                  {QStringLiteral("notes"), report.notes},
                                  {QStringLiteral("malformed"), report.malformed},
                                  {QStringLiteral("unreadable"), report.unreadable},
                                  {QStringLiteral("truncated"), report.truncated},
                                  {QStringLiteral("fixed"), report.fixed}};
        m_console.print(QStringLiteral("],\n\"summary\": ") %
                        jsonText(summary, QJsonDocument::Compact) % QStringLiteral("}\n"));
    }

private:
    void writeRules(const QVector<Zel::PackageModel::Rule> &rules) {
        m_console.print(QStringLiteral("],\n\"rules\": ["));
        JsonList list(m_console);
        for (const auto &rule : rules)
            list.add(ruleJson(rule));
    }

    Console &m_console;
    JsonList m_findings;
    QVector<QJsonObject> m_unreadable; // at most one per argument
};

} // namespace

std::unique_ptr<FindingsWriter> makeJsonWriter(Console &console) {
    return std::make_unique<JsonWriter>(console);
}

} // namespace ZelPackage
