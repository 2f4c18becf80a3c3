#include "child_fields.h"

#include <packagemodel/behavior_commands.h>
#include <packagemodel/dialog_commands.h>

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
Command editChild(const Edit &edit, PackageInfoModel &package, const QString &key,
                  const QVector<Child *> &children, QString (Child::*keyOf)() const,
                  const Table &table) {
    QStringList known;
    for (Child *child : children) {
        known += (child->*keyOf)();
        if (known.constLast() == key) {
            Part<Child> part{package, *child};
            return makeCommand(table, edit, part, 1);
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

Command nothing() {
    return std::make_unique<QUndoCommand>();
}

Command setPath(const Edit &edit, Behavior &behavior, const QStringList &) {
    if (!isFreeKey(edit, &behavior.child, behavior.package.behavior(edit.value())))
        return {};
    return std::make_unique<Zel::BehaviorPathCommand>(&behavior.package, behavior.child.path(),
                                                      edit.value(), true);
}

Command setNature(const Edit &edit, Behavior &behavior, const QStringList &) {
    return std::make_unique<Zel::BehaviorNatureCommand>(&behavior.package, behavior.child.path(),
                                                        edit.value(), true);
}

Command setUserRequestable(const Edit &edit, Behavior &behavior, const QStringList &) {
    const auto flag = edit.flag();
    if (!flag)
        return {};
    if (*flag == behavior.child.isUserRequestable())
        return nothing();
    return std::make_unique<Zel::BehaviorSwitchUserRequestableCommand>(&behavior.package,
                                                                       behavior.child.path());
}

// "[+]=NAME" adds a permission, "[NAME]=" removes it.
Command setPermission(const Edit &edit, Behavior &behavior, const QStringList &keys) {
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
    return std::make_unique<Zel::BehaviorAddRemovePermissionCommand>(
        &behavior.package, behavior.child.path(), permission, isAdded);
}

template<typename SetCommand>
Command setLocalizedText(const Edit &edit, Behavior &behavior, const QStringList &keys) {
    const auto language = edit.language(keys.constFirst());
    if (!language)
        return {};
    return std::make_unique<SetCommand>(&behavior.package, behavior.child.path(), edit.value(),
                                        *language, true);
}

template<typename SetCommand, typename AddRemoveCommand, typename Key>
Command setItem(const Edit &edit, const Behavior &behavior, const QStringList &list, const Key &key,
                const QString &item) {
    PackageInfoModel *package = &behavior.package;
    const QString path = behavior.child.path();
    const bool isAppended = item == appendKey;
    const auto index = isAppended ? -1 : edit.index(item, int(list.size()));
    if (!index)
        return {};
    const auto same = list.indexOf(edit.value());
    if (same >= 0 && same != *index)
        return edit.refuse(QCoreApplication::translate("zel-package", "The list has '%1' already.")
                               .arg(edit.value()));
    if (isAppended && edit.value().isEmpty())
        return edit.refuse(QCoreApplication::translate("zel-package", "It cannot be empty."));
    if (isAppended)
        return Command(AddRemoveCommand::addCommand(package, path, edit.value(), key, *index));
    if (edit.value().isEmpty())
        return Command(AddRemoveCommand::removeCommand(package, path, key, *index));
    return std::make_unique<SetCommand>(package, path, edit.value(), key, *index, true);
}

template<typename SetCommand, typename AddRemoveCommand, auto list>
Command setLocalizedItem(const Edit &edit, Behavior &behavior, const QStringList &keys) {
    const auto language = edit.language(keys.constFirst());
    if (!language)
        return {};
    return setItem<SetCommand, AddRemoveCommand>(edit, behavior, (behavior.child.*list)(*language),
                                                 *language, keys.constLast());
}

Command setCondition(const Edit &edit, Behavior &behavior, const QStringList &keys) {
    const QString &purpose = keys.constFirst();
    return setItem<Zel::BehaviorSetConditionCommand, Zel::BehaviorAddRemoveConditionCommand>(
        edit, behavior, behavior.child.conditions(purpose), purpose, keys.constLast());
}

constexpr std::array behaviorFields{
    FieldRow<Behavior>{"path", "", setPath},
    FieldRow<Behavior>{"nature", "", setNature},
    FieldRow<Behavior>{"userRequestable", "", setUserRequestable},
    FieldRow<Behavior>{"permissions", "[NAME]", setPermission},
    FieldRow<Behavior>{"conditions", "[PURPOSE][N]", setCondition},
    FieldRow<Behavior>{"names", "[CODE]", setLocalizedText<Zel::BehaviorNameCommand>},
    FieldRow<Behavior>{"descriptions", "[CODE]", setLocalizedText<Zel::BehaviorDescriptionCommand>},
    FieldRow<Behavior>{
        "tags", "[CODE][N]",
        setLocalizedItem<Zel::BehaviorSetTagCommand, Zel::BehaviorAddRemoveTagCommand,
                         &BehaviorInfoModel::tags>},
    FieldRow<Behavior>{"triggerSentences", "[CODE][N]",
                       setLocalizedItem<Zel::BehaviorSetTriggerSentenceCommand,
                                        Zel::BehaviorAddRemoveTriggerSentenceCommand,
                                        &BehaviorInfoModel::triggerSentences>},
    FieldRow<Behavior>{"loadingResponses", "[CODE][N]",
                       setLocalizedItem<Zel::BehaviorSetLoadingResponseCommand,
                                        Zel::BehaviorAddRemoveLoadingResponseCommand,
                                        &BehaviorInfoModel::loadingResponses>},
};

Command setTopicName(const Edit &edit, Dialog &dialog, const QStringList &) {
    if (!isFreeKey(edit, &dialog.child, dialog.package.dialog(edit.value())))
        return {};
    return std::make_unique<Zel::DialogInfoModelNameCommand>(
        &dialog.package, dialog.child.topicName(), edit.value(), true);
}

Command setTypeVersion(const Edit &edit, Dialog &dialog, const QStringList &) {
    return std::make_unique<Zel::DialogInfoModelTypeVersionCommand>(
        &dialog.package, dialog.child.topicName(), edit.value(), true);
}

Command setTopic(const Edit &edit, Dialog &dialog, const QStringList &keys) {
    const auto language = edit.language(keys.constFirst());
    if (!language)
        return {};
    const QString name = dialog.child.topicName();
    if (edit.value().isEmpty())
        return std::make_unique<Zel::DialogInfoModelRemoveTopicCommand>(&dialog.package, name,
                                                                        *language);
    return std::make_unique<Zel::DialogInfoModelTopicCommand>(&dialog.package, name, *language,
                                                              edit.value(), true);
}

constexpr std::array dialogFields{
    FieldRow<Dialog>{"topicName", "", setTopicName},
    FieldRow<Dialog>{"typeVersion", "", setTypeVersion},
    FieldRow<Dialog>{"topics", "[CODE]", setTopic},
};

// Sets a field of a service. It is found again by its place, since these commands only live as long
// as the program runs one assignment after the other.
template<typename Value>
class ServiceCommand : public Zel::PackageCommand {
public:
    using Setter = void (ServiceInfoModel::*)(Value);

    ServiceCommand(const Service &service, Setter setter, std::decay_t<Value> newValue,
                   std::decay_t<Value> oldValue)
        : PackageCommand(&service.package)
        , m_index(int(service.package.services().indexOf(&service.child)))
        , m_setter(setter)
        , m_new(std::move(newValue))
        , m_old(std::move(oldValue)) {
        setText(QCoreApplication::translate("zel-package", "Set a service"));
    }

    void redo() override { (model()->services().at(m_index)->*m_setter)(m_new); }
    void undo() override { (model()->services().at(m_index)->*m_setter)(m_old); }

private:
    int m_index;
    Setter m_setter;
    std::decay_t<Value> m_new;
    std::decay_t<Value> m_old;
};

Command setServiceName(const Edit &edit, Service &service, const QStringList &) {
    if (!isFreeKey(edit, &service.child, service.package.service(edit.value())))
        return {};
    return std::make_unique<ServiceCommand<const QString &>>(service, &ServiceInfoModel::setName,
                                                             edit.value(), service.child.name());
}

Command setExecStart(const Edit &edit, Service &service, const QStringList &) {
    return std::make_unique<ServiceCommand<const QString &>>(
        service, &ServiceInfoModel::setExecStart, edit.value(), service.child.execStart());
}

Command setAutoRun(const Edit &edit, Service &service, const QStringList &) {
    const auto flag = edit.flag();
    if (!flag)
        return {};
    return std::make_unique<ServiceCommand<bool>>(service, &ServiceInfoModel::setAutoRun, *flag,
                                                  service.child.isAutoRun());
}

constexpr std::array serviceFields{
    FieldRow<Service>{"name", "", setServiceName},
    FieldRow<Service>{"execStart", "", setExecStart},
    FieldRow<Service>{"autoRun", "", setAutoRun},
};

} // namespace

Command editBehavior(const Edit &edit, PackageInfoModel &package, const QStringList &keys) {
    return editChild(edit, package, keys.constFirst(), package.behaviors(),
                     &BehaviorInfoModel::path, behaviorFields);
}

Command editDialog(const Edit &edit, PackageInfoModel &package, const QStringList &keys) {
    return editChild(edit, package, keys.constFirst(), package.dialogs(),
                     &DialogInfoModel::topicName, dialogFields);
}

Command editService(const Edit &edit, PackageInfoModel &package, const QStringList &keys) {
    return editChild(edit, package, keys.constFirst(), package.services(), &ServiceInfoModel::name,
                     serviceFields);
}

} // namespace ZelPackage
