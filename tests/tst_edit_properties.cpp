#include "edit_reference.h"
#include "real_command.h"
#include "signal_log.h"

#include <QTest>
#include <QUndoStack>

#include <rapidcheck.h>

using namespace Zel;
using RealCommand::icon;
using RealCommand::language;
using Reference::Command;
using Reference::Kind;
using Reference::Told;

namespace {

QString text(const char *utf8) {
    return QString::fromUtf8(utf8);
}

// With comments, elements and attributes beyond the fields, which have to stay in their places.
constexpr char manifest[] = R"(<package format="1" uid="u" version="1.0.0" x="1">
  <!-- first -->
  <author>Ines</author>
  <supportedLanguage code="en_US"/><supportedLanguage code="fr_FR"/>
  <descriptionLanguage code="en_US"/><descriptionLanguage code="fr_FR"/>
  <texts language="en_US"><name>n</name></texts>
  <behavior path="p0" nature="solitary">
    <permission>camera</permission><permission>speech</permission>
    <condition purpose="launch">a</condition><condition purpose="launch">b</condition>
    <!-- of p0 -->
    <texts language="en_US">
      <tag>a</tag><!-- of b --><tag x="1">b</tag><tag>c</tag>
      <triggerSentence>a</triggerSentence>
      <future/>
    </texts>
  </behavior>
  <behavior path="p1"/>
  <dialog topicName="t0" typeVersion="1"><topic language="en_US">e.top</topic><!-- of t0 --></dialog>
  <dialog topicName="t1"/>
  <future/>
</package>)";

Reference::Texts textsOf(const Language::LocalizedStrings &values) {
    Reference::Texts texts;
    for (const auto &[value, lang] : values)
        texts[lang.isoCode()] = value;
    return texts;
}

Reference::Lists listsOf(const Language::LocalizedStringLists &values) {
    Reference::Lists lists;
    for (const auto &[value, lang] : values)
        lists[lang.isoCode()] = value;
    return lists;
}

Reference::Texts textsOf(const Tano::TextMap &values) {
    Reference::Texts texts;
    for (const auto &[code, value] : values)
        texts[fromUtf8(code)] = fromUtf8(value);
    return texts;
}

Reference::Lists listsOf(const Tano::TextListMap &values) {
    Reference::Lists lists;
    for (const auto &[code, list] : values) {
        for (const std::string &value : list)
            lists[fromUtf8(code)] += fromUtf8(value);
    }
    return lists;
}

template<typename Codes>
QStringList codesOf(const Codes &codes) {
    QStringList result;
    for (const auto &code : codes) {
        if constexpr (std::is_same_v<Codes, RobotLanguages>)
            result += code.isoCode();
        else
            result += fromUtf8(code);
    }
    return result;
}

// The real package beside the plain one, and everything that it tells.
class Pair {
public:
    Pair() {
        if (!package.loadFromManifestContent(manifest))
            qFatal("%s", package.packageInfo().errorString().c_str());
        m_log.watch(package);
        reference.package = shown();
        for (auto &behavior : reference.package.behaviors)
            watch(*package.behavior(behavior.path));
        for (auto &dialog : reference.package.dialogs)
            watch(*package.dialog(dialog.name));
        reference.package = shown();
    }

    void push(const Command &command) {
        stack.push(RealCommand::make(&package, command));
        expectSame(reference.push(command));
    }

    void setIndex(int index) {
        stack.setIndex(index);
        expectSame(reference.setIndex(index));
    }

    // What other hands do: an edit that is on no stack.
    void edit(Command command) {
        const std::unique_ptr<QUndoCommand> real(RealCommand::make(&package, command));
        real->redo();
        command = Reference::made(reference.package, command);
        expectSame(Reference::step(reference.package, command, false));
    }

    void addOrRemoveBehavior(const QString &path) {
        auto &behaviors = reference.package.behaviors;
        if (package.addBehavior(path)) {
            watch(*package.behaviors().constLast());
            behaviors.push_back(shown().behaviors.back());
        } else {
            package.removeBehavior(path);
            behaviors.erase(behaviors.begin() +
                            (Reference::behaviorAt(reference.package, path) - behaviors.data()));
        }
        m_log.take();
        expectSame({});
    }

    void addOrRemoveDialog(const QString &name) {
        auto &dialogs = reference.package.dialogs;
        if (!package.dialog(name)) {
            package.addDialog(name);
            watch(*package.dialogs().constLast());
            dialogs.push_back(shown().dialogs.back());
        } else {
            package.removeDialog(package.dialog(name));
            dialogs.erase(dialogs.begin() +
                          (Reference::dialogAt(reference.package, name) - dialogs.data()));
        }
        m_log.take();
        expectSame({});
    }

    // What was told since the last step.
    Told take() { return m_log.take(); }

    QByteArray bytes() {
        package.syncRecord();
        return package.saveToManifestContent();
    }

    PackageInfoModel package;
    QUndoStack stack;
    Reference::Editor reference;

private:
    template<typename Child>
    void watch(Child &child) {
        m_ids[&child] = ++m_lastId;
        const QLatin1Char letter(std::is_same_v<Child, BehaviorInfoModel> ? 'b' : 'd');
        m_log.watch(child, letter + QString::number(m_lastId));
    }

    // What the package's readers answer.
    Reference::Package shown() {
        Reference::Package result;
        result.texts = {package.installer(), package.uid(),          package.typeVersion(),
                        package.author(),    package.organization(), package.date(),
                        package.channel(),   package.path()};
        result.names = textsOf(package.names());
        result.descriptions = textsOf(package.descriptions());
        result.version = SoftwareVersionUtils::toString(package.version());
        for (const char *number : {"0", "1", "2"}) {
            if (icon(text(number)).cacheKey() == package.icon().cacheKey())
                result.icon = text(number);
        }
        result.supported = codesOf(package.supportedLanguages());
        result.described = codesOf(package.descriptionLanguages());
        const auto behaviors = package.behaviors();
        for (BehaviorInfoModel *b : behaviors) {
            Reference::Lists conditions;
            for (const char *purpose : {"launch", "stop"}) {
                const QStringList list = b->conditions(text(purpose));
                if (!list.isEmpty())
                    conditions[text(purpose)] = list;
            }
            result.behaviors.push_back(
                {m_ids[b],
                 b->path(),
                 b->nature(),
                 b->isUserRequestable() ? text("true") : text("false"),
                 textsOf(b->names()),
                 textsOf(b->descriptions()),
                 permissions(b->toBehaviorInfo()),
                 {listsOf(b->languagesToTags()), listsOf(b->languagesToTriggerSentences()),
                  listsOf(b->languagesToLoadingResponses()), conditions}});
            const QStringList &all = result.behaviors.back().permissions;
            RC_ASSERT(b->permissions() == QSet<QString>(all.begin(), all.end()));
        }
        const auto dialogs = package.dialogs();
        for (DialogInfoModel *d : dialogs)
            result.dialogs.push_back(
                {m_ids[d], d->topicName(), d->typeVersion(), textsOf(d->topics())});
        return result;
    }

    static QStringList permissions(const Tano::BehaviorInfo &info) {
        return codesOf(info.permissions());
    }

    // The same from the record; what it does not hold is taken from `other`.
    Reference::Package recorded(const Reference::Package &other) {
        package.syncRecord();
        const Tano::PackageInfo &info = package.packageInfo();
        Reference::Package result = other;
        result.texts = {fromUtf8(info.installer()),    fromUtf8(info.uuid()),
                        fromUtf8(info.typeVersion()),  fromUtf8(info.author()),
                        fromUtf8(info.organization()), fromUtf8(info.date()),
                        fromUtf8(info.channel()),      fromUtf8(info.path())};
        result.names = textsOf(info.names());
        result.descriptions = textsOf(info.descriptions());
        result.version = fromUtf8(info.version());
        result.supported = codesOf(info.supportedLanguages());
        result.described = codesOf(info.descriptionLanguages());
        result.behaviors.clear();
        for (const Tano::BehaviorInfo &b : info.behaviors())
            result.behaviors.push_back(
                {other.behaviors.at(result.behaviors.size()).id,
                 fromUtf8(b.path()),
                 fromUtf8(b.nature()),
                 b.isUserRequestable() ? text("true") : text("false"),
                 textsOf(b.names()),
                 textsOf(b.descriptions()),
                 permissions(b),
                 {listsOf(b.languagesToTags()), listsOf(b.languagesToTriggerSentences()),
                  listsOf(b.languagesToLoadingResponses()), listsOf(b.purposesToConditions())}});
        result.dialogs.clear();
        for (const Tano::DialogInfo &d : info.dialogs())
            result.dialogs.push_back({other.dialogs.at(result.dialogs.size()).id,
                                      fromUtf8(d.topicName()), fromUtf8(d.typeVersion()),
                                      textsOf(d.topics())});
        return result;
    }

    void expectSame(const Told &told) {
        RC_ASSERT(m_log.take().join(u'\n').toStdString() == told.join(u'\n').toStdString());
        const Reference::Package model = shown();
        RC_ASSERT(model == reference.package);
        RC_ASSERT(recorded(model) == model);
        RC_ASSERT(stack.count() == reference.count());
        RC_ASSERT(stack.index() == reference.index());
    }

    SignalLog m_log;
    std::map<const QObject *, int> m_ids;
    int m_lastId = 0;
};

int any(int count) {
    return *rc::gen::inRange(0, count);
}

QString pick(std::initializer_list<const char *> texts) {
    return text(*(texts.begin() + any(int(texts.size()))));
}

Command anyCommand() {
    Command c;
    c.kind = Kind(any(int(Kind::Count)));
    c.isFinal = c.isMergeable() && any(4) == 0;
    c.value = pick({"", "a", "b", "c", "d", "é<&"});
    if (c.isOnDialog())
        c.key = pick({"t0", "t1", "t2"});
    else if (!c.isOnPackage())
        c.key = pick({"p0", "p1", "p2"});
    switch (c.kind) {
    case Kind::PlainText:
        c.which = any(8);
        break;
    case Kind::Version:
        c.value = pick({"1.0.0", "1.2.0", "3.0.1"});
        break;
    case Kind::Icon:
        c.value = pick({"0", "1", "2"});
        break;
    case Kind::Path:
        c.value = pick({"p0", "p1", "p2", "p3"});
        break;
    case Kind::TopicName:
        c.value = pick({"t0", "t1", "t2", "t3"});
        break;
    case Kind::Permission:
        c.value = pick({"camera", "speech", "motion"});
        c.isAdd = any(2) == 0;
        break;
    case Kind::SetItem:
        c.which = any(4);
        c.index = any(4);
        break;
    case Kind::AddRemoveItem:
        c.which = any(4);
        c.index = any(5) - 1;
        c.isAdd = any(2) == 0;
        if (!c.isAdd)
            c.value.clear();
        break;
    case Kind::LocalizedText:
        c.which = any(2);
        break;
    default:
        break;
    }
    const bool isItem = c.kind == Kind::SetItem || c.kind == Kind::AddRemoveItem;
    const bool hasLanguage = c.kind == Kind::LocalizedText || c.kind == Kind::Language ||
                             c.kind == Kind::Name || c.kind == Kind::Description ||
                             c.kind == Kind::Topic || c.kind == Kind::RemoveTopic || isItem;
    if (isItem && c.which == 3)
        c.tag = pick({"launch", "stop"});
    else if (hasLanguage)
        c.tag = pick({"en_US", "fr_FR", "qd_QA"});
    return c;
}

// Texts that are empty are no others than those that are missing, in a manifest.
Reference::Package withoutEmptyTexts(Reference::Package package) {
    const auto clean = [](Reference::Texts &texts) {
        for (auto it = texts.begin(); it != texts.end();)
            it = it->second.isEmpty() ? texts.erase(it) : std::next(it);
    };
    clean(package.names);
    clean(package.descriptions);
    for (Reference::Behavior &behavior : package.behaviors) {
        clean(behavior.names);
        clean(behavior.descriptions);
    }
    for (Reference::Dialog &dialog : package.dialogs)
        clean(dialog.topics);
    return package;
}

// Whether undoing restores the package, and that it is said why where it does not.
bool isUndone(Pair &pair, const Command &pushed) {
    Reference::Package package = pair.reference.package;
    const char *reason = Reference::whyNotUndone(package, pushed);
    Command command = Reference::made(package, pushed);
    Reference::step(package, command, false);
    Reference::step(package, command, true);
    const bool isRestored = withoutEmptyTexts(package) == withoutEmptyTexts(pair.reference.package);
    RC_ASSERT(isRestored == (reason == nullptr));
    return isRestored;
}

} // namespace

class TestEditProperties : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void everyIndexHasItsBytes();
    void otherHands();
    void whatUndoingDoesNotRestore_data();
    void whatUndoingDoesNotRestore();
    void missingTextsAreUndoneToEmptyOnes();
};

// Undoing and redoing give the exact bytes of every index, in any order.
void TestEditProperties::everyIndexHasItsBytes() {
    const bool holds = rc::check("every index of the stack has its bytes", [] {
        Pair pair;
        std::vector<QByteArray> bytes{pair.bytes()};
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
            RC_ASSERT(pair.bytes().toStdString() ==
                      bytes.at(std::size_t(pair.stack.index())).toStdString());
        }
        for (int index = pair.stack.count(); index >= 0; --index) {
            pair.setIndex(index);
            RC_ASSERT(pair.bytes().toStdString() == bytes.at(std::size_t(index)).toStdString());
        }
        pair.setIndex(pair.stack.count());
        RC_ASSERT(pair.bytes().toStdString() == bytes.back().toStdString());
    });
    QVERIFY(holds);
}

// Whatever else happens to the package, the commands do what the plain ones do, and tell it.
void TestEditProperties::otherHands() {
    const bool holds = rc::check("commands go on over the edits of others", [] {
        Pair pair;
        const int edits = *rc::gen::inRange(1, 60);
        for (int i = 0; i < edits; ++i) {
            switch (any(8)) {
            case 0:
                pair.addOrRemoveBehavior(pick({"p0", "p1", "p2"}));
                break;
            case 1:
                pair.addOrRemoveDialog(pick({"t0", "t1", "t2"}));
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

void TestEditProperties::whatUndoingDoesNotRestore_data() {
    QTest::addColumn<int>("kind");
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<bool>("isAdd");
    QTest::addColumn<QString>("undone");
    QTest::addColumn<QString>("left");
    const auto row = [](const char *reason, Kind kind, const char *key, const char *value,
                        bool isAdd, const char *undone, const char *left) {
        QTest::newRow(reason) << int(kind) << text(key) << text(value) << isAdd << text(undone)
                              << text(left);
    };
    row("another has the path already", Kind::Path, "p1", "p0", true, R"(b1.pathUpdated("p1"))",
        R"(<behavior path="p0"/>)");
    row("another has the name already", Kind::TopicName, "t1", "t0", true,
        R"(d3.nameChanged("t1"))", R"(<dialog topicName="t0"/>)");
    row("a list does not take an item back that it has once more", Kind::AddRemoveItem, "p0", "",
        false, "", "<tag>a</tag>\n      <!-- of b -->\n      <tag>c</tag>");
    row("undoing does the opposite of what was not done", Kind::Permission, "p0", "speech", true,
        R"(b1.permissionRemoved("speech"))", "camera</permission>\n    <condition");
    row("a permission comes back at the end", Kind::Permission, "p0", "camera", false,
        R"(b1.permissionAdded("camera"))", "camera</permission>\n    <condition");
    row("switching a language has effects beyond the list's end", Kind::Language, "", "", true,
        "languageRemoved(qd_QA)", R"(<descriptionLanguage code="qd_QA"/>)");
}

void TestEditProperties::whatUndoingDoesNotRestore() {
    QFETCH(int, kind);
    QFETCH(QString, key);
    QFETCH(QString, value);
    QFETCH(bool, isAdd);
    QFETCH(QString, undone);
    QFETCH(QString, left);
    Command command;
    command.kind = Kind(kind);
    command.key = key;
    command.value = value;
    command.isAdd = isAdd;
    Pair pair;
    if (command.kind == Kind::Language)
        command.tag = text("qd_QA");
    if (command.kind == Kind::AddRemoveItem) {
        command.tag = text("en_US");
        command.index = 1;
        BehaviorInfoModel *behavior = pair.package.behavior(key);
        behavior->updateTag(1, text("a"), language(command.tag));
        pair.reference.package.behaviors.front().lists[0][command.tag][1] = text("a");
        pair.take();
    }
    const QByteArray before = pair.bytes();
    QCOMPARE(text(Reference::whyNotUndone(pair.reference.package, command)),
             text(QTest::currentDataTag()));
    pair.stack.push(RealCommand::make(&pair.package, command));
    pair.take();
    pair.stack.undo();
    QCOMPARE(pair.take().join(u'\n'), undone);
    QVERIFY(pair.bytes() != before);
    QVERIFY2(pair.bytes().contains(left.toUtf8()), pair.bytes().constData());
}

// A manifest does not tell them apart, unless the element has attributes that it keeps.
void TestEditProperties::missingTextsAreUndoneToEmptyOnes() {
    Pair pair;
    const RobotLanguage english = language(text("en_US"));
    QVERIFY(pair.package.loadFromManifestContent(
        pair.bytes().replace("<topic language=\"en_US\">", "<topic language=\"en_US\" x=\"1\">")));
    const DialogInfoModel *dialog = pair.package.dialog(text("t0"));
    pair.stack.push(new DialogInfoModelRemoveTopicCommand(&pair.package, text("t0"), english));
    QVERIFY(!pair.bytes().contains("<topic"));
    pair.stack.push(
        new DialogInfoModelTopicCommand(&pair.package, text("t0"), english, text("z"), true));
    pair.stack.undo();
    QCOMPARE(textsOf(dialog->topics()), (Reference::Texts{{text("en_US"), QString()}}));
    QVERIFY(pair.bytes().contains("<topic language=\"en_US\" x=\"1\"/>"));
    pair.stack.undo();
    QVERIFY(pair.bytes().contains("<topic language=\"en_US\" x=\"1\">e.top</topic>"));
}

QTEST_MAIN(TestEditProperties)
#include "tst_edit_properties.moc"
