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

    void search_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("options");
        QTest::addColumn<QStringList>("expected");
        const auto row = [](const char *text, const char *options, const QStringList &expected) {
            QTest::newRow(text) << QString::fromUtf8(text) << QString::fromUtf8(options)
                                << expected;
        };
        const QString sentence = QStringLiteral("behaviors[%1.triggerSentences[en_US][0]@0+3");
        row("tea", "",
            {QStringLiteral("uid@0+3"), QStringLiteral("names[en_US]@0+3"),
             QStringLiteral("names[en_US]@10+3"), QStringLiteral("behaviors[tea].path@0+3"),
             sentence.arg(QStringLiteral("tea]")), QStringLiteral("behaviors[tea][1].path@0+3"),
             sentence.arg(QStringLiteral("tea][1]")), sentence.arg(QStringLiteral("coffee]"))});
        row("Tea", "cw", {QStringLiteral("names[en_US]@0+3")});
        row("1.2", "", {QStringLiteral("version@0+3")});
        row("t.*?e,", "r", {QStringLiteral("names[en_US]@0+9")});
        row("x*", "r", {});
        row("(", "", {});
    }
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

    void replace_data() {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("by");
        QTest::addColumn<QString>("options");
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("name");
        QTest::addColumn<QStringList>("paths");
        const QStringList paths{QStringLiteral("tea"), QStringLiteral("tea"),
                                QStringLiteral("coffee")};
        const auto row = [](const char *text, const char *by, const char *options, int count,
                            const char *name, const QStringList &expected) {
            QTest::newRow(text) << QString::fromUtf8(text) << QString::fromUtf8(by)
                                << QString::fromUtf8(options) << count << QString::fromUtf8(name)
                                << expected;
        };
        row("time", "\\1", "", 1, "Tea \\1, tea!", paths);
        row("(T)ea (.)", "\\2\\1", "rc", 1, "tTime, tea!", paths);
        row("coffee", "Kaffee", "", 1, "Tea time, tea!",
            {paths.at(0), paths.at(1), QStringLiteral("Kaffee")});
        row("tea", "chai", "c", 3, "Tea time, chai!",
            {QStringLiteral("chai"), paths.at(1), paths.at(2)});
        row("en_US", "fr_FR", "", 0, "Tea time, tea!", paths);
        row("1.2.0", "x", "", 0, "Tea time, tea!", paths);
    }
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
