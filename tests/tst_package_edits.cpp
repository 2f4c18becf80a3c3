#include "edit_script.h"
#include "golden.h"
#include "random_edits.h"
#include "table_file.h"
#include "text.h"

#include <packagemodel/change_words.h>
#include <packagemodel/package_difference.h>
#include <packagemodel/package_edit_command.h>
#include <packagemodel/package_info_model.h>
#include <packagemodel/package_json.h>

#include <QTest>
#include <QUndoStack>

using namespace Zel;
using namespace Zel::PackageModel;
using namespace EditScript;
using Tano::FieldPath;

class TestPackageEdits : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void listed();
    void refused_data() { addRowsOf("fields/refused-edits.json"); }
    void refused();
    void allOrNone();
    void inversesRestoreEverything_data();
    void inversesRestoreEverything();
    void differences_data() { inversesRestoreEverything_data(); }
    void differences();
    void fewEdits_data() { addRowsOf("fields/few-edits.json"); }
    void fewEdits();
    void descriptionsOfRefusedEdits();
    void repeatedPermissions();
    void otherModelsStay();
    void typedRuns();
    void runsThatEnd();
    void textsOfSteps();
    void failedCommands();

private:
    QByteArray bytes() const { return m_package->saveToManifestContent(); }
    QString error(const Edit &edit) { return apply(m_package.get(), edit).error; }

    std::unique_ptr<PackageInfoModel> m_package;
};

void TestPackageEdits::init() {
    m_package = std::make_unique<PackageInfoModel>();
    QVERIFY(m_package->loadFromManifestContent(testData(text("fields/package.xml"))));
}

void TestPackageEdits::listed() {
    COMPARE_WITH_GOLDEN(text(ZEL_TEST_DATA "/fields/package.txt"), listing(*m_package));
    for (const Field &field : fields(m_package.get())) {
        QCOMPARE(FieldPath::parse(field.path.toString()), std::optional(field.path));
        QVERIFY2(value(m_package.get(), field.path) == field.value, field.path.toString().c_str());
    }
    for (const char *nothing : {"nothing", "uid[x]", "names", "names[de_DE]", "behaviors[greet][2]",
                                "behaviors[none].path", "behaviors[greet].tags[en_US][3]",
                                "robotRequirements[2]", "robotRequirements[0].none", "version.x"})
        QVERIFY2(!value(m_package.get(), path(nothing)), nothing);
    QVERIFY(fields(nullptr).isEmpty() && !value(nullptr, path("uid")));
    for (const auto &[of, expected] :
         {std::pair("robotRequirements", "Robot requirements"),
          {"brioRequirements[1]", "Brio requirement 2"},
          {"behaviors[none][1]", "Behavior “none (2)”"},
          {"behaviors[a].triggerSentences[qad]", "Trigger sentences of “a” in qad"},
          {"none[1].x", "none[1].x"},
          {"services[a].none", "services[a].none"},
          {"", ""}})
        QCOMPARE(label(*of ? path(of) : FieldPath()), text(expected));
}

void TestPackageEdits::refused() {
    QFETCH(QString, action);
    QFETCH(QString, at);
    QFETCH(QString, text);
    QFETCH(QString, error);
    const QByteArray before = bytes();
    const Edit edit{Edit::Action(actions().indexOf(action)), path(at.toUtf8().constData()), text,
                    1};
    QCOMPARE(refusal(m_package.get(), edit), error);
    QCOMPARE(apply(m_package.get(), edit).error, at % QStringLiteral(": ") % error);
    QCOMPARE(bytes(), before);
}

void TestPackageEdits::allOrNone() {
    const QByteArray before = bytes();
    const Edits edits{{Edit::Action::Remove, path("supportedLanguages[fr_FR]")},
                      {Edit::Action::Move, path("behaviors[greet]"), {}, 2},
                      {Edit::Action::Set, path("services[clock].properties[zone]"), text("CET")},
                      {Edit::Action::Set, path("autor"), text("x")}};
    QCOMPARE(apply(m_package.get(), edits).error,
             text("autor: There is no field 'autor'; did you mean 'author'?"));
    QCOMPARE(bytes(), before);

    const Applied applied = apply(m_package.get(), edits.mid(0, 3));
    QCOMPARE(applied.error, QString());
    QVERIFY(!bytes().contains("talk_fr.top") && bytes().contains("CET"));
    QCOMPARE(apply(m_package.get(), applied.inverse).error, QString());
    QCOMPARE(bytes(), before);
}

void TestPackageEdits::inversesRestoreEverything_data() {
    addSeeds(40);
}

void TestPackageEdits::inversesRestoreEverything() {
    QFETCH(unsigned, seed);
    RandomEdits edits(seed);
    const QByteArray initial = bytes();
    Edits undo;
    for (int step = 0; step < 60; ++step) {
        const QByteArray before = bytes();
        const Edit edit = edits.next(*m_package);
        const std::string place = " of action " + std::to_string(int(edit.action)) + " at " +
                                  edit.path.toString() + ", step " + std::to_string(step);
        const auto describe = [&](const QByteArray &what) { return what.toStdString() + place; };
        Applied applied = apply(m_package.get(), edit);
        if (!applied.error.isEmpty()) {
            QVERIFY2(bytes() == before, describe("a refusal").c_str());
            continue;
        }
        const QByteArray after = bytes();
        QVERIFY2(cacheDifference(*m_package).isEmpty(),
                 describe(cacheDifference(*m_package) + " after").c_str());
        QVERIFY2(editsFromJson(toJson(applied.inverse)).edits == applied.inverse,
                 describe("JSON of the inverse").c_str());
        const Applied back = apply(m_package.get(), applied.inverse);
        QVERIFY2(back.error.isEmpty(), describe(back.error.toUtf8() + " by the inverse").c_str());
        QVERIFY2(bytes() == before,
                 describe(before + "\ninstead of\n" + bytes() + "\nby the inverse").c_str());
        applied = apply(m_package.get(), back.inverse);
        QVERIFY2(applied.error.isEmpty() && bytes() == after, describe("redoing").c_str());
        undo = applied.inverse + undo;
    }
    QCOMPARE(apply(m_package.get(), undo).error, QString());
    QCOMPARE(bytes(), initial);
    QCOMPARE(cacheDifference(*m_package), QByteArray());
}

void TestPackageEdits::differences() {
    QFETCH(unsigned, seed);
    RandomEdits random(seed);
    // Differences contain a repeated permission only once.
    QCOMPARE(error({Edit::Action::Remove, path("behaviors[greet][1].permissions[0]")}), QString());
    PackageInfoModel target;
    QVERIFY(target.loadFromManifestContent(bytes()));
    for (int round = 0; round < 6; ++round) {
        for (int step = 0; step < 10; ++step) {
            apply(&target, random.next(target));
            if (step < round)
                apply(m_package.get(), random.next(*m_package));
        }
        const QByteArray before = bytes();
        const Edits found = edits(m_package.get(), &target);
        const ParsedEdits read = editsFromJson(toJson(found));
        QVERIFY2(read.error.isEmpty() && read.edits == found, qPrintable(read.error));
        PackageInfoModel described(*m_package);
        visitChanges(&described, found, [](const QString &line) { QVERIFY(!line.isEmpty()); });
        const Applied applied = apply(m_package.get(), found);
        QVERIFY2(applied.error.isEmpty(), qPrintable(applied.error + u'\n' + script(found)));
        QCOMPARE(orderedListing(*m_package), orderedListing(target));
        QCOMPARE(cacheDifference(*m_package), QByteArray());
        QCOMPARE(script(edits(m_package.get(), &target)), QString());
        QCOMPARE(apply(m_package.get(), applied.inverse).error, QString());
        QCOMPARE(bytes().split('\n'), before.split('\n'));
    }
}

// The edits that are found, if they differ from those that changed the target, are in the last
// column.
void TestPackageEdits::fewEdits() {
    QFETCH(QStringList, setup);
    QFETCH(QStringList, change);
    QFETCH(QStringList, found);
    QCOMPARE(apply(m_package.get(), editsOf(setup.join(u'\n'))).error, QString());
    PackageInfoModel target(*m_package);
    QCOMPARE(apply(&target, editsOf(change.join(u'\n'))).error, QString());
    const Edits difference = edits(m_package.get(), &target);
    const QStringList expected = found.isEmpty() ? change : found;
    QCOMPARE(script(difference).split(u'\n', Qt::SkipEmptyParts), expected);
    const QByteArray before = bytes();
    const Applied applied = apply(m_package.get(), difference);
    QCOMPARE(applied.error, QString());
    QCOMPARE(orderedListing(*m_package), orderedListing(target));
    QCOMPARE(apply(m_package.get(), applied.inverse).error, QString());
    QCOMPARE(bytes(), before);
    QVERIFY(edits(nullptr, &target).isEmpty() && edits(&target, nullptr).isEmpty());
}

void TestPackageEdits::descriptionsOfRefusedEdits() {
    QStringList lines;
    visitChanges(m_package.get(), {{Edit::Action::Remove, path("descriptions[de_DE]")}},
                 [&](const QString &line) { lines += line; });
    QCOMPARE(lines, QStringList{text("Description in German (Germany) removed")});
}

void TestPackageEdits::repeatedPermissions() {
    const auto load = [](PackageInfoModel &package, const QStringList &permissions) {
        const QString elements = permissions.join(text("</permission><permission>"));
        return package.loadFromManifestContent(
            QString(text("<package format=\"1\" uid=\"u\" version=\"1\"><behavior path=\"p\">"
                         "<permission>") %
                    elements % text("</permission></behavior></package>"))
                .toUtf8());
    };
    const QStringList repeated{text("a"), text("b"), text("a"), text("c")};
    PackageInfoModel target;
    QVERIFY(load(*m_package, repeated) && load(target, {text("a"), text("b")}));
    QVERIFY(edits(m_package.get(), m_package.get()).isEmpty());
    QCOMPARE(apply(m_package.get(), edits(m_package.get(), &target)).error, QString());
    QCOMPARE(listing(*m_package), listing(target));
    QVERIFY(load(target, repeated));
    QCOMPARE(apply(m_package.get(), edits(m_package.get(), &target)).error, QString());
    QCOMPARE(m_package->behaviors().at(0)->permissionList(),
             QStringList({text("a"), text("b"), text("c")}));
}

void TestPackageEdits::otherModelsStay() {
    PackageInfoModel package;
    for (int i = 0; i < 1000; ++i)
        package.addBehavior(QString::number(i));
    const auto before = package.behaviors();
    QUndoStack stack;
    stack.push(new PackageEditCommand(&package, {{Edit::Action::Remove, path("behaviors[0]")}},
                                      text("Remove")));
    QCOMPARE(package.behaviors(), before.mid(1));
    stack.undo();
    QCOMPARE(package.behaviors().mid(1), before.mid(1));
    QCOMPARE(package.behaviors().at(0)->path(), text("0"));
}

void TestPackageEdits::typedRuns() {
    QUndoStack stack;
    PackageInfoModel other;
    const auto type = [&](PackageInfoModel *package, const char *typed, bool isFinal = false) {
        const Edit edit{Edit::Action::Set, path("author"), text(typed)};
        stack.push(new PackageEditCommand(package, {edit}, text("Type"), isFinal));
    };
    type(m_package.get(), "A B");
    type(m_package.get(), "x");
    type(m_package.get(), "xy", true);
    QCOMPARE(stack.count(), 1);
    type(m_package.get(), "z");
    QCOMPARE(stack.count(), 2);
    type(m_package.get(), "xy");
    QCOMPARE(stack.count(), 1); // typed back
    type(m_package.get(), "z");
    type(&other, "z");
    QCOMPARE(stack.count(), 3);
    for (const char *version : {"2", "2.5"}) {
        const Edit edit{Edit::Action::Set, path("brioRequirements[0].minVersion"),
                        SoftwareVersionUtils::fromString(text(version))};
        stack.push(new PackageEditCommand(m_package.get(), {edit}, text("Type"), false));
    }
    QCOMPARE(stack.count(), 4);
    stack.setIndex(0);
    QCOMPARE(m_package->author(), text("A B"));
    stack.setIndex(3);
    QCOMPARE(m_package->author(), text("z"));
}

void TestPackageEdits::runsThatEnd() {
    QUndoStack stack;
    const QByteArray before = bytes();
    const auto top = [&]() -> const PackageEditCommand * {
        return dynamic_cast<const PackageEditCommand *>(stack.command(stack.index() - 1));
    };
    const auto push = [&](const Edits &edits, bool startsRun = false) {
        auto *command = new PackageEditCommand(m_package.get(), edits, {}, false);
        if (startsRun)
            command->startRun();
        stack.push(command);
    };
    // An absent text, and a renamed entry.
    for (const char *field : {"names[de_DE]", "behaviors[odd\\]\\\\path].path"}) {
        push({{Edit::Action::Set, path(field), text("a")}});
        push({{Edit::Action::Set, top()->inverse().front().path, text("ab")}});
        QCOMPARE(stack.count(), 1);
        QCOMPARE(script(top()->edits()), text(field).prepend(text("set ")) + text(" ab\n"));
        push({{Edit::Action::Set, top()->inverse().front().path, text("abc")}}, true);
        QCOMPARE(stack.count(), 2);
        for (int left : {1, 0}) {
            push(top()->inverse());
            QCOMPARE(stack.count(), left);
        }
        QCOMPARE(bytes(), before);
    }
    // An inserted item.
    const auto list = path("behaviors[greet].tags[nl_NL]");
    push({{Edit::Action::Insert, list, text("a")}});
    push({{Edit::Action::Set, path("behaviors[greet].tags[nl_NL][0]"), text("ab")}});
    QCOMPARE(stack.count(), 1);
    QCOMPARE(script(top()->edits()), text("insert behaviors[greet].tags[nl_NL] 0 ab\n"));
    stack.undo();
    QCOMPARE(bytes(), before);
    stack.redo();
    push(top()->inverse());
    QCOMPARE(stack.count(), 0);
    QCOMPARE(bytes(), before);
}

void TestPackageEdits::textsOfSteps() {
    for (const auto &[edit, expected] :
         {std::pair("set author x", "Set author"),
          {"set uid x", "Set UID"},
          {"set behaviors[greet].names[fr_FR] x", "Set name of “greet” in French (France)"},
          {"set behaviors[greet].path x", "Rename behavior “greet”"},
          {"insert behaviors 0 a", "Add behavior “a”"},
          {"insert supportedLanguages 0 de_DE", "Add supported language “German (Germany)”"},
          {"insert behaviors[greet].tags[en_US] 0 x", "Add to tags of “greet” in English (United "
                                                      "States)"},
          {"remove robotRequirements[0]", "Remove robot requirement 1"},
          {"move dialogs[talk] 1", "Move dialog “talk”"},
          {"remove names[en_US]\nset uid x\nset author x",
           "Remove name in English (United States) (and 2 more)"}})
        QCOMPARE(PackageEditCommand(m_package.get(), editsOf(text(edit))).text(), text(expected));
    QCOMPARE(label(Edits{{Edit::Action::Set, {}, m_package->packageInfo()}}),
             text("Replace the package"));
    QCOMPARE(label(Edits()), QString());
    QCOMPARE(PackageEditCommand(m_package.get(), {}, text("x")).text(), text("x"));
}

void TestPackageEdits::failedCommands() {
    QUndoStack stack;
    const QByteArray before = bytes();
    auto *command = new PackageEditCommand(
        m_package.get(), {{Edit::Action::Remove, path("behaviors[none]")}}, text("Remove"));
    stack.push(command);
    QCOMPARE(command->error(),
             text("behaviors[none]: There is no 'none'; available: greet, greet, odd]\\path."));
    stack.undo();
    QCOMPARE(bytes(), before);
    m_package.reset();
    stack.redo();
    QCOMPARE(command->error(), text("There is no package to edit."));
}

QTEST_GUILESS_MAIN(TestPackageEdits)
#include "tst_package_edits.moc"
