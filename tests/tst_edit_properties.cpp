#include "command_classes.h"
#include "edit_reference.h"
#include "signal_log.h"

#include <QUndoStack>

#include <rapidcheck.h>

using namespace Zel;
using Reference::Command;
using Reference::Does;
using Reference::Entity;
using Reference::Notifications;

namespace {

QString text(const char *utf8) {
    return QString::fromUtf8(utf8);
}

// Stores a field that has one value per language.
template<typename Value, typename Localized>
void put(QMap<QString, Value> &fields, const char *field, const Localized &values) {
    for (const auto &[value, language] : values)
        fields[text(field) % u'[' % language.isoCode() % u']'] = value;
}

QStringList codes(const RobotLanguages &languages) {
    QStringList result;
    for (const RobotLanguage &language : languages)
        result += language.isoCode();
    return result;
}

// The contents of a package according to its getters.
Entity shown(const PackageInfoModel &package) {
    Entity own;
    own.texts = {{text("installer"), package.installer()},
                 {text("uid"), package.uid()},
                 {text("typeVersion"), package.typeVersion()},
                 {text("author"), package.author()},
                 {text("organization"), package.organization()},
                 {text("date"), package.date()},
                 {text("channel"), package.channel()},
                 {text("path"), package.path()},
                 {text("version"), SoftwareVersionUtils::toString(package.version())}};
    put(own.texts, "names", package.names());
    put(own.texts, "descriptions", package.descriptions());
    for (const char *number : {"0", "1", "2"}) {
        if (Commands::icon(text(number)).cacheKey() == package.icon().cacheKey())
            own.texts[text("icon")] = text(number);
    }
    own.setList(text("supportedLanguages"), codes(package.supportedLanguages()));
    own.setList(text("descriptionLanguages"), codes(package.descriptionLanguages()));
    return own;
}

Entity shown(const BehaviorInfoModel &model) {
    Entity behavior;
    behavior.texts = {
        {text("key"), model.path()},
        {text("nature"), model.nature()},
        {text("userRequestable"), text(model.isUserRequestable() ? "true" : "false")}};
    put(behavior.texts, "names", model.names());
    put(behavior.texts, "descriptions", model.descriptions());
    put(behavior.lists, "tags", model.languagesToTags());
    put(behavior.lists, "triggerSentences", model.languagesToTriggerSentences());
    put(behavior.lists, "loadingResponses", model.languagesToLoadingResponses());
    for (const char *purpose : {"launch", "stop"})
        behavior.setList(text("conditions[%1]").arg(text(purpose)),
                         model.conditions(text(purpose)));
    // The model does not expose the order, which matters in the manifest.
    QStringList permissions;
    for (const std::string &permission : model.toBehaviorInfo().permissions())
        permissions += fromUtf8(permission);
    RC_ASSERT(model.permissions() == QSet<QString>(permissions.begin(), permissions.end()));
    behavior.setList(text("permissions"), permissions);
    return behavior;
}

Entity shown(const DialogInfoModel &model) {
    Entity dialog;
    dialog.texts = {{text("key"), model.topicName()}, {text("typeVersion"), model.typeVersion()}};
    put(dialog.texts, "topics", model.topics());
    return dialog;
}

// The package after a save, which turns empty texts into absent ones.
Reference::Package saved(Reference::Package package) {
    const auto clean = [](Entity &entity) {
        entity.label.clear();
        const QStringList empty = entity.texts.keys(QString());
        for (const QString &field : empty)
            entity.texts.remove(field);
    };
    package.own.texts.remove(text("icon"));
    clean(package.own);
    std::for_each(package.behaviors.begin(), package.behaviors.end(), clean);
    std::for_each(package.dialogs.begin(), package.dialogs.end(), clean);
    return package;
}

// A real package and a reference model, with the notifications of the real one.
class Pair {
public:
    Pair() {
        // Has comments and unknown content, which must stay in place.
        QFile manifest(QStringLiteral(ZEL_TEST_DATA "/commands/package.xml"));
        if (!manifest.open(QIODevice::ReadOnly))
            qFatal("no manifest");
        load(package, manifest.readAll());
        m_log.watch(package);
        reference.package = all(package);
    }

    // The library's command for a reference command.
    std::unique_ptr<QUndoCommand> real(const Command &c) {
        return Commands::made(
            c.kind->className,
            {&package, c.key, {c.value}, {c.tag}, c.index, {c.kind->what}, c.isAdd, c.isFinal});
    }

    void push(const Command &command) {
        stack.push(real(command).release());
        expectSame(reference.push(command));
    }

    void setIndex(int index) {
        stack.setIndex(index);
        expectSame(reference.setIndex(index));
    }

    // Edits the package without the undo stack.
    void edit(Command command) {
        real(command)->redo();
        command = Reference::made(reference.package, command);
        expectSame(Reference::step(reference.package, command, false));
    }

    void addOrRemoveBehavior(const QString &path) {
        if (!package.addBehavior(path))
            package.removeBehavior(path);
        addOrRemove(reference.package.behaviors, path, all(package).behaviors);
    }

    void addOrRemoveDialog(const QString &name) {
        if (!package.dialog(name))
            package.addDialog(name);
        else
            package.removeDialog(package.dialog(name));
        addOrRemove(reference.package.dialogs, name, all(package).dialogs);
    }

    // The notifications since the last step.
    Notifications take() { return m_log.take(); }

    std::string bytes() {
        package.syncRecord();
        return package.saveToManifestContent().toStdString();
    }

    PackageInfoModel package;
    QUndoStack stack;
    Reference::Editor reference;

private:
    static void load(PackageInfoModel &package, const QByteArray &content) {
        if (!package.loadFromManifestContent(content))
            qFatal("%s", package.packageInfo().errorString().c_str());
    }

    // Includes the children; watches them if they belong to the package.
    Reference::Package all(const PackageInfoModel &model) {
        const auto labelled = [&](auto *child, QChar letter) {
            if (&model == &package && child->objectName().isEmpty()) {
                child->setObjectName(letter % QString::number(++m_lastId));
                m_log.watch(*child, child->objectName());
            }
            Entity entity = shown(*child);
            entity.label = child->objectName() % u'.';
            return entity;
        };
        Reference::Package result{shown(model)};
        for (BehaviorInfoModel *behavior : model.behaviors())
            result.behaviors.push_back(labelled(behavior, u'b'));
        for (DialogInfoModel *dialog : model.dialogs())
            result.dialogs.push_back(labelled(dialog, u'd'));
        return result;
    }

    void addOrRemove(std::vector<Entity> &entities, const QString &key,
                     const std::vector<Entity> &after) {
        if (const Entity *there = Reference::entityAt(entities, key))
            entities.erase(entities.begin() + (there - entities.data()));
        else
            entities.push_back(after.back());
        m_log.take();
        expectSame({});
    }

    void expectSame(const Notifications &announced) {
        RC_ASSERT(m_log.take().join(u'\n').toStdString() == announced.join(u'\n').toStdString());
        RC_ASSERT(all(package) == reference.package);
        RC_ASSERT(stack.count() == reference.count());
        RC_ASSERT(stack.index() == reference.index());
        // The record holds what the getters return.
        package.syncRecord();
        PackageInfoModel read;
        load(read, package.saveToManifestContent());
        RC_ASSERT(saved(all(read)) == saved(reference.package));
    }

    SignalLog m_log;
    int m_lastId = 0;
};

int any(int count) {
    return *rc::gen::inRange(0, count);
}

QString pick(const QStringList &texts) {
    return texts.at(any(int(texts.size())));
}

Command anyCommand() {
    const auto &kinds = Reference::kinds();
    Command c{&kinds.at(std::size_t(any(int(kinds.size()))))};
    c.isFinal = c.isMergeable() && any(4) == 0;
    if (!c.isOnPackage())
        c.key = (c.isOnBehavior() ? u'p' : u't') % QString::number(any(3));
    c.value = pick(c.kind->values);
    if (!c.kind->tags.isEmpty())
        c.tag = pick(c.kind->tags);
    if (c.does(Does::SetItem))
        c.index = any(4);
    if (c.does(Does::AddOrRemoveItem))
        c.index = any(5) - 1;
    if (c.does(Does::AddOrRemoveItem) || c.does(Does::AddOrRemovePermission))
        c.isAdd = any(2) == 0;
    if (c.does(Does::AddOrRemoveItem) && !c.isAdd)
        c.value.clear();
    return c;
}

// Whether undoing restores the package; only some kinds of commands may fail to.
bool isUndone(Pair &pair, const Command &pushed) {
    Reference::Package package = pair.reference.package;
    Command command = Reference::made(package, pushed);
    Reference::step(package, command, false);
    Reference::step(package, command, true);
    const bool isRestored = saved(package) == saved(pair.reference.package);
    RC_ASSERT(isRestored || !command.kind->lasting.isEmpty());
    return isRestored;
}

} // namespace

class TestEditProperties : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyIndexHasItsBytes();
    void otherHands();
    void whatUndoingDoesNotRestore_data() { addRowsOf("commands/irreversible.json"); }
    void whatUndoingDoesNotRestore();
    void missingTextsAreUndoneToEmptyOnes();

private:
    static QString fetched(const char *column) {
        return *static_cast<QString *>(QTest::qData(column, QMetaType::QString));
    }
};

// Undoing and redoing restore the exact bytes for every index, in any order.
void TestEditProperties::everyIndexHasItsBytes() {
    const bool holds = rc::check("every index of the stack has its bytes", [] {
        Pair pair;
        std::vector<std::string> bytes{pair.bytes()};
        const int edits = *rc::gen::inRange(1, 40);
        for (int i = 0; i < edits; ++i) {
            const Command command = anyCommand();
            if (!isUndone(pair, command))
                continue;
            pair.push(command);
            bytes.resize(std::size_t(pair.stack.index()));
            bytes.push_back(pair.bytes());
            if (any(4) == 0)
                pair.setIndex(any(pair.stack.count() + 1));
            RC_ASSERT(pair.bytes() == bytes.at(std::size_t(pair.stack.index())));
        }
        for (int index = pair.stack.count(); index >= 0; --index) {
            pair.setIndex(index);
            RC_ASSERT(pair.bytes() == bytes.at(std::size_t(index)));
        }
        pair.setIndex(pair.stack.count());
        RC_ASSERT(pair.bytes() == bytes.back());
    });
    QVERIFY(holds);
}

// Commands behave and notify like the reference while other code edits the package.
void TestEditProperties::otherHands() {
    const bool holds = rc::check("commands go on over the edits of others", [] {
        Pair pair;
        const int edits = *rc::gen::inRange(1, 60);
        for (int i = 0; i < edits; ++i) {
            switch (any(8)) {
            case 0:
                pair.addOrRemoveBehavior(u'p' % QString::number(any(3)));
                break;
            case 1:
                pair.addOrRemoveDialog(u't' % QString::number(any(3)));
                break;
            case 2:
                pair.edit(anyCommand());
                break;
            case 3:
            case 4:
                pair.setIndex(any(pair.stack.count() + 1));
                break;
            default:
                pair.push(anyCommand());
            }
        }
    });
    QVERIFY(holds);
}

void TestEditProperties::whatUndoingDoesNotRestore() {
    QFETCH(QString, className);
    QFETCH(QString, left);
    const auto &kinds = Reference::kinds();
    const auto kind = std::find_if(kinds.begin(), kinds.end(), [&](const Reference::Kind &each) {
        return each.className == className;
    });
    Command command{&*kind, fetched("key"), fetched("value"), fetched("tag")};
    command.isAdd = fetched("isAdd") == QLatin1String("true");
    command.index = 1;
    Pair pair;
    const std::string before = pair.bytes();
    QVERIFY(command.kind->lasting.contains(text(QTest::currentDataTag())));
    pair.stack.push(pair.real(command).release());
    pair.take();
    pair.stack.undo();
    QTEST(pair.take().join(u'\n'), "undone");
    const std::string bytes = pair.bytes();
    QVERIFY(bytes != before);
    QVERIFY2(fromUtf8(bytes).contains(left), bytes.c_str());
}

// A manifest does not distinguish absent texts from empty ones unless the element has unknown
// attributes.
void TestEditProperties::missingTextsAreUndoneToEmptyOnes() {
    Pair pair;
    const auto bytes = [&] { return QByteArray::fromStdString(pair.bytes()); };
    const RobotLanguage english = Commands::Tag{text("en_US")};
    QVERIFY(pair.package.loadFromManifestContent(
        bytes().replace("<topic language=\"en_US\">", "<topic language=\"en_US\" x=\"1\">")));
    const DialogInfoModel *dialog = pair.package.dialog(text("t0"));
    pair.stack.push(new DialogInfoModelRemoveTopicCommand(&pair.package, text("t0"), english));
    QVERIFY(!bytes().contains("<topic"));
    pair.stack.push(
        new DialogInfoModelTopicCommand(&pair.package, text("t0"), english, text("z"), true));
    pair.stack.undo();
    QCOMPARE(dialog->topics(), (Language::LocalizedStrings{{QString(), english}}));
    QVERIFY(bytes().contains("<topic language=\"en_US\" x=\"1\"/>"));
    pair.stack.undo();
    QVERIFY(bytes().contains("<topic language=\"en_US\" x=\"1\">e.top</topic>"));
}

QTEST_MAIN(TestEditProperties)
#include "tst_edit_properties.moc"
