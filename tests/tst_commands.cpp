#include "command_classes.h"
#include "signal_log.h"
#include "table_file.h"
#include "warning_guard.h"

#include <QRegularExpression>
#include <QTest>
#include <QTranslator>
#include <QUndoStack>

using namespace Zel;
using Commands::commandClass;
using Commands::commandClasses;
using Commands::made;

namespace {

QString text(const char *utf8) {
    return QString::fromUtf8(utf8);
}

// A command class defined by an editor.
class EditorNature : public BehaviorSetStringCommand {
public:
    using BehaviorSetStringCommand::BehaviorSetStringCommand;
    int id() const override { return 1; }
    void setValue(const QString &) override {}
};

class EditorDialogName : public DialogInfoModelCommand {
public:
    using DialogInfoModelCommand::DialogInfoModelCommand;
    int id() const override { return 0; }
    void setValue(const QString &) override {}
};

bool isFinal(const QUndoCommand &command) {
    return dynamic_cast<const MergeableCommand &>(command).isFinalCommand();
}

using IsA = bool (*)(const QUndoCommand &);

template<typename Base>
bool isA(const QUndoCommand &command) {
    return dynamic_cast<const Base *>(&command);
}

// Records the translated texts and puts them into brackets.
class RecordingTranslator : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *, int) const override {
        m_asked.append(QLatin1String(context) % u'|' % QString::fromUtf8(source));
        return u'[' % QString::fromUtf8(source) % u']';
    }
    QStringList take() {
        m_asked.sort();
        return std::exchange(m_asked, {});
    }

private:
    mutable QStringList m_asked;
};

// Adds a behavior and a dialog, both named tea.
void fill(PackageInfoModel &package) {
    const RobotLanguage french = Commands::Tag{text("fr_FR")};
    package.setInstaller(text("old"));
    package.setVersion({1, 0, 0});
    package.setName(text("nom"), french);
    package.addBehavior(text("tea"));
    BehaviorInfoModel &behavior = *package.behavior(text("tea"));
    behavior.setNature(text("solitary"));
    behavior.setName(text("Saluer"), french);
    behavior.setDescription(text("Salue"), french);
    for (const char *item : {"a", "b", "c"}) {
        behavior.addTag(text(item), french);
        behavior.addTriggerSentence(text(item), french);
        behavior.addLoadingResponse(text(item), french);
        behavior.addCondition(text(item), french.isoCode());
    }
    package.addDialog(text("tea"));
    DialogInfoModel &dialog = *package.dialog(text("tea"));
    dialog.setTypeVersion(text("1.0"));
    dialog.setTopic(french, text("t_fr"));
    package.syncRecord();
}

} // namespace

class TestCommands : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { QCOMPARE(m_warnings.take(), QStringList()); }

    void steps_data() { addRowsOf("commands/steps.json"); }
    void steps();
    void derivation();
    void merges_data();
    void merges();
    void mergesByField_data();
    void mergesByField();
    void mergesWithEditorClasses();
    void runsOfRenames();
    void renamedToWhatCannotBeHeld();
    void topicTextOfARun();
    void argumentsInTexts();
    void switchNamesTheBehavior();
    void permissionsUndoBlindly();
    void listsByHand();
    void listStepsThatFail();
    void selectorsOutsideTheTable();

private:
    QStringList taken() { return m_log->take(); }

    WarningGuard m_warnings;
    std::unique_ptr<PackageInfoModel> m_package;
    std::unique_ptr<SignalLog> m_log;
    BehaviorInfoModel *m_behavior = nullptr;
    DialogInfoModel *m_dialog = nullptr;
    Commands::Arguments m_arguments;
};

void TestCommands::init() {
    m_warnings.watch();
    m_package = std::make_unique<PackageInfoModel>();
    fill(*m_package);
    m_behavior = m_package->behavior(text("tea"));
    m_dialog = m_package->dialog(text("tea"));
    m_log = std::make_unique<SignalLog>();
    m_log->watch(*m_package);
    m_log->watch(*m_behavior, text("b"));
    m_log->watch(*m_dialog, text("d"));
    m_arguments = {m_package.get(), text("tea"), {text("2")}, {text("fr_FR")}, 1};
}

// One row per class and variant: the translated source, the text (with the translated part in
// brackets), and the notifications of redo and undo.
void TestCommands::steps() {
    QFETCH(QString, command);
    const QString className = command.section(u' ', 0, 0);
    const QString variant = command.section(u' ', 1);
    m_arguments.what = {variant.toInt()};
    m_arguments.isAdd = variant != QLatin1String("removing");
    if (!m_arguments.isAdd)
        m_behavior->addPermission(m_arguments.value);
    taken();
    RecordingTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    translator.take();
    const auto step = made(className, m_arguments);
    QTEST(translator.take(), "translated");
    QTEST(step->text(), "text");
    QCOMPARE(step->id(), commandClass(className).id);
    QCOMPARE(taken(), QStringList());
    for (int round = 0; round < 2; ++round) {
        step->redo();
        QTEST(taken(), "done");
        step->undo();
        QTEST(taken(), "undone");
        if (className == QLatin1String("PackageLanguageCommand"))
            break; // description languages and topics may stay
    }
    QCOMPARE(translator.take(), QStringList());
}

// Checks the base classes at run time and from outside the library.
void TestCommands::derivation() {
    const std::pair<const char *, IsA> bases[]{
        {".", isA<PackageCommand>},
        {"^Package.*String", isA<PackageGenericValueCommand<QString>>},
        {"^PackageLanguage", isA<PackageLanguageCommand>},
        {"^Behavior", isA<BehaviorCommand>},
        {"^Behavior(Path|Nature|Name|Desc|Set)", isA<BehaviorSetStringCommand>},
        {"^Behavior(Name|Desc)", isA<BehaviorSetLocalizedStringCommand>},
        {"^BehaviorSet", isA<BehaviorSetIndexedStringCommand>},
        {"^BehaviorSet[TL]", isA<BehaviorSetTaggedIndexedStringCommand<RobotLanguage>>},
        {"^BehaviorSet[TL]", isA<BehaviorSetLocalizedIndexedStringCommand>},
        {"^BehaviorSetC", isA<BehaviorSetTaggedIndexedStringCommand<QString>>},
        {"^BehaviorSetC", isA<BehaviorSetPurposedIndexedStringCommand>},
        {"^BehaviorAddRemove[TL]", isA<BehaviorAddRemoveTaggedStringCommand<RobotLanguage>>},
        {"^BehaviorAddRemove[TL]", isA<BehaviorAddRemoveLocalizedStringCommand>},
        {"^BehaviorAddRemoveC", isA<BehaviorAddRemoveTaggedStringCommand<QString>>},
        {"^BehaviorAddRemoveC", isA<BehaviorAddRemovePurposedStringCommand>},
        {"^Dialog", isA<DialogCommand>},
        {"^DialogInfoModel[NT]", isA<DialogInfoModelCommand>},
    };
    for (const auto &[classes, isBase] : bases) {
        for (const Commands::CommandClass &each : commandClasses()) {
            const auto command = made(text(each.name), m_arguments);
            QVERIFY2(isBase(*command) ==
                         text(each.name).contains(QRegularExpression(text(classes))),
                     each.name);
            QCOMPARE(isA<MergeableCommand>(*command), each.id != -1);
        }
    }
}

// Every pair of classes, with equal arguments.
void TestCommands::merges_data() {
    QTest::addColumn<QString>("older");
    QTest::addColumn<QString>("newer");
    for (const auto &older : commandClasses()) {
        for (const auto &newer : commandClasses())
            QTest::addRow("%s < %s", older.name, newer.name)
                << text(older.name) << text(newer.name);
    }
}

void TestCommands::merges() {
    QFETCH(QString, older);
    QFETCH(QString, newer);
    const auto command = made(older, m_arguments);
    const bool isMergeable = commandClass(older).id != -1;
    const bool isMerged = command->mergeWith(made(newer, m_arguments).get());
    QCOMPARE(isMerged, isMergeable && older == newer);
    if (isMergeable)
        QCOMPARE(isFinal(*command), !isMerged);
}

void TestCommands::mergesByField_data() {
    QTest::addColumn<QString>("className");
    QTest::addColumn<QString>("differing");
    for (const auto &each : commandClasses()) {
        if (each.id == -1)
            continue;
        for (const char *differing :
             {"model", "key", "value", "tag", "index", "what", "olderIsFinal", "newerIsFinal"})
            QTest::addRow("%s: %s", each.name, differing) << text(each.name) << text(differing);
    }
}

void TestCommands::mergesByField() {
    QFETCH(QString, className);
    QFETCH(QString, differing);
    PackageInfoModel otherPackage;
    fill(otherPackage);
    Commands::Arguments a = m_arguments;
    Commands::Arguments b = a;
    const std::map<QString, std::function<void()>> differences{
        {text("model"), [&] { b.model = &otherPackage; }},
        {text("key"), [&] { b.key = text("Tea"); }},
        {text("value"), [&] { b.value = {text("3")}; }},
        {text("tag"), [&] { b.tag = {text("fr_CA")}; }},
        {text("index"), [&] { b.index = 0; }},
        {text("what"), [&] { b.what = {1}; }},
        {text("olderIsFinal"), [&] { a.isFinal = true; }},
        {text("newerIsFinal"), [&] { b.isFinal = true; }}};
    differences.at(differing)();
    const auto older = made(className, a);
    const QString shown = older->text();
    older->redo();
    QStringList done = taken();
    older->undo();
    const QStringList undone = taken();
    const QStringList same = text(commandClass(className).sameArguments).split(u' ');
    const bool isRefused = same.contains(differing) || differing == QLatin1String("olderIsFinal");
    QCOMPARE(isFinal(*older), a.isFinal);
    QVERIFY(!older->mergeWith(nullptr));
    QCOMPARE(isFinal(*older), true);
    QCOMPARE(older->mergeWith(made(className, b).get()), !isRefused);
    QCOMPARE(isFinal(*older), isRefused || b.isFinal);
    if (className != QLatin1String("DialogInfoModelTopicCommand"))
        QCOMPARE(older->text(), shown);

    // Does what the newer command would do, and undoes to the state before the run.
    if (differing == QLatin1String("value"))
        done.replaceInStrings(text("\"2\""), text("\"3\""));
    older->redo();
    QCOMPARE(taken(), done);
    older->undo();
    QCOMPARE(taken(), undone);
}

// Merging requires the type of the base class, so classes defined by an editor can take part.
void TestCommands::mergesWithEditorClasses() {
    PackageInfoModel *package = m_package.get();
    const QString path = text("tea");
    BehaviorNatureCommand nature(package, path, text("x"), false);
    EditorNature editorNature(package, path, text("y"), false);
    QVERIFY(nature.mergeWith(&editorNature));
    QVERIFY(editorNature.mergeWith(&nature));
    BehaviorPathCommand pathCommand(package, path, text("x"), false);
    QVERIFY(!pathCommand.mergeWith(&editorNature));
    EditorDialogName editorName(package, path, text("y"), false);
    QVERIFY(!pathCommand.mergeWith(&editorName));
    DialogInfoModelNameCommand name(package, path, text("x"), false);
    QVERIFY(name.mergeWith(&editorName));
    DialogInfoModelTypeVersionCommand typeVersion(package, path, text("x"), false);
    QVERIFY(!typeVersion.mergeWith(&editorName));
}

// A run stays with its entry; renaming another entry to the same name does not extend it.
void TestCommands::runsOfRenames() {
    m_package->addBehavior(text("other"));
    m_package->addDialog(text("other"));
    for (const char *className : {"BehaviorPathCommand", "DialogInfoModelNameCommand"}) {
        QUndoStack stack;
        const auto rename = [&](const char *from, const char *to) {
            m_arguments.key = text(from);
            m_arguments.value = {text(to)};
            stack.push(made(text(className), m_arguments).release());
        };
        rename("tea", "milk");
        rename("milk", "rum");
        QCOMPARE(stack.count(), 1);
        taken();
        stack.undo();
        stack.redo();
        const QString announced = taken().join(u' ');
        QVERIFY2(announced.contains(
                     QRegularExpression(text(R"((pathUpdated|nameChanged)\("tea"\) .*"rum")"))),
                 qPrintable(announced));
        rename("other", "rum");
        QCOMPARE(stack.count(), 2);
    }
}

// Records cannot represent a lone surrogate, but the entry can still be found.
void TestCommands::renamedToWhatCannotBeHeld() {
    m_arguments.value = {QString(QChar(0xD800))};
    for (const char *className : {"BehaviorPathCommand", "DialogInfoModelNameCommand"}) {
        const auto command = made(text(className), m_arguments);
        command->redo();
        command->undo();
    }
    QCOMPARE(m_behavior->path(), text("tea"));
    QCOMPARE(m_dialog->topicName(), text("tea"));
}

void TestCommands::topicTextOfARun() {
    const auto older = made(text("DialogInfoModelTopicCommand"), m_arguments);
    m_arguments.value = {text("two")};
    QVERIFY(older->mergeWith(made(text("DialogInfoModelTopicCommand"), m_arguments).get()));
    QCOMPARE(older->text(), text("Set topic path from t_fr to two (fr_FR)"));
}

void TestCommands::argumentsInTexts() {
    m_dialog->setTopicName(text("%2"));
    m_dialog->setTypeVersion(text("%2"));
    m_dialog->setTopic(m_arguments.tag, text("%3"));
    m_arguments.key = text("%2");
    const auto shown = [&](const char *className) {
        return made(text(className), m_arguments)->text();
    };
    QCOMPARE(shown("DialogInfoModelNameCommand"), text("Set dialog topic name from %2 to 2"));
    QCOMPARE(shown("DialogInfoModelTypeVersionCommand"),
             text("Set dialog type version from %2 to 2"));
    QCOMPARE(shown("DialogInfoModelTopicCommand"), text("Set topic path from %3 to 2 (fr_FR)"));
}

void TestCommands::switchNamesTheBehavior() {
    const QLocale locale;
    const auto shown = [&] {
        return BehaviorSwitchUserRequestableCommand(m_package.get(), text("tea")).text();
    };
    QLocale::setDefault(QLocale(text("fr_FR")));
    QCOMPARE(shown(), text("Set Saluer as user-requestable"));
    m_behavior->setUserRequestable(true);
    QCOMPARE(shown(), text("Set Saluer as not user-requestable"));
    QLocale::setDefault(QLocale(text("de_DE")));
    QCOMPARE(shown(), text("Set a behavior as not user-requestable"));
    QLocale::setDefault(locale);

    // The command always switches to the same value.
    BehaviorSwitchUserRequestableCommand command(m_package.get(), text("tea"));
    m_behavior->setUserRequestable(false);
    taken();
    command.redo();
    QCOMPARE(taken(), QStringList());
    command.undo();
    QCOMPARE(taken(), lines("b.userRequestableChanged(true)"));
}

void TestCommands::permissionsUndoBlindly() {
    m_behavior->addPermission(text("camera"));
    BehaviorAddRemovePermissionCommand command(m_package.get(), text("tea"), text("camera"), true);
    QVERIFY(!command.lastResult());
    taken();
    command.redo();
    QVERIFY(!command.lastResult());
    command.undo();
    QVERIFY(command.lastResult());
    QVERIFY(command.addOrRemove(true));
    QVERIFY(!command.addOrRemove(true));
    QCOMPARE(taken(), lines(R"(b.permissionRemoved("camera")
                               b.permissionAdded("camera"))"));
}

// Removes and adds items between undo steps, which the command does not know of.
void TestCommands::listsByHand() {
    const std::unique_ptr<BehaviorAddRemoveTagCommand> command(
        BehaviorAddRemoveTagCommand::addCommand(m_package.get(), text("tea"), text("x"),
                                                m_arguments.tag, 9));
    bool ok = true;
    QCOMPARE(command->remove(3, &ok), QString());
    QVERIFY(!ok);
    QCOMPARE(command->remove(-1, nullptr), QString());
    QCOMPARE(command->remove(1, &ok), text("b"));
    QVERIFY(ok);
    QCOMPARE(command->add(text("y"), -1), 2);
    QCOMPARE(command->add(text("y"), 0), -1);
    QCOMPARE(command->add(text("z"), 1), 1);
    taken();
    QCOMPARE(command->add(text("w"), 4), 4);
    QCOMPARE(taken(), lines(R"(b.tagAdded("w", fr_FR))"));
    command->redo();
    taken();
    command->undo();
    QCOMPARE(taken(), lines("b.tagRemoved(5, fr_FR)"));
}

// Removing an item outside the list, or adding one that it has, changes nothing; neither does
// undoing that.
void TestCommands::listStepsThatFail() {
    for (const Commands::CommandClass &each : commandClasses()) {
        if (!text(each.name).contains(QRegularExpression(text("AddRemove[TLC]"))))
            continue;
        for (const auto &[isAdd, index] : {std::pair(false, -1), {false, 3}, {true, 0}}) {
            m_arguments.isAdd = isAdd;
            m_arguments.index = index;
            m_arguments.value = {text("b")};
            const auto command = made(text(each.name), m_arguments);
            command->redo();
            command->undo();
            QCOMPARE(taken(), QStringList());
        }
    }
}

void TestCommands::selectorsOutsideTheTable() {
    const Tano::PackageInfo before = m_package->packageInfo();
    for (const int what : {-1, 8}) {
        m_arguments.what = {what};
        const auto plain = made(text("PackageStringCommand"), m_arguments);
        QCOMPARE(plain->text(), text("Set application's "));
        const auto localized = made(text("PackageLocalizedStringCommand"), m_arguments);
        QCOMPARE(localized->text(), text("Set application's  (fr_FR)"));
        for (QUndoCommand *command : {plain.get(), localized.get()}) {
            command->redo();
            command->undo();
        }
    }
    QCOMPARE(taken(), QStringList());
    QVERIFY(m_package->packageInfo() == before);
}

QTEST_MAIN(TestCommands)

#include "tst_commands.moc"
