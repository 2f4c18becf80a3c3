#include "table_file.h"
#include "warning_guard.h"

#include <packagemodel/package_info_model.h>
#include <packagemodel/package_search.h>

#include <QTest>

using namespace Zel;
using namespace Zel::PackageModel;

namespace {

// "PATH@START+LENGTH" of each match.
QStringList printedMatches(const TextMatches &matches) {
    QStringList lines;
    for (const TextMatch &match : matches)
        lines += QStringLiteral("%1@%2+%3")
                     .arg(fromUtf8(match.path.toString()))
                     .arg(match.start)
                     .arg(match.length);
    return lines;
}

SearchOptions optionsOf(const QString &letters) {
    return {letters.contains(u'c'), letters.contains(u'w'), letters.contains(u'r')};
}

} // namespace

class TestPackageSearch : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() {
        m_guard.watch();
        Tano::PackageInfo record;
        record.setUuid("tea");
        record.setVersion("1.2.0");
        record.addSupportedLanguage("en_US");
        record.setName("Tea time, tea!", "en_US");
        for (const char *path : {"tea", "tea", "coffee"}) {
            Tano::BehaviorInfo behavior;
            behavior.setPath(path);
            behavior.addTriggerSentence("Team up", "en_US");
            record.addBehavior(behavior);
        }
        m_package = std::make_unique<PackageInfoModel>(record);
    }
    void cleanup() { QCOMPARE(m_guard.take(), QStringList()); }

    void walk() {
        QVector<Field> walked;
        int portions = 0;
        for (FieldWalk walk(m_package.get()); !walk.isAtEnd(); ++portions)
            walked += walk.next();
        const auto all = fields(m_package.get());
        QCOMPARE(walked.size(), all.size());
        for (int i = 0; i < all.size(); ++i)
            QVERIFY(walked.at(i).path == all.at(i).path && walked.at(i).value == all.at(i).value);
        QVERIFY(portions > 3);
        QVERIFY(FieldWalk(nullptr).isAtEnd());

        FieldWalk walk(m_package.get());
        QVector<Field> left;
        while (!walk.isAtEnd()) {
            left += walk.next();
            if (m_package->behavior(QStringLiteral("coffee")))
                m_package->clearBehaviors();
        }
        QVERIFY(left.size() < all.size());
    }

    void search_data() { addRowsOf("search/matches.json"); }
    void search() {
        QFETCH(QString, text);
        QFETCH(QString, options);
        const auto pattern = searchPattern(text, optionsOf(options));
        QTEST(printedMatches(matches(fields(m_package.get()), pattern)), "expected");
    }

    void invalidExpression() {
        const auto pattern = searchPattern(QStringLiteral("("), optionsOf(QStringLiteral("r")));
        QVERIFY(!pattern.isValid() && !pattern.errorString().isEmpty());
    }

    void replace_data() { addRowsOf("search/replacements.json"); }
    void replace() {
        QFETCH(QString, text);
        QFETCH(QString, by);
        QFETCH(QString, options);
        const auto pattern = searchPattern(text, optionsOf(options));
        const auto found = matches(fields(m_package.get()), pattern);
        const auto replacement = replaced(m_package.get(), found, pattern, by, optionsOf(options));
        QTEST(replacement.count, "count");
        QCOMPARE(replacement.count + int(replacement.fixed.size()), int(found.size()));
        QCOMPARE(apply(m_package.get(), replacement.edits).error, QString());
        QTEST(m_package->name(robotLanguage(QStringLiteral("en_US"))), "name");
        QStringList paths;
        for (const auto *behavior : m_package->behaviors())
            paths += behavior->path();
        QTEST(paths, "paths");
    }

    // Renames come last, since the paths of other edits contain the old names.
    void replaceEverywhere() {
        const auto pattern =
            searchPattern(QStringLiteral("coffee|team"), optionsOf(QStringLiteral("r")));
        const auto found = matches(fields(m_package.get()), pattern);
        const auto replacement = replaced(m_package.get(), found, pattern, QStringLiteral("chai"),
                                          optionsOf(QStringLiteral("r")));
        QCOMPARE(replacement.count, 4);
        const Applied applied = apply(m_package.get(), replacement.edits);
        QCOMPARE(applied.error, QString());
        const auto *chai = m_package->behavior(QStringLiteral("chai"));
        QVERIFY(chai);
        QCOMPARE(chai->triggerSentences(robotLanguage(QStringLiteral("en_US"))),
                 QStringList{QStringLiteral("chai up")});
        QCOMPARE(apply(m_package.get(), applied.inverse).error, QString());
        QCOMPARE(matches(fields(m_package.get()), pattern).size(), found.size());
    }

private:
    std::unique_ptr<PackageInfoModel> m_package;
    WarningGuard m_guard;
};

QTEST_GUILESS_MAIN(TestPackageSearch)
#include "tst_package_search.moc"
