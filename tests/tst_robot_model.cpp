#include <packagemodel/requirements.h>
#include <zel/robot_model.h>

#include <QDir>
#include <QLoggingCategory>
#include <QSet>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using namespace Zel;

namespace {

QStringList messages;

void record(QtMsgType, const QMessageLogContext &, const QString &text) {
    messages.append(text);
}

QByteArray description(const char *type, const char *model, const char *shortName) {
    return QByteArray(R"({"type": "%t", "model": "%m", "name": "%t-%m", "more": 1,
                          "shortDisplayName": "%s", "displayName": "%s %m"})")
        .replace("%t", type)
        .replace("%m", model)
        .replace("%s", shortName);
}

} // namespace

class TestRobotModel : public QObject {
    Q_OBJECT

private:
    QTemporaryDir m_dir;

    QString made(const char *path, const QByteArray &content) const {
        QFile file(m_dir.filePath(QString::fromUtf8(path)));
        if (!QFileInfo(file).dir().mkpath(QStringLiteral(".")) || !file.open(QFile::WriteOnly) ||
            file.write(content) != content.size())
            qFatal("cannot write %s", path);
        return file.fileName();
    }

    void setDataPath(const QByteArray &directories) const {
        qputenv("ZENTRIX_DATA_PATH",
                QByteArray(directories).replace("~", m_dir.path().toLocal8Bit()));
    }

private Q_SLOTS:
    void initTestCase() {
        QStandardPaths::setTestModeEnabled(true);
        qputenv("HOME", m_dir.path().toLocal8Bit());
        qputenv("XDG_DATA_DIRS", m_dir.path().toLocal8Bit() + "/system");
        qunsetenv("ZENTRIX_DATA_PATH");
    }

    void cleanup() {
        QVERIFY(QDir(m_dir.path()).removeRecursively() && QDir().mkpath(m_dir.path()));
        qunsetenv("ZENTRIX_DATA_PATH");
    }

    void shippedModels() {
        QSet<QString> models;
        const QFileInfoList files = RobotModel::modelFilesInfoList({});
        for (const QFileInfo &file : files) {
            const auto model = RobotModel::model(file);
            QVERIFY2(model, qUtf8Printable(file.filePath()));
            QCOMPARE(QString(model->name() % QLatin1String(".json")), file.fileName());
            QVERIFY(model->displayName(true).startsWith(model->displayName(false)));
            models.insert(model->displayName(true));
        }
        QVERIFY(files.size() >= 5);
        QCOMPARE(models.size(), files.size());
    }

    void readsDescription() {
        const QString path = made("a.json", description("wren", "w1", "Zaunkönig"));
        const auto model = RobotModel::model(QFileInfo(path));
        QVERIFY(model);
        QCOMPARE(model->name(), QStringLiteral("wren-w1"));
        QCOMPARE(model->displayName(false), QStringLiteral("Zaunkönig"));
        QCOMPARE(model->displayName(true), QStringLiteral("Zaunkönig w1"));
        QCOMPARE(Mel::Model::robotTypeString(model->kind()), std::string("wren"));
        QCOMPARE(Mel::Model::robotModelWithoutTypeString(model->kind()), std::string("w1"));

        made("a.json", description("wren", "w2", "x"));
        const auto other = RobotModel::model(QFileInfo(path));
        QVERIFY(other->kind() != model->kind());
        QVERIFY(RobotModel::model(QFileInfo(path))->kind() == other->kind());
        for (const int value : {-1, 1000000}) {
            const auto none = static_cast<Mel::Model::ROBOT_MODEL>(value);
            QCOMPARE(Mel::Model::robotTypeString(none), std::string());
            QCOMPARE(Mel::Model::robotModelWithoutTypeString(none), std::string());
        }
    }

    void brokenFiles_data() {
        QTest::addColumn<QByteArray>("content");
        const QByteArray good = description("wren", "W1", "Wren");
        const auto row = [&](const char *name, const char *before, const char *after) {
            QTest::newRow(name) << QByteArray(good).replace(before, after);
        };
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("no JSON") << good.chopped(1);
        QTest::newRow("an array") << QByteArray('[' + good + ']');
        QTest::newRow("too large") << QByteArray(good + QByteArray(1 << 20, ' '));
        row("no type", "type", "Type");
        row("no model", "\"model\"", "\"Model\"");
        row("no name", "\"name\"", "\"Name\"");
        row("no short name", "shortDisplayName", "short");
        row("no display name", "\"displayName\"", "\"display\"");
        row("empty type", "\"wren\"", "\"\"");
        row("model a number", "\"W1\"", "1");
    }

    void brokenFiles() {
        QFETCH(QByteArray, content);
        QVERIFY(!RobotModel::model(QFileInfo(made("a.json", content))));
        QVERIFY(!RobotModel::model(QFileInfo(m_dir.filePath(QStringLiteral("missing.json")))));
        QVERIFY(!RobotModel::model(QFileInfo(m_dir.path())));
    }

    void filesInOrder() {
        const QString b = made("one/robots/b.json", "");
        const QString a = made("one/robots/a.json", "");
        made("one/robots/notes.txt", "");
        made("one/robots/folder.json/x.json", "");
        const QString otherA = made("two/robots/a.json", "");
        const QString c = made("two/robots/c.json", "");
        made("system/zentrix/robots/z.json", "");
        const QString two = m_dir.filePath(QStringLiteral("two/robots"));
        QCOMPARE(RobotModel::modelFilesInfoList(two),
                 QFileInfoList({QFileInfo(otherA), QFileInfo(c)}));
        QVERIFY(RobotModel::modelFilesInfoList(two % u'x').isEmpty());

        const QFileInfoList others = RobotModel::modelFilesInfoList({});
        QCOMPARE(others.at(0).fileName(), QStringLiteral("z.json"));
        QVERIFY(others.size() > 5); // includes the shipped robots

        setDataPath("~/missing:~/one:~/two");
        QCOMPARE(RobotModel::modelFilesInfoList({}),
                 QFileInfoList({QFileInfo(a), QFileInfo(b), QFileInfo(c)}));
        setDataPath("~");
        QVERIFY(RobotModel::modelFilesInfoList({}).isEmpty());
        setDataPath("");
        QVERIFY(RobotModel::modelFilesInfoList({}).isEmpty());
    }

    // The table is created once per process, so all cases are in one function.
    void prettyRobotNames() {
        made("data/robots/1.json", description("wren", "W1", "Wren"));
        made("data/robots/2.json", description("wren", "w2", "Other"));
        made("data/robots/3.json", "broken");
        made("data/robots/4.json", description("émeu %1", "E_%2", "Émeu %2"));
        made("data/robots/5.json", description("wren", "W1", "Later"));
        setDataPath("~/data");

        QLoggingCategory::setFilterRules(QStringLiteral("PackageModel.Package.debug=true"));
        messages.clear();
        const QtMessageHandler previous = qInstallMessageHandler(record);
        const QMap<QString, QString> &names = RobotRequirement::prettyRobotNames();
        const QStringList logged = std::exchange(messages, {});
        setDataPath("");
        const QMap<QString, QString> &again = RobotRequirement::prettyRobotNames();
        qInstallMessageHandler(previous);

        const QString expected = QStringLiteral("=Any robot, WREN=Wren (any model), WREN_W1=Later "
                                                "W1, WREN_w2=Other w2, ÉMEU %1=Émeu %2 (any "
                                                "model), ÉMEU %1_E_%2=Émeu %2 E_%2");
        QStringList entries;
        for (auto it = names.begin(); it != names.end(); ++it)
            entries += it.key() % u'=' % it.value();
        QCOMPARE(entries.join(QStringLiteral(", ")), expected);

        QCOMPARE(logged.join(u'\n').remove(m_dir.path() % QLatin1String("/data/robots/")),
                 QStringLiteral("prettyRobotNames: Initializing robot family list\n"
                                "prettyRobotNames: Model file found: 1.json\n"
                                "prettyRobotNames: Additional robot family found: wren-W1 (a.k.a. "
                                "Wren)\n"
                                "prettyRobotNames: Model file found: 2.json\n"
                                "prettyRobotNames: Model file found: 3.json\n"
                                "prettyRobotNames: Model file found: 4.json\n"
                                "prettyRobotNames: Additional robot family found: émeu %1-E_%2 "
                                "(a.k.a. Émeu %2)\n"
                                "prettyRobotNames: Model file found: 5.json"));
        QCOMPARE(&again, &names);
        QCOMPARE(messages, QStringList());
    }
};

QTEST_GUILESS_MAIN(TestRobotModel)
#include "tst_robot_model.moc"
