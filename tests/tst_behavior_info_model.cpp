#include "signal_log.h"
#include "text.h"
#include "warning_guard.h"

#include <QTest>

using namespace Zel;

namespace {

QString all(const Language::LocalizedStringLists &lists) {
    QStringList parts;
    for (const auto &[list, lang] : lists)
        parts.append(lang.isoCode() % u':' % list.join(u','));
    return parts.join(u' ');
}

QString all(const Tano::TextListMap &lists) {
    QStringList parts;
    for (const auto &[code, list] : lists) {
        QStringList values;
        for (const std::string &value : list)
            values.append(fromUtf8(value));
        parts.append(fromUtf8(code) % u':' % values.join(u','));
    }
    return parts.join(u' ');
}

// The four kinds of lists, each in its own words. Languages serve as the purposes of conditions.
struct Lists {
    const char *word;
    bool (*add)(BehaviorInfoModel &, const QString &, const RobotLanguage &);
    bool (*insert)(BehaviorInfoModel &, const QString &, const RobotLanguage &, int);
    bool (*update)(BehaviorInfoModel &, int, const QString &, const RobotLanguage &);
    bool (*remove)(BehaviorInfoModel &, int, const RobotLanguage &);
    QStringList (*list)(const BehaviorInfoModel &, const RobotLanguage &);
    QString (*cache)(const BehaviorInfoModel &); // null where there is none
    QString (*record)(const BehaviorInfoModel &);
    bool isKeyQuoted;
};

template<auto add, auto insert, auto update, auto remove, auto list, auto lists>
Lists localized(const char *word) {
    return {word,
            [](auto &m, const auto &v, const auto &l) { return (m.*add)(v, l); },
            [](auto &m, const auto &v, const auto &l, int i) { return (m.*insert)(v, l, i); },
            [](auto &m, int i, const auto &v, const auto &l) { return (m.*update)(i, v, l); },
            [](auto &m, int i, const auto &l) { return (m.*remove)(i, l); },
            [](const auto &m, const auto &l) { return (m.*list)(l); },
            [](const auto &m) { return all((m.*lists)()); },
            nullptr,
            false};
}

std::vector<Lists> kinds() {
    using B = BehaviorInfoModel;
    Lists tags = localized<&B::addTag, &B::insertTag, &B::updateTag, &B::removeTag, &B::tags,
                           &B::languagesToTags>("tag");
    tags.record = [](const B &m) { return all(m.toBehaviorInfo().languagesToTags()); };
    Lists sentences =
        localized<&B::addTriggerSentence, &B::insertTriggerSentence, &B::updateTriggerSentence,
                  &B::removeTriggerSentence, &B::triggerSentences, &B::languagesToTriggerSentences>(
            "triggerSentence");
    sentences.record = [](const B &m) {
        return all(m.toBehaviorInfo().languagesToTriggerSentences());
    };
    Lists responses =
        localized<&B::addLoadingResponse, &B::insertLoadingResponse, &B::updateLoadingResponse,
                  &B::removeLoadingResponse, &B::loadingResponses, &B::languagesToLoadingResponses>(
            "loadingResponse");
    responses.record = [](const B &m) {
        return all(m.toBehaviorInfo().languagesToLoadingResponses());
    };
    const Lists conditions = {
        "condition",
        [](B &m, const QString &v, const RobotLanguage &l) {
            return m.addCondition(v, l.isoCode());
        },
        [](B &m, const QString &v, const RobotLanguage &l, int i) {
            return m.insertCondition(v, l.isoCode(), i);
        },
        [](B &m, int i, const QString &v, const RobotLanguage &l) {
            return m.updateCondition(i, v, l.isoCode());
        },
        [](B &m, int i, const RobotLanguage &l) { return m.removeCondition(i, l.isoCode()); },
        [](const B &m, const RobotLanguage &l) { return m.conditions(l.isoCode()); },
        nullptr,
        [](const B &m) { return all(m.toBehaviorInfo().purposesToConditions()); },
        true};
    return {tags, sentences, responses, conditions};
}

} // namespace

class TestBehaviorInfoModel : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QCOMPARE(m_warnings.take(), QStringList()); }

    void startsFromTheRecord();
    void unknownLanguagesAreRegistered();
    void copies();
    void paths_data();
    void paths();
    void scalars();
    void localizedTexts();
    void argumentsMayLieInTheCache();
    void permissions();
    void lists_data();
    void lists();
    void listsWithEqualValues_data() { lists_data(); }
    void listsWithEqualValues();
    void refusedIndexes_data();
    void refusedIndexes();
    void trims();

private:
    WarningGuard m_warnings;
    const RobotLanguage m_english = language("en_US");
    const RobotLanguage m_french = language("fr_FR");
};

void TestBehaviorInfoModel::startsFromTheRecord() {
    Tano::BehaviorInfo info;
    info.setPath("caf\xC3\xA9/brew");
    info.setNature(Tano::BehaviorInfo::natureSolitary());
    info.setName("Brew", "en_US");
    info.setName("Infuser", "fr_FR");
    info.setDescription("Brews.", "en_US");
    info.addTag("tea", "fr_FR");
    info.addTag("pot", "fr_FR");
    info.addTriggerSentence("brew", "en_US");
    info.addLoadingResponse("wait", "en_US");
    info.addCondition("isHot", "launch");
    const BehaviorInfoModel model(info);
    QCOMPARE(model.path(), text("café/brew"));
    QCOMPARE(model.nature(), BehaviorInfoModel::natureSolitary());
    QCOMPARE(model.name(m_french), text("Infuser"));
    QCOMPARE(model.names().size(), size_t(2));
    QCOMPARE(model.descriptions().size(), size_t(1));
    QCOMPARE(model.description(m_english), text("Brews."));
    QVERIFY(model.description(m_french).isNull());
    QCOMPARE(model.tags(m_french), QStringList({text("tea"), text("pot")}));
    QCOMPARE(model.tags(m_english), QStringList());
    QCOMPARE(model.triggerSentences(m_english), QStringList(text("brew")));
    QCOMPARE(model.loadingResponses(m_english), QStringList(text("wait")));
    QCOMPARE(model.conditions(text("launch")), QStringList(text("isHot")));
    QCOMPARE(model.toBehaviorInfo(), info);

    const BehaviorInfoModel empty{Tano::BehaviorInfo()};
    QCOMPARE(empty.nature(), BehaviorInfoModel::natureNone());
    QVERIFY(BehaviorInfoModel::natureNone().isNull());
    QVERIFY(!empty.isUserRequestable());
}

void TestBehaviorInfoModel::unknownLanguagesAreRegistered() {
    Tano::BehaviorInfo info;
    info.setName("Hello", "qb_QA");
    info.addTag("greeting", "qb_QB");
    const BehaviorInfoModel model(info);
    QCOMPARE(model.name(RobotLanguage(ISOCode(text("qb_QA")), NuanceCode())), text("Hello"));
    QCOMPARE(language("qb_QA").isoCode(), text("qb_QA"));
    QCOMPARE(model.tags(language("qb_QB")), QStringList(text("greeting")));
}

void TestBehaviorInfoModel::copies() {
    auto package = std::make_unique<PackageInfoModel>();
    auto *original = new BehaviorInfoModel(Tano::BehaviorInfo(), package.get());
    QCOMPARE(original->parent(), package.get());
    original->setName(text("Brew"), m_english);
    original->setDescription(text("Brews."), m_english);
    for (const Lists &lists : kinds())
        lists.add(*original, text("tea"), m_english);

    BehaviorInfoModel copy(*original);
    QVERIFY(!copy.parent());
    QCOMPARE(copy.parentPackage(), package.get());
    QCOMPARE(copy.names(), original->names());
    QCOMPARE(copy.descriptions(), original->descriptions());
    for (const Lists &lists : kinds())
        QCOMPARE(lists.list(copy, m_english), QStringList(text("tea")));
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

void TestBehaviorInfoModel::scalars() {
    BehaviorInfoModel model{Tano::BehaviorInfo()};
    SignalLog log(model);
    log.onSignal("pathUpdated", [&] { return fromUtf8(model.toBehaviorInfo().path()); });
    model.setPath(text("thé"));
    model.setPath(text("thé"));
    model.setNature(BehaviorInfoModel::natureInteractive());
    model.setNature(BehaviorInfoModel::natureInteractive());
    model.setUserRequestable(false);
    model.setUserRequestable(true);
    model.setUserRequestable(true);
    QCOMPARE(log.take(), QStringList({text("pathUpdated(\"thé\")"), text("  thé"),
                                      text("natureUpdated(\"interactive\")"),
                                      text("userRequestableChanged(true)")}));
    QCOMPARE(model.toBehaviorInfo().path(), std::string("th\xC3\xA9"));
    QVERIFY(model.toBehaviorInfo().isUserRequestable());
}

void TestBehaviorInfoModel::localizedTexts() {
    Tano::BehaviorInfo info;
    info.setName("Brew", "en_US");
    BehaviorInfoModel model(info);
    SignalLog log(model);
    model.setName(text("Brew"), m_english);
    model.setName(QString(), m_french);
    model.setDescription(QString(), m_french);
    QCOMPARE(log.take(), QStringList());
    QVERIFY(model.name(m_french).isNull());

    model.setName(text("Infuser"), m_french);
    model.setName(text("Pour"), m_english);
    model.setDescription(text("Pours."), m_english);
    QCOMPARE(log.take(), lines(R"(behaviorNameUpdated("Infuser", fr_FR)
                                  behaviorNameUpdated("Pour", en_US)
                                  behaviorDescriptionUpdated("Pours.", en_US))"));
    const Language::LocalizedStrings expected{{text("Pour"), m_english},
                                              {text("Infuser"), m_french}};
    QCOMPARE(model.names(), expected);
    const Tano::TextMap recorded{{"en_US", "Pour"}, {"fr_FR", "Infuser"}};
    QCOMPARE(model.toBehaviorInfo().names(), recorded);
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

void TestBehaviorInfoModel::permissions() {
    BehaviorInfoModel model{Tano::BehaviorInfo()};
    SignalLog log(model);
    QVERIFY(model.addPermission(text("caméra")));
    QVERIFY(!model.addPermission(text("caméra")));
    QVERIFY(model.addPermission(text("microphone")));
    QVERIFY(!model.removePermission(text("arms")));
    QCOMPARE(model.permissions(), QSet<QString>({text("caméra"), text("microphone")}));
    QVERIFY(model.removePermission(text("microphone")));
    QVERIFY(!model.hasPermission(text("microphone")));
    QVERIFY(model.hasPermission(text("caméra")));
    QCOMPARE(log.take(), lines(R"(permissionAdded("caméra")
                                  permissionAdded("microphone")
                                  permissionRemoved("microphone"))"));
}

void TestBehaviorInfoModel::lists_data() {
    QTest::addColumn<int>("kind");
    const std::vector<Lists> rows = kinds();
    for (size_t i = 0; i < rows.size(); ++i)
        QTest::newRow(rows[i].word) << int(i);
}

void TestBehaviorInfoModel::lists() {
    QFETCH(int, kind);
    const Lists lists = kinds().at(size_t(kind));
    BehaviorInfoModel model{Tano::BehaviorInfo()};
    SignalLog log(model);
    QVERIFY(lists.add(model, text("a"), m_french));
    QVERIFY(!lists.add(model, text("a"), m_french));
    QVERIFY(lists.add(model, text("A"), m_french));
    QVERIFY(lists.add(model, text("a"), m_english));
    QVERIFY(lists.insert(model, text("é"), m_french, 1));
    QVERIFY(!lists.insert(model, text("é"), m_french, 0));
    QVERIFY(lists.insert(model, text("last"), m_french, 99));
    QVERIFY(lists.insert(model, text("first"), m_french, -5));
    QVERIFY(lists.update(model, 2, text("x"), m_french));
    QVERIFY(lists.update(model, 2, text("x"), m_french));
    QVERIFY(lists.remove(model, 0, m_english));
    QVERIFY(lists.remove(model, 1, m_french));
    QStringList expected = ::lines(R"(
        *Added("a", fr_FR)
        *Added("A", fr_FR)
        *Added("a", en_US)
        *Inserted("é", fr_FR, 1)
        *Inserted("last", fr_FR, 3)
        *Inserted("first", fr_FR, 0)
        *Updated(2, "x", fr_FR)
        *Updated(2, "x", fr_FR)
        *Removed(0, en_US)
        *Removed(1, fr_FR))");
    expected.replaceInStrings(text("*"), text(lists.word));
    if (lists.isKeyQuoted) {
        expected.replaceInStrings(text("fr_FR"), text("\"fr_FR\""));
        expected.replaceInStrings(text("en_US"), text("\"en_US\""));
    }
    QCOMPARE(log.take(), expected);
    QCOMPARE(lists.list(model, m_french), text("first,x,A,last").split(u','));
    QCOMPARE(lists.record(model), text("fr_FR:first,x,A,last"));
    if (lists.cache)
        QCOMPARE(lists.cache(model), text("fr_FR:first,x,A,last"));
}

void TestBehaviorInfoModel::listsWithEqualValues() {
    QFETCH(int, kind);
    const Lists lists = kinds().at(size_t(kind));
    BehaviorInfoModel model{Tano::BehaviorInfo()};
    for (const char *value : {"a", "b", "c", "d"})
        lists.add(model, text(value), m_french);
    const auto check = [&](const char *expected) {
        QCOMPARE(lists.record(model), text(expected));
        QCOMPARE(lists.list(model, m_french), text(expected).mid(6).split(u','));
    };
    QVERIFY(lists.update(model, 2, text("a"), m_french));
    check("fr_FR:a,b,a,d");
    QVERIFY(lists.update(model, 2, text("e"), m_french));
    check("fr_FR:a,b,e,d");
    QVERIFY(lists.update(model, 3, text("a"), m_french));
    QVERIFY(lists.remove(model, 3, m_french));
    check("fr_FR:a,b,e");
}

void TestBehaviorInfoModel::refusedIndexes_data() {
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("index");
    for (int kind = 0; kind < 4; ++kind) {
        for (int index : {-1, 2, 99})
            QTest::addRow("%s %d", kinds().at(size_t(kind)).word, index) << kind << index;
    }
}

void TestBehaviorInfoModel::refusedIndexes() {
    QFETCH(int, kind);
    QFETCH(int, index);
    const Lists lists = kinds().at(size_t(kind));
    BehaviorInfoModel model{Tano::BehaviorInfo()};
    lists.add(model, text("a"), m_french);
    lists.add(model, text("b"), m_french);
    SignalLog log(model);
    QVERIFY(!lists.update(model, index, text("x"), m_french));
    QVERIFY(!lists.remove(model, index, m_french));
    QVERIFY(!lists.update(model, 0, text("x"), m_english));
    QVERIFY(!lists.remove(model, 0, m_english));
    QCOMPARE(log.take(), QStringList());
    QCOMPARE(lists.record(model), text("fr_FR:a,b"));
}

void TestBehaviorInfoModel::trims() {
    BehaviorInfoModel model{Tano::BehaviorInfo()};
    const RobotLanguage german = language("de");
    for (const RobotLanguage &lang : {m_french, m_english, german}) {
        model.setName(text("name"), lang);
        model.setDescription(text("description"), lang);
        for (const Lists &lists : kinds())
            lists.add(model, text("x"), lang);
    }
    SignalLog log(model);
    model.trimExtraInfo({m_english, german}, {m_french});
    QCOMPARE(log.take(), QStringList());
    const Language::LocalizedStrings names{{text("name"), m_english}, {text("name"), german}};
    QCOMPARE(model.names(), names);
    QCOMPARE(model.descriptions().size(), size_t(2));
    for (const Lists &lists : kinds()) {
        const bool isTrimmed = lists.cache != nullptr;
        QCOMPARE(lists.record(model), text(isTrimmed ? "fr_FR:x" : "de:x en_US:x fr_FR:x"));
        if (isTrimmed)
            QCOMPARE(lists.cache(model), text("fr_FR:x"));
    }
}

QTEST_GUILESS_MAIN(TestBehaviorInfoModel)
#include "tst_behavior_info_model.moc"
