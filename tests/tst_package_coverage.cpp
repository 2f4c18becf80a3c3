#include "golden.h"
#include "text.h"

#include <packagemodel/package_coverage.h>
#include <packagemodel/package_info_model.h>

#include <QTest>

using namespace Zel;
using namespace Zel::PackageModel;

namespace {

QString printed(const LanguageCoverage &coverage) {
    const auto mark = [](bool is, const char *name) { return is ? u' ' + text(name) : QString(); };
    const auto count = [](const char *name, Count count) {
        return QStringLiteral(" %1 %2/%3").arg(text(name)).arg(count.present).arg(count.expected);
    };
    return coverage.language.isoCode() + u':' + mark(coverage.isSupported, "supported") +
           mark(coverage.isDescribed, "described") + mark(coverage.hasName, "name") +
           mark(coverage.hasDescription, "description") + text(";") +
           count("names", coverage.names) + count("descriptions", coverage.descriptions) +
           count("tags", coverage.tags) + count("triggers", coverage.triggerSentences) +
           count("responses", coverage.loadingResponses) + count("topics", coverage.topics) +
           text(";") + count("total", coverage.total()) +
           QStringLiteral(" = %1 %\n").arg(coverage.percent());
}

} // namespace

class TestPackageCoverage : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // One line per language; the last one is for an unknown language.
    void counts() {
        PackageInfoModel package;
        QVERIFY(package.loadFromManifestContent(testData(text("coverage/package.xml"))));
        QString lines;
        for (const LanguageCoverage &each : coverages(&package)) {
            lines += printed(each);
            QCOMPARE(printed(coverage(&package, each.language)), printed(each));
        }
        lines += printed(coverage(&package, language("ja_JP")));
        for (const BehaviorCoverage &each : behaviorCoverages(&package)) {
            lines += QString::fromStdString(each.path.toString()) + u':';
            for (const Count &count : each.counts)
                lines += QStringLiteral(" %1/%2").arg(count.present).arg(count.expected);
            lines += u'\n';
        }
        COMPARE_WITH_GOLDEN(text(ZEL_TEST_DATA "/coverage/package.txt"), lines.toUtf8());
    }

    void languageThatTheTableDoesNotHave() {
        PackageInfoModel package;
        QVERIFY(languages(&package).empty() && coverages(&package).empty());
        const RobotLanguage unknown(ISOCode(text("qad")), NuanceCode());
        package.setName(text("Tea"), unknown);
        QCOMPARE(languages(&package), RobotLanguages{unknown});
    }

    void noPackage() {
        QVERIFY(languages(nullptr).empty() && coverages(nullptr).empty());
        QVERIFY(behaviorCoverages(nullptr).empty());
        QCOMPARE(coverage(nullptr, language("en_US")).total().expected, 0);
    }
};

QTEST_GUILESS_MAIN(TestPackageCoverage)
#include "tst_package_coverage.moc"
