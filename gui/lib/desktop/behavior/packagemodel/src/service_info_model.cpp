#include <packagemodel/service_info_model.h>

#include "copies.h"
#include "meta_types.h"
#include "service_info_data.h"

#include <packagemodel/text_conversion.h>

namespace Zel {

ServiceInfoModel::ServiceInfoModel(const Tano::PackageService &service, QObject *parent)
    : QObject(parent)
    , m_data(std::make_unique<Data>(this, service)) {
    registerMetaTypes();
}

ServiceInfoModel::ServiceInfoModel(const ServiceInfoModel &other, QObject *parent)
    : QObject(parent ? parent : other.parent())
    , m_data(std::make_unique<Data>(this, other.m_data->record())) {
}

ServiceInfoModel::~ServiceInfoModel() = default;

ServiceInfoModel &ServiceInfoModel::operator=(const ServiceInfoModel &other) {
    if (this != &other) {
        setParent(other.parent());
        m_data->editKey() = other.m_data->record();
    }
    return *this;
}

Tano::PackageService ServiceInfoModel::toPackageService() const {
    return m_data->record();
}

QString ServiceInfoModel::name() const {
    return fromUtf8(m_data->record().name);
}

QString ServiceInfoModel::execStart() const {
    return fromUtf8(m_data->record().execStart);
}

bool ServiceInfoModel::isAutoRun() const {
    return m_data->record().autoRun;
}

void ServiceInfoModel::setAutoRun(bool value) {
    if (isAutoRun() == value)
        return;
    m_data->edit().autoRun = value;
    Q_EMIT autoRunChanged(value);
}

void ServiceInfoModel::setName(const QString &newName) {
    if (name() == newName)
        return;
    const QString name = copyOf(newName);
    m_data->editKey().name = toUtf8(name);
    Q_EMIT nameChanged(name);
}

void ServiceInfoModel::setExecStart(const QString &newExecStart) {
    if (execStart() == newExecStart)
        return;
    const QString execStart = copyOf(newExecStart);
    m_data->edit().execStart = toUtf8(execStart);
    Q_EMIT execStartChanged(execStart);
}

} // namespace Zel
