#include "findings_writer.h"

#include "console/text_layout.h"
#include "file_place.h"

namespace ZelPackage {
namespace {

using Zel::PackageModel::Severity;

QLatin1String commandOf(Severity severity) {
    switch (severity) {
    case Severity::Error:
        return QLatin1String("error");
    case Severity::Warning:
        return QLatin1String("warning");
    case Severity::Note:
        break;
    }
    return QLatin1String("notice");
}

QString escapedData(QString text) {
    return text.replace(u'%', QLatin1String("%25"))
        .replace(u'\r', QLatin1String("%0D"))
        .replace(u'\n', QLatin1String("%0A"));
}

QString escapedProperty(const QString &text) {
    return escapedData(text)
        .replace(u':', QLatin1String("%3A"))
        .replace(u',', QLatin1String("%2C"));
}

// Writes workflow commands, which GitHub Actions shows beside the changed lines.
class GithubWriter : public FindingsWriter {
public:
    explicit GithubWriter(Console &console)
        : m_console(console) {}

    void write(const CheckedManifest &manifest) override {
        for (const ManifestFinding &finding : manifest.findings) {
            print(commandOf(finding.severity), manifest.file,
                  QStringLiteral(",line=%1,col=%2,title=")
                          .arg(finding.position.line)
                          .arg(finding.position.column) %
                      escapedProperty(finding.ruleId),
                  finding.text);
        }
    }

    void writeError(const QString &file, const QString &reason) override {
        print(QLatin1String("error"), file, {}, reason);
    }

    void writeTruncated(const QString &file, const QString &note) override {
        print(QLatin1String("warning"), file, {}, note);
    }

private:
    void print(QLatin1String command, const QString &file, const QString &properties,
               const QString &text) {
        m_console.print(QStringLiteral("::") % command % QStringLiteral(" file=") %
                        m_console.shown(escapedProperty(pathBelowHere(file))) % properties %
                        QStringLiteral("::") % m_console.shown(escapedData(text)) % u'\n');
    }

    Console &m_console;
};

} // namespace

std::unique_ptr<FindingsWriter> makeGithubWriter(Console &console) {
    return std::make_unique<GithubWriter>(console);
}

} // namespace ZelPackage
