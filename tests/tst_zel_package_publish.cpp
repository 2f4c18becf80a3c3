#include "program_run.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

namespace {

const QByteArray source = R"(<?xml version="1.0" encoding="UTF-8"?>
<package format="1" uid="tea-time" version="1.0.0">
  <supportedLanguage code="en_US"/>
  <descriptionLanguage code="en_US"/>
  <texts language="en_US">
    <name>Tea&lt;break/&gt;time</name>
    <description>5 &lt; 6</description>
  </texts>
  <texts language="nl_NL">
    <name>Thee</name>
  </texts>
  <!-- kept -->
  <behavior path="pour">
    <texts language="en_US">
      <loadingResponse>&lt;s&gt;One moment.&lt;/s&gt;</loadingResponse>
    </texts>
  </behavior>
</package>
)";

const QByteArray published = R"(<?xml version="1.0" encoding="UTF-8"?>
<package format="1" uid="tea-time" version="1.0.0">
  <supportedLanguage code="en_US"/>
  <descriptionLanguage code="en_US"/>
  <texts language="en_US">
    <name>Tea time</name>
    <description>5 &lt; 6</description>
  </texts>
  <texts language="en_US-x-scrpol">
    <name>Tea&lt;break/&gt;time</name>
    <description>5 &lt; 6</description>
  </texts>
  <!-- kept -->
  <behavior path="pour">
    <texts language="en_US">
      <loadingResponse>One moment.</loadingResponse>
    </texts>
    <texts language="en_US-x-scrpol">
      <loadingResponse>&lt;s&gt;One moment.&lt;/s&gt;</loadingResponse>
    </texts>
  </behavior>
</package>
)";

} // namespace

class TestZelPackagePublish : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_dir;

    QString at(const char *name) const { return m_dir.filePath(QString::fromUtf8(name)); }

    Outcome run(const char *script) const { return runProgramInShell(script, m_dir.path()); }

private Q_SLOTS:
    void init() {
        QVERIFY(QDir(m_dir.path()).removeRecursively() && QDir().mkpath(m_dir.path()));
        write(at("tea.xml"), source);
        write(at("bad.xml"), QByteArray(source)
                                 .replace("Tea&lt;break/", "Tea&lt;break")
                                 .replace("&lt;/s", "&lt;/p"));
    }

    void publishes_data() {
        QTest::addColumn<QByteArray>("script");
        QTest::newRow("a file") << QByteArray("\"$0\" publish tea.xml -o out.xml; cat out.xml");
        QTest::newRow("standard output") << QByteArray("\"$0\" publish tea.xml");
        QTest::newRow("standard input") << QByteArray("\"$0\" publish - --output - <tea.xml");
        QTest::newRow("in place") << QByteArray("\"$0\" publish tea.xml -o tea.xml; cat tea.xml");
    }

    void publishes() {
        QFETCH(QByteArray, script);
        const Outcome outcome = run(script.constData());
        QCOMPARE(outcome.err, QByteArray());
        QCOMPARE(outcome.out, published);
        QCOMPARE(outcome.status, 0);
    }

    void malformedScripts() {
        const Outcome outcome = run(R"("$0" publish bad.xml)");
        QCOMPARE(outcome.err,
                 lines({"zel-package: bad.xml:6:5: names[en_US] stays as it is: Line 1, column 15: "
                        "The script ends while <break> is open.",
                        "zel-package: bad.xml:15:7: behaviors[pour].loadingResponses[en_US][0] "
                        "stays as it is: Line 1, column 17: The end tag does not belong to the "
                        "element that is open."}));
        QCOMPARE(outcome.status, 1);
        QVERIFY(outcome.out.contains("<description>5 &lt; 6</description>"));
    }

    void publishedBefore() {
        const Outcome outcome = run(R"("$0" publish tea.xml | "$0" publish -)");
        QCOMPARE(outcome.err, QByteArray("zel-package: -: This has been published before; the "
                                         "scripts that it keeps beside its texts are dropped.\n"));
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.out.count("break"), 0);
    }

    void troubles_data() {
        QTest::addColumn<QByteArray>("script");
        QTest::addColumn<QByteArray>("error");
        QTest::newRow("no file") << QByteArray("\"$0\" publish missing.xml -o out.xml")
                                 << QByteArray("missing.xml: The file cannot be opened: No such "
                                               "file or directory.");
        QTest::newRow("no manifest") << QByteArray("echo '<a/>' | \"$0\" publish - -o out.xml")
                                     << QByteArray("-:1:1: The root element is <a> instead of "
                                                   "<package>.");
        QTest::newRow("no folder")
            << QByteArray("\"$0\" publish tea.xml -o missing/out.xml")
            << QByteArray("missing/out.xml: The file \"missing/out.xml\" cannot be saved: No such "
                          "file or directory.");
    }

    void troubles() {
        QFETCH(QByteArray, script);
        QFETCH(QByteArray, error);
        const Outcome outcome = run(script.constData());
        QCOMPARE(outcome.err, lines({"zel-package: " + error}));
        QCOMPARE(outcome.out, QByteArray());
        QCOMPARE(outcome.status, 2);
        QVERIFY(!QFile::exists(at("out.xml")));
    }

    // A reader sees the plain texts; the scripts when asking for them.
    void showsPublished() {
        const Outcome outcome = run("\"$0\" publish tea.xml -o out.xml\n"
                                    "\"$0\" show out.xml; "
                                    "\"$0\" show out.xml --language en_US-x-scrpol | grep '<'");
        QCOMPARE(outcome.err, QByteArray());
        QVERIFY(outcome.out.startsWith("Tea time\n"));
        QVERIFY(outcome.out.contains("\n  scripts in    the same languages\n"));
        QCOMPARE(outcome.out.count("x-scrpol"), 0);
        QVERIFY(outcome.out.endsWith("  name         Tea<break/>time\n"
                                     "  description  5 < 6\n"
                                     "    loading  <s>One moment.</s>\n"));
    }

    void sampleIsValid() {
        const Outcome outcome =
            run("\"$0\" publish " ZEL_SOURCE_DIR "/examples/packages/ten-languages/manifest.xml"
                " -o out.xml && \"$0\" format --check out.xml && " ZEL_XMLLINT
                " --nonet --noout --schema " ZEL_SOURCE_DIR "/schema/manifest.xsd out.xml");
        QCOMPARE(outcome.err, QByteArray("out.xml validates\n"));
        QCOMPARE(outcome.status, 0);
    }

    void robots() {
        const Outcome outcome = run("env -u ZENTRIX_DATA_PATH \"$0\" robots");
        QCOMPARE(outcome.err, QByteArray());
        QCOMPARE(outcome.status, 0);
        QVERIFY(outcome.out.startsWith("robot               model\n"
                                       "Any robot\n"
                                       "Heron (any model)   HERON\n"
                                       "Heron H1            HERON_H1\n"));
    }

    void noRobots() {
        write(at("x"), {});
        const Outcome outcome =
            run("ZENTRIX_DATA_PATH=. QT_LOGGING_RULES='*.debug=true' \"$0\" robots");
        QCOMPARE(outcome.out, QByteArray("robot      model\nAny robot\n"));
        QCOMPARE(outcome.err,
                 lines({"zel-package: prettyRobotNames: Initializing robot family list",
                        "zel-package: prettyRobotNames: No model file found!"}));
        QCOMPARE(outcome.status, 0);
    }
};

QTEST_GUILESS_MAIN(TestZelPackagePublish)
#include "tst_zel_package_publish.moc"
