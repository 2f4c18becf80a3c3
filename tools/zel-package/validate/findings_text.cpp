#include "findings_writer.h"

#include "console/text_layout.h"
#include "report_rules.h"

#include <QCoreApplication>

namespace ZelPackage {
namespace {

using Zel::PackageModel::Severity;

// FILE:LINE: error: text (field) [id]
class TextWriter : public FindingsWriter {
public:
    explicit TextWriter(Console &console)
        : m_console(console) {}

    void begin() override {}

    void write(const ManifestFinding &finding) override {
        const bool isError = finding.severity == Severity::Error;
        const QString place = finding.ruleId == malformedRuleId
                                  ? QCoreApplication::translate("zel-package", "column %1")
                                        .arg(finding.position.column)
                                  : finding.field;
        m_console.print(
            printable(finding.file) % u':' % QString::number(finding.position.line) %
            QStringLiteral(": ") %
            m_console.styled(wordOf(finding.severity), isError ? Style::Bad : Style::Caution) %
            QStringLiteral(": ") % printable(finding.text) % QStringLiteral(" (") %
            printable(place) % QStringLiteral(") ") %
            m_console.styled(u'[' % finding.ruleId % u']', Style::Faint) % u'\n');
    }

    // Standard error says so, in every format.
    void writeUnreadable(const QString &, const QString &) override {}
    void writeTruncated(const QString &, const QString &) override {}

    void finish(const Report &report) override {
        for (const auto &rule : report.explained)
            m_console.print(u'\n' % explanationOf(rule, m_console));
    }

private:
    Console &m_console;
};

} // namespace

std::unique_ptr<FindingsWriter> makeTextWriter(Console &console) {
    return std::make_unique<TextWriter>(console);
}

} // namespace ZelPackage
