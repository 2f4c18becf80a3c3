#include "coverage_table.h"

#include "console/text_layout.h"
#include "console/text_table.h"

#include <packagemodel/language_name.h>

#include <QCoreApplication>

#include <algorithm>

namespace ZelPackage {
namespace {

using Cell = TextTable::Cell;
using Zel::PackageModel::Count;
using Zel::PackageModel::LanguageCoverage;

constexpr int shortestBar = 4;
constexpr int longestBar = 20;
constexpr int gap = 2;

Cell markOf(bool isPresent) {
    return isPresent ? Cell{QStringLiteral("✓"), Style::Good}
                     : Cell{QStringLiteral("✗"), Style::Caution};
}

// Texts in a language that does not need them are counted only if there are any.
Cell cellOf(Count count, bool isExpected) {
    if (isExpected)
        return countCell(count);
    return count.present == 0 ? Cell{} : Cell{countCell(count).text, Style::Faint};
}

// The end of the bar is drawn with a precision of an eighth of a column.
QString barOf(int percent, int width) {
    static const QString eighths = QStringLiteral("░▏▎▍▌▋▊▉");
    const int length = percent * width * 8 / 100;
    const int full = length / 8;
    QString bar(full, u'█');
    if (full < width)
        bar += eighths.at(length % 8);
    return bar % QString(width - bar.size(), u'░');
}

Cell totalOf(const LanguageCoverage &coverage, int barWidth) {
    if (coverage.total().expected == 0)
        return {};
    const int percent = coverage.percent();
    const QString number = QCoreApplication::translate("zel-package", "%1 %")
                               .arg(QString::number(percent).rightJustified(3));
    return {barWidth == 0 ? number : barOf(percent, barWidth) % u' ' % number,
            percent == 100 ? Style::Good : Style::Caution};
}

// The mark after the code of a language that the package does not support.
QString signOf(const LanguageCoverage &coverage) {
    if (coverage.isSupported)
        return {};
    return coverage.isDescribed ? QStringLiteral("°") : QStringLiteral("×");
}

std::vector<TextTable::Column> columns(bool hasNames) {
    using Align = TextTable::Align;
    const QString package = QCoreApplication::translate("zel-package", "package");
    const QString behaviors = QCoreApplication::translate("zel-package", "behaviors");
    const QString names = QCoreApplication::translate("zel-package", "names");
    const QString descriptions = QCoreApplication::translate("zel-package", "descr.");
    std::vector<TextTable::Column> result{{QString()}};
    if (hasNames)
        result.push_back({QCoreApplication::translate("zel-package", "language")});
    result.insert(
        result.end(),
        {{QCoreApplication::translate("zel-package", "name"), Align::Center, package},
         {descriptions, Align::Center, package},
         {names, Align::Right, behaviors},
         {descriptions, Align::Right, behaviors},
         {QCoreApplication::translate("zel-package", "tags"), Align::Right, behaviors},
         {QCoreApplication::translate("zel-package", "triggers"), Align::Right, behaviors},
         {QCoreApplication::translate("zel-package", "loading"), Align::Right, behaviors},
         {QCoreApplication::translate("zel-package", "topics"), Align::Right},
         {QString(), Align::Right}});
    return result;
}

TextTable tableOf(const std::vector<LanguageCoverage> &coverages, bool hasNames, int barWidth) {
    TextTable table(columns(hasNames));
    for (const LanguageCoverage &coverage : coverages) {
        const bool isListed = coverage.isSupported || coverage.isDescribed;
        TextTable::Row row{{printable(coverage.language.isoCode()) % signOf(coverage)}};
        if (hasNames)
            row.push_back({printable(coverage.language.name().isEmpty()
                                         ? QString()
                                         : Zel::PackageModel::languageName(coverage.language)),
                           Style::Faint});
        row.insert(row.end(),
                   {markOf(coverage.hasName), markOf(coverage.hasDescription),
                    cellOf(coverage.names, isListed), cellOf(coverage.descriptions, isListed),
                    cellOf(coverage.tags, coverage.isSupported),
                    cellOf(coverage.triggerSentences, coverage.isSupported),
                    cellOf(coverage.loadingResponses, coverage.isSupported),
                    cellOf(coverage.topics, coverage.isSupported), totalOf(coverage, barWidth)});
        table.addRow(row);
    }
    return table;
}

QString noteOn(const QString &sign, const QString &note, const Console &console, int indent) {
    QString text;
    const auto lines = wrapped(sign % u' ' % note, console.width() - indent);
    for (const QString &line : lines)
        text += QString(indent, u' ') % console.styled(line, Style::Faint) % u'\n';
    return text;
}

} // namespace

TextTable::Cell countCell(Count count) {
    if (count.expected == 0)
        return {QStringLiteral("–"), Style::Faint};
    return {QString::number(count.present) % u'/' % QString::number(count.expected),
            count.present == count.expected ? Style::Plain : Style::Caution};
}

QString coverageTable(const std::vector<LanguageCoverage> &coverages, const Console &console,
                      int indent) {
    const int available = console.width() - indent;
    const bool hasNames = tableOf(coverages, true, 0).width() + gap + shortestBar <= available;
    const int left = available - tableOf(coverages, hasNames, 0).width() - 1;
    const int barWidth = left < shortestBar ? 0 : std::min(left, longestBar);
    QString text = tableOf(coverages, hasNames, barWidth).toText(console, indent);

    const auto isDescribedOnly = [](const LanguageCoverage &coverage) {
        return coverage.isDescribed && !coverage.isSupported;
    };
    const auto isUnlisted = [](const LanguageCoverage &coverage) {
        return !coverage.isDescribed && !coverage.isSupported;
    };
    if (std::any_of(coverages.begin(), coverages.end(), isDescribedOnly))
        text += noteOn(QStringLiteral("°"),
                       QCoreApplication::translate(
                           "zel-package", "The package only has descriptions in this language."),
                       console, indent);
    if (std::any_of(coverages.begin(), coverages.end(), isUnlisted))
        text += noteOn(
            QStringLiteral("×"),
            QCoreApplication::translate("zel-package", "The package does not list this language."),
            console, indent);
    return text;
}

} // namespace ZelPackage
