#pragma once

#include <QString>
#include <QStringList>

#include <algorithm>
#include <array>
#include <map>
#include <tuple>
#include <vector>

/// A plain model of a package, of the commands that edit it and of the stack that they stand on:
/// no notifications but a list of what would be told, no records, no caches, no sharing.
namespace Reference {

using Texts = std::map<QString, QString>;
using Lists = std::map<QString, QStringList>;

/// The notifications, as SignalLog prints them.
using Told = QStringList;

inline QString quoted(const QString &text) {
    return QLatin1Char('"') + text + QLatin1Char('"');
}

inline QString call(const QString &name, const QStringList &arguments) {
    return name + QLatin1Char('(') + arguments.join(QLatin1String(", ")) + QLatin1Char(')');
}

/// What stands before the notifications of a child.
inline QString prefix(char letter, int id) {
    return QLatin1Char(letter) + QString::number(id) + QLatin1Char('.');
}

struct Behavior {
    int id = 0; ///< tells those that share a path apart
    QString path;
    QString nature;
    QString isUserRequestable = QStringLiteral("false");
    Texts names;
    Texts descriptions;
    QStringList permissions;
    std::array<Lists, 4> lists; ///< tags, trigger sentences, loading responses, conditions
};

struct Dialog {
    int id = 0;
    QString name;
    QString typeVersion;
    Texts topics;
};

struct Package {
    std::array<QString, 8> texts;
    Texts names;
    Texts descriptions;
    QString version = QStringLiteral("0.0.0");
    QString icon = QStringLiteral("0");
    QStringList supported;
    QStringList described;
    std::vector<Behavior> behaviors;
    std::vector<Dialog> dialogs;
};

inline bool operator==(const Behavior &a, const Behavior &b) {
    return std::tie(a.id, a.path, a.nature, a.isUserRequestable, a.names, a.descriptions,
                    a.permissions, a.lists) == std::tie(b.id, b.path, b.nature, b.isUserRequestable,
                                                        b.names, b.descriptions, b.permissions,
                                                        b.lists);
}

inline bool operator==(const Dialog &a, const Dialog &b) {
    return std::tie(a.id, a.name, a.typeVersion, a.topics) ==
           std::tie(b.id, b.name, b.typeVersion, b.topics);
}

inline bool operator==(const Package &a, const Package &b) {
    return std::tie(a.texts, a.names, a.descriptions, a.version, a.icon, a.supported, a.described,
                    a.behaviors, a.dialogs) == std::tie(b.texts, b.names, b.descriptions, b.version,
                                                        b.icon, b.supported, b.described,
                                                        b.behaviors, b.dialogs);
}

inline Behavior *behaviorAt(Package &package, const QString &path) {
    for (Behavior &behavior : package.behaviors) {
        if (behavior.path == path)
            return &behavior;
    }
    return nullptr;
}

inline Dialog *dialogAt(Package &package, const QString &name) {
    for (Dialog &dialog : package.dialogs) {
        if (dialog.name == name)
            return &dialog;
    }
    return nullptr;
}

inline QString valueIn(const Texts &texts, const QString &key) {
    const auto found = texts.find(key);
    return found == texts.end() ? QString() : found->second;
}

inline QStringList listIn(const Lists &lists, const QString &key) {
    const auto found = lists.find(key);
    return found == lists.end() ? QStringList() : found->second;
}

/// What a command does.
enum class Kind {
    PlainText,
    LocalizedText,
    Version,
    Icon,
    Language,
    Path,
    Nature,
    Name,
    Description,
    SetItem,
    AddRemoveItem,
    Requestable,
    Permission,
    TopicName,
    TypeVersion,
    Topic,
    RemoveTopic,
    Count
};

/// What a command is made from, and what it remembers. What does not matter to a kind is left as it
/// is here.
struct Command {
    Kind kind = Kind::PlainText;
    QString key{};   ///< the behavior's path or the dialog's name
    QString value{}; ///< text, version, permission, flag, or number of the icon
    QString tag{};   ///< language or purpose
    int which = 0;   ///< the text of the package, or the list
    int index = 0;   ///< of an item
    bool isAdd = true;
    bool isFinal = false;

    QString old{};
    QString madeFor{};
    bool hasSucceeded = true;

    bool isOnPackage() const { return kind <= Kind::Language; }
    bool isOnDialog() const { return kind >= Kind::TopicName; }
    bool isRename() const { return kind == Kind::Path || kind == Kind::TopicName; }
    bool isMergeable() const {
        constexpr std::array others{Kind::Version,       Kind::Icon,        Kind::Language,
                                    Kind::AddRemoveItem, Kind::Requestable, Kind::Permission,
                                    Kind::RemoveTopic};
        return std::find(others.begin(), others.end(), kind) == others.end();
    }
    QString shownTag() const { return which == 3 ? quoted(tag) : tag; }
};

template<typename Value>
Told write(Value &field, const Value &value, const QString &notification) {
    if (field == value)
        return {};
    field = value;
    return {notification};
}

inline Told writeIn(Texts &texts, const QString &key, const QString &value,
                    const QString &notification) {
    if (valueIn(texts, key) == value)
        return {};
    texts[key] = value;
    return {notification};
}

inline QString itemCall(const Behavior &behavior, const Command &command, const char *what,
                        const QStringList &arguments) {
    constexpr std::array names{"tag", "triggerSentence", "loadingResponse", "condition"};
    return call(prefix('b', behavior.id) + QLatin1String(names.at(std::size_t(command.which))) +
                    QLatin1String(what),
                arguments);
}

inline Told stepItem(Behavior *behavior, Command &command, bool isAdd) {
    if (!command.hasSucceeded)
        return {};
    const auto which = std::size_t(command.which);
    QStringList list = behavior ? listIn(behavior->lists.at(which), command.tag) : QStringList();
    const bool isInside = command.index >= 0 && command.index < list.size();
    command.hasSucceeded = behavior && (isAdd ? !list.contains(command.value) : isInside);
    if (!command.hasSucceeded)
        return {};
    const QString index = QString::number(command.index);
    Told told;
    if (!isAdd) {
        command.value = list.takeAt(command.index);
        told += itemCall(*behavior, command, "Removed", {index, command.shownTag()});
    } else if (isInside) {
        list.insert(command.index, command.value);
        told += itemCall(*behavior, command, "Inserted",
                         {quoted(command.value), command.shownTag(), index});
    } else {
        command.index = int(list.size());
        list.append(command.value);
        told += itemCall(*behavior, command, "Added", {quoted(command.value), command.shownTag()});
    }
    behavior->lists.at(which)[command.tag] = list;
    if (list.isEmpty())
        behavior->lists.at(which).erase(command.tag);
    return told;
}

inline Told setItem(Behavior &behavior, const Command &command, const QString &value) {
    Lists &lists = behavior.lists.at(std::size_t(command.which));
    if (command.index >= listIn(lists, command.tag).size())
        return {};
    lists[command.tag][command.index] = value;
    return {itemCall(behavior, command, "Updated",
                     {QString::number(command.index), quoted(value), command.shownTag()})};
}

inline Told stepPermission(Behavior &behavior, const QString &permission, bool isAdd) {
    if (behavior.permissions.contains(permission) == isAdd)
        return {};
    if (isAdd)
        behavior.permissions.append(permission);
    else
        behavior.permissions.removeOne(permission);
    return {call(prefix('b', behavior.id) +
                     QLatin1String(isAdd ? "permissionAdded" : "permissionRemoved"),
                 {quoted(permission)})};
}

inline Told removeTopic(Dialog &dialog, const QString &language) {
    if (dialog.topics.erase(language) == 0)
        return {};
    return {call(prefix('d', dialog.id) + QLatin1String("topicRemoved"), {language})};
}

inline Told switchLanguage(Package &package, const QString &language) {
    Told told;
    if (package.supported.removeOne(language)) {
        for (Dialog &dialog : package.dialogs)
            told += removeTopic(dialog, language);
        return told << call(QStringLiteral("languageRemoved"), {language});
    }
    package.supported += language;
    told += call(QStringLiteral("languageAdded"), {language});
    if (!package.described.contains(language)) {
        package.described += language;
        told += call(QStringLiteral("descriptionAdded"), {language});
    }
    return told;
}

inline Told stepPackage(Package &package, const Command &command, const QString &value) {
    constexpr std::array texts{"installerUpdated", "uidUpdated",          "typeVersionUpdated",
                               "authorUpdated",    "organizationUpdated", "dateUpdated",
                               "channelUpdated",   "pathUpdated"};
    constexpr std::array localizedTexts{"nameUpdated", "descriptionUpdated"};
    const auto which = std::size_t(command.which);
    switch (command.kind) {
    case Kind::PlainText:
        return write(package.texts.at(which), value,
                     call(QLatin1String(texts.at(which)), {quoted(value)}));
    case Kind::LocalizedText:
        return writeIn(which == 0 ? package.names : package.descriptions, command.tag, value,
                       call(QLatin1String(localizedTexts.at(which)), {quoted(value), command.tag}));
    case Kind::Version:
        package.version = value;
        return {call(QStringLiteral("versionUpdated"), {value})};
    case Kind::Icon:
        return write(package.icon, value,
                     call(QStringLiteral("iconUpdated"), {QStringLiteral("icon")}));
    default:
        return switchLanguage(package, command.tag);
    }
}

inline Told stepBehavior(Behavior &behavior, Command &command, const QString &value, bool isUndo) {
    const auto notification = [&](const char *name, const QStringList &arguments) {
        return call(prefix('b', behavior.id) + QLatin1String(name), arguments);
    };
    switch (command.kind) {
    case Kind::Path:
        command.key = value;
        return write(behavior.path, value, notification("pathUpdated", {quoted(value)}));
    case Kind::Nature:
        return write(behavior.nature, value, notification("natureUpdated", {quoted(value)}));
    case Kind::Name:
        return writeIn(behavior.names, command.tag, value,
                       notification("behaviorNameUpdated", {quoted(value), command.tag}));
    case Kind::Description:
        return writeIn(behavior.descriptions, command.tag, value,
                       notification("behaviorDescriptionUpdated", {quoted(value), command.tag}));
    case Kind::SetItem:
        return setItem(behavior, command, value);
    case Kind::Requestable:
        return write(behavior.isUserRequestable, value,
                     notification("userRequestableChanged", {value}));
    default:
        return stepPermission(behavior, command.value, command.isAdd != isUndo);
    }
}

inline Told stepDialog(Dialog &dialog, Command &command, const QString &value, bool isUndo) {
    const QString id = prefix('d', dialog.id);
    switch (command.kind) {
    case Kind::TopicName:
        command.key = value;
        return write(dialog.name, value, call(id + QLatin1String("nameChanged"), {quoted(value)}));
    case Kind::TypeVersion:
        return write(dialog.typeVersion, value,
                     call(id + QLatin1String("typeVersionChanged"), {quoted(value)}));
    case Kind::RemoveTopic:
        if (!isUndo)
            return removeTopic(dialog, command.tag);
        [[fallthrough]];
    default:
        return writeIn(dialog.topics, command.tag, value,
                       call(id + QLatin1String("topicChanged"), {command.tag, quoted(value)}));
    }
}

inline Told step(Package &package, Command &command, bool isUndo) {
    const QString &value = isUndo ? command.old : command.value;
    if (command.isOnPackage())
        return stepPackage(package, command, value);
    if (command.isOnDialog()) {
        Dialog *dialog = dialogAt(package, command.key);
        return dialog ? stepDialog(*dialog, command, value, isUndo) : Told();
    }
    Behavior *behavior = behaviorAt(package, command.key);
    if (command.kind == Kind::AddRemoveItem)
        return stepItem(behavior, command, command.isAdd != isUndo);
    return behavior ? stepBehavior(*behavior, command, value, isUndo) : Told();
}

inline QString oldValue(Package &package, const Command &command) {
    const auto which = std::size_t(command.which);
    const Behavior *behavior = behaviorAt(package, command.key);
    const Dialog *dialog = dialogAt(package, command.key);
    switch (command.kind) {
    case Kind::PlainText:
        return package.texts.at(which);
    case Kind::LocalizedText:
        return valueIn(which == 0 ? package.names : package.descriptions, command.tag);
    case Kind::Version:
        return package.version;
    case Kind::Icon:
        return package.icon;
    case Kind::Path:
        return command.key;
    case Kind::Nature:
        return behavior ? behavior->nature : QString();
    case Kind::Name:
        return behavior ? valueIn(behavior->names, command.tag) : QString();
    case Kind::Description:
        return behavior ? valueIn(behavior->descriptions, command.tag) : QString();
    case Kind::SetItem:
        return behavior ? listIn(behavior->lists.at(which), command.tag).value(command.index)
                        : QString();
    case Kind::Requestable:
        return behavior ? behavior->isUserRequestable : QStringLiteral("false");
    case Kind::TopicName:
        return dialog ? dialog->name : QString();
    case Kind::TypeVersion:
        return dialog ? dialog->typeVersion : QString();
    case Kind::Topic:
    case Kind::RemoveTopic:
        return dialog ? valueIn(dialog->topics, command.tag) : QString();
    default:
        return {};
    }
}

/// Fills in what a command remembers when it is made.
inline Command made(Package &package, Command command) {
    command.madeFor = command.key;
    command.old = oldValue(package, command);
    if (command.kind == Kind::Requestable)
        command.value =
            command.old == QLatin1String("true") ? QStringLiteral("false") : QStringLiteral("true");
    return command;
}

/// Why undoing the command right after it is done does not restore the package; null when it does.
inline const char *whyNotUndone(const Package &before, const Command &command) {
    Package package = before;
    const auto *behavior = behaviorAt(package, command.key);
    switch (command.kind) {
    case Kind::Path: {
        const auto *other = behaviorAt(package, command.value);
        return behavior && other && other < behavior ? "another has the path already" : nullptr;
    }
    case Kind::TopicName: {
        const auto *dialog = dialogAt(package, command.key);
        const auto *other = dialogAt(package, command.value);
        return dialog && other && other < dialog ? "another has the name already" : nullptr;
    }
    case Kind::AddRemoveItem: {
        const auto list = behavior
                              ? listIn(behavior->lists.at(std::size_t(command.which)), command.tag)
                              : QStringList();
        const bool isThere = command.index >= 0 && command.index < list.size();
        return !command.isAdd && isThere && list.count(list.at(command.index)) > 1
                   ? "a list does not take an item back that it has once more"
                   : nullptr;
    }
    case Kind::Permission:
        if (!behavior)
            return nullptr;
        if (behavior->permissions.contains(command.value) == command.isAdd)
            return "undoing does the opposite of what was not done";
        return command.isAdd || behavior->permissions.constLast() == command.value
                   ? nullptr
                   : "a permission comes back at the end";
    case Kind::Language: {
        const bool isLast = package.supported.endsWith(command.tag);
        const bool hasTopics =
            std::any_of(package.dialogs.begin(), package.dialogs.end(), [&](const Dialog &dialog) {
                return !valueIn(dialog.topics, command.tag).isEmpty();
            });
        const bool isAdded = !package.supported.contains(command.tag);
        const bool isRestored =
            !hasTopics && (isAdded ? package.described.contains(command.tag) : isLast);
        return isRestored ? nullptr : "switching a language has effects beyond the list's end";
    }
    default:
        return nullptr;
    }
}

/// The package and its undo stack.
class Editor {
public:
    Package package;

    [[nodiscard]] int index() const { return m_index; }
    [[nodiscard]] int count() const { return int(m_stack.size()); }

    Told push(const Command &pushed) {
        Command command = made(package, pushed);
        const Told told = step(package, command, false);
        m_stack.resize(std::size_t(m_index));
        if (!m_stack.empty() && merge(m_stack.back(), command))
            return told;
        m_stack.push_back(command);
        ++m_index;
        return told;
    }

    Told setIndex(int index) {
        Told told;
        while (m_index < index)
            told += step(package, m_stack.at(std::size_t(m_index++)), false);
        while (m_index > index)
            told += step(package, m_stack.at(std::size_t(--m_index)), true);
        return told;
    }

private:
    static bool merge(Command &older, const Command &newer) {
        const auto place = [](const Command &command, const QString &key) {
            return std::make_tuple(command.kind, key, command.tag, command.which, command.index);
        };
        if (!older.isMergeable() || older.isFinal ||
            place(older, older.key) != place(newer, newer.madeFor))
            return false;
        older.value = newer.value;
        older.isFinal = newer.isFinal;
        older.key = newer.key;
        return true;
    }

    std::vector<Command> m_stack;
    int m_index = 0;
};

} // namespace Reference
