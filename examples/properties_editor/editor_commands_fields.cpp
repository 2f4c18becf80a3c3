#include "editor_commands.h"

#include "field_place.h"

#include <packagemodel/package_info_model.h>

#include <QCoreApplication>
#include <QStringBuilder>

#include <utility>

namespace Editor {
namespace {

using Zel::BrioRequirement;
using Zel::PackageInfoModel;
using Zel::RobotRequirement;
using Zel::SoftwareVersion;

constexpr int textSlotId = 1000; // beyond the identifiers of the library's commands
constexpr const char *brioList = "brioRequirements";

QString translated(const char *source) {
    return QCoreApplication::translate("Editor::Commands", source);
}

QString toText(const QString &value) {
    return value;
}
QString toText(const SoftwareVersion &value) {
    return Zel::SoftwareVersionUtils::toString(value);
}

void setFromText(QString &value, const QString &text) {
    value = text;
}
void setFromText(SoftwareVersion &value, const QString &text) {
    value = Zel::SoftwareVersionUtils::fromString(text);
}

template<typename Requirement, typename Value>
RequirementField field(const char *list, const char *name, Value Requirement::*member,
                       Requirement (PackageInfoModel::*get)(int) const,
                       bool (PackageInfoModel::*update)(int, const Requirement &)) {
    return {list, name,
            [=](const PackageInfoModel &package, int index) {
                return toText((package.*get)(index).*member);
            },
            [=](PackageInfoModel &package, int index, const QString &text) {
                Requirement requirement = (package.*get)(index);
                setFromText(requirement.*member, text);
                (package.*update)(index, requirement);
            }};
}

template<typename Value>
RequirementField robotField(const char *name, Value RobotRequirement::*member) {
    return field("robotRequirements", name, member, &PackageInfoModel::robotRequirement,
                 &PackageInfoModel::updateRobotRequirement);
}

RequirementField brioField(const char *name, SoftwareVersion BrioRequirement::*member) {
    return field(brioList, name, member, &PackageInfoModel::brioRequirement,
                 &PackageInfoModel::updateBrioRequirement);
}

// The text of one field of the service at an index.
TextSlot serviceSlot(int index, QString (Zel::ServiceInfoModel::*get)() const,
                     void (Zel::ServiceInfoModel::*set)(const QString &), const char *name) {
    return {QStringLiteral("services[%1].%2").arg(index).arg(QLatin1String(name)),
            [=](const PackageInfoModel &package) { return (package.services().at(index)->*get)(); },
            [=](PackageInfoModel &package, const QString &text) {
                (package.services().at(index)->*set)(text);
            }};
}

} // namespace

TextSlotCommand::TextSlotCommand(PackageInfoModel *model, TextSlot slot, const QString &newText,
                                 const QString &commandText, bool isFinal)
    : PackageCommand(model)
    , m_slot(std::move(slot))
    , m_edit{newText, m_slot.read(*model), isFinal} {
    setText(commandText);
}

void TextSlotCommand::undo() {
    m_slot.write(*model(), m_edit.oldValue);
}

void TextSlotCommand::redo() {
    m_slot.write(*model(), m_edit.newValue);
}

int TextSlotCommand::id() const {
    return textSlotId;
}

bool TextSlotCommand::mergeWith(const QUndoCommand *incoming) {
    return mergeIf<TextSlotCommand>(incoming, [&](const TextSlotCommand &newer) {
        return newer.model() == model() && newer.m_slot.key == m_slot.key &&
               m_edit.takeOver(newer.m_edit);
    });
}

bool TextSlotCommand::isFinalCommand() const {
    return MergeableCommand::isFinalCommand() || m_edit.isFinal;
}

TextSlotCommand *newVersionCommand(PackageInfoModel *model, const QString &version, bool isFinal) {
    TextSlot slot{QStringLiteral("version"),
                  [](const PackageInfoModel &package) { return toText(package.version()); },
                  [](PackageInfoModel &package, const QString &text) {
                      package.setVersion(Zel::SoftwareVersionUtils::fromString(text));
                  }};
    return new TextSlotCommand(
        model, std::move(slot), version,
        Zel::PackageGenericValueCommand<SoftwareVersion>(model, {}).commandName(), isFinal);
}

QUndoCommand *newServiceFieldCommand(PackageInfoModel *model, int index, ServiceField field,
                                     const QString &newText, bool isFinal) {
    const QString name = model->services().at(index)->name();
    if (field == ServiceField::Name) {
        return new TextSlotCommand(
            model,
            serviceSlot(index, &Zel::ServiceInfoModel::name, &Zel::ServiceInfoModel::setName,
                        "name"),
            newText,
            translated(QT_TRANSLATE_NOOP("Editor::Commands", "Rename service %1")).arg(name),
            isFinal);
    }
    return new TextSlotCommand(
        model,
        serviceSlot(index, &Zel::ServiceInfoModel::execStart, &Zel::ServiceInfoModel::setExecStart,
                    "execStart"),
        newText,
        translated(QT_TRANSLATE_NOOP("Editor::Commands", "Set command of service %1")).arg(name),
        isFinal);
}

ServiceAutoRunCommand::ServiceAutoRunCommand(PackageInfoModel *model, int index)
    : PackageCommand(model)
    , m_index(index) {
    setText(translated(QT_TRANSLATE_NOOP("Editor::Commands", "Switch start of service %1"))
                .arg(model->services().at(index)->name()));
}

void ServiceAutoRunCommand::redo() {
    Zel::ServiceInfoModel *service = model()->services().at(m_index);
    service->setAutoRun(!service->isAutoRun());
}

void ServiceAutoRunCommand::undo() {
    redo();
}

const std::vector<RequirementField> &robotRequirementFields() {
    static const std::vector<RequirementField> fields{
        robotField("model", &RobotRequirement::model),
        robotField("minHeadVersion", &RobotRequirement::minHeadVersion),
        robotField("maxHeadVersion", &RobotRequirement::maxHeadVersion),
        robotField("minBodyVersion", &RobotRequirement::minBodyVersion),
        robotField("maxBodyVersion", &RobotRequirement::maxBodyVersion),
    };
    return fields;
}

const std::vector<RequirementField> &brioRequirementFields() {
    static const std::vector<RequirementField> fields{
        brioField("minVersion", &BrioRequirement::minVersion),
        brioField("maxVersion", &BrioRequirement::maxVersion),
    };
    return fields;
}

QUndoCommand *newRequirementFieldCommand(PackageInfoModel *model, const RequirementField &field,
                                         int index, const QString &newText, bool isFinal) {
    const auto read = field.read;
    const auto write = field.write;
    TextSlot slot{
        requirementPath(field.list, index, field.name),
        [=](const PackageInfoModel &package) { return read(package, index); },
        [=](PackageInfoModel &package, const QString &text) { write(package, index, text); }};
    const bool isBrio = field.list == brioList;
    const char *source = isBrio
                             ? QT_TRANSLATE_NOOP("Editor::Commands", "Edit Brio requirement %1")
                             : QT_TRANSLATE_NOOP("Editor::Commands", "Edit robot requirement %1");
    return new TextSlotCommand(model, std::move(slot), newText, translated(source).arg(index + 1),
                               isFinal);
}

} // namespace Editor
