#include "child_fields.h"

#include <packagemodel/behavior_info_model.h>
#include <packagemodel/dialog_info_model.h>
#include <packagemodel/service_info_model.h>

#include <array>

namespace ZelPackage {
namespace {

using Zel::BehaviorInfoModel;
using Zel::DialogInfoModel;
using Zel::PackageInfoModel;
using Zel::RobotLanguage;
using Zel::ServiceInfoModel;

// A child with the package that it is part of.
template<typename Child>
struct Part {
    PackageInfoModel &package;
    Child &child;
};

using Behavior = Part<BehaviorInfoModel>;
using Dialog = Part<DialogInfoModel>;
using Service = Part<ServiceInfoModel>;

// The keys that there are, as far as one reads on.
QString knownKeys(const QStringList &keys) {
    constexpr int most = 8;
    if (keys.isEmpty())
        return QStringLiteral(".");
    QString list = u'\'' % keys.mid(0, most).join(QLatin1String("', '")) % u'\'';
    if (keys.size() > most)
        list += QStringLiteral(", \u2026");
    return QCoreApplication::translate("zel-package", "; it has %1.").arg(list);
}

template<typename Child, typename Table>
bool editChild(const Edit &edit, PackageInfoModel &package, const QString &key,
               const QVector<Child *> &children, QString (Child::*keyOf)() const,
               const Table &table) {
    QStringList known;
    for (Child *child : children) {
        known += (child->*keyOf)();
        if (known.constLast() == key) {
            Part<Child> part{package, *child};
            return setField(table, edit, part, 1);
        }
    }
    return edit.refuse(QCoreApplication::translate("zel-package", "The package has no '%1'%2")
                           .arg(key, suggestion(key, known, knownKeys(known))));
}

// A child is found by its key, so that an empty one, or one that is taken, is refused.
template<typename Child>
bool isFreeKey(const Edit &edit, const Child *own, const Child *other) {
    if (edit.value().isEmpty())
        edit.refuse(QCoreApplication::translate("zel-package", "It cannot be empty."));
    else if (other && other != own)
        edit.refuse(QCoreApplication::translate("zel-package", "The package has '%1' already.")
                        .arg(edit.value()));
    else
        return true;
    return false;
}

template<typename Owner, auto set>
bool setText(const Edit &edit, Owner &owner, const QStringList &) {
    (owner.child.*set)(edit.value());
    return true;
}

template<typename Owner, auto set>
bool setFlag(const Edit &edit, Owner &owner, const QStringList &) {
    const auto flag = edit.flag();
    if (flag)
        (owner.child.*set)(*flag);
    return flag.has_value();
}

// Sets the text by which the package finds its children.
template<typename Owner, auto find, auto set>
bool setKey(const Edit &edit, Owner &owner, const QStringList &) {
    const PackageInfoModel &package = owner.package;
    if (!isFreeKey(edit, &owner.child, (package.*find)(edit.value())))
        return false;
    (owner.child.*set)(edit.value());
    return true;
}

// "[+]=NAME" adds a permission, "[NAME]=" removes it.
bool setPermission(const Edit &edit, Behavior &behavior, const QStringList &keys) {
    const bool isAdded = keys.constFirst() == appendKey;
    const QString permission = isAdded ? edit.value() : keys.constFirst();
    const QStringList all = behavior.child.permissions().values();
    if (edit.value().isEmpty() == isAdded)
        return edit.refuse(QCoreApplication::translate(
            "zel-package", "[+]=NAME adds a permission, [NAME]= removes it."));
    if (isAdded && all.contains(permission))
        return edit.refuse(QCoreApplication::translate("zel-package", "The list has '%1' already.")
                               .arg(permission));
    if (!isAdded && !all.contains(permission))
        return edit.refuse(
            QCoreApplication::translate("zel-package", "The list does not have '%1'%2")
                .arg(permission, suggestion(permission, all, QStringLiteral("."))));
    return isAdded ? behavior.child.addPermission(permission)
                   : behavior.child.removePermission(permission);
}

template<void (BehaviorInfoModel::*set)(const QString &text, const RobotLanguage &language)>
bool setLocalizedText(const Edit &edit, Behavior &behavior, const QStringList &keys) {
    const auto language = edit.language(keys.constFirst());
    if (language)
        (behavior.child.*set)(edit.value(), *language);
    return language.has_value();
}

// A behavior's operations on one kind of its lists.
template<typename Key>
struct ItemList {
    QStringList (BehaviorInfoModel::*items)(const Key &key) const;
    bool (BehaviorInfoModel::*append)(const QString &item, const Key &key);
    bool (BehaviorInfoModel::*update)(int index, const QString &item, const Key &key);
    bool (BehaviorInfoModel::*remove)(int index, const Key &key);
};

constexpr ItemList<RobotLanguage> tags{&BehaviorInfoModel::tags, &BehaviorInfoModel::addTag,
                                       &BehaviorInfoModel::updateTag,
                                       &BehaviorInfoModel::removeTag};
constexpr ItemList<RobotLanguage> triggerSentences{
    &BehaviorInfoModel::triggerSentences, &BehaviorInfoModel::addTriggerSentence,
    &BehaviorInfoModel::updateTriggerSentence, &BehaviorInfoModel::removeTriggerSentence};
constexpr ItemList<RobotLanguage> loadingResponses{
    &BehaviorInfoModel::loadingResponses, &BehaviorInfoModel::addLoadingResponse,
    &BehaviorInfoModel::updateLoadingResponse, &BehaviorInfoModel::removeLoadingResponse};
constexpr ItemList<QString> conditions{
    &BehaviorInfoModel::conditions, &BehaviorInfoModel::addCondition,
    &BehaviorInfoModel::updateCondition, &BehaviorInfoModel::removeCondition};

template<typename Key>
bool setItem(const Edit &edit, BehaviorInfoModel &behavior, const ItemList<Key> &list,
             const Key &key, const QString &item) {
    const QStringList items = (behavior.*list.items)(key);
    const bool isAppended = item == appendKey;
    const auto index = isAppended ? -1 : edit.index(item, int(items.size()));
    if (!index)
        return false;
    const auto same = items.indexOf(edit.value());
    if (same >= 0 && same != *index)
        return edit.refuse(QCoreApplication::translate("zel-package", "The list has '%1' already.")
                               .arg(edit.value()));
    if (isAppended && edit.value().isEmpty())
        return edit.refuse(QCoreApplication::translate("zel-package", "It cannot be empty."));
    // A change to the same text is no failure, though the model reports that nothing changed.
    if (isAppended)
        (behavior.*list.append)(edit.value(), key);
    else if (edit.value().isEmpty())
        (behavior.*list.remove)(*index, key);
    else
        (behavior.*list.update)(*index, edit.value(), key);
    return true;
}

template<const ItemList<RobotLanguage> &list>
bool setLocalizedItem(const Edit &edit, Behavior &behavior, const QStringList &keys) {
    const auto language = edit.language(keys.constFirst());
    return language && setItem(edit, behavior.child, list, *language, keys.constLast());
}

bool setCondition(const Edit &edit, Behavior &behavior, const QStringList &keys) {
    return setItem(edit, behavior.child, conditions, keys.constFirst(), keys.constLast());
}

constexpr std::array behaviorFields{
    FieldRow<Behavior>{"path", "",
                       setKey<Behavior, &PackageInfoModel::behavior, &BehaviorInfoModel::setPath>},
    FieldRow<Behavior>{"nature", "", setText<Behavior, &BehaviorInfoModel::setNature>},
    FieldRow<Behavior>{"userRequestable", "",
                       setFlag<Behavior, &BehaviorInfoModel::setUserRequestable>},
    FieldRow<Behavior>{"permissions", "[NAME]", setPermission},
    FieldRow<Behavior>{"conditions", "[PURPOSE][N]", setCondition},
    FieldRow<Behavior>{"names", "[CODE]", setLocalizedText<&BehaviorInfoModel::setName>},
    FieldRow<Behavior>{"descriptions", "[CODE]",
                       setLocalizedText<&BehaviorInfoModel::setDescription>},
    FieldRow<Behavior>{"tags", "[CODE][N]", setLocalizedItem<tags>},
    FieldRow<Behavior>{"triggerSentences", "[CODE][N]", setLocalizedItem<triggerSentences>},
    FieldRow<Behavior>{"loadingResponses", "[CODE][N]", setLocalizedItem<loadingResponses>},
};

bool setTopic(const Edit &edit, Dialog &dialog, const QStringList &keys) {
    const auto language = edit.language(keys.constFirst());
    if (!language)
        return false;
    if (edit.value().isEmpty())
        dialog.child.removeTopic(*language);
    else
        dialog.child.setTopic(*language, edit.value());
    return true;
}

constexpr std::array dialogFields{
    FieldRow<Dialog>{"topicName", "",
                     setKey<Dialog, &PackageInfoModel::dialog, &DialogInfoModel::setTopicName>},
    FieldRow<Dialog>{"typeVersion", "", setText<Dialog, &DialogInfoModel::setTypeVersion>},
    FieldRow<Dialog>{"topics", "[CODE]", setTopic},
};

constexpr std::array serviceFields{
    FieldRow<Service>{"name", "",
                      setKey<Service, &PackageInfoModel::service, &ServiceInfoModel::setName>},
    FieldRow<Service>{"execStart", "", setText<Service, &ServiceInfoModel::setExecStart>},
    FieldRow<Service>{"autoRun", "", setFlag<Service, &ServiceInfoModel::setAutoRun>},
};

} // namespace

bool editBehavior(const Edit &edit, PackageInfoModel &package, const QStringList &keys) {
    return editChild(edit, package, keys.constFirst(), package.behaviors(),
                     &BehaviorInfoModel::path, behaviorFields);
}

bool editDialog(const Edit &edit, PackageInfoModel &package, const QStringList &keys) {
    return editChild(edit, package, keys.constFirst(), package.dialogs(),
                     &DialogInfoModel::topicName, dialogFields);
}

bool editService(const Edit &edit, PackageInfoModel &package, const QStringList &keys) {
    return editChild(edit, package, keys.constFirst(), package.services(), &ServiceInfoModel::name,
                     serviceFields);
}

} // namespace ZelPackage
