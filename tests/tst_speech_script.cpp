#include "table_file.h"

#include <tano/package_helper.h>

#include <QRegularExpression>

#include <stdexcept>

namespace {

QString converted(const std::string &script) {
    try {
        return QString::fromStdString(Tano::PackageHelper::getHumanReadableText(script));
    } catch (const std::runtime_error &error) {
        return QStringLiteral("error: ") + QString::fromUtf8(error.what());
    }
}

std::string repeated(const std::string &text, int times) {
    std::string all;
    all.reserve(text.size() * std::size_t(times));
    for (int i = 0; i < times; ++i)
        all += text;
    return all;
}

} // namespace

class TestSpeechScript : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // Texts that are not scripts, the effect of each element, and errors in malformed scripts.
    void pairs_data() { addRowsOf("speech-script/pairs.json"); }
    void pairs() {
        QFETCH(QString, script);
        QTEST(converted(script.toStdString()), "text");
    }

    void badBytes() {
        for (const std::string text : {"bad \xFF byte", "\xEF\xBB\xBFmark"})
            QCOMPARE(Tano::PackageHelper::getHumanReadableText(text), text);
        QCOMPARE(converted("<p>\xFF</p>"),
                 QStringLiteral("error: Line 1, column 4: The bytes here are not valid UTF-8, or "
                                "encode a character that XML does not allow."));
    }

    void documented_data() {
        QTest::addColumn<QString>("script");
        QTest::addColumn<QString>("expected");
        QFile page(QStringLiteral(ZEL_SOURCE_DIR "/docs/speech-script.md"));
        QVERIFY(page.open(QFile::ReadOnly));
        const QRegularExpression row(QStringLiteral("^\\|.*\\| `(a?<.*)` \\| (.*) \\|$"),
                                     QRegularExpression::MultilineOption);
        auto rows = row.globalMatch(QString::fromUtf8(page.readAll()));
        while (rows.hasNext()) {
            const QRegularExpressionMatch match = rows.next();
            QTest::newRow(qUtf8Printable(match.captured(1)))
                << match.captured(1) << match.captured(2);
        }
    }

    // The statements about each element in the documentation.
    void documented() {
        QFETCH(QString, script);
        QTEST(converted(script.toStdString()), "expected");
    }

    void bounds_data() {
        QTest::addColumn<QByteArray>("script");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, const std::string &start, const std::string &end,
                            const char *expected) {
            QTest::newRow(name) << QByteArray::fromStdString(start + end)
                                << QString::fromUtf8(expected);
        };
        std::string attributes;
        for (int i = 0; i < 64; ++i)
            attributes += " a" + std::to_string(i) + "=''";
        const std::string mebibyte(std::size_t(1) << 20, 'x');
        row("65 within each other", repeated("<s>", 65) + "a", repeated("</s>", 65),
            "error: Line 1, column 193: More than 64 elements are nested.");
        row("a million, never closed", repeated("<item>", 1000000), "",
            "error: Line 1, column 385: More than 64 elements are nested.");
        row("65 attributes", "<w" + attributes + " b=''>", "a</w>",
            "error: Line 1, column 1: The element <w> has more than 64 attributes.");
        row("long tag", "<w a='" + mebibyte + "'>", "a</w>",
            "error: Line 1, column 1: A tag, comment or processing instruction is longer than 1 "
            "MiB.");
        row("endless comment", "<!--" + repeated(mebibyte, 4), "",
            "error: Line 1, column 1: A tag, comment or processing instruction is longer than 1 "
            "MiB.");
    }

    void bounds() {
        QFETCH(QByteArray, script);
        QTEST(converted(script.toStdString()), "expected");
    }

    // Truncated scripts, read in parts.
    void tenMegabytes() {
        const std::string script =
            repeated("Ä<emphasis>é</emphasis> &amp; <one-of><item>x</item><item>y</item></one-of>"
                     "<audio>no <desc>z</desc></audio><break/>\r\n",
                     90000);
        QVERIFY(script.size() > 10000000);
        const std::string text = repeated("Äé & x z ", 90000);
        QCOMPARE(Tano::PackageHelper::getHumanReadableText(script),
                 text.substr(0, text.size() - 1));
    }
};

QTEST_APPLESS_MAIN(TestSpeechScript)
#include "tst_speech_script.moc"
