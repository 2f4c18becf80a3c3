#include "program_command.h"

#include "arguments/word_check.h"
#include "console/library_text.h"
#include "findings_writer.h"
#include "manifest/manifest_source.h"
#include "report_rules.h"

#include <packagemodel/package_info_model.h>

#include <QFileInfo>
#include <QHash>
#include <QSet>

#include <algorithm>
#include <array>

namespace ZelPackage {
namespace {

using Zel::PackageModel::Issue;
using Zel::PackageModel::IssueVisit;
using Zel::PackageModel::Rule;
using Zel::PackageModel::Severity;

const QLatin1String formatOption("format");
const QLatin1String failOnOption("fail-on");
const QLatin1String ignoreOption("ignore");
const QLatin1String explainOption("explain");

// Of one rule in one manifest. A manifest can have as many as behaviors times languages.
constexpr int mostFindings = 10000;

struct Format {
    QLatin1String name;
    std::unique_ptr<FindingsWriter> (*makeWriter)(Console &console);
};

const std::array formats{Format{QLatin1String("text"), makeTextWriter},
                         Format{QLatin1String("json"), makeJsonWriter},
                         Format{QLatin1String("sarif"), makeSarifWriter}};

QList<QCommandLineOption> options() {
    return {
        {formatOption,
         QCoreApplication::translate("zel-package", "The form of the output: text, json or sarif."),
         QStringLiteral("FORMAT"), formats[0].name},
        {failOnOption,
         QCoreApplication::translate("zel-package",
                                     "The least severity that makes the exit status 1: error, "
                                     "warning or note; error when none is given."),
         QStringLiteral("SEVERITY"), wordOf(Severity::Error)},
        {ignoreOption,
         QCoreApplication::translate("zel-package",
                                     "Leave out what these rules find; IDs are joined by "
                                     "commas, and the option may be given several times."),
         QStringLiteral("ID,...")},
        {explainOption,
         QCoreApplication::translate("zel-package",
                                     "Explain, at the end, each rule that found something.")}};
}

std::optional<Severity> failOnOf(const QString &word, Console &console) {
    const std::array severities{Severity::Note, Severity::Warning, Severity::Error};
    QStringList words;
    for (const Severity severity : severities)
        words += wordOf(severity);
    if (!checkWord(
            word, words, QCoreApplication::translate("zel-package", "There is no severity '%1'%2"),
            QCoreApplication::translate("zel-package", "; it is error, warning or note."), console))
        return {};
    return severities.at(std::size_t(words.indexOf(word)));
}

std::unique_ptr<FindingsWriter> writerOf(const QString &format, Console &console) {
    QStringList names;
    for (const Format &known : formats) {
        if (known.name == format)
            return known.makeWriter(console);
        names += known.name;
    }
    static_cast<void>(checkWord(
        format, names, QCoreApplication::translate("zel-package", "There is no format '%1'%2"),
        QCoreApplication::translate("zel-package", "; it is text, json or sarif."), console));
    return nullptr;
}

std::optional<QSet<QString>> ignoredOf(const QStringList &values, Console &console) {
    QSet<QString> ignored;
    if (values.isEmpty())
        return ignored;
    const QStringList known = idsOf(Zel::PackageModel::rules());
    bool areKnown = true;
    const QStringList ids = values.join(u',').split(u',');
    for (const QString &id : ids) {
        if (id == malformedRuleId) {
            console.tell(
                QCoreApplication::translate("zel-package", "'%1' cannot be ignored.").arg(id));
            areKnown = false;
        } else if (!known.contains(id)) {
            tellUnknownRule(id, known, console);
            areKnown = false;
        }
        ignored += id;
    }
    return areKnown ? std::make_optional(ignored) : std::nullopt;
}

// Checks manifests one after another and counts what is found.
class Validation {
public:
    Validation(FindingsWriter &writer, const QSet<QString> &ignored, Console &console)
        : m_writer(writer)
        , m_ignored(ignored)
        , m_console(console) {}

    void check(const QString &file) {
        ++m_report.files;
        QString trouble;
        const auto content = readContent(file, trouble);
        if (!content) {
            ++m_report.unreadable;
            m_writer.writeUnreadable(file, trouble);
            m_console.tell(file, trouble);
            return;
        }
        Tano::ManifestReader reader(Tano::ManifestReader::Positions::Keep);
        Tano::PackageInfo record;
        if (reader.readContent(*content, record))
            checkPackage(file, record, reader);
        else
            tellMalformed(file, reader);
    }

    // The rules that have found something, in their order.
    QVector<Rule> foundRules() const {
        QVector<Rule> rules = reportRules();
        rules.erase(std::remove_if(rules.begin(), rules.end(),
                                   [&](const Rule &rule) { return !m_found.contains(rule.id); }),
                    rules.end());
        return rules;
    }

    const Report &report() const { return m_report; }

private:
    void checkPackage(const QString &file, const Tano::PackageInfo &record,
                      const Tano::ManifestReader &reader) {
        const Zel::PackageInfoModel package(record);
        QHash<QString, int> counts;
        bool isTruncated = false;
        const auto visit = [&](const Issue &issue) {
            int &count = counts[issue.id];
            const bool isBeyond = count == mostFindings;
            if (m_ignored.contains(issue.id) || isBeyond) {
                isTruncated = isTruncated || isBeyond;
                return IssueVisit::SkipRule;
            }
            ++count;
            found({file, reader.position(Zel::toUtf8(issue.path)), issue.id, issue.severity,
                   issue.path, issue.plainText()});
            return IssueVisit::Continue;
        };
        const QString folder = isStandardStream(file) ? QString() : QFileInfo(file).path();
        Zel::PackageModel::visitIssues(&package, visit, {folder, &record});
        if (isTruncated)
            tellTruncated(file);
    }

    void tellTruncated(const QString &file) {
        ++m_report.truncated;
        const QString note =
            QCoreApplication::translate("zel-package",
                                        "Of each rule, only the first %1 findings are listed.")
                .arg(mostFindings);
        m_writer.writeTruncated(file, note);
        m_console.tell(file, note);
    }

    void tellMalformed(const QString &file, const Tano::ManifestReader &reader) {
        ++m_report.malformed;
        const QString message = translatedSentence(reader.errorMessage());
        found({file, reader.errorPosition(), malformedRuleId, Severity::Error, {}, message});
        m_console.tell(file, reader.errorPosition(), message);
    }

    void found(const ManifestFinding &finding) {
        ++(finding.severity == Severity::Error     ? m_report.errors
           : finding.severity == Severity::Warning ? m_report.warnings
                                                   : m_report.notes);
        m_found += finding.ruleId;
        m_writer.write(finding);
    }

    FindingsWriter &m_writer;
    QSet<QString> m_ignored;
    Console &m_console;
    Report m_report;
    QSet<QString> m_found;
};

void checkAll(const QStringList &files, Validation &validation, Console &console) {
    constexpr int fewFiles = 100; // which take no time to speak of
    const int step = std::max(1, int(files.size()) / 100);
    for (int i = 0; i < files.size(); ++i) {
        if (files.size() > fewFiles && i % step == 0)
            console.showProgress(QCoreApplication::translate("zel-package", "Checked %1 of %2")
                                     .arg(i)
                                     .arg(files.size()));
        validation.check(files.at(i));
    }
    console.showProgress({});
}

ExitStatus statusOf(const Report &report, Severity failOn) {
    if (report.malformed > 0 || report.unreadable > 0)
        return Failure;
    const bool hasFailed = report.errors > 0 ||
                           (failOn <= Severity::Warning && report.warnings > 0) ||
                           (failOn == Severity::Note && report.notes > 0);
    return hasFailed ? Findings : Fine;
}

// Says nothing where nothing was found.
void tellSummary(const Report &report, Console &console) {
    if (report.errors + report.warnings + report.notes + report.unreadable == 0)
        return;
    QString summary =
        QCoreApplication::translate("zel-package", "Manifests: %1, errors: %2, warnings: %3")
            .arg(report.files)
            .arg(report.errors)
            .arg(report.warnings);
    if (report.notes > 0)
        summary += QCoreApplication::translate("zel-package", ", notes: %1").arg(report.notes);
    if (report.malformed > 0)
        summary +=
            QCoreApplication::translate("zel-package", ", malformed: %1").arg(report.malformed);
    if (report.unreadable > 0)
        summary +=
            QCoreApplication::translate("zel-package", ", unreadable: %1").arg(report.unreadable);
    console.tell(summary);
}

ExitStatus run(const QCommandLineParser &arguments, Console &console) {
    const auto writer = writerOf(arguments.value(formatOption), console);
    const auto failOn = failOnOf(arguments.value(failOnOption), console);
    const auto ignored = ignoredOf(arguments.values(ignoreOption), console);
    if (!writer || !failOn || !ignored)
        return Failure;

    Validation validation(*writer, *ignored, console);
    writer->begin();
    checkAll(arguments.positionalArguments(), validation, console);

    Report report = validation.report();
    report.status = statusOf(report, *failOn);
    if (arguments.isSet(explainOption))
        report.explained = validation.foundRules();
    writer->finish(report);
    tellSummary(report, console);
    return report.status;
}

} // namespace

const ProgramCommand validateCommand{
    "validate",
    QT_TRANSLATE_NOOP("zel-package", "Tell what is wrong with manifests"),
    QT_TRANSLATE_NOOP("zel-package",
                      "FILE... [--format text|json|sarif] [--fail-on error|warning|note] "
                      "[--ignore ID[,ID]...]... [--explain]"),
    QT_TRANSLATE_NOOP("zel-package",
                      "Prints what is wrong with each manifest, as FILE:LINE: error: text (field) "
                      "[id]; the line is that of the field or, where it is missing, of what should "
                      "hold it. 'zel-package explain ID' tells more. '-' reads standard input."),
    1,
    ProgramCommand::anyNumber,
    options,
    run,
};

} // namespace ZelPackage
