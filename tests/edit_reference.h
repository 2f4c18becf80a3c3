#pragma once

#include "table_file.h"

#include <QMap>

#include <algorithm>
#include <tuple>
#include <vector>

/// A reference model of a package, its commands and their undo stack, with a list instead of
/// notifications, and without records, caches and sharing.
namespace Reference {

/// The notifications in the format of SignalLog.
using Notifications = QStringList;

/// A package, behavior or dialog: values by field name, which is "names[en_US]" for fields with a
/// value per language. The path of a behavior and the name of a dialog are its "key".
struct Entity {
    QString label; ///< prefixes its notifications, and distinguishes entities with the same key
    QMap<QString, QString> texts{};
    QMap<QString, QStringList> lists{};

    void setList(const QString &field, const QStringList &list) {
        if (list.isEmpty())
            lists.remove(field);
        else
            lists.insert(field, list);
    }
};

inline bool operator==(const Entity &a, const Entity &b) {
    return std::tie(a.label, a.texts, a.lists) == std::tie(b.label, b.texts, b.lists);
}

struct Package {
    Entity own{};
    std::vector<Entity> behaviors{};
    std::vector<Entity> dialogs{};
};

inline bool operator==(const Package &a, const Package &b) {
    return std::tie(a.own, a.behaviors, a.dialogs) == std::tie(b.own, b.behaviors, b.dialogs);
}

inline Entity *entityAt(std::vector<Entity> &entities, const QString &key) {
    const auto found = std::find_if(entities.begin(), entities.end(), [&](const Entity &entity) {
        return entity.texts.value(QStringLiteral("key")) == key;
    });
    return found == entities.end() ? nullptr : &*found;
}

/// The effect of a command on its field.
enum class Does {
    Write,   ///< merges with a run
    SetItem, ///< likewise
    Set,     ///< does not merge, like the following
    AddOrRemoveItem,
    AddOrRemovePermission,
    SwitchLanguage,
    RemoveTopic
};

/// A kind of command.
struct Kind {
    QString className;
    int what;
    Does does;
    QString field;
    QStringList
        announced; ///< the expected notifications, with the placeholders INDEX, VALUE and TAG
    QStringList values;
    QStringList tags;    ///< languages or purposes
    QStringList lasting; ///< why undoing may not restore the package
};

inline std::vector<Kind> readKinds() {
    const QStringList does = QStringLiteral("write setItem set addOrRemoveItem "
                                            "addOrRemovePermission switchLanguage removeTopic")
                                 .split(u' ');
    QJsonArray rows = tableIn("commands/kinds.json");
    rows.removeFirst();
    std::vector<Kind> kinds;
    for (const auto &row : std::as_const(rows)) {
        const auto words = [&](int column) { return row[column].toVariant().toStringList(); };
        kinds.push_back({row[0].toString(), row[1].toInt(), Does(does.indexOf(row[2].toString())),
                         row[3].toString(), words(4), words(5), words(6), words(7)});
    }
    return kinds;
}

inline const std::vector<Kind> &kinds() {
    static const std::vector<Kind> all = readKinds();
    return all;
}

/// A command's arguments and the state that it stores.
struct Command {
    const Kind *kind = nullptr;
    QString key{};
    QString value{};
    QString tag{};
    int index = 0;
    bool isAdd = true;
    bool isFinal = false;

    QString old{};
    QString madeFor{};
    bool hasSucceeded = true;

    bool isOnPackage() const { return kind->className.startsWith(u'P'); }
    bool isOnBehavior() const { return kind->className.startsWith(u'B'); }
    bool does(Does what) const { return kind->does == what; }
    bool isField(const char *name) const { return kind->field == QLatin1String(name); }
    bool isMergeable() const { return does(Does::Write) || does(Does::SetItem); }
    QString field() const {
        return kind->tags.isEmpty() ? kind->field : QString(kind->field + u'[' + tag + u']');
    }
    Entity *ownerIn(Package &package) const {
        if (isOnPackage())
            return &package.own;
        return entityAt(isOnBehavior() ? package.behaviors : package.dialogs, key);
    }
    Notifications announcedBy(const Entity &owner, const QString &shown, int which = 0) const {
        QString announced = kind->announced.at(which);
        announced.replace(QLatin1String("INDEX"), QString::number(index));
        announced.replace(QLatin1String("TAG"), tag);
        return {owner.label + announced.replace(QLatin1String("VALUE"), shown)};
    }
};

inline Notifications write(Entity &owner, Command &command, const QString &value) {
    const QString field = command.field();
    if (owner.texts.value(field) == value && !command.isField("version")) // always announced
        return {};
    owner.texts[field] = value;
    if (command.isField("key"))
        command.key = value;
    return command.announcedBy(owner, value);
}

inline Notifications setItem(Entity &owner, const Command &command, const QString &value) {
    QStringList list = owner.lists.value(command.field());
    if (command.index >= list.size())
        return {};
    list[command.index] = value;
    owner.setList(command.field(), list);
    return command.announcedBy(owner, value);
}

inline Notifications addOrRemoveItem(Entity *owner, Command &command, bool isAdd) {
    if (!command.hasSucceeded)
        return {};
    QStringList list = owner ? owner->lists.value(command.field()) : QStringList();
    const bool isInside = command.index >= 0 && command.index < list.size();
    command.hasSucceeded = owner && (isAdd ? !list.contains(command.value) : isInside);
    if (!command.hasSucceeded)
        return {};
    if (!isAdd)
        command.value = list.takeAt(command.index);
    else if (!isInside)
        command.index = int(list.size());
    if (isAdd)
        list.insert(command.index, command.value);
    owner->setList(command.field(), list);
    const int insertedOrAdded = isInside ? 1 : 0;
    return command.announcedBy(*owner, command.value, isAdd ? insertedOrAdded : 2);
}

inline Notifications addOrRemovePermission(Entity &owner, const Command &command, bool isAdd) {
    QStringList list = owner.lists.value(command.field());
    if (list.contains(command.value) == isAdd)
        return {};
    if (isAdd)
        list.append(command.value);
    else
        list.removeOne(command.value);
    owner.setList(command.field(), list);
    return command.announcedBy(owner, command.value, isAdd ? 0 : 1);
}

inline Notifications removeTopic(Entity &dialog, const QString &language) {
    if (dialog.texts.remove(QStringLiteral("topics[%1]").arg(language)) == 0)
        return {};
    return {dialog.label + QStringLiteral("topicRemoved(%1)").arg(language)};
}

inline Notifications switchLanguage(Package &package, const QString &language) {
    const QString supported = QStringLiteral("supportedLanguages");
    const QString described = QStringLiteral("descriptionLanguages");
    QStringList list = package.own.lists.value(supported);
    Notifications announced;
    if (list.removeOne(language)) {
        for (Entity &dialog : package.dialogs)
            announced += removeTopic(dialog, language);
        package.own.setList(supported, list);
        return announced << QStringLiteral("languageRemoved(%1)").arg(language);
    }
    package.own.lists[supported] += language;
    announced += QStringLiteral("languageAdded(%1)").arg(language);
    if (!package.own.lists.value(described).contains(language)) {
        package.own.lists[described] += language;
        announced += QStringLiteral("descriptionAdded(%1)").arg(language);
    }
    return announced;
}

inline Notifications step(Package &package, Command &command, bool isUndo) {
    Entity *owner = command.ownerIn(package);
    const bool isAdd = command.isAdd != isUndo;
    if (command.does(Does::AddOrRemoveItem))
        return addOrRemoveItem(owner, command, isAdd);
    if (!owner)
        return {};
    const QString &value = isUndo ? command.old : command.value;
    switch (command.kind->does) {
    case Does::SetItem:
        return setItem(*owner, command, value);
    case Does::AddOrRemovePermission:
        return addOrRemovePermission(*owner, command, isAdd);
    case Does::SwitchLanguage:
        return switchLanguage(package, command.tag);
    case Does::RemoveTopic:
        return isUndo ? write(*owner, command, value) : removeTopic(*owner, command.tag);
    default:
        return write(*owner, command, value);
    }
}

/// Sets the state that a command stores at construction.
inline Command made(Package &package, Command command) {
    const Entity *owner = command.ownerIn(package);
    command.madeFor = command.key;
    if (command.does(Does::SetItem))
        command.old = owner ? owner->lists.value(command.field()).value(command.index) : QString();
    else
        command.old = owner ? owner->texts.value(command.field()) : QString();
    if (command.isField("key") && command.isOnBehavior())
        command.old = command.key; // even if the behavior does not exist
    if (command.isField("userRequestable")) {
        const bool wasSet = command.old == QLatin1String("true");
        command.old = wasSet ? QStringLiteral("true") : QStringLiteral("false");
        command.value = wasSet ? QStringLiteral("false") : QStringLiteral("true");
    }
    return command;
}

/// The package and its undo stack.
class Editor {
public:
    Package package;

    int index() const { return m_index; }
    int count() const { return int(m_stack.size()); }

    Notifications push(const Command &pushed) {
        Command command = made(package, pushed);
        const Notifications announced = step(package, command, false);
        m_stack.resize(std::size_t(m_index));
        if (!m_stack.empty() && merge(m_stack.back(), command))
            return announced;
        m_stack.push_back(command);
        ++m_index;
        return announced;
    }

    Notifications setIndex(int index) {
        Notifications announced;
        while (m_index < index)
            announced += step(package, m_stack.at(std::size_t(m_index++)), false);
        while (m_index > index)
            announced += step(package, m_stack.at(std::size_t(--m_index)), true);
        return announced;
    }

private:
    static bool merge(Command &older, const Command &newer) {
        if (!older.isMergeable() || older.isFinal ||
            std::tie(older.kind, older.key, older.tag, older.index) !=
                std::tie(newer.kind, newer.madeFor, newer.tag, newer.index))
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
