#include "signal_log.h"
#include "switch_language.h"
#include "warning_guard.h"

#include <packagemodel/behavior_commands.h>
#include <packagemodel/dialog_commands.h>
#include <packagemodel/set_string.h>

#include <QPixmap>
#include <QTest>
#include <QTranslator>
#include <QUndoStack>

using namespace Zel;

namespace {

QString text(const char *utf8) {
    return QString::fromUtf8(utf8);
}

RobotLanguage language(const char *code) {
    return RobotLanguage(ISOCode(text(code)), NuanceCode());
}

// What an editor adds to the commands of the library.
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

// All that one command or another is made from.
struct Arguments {
    PackageInfoModel *model = nullptr;
    QString path = text("greet");
    QString topicName = text("tea");
    QString value = text("new");
    RobotLanguage lang = language("fr_FR");
    QString purpose = text("launch");
    int index = 1;
    int what = 0;
    bool isFinal = false;
    bool isAdd = true;
};

using Make = std::function<QUndoCommand *(const Arguments &)>;

template<typename Command>
QUndoCommand *onBehavior(const Arguments &a) {
    return new Command(a.model, a.path, a.value, a.isFinal);
}

template<typename Command>
QUndoCommand *onBehaviorText(const Arguments &a) {
    return new Command(a.model, a.path, a.value, a.lang, a.isFinal);
}

template<typename Command>
QUndoCommand *onItem(const Arguments &a) {
    return new Command(a.model, a.path, a.value, a.lang, a.index, a.isFinal);
}

template<typename Command>
QUndoCommand *onDialog(const Arguments &a) {
    return new Command(a.model, a.topicName, a.value, a.isFinal);
}

template<typename Command>
QUndoCommand *addOrRemove(const Arguments &a) {
    if (a.isAdd)
        return Command::addCommand(a.model, a.path, a.value, a.lang, a.index);
    return Command::removeCommand(a.model, a.path, a.lang, a.index);
}

QIcon coloredIcon() {
    QPixmap pixmap(8, 8);
    pixmap.fill(Qt::red);
    return QIcon(pixmap);
}

// Every command of the library by its class, its id, and the arguments that have to be equal in two
// that merge.
struct CommandClass {
    const char *name;
    int id;
    QStringList sameArguments;
    Make make;
};

const std::vector<CommandClass> &commandClasses() {
    using A = const Arguments &;
    const QString model = text("model");
    const QString what = text("what");
    const QString lang = text("lang");
    const QString path = text("path");
    const QString topicName = text("topicName");
    const QString index = text("index");
    const QString purpose = text("purpose");
    static const std::vector<CommandClass> classes{
        {"PackageGenericValueCommand<QIcon>",
         -1,
         {},
         [](A a) { return new PackageGenericValueCommand<QIcon>(a.model, coloredIcon()); }},
        {"PackageGenericValueCommand<SoftwareVersion>",
         -1,
         {},
         [](A a) {
             return new PackageGenericValueCommand<SoftwareVersion>(a.model, {2, 1});
         }},
        {"PackageLanguageCommand", -1, {}, [](A a) { return new SwitchLanguage(a.model, a.lang); }},
        {"PackageStringCommand",
         42,
         {model, what},
         [](A a) {
             return new PackageStringCommand(a.model, a.value,
                                             PackageStringCommand::WhatString(a.what), a.isFinal);
         }},
        {"PackageLocalizedStringCommand",
         42,
         {model, what, lang},
         [](A a) {
             return new PackageLocalizedStringCommand(
                 a.model, a.value, PackageLocalizedStringCommand::WhatString(a.what), a.lang,
                 a.isFinal);
         }},
        {"BehaviorSwitchUserRequestableCommand",
         -1,
         {},
         [](A a) { return new BehaviorSwitchUserRequestableCommand(a.model, a.path); }},
        {"BehaviorAddRemovePermissionCommand",
         -1,
         {},
         [](A a) {
             return new BehaviorAddRemovePermissionCommand(a.model, a.path, a.value, a.isAdd);
         }},
        {"BehaviorPathCommand", 0, {path}, onBehavior<BehaviorPathCommand>},
        {"BehaviorNatureCommand", 1, {path}, onBehavior<BehaviorNatureCommand>},
        {"BehaviorNameCommand", 2, {path, lang}, onBehaviorText<BehaviorNameCommand>},
        {"BehaviorDescriptionCommand", 3, {path, lang}, onBehaviorText<BehaviorDescriptionCommand>},
        {"BehaviorSetTagCommand", 5, {path, lang, index}, onItem<BehaviorSetTagCommand>},
        {"BehaviorSetTriggerSentenceCommand",
         6,
         {path, lang, index},
         onItem<BehaviorSetTriggerSentenceCommand>},
        {"BehaviorSetLoadingResponseCommand",
         7,
         {path, lang, index},
         onItem<BehaviorSetLoadingResponseCommand>},
        {"BehaviorSetConditionCommand",
         8,
         {path, purpose, index},
         [](A a) {
             return new BehaviorSetConditionCommand(a.model, a.path, a.value, a.purpose, a.index,
                                                    a.isFinal);
         }},
        {"BehaviorAddRemoveTagCommand", -1, {}, addOrRemove<BehaviorAddRemoveTagCommand>},
        {"BehaviorAddRemoveTriggerSentenceCommand",
         -1,
         {},
         addOrRemove<BehaviorAddRemoveTriggerSentenceCommand>},
        {"BehaviorAddRemoveLoadingResponseCommand",
         -1,
         {},
         addOrRemove<BehaviorAddRemoveLoadingResponseCommand>},
        {"BehaviorAddRemoveConditionCommand",
         -1,
         {},
         [](A a) -> QUndoCommand * {
             using Command = BehaviorAddRemoveConditionCommand;
             return a.isAdd ? Command::addCommand(a.model, a.path, a.value, a.purpose, a.index)
                            : Command::removeCommand(a.model, a.path, a.purpose, a.index);
         }},
        {"DialogInfoModelNameCommand", 0, {topicName}, onDialog<DialogInfoModelNameCommand>},
        {"DialogInfoModelTypeVersionCommand",
         1,
         {topicName},
         onDialog<DialogInfoModelTypeVersionCommand>},
        {"DialogInfoModelTopicCommand",
         2,
         {topicName, lang},
         [](A a) {
             return new DialogInfoModelTopicCommand(a.model, a.topicName, a.lang, a.value,
                                                    a.isFinal);
         }},
        {"DialogInfoModelRemoveTopicCommand",
         -1,
         {},
         [](A a) { return new DialogInfoModelRemoveTopicCommand(a.model, a.topicName, a.lang); }},
    };
    return classes;
}

const CommandClass &commandClass(const QString &name) {
    for (const CommandClass &candidate : commandClasses()) {
        if (name == QLatin1String(candidate.name))
            return candidate;
    }
    qFatal("no class %s", qPrintable(name));
}

std::unique_ptr<QUndoCommand> made(const QString &className, const Arguments &arguments) {
    return std::unique_ptr<QUndoCommand>(commandClass(className).make(arguments));
}

bool isFinal(const QUndoCommand &command) {
    return dynamic_cast<const MergeableCommand &>(command).isFinalCommand();
}

// Writes down what is translated, and answers the text in brackets.
class RecordingTranslator : public QTranslator {
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *context, const char *source, const char *, int) const override {
        m_asked.append(QLatin1String(context) % u'|' % QString::fromUtf8(source));
        return u'[' % QString::fromUtf8(source) % u']';
    }
    QStringList take() { return std::exchange(m_asked, {}); }

private:
    mutable QStringList m_asked;
};

void fill(PackageInfoModel &package) {
    const RobotLanguage french = language("fr_FR");
    package.setInstaller(text("old"));
    package.setAuthor(text("a0"));
    package.setVersion({1, 0, 0});
    package.setName(text("nom"), french);
    package.addBehavior(text("greet"));
    BehaviorInfoModel &behavior = *package.behavior(text("greet"));
    behavior.setNature(text("solitary"));
    behavior.setName(text("Saluer"), french);
    behavior.setDescription(text("Salue"), french);
    for (const char *item : {"a", "b", "c"}) {
        behavior.addTag(text(item), french);
        behavior.addTriggerSentence(text(item), french);
        behavior.addLoadingResponse(text(item), french);
        behavior.addCondition(text(item), text("launch"));
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

    void steps_data();
    void steps();
    void textFields_data();
    void textFields();
    void derivation();
    void merges_data();
    void merges();
    void mergesByField_data();
    void mergesByField();
    void mergesWithEditorClasses();
    void finality();
    void keystrokes();
    void renamesKeepTheirEntry();
    void renamesOfOthersDoNotMerge();
    void renamedToWhatCannotBeHeld();
    void topicTextsOfARun();
    void argumentsInTexts();
    void missingEntry_data();
    void missingEntry();
    void renamesOfAnEntryThatComesBack();
    void switchNamesTheBehavior();
    void permissionsUndoBlindly();
    void addedItemPositions_data();
    void addedItemPositions();
    void failedListStepsEndTheCommand();
    void itemsBeyondTheEnd();
    void removedTopicThatWasNotThere();
    void selectorsOutsideTheTable();

private:
    QStringList taken() { return m_log->take(); }

    template<typename... Bases>
    bool isA(const char *className) const {
        const auto command = made(text(className), m_arguments);
        return (dynamic_cast<Bases *>(command.get()) && ...);
    }

    WarningGuard m_warnings;
    std::unique_ptr<PackageInfoModel> m_package;
    std::unique_ptr<SignalLog> m_log;
    BehaviorInfoModel *m_behavior = nullptr;
    DialogInfoModel *m_dialog = nullptr;
    Arguments m_arguments;
};

void TestCommands::init() {
    m_package = std::make_unique<PackageInfoModel>();
    fill(*m_package);
    m_behavior = m_package->behavior(text("greet"));
    m_dialog = m_package->dialog(text("tea"));
    m_log = std::make_unique<SignalLog>();
    m_log->watch(*m_package);
    m_log->watch(*m_behavior, text("b"));
    m_log->watch(*m_dialog, text("d"));
    m_arguments = {};
    m_arguments.model = m_package.get();
}

// One row a class and direction: what is translated, the text (brackets mark what was translated),
// and what is announced when it is done and when it is undone.
void TestCommands::steps_data() {
    QTest::addColumn<QString>("className");
    QTest::addColumn<bool>("isAdd");
    QTest::addColumn<QStringList>("translated");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<QStringList>("done");
    QTest::addColumn<QStringList>("undone");
    const auto row = [](const char *className, const char *translated, const char *shown,
                        const char *done, const char *undone, bool isAdd = true) {
        QTest::addRow("%s%s", className, isAdd ? "" : " removing")
            << text(className) << isAdd << lines(translated) << text(shown) << lines(done)
            << lines(undone);
    };
    row("PackageGenericValueCommand<QIcon>",
        "Zel::PackageGenericValueCommand|Set Application's icon", "[Set Application's icon]",
        "iconUpdated(icon)", "iconUpdated(icon)");
    row("PackageGenericValueCommand<SoftwareVersion>",
        "Zel::PackageGenericValueCommand|Set Application's version", "[Set Application's version]",
        "versionUpdated(2.1.0)", "versionUpdated(1.0.0)");
    row("PackageLanguageCommand", "", "", "languageAdded(fr_FR)\ndescriptionAdded(fr_FR)",
        "d.topicRemoved(fr_FR)\nlanguageRemoved(fr_FR)");
    row("PackageStringCommand",
        "Zel::PackageStringCommand|Set application's %1\nZel::PackageStringCommand|installer",
        "[Set application's [installer]]", R"(installerUpdated("new"))",
        R"(installerUpdated("old"))");
    row("PackageLocalizedStringCommand",
        "Zel::PackageLocalizedStringCommand|Set application's %1 (%2)\n"
        "Zel::PackageLocalizedStringCommand|name",
        "[Set application's [name] (fr_FR)]", R"(nameUpdated("new", fr_FR))",
        R"(nameUpdated("nom", fr_FR))");
    row("BehaviorSwitchUserRequestableCommand",
        "Zel::BehaviorUserRequestableCommand|a behavior\n"
        "Zel::BehaviorUserRequestableCommand|Set %1 as user-requestable",
        "[Set [a behavior] as user-requestable]", "b.userRequestableChanged(true)",
        "b.userRequestableChanged(false)");
    row("BehaviorAddRemovePermissionCommand",
        "Zel::BehaviorAddRemovePermissionCommand|Add a permission (%1)", "[Add a permission (new)]",
        R"(b.permissionAdded("new"))", R"(b.permissionRemoved("new"))");
    row("BehaviorAddRemovePermissionCommand",
        "Zel::BehaviorAddRemovePermissionCommand|Remove a permission (%1)",
        "[Remove a permission (new)]", R"(b.permissionRemoved("new"))",
        R"(b.permissionAdded("new"))", false);
    row("BehaviorPathCommand", "Zel::BehaviorPathCommand|Set behavior path", "[Set behavior path]",
        R"(b.pathUpdated("new"))", R"(b.pathUpdated("greet"))");
    row("BehaviorNatureCommand", "Zel::BehaviorNatureCommand|Set behavior nature",
        "[Set behavior nature]", R"(b.natureUpdated("new"))", R"(b.natureUpdated("solitary"))");
    row("BehaviorNameCommand", "Zel::BehaviorNameCommand|Set Behavior name (%1)",
        "[Set Behavior name (fr_FR)]", R"(b.behaviorNameUpdated("new", fr_FR))",
        R"(b.behaviorNameUpdated("Saluer", fr_FR))");
    row("BehaviorDescriptionCommand",
        "Zel::BehaviorDescriptionCommand|Set Behavior description (%1)",
        "[Set Behavior description (fr_FR)]", R"(b.behaviorDescriptionUpdated("new", fr_FR))",
        R"(b.behaviorDescriptionUpdated("Salue", fr_FR))");
    row("BehaviorSetTagCommand", "Zel::BehaviorSetTagCommand|Set behavior tag #%1 (%2)",
        "[Set behavior tag #1 (fr_FR)]", R"(b.tagUpdated(1, "new", fr_FR))",
        R"(b.tagUpdated(1, "b", fr_FR))");
    row("BehaviorSetTriggerSentenceCommand",
        "Zel::BehaviorSetTriggerSentenceCommand|Set behavior trigger sentence #%1 (%2)",
        "[Set behavior trigger sentence #1 (fr_FR)]",
        R"(b.triggerSentenceUpdated(1, "new", fr_FR))",
        R"(b.triggerSentenceUpdated(1, "b", fr_FR))");
    row("BehaviorSetLoadingResponseCommand",
        "Zel::BehaviorSetLoadingResponseCommand|Set behavior loading response #%1 in %2",
        "[Set behavior loading response #1 in fr_FR]",
        R"(b.loadingResponseUpdated(1, "new", fr_FR))",
        R"(b.loadingResponseUpdated(1, "b", fr_FR))");
    row("BehaviorSetConditionCommand",
        "Zel::BehaviorSetConditionCommand|Set behavior condition for %1",
        "[Set behavior condition for launch]", R"(b.conditionUpdated(1, "new", "launch"))",
        R"(b.conditionUpdated(1, "b", "launch"))");
    row("BehaviorAddRemoveTagCommand", "Zel::BehaviorAddRemoveTagCommand|Add a tag to the behavior",
        "[Add a tag to the behavior]", R"(b.tagInserted("new", fr_FR, 1))",
        "b.tagRemoved(1, fr_FR)");
    row("BehaviorAddRemoveTagCommand",
        "Zel::BehaviorAddRemoveTagCommand|Remove a tag from the behavior",
        "[Remove a tag from the behavior]", "b.tagRemoved(1, fr_FR)",
        R"(b.tagInserted("b", fr_FR, 1))", false);
    row("BehaviorAddRemoveTriggerSentenceCommand",
        "Zel::BehaviorAddRemoveTriggerSentenceCommand|Add a trigger sentence to the behavior",
        "[Add a trigger sentence to the behavior]", R"(b.triggerSentenceInserted("new", fr_FR, 1))",
        "b.triggerSentenceRemoved(1, fr_FR)");
    row("BehaviorAddRemoveTriggerSentenceCommand",
        "Zel::BehaviorAddRemoveTriggerSentenceCommand|Remove a trigger sentence from the behavior",
        "[Remove a trigger sentence from the behavior]", "b.triggerSentenceRemoved(1, fr_FR)",
        R"(b.triggerSentenceInserted("b", fr_FR, 1))", false);
    row("BehaviorAddRemoveLoadingResponseCommand",
        "Zel::BehaviorAddRemoveLoadingResponseCommand|Add a loading response to the behavior",
        "[Add a loading response to the behavior]", R"(b.loadingResponseInserted("new", fr_FR, 1))",
        "b.loadingResponseRemoved(1, fr_FR)");
    row("BehaviorAddRemoveLoadingResponseCommand",
        "Zel::BehaviorAddRemoveLoadingResponseCommand|Remove a loading response from the behavior",
        "[Remove a loading response from the behavior]", "b.loadingResponseRemoved(1, fr_FR)",
        R"(b.loadingResponseInserted("b", fr_FR, 1))", false);
    row("BehaviorAddRemoveConditionCommand",
        "Zel::BehaviorAddRemoveConditionCommand|Add a condition to the behavior",
        "[Add a condition to the behavior]", R"(b.conditionInserted("new", "launch", 1))",
        R"(b.conditionRemoved(1, "launch"))");
    row("BehaviorAddRemoveConditionCommand",
        "Zel::BehaviorAddRemoveConditionCommand|Remove a condition from the behavior",
        "[Remove a condition from the behavior]", R"(b.conditionRemoved(1, "launch"))",
        R"(b.conditionInserted("b", "launch", 1))", false);
    row("DialogInfoModelNameCommand",
        "Zel::DialogInfoModelNameCommand|Set dialog topic name from %1 to %2",
        "[Set dialog topic name from tea to new]", R"(d.nameChanged("new"))",
        R"(d.nameChanged("tea"))");
    row("DialogInfoModelTypeVersionCommand",
        "Zel::DialogInfoModelTypeVersionCommand|Set dialog type version from %1 to %2",
        "[Set dialog type version from 1.0 to new]", R"(d.typeVersionChanged("new"))",
        R"(d.typeVersionChanged("1.0"))");
    row("DialogInfoModelTopicCommand", "", "Set topic path from t_fr to new (fr_FR)",
        R"(d.topicChanged(fr_FR, "new"))", R"(d.topicChanged(fr_FR, "t_fr"))");
    row("DialogInfoModelRemoveTopicCommand",
        "Zel::DialogInfoModelRemoveTopicCommand|Remove language %1", "[Remove language fr_FR]",
        "d.topicRemoved(fr_FR)", R"(d.topicChanged(fr_FR, "t_fr"))");
}

void TestCommands::steps() {
    QFETCH(QString, className);
    QFETCH(bool, isAdd);
    QFETCH(QStringList, translated);
    QFETCH(QString, shown);
    m_arguments.isAdd = isAdd;
    if (!isAdd)
        m_behavior->addPermission(m_arguments.value);
    taken();
    RecordingTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    translator.take();
    const auto command = made(className, m_arguments);
    QStringList asked = translator.take();
    asked.sort();
    translated.sort();
    QCOMPARE(asked, translated);
    QCOMPARE(command->text(), shown);
    QCOMPARE(command->id(), commandClass(className).id);
    QCOMPARE(taken(), QStringList());
    for (int round = 0; round < 2; ++round) {
        command->redo();
        QTEST(taken(), "done");
        command->undo();
        QTEST(taken(), "undone");
        if (className == QLatin1String("PackageLanguageCommand"))
            break; // the description language and the topic are not its business
    }
    QCOMPARE(translator.take(), QStringList());
}

void TestCommands::textFields_data() {
    QTest::addColumn<bool>("isLocalized");
    QTest::addColumn<int>("what");
    QTest::addColumn<QString>("word");
    QTest::addColumn<QString>("notification");
    const auto row = [](bool isLocalized, int what, const char *word, const char *notification) {
        QTest::addRow("%s", notification)
            << isLocalized << what << text(word) << text(notification);
    };
    row(false, PackageStringCommand::Installer, "installer", "installerUpdated");
    row(false, PackageStringCommand::Uid, "id", "uidUpdated");
    row(false, PackageStringCommand::TypeVersion, "type version", "typeVersionUpdated");
    row(false, PackageStringCommand::Author, "author", "authorUpdated");
    row(false, PackageStringCommand::Organization, "organization", "organizationUpdated");
    row(false, PackageStringCommand::Date, "date", "dateUpdated");
    row(false, PackageStringCommand::Channel, "channel", "channelUpdated");
    row(false, PackageStringCommand::Path, "path", "pathUpdated");
    row(true, PackageLocalizedStringCommand::Name, "name", "nameUpdated");
    row(true, PackageLocalizedStringCommand::Description, "description", "descriptionUpdated");
}

void TestCommands::textFields() {
    QFETCH(bool, isLocalized);
    QFETCH(QString, word);
    QFETCH(QString, notification);
    QFETCH(int, what);
    m_arguments.what = what;
    const QString className =
        isLocalized ? text("PackageLocalizedStringCommand") : text("PackageStringCommand");
    const QString suffix = isLocalized ? text(", fr_FR)") : text(")");
    for (const char *value : {"first", "second"}) {
        m_arguments.value = text(value);
        const auto command = made(className, m_arguments);
        QCOMPARE(command->text(), isLocalized ? text("Set application's %1 (fr_FR)").arg(word)
                                              : text("Set application's %1").arg(word));
        command->redo();
        QCOMPARE(taken(),
                 QStringList{notification % u'(' % SignalLog::print(m_arguments.value) % suffix});
    }
    made(className, m_arguments)->undo(); // to what the package held when the command was made
    QCOMPARE(taken(), QStringList());
}

// Every base that a class has, found at run time and from the outside of the library.
void TestCommands::derivation() {
    QVERIFY(isA<PackageCommand>("PackageGenericValueCommand<QIcon>"));
    QVERIFY(isA<PackageCommand>("PackageGenericValueCommand<SoftwareVersion>"));
    QVERIFY((isA<PackageCommand, PackageLanguageCommand>("PackageLanguageCommand")));
    for (const char *name : {"PackageStringCommand", "PackageLocalizedStringCommand"})
        QVERIFY((isA<PackageCommand, PackageGenericValueCommand<QString>>(name)));
    for (const char *name :
         {"BehaviorSwitchUserRequestableCommand", "BehaviorAddRemovePermissionCommand"})
        QVERIFY((isA<PackageCommand, BehaviorCommand>(name)));
    for (const char *name : {"BehaviorPathCommand", "BehaviorNatureCommand"})
        QVERIFY((isA<PackageCommand, BehaviorCommand, BehaviorSetStringCommand>(name)));
    for (const char *name : {"BehaviorNameCommand", "BehaviorDescriptionCommand"})
        QVERIFY((isA<BehaviorSetStringCommand, BehaviorSetLocalizedStringCommand>(name)));
    for (const char *name : {"BehaviorSetTagCommand", "BehaviorSetTriggerSentenceCommand",
                             "BehaviorSetLoadingResponseCommand"})
        QVERIFY((isA<BehaviorSetStringCommand, BehaviorSetIndexedStringCommand,
                     BehaviorSetTaggedIndexedStringCommand<RobotLanguage>,
                     BehaviorSetLocalizedIndexedStringCommand>(name)));
    QVERIFY((isA<BehaviorSetStringCommand, BehaviorSetIndexedStringCommand,
                 BehaviorSetTaggedIndexedStringCommand<QString>,
                 BehaviorSetPurposedIndexedStringCommand>("BehaviorSetConditionCommand")));
    for (const char *name :
         {"BehaviorAddRemoveTagCommand", "BehaviorAddRemoveTriggerSentenceCommand",
          "BehaviorAddRemoveLoadingResponseCommand"})
        QVERIFY((isA<BehaviorCommand, BehaviorAddRemoveTaggedStringCommand<RobotLanguage>,
                     BehaviorAddRemoveLocalizedStringCommand>(name)));
    QVERIFY((isA<BehaviorCommand, BehaviorAddRemoveTaggedStringCommand<QString>,
                 BehaviorAddRemovePurposedStringCommand>("BehaviorAddRemoveConditionCommand")));
    for (const char *name : {"DialogInfoModelNameCommand", "DialogInfoModelTypeVersionCommand",
                             "DialogInfoModelTopicCommand"})
        QVERIFY((isA<PackageCommand, DialogCommand, DialogInfoModelCommand>(name)));
    QVERIFY((isA<PackageCommand, DialogCommand>("DialogInfoModelRemoveTopicCommand")));
    for (const CommandClass &each : commandClasses())
        QCOMPARE(isA<MergeableCommand>(each.name), each.id != -1);
}

// Every class upon every class, all else being equal.
void TestCommands::merges_data() {
    QTest::addColumn<QString>("older");
    QTest::addColumn<QString>("newer");
    for (const CommandClass &older : commandClasses()) {
        for (const CommandClass &newer : commandClasses())
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
    for (const CommandClass &each : commandClasses()) {
        if (each.id == -1)
            continue;
        for (const char *differing : {"model", "path", "topicName", "value", "lang", "purpose",
                                      "index", "what", "olderIsFinal", "newerIsFinal"})
            QTest::addRow("%s: %s", each.name, differing) << text(each.name) << text(differing);
    }
}

void TestCommands::mergesByField() {
    QFETCH(QString, className);
    QFETCH(QString, differing);
    PackageInfoModel otherPackage;
    fill(otherPackage);
    Arguments a = m_arguments;
    Arguments b = a;
    const std::map<QString, std::function<void()>> differences{
        {text("model"), [&] { b.model = &otherPackage; }},
        {text("path"), [&] { b.path = text("Greet"); }},
        {text("topicName"), [&] { b.topicName = text("Tea"); }},
        {text("value"), [&] { b.value = text("newer"); }},
        {text("lang"), [&] { b.lang = language("fr_CA"); }},
        {text("purpose"), [&] { b.purpose = text("Launch"); }},
        {text("index"), [&] { b.index = 0; }},
        {text("what"), [&] { b.what = 1; }},
        {text("olderIsFinal"), [&] { a.isFinal = true; }},
        {text("newerIsFinal"), [&] { b.isFinal = true; }}};
    differences.at(differing)();
    const auto older = made(className, a);
    const QString shown = older->text();
    older->redo();
    QStringList done = taken();
    older->undo();
    const QStringList undone = taken();
    const bool isRefused = commandClass(className).sameArguments.contains(differing) ||
                           differing == QLatin1String("olderIsFinal");
    QCOMPARE(isFinal(*older), a.isFinal);
    QVERIFY(!older->mergeWith(nullptr));
    QCOMPARE(isFinal(*older), true);
    QCOMPARE(older->mergeWith(made(className, b).get()), !isRefused);
    QCOMPARE(isFinal(*older), isRefused || b.isFinal);
    if (className != QLatin1String("DialogInfoModelTopicCommand"))
        QCOMPARE(older->text(), shown);

    // It writes what the newer one would, and what was there before the run.
    if (differing == QLatin1String("value"))
        done.replaceInStrings(text("\"new\""), text("\"newer\""));
    older->redo();
    QCOMPARE(taken(), done);
    older->undo();
    QCOMPARE(taken(), undone);
}

// The type that a command asks for is that of its base, so an editor's own class takes part.
void TestCommands::mergesWithEditorClasses() {
    PackageInfoModel *package = m_package.get();
    const QString path = text("greet");
    BehaviorNatureCommand nature(package, path, text("new"), false);
    EditorNature editorNature(package, path, text("newer"), false);
    QVERIFY(nature.mergeWith(&editorNature));
    QVERIFY(editorNature.mergeWith(&nature));
    BehaviorPathCommand pathCommand(package, path, text("new"), false);
    QVERIFY(!pathCommand.mergeWith(&editorNature));
    EditorDialogName editorName(package, path, text("newer"), false);
    QVERIFY(!pathCommand.mergeWith(&editorName));
    DialogInfoModelNameCommand name(package, path, text("new"), false);
    QVERIFY(name.mergeWith(&editorName));
    DialogInfoModelTypeVersionCommand typeVersion(package, path, text("new"), false);
    QVERIFY(!typeVersion.mergeWith(&editorName));
}

void TestCommands::finality() {
    QUndoStack stack;
    auto *channel = new PackageStringCommand(m_package.get(), text("beta"),
                                             PackageStringCommand::Channel, false);
    stack.push(channel);
    QVERIFY(!channel->isFinalCommand());
    stack.push(
        new PackageStringCommand(m_package.get(), text("x"), PackageStringCommand::Author, false));
    QVERIFY(channel->isFinalCommand());
    QCOMPARE(stack.count(), 2);
    // A later merge that is accepted opens the run again.
    PackageStringCommand next(m_package.get(), text("rc"), PackageStringCommand::Channel, false);
    QVERIFY(channel->mergeWith(&next));
    QVERIFY(!channel->isFinalCommand());
}

void TestCommands::keystrokes() {
    QUndoStack stack;
    const auto type = [&](const char *author, bool isLast) {
        stack.push(new PackageStringCommand(m_package.get(), text(author),
                                            PackageStringCommand::Author, isLast));
    };
    type("a", false);
    type("ab", false);
    type("abc", false);
    type("abcd", true);
    QCOMPARE(stack.count(), 1);
    type("x", false);
    QCOMPARE(stack.count(), 2);
    taken();
    stack.undo();
    stack.undo();
    stack.redo();
    QCOMPARE(taken(), lines(R"(authorUpdated("abcd")
                               authorUpdated("a0")
                               authorUpdated("abcd"))"));
}

void TestCommands::renamesKeepTheirEntry() {
    QUndoStack stack;
    auto *path = new BehaviorPathCommand(m_package.get(), text("greet"), text("hi"), false);
    stack.push(path);
    QCOMPARE(path->behaviorInfoModel(), m_behavior);
    stack.push(new BehaviorPathCommand(m_package.get(), text("hi"), text("hello"), false));
    auto *name = new DialogInfoModelNameCommand(m_package.get(), text("tea"), text("milk"), false);
    stack.push(name);
    QCOMPARE(name->dialogInfoModel(), m_dialog);
    stack.push(new DialogInfoModelNameCommand(m_package.get(), text("milk"), text("rum"), false));
    QCOMPARE(stack.count(), 2);
    QCOMPARE(name->text(), text("Set dialog topic name from tea to milk"));
    taken();
    stack.setIndex(0);
    QCOMPARE(path->behaviorPath(), text("greet"));
    QCOMPARE(name->dialogName(), text("tea"));
    stack.setIndex(2);
    QCOMPARE(taken(), lines(R"(d.nameChanged("tea")
                               b.pathUpdated("greet")
                               b.pathUpdated("hello")
                               d.nameChanged("rum"))"));
}

// Renaming something else to the same name is no part of the run.
void TestCommands::renamesOfOthersDoNotMerge() {
    m_package->addBehavior(text("other"));
    m_package->addDialog(text("other"));
    QUndoStack stack;
    PackageInfoModel *package = m_package.get();
    stack.push(new BehaviorPathCommand(package, text("greet"), text("x"), false));
    stack.push(new BehaviorPathCommand(package, text("other"), text("x"), false));
    stack.push(new DialogInfoModelNameCommand(package, text("tea"), text("x"), false));
    stack.push(new DialogInfoModelNameCommand(package, text("other"), text("x"), false));
    QCOMPARE(stack.count(), 4);
}

// A lone surrogate is no text that a record can hold; the entry is found again all the same.
void TestCommands::renamedToWhatCannotBeHeld() {
    m_arguments.value = QString(QChar(0xD800));
    for (const char *className : {"BehaviorPathCommand", "DialogInfoModelNameCommand"}) {
        const auto command = made(text(className), m_arguments);
        command->redo();
        command->undo();
    }
    QCOMPARE(m_behavior->path(), text("greet"));
    QCOMPARE(m_dialog->topicName(), text("tea"));
}

void TestCommands::topicTextsOfARun() {
    QUndoStack stack;
    const auto set = [&](const char *code, const char *path) {
        stack.push(new DialogInfoModelTopicCommand(m_package.get(), text("tea"), language(code),
                                                   text(path), false));
    };
    set("fr_FR", "one");
    set("fr_FR", "two");
    set("en_US", "three");
    QCOMPARE(stack.count(), 2);
    QCOMPARE(stack.text(0), text("Set topic path from t_fr to two (fr_FR)"));
    QCOMPARE(stack.text(1), text("Set topic path from  to three (en_US)"));
}

void TestCommands::argumentsInTexts() {
    m_dialog->setTopicName(text("%2"));
    m_dialog->setTypeVersion(text("%2"));
    m_dialog->setTopic(m_arguments.lang, text("%3"));
    m_arguments.topicName = text("%2");
    const auto shown = [&](const char *className) {
        return made(text(className), m_arguments)->text();
    };
    QCOMPARE(shown("DialogInfoModelNameCommand"), text("Set dialog topic name from %2 to new"));
    QCOMPARE(shown("DialogInfoModelTypeVersionCommand"),
             text("Set dialog type version from %2 to new"));
    QCOMPARE(shown("DialogInfoModelTopicCommand"), text("Set topic path from %3 to new (fr_FR)"));
}

void TestCommands::missingEntry_data() {
    QTest::addColumn<QString>("className");
    for (const CommandClass &each : commandClasses()) {
        if (text(each.name) != QLatin1String("PackageLanguageCommand")) // the editor's business
            QTest::addRow("%s", each.name) << text(each.name);
    }
}

// An entry that is never there, and one that has left.
void TestCommands::missingEntry() {
    QFETCH(QString, className);
    Arguments none = m_arguments;
    if (className.startsWith(QLatin1String("Package")))
        none.model = nullptr;
    none.path = none.topicName = text("none");
    const Tano::PackageInfo before = m_package->packageInfo();
    auto command = made(className, none);
    command->redo();
    command->undo();
    QCOMPARE(taken(), QStringList());
    QVERIFY(m_package->packageInfo() == before);
    if (!none.model)
        return;

    command = made(className, m_arguments);
    command->redo();
    m_package->clearBehaviors();
    while (m_package->removeDialog(0)) {
    }
    taken();
    command->undo();
    command->redo();
    QCOMPARE(taken(), QStringList());
}

// Steps without the entry leave a rename's key alone.
void TestCommands::renamesOfAnEntryThatComesBack() {
    BehaviorPathCommand path(m_package.get(), text("greet"), text("hi"), false);
    path.redo();
    const Tano::BehaviorInfo record = m_behavior->toBehaviorInfo();
    m_package->clearBehaviors();
    path.undo();
    QCOMPARE(path.behaviorPath(), text("hi"));
    m_package->addBehavior(record);
    path.undo();
    QVERIFY(m_package->behavior(text("greet")));
}

void TestCommands::switchNamesTheBehavior() {
    const QLocale locale;
    const auto shown = [&] {
        return BehaviorSwitchUserRequestableCommand(m_package.get(), text("greet")).text();
    };
    QLocale::setDefault(QLocale(text("fr_FR")));
    QCOMPARE(shown(), text("Set Saluer as user-requestable"));
    m_behavior->setUserRequestable(true);
    QCOMPARE(shown(), text("Set Saluer as not user-requestable"));
    QLocale::setDefault(QLocale(text("de_DE")));
    QCOMPARE(shown(), text("Set a behavior as not user-requestable"));
    QLocale::setDefault(locale);

    // It is made for one flag, and sticks to it.
    BehaviorSwitchUserRequestableCommand command(m_package.get(), text("greet"));
    m_behavior->setUserRequestable(false);
    taken();
    command.redo();
    QCOMPARE(taken(), QStringList());
    command.undo();
    QCOMPARE(taken(), lines("b.userRequestableChanged(true)"));
}

void TestCommands::permissionsUndoBlindly() {
    m_behavior->addPermission(text("camera"));
    BehaviorAddRemovePermissionCommand command(m_package.get(), text("greet"), text("camera"),
                                               true);
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

void TestCommands::addedItemPositions_data() {
    QTest::addColumn<QStringList>("before");
    QTest::addColumn<int>("index");
    QTest::addColumn<QStringList>("after");
    QTest::addColumn<QString>("undone");
    const auto row = [](const char *name, const char *before, int index, const char *after,
                        const char *undone) {
        QTest::newRow(name) << lines(before) << index << lines(after) << text(undone);
    };
    row("to an empty list", "", -1, "x", "b.tagRemoved(0, de_DE)");
    row("first", "a\nb\nc", 0, "x\na\nb\nc", "b.tagRemoved(0, de_DE)");
    row("within", "a\nb\nc", 1, "a\nx\nb\nc", "b.tagRemoved(1, de_DE)");
    row("at the end", "a\nb\nc", 3, "a\nb\nc\nx", "b.tagRemoved(3, de_DE)");
    row("beyond the end", "a\nb\nc", 9, "a\nb\nc\nx", "b.tagRemoved(3, de_DE)");
    row("negative", "a\nb\nc", -2, "a\nb\nc\nx", "b.tagRemoved(3, de_DE)");
}

void TestCommands::addedItemPositions() {
    QFETCH(QStringList, before);
    QFETCH(int, index);
    const RobotLanguage german = language("de_DE");
    for (const QString &tag : std::as_const(before))
        m_behavior->addTag(tag, german);
    const std::unique_ptr<BehaviorAddRemoveTagCommand> command(
        BehaviorAddRemoveTagCommand::addCommand(m_package.get(), text("greet"), text("x"), german,
                                                index));
    command->redo();
    QTEST(m_behavior->tags(german), "after");
    taken();
    command->undo();
    QTEST(taken().join(u'\n'), "undone");
    QCOMPARE(m_behavior->tags(german), before);
    command->redo();
    QTEST(m_behavior->tags(german), "after");
    // The same by hand, which the command does not remember.
    bool ok = false;
    QCOMPARE(command->remove(int(before.size()) + 1, &ok), QString());
    QVERIFY(!ok);
    QCOMPARE(command->remove(-1, nullptr), QString());
    QCOMPARE(command->remove(int(m_behavior->tags(german).indexOf(text("x"))), &ok), text("x"));
    QVERIFY(ok);
    QCOMPARE(command->add(text("y"), -1), int(before.size()));
    QCOMPARE(command->add(text("y"), 0), -1);
}

void TestCommands::failedListStepsEndTheCommand() {
    m_arguments.value = text("a"); // there already
    auto command = made(text("BehaviorAddRemoveTagCommand"), m_arguments);
    command->redo();
    m_behavior->removeTag(0, m_arguments.lang);
    taken();
    command->undo();
    command->redo();
    QCOMPARE(taken(), QStringList());

    m_arguments.isAdd = false;
    m_arguments.index = int(m_behavior->tags(m_arguments.lang).size());
    command = made(text("BehaviorAddRemoveTagCommand"), m_arguments);
    command->redo();
    m_behavior->addTag(text("d"), m_arguments.lang);
    taken();
    command->redo();
    command->undo();
    QCOMPARE(taken(), QStringList());

    // Removing the last item and putting it back appends it.
    command = made(text("BehaviorAddRemoveTagCommand"), m_arguments);
    command->redo();
    command->undo();
    QCOMPARE(taken(), lines(R"(b.tagRemoved(2, fr_FR)
                               b.tagAdded("d", fr_FR))"));
}

void TestCommands::itemsBeyondTheEnd() {
    m_arguments.index = 5;
    const auto command = made(text("BehaviorSetTagCommand"), m_arguments);
    QCOMPARE(command->text(), text("Set behavior tag #5 (fr_FR)"));
    command->redo();
    command->undo();
    QCOMPARE(taken(), QStringList());
}

void TestCommands::removedTopicThatWasNotThere() {
    m_arguments.lang = language("ja_JP");
    const auto command = made(text("DialogInfoModelRemoveTopicCommand"), m_arguments);
    command->redo();
    command->undo();
    QCOMPARE(taken(), QStringList());
}

void TestCommands::selectorsOutsideTheTable() {
    const Tano::PackageInfo before = m_package->packageInfo();
    for (const int what : {-1, 8}) {
        m_arguments.what = what;
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
