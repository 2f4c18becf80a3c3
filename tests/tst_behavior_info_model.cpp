#include "signal_log.h"
#include "text.h"
#include "warning_guard.h"

#include <QTest>

using namespace Zel;

class TestBehaviorInfoModel : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_warnings.watch(); }
    void cleanup() { QCOMPARE(m_warnings.take(), QStringList()); }

    void otherLanguagesAreKnownAtOnce();
    void copies();
    void paths_data();
    void paths();
    void argumentsMayLieInTheCache();

private:
    WarningGuard m_warnings;
    const RobotLanguage m_english = language("en_US");
    const RobotLanguage m_french = language("fr_FR");
};

// Although texts are decoded when they are first used.
void TestBehaviorInfoModel::otherLanguagesAreKnownAtOnce() {
    Tano::BehaviorInfo info;
    info.setName("Hello", "qb_QA");
    info.addTag("greeting", "qb_QB");
    const BehaviorInfoModel model(info);
    for (const char *code : {"qb_QA", "qb_QB"})
        QCOMPARE(language(code).isoCode(), text(code));
    QCOMPARE(model.tags(language("qb_QB")), QStringList(text("greeting")));
}

void TestBehaviorInfoModel::copies() {
    auto package = std::make_unique<PackageInfoModel>();
    auto *original = new BehaviorInfoModel(Tano::BehaviorInfo(), package.get());
    QCOMPARE(original->parent(), package.get());
    original->setName(text("Brew"), m_english);
    original->setDescription(text("Brews."), m_english);
    original->addTag(text("tea"), m_english);
    original->addTriggerSentence(text("brew"), m_english);
    original->addLoadingResponse(text("wait"), m_english);

    BehaviorInfoModel copy(*original);
    QVERIFY(!copy.parent());
    QCOMPARE(copy.parentPackage(), package.get());
    QCOMPARE(copy.names(), original->names());
    QCOMPARE(copy.descriptions(), original->descriptions());
    QCOMPARE(copy.languagesToTags(), original->languagesToTags());
    QCOMPARE(copy.languagesToTriggerSentences(), original->languagesToTriggerSentences());
    QCOMPARE(copy.languagesToLoadingResponses(), original->languagesToLoadingResponses());
    copy.addTag(text("pot"), m_english);
    QCOMPARE(original->tags(m_english), QStringList(text("tea")));
    QCOMPARE(original->toBehaviorInfo().languagesToTags().at("en_US").size(), size_t(1));

    QObject other;
    const BehaviorInfoModel adopted(Tano::BehaviorInfo(), package.get(), &other);
    QCOMPARE(adopted.parent(), &other);
    QCOMPARE(adopted.parentPackage(), package.get());
    package.reset();
    QVERIFY(!copy.parentPackage());
}

void TestBehaviorInfoModel::paths_data() {
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("pretty");
    QTest::addColumn<QString>("file");
    QTest::newRow("root") << text(".") << text(". (root behavior)") << text("behavior.bhv");
    for (const char *path : {"", "./", "..", "a/b"})
        QTest::newRow(path) << text(path) << text(path) << text(path);
}

void TestBehaviorInfoModel::paths() {
    QFETCH(QString, path);
    BehaviorInfoModel model{Tano::BehaviorInfo()};
    model.setPath(path);
    QTEST(model.prettyPath(), "pretty");
    QTEST(BehaviorInfoModel::prettyPath(path), "pretty");
    QTEST(model.pathWithDefaultBhvSuffix(), "file");
}

void TestBehaviorInfoModel::argumentsMayLieInTheCache() {
    BehaviorInfoModel model{Tano::BehaviorInfo()};
    model.setName(text("Brew"), m_english);
    model.addTag(text("tea"), m_english);
    model.addTag(text("pot"), m_french);
    SignalLog log(model);
    for (const char *code : {"da", "de", "el", "it"})
        model.setName(model.names().front().first, language(code));
    model.addTag(model.languagesToTags().front().first.front(), m_french);
    model.removeTag(0, model.languagesToTags().front().second);
    model.updateTag(0, model.languagesToTags().front().first.at(1), m_french);
    QCOMPARE(log.take(), lines(R"(behaviorNameUpdated("Brew", da)
                                  behaviorNameUpdated("Brew", de)
                                  behaviorNameUpdated("Brew", el)
                                  behaviorNameUpdated("Brew", it)
                                  tagAdded("tea", fr_FR)
                                  tagRemoved(0, en_US)
                                  tagUpdated(0, "tea", fr_FR))"));
}

QTEST_GUILESS_MAIN(TestBehaviorInfoModel)
#include "tst_behavior_info_model.moc"
