#include <tano/package_helper.h>

#include <QFile>
#include <QRegularExpression>
#include <QTest>

#include <stdexcept>

namespace {

struct Pair {
    const char *script;
    const char *text;
};

QString converted(const std::string &script) {
    try {
        return QString::fromStdString(Tano::PackageHelper::getHumanReadableText(script));
    } catch (const std::runtime_error &error) {
        return QStringLiteral("error: ") + QString::fromUtf8(error.what());
    }
}

void addRows(std::initializer_list<Pair> pairs) {
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("expected");
    for (const Pair &pair : pairs)
        QTest::newRow(pair.script) << QByteArray(pair.script) << QString::fromUtf8(pair.text);
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
    void plain_data() {
        QTest::addColumn<QByteArray>("text");
        for (const char *text :
             {"", " ", "Hello", "  two  spaces\n", "5 < 6", "5<6 or 7>6", "AT&T", "AT&amp;T",
              "Tom & Jerry (live)", "I <3 you </3", "<- back ->", "is x<y?", "a < b > c", "<",
              "</ p>", "<!", "\xEF\xBB\xBFmark", "bad \xFF byte", "]]>"})
            QTest::newRow(text) << QByteArray(text);
    }

    void plain() {
        QFETCH(QByteArray, text);
        QCOMPARE(Tano::PackageHelper::getHumanReadableText(text.toStdString()), text.toStdString());
    }

    void script_data() {
        addRows({
            // words that are kept apart
            {"Hello<break/>you", "Hello you"},
            {"Hello <break time=\"300ms\"/> you", "Hello you"},
            {"Hello<break strength='x-strong'></break> you", "Hello you"},
            {"<break/>Hello<break/><break/>", "Hello"},
            {"<break/>", ""},
            {"<p>\n  <s>One.</s>\n  <s>Two.</s>\n</p>\n<p>Three.</p>\n", "One. Two. Three."},
            {"<s>One.</s><s>Two.</s>", "One. Two."},
            {"One.<p>Two.</p>Three.", "One. Two. Three."},
            {"Wait<break/>, then go<break/>!", "Wait, then go!"},
            {"Wait <break/> !", "Wait !"},
            {"你好，<break/>欢迎！<break/>「请进」<break/>吧", "你好，欢迎！「请进」吧"},
            {"从前<break/>有座山", "从前 有座山"},
            {"옛날<break/>옛적에", "옛날 옛적에"},
            {"مرحبا<break/>، أهلا<break/>بك", "مرحبا، أهلا بك"},
            // words that are not
            {"a<emphasis>b</emphasis>c", "abc"},
            {"Ph<phoneme ph='x'>o</phoneme>t<w>o</w>", "Photo"},
            {"<say-as interpret-as='date'>1 May</say-as>, <prosody rate='slow'>no</prosody>.",
             "1 May, no."},
            {"<voice gender='female'>She</voice>'s <lang xml:lang='fr-FR'>chic</lang>!",
             "She's chic!"},
            {"Hel<lookup ref='names'>Siobhan</lookup>lo", "Hello"},
            {"<token>今日</token><token>は</token>", "今日は"},
            {"Hel<mark name='here'/>lo", "Hello"},
            {"a<emphasis/>b", "ab"},
            {"a<!-- no -->b<!---->c", "abc"},
            {"a<?engine pause?>b", "ab"},
            // the written form
            {"The <sub alias='World Wide Web Consortium'>W3C</sub>'s", "The W3C's"},
            {"<sub alias='kilometers per hour'>km/h</sub>", "km/h"},
            // white space and characters
            {" \t one \r\n two  <mark name='x'/>  three ", "one two three"},
            {"<s> one </s>", "one"},
            {"AT&amp;T &lt;now&gt; &quot;x&apos;<break/>", "AT&T <now> \"x'"},
            {"&#72;&#x69;<break/>", "Hi"},
            {"a&#32;&#10;&#32;b<break/>", "a b"},
            {"toi\xC2\xA0!<break/>", "toi\xC2\xA0!"},
            {"&#x1F916;<break/>", "🤖"},
            {"<![CDATA[5 < 6 & <b>]]>", "5 < 6 & <b>"},
            {"a]]<break/>", "a]]"},
            {"x<break/>y]", "x y]"},
            {"x<break/>y\r", "x y"},
            {"<mark name='a>b'/>x<emphasis level=\">\">y</emphasis>", "xy"},
            // audio
            {"Ding<audio src='a.wav'/>dong", "Ding dong"},
            {"Press <audio src='a.wav'>the bell</audio>.", "Press the bell."},
            {"You hear <audio src='a.wav'>silence <desc>a door</desc> and more</audio>.",
             "You hear a door."},
            {"<audio src='a.wav'><desc>wind</desc><p>x</p><desc>rain</desc></audio>", "wind rain"},
            {"a<audio src='a.wav'>b<desc/>c</audio>d", "a d"},
            {"a<audio>b <audio>c<desc>d</desc>e</audio> f</audio>g", "ab d fg"},
            {"<audio>x<desc>y</desc><audio><desc>z</desc></audio></audio>", "y"},
            {"<metadata><audio>x<desc>y</desc></audio></metadata>z", "z"},
            // what is not read
            {"<meta name='a' content='b'/><metadata><x>no <y>no</y></x></metadata>Hi", "Hi"},
            {"<lexicon uri='a.pls' xml:id='a'/>Hi<tag>out = 'x'; <![CDATA[a<b]]></tag> you",
             "Hi you"},
            {"a<tag>1</tag>b<metadata><break/></metadata>c", "abc"},
            // foreign elements
            {"a<x:b>c</x:b>d", "acd"},
            {"a<x:pause ms='3'/>b<x:y><mark name='z'/></x:y>c", "a b c"},
            {"<emphasis xmlns='http://www.w3.org/2001/10/synthesis'>a</emphasis>", "a"},
            // what the robot listens to
            {"<one-of><item>tea</item><item>coffee</item></one-of>, please", "tea, please"},
            {"a<one-of>\n <item/> <item><tag>1</tag></item>\n <item>b <w>c</w></item>\n"
             " <item>d</item>\n</one-of>e",
             "a b c e"},
            {"<one-of><item><break/></item></one-of>x", "x"},
            {"I want <one-of><item>a <one-of><item/><item>big</item><item>x</item></one-of> one"
             "</item><item>y</item></one-of>",
             "I want a big one"},
            {"a<item repeat='0-1'>some</item>b", "a some b"},
            {"<item repeat='2'>very</item> <item repeat='1-'>good</item>", "very good"},
            {"a <item repeat='0'>b</item> <item repeat='0-0'>c</item> d", "a d"},
            {"<item repeat='10-20' repeat-prob='.5'>x</item>", "x"},
            {"<one-of><token>a</token><token>b</token></one-of>", "a"},
            // whole documents
            {"<speak version='1.1'>\n <p>Hi</p>\n</speak>\n", "Hi"},
            {"<?xml version='1.0' encoding='UTF-8'?>\n<!-- x -->\n<speak>Hi</speak>", "Hi"},
        });
    }

    void script() {
        QFETCH(QByteArray, script);
        QFETCH(QString, expected);
        QCOMPARE(converted(script.toStdString()), expected);
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

    // What the page about scripts says of each element.
    void documented() {
        QFETCH(QString, script);
        QFETCH(QString, expected);
        QCOMPARE(converted(script.toStdString()), expected);
    }

    void malformed_data() {
        addRows({
            {"Hello <p>you", "Line 1, column 13: The script ends while <p> is open."},
            {"<speak>\n<s>é</s", "Line 2, column 5: The script ends in the middle of a tag or "
                                 "character."},
            {"Hello <break time=", "Line 1, column 7: The script ends in the middle of a tag or "
                                   "character."},
            {"Hello <break",
             "Line 1, column 7: The script ends in the middle of a tag or character."},
            {"a<!-- b", "Line 1, column 2: The script ends in the middle of a tag or character."},
            {"é\r\né\r<![CDATA[b",
             "Line 3, column 11: The script ends in the middle of a CDATA section."},
            {"<p><s>a</p></s>", "Line 1, column 10: The end tag does not belong to the element "
                                "that is open."},
            {"a</p>", "Line 1, column 4: The end tag has no start tag."},
            {"a</script>b", "Line 1, column 2: The end tag has no start tag."},
            {"a<break/>AT&T", "Line 1, column 12: An \"&\" begins a reference here; the character "
                              "itself is written &amp;."},
            {"<p>Tom & Jerry</p>", "Line 1, column 9: An \"&\" begins a reference here; the "
                                   "character itself is written &amp;."},
            {"<p>5 < 6</p>", "Line 1, column 7: A \"<\" begins a tag here; the character itself is "
                             "written &lt;."},
            {"&nbsp;<break/>", "Line 1, column 1: The entity is not defined; only &amp;, &lt;, "
                               "&gt;, &quot; and &apos; are."},
            {"<break time=3/>", "Line 1, column 13: The character \"3\" is not allowed here."},
            {"<w a='' a=''>x</w>", "Line 1, column 9: An attribute stands twice on one element."},
            {"<p>\x01</p>", "Line 1, column 4: A control character is not allowed."},
            {"<p>\xFF</p>", "Line 1, column 4: The bytes here are not valid UTF-8, or stand for a "
                            "character that XML does not allow."},
            {"\n <!DOCTYPE speak><speak>a</speak>",
             "Line 2, column 2: A document type declaration is not allowed."},
            {"<?xml version='1.0'?>\n<!DOCTYPE speak [<!ENTITY a 'b'>]>\n<speak>&a;</speak>",
             "Line 2, column 1: A document type declaration is not allowed."},
            {"<?xml version='1.0'?><p>a", "Line 1, column 26: The script ends while <p> is open."},
            {"<?xml ?><p/>", "Line 1, column 6: The text is not well-formed XML: XML declaration "
                             "not well-formed."},
            {" <?xml version='1.0'?><p/>",
             "Line 1, column 2: The XML declaration does not stand at the very beginning."},
            {"<p><speak>a</speak></p>", "Line 1, column 4: The element <speak> stands within "
                                        "another element; it can only be the root."},
            {"<speak><speak/></speak>", "Line 1, column 8: The element <speak> stands within "
                                        "another element; it can only be the root."},
            {"<one-of>or <item>a</item></one-of>",
             "Line 1, column 9: Text stands beside the alternatives of <one-of>; each of them is "
             "an <item>."},
        });
    }

    void malformed() {
        QFETCH(QByteArray, script);
        QFETCH(QString, expected);
        QCOMPARE(converted(script.toStdString()), QString(QStringLiteral("error: ") + expected));
    }

    void badRepeat_data() {
        QTest::addColumn<QString>("repeat");
        for (const char *repeat : {"3-1", "-1", "", "1-Z", "x", "1-2-3", "1--2", " 1", "1 - 2",
                                   "+1", "0.5", "99999999999999999999", "-"})
            QTest::newRow(repeat) << QString::fromUtf8(repeat);
    }

    // In what is not read too.
    void badRepeat() {
        QFETCH(QString, repeat);
        QCOMPARE(converted("<metadata>\n<item repeat='" + repeat.toStdString() +
                           "'>a</item></metadata>"),
                 QString(QStringLiteral("error: Line 2, column 1: The repeat \"%1\" is malformed; "
                                        "it is a number, or a range such as 0-1 or 1-.")
                             .arg(repeat)));
    }

    void bounds_data() {
        QTest::addColumn<QByteArray>("start");
        QTest::addColumn<QByteArray>("end");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char *name, const std::string &start, const std::string &end,
                            const char *expected) {
            QTest::newRow(name) << QByteArray::fromStdString(start)
                                << QByteArray::fromStdString(end) << QString::fromUtf8(expected);
        };
        std::string attributes;
        for (int i = 0; i < 64; ++i)
            attributes += " a" + std::to_string(i) + "=''";
        const std::string mebibyte(std::size_t(1) << 20, 'x');
        row("64 within each other", repeated("<s>", 64) + "a", repeated("</s>", 64), "a");
        row("65 within each other", repeated("<s>", 65) + "a", repeated("</s>", 65),
            "error: Line 1, column 193: More than 64 elements stand within each other.");
        row("a million within each other", repeated("<s>", 1000000), repeated("</s>", 1000000),
            "error: Line 1, column 193: More than 64 elements stand within each other.");
        row("a million, never closed", repeated("<item>", 1000000), "",
            "error: Line 1, column 385: More than 64 elements stand within each other.");
        row("64 attributes", "<w" + attributes + ">", "a</w>", "a");
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
        QFETCH(QByteArray, start);
        QFETCH(QByteArray, end);
        QFETCH(QString, expected);
        QCOMPARE(converted(QByteArray(start + end).toStdString()), expected);
    }

    // Pieces that break off anywhere, where the script is read a part at a time.
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
