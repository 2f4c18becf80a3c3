#include "editor_commands.h"

#include <packagemodel/package_info_model.h>

#include <QCoreApplication>

#include <utility>

namespace Editor {
namespace {

using Zel::PackageInfoModel;

// A list of child models: its getter, a child's record, and the package's slots.
template<typename ChildModel, typename ChildRecord,
         QVector<ChildModel *> (PackageInfoModel::*children)() const,
         ChildRecord (ChildModel::*recordOf)() const,
         void (PackageInfoModel::*add)(const ChildRecord &),
         bool (PackageInfoModel::*removeChild)(ChildModel *)>
struct ChildEntries {
    using Record = ChildRecord;
    static int count(const PackageInfoModel &package) { return int((package.*children)().size()); }
    static Record at(const PackageInfoModel &package, int index) {
        return ((package.*children)().at(index)->*recordOf)();
    }
    static void append(PackageInfoModel &package, const Record &record) { (package.*add)(record); }
    static void remove(PackageInfoModel &package, int index) {
        (package.*removeChild)((package.*children)().at(index));
    }
};

using BehaviorEntries =
    ChildEntries<Zel::BehaviorInfoModel, Tano::BehaviorInfo, &PackageInfoModel::behaviors,
                 &Zel::BehaviorInfoModel::toBehaviorInfo, &PackageInfoModel::addBehavior,
                 &PackageInfoModel::removeBehavior>;
using DialogEntries = ChildEntries<Zel::DialogInfoModel, Tano::DialogInfo,
                                   &PackageInfoModel::dialogs, &Zel::DialogInfoModel::toDialogInfo,
                                   &PackageInfoModel::addDialog, &PackageInfoModel::removeDialog>;
using ServiceEntries =
    ChildEntries<Zel::ServiceInfoModel, Tano::PackageService, &PackageInfoModel::services,
                 &Zel::ServiceInfoModel::toPackageService, &PackageInfoModel::addService,
                 &PackageInfoModel::removeService>;

// A list of requirements.
template<typename Requirement, QVector<Requirement> (PackageInfoModel::*all)() const,
         void (PackageInfoModel::*add)(const Requirement &),
         bool (PackageInfoModel::*removeAt)(int)>
struct RequirementEntries {
    using Record = Requirement;
    static int count(const PackageInfoModel &package) { return int((package.*all)().size()); }
    static Record at(const PackageInfoModel &package, int index) {
        return (package.*all)().at(index);
    }
    static void append(PackageInfoModel &package, const Record &record) { (package.*add)(record); }
    static void remove(PackageInfoModel &package, int index) { (package.*removeAt)(index); }
};

using RobotEntries = RequirementEntries<Zel::RobotRequirement, &PackageInfoModel::robotRequirements,
                                        &PackageInfoModel::addRobotRequirement,
                                        &PackageInfoModel::removeRobotRequirement>;
using BrioEntries = RequirementEntries<Zel::BrioRequirement, &PackageInfoModel::brioRequirements,
                                       &PackageInfoModel::addBrioRequirement,
                                       &PackageInfoModel::removeBrioRequirement>;

QString text(const char *source) {
    return QCoreApplication::translate("Editor::Commands", source);
}

} // namespace

QUndoCommand *newAddBehaviorCommand(PackageInfoModel *model, const QString &path) {
    Tano::BehaviorInfo behavior;
    behavior.setPath(Zel::toUtf8(path));
    return new EntryCommand<BehaviorEntries>(
        model, behavior, text(QT_TRANSLATE_NOOP("Editor::Commands", "Add behavior %1")).arg(path));
}

QUndoCommand *newRemoveBehaviorCommand(PackageInfoModel *model, int index) {
    return new EntryCommand<BehaviorEntries>(
        model, index,
        text(QT_TRANSLATE_NOOP("Editor::Commands", "Remove behavior %1"))
            .arg(model->behaviors().at(index)->path()));
}

QUndoCommand *newAddDialogCommand(PackageInfoModel *model, const QString &topicName) {
    Tano::DialogInfo dialog;
    dialog.setTopicName(Zel::toUtf8(topicName));
    return new EntryCommand<DialogEntries>(
        model, dialog, text(QT_TRANSLATE_NOOP("Editor::Commands", "Add dialog %1")).arg(topicName));
}

QUndoCommand *newRemoveDialogCommand(PackageInfoModel *model, int index) {
    return new EntryCommand<DialogEntries>(
        model, index,
        text(QT_TRANSLATE_NOOP("Editor::Commands", "Remove dialog %1"))
            .arg(model->dialogs().at(index)->topicName()));
}

QUndoCommand *newAddServiceCommand(PackageInfoModel *model, const QString &name) {
    Tano::PackageService service;
    service.name = Zel::toUtf8(name);
    return new EntryCommand<ServiceEntries>(
        model, service, text(QT_TRANSLATE_NOOP("Editor::Commands", "Add service %1")).arg(name));
}

QUndoCommand *newRemoveServiceCommand(PackageInfoModel *model, int index) {
    return new EntryCommand<ServiceEntries>(
        model, index,
        text(QT_TRANSLATE_NOOP("Editor::Commands", "Remove service %1"))
            .arg(model->services().at(index)->name()));
}

QUndoCommand *newAddRobotRequirementCommand(PackageInfoModel *model) {
    return new EntryCommand<RobotEntries>(
        model, Zel::RobotRequirement(),
        text(QT_TRANSLATE_NOOP("Editor::Commands", "Add robot requirement")));
}

QUndoCommand *newRemoveRobotRequirementCommand(PackageInfoModel *model, int index) {
    return new EntryCommand<RobotEntries>(
        model, index, text(QT_TRANSLATE_NOOP("Editor::Commands", "Remove robot requirement")));
}

QUndoCommand *newAddBrioRequirementCommand(PackageInfoModel *model) {
    return new EntryCommand<BrioEntries>(
        model, Zel::BrioRequirement(),
        text(QT_TRANSLATE_NOOP("Editor::Commands", "Add Brio requirement")));
}

QUndoCommand *newRemoveBrioRequirementCommand(PackageInfoModel *model, int index) {
    return new EntryCommand<BrioEntries>(
        model, index, text(QT_TRANSLATE_NOOP("Editor::Commands", "Remove Brio requirement")));
}

} // namespace Editor
