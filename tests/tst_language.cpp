#include <zel/language.h>

#include <QSet>
#include <QTest>

#include <algorithm>

using namespace Zel;

enum class Edit { Add, Insert, Update, Remove };
Q_DECLARE_METATYPE(Edit)

static_assert(sizeof(RobotLanguage) == sizeof(void *));

namespace {

RobotLanguage partial(const char *code) {
    return {ISOCode(QString::fromLatin1(code)), NuanceCode()};
}

QStringList codes(const RobotLanguages &languages) {
    QStringList result;
    for (const RobotLanguage &language : languages)
        result.append(language.isoCode());
    return result;
}

/// "en=a,b fr=c" for lists of texts.
QString described(const Language::LocalizedStringLists &values) {
    QStringList entries;
    for (const auto &[list, language] : values)
        entries.append(language.isoCode() % QLatin1Char('=') % list.join(QLatin1Char(',')));
    return entries.join(QLatin1Char(' '));
}

} // namespace

class TestLanguage : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void identityIsTheCode();
    void values();
    void knownLanguages();
    void names_data();
    void names();
    void unknownCodes_data();
    void unknownCodes();
    void partialLanguages();
    void defaultLanguage();

    void removeLanguage();
    void setValue();
    void editLists_data();
    void editLists();
};

void TestLanguage::identityIsTheCode() {
    const RobotLanguage known = robotLanguage(QStringLiteral("fr_FR"));
    QVERIFY(known == partial("fr_FR"));
    QVERIFY(known != partial("fr_fr"));
    QVERIFY(known != partial("fr"));
    QVERIFY(RobotLanguage() == partial(""));
    QVERIFY(RobotLanguage() != known);
    QVERIFY(robotLanguage(ISOCode(QStringLiteral("fr_FR"))) == known);
}

void TestLanguage::values() {
    const RobotLanguage complete(ISOCode(QStringLiteral("c")), Name(QStringLiteral("n")),
                                 EnglishName(QStringLiteral("e")), NativeName(QStringLiteral("v")),
                                 NuanceCode(QStringLiteral("x")), SoftwareVersion{1, 2});
    QCOMPARE(QStringList({complete.isoCode(), complete.name(), complete.englishName(),
                          complete.nativeName(), complete.nuanceCode(), complete.uiName()}),
             QStringLiteral("c n e v x n").split(QLatin1Char(' ')));

    RobotLanguage copy = complete;
    copy.setVersion(SoftwareVersion{3});
    QVERIFY(copy.version() == SoftwareVersion{3});
    QVERIFY((complete.version() == SoftwareVersion{1, 2}));
    QCOMPARE(partial("qq").uiName(), QStringLiteral("qq"));
    QCOMPARE(RobotLanguage().uiName(), QString());

    RobotLanguage none;
    none.setVersion(SoftwareVersion{3});
    QVERIFY(none == RobotLanguage());
    QVERIFY(none.version() == SoftwareVersion{3});
}

void TestLanguage::knownLanguages() {
    const QStringList expected =
        QStringLiteral("ar ar_EG ar_SA cs cs_CZ da da_DK de de_DE el el_GR en en_GB en_US es es_ES "
                       "es_MX fi fi_FI fr fr_CA fr_FR it it_IT ja ja_JP ko ko_KR nb nb_NO nl nl_NL "
                       "pl pl_PL pt pt_BR pt_PT ru ru_RU sv sv_SE tr tr_TR zh zh_CN zh_TW")
            .split(QLatin1Char(' '));
    QCOMPARE(codes(Language::knownLanguages()), expected);

    QSet<QString> uiNames;
    for (const RobotLanguage &language : Language::knownLanguages()) {
        const QByteArray utf8 = language.isoCode().toUtf8();
        const char *code = utf8.constData();
        QVERIFY2(!language.name().isEmpty(), code);
        QVERIFY2(language.name().startsWith(language.englishName()), code);
        QVERIFY2(!language.englishName().isEmpty(), code);
        QVERIFY2(!language.nativeName().isEmpty(), code);
        QVERIFY2(language.version().fieldsCount() > 0, code);
        QVERIFY2(language.nuanceCode().isEmpty() || language.nuanceCode().size() == 3, code);
        uiNames.insert(language.uiName());
    }
    QCOMPARE(uiNames.size(), expected.size()); // the user can tell them apart
}

void TestLanguage::names_data() {
    QTest::addColumn<QString>("code");
    QTest::addColumn<QStringList>("expected");
    const auto row = [](const char *code, const char *name, const char *english, const char *native,
                        const char *nuance) {
        QTest::newRow(code) << QString::fromUtf8(code)
                            << QStringList({QString::fromUtf8(name), QString::fromUtf8(english),
                                            QString::fromUtf8(native), QString::fromUtf8(nuance)});
    };
    row("en_US", "English (United States)", "English", "American English", "enu");
    row("en", "English", "English", "English", "");
    row("fr", "French", "French", "français", "");
    row("fr_CA", "French (Canada)", "French", "français canadien", "frc");
    row("cs_CZ", "Czech (Czechia)", "Czech", "čeština", "czc");
    row("nb_NO", "Norwegian Bokmål (Norway)", "Norwegian Bokmål", "norsk bokmål", "non");
    row("zh", "Chinese", "Chinese", "中文", "");
    row("zh_TW", "Chinese (Taiwan)", "Chinese", "繁體中文", "mnt");
}

void TestLanguage::names() {
    QFETCH(const QString, code);
    QFETCH(const QStringList, expected);
    const RobotLanguage language = robotLanguage(code);
    QCOMPARE(language.isoCode(), code);
    QCOMPARE(QStringList({language.name(), language.englishName(), language.nativeName(),
                          language.nuanceCode()}),
             expected);
    QCOMPARE(language.uiName(), expected.first());
}

void TestLanguage::unknownCodes_data() {
    QTest::addColumn<QString>("code");
    QTest::newRow("none") << QString();
    QTest::newRow("no language") << QStringLiteral("qq_QQ");
    QTest::newRow("letter case") << QStringLiteral("EN_us");
    QTest::newRow("dash") << QStringLiteral("en-US");
    QTest::newRow("private use") << QStringLiteral("en_US-x-scrpol");
}

void TestLanguage::unknownCodes() {
    QFETCH(const QString, code);
    QVERIFY(robotLanguage(code) == RobotLanguage());
    QCOMPARE(robotLanguage(code).uiName(), QString());
}

void TestLanguage::partialLanguages() {
    const RobotLanguages before = Language::knownLanguages();
    RobotLanguage invented(ISOCode(QStringLiteral("qaa")), NuanceCode(QStringLiteral("abc")));
    invented.setVersion(SoftwareVersion{2});
    Language::addPartialLanguage(invented);
    Language::addPartialLanguage(partial("aa"));

    QCOMPARE(robotLanguage(QStringLiteral("qaa")).nuanceCode(), QStringLiteral("abc"));
    QVERIFY(robotLanguage(QStringLiteral("qaa")).version() == SoftwareVersion{2});
    QCOMPARE(robotLanguage(QStringLiteral("aa")).uiName(), QStringLiteral("aa"));

    Language::addPartialLanguage(partial("qaa"));
    Language::addPartialLanguage(partial("fr_FR"));
    Language::addPartialLanguage(partial(""));
    QCOMPARE(robotLanguage(QStringLiteral("qaa")).nuanceCode(), QStringLiteral("abc"));
    QCOMPARE(robotLanguage(QStringLiteral("fr_FR")).englishName(), QStringLiteral("French"));
    QCOMPARE(codes(Language::knownLanguages()),
             codes(before) + QStringList({QStringLiteral("qaa"), QStringLiteral("aa")}));
}

void TestLanguage::defaultLanguage() {
    const RobotLanguage original = Language::defaultLanguage();
    QCOMPARE(original.isoCode(), QStringLiteral("en_US"));
    QCOMPARE(original.name(), QStringLiteral("English (United States)"));

    Language::setDefaultLanguage(robotLanguage(QStringLiteral("ja_JP")));
    QCOMPARE(Language::defaultLanguage().isoCode(), QStringLiteral("ja_JP"));
    Language::setDefaultLanguage(robotLanguage(QStringLiteral("qq")));
    QCOMPARE(Language::defaultLanguage().isoCode(), QStringLiteral("ja_JP"));
    Language::setDefaultLanguage(original);
}

void TestLanguage::removeLanguage() {
    RobotLanguages languages = {partial("a"), partial("b"), partial("c")};
    Language::removeLanguage(languages, partial("B"));
    QCOMPARE(codes(languages).join(QString()), QStringLiteral("abc"));
    Language::removeLanguage(languages, partial("b"));
    QCOMPARE(codes(languages).join(QString()), QStringLiteral("ac"));
    Language::removeLanguage(languages, languages.front());
    QCOMPARE(codes(languages).join(QString()), QStringLiteral("c"));
}

void TestLanguage::setValue() {
    Language::LocalizedStrings values;
    Language::setValue(values, QStringLiteral("one"), partial("a"));
    Language::setValue(values, QStringLiteral("two"), partial("b"));
    Language::setValue(values, QString(), partial("a"));
    const Language::LocalizedStrings expected = {{QString(), partial("a")},
                                                 {QStringLiteral("two"), partial("b")}};
    QCOMPARE(values, expected);
}

void TestLanguage::editLists_data() {
    QTest::addColumn<Edit>("edit");
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("code");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *name, Edit edit, int index, const char *code,
                        const char *expected) {
        QTest::newRow(name) << edit << index << QString::fromLatin1(code)
                            << QString::fromLatin1(expected);
    };
    row("add", Edit::Add, 0, "b", "a=1,2,3 b=4,x");
    row("add to none", Edit::Add, 0, "c", "a=1,2,3 b=4 c=x");
    row("insert in front", Edit::Insert, 0, "a", "a=x,1,2,3 b=4");
    row("insert inside", Edit::Insert, 2, "a", "a=1,2,x,3 b=4");
    row("insert at the end", Edit::Insert, 3, "a", "a=1,2,3,x b=4");
    row("insert beyond", Edit::Insert, 99, "a", "a=1,2,3,x b=4");
    row("insert before", Edit::Insert, -5, "a", "a=x,1,2,3 b=4");
    row("insert into none", Edit::Insert, 7, "c", "a=1,2,3 b=4 c=x");
    row("update", Edit::Update, 2, "a", "a=1,2,x b=4");
    row("update beyond", Edit::Update, 3, "a", "a=1,2,3 b=4");
    row("update before", Edit::Update, -1, "a", "a=1,2,3 b=4");
    row("update none", Edit::Update, 0, "c", "a=1,2,3 b=4");
    row("remove", Edit::Remove, 1, "a", "a=1,3 b=4");
    row("remove beyond", Edit::Remove, 3, "a", "a=1,2,3 b=4");
    row("remove before", Edit::Remove, -1, "a", "a=1,2,3 b=4");
    row("remove none", Edit::Remove, 0, "c", "a=1,2,3 b=4");
    row("remove the last", Edit::Remove, 0, "b", "a=1,2,3");
}

void TestLanguage::editLists() {
    QFETCH(const Edit, edit);
    QFETCH(const int, index);
    QFETCH(const QString, code);
    QFETCH(const QString, expected);
    const RobotLanguage language{ISOCode(code), NuanceCode()};
    const QString value = QStringLiteral("x");
    Language::LocalizedStringLists values = {
        {QStringLiteral("1 2 3").split(QLatin1Char(' ')), partial("a")},
        {QStringList(QStringLiteral("4")), partial("b")}};
    switch (edit) {
    case Edit::Add:
        Language::addValue(values, value, language);
        break;
    case Edit::Insert:
        Language::insertValue(values, index, value, language);
        break;
    case Edit::Update:
        Language::updateValue(values, index, value, language);
        break;
    case Edit::Remove:
        Language::removeValue(values, index, language);
        break;
    }
    QCOMPARE(described(values), expected);
}

QTEST_GUILESS_MAIN(TestLanguage)
#include "tst_language.moc"
