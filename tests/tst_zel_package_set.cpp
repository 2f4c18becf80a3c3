#include "program_run.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

namespace {

// The program over a manifest on standard input; arguments stand on a line each.
Outcome set(const QByteArray &manifest, const QString &arguments,
            const QString &file = QStringLiteral("-")) {
    return runProgram(QStringList{QStringLiteral("set"), file} + arguments.split(u'\n'),
                      QDir::currentPath(), manifest);
}

constexpr char manifest[] = R"(<?xml version="1.0" encoding="UTF-8"?>
<!-- kept -->
<package format="1" uid="tea" version="1.0" x="1">
  <author>Ines</author>
  <supportedLanguage code="en_US"/>
  <descriptionLanguage code="en_US"/>
  <texts language="en_US">
    <name>Tea</name>
  </texts>
  <!-- kept too -->
  <robotRequirement model="TERN" minBodyVersion="2.1"/>
  <behavior path="a=b]c.d" nature="solitary">
    <permission>camera</permission>
    <condition purpose="launch">warm</condition>
    <texts language="en_US">
      <tag>x</tag>
      <tag>y</tag>
    </texts>
  </behavior>
  <behavior path="pour"/>
  <dialog topicName="talk">
    <topic language="en_US">talk.top</topic>
  </dialog>
  <service name="clock">
    <execStart>bin/clock</execStart>
  </service>
  <future/>
</package>
)";

// What a unified diff makes of a text.
QByteArray patched(const QByteArray &before, const QByteArray &diff) {
    const QByteArrayList old = before.split('\n');
    QByteArrayList lines = diff.split('\n').mid(2);
    QByteArrayList result;
    int at = 0;
    bool isEnded = true;
    for (int i = 0; i < lines.size() - 1; ++i) {
        const QByteArray line = lines.at(i);
        if (line.startsWith("@@ -")) {
            const int begin = line.mid(4).split(' ').constFirst().split(',').constFirst().toInt();
            while (at < begin - 1)
                result += old.at(at++);
        } else if (line.startsWith('\\')) {
            isEnded = !lines.at(i - 1).startsWith('+');
        } else {
            if (!line.startsWith('+') && old.value(at++) != line.mid(1))
                return "does not fit: " + line;
            if (!line.startsWith('-'))
                result += line.mid(1);
        }
    }
    while (at < old.size() - (before.endsWith('\n') ? 1 : 0))
        result += old.at(at++);
    return result.join('\n') + (isEnded ? "\n" : "");
}

// The lines of a diff, below its head, that begin with one of the marks.
QStringList marked(const QByteArray &diff, const QString &marks) {
    QStringList result;
    const QStringList all = QString::fromUtf8(diff).split(u'\n').mid(2);
    for (const QString &line : all) {
        if (!line.isEmpty() && marks.contains(line.front()))
            result += line;
    }
    return result;
}

} // namespace

class TestZelPackageSet : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void sets_data();
    void sets();
    void refuses_data();
    void refuses();
    void isAllOrNothing();
    void writesTheFile();
    void differsInOneLine();
    void diffsApply_data();
    void diffsApply();
    void diffLayout();
};

// Arguments, then the lines of the manifest that go ("-") and that come ("+"), in order.
void TestZelPackageSet::sets_data() {
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("changes");
    const auto row = [](const char *arguments, const char *changes) {
        QTest::newRow(arguments) << QString::fromUtf8(arguments) << QString::fromUtf8(changes);
    };
    row("author=Ana = 茶", "-  <author>Ines</author>\n+  <author>Ana = 茶</author>");
    row("author=", "-  <author>Ines</author>");
    row("author=Ines", "");
    row("version=1.2", "-<package format=\"1\" uid=\"tea\" version=\"1.0\" x=\"1\">\n"
                       "+<package format=\"1\" uid=\"tea\" version=\"1.2.0\" x=\"1\">");
    row("version=1.0.0", "-<package format=\"1\" uid=\"tea\" version=\"1.0\" x=\"1\">\n"
                         "+<package format=\"1\" uid=\"tea\" version=\"1.0.0\" x=\"1\">");
    row("uid=t\nuid=tee", "-<package format=\"1\" uid=\"tea\" version=\"1.0\" x=\"1\">\n"
                          "+<package format=\"1\" uid=\"tee\" version=\"1.0\" x=\"1\">");
    row("channel=beta\npath=p\ndate=d\norganization=o\ninstaller=i",
        "+  <installer>i</installer>\n+  <organization>o</organization>\n+  <date>d</date>\n"
        "+  <channel>beta</channel>\n+  <path>p</path>");
    row("names[en_US]=Chai\ndescriptions[en_US]=Hot",
        "-    <name>Tea</name>\n+    <name>Chai</name>\n+    <description>Hot</description>");
    row("supportedLanguages[+]=fr_FR\ndescriptionLanguages[en_US]=",
        "-  <descriptionLanguage code=\"en_US\"/>\n+  <supportedLanguage code=\"fr_FR\"/>\n"
        "+  <descriptionLanguage code=\"fr_FR\"/>");
    row("robotRequirements[0].maxBodyVersion=3\nrobotRequirements[0].minBodyVersion=",
        "-  <robotRequirement model=\"TERN\" minBodyVersion=\"2.1\"/>\n"
        "+  <robotRequirement model=\"TERN\" maxBodyVersion=\"3\"/>");
    row("robotRequirements[+].model=HERON\nrobotRequirements[1].minHeadVersion=1\n"
        "robotRequirements[1].maxHeadVersion=2\nbrioRequirements[+].minVersion=2.5\n"
        "brioRequirements[0].maxVersion=3",
        "+  <robotRequirement model=\"HERON\" minHeadVersion=\"1\" maxHeadVersion=\"2\"/>\n"
        "+  <brioRequirement minVersion=\"2.5\" maxVersion=\"3\"/>");
    row("behaviors[pour].path=serve\nbehaviors[serve].userRequestable=true",
        "-  <behavior path=\"pour\"/>\n+  <behavior path=\"serve\" userRequestable=\"true\"/>");
    row("behaviors[pour].userRequestable=false", "");
    row("behaviors[a=b]c.d].nature=interactive",
        "-  <behavior path=\"a=b]c.d\" nature=\"solitary\">\n"
        "+  <behavior path=\"a=b]c.d\" nature=\"interactive\">");
    row("behaviors[a=b]c.d].permissions[+]=speech\nbehaviors[a=b]c.d].permissions[camera]=",
        "-    <permission>camera</permission>\n+    <permission>speech</permission>");
    row("behaviors[a=b]c.d].conditions[launch][0]=hot\nbehaviors[a=b]c.d].conditions[x][+]=cold",
        "-    <condition purpose=\"launch\">warm</condition>\n"
        "+    <condition purpose=\"launch\">hot</condition>\n"
        "+    <condition purpose=\"x\">cold</condition>");
    row("behaviors[a=b]c.d].tags[en_US][+]=z\nbehaviors[a=b]c.d].tags[en_US][0]=",
        "-      <tag>x</tag>\n+      <tag>z</tag>");
    row("behaviors[a=b]c.d].tags[en_US][1]=z\nbehaviors[a=b]c.d].names[en_US]=n",
        "+      <name>n</name>\n-      <tag>y</tag>\n+      <tag>z</tag>");
    row("behaviors[a=b]c.d].triggerSentences[en_US][+]=t\n"
        "behaviors[a=b]c.d].loadingResponses[en_US][+]=l\n"
        "behaviors[a=b]c.d].descriptions[en_US]=d",
        "+      <description>d</description>\n+      <triggerSentence>t</triggerSentence>\n"
        "+      <loadingResponse>l</loadingResponse>");
    row("dialogs[talk].topicName=chat\ndialogs[chat].typeVersion=2\ndialogs[chat].topics[en_US]=",
        "-  <dialog topicName=\"talk\">\n-    <topic language=\"en_US\">talk.top</topic>\n"
        "-  </dialog>\n+  <dialog topicName=\"chat\" typeVersion=\"2\"/>");
    row("dialogs[talk].topics[fr_FR]=f.top", "+    <topic language=\"fr_FR\">f.top</topic>");
    row("services[clock].name=bell\nservices[bell].execStart=bin/bell\nservices[bell].autoRun=true",
        "-  <service name=\"clock\">\n-    <execStart>bin/clock</execStart>\n"
        "+  <service name=\"bell\" autoRun=\"true\">\n+    <execStart>bin/bell</execStart>");
}

void TestZelPackageSet::sets() {
    QFETCH(QString, arguments);
    QFETCH(QString, changes);
    const Outcome diff = set(manifest, arguments % QStringLiteral("\n--dry-run"));
    QCOMPARE(diff.err, QByteArray());
    QCOMPARE(diff.status, 0);
    QCOMPARE(marked(diff.out, QStringLiteral("-+")).join(u'\n'), changes);

    const Outcome outcome = set(manifest, arguments);
    QCOMPARE(outcome.status, 0);
    QCOMPARE(diff.out.isEmpty() ? QByteArray(manifest) : patched(manifest, diff.out), outcome.out);
}

void TestZelPackageSet::refuses_data() {
    QTest::addColumn<QString>("argument");
    QTest::addColumn<QString>("error");
    const auto row = [](const char *argument, const char *error) {
        QTest::newRow(argument) << QString::fromUtf8(argument) << QString::fromUtf8(error);
    };
    row("author",
        "'author' is not of the form FIELD=VALUE, as in author=Ines or names[en_US]=Tea.");
    row("names[en_US=x",
        "'names[en_US=x' is not of the form FIELD=VALUE, as in author=Ines or names[en_US]=Tea.");
    row("autor=x", "autor: There is no field 'autor'; did you mean 'author'?");
    row("dialogs[talk].zzz=x", "dialogs[talk].zzz: There is no field 'zzz'; the fields are "
                               "topicName, typeVersion, topics.");
    row("robotRequirements[0].maxBody=2", "robotRequirements[0].maxBody: There is no field "
                                          "'maxBody'; did you mean 'maxBodyVersion'?");
    row("names=x", "names: It is written 'names[CODE]'.");
    row("author[en_US]=x", "author[en_US]: It is written 'author'.");
    row("author.name=x", "author.name: It is written 'author'.");
    row("behaviors[pour]=x", "behaviors[pour]: It is written 'behaviors[PATH].FIELD'.");
    row("behaviors[pour].tags[en_US]=x",
        "behaviors[pour].tags[en_US]: It is written 'tags[CODE][N]'.");
    row("behaviors[por].nature=x",
        "behaviors[por].nature: The package has no 'por'; did you mean 'pour'?");
    row("services[zzz].name=x", "services[zzz].name: The package has no 'zzz'; there are clock.");
    row("names[fr-FR]=x", "'fr-FR' is not a language code; did you mean fr_FR?");
    row("version=", "version: A package has a version.");
    row("version=1.x",
        "version: '1.x' is not a version: numbers with dots between them, as in 2.1.");
    row("robotRequirements[1].model=x", "robotRequirements[1].model: The list has no item '1'; "
                                        "there are 0 to 0, and [+] appends one.");
    row("brioRequirements[0].minVersion=1", "brioRequirements[0].minVersion: The list has no item "
                                            "'0'; it is empty, and [+] appends to it.");
    row("behaviors[a=b]c.d].tags[en_US][-1]=z",
        "behaviors[a=b]c.d].tags[en_US][-1]: The list has no "
        "item '-1'; there are 0 to 1, and [+] appends one.");
    row("behaviors[a=b]c.d].tags[en_US][+]=x",
        "behaviors[a=b]c.d].tags[en_US][+]: The list has 'x' already.");
    row("behaviors[a=b]c.d].tags[en_US][1]=x",
        "behaviors[a=b]c.d].tags[en_US][1]: The list has 'x' already.");
    row("behaviors[pour].tags[en_US][+]=", "behaviors[pour].tags[en_US][+]: It cannot be empty.");
    row("behaviors[pour].path=", "behaviors[pour].path: It cannot be empty.");
    row("behaviors[pour].path=a=b]c.d", "behaviors[pour].path: The package has 'a=b]c.d' already.");
    row("behaviors[pour].userRequestable=yes",
        "behaviors[pour].userRequestable: 'yes' is neither true nor false.");
    row("behaviors[pour].permissions[camera]=",
        "behaviors[pour].permissions[camera]: The list does not have 'camera'.");
    row("behaviors[pour].permissions[camera]=x", "behaviors[pour].permissions[camera]: [+]=NAME "
                                                 "adds a permission, [NAME]= removes it.");
    row("supportedLanguages[+]=en_US", "supportedLanguages[+]: The list has 'en_US' already.");
    row("supportedLanguages[fr_FR]=", "supportedLanguages[fr_FR]: The list does not have 'fr_FR'.");
    row("author=\x01",
        "-: The field author holds the control character 0x01, which XML cannot hold.");
}

void TestZelPackageSet::refuses() {
    QFETCH(QString, argument);
    QFETCH(QString, error);
    const Outcome outcome = set(manifest, argument);
    QCOMPARE(QString::fromUtf8(outcome.err),
             QString(QStringLiteral("zel-package: ") % error % u'\n'));
    QCOMPARE(outcome.out, QByteArray());
    QCOMPARE(outcome.status, 2);
}

void TestZelPackageSet::isAllOrNothing() {
    const QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("m.xml"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(manifest);
    file.close();
    const Outcome outcome = set({}, QStringLiteral("author=x\nautor=y\nuid=z\nnam=y"), path);
    QCOMPARE(outcome.err,
             QByteArray("zel-package: autor: There is no field 'autor'; did you mean 'author'?\n"
                        "zel-package: nam: There is no field 'nam'; did you mean 'names'?\n"));
    QCOMPARE(outcome.status, 2);
    QCOMPARE(contentOf(path), QByteArray(manifest));

    QCOMPARE(set({}, QStringLiteral("author=x\n--dry-run"), path).status, 0);
    QCOMPARE(contentOf(path), QByteArray(manifest));
}

void TestZelPackageSet::writesTheFile() {
    const QTemporaryDir directory;
    const QString path = directory.filePath(QStringLiteral("m.xml"));
    QVERIFY(QFile::copy(
        QStringLiteral(ZEL_SOURCE_DIR "/examples/packages/ten-languages/manifest.xml"), path));
    const QByteArray before = contentOf(path);
    const Outcome outcome = set({}, QStringLiteral("author=Ana"), path);
    QCOMPARE(outcome.err, QByteArray());
    QCOMPARE(outcome.out, QByteArray());
    QCOMPARE(outcome.status, 0);
    QCOMPARE(contentOf(path), QByteArray(before).replace("Ines Moreau", "Ana"));
}

void TestZelPackageSet::differsInOneLine() {
    const Outcome outcome =
        set({}, QStringLiteral("author=Ana Ruiz\n--dry-run"),
            QStringLiteral(ZEL_SOURCE_DIR "/examples/packages/ten-languages/manifest.xml"));
    QCOMPARE(marked(outcome.out, QStringLiteral("@-+\\")),
             QStringList({QStringLiteral("@@ -2,7 +2,7 @@"),
                          QStringLiteral("-  <author>Ines Moreau</author>"),
                          QStringLiteral("+  <author>Ana Ruiz</author>")}));
    QCOMPARE(outcome.out.count('\n'), 3 + 8);
}

void TestZelPackageSet::diffsApply_data() {
    QTest::addColumn<QByteArray>("before");
    const QDir directory(QStringLiteral(ZEL_TEST_DATA "/manifest/valid/noncanonical"));
    const auto files = directory.entryInfoList({QStringLiteral("*.xml")});
    for (const QFileInfo &file : files) {
        if (!file.fileName().startsWith(QLatin1String("newer-")))
            QTest::newRow(qPrintable(file.fileName())) << contentOf(file.filePath());
    }
    // More differences than the search goes into.
    const QByteArray large =
        contentOf(QStringLiteral(ZEL_SOURCE_DIR "/examples/packages/ten-languages/manifest.xml"));
    QTest::newRow("every line") << QByteArray(large).replace("\n", "\r\n");
    QTest::newRow("every other line") << QByteArray(large).replace("</tag>\n", "</tag> \n");
}

void TestZelPackageSet::diffsApply() {
    QFETCH(QByteArray, before);
    const QByteArray diff = set(before, QStringLiteral("author=x\n--dry-run")).out;
    QCOMPARE(patched(before, diff), set(before, QStringLiteral("author=x")).out);
}

// As diff -u lays it out: contexts that touch make one hunk, those that do not make two.
void TestZelPackageSet::diffLayout() {
    const QByteArray head = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
    const QByteArray package = "<package format=\"1\" uid=\"u\" version=\"1\">\n";
    QByteArray languages;
    for (int i = 0; i < 6; ++i)
        languages += "  <supportedLanguage code=\"a" + QByteArray::number(i) + "\"/>\n";
    const auto hunks = [&](const QByteArray &text) {
        const QByteArray diff = set(text, QStringLiteral("author=x\n--dry-run")).out;
        return marked(diff, QStringLiteral("@\\")).join(u'|');
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

QTEST_GUILESS_MAIN(TestZelPackageSet)
#include "tst_zel_package_set.moc"
