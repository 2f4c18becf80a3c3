#include "golden.h"
#include "program_run.h"

#include <packagemodel/package_info_model.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

#include <utility>

namespace {

// The output, with "2> " before each line of the messages, and "=> " before a status other than 0.
QByteArray printed(const Outcome &outcome) {
    QByteArray lines = outcome.out;
    if (!lines.isEmpty() && !lines.endsWith('\n'))
        lines += '\n';
    const QList<QByteArray> messages = outcome.err.split('\n');
    for (const QByteArray &message : messages) {
        if (!message.isEmpty())
            lines += "2> " + message + '\n';
    }
    if (outcome.status != 0)
        lines += "=> " + QByteArray::number(outcome.status) + '\n';
    return lines;
}

} // namespace

class TestZelPackage : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_dir;

    Outcome run(const QStringList &arguments) const { return runProgram(arguments, m_dir.path()); }
    // Each line that starts with "$ ", and what it prints.
    QString printedLines(const QString &block) const {
        QByteArray lines;
        const QStringList blockLines = block.split(u'\n');
        for (const QString &line : blockLines) {
            if (line.startsWith(QLatin1String("$ ")))
                lines += line.toUtf8() + '\n' + printed(runShell(line.mid(2), m_dir.path()));
        }
        return QString::fromUtf8(lines);
    }
    QByteArray onTerminal(const QStringList &arguments, const char *noColor) const {
        return terminalOutput(arguments, m_dir.path(), noColor);
    }

private Q_SLOTS:
    void init() { resetFiles(m_dir.path()); }

    // Files of shell commands, "$ zel-package ...", each followed by the printed() outcome.
    void shellLines_data() {
        QTest::addColumn<QString>("path");
        const auto files = QDir(testData("zel-package/shell")).entryInfoList(QDir::Files);
        for (const QFileInfo &file : files)
            QTest::newRow(qPrintable(file.baseName())) << file.filePath();
    }

    void shellLines() {
        QFETCH(QString, path);
        QByteArray transcript;
        const QList<QByteArray> lines = contentOf(path).split('\n');
        for (const QByteArray &line : lines) {
            if (line.startsWith("$ ")) {
                resetFiles(m_dir.path());
                transcript +=
                    line + '\n' + printed(runShell(QString::fromUtf8(line.mid(2)), m_dir.path()));
            }
        }
        QVERIFY(!transcript.isEmpty());
        COMPARE_WITH_GOLDEN(path, transcript);
    }

    // In documents, each "$ " line of a block fenced with ```console is followed by its printed()
    // outcome. A comment "run: LINE" prepares, and "file: NAME" makes a file of the next block.
    void documents_data() {
        QTest::addColumn<QString>("path");
        QFileInfoList files = QDir(QStringLiteral(ZEL_SOURCE_DIR "/docs"))
                                  .entryInfoList({QStringLiteral("*.md")}, QDir::Files);
        files.append(QFileInfo(QStringLiteral(ZEL_SOURCE_DIR "/README.md")));
        for (const QFileInfo &file : std::as_const(files)) {
            if (contentOf(file.filePath()).contains("```console"))
                QTest::newRow(qPrintable(file.baseName())) << file.filePath();
        }
    }

    void documents() {
        QFETCH(QString, path);
        const QRegularExpression part(
            QStringLiteral("^<!-- (run|file): (.*) -->$|^```(\\w*)\n((?:.*\n)*?)```$"),
            QRegularExpression::MultilineOption);
        const QString document = QString::fromUtf8(contentOf(path));
        QString actual;
        QString fileName;
        int end = 0;
        for (auto parts = part.globalMatch(document); parts.hasNext();) {
            const QRegularExpressionMatch match = parts.next();
            if (match.captured(1) == QLatin1String("run"))
                QCOMPARE(printed(runShell(match.captured(2), m_dir.path())), QByteArray());
            else if (match.captured(1) == QLatin1String("file"))
                fileName = match.captured(2);
            else if (!fileName.isEmpty())
                write(m_dir.filePath(std::exchange(fileName, {})), match.captured(4).toUtf8());
            else if (match.captured(3) == QLatin1String("console")) {
                actual += document.mid(end, int(match.capturedStart(4)) - end);
                actual += printedLines(match.captured(4));
                end = int(match.capturedEnd(4));
            }
        }
        actual += document.mid(end);
        COMPARE_WITH_GOLDEN(path, actual.toUtf8());
    }

    // The manual page and the completions cover everything in the help.
    void helpIsComplete() {
        const QByteArray manual =
            contentOf(QStringLiteral(ZEL_SOURCE_DIR "/docs/zel-package.1")).replace("\\-", "-");
        const QRegularExpression entry(QStringLiteral("^  (?:-[a-z], )?([-a-z]+) "),
                                       QRegularExpression::MultilineOption);
        QCOMPARE(run({QStringLiteral("--version")}).out,
                 QByteArray("zel-package " ZEL_VERSION "\n"));
        const auto completion = [&](const QStringList &words) {
            return run(QStringList{QStringLiteral("--complete")} + words).out;
        };
        const auto check = [&](const QByteArray &page, const QByteArray &candidates) {
            auto entries = entry.globalMatch(QString::fromUtf8(page));
            QVERIFY(entries.hasNext());
            while (entries.hasNext()) {
                const QByteArray word = entries.next().captured(1).toUtf8();
                QVERIFY2(manual.contains(word) && candidates.contains(QByteArray(word + '\n')),
                         word.constData());
            }
        };
        QList<QStringList> left{QStringList()};
        while (!left.isEmpty()) {
            const QStringList names = left.takeFirst();
            const QByteArray page = run(names + QStringList{QStringLiteral("-h")}).out;
            QVERIFY(page.startsWith(QByteArray("Usage: zel-package " + names.join(u' ').toUtf8())));
            const QByteArray words = completion(names + QStringList{QString()});
            const bool isGroup = words.contains("--help\n");
            check(page, isGroup ? words : completion(names + QStringList{QStringLiteral("--")}));
            for (const QByteArray &word : words.trimmed().split('\n')) {
                if (isGroup && !word.startsWith('-'))
                    left.append(names + QStringList{QString::fromUtf8(word)});
            }
        }
    }

    // The output contains all of the text, and nothing that garbles a terminal.
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
};

QTEST_GUILESS_MAIN(TestZelPackage)
#include "tst_zel_package.moc"
