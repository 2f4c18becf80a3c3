#include <packagemodel/package_issues.h>
#include <packagemodel/translation.h>

#include "warning_guard.h"

#include <QDir>
#include <QRegularExpression>
#include <QTest>
#include <QTranslator>
#include <QXmlStreamReader>

using namespace Zel;

class TestTranslations : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init() { m_warnings.watch(); }
    void cleanup();

    void languages_data();
    void languages();
    void placeholders_data();
    void placeholders();

private:
    WarningGuard m_warnings;
};

void TestTranslations::cleanup() {
    qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator *>());
    QCOMPARE(m_warnings.take(), QStringList());
}

void TestTranslations::languages_data() {
    QTest::addColumn<QString>("locale");
    QTest::addColumn<QString>("uidMessage");

    const QString english = QStringLiteral("Application UID is not defined correctly.");
    const QString french =
        QStringLiteral("L'UID de l'application n'est pas d\u00e9fini correctement.");
    QTest::newRow("French in Canada") << "fr_CA" << french;
    QTest::newRow("Japanese") << "ja_JP"
                              << QString::fromUtf8(
                                     "アプリケーションの UID が正しく定義されていません。");
    QTest::newRow("English") << "en_GB" << english;
    QTest::newRow("no catalogue") << "fi_FI" << english;
    QTest::newRow("C") << "C" << english;
}

void TestTranslations::languages() {
    QFETCH(QString, locale);
    QFETCH(QString, uidMessage);
    const bool isInstalled = installTranslation(QStringLiteral("packagemodel"), QLocale(locale));
    QCOMPARE(PackageModel::rules().first().message, uidMessage);
    QCOMPARE(isInstalled, !uidMessage.startsWith(u'A'));
    QVERIFY(!installTranslation(QStringLiteral("no-such-catalogue"), QLocale(locale)));
}

void TestTranslations::placeholders_data() {
    QTest::addColumn<QString>("path");
    const QDir folder(QStringLiteral(ZEL_SOURCE_DIR "/translations"));
    const QStringList names = folder.entryList({QStringLiteral("*.ts")});
    QVERIFY(!names.isEmpty());
    for (const QString &name : names)
        QTest::newRow(qPrintable(name)) << folder.filePath(name);
}

// A missing placeholder in a translation would drop its argument; an additional one would be shown
// to the user.
void TestTranslations::placeholders() {
    QFETCH(QString, path);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    static const QRegularExpression placeholder(QStringLiteral("%(n|L?[0-9]+)"));
    const auto placeholders = [](const QString &text) {
        QStringList found;
        for (auto it = placeholder.globalMatch(text); it.hasNext();)
            found.append(it.next().captured());
        found.sort();
        found.removeDuplicates();
        return found;
    };

    QXmlStreamReader xml(&file);
    QString source;
    int messages = 0;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == QLatin1String("source")) {
            source = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            const QString text = xml.readElementText(QXmlStreamReader::IncludeChildElements);
            QCOMPARE(placeholders(text), placeholders(source));
            ++messages;
        }
    }
    QVERIFY2(!xml.hasError(), qPrintable(xml.errorString()));
    QVERIFY(messages > 0);
}

QTEST_GUILESS_MAIN(TestTranslations)

#include "tst_translations.moc"
