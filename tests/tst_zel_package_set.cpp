#include "program_run.h"

#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

// Tests the difference that "set" prints with --dry-run, for patch(1).
class TestZelPackageSet : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_dir;

    Outcome set(const QByteArray &manifest) const {
        write(m_dir.filePath(QStringLiteral("before.xml")), manifest);
        return runShell(QStringLiteral("zel-package set before.xml author=x --dry-run"),
                        m_dir.path());
    }

private Q_SLOTS:
    void diffsApply_data() {
        QTest::addColumn<QByteArray>("before");
        const QDir directory(QStringLiteral(ZEL_TEST_DATA "/manifest/valid/noncanonical"));
        const auto files = directory.entryInfoList({QStringLiteral("*.xml")});
        for (const QFileInfo &file : files) {
            if (!file.fileName().startsWith(QLatin1String("newer-")))
                QTest::newRow(qPrintable(file.fileName())) << contentOf(file.filePath());
        }
        // More differences than the search handles.
        const QByteArray large = contentOf(
            QStringLiteral(ZEL_SOURCE_DIR "/examples/packages/ten-languages/manifest.xml"));
        QTest::newRow("every line") << QByteArray(large).replace("\n", "\r\n");
        QTest::newRow("every other line") << QByteArray(large).replace("</tag>\n", "</tag> \n");
    }

    void diffsApply() {
        QFETCH(QByteArray, before);
        write(m_dir.filePath(QStringLiteral("diff")), set(before).out);
        const QString line =
            QStringLiteral("patch --quiet --binary -o patched.xml before.xml diff && "
                           "zel-package set before.xml author=x && cmp patched.xml before.xml");
        const Outcome outcome = runShell(line, m_dir.path());
        QCOMPARE(outcome.err, QByteArray());
        QCOMPARE(outcome.status, 0);
    }

    // Hunks are laid out as by diff -u: those with touching contexts are joined.
    void diffLayout() {
        const QByteArray head = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
        const QByteArray package = "<package format=\"1\" uid=\"u\" version=\"1\">\n";
        QByteArray languages;
        for (int i = 0; i < 6; ++i)
            languages += "  <supportedLanguage code=\"a" + QByteArray::number(i) + "\"/>\n";
        const auto hunks = [&](const QByteArray &text) {
            const QByteArray diff = set(text).out;
            const QStringList lines = QString::fromUtf8(diff).split(u'\n');
            return lines.filter(QRegularExpression(QStringLiteral("^[@\\\\]"))).join(u'|');
        };
        const QByteArray end = "</package>";
        QCOMPARE(hunks(head + package + languages + end),
                 QStringLiteral("@@ -1,9 +1,10 @@|\\ No newline at end of file"));
        languages += "  <supportedLanguage code=\"a6\"/>\n";
        QCOMPARE(hunks(head + package + languages + end),
                 QStringLiteral("@@ -1,5 +1,6 @@|@@ -7,4 +8,4 @@|\\ No newline at end of file"));
        QCOMPARE(hunks("<package format=\"1\" uid=\"u\" version=\"1\"/>\n"),
                 QStringLiteral("@@ -1 +1,4 @@"));
    }
};

QTEST_GUILESS_MAIN(TestZelPackageSet)
#include "tst_zel_package_set.moc"
