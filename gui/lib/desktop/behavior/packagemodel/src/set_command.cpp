#include <packagemodel/set_command.h>

#include "entry_call.h"

#include <packagemodel/package_info_model.h>

#include <QCoreApplication>

namespace Zel {
namespace {

QString genericName(const char *text) {
    return QCoreApplication::translate("Zel::PackageGenericValueCommand", text);
}

} // namespace

PackageCommand::PackageCommand(PackageInfoModel *model)
    : m_model(model) {
}

PackageCommand::~PackageCommand() = default;

PackageInfoModel *PackageCommand::model() const {
    return m_model;
}

BehaviorCommand::BehaviorCommand(PackageInfoModel *model, const QString &behaviorPath)
    : PackageCommand(model)
    , m_behaviorPath(behaviorPath) {
}

BehaviorCommand::~BehaviorCommand() = default;

BehaviorInfoModel *BehaviorCommand::behaviorInfoModel() const {
    return callOn(model(), &PackageInfoModel::behavior, m_behaviorPath);
}

DialogCommand::DialogCommand(PackageInfoModel *model, const QString &dialogName)
    : PackageCommand(model)
    , m_dialogName(dialogName) {
}

DialogCommand::~DialogCommand() = default;

DialogInfoModel *DialogCommand::dialogInfoModel() const {
    return callOn(model(), &PackageInfoModel::dialog, m_dialogName);
}

bool MergeableCommand::isFinalCommand() const {
    return !m_mergeAccepted;
}

bool TextEdit::takeOver(const TextEdit &newer) {
    if (isFinal)
        return false;
    newValue = newer.newValue;
    isFinal = newer.isFinal;
    return true;
}

template<>
QIcon PackageGenericValueCommand<QIcon>::value() const {
    return callOn(model(), &PackageInfoModel::icon);
}

template<>
void PackageGenericValueCommand<QIcon>::setValue(const QIcon &value) {
    callOn(model(), &PackageInfoModel::setIcon, value);
}

template<>
QString PackageGenericValueCommand<QIcon>::commandName() const {
    return genericName(
        QT_TRANSLATE_NOOP("Zel::PackageGenericValueCommand", "Set Application's icon"));
}

template<>
SoftwareVersion PackageGenericValueCommand<SoftwareVersion>::value() const {
    return callOn(model(), &PackageInfoModel::version);
}

template<>
void PackageGenericValueCommand<SoftwareVersion>::setValue(const SoftwareVersion &value) {
    callOn(model(), &PackageInfoModel::setVersion, value);
}

template<>
QString PackageGenericValueCommand<SoftwareVersion>::commandName() const {
    return genericName(
        QT_TRANSLATE_NOOP("Zel::PackageGenericValueCommand", "Set Application's version"));
}

template<>
QString PackageGenericValueCommand<QString>::value() const {
    return {};
}

template<>
void PackageGenericValueCommand<QString>::setValue(const QString &) {
}

template<>
QString PackageGenericValueCommand<QString>::commandName() const {
    return {};
}

} // namespace Zel
