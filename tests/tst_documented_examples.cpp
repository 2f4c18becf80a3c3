#include "text.h"

#include <mel/model.h>
#include <packagemodel/behavior_commands.h>
#include <packagemodel/change_words.h>
#include <packagemodel/dialog_commands.h>
#include <packagemodel/edit_session.h>
#include <packagemodel/ignore_comments.h>
#include <packagemodel/issue_report.h>
#include <packagemodel/issue_tracker.h>
#include <packagemodel/package_coverage.h>
#include <packagemodel/package_difference.h>
#include <packagemodel/package_edit_command.h>
#include <packagemodel/package_info_utils.h>
#include <packagemodel/package_info_validator.h>
#include <packagemodel/package_json.h>
#include <packagemodel/package_merge.h>
#include <packagemodel/package_scripts.h>
#include <packagemodel/package_search.h>
#include <packagemodel/record_editor.h>
#include <packagemodel/set_string.h>
#include <packagemodel/supported_languages_command.h>
#include <packagemodel/text_states.h>
#include <tano/input_file.h>
#include <tano/kept_content.h>
#include <tano/log.h>
#include <tano/package_helper.h>
#include <tano/path.h>
#include <tano/save_file.h>
#include <tano/version.h>
#include <zel/robot_model.h>

#include <QAction>
#include <QTemporaryDir>
#include <QTest>
#include <QTextStream>
#include <QUndoStack>
#include <QWidget>

#include <array>

using namespace Zel;
using namespace Zel::PackageModel;

namespace {

QString toText(const QString &value) {
    return value;
}
QString toText(const std::string &value) {
    return QString::fromStdString(value);
}
QString toText(bool value) {
    return value ? text("true") : text("false");
}
QString toText(int value) {
    return QString::number(value);
}
QString toText(QTextStream &stream) {
    return stream.readAll();
}

/// What the examples take for granted, anew for each of them.
class Given {
public:
    QTemporaryDir directory;
    const QString folder = directory.filePath(text("state"));
    const QString fileName = directory.filePath(text("manifest.xml"));
    const RobotLanguage english = robotLanguage(text("en_US"));
    const RobotLanguage french = robotLanguage(text("fr_FR"));
    PackageInfoModel package;
    PackageInfoModel opened;
    PackageInfoModel edited;
    Tano::PackageInfo record, base, ours, theirs;
    std::string manifest;
    Edits changes;
    UnsavedEdits unsaved;
    const QString path = text("stories/bedtime");
    const QString dialog = text("book-advice");
    QUndoStack stack;
    QStringList list;
    TextMatches found;
    QWidget window;
    QAction *publishAction = new QAction(&window);
    QString printed;
    QTextStream out{&printed};
    QFile file{directory.filePath(text("package.json"))};

    Given() {
        QFile::copy(text(ZEL_SOURCE_DIR "/examples/packages/ten-languages/manifest.xml"), fileName);
        QFile sample(fileName);
        if (!record.loadFromManifestFile(sample) || !file.open(QIODevice::WriteOnly))
            qFatal("no sample");
        manifest = record.saveToManifestContent();
        package = PackageInfoModel(record);
        opened = package;
        edited = package;
        edited.setName(text("Tea"), english);
        base = ours = theirs = record;
        changes = edits(&opened, &edited);
    }

    void showMessage(const QString &message) { QFAIL(qPrintable(message)); }
    void showIssues(const QVector<Issue> &) {}
    void showConflict(const QString &, const QString &, const QString &) { QFAIL("conflict"); }

    template<typename Value>
    void expect(Value &&value, const char *expected) {
        QCOMPARE(toText(value), QString::fromUtf8(expected));
    }
    void runProgram(int (*main)(int argc, char **argv)) {
        QByteArray argument = fileName.toLocal8Bit();
        std::array<char *, 3> arguments{argument.data(), argument.data(), nullptr};
        QCOMPARE(main(2, arguments.data()), 0);
    }
};

struct Example {
    const char *place;
    void (*run)();
};

template<typename Code>
void runExample() {
    Code().run();
}

} // namespace

#include "documented_examples.inc"

class TestDocumentedExamples : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void example_data() {
        QTest::addColumn<int>("index");
        for (std::size_t i = 0; i < examples.size(); ++i)
            QTest::newRow(examples[i].place) << int(i);
    }

    void example() {
        QFETCH(int, index);
        examples[std::size_t(index)].run();
    }

    void everyClassHasOne() {
        for (const char *name : classesWithoutExample)
            QTest::qFail(name, __FILE__, __LINE__);
    }
};

QTEST_MAIN(TestDocumentedExamples)
#include "tst_documented_examples.moc"
