#include "golden.h"

#include <tano/manifest_reader.h>
#include <tano/package_info.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <QTest>

#include <sys/stat.h>

Q_DECLARE_METATYPE(std::string)

using Tano::BehaviorInfo;
using Tano::DialogInfo;
using Tano::ManifestReader;
using Tano::PackageInfo;

namespace {

QByteArray contentOf(const QString &path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    return file.readAll();
}

QString pathOf(const char *name) {
    return QStringLiteral(ZEL_TEST_DATA "/manifest/") + QLatin1String(name);
}

QByteArray testData(const char *name) {
    return contentOf(pathOf(name));
}

// Adds a row for each manifest in a folder of the test data.
void addFiles(const char *folder) {
    const QDir dir(pathOf(folder));
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

std::string repeated(const char *text, int count) {
    return QByteArray(text).repeated(count).toStdString();
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
    void savedInCanonicalForm_data() {
        QTest::addColumn<QString>("path");
        addFiles("valid");
        addFiles("valid/noncanonical");
    }

    // Manifests in another form have the canonical one beside them.
    void savedInCanonicalForm() {
        QFETCH(QString, path);
        QFile file(path);
        PackageInfo package;
        QVERIFY2(package.loadFromManifestFile(file), package.errorString().c_str());
        QVERIFY(!file.isOpen());
        const std::string saved = package.saveToManifestContent();
        QString canonical = path;
        canonical.replace(QLatin1String(".xml"), QLatin1String(".canonical.xml"));
        COMPARE_WITH_GOLDEN(path.contains(QLatin1String("/noncanonical/")) ? canonical : path,
                            QByteArray::fromStdString(saved));
        QCOMPARE(loaded(saved), package);
    }

    void malformedFilesAreRefused_data() {
        QTest::addColumn<QString>("path");
        addFiles("invalid");
    }

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
        const std::string error = package.errorString();
        COMPARE_WITH_GOLDEN(expected, QByteArray::fromStdString(error) + '\n');
        QVERIFY(!package.loadFromManifestContent(contentOf(path).toStdString()));
        QCOMPARE(package.errorString(), error);
        QVERIFY(package.loadFromManifestContent(inPackage("")));
        QCOMPARE(package.errorString(), std::string());
    }

    void everyTruncationIsRefused() {
        const std::string whole = testData("valid/foreign.xml").toStdString();
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
            "Line 2, column 230: More than 64 elements are nested.");
        row("the deepest allowed", inPackage(repeated("<a>", 63) + repeated("</a>", 63)), "");
        row("one deeper", inPackage(repeated("<a>", 64) + repeated("</a>", 64)),
            "Line 2, column 230: More than 64 elements are nested.");
        std::string attributes;
        for (int i = 0; i < 100000; ++i)
            attributes += " a" + std::to_string(i) + "=\"\"";
        row("a hundred thousand attributes", inPackage("<a" + attributes + "/>"),
            "Line 2, column 41: The element <a> has more than 64 attributes.");
        row("a tag without end", inPackage("<a b=\"" + std::string(50000000, 'x')),
            "Line 2, column 41: A tag, comment or processing instruction is longer than 1 MiB.");
        row("a comment without end", inPackage("<!--" + std::string(50000000, 'x')),
            "Line 2, column 41: A tag, comment or processing instruction is longer than 1 MiB.");
        const auto language = [](int size) {
            return "<texts language=\"" + std::string(std::size_t(size), 'x') + "\"/>";
        };
        row("the longest key", inPackage(language(4096)), "");
        row("a longer key", inPackage("\n" + language(4097)),
            "Line 3, column 1: The attribute \"language\" of <texts> is longer than 4 KiB.");
        row("a value too long for a sentence",
            inPackage("<service name=\"s\" autoRun=\"" + repeated("é", 200000) + "\"/>"),
            ("Line 2, column 41: The attribute \"autoRun\" of <service> is \"" + repeated("é", 79) +
             " ... " + repeated("é", 84) + "\" instead of \"true\" or \"false\".")
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

    // The memory of what was read is released meanwhile.
    void longManifestsAreReadWhole() {
        PackageInfo package;
        package.setUuid("u");
        for (int i = 0; i < 150; ++i)
            package.addService(
                {std::to_string(i), std::string(70000, char('a' + i % 26)), false, {}});
        std::string content = package.saveToManifestContent();
        QVERIFY(content.size() > (std::size_t(8) << 20));
        QCOMPARE(loaded(content), package);
        content.insert(content.find("</package>"), "  <service/>\n");
        QVERIFY(!package.loadFromManifestContent(content));
        QCOMPARE(
            package.errorString(),
            std::string("Line 453, column 3: The element <service> lacks the attribute \"name\"."));
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

    void longKeysAreNotSaved() {
        const std::string key(ManifestReader::maxKeyLength, 'x');
        DialogInfo dialog;
        dialog.setTopic(key, "t");
        PackageInfo package;
        package.addDialog(dialog);
        QCOMPARE(loaded(package.saveToManifestContent()), package);
        dialog.setTopic(key + "x", "t");
        package.addDialog(dialog);
        QVERIFY(package.saveToManifestContent().empty());
        const QString error = QString::fromStdString(package.errorString());
        QVERIFY2(error.startsWith(QLatin1String("The field dialogs[][1].topics[xxx")) &&
                     error.endsWith(
                         QLatin1String("xxx] cannot be saved: its key is longer than 4 KiB.")),
                 qPrintable(error));
    }

    void hardTextsSurvive_data() {
        QTest::addColumn<QString>("text");
        const auto row = [](const char *name, const char *text) {
            QTest::newRow(name) << QString::fromUtf8(text);
        };
        row("spaces around", "  a  ");
        row("line ends", "a\r\nb\rc\nd\n");
        row("tabs", "\ta\t\t");
        row("only white space", " \n\t ");
        row("markup", "]]> <b>&amp;</b> <!-- --> \"'");
        row("no-break space and override", "\u00A0\u202Eabc\u202C");
        row("outside the basic plane", "\U0001F916\U0010FFFD");
        row("highest allowed in the basic plane", "\uFFFD\uD7FF\uE000");
        row("delete and C1", "\x7F\u0080\u009F\u2028");
    }

    // In all text fields, as elements and attributes.
    void hardTextsSurvive() {
        QFETCH(QString, text);
        QString references;
        for (const uint character : text.toUcs4())
            references += QStringLiteral("&#%1;").arg(character);
        const QByteArray manifest =
            testData("text-everywhere.xml").replace("TEXT", references.toUtf8());
        const PackageInfo package = loaded(manifest.toStdString());
        QCOMPARE(package.uuid(), text.toStdString());
        QCOMPARE(package.author(), text.toStdString());
        const std::string saved = package.saveToManifestContent();
        QCOMPARE(package.errorString(), std::string());
        QCOMPARE(loaded(saved), package);
        QCOMPARE(loaded(saved).saveToManifestContent(), saved);
    }

    void whatXmlCannotHoldIsNotSaved_data() {
        QTest::addColumn<std::string>("text");
        QTest::addColumn<QString>("reason");
        const QString control =
            QStringLiteral("contains the control character %1, which XML cannot represent.");
        const QString byte =
            QStringLiteral("contains the byte %1, which does not start a valid XML character.");
        const auto row = [](const char *name, const std::string &text, const QString &reason,
                            const char *code) {
            QTest::newRow(name) << text << reason.arg(QLatin1String(code));
        };
        row("NUL", std::string("a\0b", 3), control, "0x00");
        row("control", "\x1B[m", control, "0x1B");
        row("surrogate", "a\xED\xA0\x80", byte, "0xED");
        row("U+FFFE", "\xEF\xBF\xBE", byte, "0xEF");
        row("overlong", "\xC0\x80", byte, "0xC0");
        row("overlong of three", "\xE0\x80\x80", byte, "0xE0");
        row("beyond Unicode", "\xF4\x90\x80\x80", byte, "0xF4");
        row("cut short", "\xE2\x82", byte, "0xE2");
        row("continuation alone", "\x80", byte, "0x80");
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
        PackageInfo package = loaded(testData("edited/kept.xml").toStdString());
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

        COMPARE_WITH_GOLDEN(pathOf("edited/kept.edited.xml"),
                            QByteArray::fromStdString(package.saveToManifestContent()));
    }

    // Each line of the file is the position of a field, "2:3 author".
    void fieldsHavePositions() {
        ManifestReader reader(ManifestReader::Positions::Keep);
        PackageInfo package;
        QVERIFY(reader.readContent(testData("places.xml").toStdString(), package));
        QByteArray places;
        for (const QByteArray &place : testData("places.txt").trimmed().split('\n')) {
            const QByteArray field = place.mid(place.indexOf(' ') + 1);
            const auto path = Tano::FieldPath::parse(field.toStdString());
            QVERIFY2(path, field.constData());
            const Tano::SourcePosition position = reader.position(*path);
            places += QByteArray::number(qulonglong(position.line)) + ':' +
                      QByteArray::number(qulonglong(position.column)) + ' ' + field + '\n';
        }
        COMPARE_WITH_GOLDEN(pathOf("places.txt"), places);
        QCOMPARE(reader.position(std::string("author")).line, std::uint64_t(2));
        ManifestReader without;
        QVERIFY(without.readContent(testData("places.xml").toStdString(), package));
        QCOMPARE(without.position(Tano::FieldPath()).line, std::uint64_t(0));
    }

    // Reads in pieces with arbitrary boundaries, and with every kind of line end.
    void positionsCountCharacters() {
        for (const char *lineEnd : {"\n", "\r\n", "\r"}) {
            std::string content = "<package format=\"1\" uid=\"u\" version=\"1\">";
            for (int i = 0; i < 2000; ++i)
                content += lineEnd + std::string("<!--日本🤖-->\t<behavior path=\"é") +
                           std::to_string(i) + "\"/>";
            QTemporaryFile file;
            QVERIFY(file.open());
            file.write(QByteArray::fromStdString(content + "</package>"));
            QVERIFY(file.seek(0));
            ManifestReader reader(ManifestReader::Positions::Keep);
            PackageInfo package;
            QVERIFY(reader.readFile(file, package));
            for (const int i : {0, 1, 77, 1000, 1999}) {
                Tano::FieldPath path;
                path.field("behaviors").entry("é" + std::to_string(i));
                QCOMPARE(reader.position(path).line, std::uint64_t(i + 2));
                QCOMPARE(reader.position(path).column, std::uint64_t(12));
            }
        }
    }

    // Saves a behavior below another root element than the one that declares its prefixes.
    void prefixesFollowTheirRecords() {
        const auto package = [](const char *declaration, const char *content) {
            return loaded("<package format=\"1\" uid=\"u\" version=\"1\"" +
                          std::string(declaration) + ">" + content + "</package>");
        };
        const PackageInfo source =
            package(" xmlns:a=\"A\" xmlns:b=\"B\"",
                    "<behavior path=\"1\" a:x=\"\"><permission><b:c/></permission></behavior>"
                    "<behavior path=\"2\"/><dialog topicName=\"3\"><b:d/></dialog>");
        for (const char *declaration : {"", " xmlns:a=\"other\"", " xmlns:a=\"A\" xmlns:b=\"B\""}) {
            PackageInfo target = package(declaration, "");
            const bool declaresBoth = std::string(declaration).find("B") != std::string::npos;
            for (const BehaviorInfo &behavior : source.behaviors())
                target.addBehavior(behavior);
            target.addDialog(source.dialogs()[0]);
            const std::string saved = target.saveToManifestContent();
            QCOMPARE(saved.find("path=\"1\" xmlns:a=\"A\" xmlns:b=\"B\" a:x") == std::string::npos,
                     declaresBoth);
            QCOMPARE(saved.find("topicName=\"3\" xmlns:b=\"B\"") == std::string::npos,
                     declaresBoth);
            QVERIFY(saved.find("path=\"2\"/>") != std::string::npos);
            QCOMPARE(loaded(saved).saveToManifestContent(), saved);
        }
    }

    void removedTopicsTakeTheirContentAlong() {
        PackageInfo package = loaded(inPackage("<dialog topicName=\"d\"><topic language=\"fr_FR\" "
                                               "x=\"\">t<!--c--></topic></dialog>"));
        DialogInfo dialog = package.dialogs()[0];
        QVERIFY(dialog.removeTopic("fr_FR"));
        package.replaceDialog(0, dialog);
        QCOMPARE(package, loaded(inPackage("<dialog topicName=\"d\"/>")));
        dialog.setTopic("fr_FR", "");
        package.replaceDialog(0, dialog);
        QVERIFY(package.saveToManifestContent().find(
                    "<topic language=\"fr_FR\" x=\"\"><!--c--></topic>") != std::string::npos);
    }

    void whatCannotBeSavedTo() {
        QTemporaryDir dir;
        PackageInfo package;
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
        QVERIFY(refuses(dangling, "it is a link to a missing file"));
    }

    void openFilesAreWrittenThrough() {
        QTemporaryFile file;
        QVERIFY(file.open());
        const PackageInfo package;
        QVERIFY(package.saveToManifestFile(file));
        QVERIFY(file.isOpen());
        QCOMPARE(contentOf(file.fileName()).toStdString(), package.saveToManifestContent());
        QFile readOnly(file.fileName());
        QVERIFY(readOnly.open(QIODevice::ReadOnly));
        QVERIFY(!package.saveToManifestFile(readOnly));
        QVERIFY(package.errorString().find("it is not open for writing") != std::string::npos);
    }

    void unreadableFilesAreExplained() {
        for (const auto &[path, reason] :
             {std::pair("/no/such/manifest.xml", "opened: No such file or directory"),
              std::pair("/dev/zero", "read: it is a device")}) {
            QFile file(QLatin1String{path});
            PackageInfo package;
            QVERIFY(!package.loadFromManifestFile(file));
            QCOMPARE(QString::fromStdString(package.errorString()),
                     QStringLiteral("The file \"%1\" cannot be %2.")
                         .arg(QLatin1String(path), QLatin1String(reason)));
        }
    }
};

QTEST_GUILESS_MAIN(TestManifest)
#include "tst_manifest.moc"
