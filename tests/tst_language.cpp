#include "table_file.h"

#include <zel/language.h>

#include <QSet>

using namespace Zel;

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
    void values() {
        const RobotLanguage complete(ISOCode(QStringLiteral("c")), Name(QStringLiteral("n")),
                                     EnglishName(QStringLiteral("e")),
                                     NativeName(QStringLiteral("v")),
                                     NuanceCode(QStringLiteral("x")), SoftwareVersion{1, 2});
        RobotLanguage copy = complete;
        copy.setVersion(SoftwareVersion{3});
        QVERIFY(copy.version() == SoftwareVersion{3});
        QVERIFY((complete.version() == SoftwareVersion{1, 2}));
        QCOMPARE(partial("qq").uiName(), QStringLiteral("qq"));

        RobotLanguage none;
        none.setVersion(SoftwareVersion{3});
        QVERIFY(none == RobotLanguage());
        QVERIFY(none.version() == SoftwareVersion{3});
    }

    void knownLanguages() {
        const RobotLanguages known = Language::knownLanguages();
        QSet<QString> uiNames;
        for (const RobotLanguage &language : known) {
            const QByteArray code = language.isoCode().toUtf8();
            QVERIFY2(!language.englishName().isEmpty() && !language.nativeName().isEmpty(),
                     code.constData());
            QVERIFY2(language.name().startsWith(language.englishName()), code.constData());
            QVERIFY2(language.version().fieldsCount() > 0, code.constData());
            uiNames.insert(language.uiName());
        }
        QVERIFY(known.size() > 40);
        QCOMPARE(uiNames.size(), int(known.size())); // the user can distinguish them
    }

    void names_data() { addRowsOf("base/languages.json"); }

    // Unknown codes have no names.
    void names() {
        QFETCH(const QString, code);
        QFETCH(const QString, name);
        const RobotLanguage language = robotLanguage(code);
        QCOMPARE(language.isoCode(), name.isEmpty() ? QString() : code);
        QCOMPARE(language.name(), name);
        QCOMPARE(language.uiName(), name);
        QTEST(language.englishName(), "english");
        QTEST(language.nativeName(), "native");
        QTEST(language.nuanceCode(), "nuance");
    }

    void partialLanguages() {
        const RobotLanguages before = Language::knownLanguages();
        const RobotLanguage invented(ISOCode(QStringLiteral("qaa")),
                                     NuanceCode(QStringLiteral("abc")));
        Language::addPartialLanguage(invented);
        Language::addPartialLanguage(partial("aa"));

        QCOMPARE(robotLanguage(QStringLiteral("qaa")).nuanceCode(), QStringLiteral("abc"));
        QCOMPARE(robotLanguage(QStringLiteral("aa")).uiName(), QStringLiteral("aa"));

        Language::addPartialLanguage(partial("qaa"));
        Language::addPartialLanguage(partial("fr_FR"));
        Language::addPartialLanguage(partial(""));
        QCOMPARE(robotLanguage(QStringLiteral("qaa")).nuanceCode(), QStringLiteral("abc"));
        QCOMPARE(robotLanguage(QStringLiteral("fr_FR")).englishName(), QStringLiteral("French"));
        QCOMPARE(codes(Language::knownLanguages()),
                 codes(before) + QStringList({QStringLiteral("qaa"), QStringLiteral("aa")}));
    }

    void languagesInUse() {
        const auto inUse = [](const char *code) {
            return Language::languageInUse(QString::fromLatin1(code));
        };
        QCOMPARE(inUse("fr_FR").englishName(), QStringLiteral("French"));
        QVERIFY(inUse("").isoCode().isEmpty());
        const QStringList before = codes(Language::knownLanguages());
        {
            const RobotLanguage first = inUse("qab");
            const RobotLanguage copy = inUse("qab");
            QCOMPARE(robotLanguage(QStringLiteral("qab")), copy);
            QCOMPARE(codes(Language::knownLanguages()),
                     before + QStringList(QStringLiteral("qab")));
        }
        QVERIFY(robotLanguage(QStringLiteral("qab")).isoCode().isEmpty());
        QCOMPARE(codes(Language::knownLanguages()), before);
    }

    // A code used only by texts is dropped with them, unless an application registers it.
    void registrationOutlivesUse() {
        RobotLanguage inUse = Language::languageInUse(QStringLiteral("qac"));
        Language::addPartialLanguage(
            {ISOCode(QStringLiteral("qac")), NuanceCode(QStringLiteral("x"))});
        inUse = {};
        QCOMPARE(robotLanguage(QStringLiteral("qac")).isoCode(), QStringLiteral("qac"));
        QVERIFY(robotLanguage(QStringLiteral("qac")).nuanceCode().isEmpty());

        Language::languageInUse(QStringLiteral("qad"));
        Language::addPartialLanguage(
            {ISOCode(QStringLiteral("qad")), NuanceCode(QStringLiteral("x"))});
        QCOMPARE(robotLanguage(QStringLiteral("qad")).nuanceCode(), QStringLiteral("x"));
    }

    // The table drops unused languages as it grows; those in use keep their descriptors.
    void manyLanguages() {
        const RobotLanguage kept = Language::languageInUse(QStringLiteral("kept"));
        const QStringList before = codes(Language::knownLanguages());
        RobotLanguages last;
        for (int i = 0; i < 1000; ++i) {
            last = {Language::languageInUse(QStringLiteral("m%1").arg(i))};
            QCOMPARE(robotLanguage(QStringLiteral("m%1").arg(i)), last.front());
        }
        QCOMPARE(codes(Language::knownLanguages()), before + QStringList(QStringLiteral("m999")));
    }

    void defaultLanguage() {
        const RobotLanguage original = Language::defaultLanguage();
        QCOMPARE(original.isoCode(), QStringLiteral("en_US"));

        Language::setDefaultLanguage(robotLanguage(QStringLiteral("ja_JP")));
        QCOMPARE(Language::defaultLanguage().isoCode(), QStringLiteral("ja_JP"));
        Language::setDefaultLanguage(robotLanguage(QStringLiteral("qq")));
        QCOMPARE(Language::defaultLanguage().isoCode(), QStringLiteral("ja_JP"));
        Language::setDefaultLanguage(original);
    }

    void removeLanguage() {
        RobotLanguages languages = {partial("a"), partial("b"), partial("c")};
        Language::removeLanguage(languages, partial("B"));
        QCOMPARE(languages.size(), std::size_t(3));
        Language::removeLanguage(languages, partial("b"));
        Language::removeLanguage(languages, languages.front());
        QCOMPARE(codes(languages), QStringList(QStringLiteral("c")));
    }

    void setValue() {
        Language::LocalizedStrings values;
        Language::setValue(values, QStringLiteral("one"), partial("a"));
        Language::setValue(values, QStringLiteral("two"), partial("b"));
        Language::setValue(values, QString(), partial("a"));
        QCOMPARE(values, (Language::LocalizedStrings{{QString(), partial("a")},
                                                     {QStringLiteral("two"), partial("b")}}));
    }

    void editLists_data() { addRowsOf("base/list-edits.json"); }

    void editLists() {
        QFETCH(const QString, edit);
        QFETCH(const int, index);
        QFETCH(const QString, code);
        const RobotLanguage language{ISOCode(code), NuanceCode()};
        const QString value = QStringLiteral("x");
        Language::LocalizedStringLists values = {
            {QStringLiteral("1 2 3").split(QLatin1Char(' ')), partial("a")},
            {QStringList(QStringLiteral("4")), partial("b")}};
        if (edit == QLatin1String("add"))
            Language::addValue(values, value, language);
        else if (edit == QLatin1String("insert"))
            Language::insertValue(values, index, value, language);
        else if (edit == QLatin1String("update"))
            Language::updateValue(values, index, value, language);
        else
            Language::removeValue(values, index, language);
        QTEST(described(values), "expected");
    }
};

QTEST_GUILESS_MAIN(TestLanguage)
#include "tst_language.moc"
