#include "program_command.h"

#include "arguments/format_option.h"
#include "arguments/native_text.h"
#include "console/json_list.h"
#include "console/text_layout.h"
#include "console/text_table.h"
#include "manifest/manifest_source.h"
#include "show/coverage_table.h"

#include <packagemodel/package_info_model.h>

#include <QJsonArray>

#include <optional>

namespace ZelPackage {
namespace {

using Zel::PackageModel::BehaviorCoverage;
using Zel::PackageModel::Count;
using Zel::PackageModel::LanguageCoverage;

QList<QCommandLineOption> options() {
    return {formatOption()};
}

// The translation progress of one manifest.
struct TranslationStatus {
    explicit TranslationStatus(const Zel::PackageInfoModel &package)
        : languages(Zel::PackageModel::coverages(&package))
        , behaviors(Zel::PackageModel::behaviorCoverages(&package)) {}

    std::vector<LanguageCoverage> languages;
    std::vector<BehaviorCoverage> behaviors;
};

void add(QJsonObject &object, Count count) {
    object.insert(QStringLiteral("present"), count.present);
    object.insert(QStringLiteral("expected"), count.expected);
}

QJsonObject toJson(Count count) {
    QJsonObject object;
    add(object, count);
    return object;
}

QJsonObject toJson(const LanguageCoverage &coverage) {
    QJsonObject object{{QStringLiteral("code"), coverage.language.isoCode()},
                       {QStringLiteral("supported"), coverage.isSupported},
                       {QStringLiteral("described"), coverage.isDescribed},
                       {QStringLiteral("percent"), coverage.percent()},
                       {QStringLiteral("name"), coverage.hasName},
                       {QStringLiteral("description"), coverage.hasDescription}};
    add(object, coverage.total());
    return object;
}

QJsonObject toJson(const BehaviorCoverage &coverage, const TranslationStatus &status) {
    QJsonObject counts;
    for (std::size_t i = 0; i < coverage.counts.size(); ++i)
        counts.insert(status.languages[i].language.isoCode(), toJson(coverage.counts[i]));
    return {{QStringLiteral("field"), Zel::fromUtf8(coverage.path.toString())},
            {QStringLiteral("languages"), counts}};
}

QJsonObject toJson(const QString &file, const TranslationStatus &status) {
    QJsonArray languages;
    for (const LanguageCoverage &coverage : status.languages)
        languages.append(toJson(coverage));
    QJsonArray behaviors;
    for (const BehaviorCoverage &coverage : status.behaviors)
        behaviors.append(toJson(coverage, status));
    return {{QStringLiteral("file"), withVisibleBytes(file)},
            {QStringLiteral("languages"), languages},
            {QStringLiteral("behaviors"), behaviors}};
}

QString textOf(const QString &file, const TranslationStatus &status, const Console &console) {
    constexpr int indent = 2;
    QString text = console.styled(printable(file), Style::Heading) % u'\n' %
                   coverageTable(status.languages, console, indent);
    std::vector<TextTable::Column> columns{
        {QCoreApplication::translate("zel-package", "behavior")}};
    for (const LanguageCoverage &coverage : status.languages)
        columns.push_back({printable(coverage.language.isoCode()), TextTable::Align::Right});
    TextTable table(columns);
    for (const BehaviorCoverage &behavior : status.behaviors) {
        TextTable::Row row{
            {printable(Zel::fromUtf8(behavior.path.steps().front().selectors.front().text))}};
        for (const Count count : behavior.counts)
            row.push_back(countCell(count));
        table.addRow(row);
    }
    return status.behaviors.empty() ? text : text % u'\n' % table.toText(console, indent);
}

ExitStatus run(const QCommandLineParser &arguments, Console &console) {
    const auto format = formatOf(arguments, console);
    if (!format)
        return Failure;
    std::optional<JsonListForm> form;
    if (format == OutputFormat::Json)
        form.emplace(QLatin1String("files"), console);
    ExitStatus exitStatus = Fine;
    bool isFirst = true;
    const QStringList files = arguments.positionalArguments();
    for (const QString &file : files) {
        const auto manifest = readManifest(file, console);
        if (!manifest) {
            exitStatus = Failure;
            continue;
        }
        const TranslationStatus status(Zel::PackageInfoModel(manifest->package));
        if (form)
            form->add(toJson(file, status));
        else
            console.print((isFirst ? QString() : QStringLiteral("\n")) %
                          textOf(file, status, console));
        isFirst = false;
    }
    if (form)
        form->finish();
    return exitStatus;
}

} // namespace

const ProgramCommand textsStatusCommand{
    "texts status",
    QT_TRANSLATE_NOOP("zel-package", "Show how much of packages is translated"),
    QT_TRANSLATE_NOOP("zel-package", "FILE... [--format text|json]"),
    QT_TRANSLATE_NOOP("zel-package",
                      "Counts translated and required texts by language and by behavior. A list "
                      "counts as one text. '-' reads standard input."),
    1,
    ProgramCommand::anyNumber,
    options,
    run,
};

} // namespace ZelPackage
