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

QMap<QString, QString> ServiceInfoModel::properties() const {
    QMap<QString, QString> properties;
    for (const auto &[property, value] : m_data->record().properties)
        properties.insert(fromUtf8(property), fromUtf8(value));
    return properties;
}

void ServiceInfoModel::setAutoRun(bool value) {
    if (isAutoRun() == value)
        return;
    m_data->edit().autoRun = value;
    m_data->announce(&ServiceInfoModel::autoRunChanged, value);
}

void ServiceInfoModel::setName(const QString &newName) {
    if (name() == newName)
        return;
    const QString name = copyOf(newName);
    m_data->editKey().name = toUtf8(name);
    m_data->announce(&ServiceInfoModel::nameChanged, name);
}

void ServiceInfoModel::setExecStart(const QString &newExecStart) {
    if (execStart() == newExecStart)
        return;
    const QString execStart = copyOf(newExecStart);
    m_data->edit().execStart = toUtf8(execStart);
    m_data->announce(&ServiceInfoModel::execStartChanged, execStart);
}

void ServiceInfoModel::setServiceProperty(const QString &property, const QString &value) {
    const std::string name = toUtf8(property);
    const std::string bytes = toUtf8(value);
    const auto &properties = m_data->record().properties;
    const auto found = properties.find(name);
    if (found != properties.end() && found->second == bytes)
        return;
    m_data->edit().properties[name] = bytes;
    m_data->announce(&ServiceInfoModel::servicePropertyChanged, fromUtf8(name));
}

bool ServiceInfoModel::removeServiceProperty(const QString &property) {
    const std::string name = toUtf8(property);
    if (m_data->record().properties.count(name) == 0)
        return false;
    m_data->edit().properties.erase(name);
    m_data->announce(&ServiceInfoModel::servicePropertyChanged, fromUtf8(name));
    return true;
}

} // namespace Zel
