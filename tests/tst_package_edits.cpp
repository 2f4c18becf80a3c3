#include "golden.h"
#include "text.h"

#include <packagemodel/package_edit_command.h>
#include <packagemodel/package_info_model.h>

#include <QSet>
#include <QTest>
#include <QUndoStack>

#include <random>

using namespace Zel;
using namespace Zel::PackageModel;
using Tano::FieldPath;

namespace {

FieldPath path(const char *printedPath) {
    const auto parsed = FieldPath::parse(printedPath);
    if (!parsed)
        qFatal("not a path: %s", printedPath);
    return *parsed;
}

QByteArray listing(const PackageInfoModel &package) {
    QString lines;
    for (const Field &field : fields(&package))
        lines += fromUtf8(field.path.toString()) % u'=' % printed(field.value) % text("  # ") %
                 field.label % text(": ") % label(field.path) % u'\n';
    return lines.toUtf8();
}

// What differs between the caches of a package and those of a new one with the same record.
QByteArray cacheDifference(const PackageInfoModel &package) {
    const PackageInfoModel fresh(package.packageInfo());
    const auto lines = [](const PackageInfoModel &of) {
        const QStringList all = QString::fromUtf8(listing(of)).split(u'\n');
        return QSet<QString>(all.begin(), all.end());
    };
    const QSet<QString> live = lines(package);
    const QSet<QString> made = lines(fresh);
    // A new model makes every supported language a description language.
    QStringList differing = ((live - made) + (made - live)).values();
    for (const RobotLanguage &language : package.supportedLanguages())
        differing.removeAll(QStringLiteral("descriptionLanguages[%1]=%1  # Description language: "
                                           "Description language “%2”")
                                .arg(language.isoCode(), language.uiName()));
    return differing.join(u'\n').toUtf8();
}

// Random edits of a package: of its fields, and of lists found by dropping selectors.
class RandomEdits {
public:
    explicit RandomEdits(unsigned seed)
        : m_random(seed) {}

    Edit next(const PackageInfoModel &package) {
        const QVector<Field> all = fields(&package);
        Edit edit{Edit::Action(below(4)), all.at(below(int(all.size()))).path};
        for (int dropped = below(3); dropped > 0; --dropped)
            edit.path = edit.path.parent();
        edit.index = below(5);
        edit.value = someValue(package, all);
        return edit;
    }

private:
    int below(int bound) { return int(m_random() % unsigned(bound)); }

    std::optional<FieldValue> someValue(const PackageInfoModel &package,
                                        const QVector<Field> &all) {
        static const QStringList texts{text("x"),     text("y"),     text("greet"),
                                       text("de_DE"), text("<&]]>"), text("\xC3\xA9"),
                                       QString(),     text("a\x01")};
        switch (below(8)) {
        case 0:
            return below(2) == 0;
        case 1:
            return SoftwareVersionUtils::fromString(text("4.5.6"));
        case 2:
            return package.robotRequirement(0);
        case 3:
            return package.brioRequirement(0);
        case 4: {
            const auto &any = all.at(below(int(all.size()))).path;
            return value(&package, any.parent().isEmpty() ? any : any.parent());
        }
        default:
            return texts.at(below(int(texts.size())));
        }
    }

    std::mt19937 m_random;
};

} // namespace

class TestPackageEdits : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void listed();
    void refused_data();
    void refused();
    void allOrNone();
    void inversesRestoreEverything_data();
    void inversesRestoreEverything();
    void otherModelsStay();
    void typedRuns();
    void renamedRuns();
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

void TestPackageEdits::refused_data() {
    QTest::addColumn<int>("action");
    QTest::addColumn<QString>("at");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("error");
    using A = Edit::Action;
    const auto row = [](A action, const char *at, const char *value, const char *error) {
        QTest::addRow("%d %s %s", int(action), at, value)
            << int(action) << text(at) << QString::fromUtf8(value) << text(error);
    };
    row(A::Set, "autor", "x", "autor: There is no field 'autor'; did you mean 'author'?");
    row(A::Set, "version", "1.0", "version: The value is of another type.");
    row(A::Set, "behaviors[greet]", "x", "behaviors[greet]: The value is of another type.");
    row(A::Set, "behaviors", "x", "behaviors: The field does not allow this change.");
    row(A::Set, "author", "a\x01",
        "author: The text holds the character U+0001, which a manifest "
        "cannot hold.");
    row(A::Set, "behaviors[odd\\]\\\\path].path", "greet",
        "behaviors[odd\\]\\\\path].path: 'greet' is taken.");
    row(A::Set, "supportedLanguages[en_US]", "de_DE",
        "supportedLanguages[en_US]: The value is of another type.");
    row(A::Insert, "supportedLanguages", "en_US", "supportedLanguages: 'en_US' is there already.");
    row(A::Insert, "behaviors[greet].permissions", "camera",
        "behaviors[greet].permissions: 'camera' is there already.");
    row(A::Insert, "author", "x", "author: The field does not allow this change.");
    row(A::Remove, "author", "", "author: The field does not allow this change.");
    row(A::Remove, "names[fr_FR]", "", "names[fr_FR]: There is none.");
    row(A::Move, "dialogs[talk]", "", "dialogs[talk]: The list has no such index.");
    row(A::Move, "names[en_US]", "", "names[en_US]: The field does not allow this change.");
}

void TestPackageEdits::refused() {
    QFETCH(int, action);
    QFETCH(QString, at);
    QFETCH(QString, text);
    const QByteArray before = bytes();
    const Edit edit{Edit::Action(action), path(at.toUtf8().constData()), text, 1};
    const QString reason = refusal(m_package.get(), edit);
    QVERIFY(!reason.isEmpty());
    QTEST(QString(at % QStringLiteral(": ") % reason), "error");
    QTEST(error(edit), "error");
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
    QTest::addColumn<unsigned>("seed");
    const int wanted = qEnvironmentVariableIntValue("ZEL_EDIT_SEEDS"); // for longer runs
    for (unsigned seed = 0; seed < unsigned(wanted > 0 ? wanted : 40); ++seed)
        QTest::addRow("seed %u", seed) << seed;
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

void TestPackageEdits::renamedRuns() {
    QUndoStack stack;
    const QByteArray before = bytes();
    for (const auto &[from, to] : {std::pair("behaviors[odd\\]\\\\path].path", "a"),
                                   {"behaviors[a].path", "ab"},
                                   {"behaviors[ab].path", "abc"}}) {
        const Edit edit{Edit::Action::Set, path(from), text(to)};
        stack.push(new PackageEditCommand(m_package.get(), {edit}, text("Rename"), false));
    }
    QCOMPARE(stack.count(), 1);
    QVERIFY(m_package->behavior(text("abc")));
    stack.undo();
    QCOMPARE(bytes(), before);
    stack.redo();
    QVERIFY(m_package->behavior(text("abc")));
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
    QCOMPARE(command->error(), text("There is no package to be edited."));
}

QTEST_GUILESS_MAIN(TestPackageEdits)
#include "tst_package_edits.moc"
