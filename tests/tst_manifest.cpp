#include <tano/manifest_reader.h>
#include <tano/package_info.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>

Q_DECLARE_METATYPE(std::string)

using Tano::BehaviorInfo;
using Tano::ManifestReader;
using Tano::PackageInfo;

namespace {

QByteArray contentOf(const QString &path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    return file.readAll();
}

QDir dataDir(const char *name) {
    return QDir(QStringLiteral(ZEL_TEST_DATA "/manifest/") + QLatin1String(name));
}

// A row for each manifest in a folder of the test data.
void addFiles(const char *folder) {
    QTest::addColumn<QString>("path");
    const QDir dir = dataDir(folder);
    const auto names = dir.entryList({QStringLiteral("*.xml")}, QDir::Files, QDir::Name);
    for (const QString &name : names) {
        if (!name.endsWith(QLatin1String(".canonical.xml")))
            QTest::newRow(qPrintable(name)) << dir.filePath(name);
    }
}

std::string inPackage(const std::string &content) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<package format=\"1\" uid=\"u\" version=\"1\">" +
           content + "</package>\n";
}

std::string repeated(const std::string &text, int count) {
    std::string result;
    for (int i = 0; i < count; ++i)
        result += text;
    return result;
}

PackageInfo loaded(const std::string &content) {
    PackageInfo package;
    if (!package.loadFromManifestContent(content))
        qFatal("%s", package.errorString().c_str());
    return package;
}

} // namespace

class TestManifest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void canonicalFilesComeBack_data() { addFiles("valid"); }

    void canonicalFilesComeBack() {
        QFETCH(QString, path);
        QFile file(path);
        PackageInfo package;
        QVERIFY2(package.loadFromManifestFile(file), package.errorString().c_str());
        QVERIFY(!file.isOpen());
        const std::string saved = package.saveToManifestContent();
        QCOMPARE(QByteArray::fromStdString(saved), contentOf(path));
        QCOMPARE(loaded(saved), package);
    }

    void otherFormsBecomeCanonical_data() { addFiles("valid/noncanonical"); }

    void otherFormsBecomeCanonical() {
        QFETCH(QString, path);
        const PackageInfo package = loaded(contentOf(path).toStdString());
        const std::string saved = package.saveToManifestContent();
        QString canonical = path;
        canonical.replace(QLatin1String(".xml"), QLatin1String(".canonical.xml"));
        QCOMPARE(QByteArray::fromStdString(saved), contentOf(canonical));
        QCOMPARE(loaded(saved), package);
    }

    void malformedFilesAreRefused_data() { addFiles("invalid"); }

    void malformedFilesAreRefused() {
        QFETCH(QString, path);
        PackageInfo package;
        package.setAuthor("as it was");
        const PackageInfo before = package;
        QFile file(path);
        QVERIFY(!package.loadFromManifestFile(file));
        QCOMPARE(package, before);

        QString expected = path;
        expected.replace(QLatin1String(".xml"), QLatin1String(".error"));
        QCOMPARE(QByteArray::fromStdString(package.errorString()), contentOf(expected).trimmed());
        QVERIFY(!package.loadFromManifestContent(contentOf(path).toStdString()));
        QCOMPARE(QByteArray::fromStdString(package.errorString()), contentOf(expected).trimmed());
    }

    void everyTruncationIsRefused() {
        const std::string whole =
            contentOf(dataDir("valid").filePath(QStringLiteral("foreign.xml"))).toStdString();
        const std::size_t rootEnd = whole.find("</package>") + std::string("</package>").size();
        for (std::size_t size = 0; size < rootEnd; ++size) {
            PackageInfo package;
            QVERIFY2(!package.loadFromManifestContent(whole.substr(0, size)),
                     std::to_string(size).c_str());
            QVERIFY2(package.errorString().rfind("Line ", 0) == 0, package.errorString().c_str());
            QCOMPARE(package, PackageInfo());
        }
    }

    void boundsHold_data() {
        QTest::addColumn<std::string>("content");
        QTest::addColumn<QString>("error");
        const auto row = [](const char *name, const std::string &content, const char *error) {
            QTest::newRow(name) << content << QString::fromUtf8(error);
        };
        const std::string deep = repeated("<a>", 1000000);
        row("a million elements deep", inPackage(deep),
            "Line 2, column 230: More than 64 elements stand within each other.");
        row("the deepest allowed", inPackage(repeated("<a>", 63) + repeated("</a>", 63)), "");
        row("one deeper", inPackage(repeated("<a>", 64) + repeated("</a>", 64)),
            "Line 2, column 230: More than 64 elements stand within each other.");
        std::string attributes;
        for (int i = 0; i < 100000; ++i)
            attributes += " a" + std::to_string(i) + "=\"\"";
        row("a hundred thousand attributes", inPackage("<a" + attributes + "/>"),
            "Line 2, column 41: The element <a> has more than 64 attributes.");
        row("a tag without end", inPackage("<a b=\"" + std::string(50000000, 'x')),
            "Line 2, column 41: A tag, comment or processing instruction is longer than 1 MiB.");
        row("a comment without end", inPackage("<!--" + std::string(50000000, 'x')),
            "Line 2, column 41: A tag, comment or processing instruction is longer than 1 MiB.");
        const std::string key = "<texts language=\"" + repeated("é", 200000) + "\"/>";
        row("a key too long to be told", inPackage(key + key),
            ("Line 2, column 200061: The element <texts language=\"" + repeated("é", 85) + " ... " +
             repeated("é", 85) + "\"> stands twice in <package>.")
                .c_str());
        row("a long text", inPackage("<author>" + std::string(5000000, 'x') + "</author>"), "");
    }

    void boundsHold() {
        QFETCH(std::string, content);
        QFETCH(QString, error);
        PackageInfo package;
        QCOMPARE(package.loadFromManifestContent(content), error.isEmpty());
        QCOMPARE(QString::fromStdString(package.errorString()), error);
    }

    void whatCannotBeReadIsNotSaved() {
        PackageInfo package;
        package.setUuid(std::string(ManifestReader::maxTagLength - 100, 'x'));
        QCOMPARE(loaded(package.saveToManifestContent()), package);
        package.setUuid(std::string(ManifestReader::maxTagLength, 'x'));
        QVERIFY(package.saveToManifestContent().empty());
        QCOMPARE(package.errorString(),
                 std::string("The package is too long to be saved: a tag holds at most 1 MiB."));
    }

    void hardTextsSurvive_data() {
        QTest::addColumn<std::string>("text");
        QTest::newRow("spaces around") << std::string("  a  ");
        QTest::newRow("line ends") << std::string("a\r\nb\rc\nd\n");
        QTest::newRow("tabs") << std::string("\ta\t\t");
        QTest::newRow("only white space") << std::string(" \n\t ");
        QTest::newRow("markup") << std::string("]]> <b>&amp;</b> <!-- --> \"'");
        QTest::newRow("no-break space and override") << std::string("\u00A0\u202Eabc\u202C");
        QTest::newRow("outside the basic plane") << std::string("\U0001F916\U0010FFFD");
        QTest::newRow("highest allowed in the basic plane") << std::string("\uFFFD\uD7FF\uE000");
        QTest::newRow("delete and C1") << std::string("\x7F\u0080\u009F\u2028");
    }

    // In every field that holds text, as element and as attribute.
    void hardTextsSurvive() {
        QFETCH(std::string, text);
        PackageInfo package;
        package.setUuid(text);
        package.setVersion(text);
        package.setTypeVersion(text);
        package.setInstaller(text);
        package.setAuthor(text);
        package.setOrganization(text);
        package.setDate(text);
        package.setChannel(text);
        package.setPath(text);
        package.addSupportedLanguage(text);
        package.addDescriptionLanguage(text);
        package.setName(text, text);
        package.setDescription(text, "en_US");
        package.addRobotRequirement({text, text, text, text, text});
        package.addBrioRequirement({text, text});
        BehaviorInfo behavior;
        behavior.setPath(text);
        behavior.setNature(text);
        behavior.addPermission(text);
        behavior.addPermission({});
        behavior.addCondition(text, text);
        behavior.addCondition({}, text);
        behavior.setName(text, text);
        behavior.setDescription(text, "en_US");
        for (const std::string &value : {std::string(), text, text, std::string()}) {
            behavior.addTag(value, text);
            behavior.addTriggerSentence(value, text);
            behavior.addLoadingResponse(value, text);
        }
        package.addBehavior(behavior);
        package.addBehavior(behavior);
        Tano::DialogInfo dialog;
        dialog.setTopicName(text);
        dialog.setTypeVersion(text);
        dialog.setTopic(text, text);
        package.addDialog(dialog);
        package.addService({text, text, true, {{text, text}, {"empty", ""}}});

        const std::string saved = package.saveToManifestContent();
        QCOMPARE(package.errorString(), std::string());
        QCOMPARE(loaded(saved), package);
        QCOMPARE(loaded(saved).saveToManifestContent(), saved);
    }

    void emptyTextsAreNoTexts() {
        PackageInfo package = loaded(inPackage(""));
        const std::string before = package.saveToManifestContent();
        package.setName("x", "fr_FR");
        QVERIFY(package.saveToManifestContent() != before);
        package.setName("", "fr_FR");
        QCOMPARE(package.saveToManifestContent(), before);
    }

    void whatXmlCannotHoldIsNotSaved_data() {
        QTest::addColumn<std::string>("text");
        QTest::addColumn<QString>("reason");
        const auto control = [](const char *byte) {
            return QStringLiteral("holds the control character %1, which XML cannot hold.")
                .arg(QLatin1String(byte));
        };
        const auto noCharacter = [](const char *byte) {
            return QStringLiteral("holds the byte %1, which starts no character that XML can hold.")
                .arg(QLatin1String(byte));
        };
        QTest::newRow("NUL") << std::string("a\0b", 3) << control("0x00");
        QTest::newRow("control") << std::string("\x1B[m") << control("0x1B");
        QTest::newRow("surrogate") << std::string("a\xED\xA0\x80") << noCharacter("0xED");
        QTest::newRow("U+FFFE") << std::string("\xEF\xBF\xBE") << noCharacter("0xEF");
        QTest::newRow("overlong") << std::string("\xC0\x80") << noCharacter("0xC0");
        QTest::newRow("overlong of three") << std::string("\xE0\x80\x80") << noCharacter("0xE0");
        QTest::newRow("beyond Unicode") << std::string("\xF4\x90\x80\x80") << noCharacter("0xF4");
        QTest::newRow("cut short") << std::string("\xE2\x82") << noCharacter("0xE2");
        QTest::newRow("continuation alone") << std::string("\x80") << noCharacter("0x80");
    }

    void whatXmlCannotHoldIsNotSaved() {
        QFETCH(std::string, text);
        QFETCH(QString, reason);
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("p.xml"));
        PackageInfo package;
        QVERIFY(package.saveToManifestFile(path.toStdString()));
        const QByteArray before = contentOf(path);

        BehaviorInfo behavior;
        behavior.setPath("greet");
        behavior.addTag("fine", "fr_FR");
        behavior.addTag(text, "fr_FR");
        package.addBehavior(behavior);
        QVERIFY(!package.saveToManifestFile(path.toStdString()));
        QCOMPARE(QString::fromStdString(package.errorString()),
                 QStringLiteral("The field behaviors[greet].tags[fr_FR][1] ") + reason);
        QCOMPARE(contentOf(path), before);
        QCOMPARE(package.saveToManifestContent(), std::string());
    }

    void keptThingsFollowTheirNeighbours() {
        PackageInfo package = loaded(
            inPackage("<!--L1--><supportedLanguage code=\"en_US\" x=\"1\"/>"
                      "<supportedLanguage code=\"fr_FR\"/>"
                      "<!--R1--><robotRequirement model=\"A\" x=\"a\"/>"
                      "<!--R2--><robotRequirement model=\"B\" x=\"b\"/>"
                      "<!--R3--><robotRequirement model=\"C\" x=\"c\"/>"
                      "<!--B1--><behavior path=\"one\"><texts language=\"en_US\">"
                      "<tag>t1</tag><!--T2--><tag x=\"2\">t2</tag><!--end--></texts></behavior>"
                      "<!--B2--><behavior path=\"two\"/>"
                      "<!--S1--><service name=\"s\" x=\"s\"/><?last?>"));

        package.removeSupportedLanguage("en_US");
        package.addSupportedLanguage("en_US");
        package.clearRobotRequirements(); // B gets an upper bound, C is removed
        package.addRobotRequirement({"A", "", "", "", ""});
        package.addRobotRequirement({"B", "", "", "", "2.0"});
        BehaviorInfo first = package.behaviors()[0];
        first.insertTag("t0", "en_US", 0);
        first.updateTag("t2", "T2", "en_US");
        first.setPath("renamed");
        const BehaviorInfo second = package.behaviors()[1];
        package.clearBehaviors();
        package.addBehavior(first);
        package.addBehavior(BehaviorInfo());
        package.addBehavior(second);
        package.clearServices();
        package.addService({"s", "run", false, {}});

        const QString saved = QString::fromStdString(package.saveToManifestContent());
        QCOMPARE(saved.split(QLatin1Char(10)),
                 QStringLiteral(R"(<?xml version="1.0" encoding="UTF-8"?>
<package format="1" uid="u" version="1">
  <supportedLanguage code="fr_FR"/>
  <!--L1-->
  <supportedLanguage code="en_US" x="1"/>
  <!--R1-->
  <robotRequirement model="A" x="a"/>
  <!--R2-->
  <robotRequirement model="B" maxBodyVersion="2.0" x="b"/>
  <!--R3-->
  <!--B1-->
  <behavior path="renamed">
    <texts language="en_US">
      <tag>t0</tag>
      <tag>t1</tag>
      <!--T2-->
      <tag x="2">T2</tag>
      <!--end-->
    </texts>
  </behavior>
  <behavior path=""/>
  <!--B2-->
  <behavior path="two"/>
  <!--S1-->
  <service name="s" x="s">
    <execStart>run</execStart>
  </service>
  <?last?>
</package>
)")
                     .split(QLatin1Char(10)));
    }

    void equalityMindsWhatIsKept() {
        const std::string plain = inPackage("<behavior path=\"b\"/><dialog topicName=\"d\"/>");
        for (const char *content :
             {"<!--c--><behavior path=\"b\"/><dialog topicName=\"d\"/>",
              "<behavior path=\"b\" x=\"\"/><dialog topicName=\"d\"/>",
              "<behavior path=\"b\"/><dialog topicName=\"d\"><x/></dialog>"}) {
            QVERIFY(loaded(plain) != loaded(inPackage(content)));
            QCOMPARE(loaded(inPackage(content)), loaded(inPackage(content)));
        }
    }

    void fieldsHavePlaces_data() {
        QTest::addColumn<QString>("path");
        QTest::addColumn<int>("line");
        const auto row = [](const char *path, int line) {
            QTest::newRow(*path ? path : "(root)") << QString::fromLatin1(path) << line;
        };
        row("", 1);
        row("uid", 1);
        row("author", 2);
        row("organization", 1);
        row("names[fr_FR]", 4);
        row("descriptions[fr_FR]", 3);
        row("names[de_DE]", 1);
        row("robotRequirements[1].maxBodyVersion", 7);
        row("behaviors[greet]", 8);
        row("behaviors[greet].names[en_US]", 8);
        row("behaviors[greet].conditions[launch][1]", 10);
        row("behaviors[greet].triggerSentences[ja_JP]", 11);
        row("behaviors[greet].tags[ja_JP][1]", 13);
        row("services[s].properties[p]", 17);
    }

    void fieldsHavePlaces() {
        QFETCH(QString, path);
        QFETCH(int, line);
        const std::string manifest = R"(<package format="1" uid="u" version="1">
  <author>A</author>
  <texts language="fr_FR">
    <name>N</name>
  </texts>
  <robotRequirement model="A"/>
  <robotRequirement model="B"/>
  <behavior path="greet">
    <condition purpose="launch">a</condition>
    <condition purpose="launch">b</condition>
    <texts language="ja_JP">
      <tag>a</tag>
      <tag>b</tag>
    </texts>
  </behavior>
  <service name="s">
    <property name="p">v</property>
  </service>
</package>)";
        ManifestReader reader(ManifestReader::Positions::Keep);
        PackageInfo package;
        QVERIFY(reader.readContent(manifest, package));
        QCOMPARE(int(reader.position(path.toStdString()).line), line);
    }

    void failedSavesLeaveTheOldFile() {
        QTemporaryDir dir;
        PackageInfo package;
        package.setAuthor("Ann");
        const auto refuses = [&](const QString &path, const char *reason) {
            return !package.saveToManifestFile(path.toStdString()) &&
                   QString::fromStdString(package.errorString()) ==
                       QStringLiteral("The file \"%1\" cannot be saved: %2.")
                           .arg(path, QLatin1String(reason));
        };
        const QString fifo = dir.filePath(QStringLiteral("fifo"));
        QCOMPARE(mkfifo(qPrintable(fifo), 0600), 0);
        QVERIFY(refuses(fifo, "it is not a regular file"));
        QVERIFY(refuses(dir.path(), "it is not a regular file"));
        QVERIFY(refuses(dir.filePath(QStringLiteral("no/such/folder.xml")),
                        "No such file or directory"));
        const QString dangling = dir.filePath(QStringLiteral("dangling"));
        QVERIFY(QFile::link(dir.filePath(QStringLiteral("nowhere")), dangling));
        QVERIFY(refuses(dangling, "it is a link to a file that is not there"));

        // a disk that fills up in the middle
        const QString path = dir.filePath(QStringLiteral("p.xml"));
        QVERIFY(package.saveToManifestFile(path.toStdString()));
        const QByteArray before = contentOf(path);
        package.setAuthor(std::string(100000, 'x'));
        std::signal(SIGXFSZ, SIG_IGN);
        rlimit limit{};
        getrlimit(RLIMIT_FSIZE, &limit);
        const rlimit small{1000, limit.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
        const bool refused = refuses(path, "File too large");
        setrlimit(RLIMIT_FSIZE, &limit);
        QVERIFY2(refused, package.errorString().c_str());
        QCOMPARE(contentOf(path), before);
        QCOMPARE(QDir(dir.path()).entryList(QDir::Files | QDir::System | QDir::Hidden),
                 (QStringList{QStringLiteral("dangling"), QStringLiteral("fifo"),
                              QStringLiteral("p.xml")}));
        QVERIFY(package.saveToManifestFile(path.toStdString()));
        QCOMPARE(package.errorString(), std::string());
    }

    void linksAndOpenFilesAreWrittenThrough() {
        QTemporaryDir dir;
        const QString target = dir.filePath(QStringLiteral("target.xml"));
        const QString link = dir.filePath(QStringLiteral("link.xml"));
        PackageInfo package;
        package.setAuthor("a long author, so that the second text is shorter");
        QVERIFY(package.saveToManifestFile(target.toStdString()));
        QVERIFY(QFile::link(target, link));

        package.setAuthor("short");
        QVERIFY(package.saveToManifestFile(link.toStdString()));
        QVERIFY(QFileInfo(link).isSymLink());
        QCOMPARE(contentOf(target).toStdString(), package.saveToManifestContent());

        package.setAuthor("");
        QFile file(target);
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(package.saveToManifestFile(file));
        QVERIFY(file.isOpen());
        QCOMPARE(contentOf(target).toStdString(), package.saveToManifestContent());

        QFile readOnly(target);
        QVERIFY(readOnly.open(QIODevice::ReadOnly));
        QVERIFY(!package.saveToManifestFile(readOnly));
        QVERIFY(package.errorString().find("it is not open for writing") != std::string::npos);
    }

    void unreadableFilesAreExplained() {
        PackageInfo package;
        QFile missing(QStringLiteral("/no/such/manifest.xml"));
        QVERIFY(!package.loadFromManifestFile(missing));
        QCOMPARE(package.errorString(),
                 std::string("The file cannot be opened: No such file or directory."));
        QFile folder(QStringLiteral("/"));
        QVERIFY(!package.loadFromManifestFile(folder));
        QVERIFY(!package.errorString().empty());
    }
};

QTEST_GUILESS_MAIN(TestManifest)
#include "tst_manifest.moc"
