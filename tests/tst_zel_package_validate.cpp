#include "program_run.h"

#include <packagemodel/package_issues.h>

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

namespace {

constexpr auto brokenText = "The end tag does not belong to the element that is open.";

QJsonValue at(QJsonValue value, const QString &path) {
    const auto keys = path.split(u'.');
    for (const QString &key : keys) {
        bool isIndex = false;
        const int index = key.toInt(&isIndex);
        value = isIndex ? value.toArray().at(index) : value.toObject().value(key);
    }
    return value;
}

QJsonValue jsonOf(const Outcome &outcome) {
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(outcome.out, &error);
    if (error.error != QJsonParseError::NoError)
        qFatal("%s\n%s", qPrintable(error.errorString()), outcome.out.constData());
    return document.object();
}

QStringList idsIn(const QByteArray &text) {
    static const QRegularExpression id(QStringLiteral(" \\[([-a-z]+)\\]$"),
                                       QRegularExpression::MultilineOption);
    QStringList ids;
    auto matches = id.globalMatch(QString::fromUtf8(text));
    while (matches.hasNext())
        ids += matches.next().captured(1);
    return ids;
}

QStringList valuesIn(const QJsonValue &list, const char *key) {
    QStringList values;
    const auto items = list.toArray();
    for (const auto &item : items)
        values += item.toObject()[QLatin1String(key)].toString();
    return values;
}

QStringList ruleIds() {
    QStringList ids;
    for (const auto &rule : Zel::PackageModel::rules())
        ids += rule.id;
    return ids;
}

} // namespace

class TestZelPackageValidate : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_dir;

    // Runs a command among good.xml, warned.xml (two warnings), wrong.xml (an error) and
    // broken.xml.
    Outcome run(const QStringList &arguments, const QByteArray &input = {}) const {
        return runProgram(arguments, m_dir.path(), input);
    }
    Outcome run(const char *arguments, const QByteArray &input = {}) const {
        return run(QString::fromUtf8(arguments).split(u' '), input);
    }
    QString path(const char *name) const { return m_dir.filePath(QString::fromUtf8(name)); }

private Q_SLOTS:
    void init() {
        QDir(m_dir.path()).removeRecursively();
        QVERIFY(QDir().mkpath(m_dir.path()));
        const QByteArray good =
            contentOf(QStringLiteral(ZEL_SOURCE_DIR "/examples/packages/small/manifest.xml"));
        write(path("good.xml"), good);
        write(path("warned.xml"),
              QByteArray(good)
                  .replace("  <supportedLanguage code=\"fr_FR\"/>\n",
                           "  <supportedLanguage code=\"fr_FR\"/>\n"
                           "  <supportedLanguage code=\"it_IT\"/>\n")
                  .replace("      <triggerSentence>good morning</triggerSentence>\n", "")
                  .replace("      <triggerSentence>bonjour</triggerSentence>\n", ""));
        write(path("wrong.xml"), QByteArray(good).replace("\"2.5\"", "\"2.5\" maxVersion=\"2.4\""));
        write(path("broken.xml"), contentOf(testData("manifest/invalid/crossed-tags.xml")));
    }

    // The samples show every rule; those without fault are silent.
    void samples() {
        const Outcome outcome = runProgramInShell(
            R"("$0" validate examples/packages/*/manifest.xml)", QStringLiteral(ZEL_SOURCE_DIR));
        QCOMPARE(QString::fromUtf8(outcome.out),
                 QString::fromUtf8(contentOf(testData("zel-package/samples.txt"))));
        QCOMPARE(outcome.err, QByteArray("zel-package: Manifests: 4, errors: 13, warnings: 4\n"));
        QCOMPARE(outcome.status, 1);
        const QStringList found = idsIn(outcome.out);
        for (const QString &id : ruleIds())
            QVERIFY2(found.contains(id), qPrintable(id));
    }

    void options_data() {
        QTest::addColumn<int>("status");
        QTest::addColumn<QStringList>("ids");
        QTest::addColumn<QByteArray>("err");
        const auto row = [](const char *arguments, int status, const QStringList &ids,
                            const QByteArray &err) {
            QTest::newRow(arguments) << status << ids << err;
        };
        const QString name = QStringLiteral("name-missing");
        const QString description = QStringLiteral("description-missing");
        const QString range = QStringLiteral("brio-range-reversed");
        const QString malformed = QStringLiteral("manifest-malformed");
        const QByteArray warned = "zel-package: Manifests: 1, errors: 0, warnings: 2\n";
        const QByteArray broken = QByteArray("zel-package: broken.xml:4:20: ") + brokenText + '\n';
        const QByteArray missing =
            "zel-package: missing.xml: The file cannot be opened: No such file or directory.\n";

        row("good.xml", 0, {}, "");
        row("good.xml --explain", 0, {}, "");
        row("warned.xml", 0, {name, description}, warned);
        row("warned.xml --fail-on error", 0, {name, description}, warned);
        row("warned.xml --fail-on warning", 1, {name, description}, warned);
        row("warned.xml --fail-on warning --ignore name-missing", 1, {description},
            "zel-package: Manifests: 1, errors: 0, warnings: 1\n");
        row("warned.xml --fail-on warning --ignore name-missing,description-missing", 0, {}, "");
        row("warned.xml --fail-on warning --ignore name-missing --ignore description-missing", 0,
            {}, "");
        row("wrong.xml", 1, {range}, "zel-package: Manifests: 1, errors: 1, warnings: 0\n");
        row("wrong.xml --fail-on warning", 1, {range},
            "zel-package: Manifests: 1, errors: 1, warnings: 0\n");
        row("wrong.xml --ignore brio-range-reversed", 0, {}, "");
        row("missing.xml", 2, {},
            missing + "zel-package: Manifests: 1, errors: 0, warnings: 0, unreadable: 1\n");
        row("broken.xml wrong.xml", 2, {malformed, range},
            broken + "zel-package: Manifests: 2, errors: 2, warnings: 0, malformed: 1\n");
        row("wrong.xml missing.xml broken.xml warned.xml", 2, {range, malformed, name, description},
            missing + broken +
                "zel-package: Manifests: 4, errors: 2, warnings: 2, malformed: 1, unreadable: "
                "1\n");
    }

    // Findings, messages and the exit status are the same in every format.
    void options() {
        QFETCH(QStringList, ids);
        const QString arguments =
            QStringLiteral("validate ") % QString::fromUtf8(QTest::currentDataTag());
        for (const char *format : {"text", "json", "sarif"}) {
            const Outcome outcome =
                run(QString(arguments % QStringLiteral(" --format ") % QLatin1String(format))
                        .split(u' '));
            QTEST(outcome.status, "status");
            QTEST(outcome.err, "err");
            if (qstrcmp(format, "text") == 0)
                QCOMPARE(idsIn(outcome.out), ids);
            else if (qstrcmp(format, "json") == 0)
                QCOMPARE(valuesIn(at(jsonOf(outcome), QStringLiteral("findings")), "id"), ids);
            else
                QCOMPARE(valuesIn(at(jsonOf(outcome), QStringLiteral("runs.0.results")), "ruleId"),
                         ids);
        }
    }

    void wrongUsage_data() {
        QTest::addColumn<QByteArray>("error");
        const auto row = [](const char *arguments, const QByteArray &error) {
            QTest::newRow(arguments) << error;
        };
        row("validate good.xml --ignore nam-missing",
            "There is no rule 'nam-missing'; did you mean 'name-missing', 'name-missing-default'?");
        row("validate good.xml --ignore name-missing,brio-missing",
            "There is no rule 'brio-missing'; did you mean 'name-missing', "
            "'brio-minimum-missing', 'brio-requirement-missing'?");
        row("validate good.xml --ignore zzz",
            "There is no rule 'zzz'; 'zel-package explain' lists the rules.");
        row("validate good.xml --ignore manifest-malformed",
            "'manifest-malformed' cannot be ignored.");
        row("validate good.xml --fail-on eror",
            "There is no severity 'eror'; did you mean 'error'?");
        row("validate good.xml --fail-on notice",
            "There is no severity 'notice'; it is either error or warning.");
        row("validate good.xml --format sarf", "There is no format 'sarf'; did you mean 'sarif'?");
        row("validate good.xml --format xml",
            "There is no format 'xml'; it is text, json or sarif.");
        row("explain uid", "There is no rule 'uid'; did you mean 'uid-invalid'?");
    }

    void wrongUsage() {
        QFETCH(QByteArray, error);
        const Outcome outcome = run(QTest::currentDataTag());
        QCOMPARE(outcome.err, lines({"zel-package: " + error}));
        QCOMPARE(outcome.out, QByteArray());
        QCOMPARE(outcome.status, 2);
    }

    void malformed() {
        const Outcome outcome = run("validate -", contentOf(path("broken.xml")));
        QCOMPARE(outcome.out,
                 QByteArray("-:4: error: ") + brokenText + " (column 20) [manifest-malformed]\n");
    }

    void json() {
        const QJsonObject expected{
            {QStringLiteral("findings"),
             QJsonArray{QJsonObject{
                 {QStringLiteral("file"), QStringLiteral("./wrong.xml")},
                 {QStringLiteral("line"), 18},
                 {QStringLiteral("column"), 3},
                 {QStringLiteral("id"), QStringLiteral("brio-range-reversed")},
                 {QStringLiteral("severity"), QStringLiteral("error")},
                 {QStringLiteral("field"), QStringLiteral("brioRequirements[0].maxVersion")},
                 {QStringLiteral("text"),
                  QStringLiteral("Brio version requirement is not valid: 2.4 < "
                                 "2.5")}}}},
            {QStringLiteral("unreadable"),
             QJsonArray{QJsonObject{{QStringLiteral("file"), QStringLiteral("missing.xml")},
                                    {QStringLiteral("text"),
                                     QStringLiteral("The file cannot be opened: No such file or "
                                                    "directory.")}}}},
            {QStringLiteral("summary"), QJsonObject{{QStringLiteral("files"), 3},
                                                    {QStringLiteral("errors"), 1},
                                                    {QStringLiteral("warnings"), 0},
                                                    {QStringLiteral("malformed"), 0},
                                                    {QStringLiteral("unreadable"), 1}}}};
        const QJsonObject printed =
            jsonOf(run("validate ./wrong.xml good.xml missing.xml --format json")).toObject();
        QCOMPARE(printed, expected);

        const QJsonValue explained = jsonOf(run("validate wrong.xml --format json --explain"));
        QCOMPARE(valuesIn(at(explained, QStringLiteral("rules")), "id"),
                 QStringList{QStringLiteral("brio-range-reversed")});
    }

    void sarif() {
        const QJsonValue log =
            jsonOf(run("validate broken.xml warned.xml missing.xml --format sarif"));
        QCOMPARE(at(log, QStringLiteral("version")), QJsonValue(QStringLiteral("2.1.0")));
        const QJsonValue run = at(log, QStringLiteral("runs.0"));
        QCOMPARE(valuesIn(at(run, QStringLiteral("tool.driver.rules")), "id"),
                 ruleIds() << QStringLiteral("manifest-malformed"));
        QCOMPARE(at(run, QStringLiteral("tool.driver.rules.0")).toObject().keys().size(), 5);

        const QString location = QStringLiteral("results.%1.locations.0.");
        const QString region = location % QStringLiteral("physicalLocation.region");
        QCOMPARE(at(run, region.arg(0)),
                 QJsonValue(QJsonObject{{QStringLiteral("startLine"), 4},
                                        {QStringLiteral("startColumn"), 20}}));
        QCOMPARE(at(run, region.arg(1)),
                 QJsonValue(QJsonObject{{QStringLiteral("startLine"), 2},
                                        {QStringLiteral("startColumn"), 1}}));
        QVERIFY(at(run, location.arg(0) % QStringLiteral("logicalLocations")).isUndefined());
        QCOMPARE(at(run, location.arg(1) % QStringLiteral("logicalLocations.0.fullyQualifiedName")),
                 QJsonValue(QStringLiteral("names[it_IT]")));
        QCOMPARE(at(run, QStringLiteral("results.1.ruleIndex")), QJsonValue(9));
        QCOMPARE(at(run, QStringLiteral("results.1.level")), QJsonValue(QStringLiteral("warning")));
        QCOMPARE(at(run, QStringLiteral("results.1.partialFingerprints.ruleAndField/v1")),
                 QJsonValue(QStringLiteral("name-missing:names[it_IT]")));

        const QJsonValue invocation = at(run, QStringLiteral("invocations.0"));
        QCOMPARE(at(invocation, QStringLiteral("exitCode")), QJsonValue(2));
        QCOMPARE(at(invocation, QStringLiteral("executionSuccessful")), QJsonValue(false));
        const QString notification = QStringLiteral("toolExecutionNotifications.0.");
        QCOMPARE(at(invocation, notification % QStringLiteral("locations.0.physicalLocation."
                                                              "artifactLocation.uri")),
                 QJsonValue(QStringLiteral("missing.xml")));
    }

    void sarifUri_data() {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("uri");
        const QString here = QStringLiteral("file://") % m_dir.path();
        const auto row = [](const QString &file, const QString &uri) {
            QTest::newRow(qPrintable(file)) << file << uri;
        };
        row(QStringLiteral("wrong.xml"), QStringLiteral("wrong.xml"));
        row(QStringLiteral("./wrong.xml"), QStringLiteral("wrong.xml"));
        row(QStringLiteral("a/../wrong.xml"), QStringLiteral("wrong.xml"));
        row(QStringLiteral("a/ü #1%.xml"), QStringLiteral("a/%C3%BC%20%231%25.xml"));
        row(QStringLiteral("a:b.xml"), QStringLiteral("a%3Ab.xml"));
        row(m_dir.filePath(QStringLiteral("wrong.xml")), here % QStringLiteral("/wrong.xml"));
        row(QStringLiteral("../") % QDir(m_dir.path()).dirName() % QStringLiteral("/wrong.xml"),
            here % QStringLiteral("/wrong.xml"));
        row(QStringLiteral("-"), QStringLiteral("-"));
    }

    void sarifUri() {
        QFETCH(QString, file);
        QVERIFY(QDir(m_dir.path()).mkdir(QStringLiteral("a")));
        for (const char *name : {"a/ü #1%.xml", "a:b.xml"})
            QVERIFY(QFile::copy(path("wrong.xml"), path(name)));
        const QJsonValue log =
            jsonOf(run({QStringLiteral("validate"), file, QStringLiteral("--format=sarif")},
                       contentOf(path("wrong.xml"))));
        const QString uri = at(log, QStringLiteral("runs.0.results.0.locations.0.physicalLocation."
                                                   "artifactLocation.uri"))
                                .toString();
        QTEST(uri, "uri");
    }

    void filesOfOneName() {
        for (const char *folder : {"a", "b"}) {
            QVERIFY(QDir(m_dir.path()).mkdir(QLatin1String(folder)));
            QVERIFY(QFile::copy(
                path("wrong.xml"),
                m_dir.filePath(QLatin1String(folder) % QStringLiteral("/manifest.xml"))));
        }
        const QStringList files{QStringLiteral("a/manifest.xml"), QStringLiteral("b/manifest.xml")};
        const QByteArray out = run("validate a/manifest.xml b/manifest.xml").out;
        QVERIFY2(out.startsWith("a/manifest.xml:18: ") && out.contains("\nb/manifest.xml:18: "),
                 out.constData());
        const QJsonValue json = jsonOf(run("validate a/manifest.xml b/manifest.xml --format json"));
        QCOMPARE(valuesIn(at(json, QStringLiteral("findings")), "file"), files);
    }

    // What a message is filled with is text; only the message itself is rich.
    void hardText() {
        write(path("hard.xml"),
              contentOf(path("good.xml"))
                  .replace("path=\".\"", "path=\"a&amp;lt;{b}&#10;c\"")
                  .replace("      <triggerSentence>bonjour</triggerSentence>\n", ""));
        QCOMPARE(run("validate hard.xml").out,
                 QByteArray("hard.xml:28: error: Behavior 'a&lt;{b}<U+000A>c' has no trigger "
                            "sentence defined for: French (France) (behaviors[a&lt;{b}<U+000A>c]."
                            "triggerSentences[fr_FR]) [trigger-sentences-missing]\n"));
        const QJsonValue log = jsonOf(run("validate hard.xml --format sarif"));
        QCOMPARE(at(log, QStringLiteral("runs.0.results.0.message.text")),
                 QJsonValue(QStringLiteral("Behavior 'a&lt;{{b}}\nc' has no trigger sentence "
                                           "defined for: French (France)")));
    }

    void explain() {
        const QStringList known = ruleIds() << QStringLiteral("manifest-malformed");
        const QStringList table =
            QString::fromUtf8(run("explain").out).split(u'\n', Qt::SkipEmptyParts);
        QCOMPARE(table.size(), known.size() + 1);
        for (int i = 0; i < known.size(); ++i)
            QVERIFY2(table.at(i + 1).startsWith(known.at(i) % u' '), qPrintable(table.at(i + 1)));
        QVERIFY(table.contains(QStringLiteral("brio-range-reversed         error     Brio version "
                                              "requirement is not valid: … < …")));

        const QByteArray explanation = run("explain brio-range-reversed").out;
        QCOMPARE(explanation,
                 QByteArray("brio-range-reversed (error)\n"
                            "  Brio version requirement is not valid: … < …\n\n"
                            "  The maximal Brio version is less than the minimal one, so that no "
                            "robot can\n  meet the requirement.\n\n"
                            "  Raise or clear the maximum, or lower the minimum. An empty maximum "
                            "means that\n  there is no upper bound.\n"));
        QCOMPARE(run("validate wrong.xml wrong.xml --explain").out,
                 run("validate wrong.xml wrong.xml").out + '\n' + explanation);
    }

    void onTerminal() {
        const QStringList arguments{QStringLiteral("validate"), QStringLiteral("wrong.xml")};
        const QByteArray plain = terminalOutput(arguments, m_dir.path(), "1");
        QCOMPARE(plain, run(arguments).out);
        const QByteArray colored = terminalOutput(arguments, m_dir.path(), "");
        QVERIFY2(colored.startsWith("wrong.xml:18: \x1b[31merror\x1b[0m: Brio"),
                 colored.constData());
    }

    // Over many files, on a terminal, and gone in the end.
    void progress() {
        QStringList arguments{QStringLiteral("validate")};
        for (int i = 0; i < 100; ++i)
            arguments += QStringLiteral("good.xml");
        QCOMPARE(terminalOutput(arguments, m_dir.path(), "1", true), QByteArray());
        arguments.insert(50, QStringLiteral("wrong.xml"));
        const QByteArray shown = terminalOutput(arguments, m_dir.path(), "1", true);
        const QByteArray gone = "\x1b[K\r\x1b[K";
        QVERIFY2(shown.contains(QByteArray("\rChecked 49 of 101" + gone + "wrong.xml:18: ")),
                 shown.constData());
        QVERIFY2(shown.contains(
                     QByteArray("\rChecked 100 of 101" + gone + "zel-package: Manifests: 101")),
                 shown.constData());
        QCOMPARE(terminalOutput(arguments, m_dir.path(), "1"), run(arguments).out);
    }
};

QTEST_GUILESS_MAIN(TestZelPackageValidate)
#include "tst_zel_package_validate.moc"
