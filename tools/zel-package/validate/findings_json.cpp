#include "findings_writer.h"

#include "arguments/native_text.h"
#include "console/json_list.h"
#include "report_rules.h"

namespace ZelPackage {
namespace {

// {"findings": [...], "unreadable": [...], "rules": [...], "summary": {...}}, the rules only where
// they are to be explained.
class JsonWriter : public FindingsWriter {
public:
    explicit JsonWriter(Console &console)
        : m_console(console)
        , m_findings(console) {}

    void begin() override { m_console.print(QStringLiteral("{\"findings\": [")); }

    void write(const ManifestFinding &finding) override {
        m_findings.add({{QStringLiteral("file"), withVisibleBytes(finding.file)},
                        {QStringLiteral("line"), qint64(finding.position.line)},
                        {QStringLiteral("column"), qint64(finding.position.column)},
                        {QStringLiteral("id"), finding.ruleId},
                        {QStringLiteral("severity"), wordOf(finding.severity)},
                        {QStringLiteral("field"), finding.field},
                        {QStringLiteral("text"), finding.text}});
    }

    void writeUnreadable(const QString &file, const QString &trouble) override {
        m_unreadable += QJsonObject{{QStringLiteral("file"), withVisibleBytes(file)},
                                    {QStringLiteral("text"), trouble}};
    }

    // The summary counts them.
    void writeTruncated(const QString &, const QString &) override {}

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
                                  {QStringLiteral("malformed"), report.malformed},
                                  {QStringLiteral("unreadable"), report.unreadable},
                                  {QStringLiteral("truncated"), report.truncated}};
        m_console.print(QStringLiteral("],\n\"summary\": ") %
                        jsonText(summary, QJsonDocument::Compact) % QStringLiteral("}\n"));
    }

private:
    void writeRules(const QVector<Zel::PackageModel::Rule> &rules) {
        m_console.print(QStringLiteral("],\n\"rules\": ["));
        JsonList list(m_console);
        for (const auto &rule : rules) {
            list.add({{QStringLiteral("id"), rule.id},
                      {QStringLiteral("severity"), wordOf(rule.severity)},
                      {QStringLiteral("message"), messageForm(rule)},
                      {QStringLiteral("explanation"), rule.explanation},
                      {QStringLiteral("remedy"), rule.remedy}});
        }
    }

    Console &m_console;
    JsonList m_findings;
    QVector<QJsonObject> m_unreadable; // at most as many as there are arguments
};

} // namespace

std::unique_ptr<FindingsWriter> makeJsonWriter(Console &console) {
    return std::make_unique<JsonWriter>(console);
}

} // namespace ZelPackage
