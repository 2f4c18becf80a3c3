#include "command_classes.h"
#include "edit_script.h"
#include "signal_log.h"
#include "table_file.h"

#include <QRegularExpression>
#include <QUndoStack>

#include <rapidcheck.h>

using namespace Zel;

namespace {

// The classes whose undoing may not restore the package; irreversible.json has an example of each.
const QRegularExpression lasting(text("AddRemove|BehaviorPath|ModelName|PackageLanguage"));

int any(int count) {
    return *rc::gen::inRange(0, count);
}

QString pick(const char *words) {
    const QStringList all = text(words).split(u' ');
    return all.at(any(int(all.size())));
}

Commands::Arguments anyArguments(const QString &className, PackageInfoModel &package) {
    Commands::Arguments a;
    a.model = &package;
    a.key = (className.startsWith(u'B') ? u'p' : u't') % QString::number(any(3));
    a.value = {pick(" 1 2 a b c é<& camera speech p0 p1 p3 t0 t1 t3")};
    a.tag = {className.contains(text("Condition")) ? pick("launch stop")
                                                   : pick("en_US fr_FR qd_QA")};
    a.index = any(5) - 1;
    a.what = {any(className.contains(text("Localized")) ? 2 : 8)};
    a.isAdd = any(2) == 0;
    a.isFinal = any(4) == 0;
    return a;
}

QString anyClass() {
    const auto &classes = Commands::commandClasses();
    return text(classes.at(std::size_t(any(int(classes.size())))).name);
}

// A package with comments and unknown content, and its undo stack.
struct Edited {
    Edited() {
        if (!package.loadFromManifestContent(testData(text("commands/package.xml"))))
            qFatal("%s", package.packageInfo().errorString().c_str());
    }
    QByteArray bytes() {
        package.syncRecord();
        return package.saveToManifestContent();
    }
    void push(const QString &className, const Commands::Arguments &arguments) {
        stack.push(Commands::made(className, arguments).release());
    }

    PackageInfoModel package;
    QUndoStack stack;
};

} // namespace

class TestEditProperties : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyIndexHasItsBytes();
    void whatUndoingDoesNotRestore_data() { addRowsOf("commands/irreversible.json"); }
    void whatUndoingDoesNotRestore();
    void missingTextsAreUndoneToEmptyOnes();
};

// Undoing and redoing restore the exact bytes for every index, in any order.
void TestEditProperties::everyIndexHasItsBytes() {
    const bool holds = rc::check("every index of the stack has its bytes", [] {
        Edited edited;
        QUndoStack &stack = edited.stack;
        std::vector<QByteArray> bytes{edited.bytes()};
        const auto expectBytesAt = [&](int index) {
            stack.setIndex(index);
            RC_ASSERT(edited.bytes() == bytes.at(std::size_t(index)));
            RC_ASSERT(EditScript::cacheDifference(edited.package).isEmpty());
        };
        const int edits = *rc::gen::inRange(1, 80);
        for (int i = 0; i < edits; ++i) {
            const QString className = anyClass();
            edited.push(className, anyArguments(className, edited.package));
            const int index = stack.index(); // the same as before if the command was merged
            bytes.resize(std::size_t(index));
            bytes.push_back(edited.bytes());
            stack.undo();
            if (edited.bytes() == bytes.at(std::size_t(index - 1))) {
                expectBytesAt(index);
                expectBytesAt(any(3) == 0 ? any(index + 1) : index);
            } else {
                RC_ASSERT(className.contains(lasting));
                stack.clear();
                bytes = {edited.bytes()};
            }
        }
        for (int index = stack.count(); index >= 0; --index)
            expectBytesAt(index);
        expectBytesAt(stack.count());
    });
    QVERIFY(holds);
}

void TestEditProperties::whatUndoingDoesNotRestore() {
    QFETCH(QString, className);
    QFETCH(QString, key);
    QFETCH(QString, value);
    QFETCH(QString, tag);
    QFETCH(QString, isAdd);
    QFETCH(QString, left);
    Edited edited;
    SignalLog log(edited.package);
    for (BehaviorInfoModel *behavior : edited.package.behaviors())
        log.watch(*behavior, behavior->path());
    for (DialogInfoModel *dialog : edited.package.dialogs())
        log.watch(*dialog, dialog->topicName());
    QVERIFY(className.contains(lasting));
    edited.push(className, {&edited.package, key, {value}, {tag}, 1, {}, isAdd == text("true")});
    log.take();
    edited.stack.undo();
    QTEST(log.take().join(u'\n'), "undone");
    QVERIFY2(edited.bytes().contains(left.toUtf8()), edited.bytes().constData());
}

// A manifest does not distinguish absent texts from empty ones unless the element has unknown
// attributes.
void TestEditProperties::missingTextsAreUndoneToEmptyOnes() {
    Edited edited;
    PackageInfoModel &package = edited.package;
    QVERIFY(package.loadFromManifestContent(edited.bytes().replace(
        "<topic language=\"en_US\">", "<topic language=\"en_US\" x=\"1\">")));
    const Commands::Arguments z{&package, text("t0"), {text("z")}, {text("en_US")}};
    edited.push(text("DialogInfoModelRemoveTopicCommand"), z);
    QVERIFY(!edited.bytes().contains("<topic"));
    edited.push(text("DialogInfoModelTopicCommand"), z);
    edited.stack.undo();
    QCOMPARE(package.dialog(text("t0"))->topics(),
             (Language::LocalizedStrings{{QString(), language("en_US")}}));
    QVERIFY(edited.bytes().contains("<topic language=\"en_US\" x=\"1\"/>"));
    edited.stack.undo();
    QVERIFY(edited.bytes().contains("<topic language=\"en_US\" x=\"1\">e.top</topic>"));
}

QTEST_MAIN(TestEditProperties)
#include "tst_edit_properties.moc"
