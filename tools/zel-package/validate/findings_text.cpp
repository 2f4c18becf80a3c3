#include "findings_writer.h"

#include "console/text_layout.h"
#include "report_rules.h"
#include "source_excerpt.h"

#include <limits>

namespace ZelPackage {
namespace {

using Zel::PackageModel::Severity;

Style styleOf(Severity severity) {
    switch (severity) {
    case Severity::Error:
        return Style::Bad;
    case Severity::Warning:
        return Style::Caution;
    case Severity::Note:
        break;
    }
    return Style::Heading;
}

// FILE:LINE:COLUMN: error: text [id]
class TextWriter : public FindingsWriter {
public:
    explicit TextWriter(Console &console)
        : m_console(console) {}

    // Content is needed for excerpts.
    std::size_t neededContent() const override {
        return m_console.isTerminal() ? std::numeric_limits<std::size_t>::max() : 0;
    }

    void write(const CheckedManifest &manifest) override {
        SourceExcerpt source(manifest.content);
        for (const ManifestFinding &finding : manifest.findings) {
            const Style style = styleOf(finding.severity);
            m_console.print(Zel::PackageModel::reportLine(
                                printable(manifest.file), finding.position,
                                m_console.styled(severityWord(finding.severity), style),
                                printable(finding.text),
                                m_console.styled(u'[' % finding.ruleId % u']', Style::Faint)) %
                            u'\n');
            if (!manifest.content.empty())
                m_console.print(source.at(finding.position, style, m_console));
        }
    }

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
