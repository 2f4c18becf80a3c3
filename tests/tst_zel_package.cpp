#include "program_run.h"

#include <packagemodel/package_info_model.h>

#include <QDateTime>
#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

namespace {

constexpr auto showUsage = "zel-package show FILE [--language CODE] [--format text|json]";
constexpr auto brokenError =
    "zel-package: broken.xml:4:20: The end tag does not belong to the element that is open.";
constexpr auto missingError =
    "zel-package: missing.xml: The file cannot be opened: No such file or directory.";

} // namespace

class TestZelPackage : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_dir;

    QString at(const char *name) const { return m_dir.filePath(QString::fromUtf8(name)); }

    // Runs the program among good.xml, loose.xml (not canonical) and broken.xml.
    Outcome run(const QStringList &arguments, const QByteArray &input = {},
                const QString &output = {}) const {
        return runProgram(arguments, m_dir.path(), input, output);
    }

    Outcome runShell(const QByteArray &script) const {
        return runProgramInShell(script, m_dir.path());
    }

    QByteArray onTerminal(const QStringList &arguments, const char *noColor) const {
        return terminalOutput(arguments, m_dir.path(), noColor);
    }

private Q_SLOTS:
    void init() {
        QDir(m_dir.path()).removeRecursively();
        QVERIFY(QDir().mkpath(m_dir.path()));
        write(at("good.xml"), contentOf(testData("manifest/valid/minimal.xml")));
        write(at("loose.xml"), contentOf(testData("manifest/valid/noncanonical/one-line.xml")));
        write(at("broken.xml"), contentOf(testData("manifest/invalid/crossed-tags.xml")));
    }

    void wrongUsage_data() {
        QTest::addColumn<QString>("arguments");
        QTest::addColumn<QString>("error");
        const auto row = [](const char *arguments, const QByteArray &error) {
            QTest::newRow(*arguments ? arguments : "nothing")
                << QString::fromUtf8(arguments) << QString::fromUtf8(error);
        };
        row("", "A command is missing; 'zel-package --help' lists the commands.");
        row("shwo", "There is no command 'shwo'; did you mean 'show'?");
        row("lang", "There is no command 'lang'; did you mean 'languages'?");
        row("zzzzzz", "There is no command 'zzzzzz'; 'zel-package --help' lists the commands.");
        row("--hlep", "There is no option '--hlep'; did you mean '--help'?");
        row("show", QByteArray("An argument is missing: ") + showUsage);
        row("show a b", QByteArray("'b' is one argument too many: ") + showUsage);
        row("languages a", "'a' is one argument too many: zel-package languages");
        row("show a --langage fr", "There is no option '--langage'; did you mean '--language'?");
        row("show a -x", "There is no option '-x'; 'zel-package show --help' lists the options.");
        row("show a --language", "Missing value after '--language'.");
        row("show a --format jsn", "There is no format 'jsn'; did you mean 'json'?");
        row("show a --format xml", "There is no format 'xml'; it is either text or json.");
        row("show a --format json --language fr_FR",
            "--format json shows all languages and takes no --language.");
        row("show good.xml --language fr-FR",
            "'fr-FR' is not a language code; did you mean fr_FR?");
        row("show good.xml --language English",
            "'English' is not a language code; did you mean en, en_GB, en_US?");
        row("show good.xml --language 1234567", "'1234567' is not a language code; 'zel-package "
                                                "languages' lists those that are known.");
        row("new x", "A package needs a --uid.");
        row("new x --uid Tea",
            "Application UID is not defined correctly. 'zel-package explain uid-invalid' says what "
            "a UID is.");
    }

    void wrongUsage() {
        QFETCH(QString, arguments);
        QFETCH(QString, error);
        const Outcome outcome = run(arguments.split(u' ', Qt::SkipEmptyParts));
        QCOMPARE(QString::fromUtf8(outcome.err),
                 QString(QStringLiteral("zel-package: ") % error % u'\n'));
        QCOMPARE(outcome.out, QByteArray());
        QCOMPARE(outcome.status, 2);
    }

    void helpAndVersion() {
        const Outcome general = run({QStringLiteral("--help")});
        QCOMPARE(general.status, 0);
        QCOMPARE(general.err, QByteArray());
        for (const char *command : {"new", "show", "validate", "format", "set", "publish",
                                    "explain", "languages", "robots"}) {
            QVERIFY(general.out.contains(QByteArray("\n  ").append(command).append(' ')));
            const Outcome help = run({QLatin1String(command), QStringLiteral("-h")});
            QCOMPARE(help.status, 0);
            QVERIFY(help.out.startsWith(QByteArray("Usage: zel-package ").append(command)));
        }
        QCOMPARE(run({QStringLiteral("--version")}).out,
                 QByteArray("zel-package " ZEL_VERSION "\n"));
    }

    // What the help offers, the manual page and the completion know.
    void helpIsComplete() {
        const QByteArray manual =
            contentOf(QStringLiteral(ZEL_SOURCE_DIR "/docs/zel-package.1")).replace("\\-", "-");
        const QByteArray completion = contentOf(
            QStringLiteral(ZEL_SOURCE_DIR "/tools/zel-package/completions/zel-package.bash"));
        const QRegularExpression entry(QStringLiteral("^  (?:-h, )?([-a-z]+) "),
                                       QRegularExpression::MultilineOption);
        QByteArrayList pages{run({QStringLiteral("--help")}).out};
        for (const char *command : {"new", "show", "validate", "format", "set", "publish",
                                    "explain", "languages", "robots"})
            pages += run({QLatin1String(command), QStringLiteral("--help")}).out;
        for (const QByteArray &page : pages) {
            auto entries = entry.globalMatch(QString::fromUtf8(page));
            QVERIFY(entries.hasNext());
            while (entries.hasNext()) {
                const QByteArray word = entries.next().captured(1).toUtf8();
                QVERIFY2(manual.contains(word) && completion.contains(word), word.constData());
            }
        }
    }

    void newManifest() {
        const Outcome outcome =
            run({QStringLiteral("new"), QStringLiteral("tea.xml"), QStringLiteral("--uid"),
                 QStringLiteral("tea-time"), QStringLiteral("--language"), QStringLiteral("ja_JP"),
                 QStringLiteral("--language"), QStringLiteral("xx"), QStringLiteral("--name"),
                 QStringLiteral("お茶 & 本")});
        QCOMPARE(outcome.err,
                 lines({"zel-package: The language 'xx' is not a known one.",
                        "zel-package: tea.xml: A manifest of version 1.0.0; what it still needs: "
                        "robotRequirements, brioRequirements, names[xx], descriptions[ja_JP], "
                        "descriptions[xx]."}));
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.out, QByteArray());
        QCOMPARE(contentOf(at("tea.xml")), QByteArray(R"(<?xml version="1.0" encoding="UTF-8"?>
<package format="1" uid="tea-time" version="1.0.0">
  <supportedLanguage code="ja_JP"/>
  <supportedLanguage code="xx"/>
  <descriptionLanguage code="ja_JP"/>
  <descriptionLanguage code="xx"/>
  <texts language="ja_JP">
    <name>お茶 &amp; 本</name>
  </texts>
</package>
)"));
    }

    void newManifestNeverOverwrites() {
        const QByteArray before = contentOf(at("good.xml"));
        const Outcome outcome = run({QStringLiteral("new"), QStringLiteral("good.xml"),
                                     QStringLiteral("--uid"), QStringLiteral("other")});
        QCOMPARE(outcome.err,
                 QByteArray("zel-package: good.xml: The file cannot be made: File exists.\n"));
        QCOMPARE(outcome.status, 2);
        QCOMPARE(contentOf(at("good.xml")), before);
    }

    void newManifestThatCannotBe() {
        const Outcome outcome =
            run({QStringLiteral("new"), QStringLiteral("x.xml"), QStringLiteral("--uid"),
                 QStringLiteral("a"), QStringLiteral("--name"), QStringLiteral("a\u0001")});
        QCOMPARE(outcome.status, 2);
        QVERIFY(outcome.err.contains("control character 0x01"));
        QVERIFY(!QFile::exists(at("x.xml")));
    }

    void newManifestOnStandardOutput() {
        const Outcome outcome =
            runShell(R"("$0" new - --uid u --name U 2>err | "$0" show - --format json)");
        QCOMPARE(outcome.status, 0);
        const QJsonObject package = QJsonDocument::fromJson(outcome.out).object();
        QCOMPARE(package[QStringLiteral("names")].toObject(),
                 (QJsonObject{{QStringLiteral("en_US"), QStringLiteral("U")}}));
    }

    // All is UTF-8, whatever the locale: the name of a file, arguments, the widths of characters.
    void otherLocales_data() {
        QTest::addColumn<QByteArray>("variables");
        QTest::newRow("C") << QByteArray("LC_ALL=C");
        QTest::newRow("C by category") << QByteArray("LC_ALL= LANG= LC_CTYPE=POSIX");
        QTest::newRow("not there") << QByteArray("LC_ALL=xx_XX.ISO-8859-1");
    }

    void otherLocales() {
        QFETCH(QByteArray, variables);
        QVERIFY(QFile::copy(testData("zel-package/tides.xml"), at("潮.xml")));
        const Outcome shown = runShell(variables + R"( "$0" show 潮.xml)");
        QCOMPARE(shown.err, QByteArray());
        QCOMPARE(shown.out, contentOf(testData("zel-package/tides.txt")));
        const Outcome made = runShell(variables + R"( "$0" new - --uid u --name ü)");
        QVERIFY2(made.out.contains("<name>ü</name>"), made.out.constData());
    }

    void showText_data() {
        QTest::addColumn<QString>("language");
        QTest::newRow("all") << QString();
        QTest::newRow("fr_FR") << QStringLiteral("fr_FR");
        QTest::newRow("el_GR") << QStringLiteral("el_GR");
    }

    void showText() {
        QFETCH(QString, language);
        QStringList arguments{QStringLiteral("show"), testData("zel-package/tides.xml")};
        if (!language.isEmpty())
            arguments += {QStringLiteral("--language"), language};
        const Outcome outcome = run(arguments);
        const QString name = language.isEmpty() ? QString() : QString(u'.' % language);
        QCOMPARE(QString::fromUtf8(outcome.out),
                 QString::fromUtf8(
                     contentOf(testData("zel-package/tides") % name % QStringLiteral(".txt"))));
        QCOMPARE(outcome.err, QByteArray());
        QCOMPARE(outcome.status, 0);
    }

    void showJson() {
        const Outcome outcome = run({QStringLiteral("show"), QStringLiteral("--format=json"),
                                     testData("manifest/valid/every-field.xml")});
        QCOMPARE(outcome.status, 0);
        const QJsonDocument expected =
            QJsonDocument::fromJson(contentOf(testData("zel-package/every-field.json")));
        QVERIFY(!expected.isNull());
        QCOMPARE(QJsonDocument::fromJson(outcome.out), expected);
    }

    // Nothing that garbles a terminal is in the output, and nothing is lost.
    void showJsonOfHardText() {
        const QString path = testData("manifest/valid/hard-text.xml");
        const Outcome outcome =
            run({QStringLiteral("show"), QStringLiteral("--format=json"), path});
        const QString text = QString::fromUtf8(outcome.out);
        for (const QChar character : {QChar(0x202E), QChar(0x85), QChar(0x7F), QChar(u'\r')})
            QVERIFY(!text.contains(character));

        Zel::PackageInfoModel package;
        QVERIFY(package.loadFromManifestFile(path));
        const Zel::RobotLanguage english = Zel::robotLanguage(QStringLiteral("en_US"));
        const QJsonObject shown = QJsonDocument::fromJson(outcome.out).object();
        const QJsonObject behavior = shown[QStringLiteral("behaviors")].toArray().at(0).toObject();
        QCOMPARE(behavior[QStringLiteral("tags")].toObject()[QStringLiteral("en_US")].toArray(),
                 QJsonArray::fromStringList(package.behaviors().at(0)->tags(english)));
        QCOMPARE(shown[QStringLiteral("descriptions")].toObject()[QStringLiteral("en_US")],
                 QJsonValue(package.description(english)));
    }

    void showOnTerminal() {
        const QStringList arguments{QStringLiteral("show"), QStringLiteral("loose.xml")};
        const QByteArray colored = onTerminal(arguments, "");
        QVERIFY2(colored.startsWith("\x1b[1m"), colored.constData());
        const QByteArray plain = onTerminal(arguments, "1");
        QVERIFY2(!plain.contains('\x1b'), plain.constData());
        QCOMPARE(QString::fromUtf8(colored).remove(
                     QRegularExpression(QStringLiteral("\u001b\\[[0-9]+m"))),
                 QString::fromUtf8(plain));
        // The terminal is wide enough for the names of the languages.
        QVERIFY2(plain.contains("  English (United States)  "), plain.constData());
        QVERIFY(!run(arguments).out.contains("  English (United States)  "));
    }

    void unreadableInput_data() {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QByteArray>("error");
        QTest::newRow("malformed") << QStringLiteral("broken.xml") << QByteArray(brokenError);
        QTest::newRow("not there") << QStringLiteral("missing.xml") << QByteArray(missingError);
        QTest::newRow("standard input")
            << QStringLiteral("-") << QByteArray(brokenError).replace("broken.xml", "-");
        QTest::newRow("directory") << QStringLiteral(".")
                                   << QByteArray("zel-package: .: The file cannot be opened: file "
                                                 "to open is a directory.");
    }

    void unreadableInput() {
        QFETCH(QString, file);
        QFETCH(QByteArray, error);
        for (const char *command : {"show", "format"}) {
            const Outcome outcome =
                run({QLatin1String(command), file}, contentOf(at("broken.xml")));
            QCOMPARE(outcome.err, lines({error}));
            QCOMPARE(outcome.out, QByteArray());
            QCOMPARE(outcome.status, 2);
        }
    }

    void formatCheck_data() {
        QTest::addColumn<QString>("files");
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("out");
        QTest::addColumn<QByteArray>("err");
        QTest::newRow("canonical") << "good.xml" << 0 << QByteArray() << QByteArray();
        QTest::newRow("not canonical")
            << "loose.xml good.xml" << 1 << lines({"loose.xml"}) << QByteArray();
        QTest::newRow("bad files hide no others")
            << "broken.xml missing.xml loose.xml" << 2 << lines({"loose.xml"})
            << lines({brokenError, missingError});
        QTest::newRow("not canonical, then bad")
            << "loose.xml broken.xml" << 2 << lines({"loose.xml"}) << lines({brokenError});
        QTest::newRow("standard input") << "-" << 1 << lines({"-"}) << QByteArray();
    }

    void formatCheck() {
        QFETCH(QString, files);
        const QByteArray loose = contentOf(at("loose.xml"));
        const Outcome outcome = run(
            QStringList{QStringLiteral("format"), QStringLiteral("--check")} + files.split(u' '),
            loose);
        QTEST(outcome.out, "out");
        QTEST(outcome.err, "err");
        QTEST(outcome.status, "status");
        QCOMPARE(contentOf(at("loose.xml")), loose);
    }

    void formatRewrites() {
        const QByteArray canonical =
            contentOf(testData("manifest/valid/noncanonical/one-line.canonical.xml"));
        const QByteArray loose = contentOf(at("loose.xml"));
        const QDateTime longAgo = QDateTime::fromSecsSinceEpoch(1'000'000'000);
        QFile good(at("good.xml"));
        QVERIFY(good.open(QIODevice::ReadWrite));
        QVERIFY(good.setFileTime(longAgo, QFileDevice::FileModificationTime));
        good.close();

        const Outcome outcome = run({QStringLiteral("format"), QStringLiteral("broken.xml"),
                                     QStringLiteral("loose.xml"), QStringLiteral("good.xml")});
        QCOMPARE(outcome.err, lines({brokenError}));
        QCOMPARE(outcome.status, 2);
        QCOMPARE(contentOf(at("loose.xml")), canonical);
        QCOMPARE(QFileInfo(good).lastModified(), longAgo);
        QCOMPARE(contentOf(at("broken.xml")),
                 contentOf(testData("manifest/invalid/crossed-tags.xml")));

        const Outcome filtered = run({QStringLiteral("format"), QStringLiteral("-")}, loose);
        QCOMPARE(filtered.out, canonical);
        QCOMPARE(filtered.status, 0);
    }

    // The version stays as it is written, and what is not known stays where it is.
    void formatKeepsEverything_data() {
        QTest::addColumn<QString>("path");
        for (const char *name : {"comments", "foreign", "newer-elements", "hard-text"})
            QTest::newRow(name) << testData("manifest/valid/") % QLatin1String(name) %
                                       QStringLiteral(".xml");
    }

    void formatKeepsEverything() {
        QFETCH(QString, path);
        const Outcome outcome = run({QStringLiteral("format"), QStringLiteral("-")},
                                    contentOf(path).replace("?>\n<package", "?>\n\n<package"));
        QCOMPARE(outcome.out, contentOf(path));
        QCOMPARE(outcome.status, 0);
    }

    void languages() {
        const Outcome outcome = run({QStringLiteral("languages")});
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.err, QByteArray());
        const QStringList table = QString::fromUtf8(outcome.out).split(u'\n', Qt::SkipEmptyParts);
        QCOMPARE(table.size(), int(Zel::Language::knownLanguages().size()) + 1);
        QCOMPARE(table.at(0),
                 QStringLiteral("code   name                       speech  native name"));
        QVERIFY(table.contains(
            QStringLiteral("fr_CA  French (Canada)            frc     français canadien")));
        QVERIFY(table.contains(QStringLiteral("zh     Chinese                            中文")));
    }

    void unwritableOutput() {
        const QStringList arguments{QStringLiteral("show"), QStringLiteral("good.xml")};
        const Outcome full = run(arguments, {}, QStringLiteral("/dev/full"));
        QCOMPARE(full.err, QByteArray("zel-package: Standard output cannot be written: No space "
                                      "left on device.\n"));
        QCOMPARE(full.status, 2);

        const Outcome closed = runShell(R"("$0" format - <loose.xml >&-)");
        QCOMPARE(closed.err, QByteArray("zel-package: Standard output cannot be written: Bad file "
                                        "descriptor.\n"));
        QCOMPARE(closed.status, 2);

        // More than a pipe holds, so that the program is still writing when the reader has gone.
        QByteArray large = contentOf(at("good.xml"));
        QCOMPARE(large.count("/>"), 1);
        large.replace(
            "/>",
            QByteArray("><author>").append(QByteArray(1000000, 'x')).append("</author></package>"));
        write(at("large.xml"), large);
        const Outcome gone = runShell(R"({ "$0" format - <large.xml; echo $? >&2; } | true)");
        QCOMPARE(gone.err,
                 lines({"zel-package: Standard output cannot be written: Broken pipe.", "2"}));
    }
};

QTEST_GUILESS_MAIN(TestZelPackage)
#include "tst_zel_package.moc"
