#include "program_run.h"
#include "table_file.h"

#include <tano/package_info.h>

#include <QJsonObject>
#include <QRegularExpression>
#include <QTemporaryDir>

namespace {

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

// Applies the replacements of a fix, which are in ascending order.
QByteArray withReplacements(QByteArrayList lines, const QJsonValue &fix) {
    const QJsonArray replacements =
        at(fix, QStringLiteral("artifactChanges.0.replacements")).toArray();
    for (int i = int(replacements.size()) - 1; i >= 0; --i) {
        const QJsonValue region = at(replacements.at(i), QStringLiteral("deletedRegion"));
        const int start = at(region, QStringLiteral("startLine")).toInt() - 1;
        const int end = at(region, QStringLiteral("endLine")).toInt() - 1;
        QByteArrayList inserted = at(replacements.at(i), QStringLiteral("insertedContent.text"))
                                      .toString()
                                      .toUtf8()
                                      .split('\n');
        inserted.removeLast();
        lines = lines.mid(0, start) + inserted + lines.mid(end);
    }
    return lines.join('\n');
}

} // namespace

class TestZelPackageValidate : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_dir;

    // Runs a command in a folder with good.xml, warned.xml (two warnings), wrong.xml (an error) and
    // broken.xml.
    Outcome run(const QStringList &arguments, const QByteArray &input = {}) const {
        return runProgram(arguments, m_dir.path(), input);
    }
    QString path(const char *name) const { return m_dir.filePath(QString::fromUtf8(name)); }

private Q_SLOTS:
    void init() { resetFiles(m_dir.path()); }

    void options_data() { addRowsOf("zel-package/validate-options.json"); }

    // Checks findings, messages and the exit status in every format.
    void options() {
        QFETCH(QString, arguments);
        QFETCH(QStringList, ids);
        const QStringList line = QString(QStringLiteral("validate ") % arguments).split(u' ');
        const auto as = [&](const char *format) {
            return run(line + QStringList{QStringLiteral("--format"), QLatin1String(format)});
        };
        const Outcome text = as("text");
        const Outcome json = as("json");
        const Outcome sarif = as("sarif");
        const Outcome github = as("github");
        QCOMPARE(idsIn(text.out), ids);
        QCOMPARE(valuesIn(at(jsonOf(json), QStringLiteral("findings")), "id"), ids);
        QCOMPARE(valuesIn(at(jsonOf(sarif), QStringLiteral("runs.0.results")), "ruleId"), ids);
        for (const Outcome &outcome : {text, json, sarif, github}) {
            QTEST(outcome.status, "status");
            QTEST(QString::fromUtf8(outcome.err).split(u'\n', Qt::SkipEmptyParts), "messages");
        }
    }

    void sarif() {
        const QJsonValue log =
            jsonOf(run(QStringLiteral("validate broken.xml warned.xml missing.xml --format sarif")
                           .split(u' ')));
        QJsonArray rows = tableIn("zel-package/sarif-values.json");
        rows.removeFirst();
        for (const auto &row : std::as_const(rows)) {
            const QJsonValue value = at(log, row[0].toString());
            QVERIFY2(row[1].isNull() ? value.isUndefined() : value == row[1],
                     qPrintable(row[0].toString()));
        }
    }

    void sarifUri_data() {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("uri");
        const auto row = [](const QString &file, const QString &uri) {
            QTest::newRow(qPrintable(file)) << file << uri;
        };
        row(QStringLiteral("wrong.xml"), QStringLiteral("wrong.xml"));
        row(QStringLiteral("./wrong.xml"), QStringLiteral("wrong.xml"));
        row(QStringLiteral("a/../wrong.xml"), QStringLiteral("wrong.xml"));
        row(QStringLiteral("a/ü #1%.xml"), QStringLiteral("a/%C3%BC%20%231%25.xml"));
        row(QStringLiteral("a:b.xml"), QStringLiteral("a%3Ab.xml"));
        row(m_dir.filePath(QStringLiteral("wrong.xml")), QStringLiteral("wrong.xml"));
        row(QStringLiteral("../") % QDir(m_dir.path()).dirName() % QStringLiteral("/wrong.xml"),
            QStringLiteral("wrong.xml"));
        row(testData("zel-package/files/wrong.xml"),
            QStringLiteral("file://" ZEL_TEST_DATA "/zel-package/files/wrong.xml"));
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

    // Each fix results in a canonical manifest without the finding.
    void sarifFixes() {
        write(path("f.xml"),
              contentOf(QStringLiteral(ZEL_SOURCE_DIR "/examples/packages/faulty/manifest.xml")));
        const QByteArrayList lines = contentOf(path("f.xml")).split('\n');
        const auto results = [&] {
            const Outcome sarif = run(QStringLiteral("validate f.xml --format sarif").split(u' '));
            return at(jsonOf(sarif), QStringLiteral("runs.0.results")).toArray();
        };
        const QString fingerprint = QStringLiteral("partialFingerprints.ruleAndField/v1");
        const QJsonValue json =
            jsonOf(run(QStringLiteral("validate f.xml --format json").split(u' ')));
        const QJsonArray found = results();
        for (int i = 0; i < found.size(); ++i) {
            const QJsonValue result = found.at(i);
            const auto fixes = at(result, QStringLiteral("fixes")).toArray();
            QCOMPARE(fixes.size(),
                     at(json, QStringLiteral("findings.%1.fixes").arg(i)).toArray().size());
            for (const auto &fix : fixes) {
                write(path("f.xml"), withReplacements(lines, fix));
                const Outcome format = run(QStringLiteral("format --check f.xml").split(u' '));
                QCOMPARE(format.status, 0);
                const auto left = results();
                for (const auto &other : left)
                    QVERIFY(at(other, fingerprint) != at(result, fingerprint));
            }
        }
    }

    // Of 102 x 101 findings of one rule, every format lists 10,000.
    void manyFindings() {
        Tano::PackageInfo record;
        for (int i = 0; i < 102; ++i) {
            const std::string number = std::to_string(i);
            record.addSupportedLanguage("q" + number);
            record.setName("name", "q" + number);
            record.setDescription("description", "q" + number);
            Tano::BehaviorInfo behavior;
            behavior.setPath(number);
            behavior.addTriggerSentence("hello", "q" + number);
            record.addBehavior(behavior);
        }
        write(path("many.xml"), QByteArray::fromStdString(record.saveToManifestContent()));
        const auto validate = [&](const char *options) {
            return run(QStringLiteral("validate many.xml --ignore uid-invalid,"
                                      "robot-requirements-missing,brio-requirement-missing,"
                                      "language-unknown,version-invalid")
                           .split(u' ') +
                       QString::fromLatin1(options).split(u' ', Qt::SkipEmptyParts));
        };
        const Outcome text = validate("");
        QCOMPARE(text.status, 1);
        QCOMPARE(text.out.count('\n'), 10000);
        QCOMPARE(text.err, QByteArray("zel-package: many.xml: Of each rule, only the first 10000 "
                                      "findings are listed.\n"
                                      "zel-package: Manifests: 1, errors: 10000, warnings: 0\n"));
        QCOMPARE(at(jsonOf(validate("--format json")), QStringLiteral("summary.truncated")),
                 QJsonValue(1));
        QCOMPARE(at(jsonOf(validate("--format sarif")),
                    QStringLiteral("runs.0.invocations.0.toolExecutionNotifications.0.level")),
                 QJsonValue(QStringLiteral("warning")));
        QCOMPARE(validate("--ignore trigger-sentences-missing").out, QByteArray());
    }

    void onTerminal() {
        const QStringList arguments{QStringLiteral("validate"), QStringLiteral("wrong.xml")};
        QCOMPARE(terminalOutput(arguments, m_dir.path(), "1"),
                 run(arguments).out + "   18 |   <brioRequirement minVersion=\"2.5\" "
                                      "maxVersion=\"2.4\"/>\n      |   ^\n");
        const QByteArray colored = terminalOutput(arguments, m_dir.path(), "");
        QVERIFY2(colored.startsWith("wrong.xml:18:3: \x1b[31merror\x1b[0m: Brio"),
                 colored.constData());
    }

    // Shown for many files on a terminal, and removed at the end.
    void progress() {
        QStringList arguments{QStringLiteral("validate")};
        for (int i = 0; i < 100; ++i)
            arguments += QStringLiteral("good.xml");
        QCOMPARE(terminalOutput(arguments, m_dir.path(), "1", true), QByteArray());
        arguments.insert(50, QStringLiteral("wrong.xml"));
        const QByteArray shown = terminalOutput(arguments, m_dir.path(), "1", true);
        const QByteArray gone = "\x1b[K\r\x1b[K";
        const QByteArray amid = "\rChecked 49 of 101" + gone + "wrong.xml:18:3: ";
        QVERIFY2(shown.contains(amid), shown.constData());
        const QByteArray last = "\rChecked 100 of 101" + gone + "zel-package: Manifests: 101";
        QVERIFY2(shown.contains(last), shown.constData());
    }
};

QTEST_GUILESS_MAIN(TestZelPackageValidate)
#include "tst_zel_package_validate.moc"
