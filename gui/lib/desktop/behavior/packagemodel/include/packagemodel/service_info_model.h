#pragma once

#include <packagemodel/packagemodel_export.h>

#include <tano/package_service.h>

#include <QMap>
#include <QMetaType>
#include <QObject>
#include <QString>

#include <memory>

namespace Zel {

/// The observable model of one service of a package: its name, the command that starts it, and
/// whether it starts with the robot.
///
/// It holds its record by value. Setters do nothing if the value is unchanged; otherwise they write
/// the record and then notify. A package owns the models added to it
/// (PackageInfoModel::addService()).
///
/// ```cpp
/// package.addService(Tano::PackageService{"clock", "bin/clock", false, {}});
/// ServiceInfoModel *clock = package.service(QStringLiteral("clock"));
/// clock->setAutoRun();
/// clock->setServiceProperty(QStringLiteral("interval"), QStringLiteral("60"));
/// ```
class PACKAGEMODEL_EXPORT ServiceInfoModel : public QObject {
    Q_OBJECT

public:
    /// A model of a copy of `service`.
    explicit ServiceInfoModel(const Tano::PackageService &service, QObject *parent = nullptr);
    /// A copy with the QObject parent `parent`, or that of `other` if `parent` is null.
    ServiceInfoModel(const ServiceInfoModel &other, QObject *parent = nullptr);
    ~ServiceInfoModel() override;
    /// Copies the content and the QObject parent of `other`. Does not notify.
    ServiceInfoModel &operator=(const ServiceInfoModel &other);

    /// The record.
    Tano::PackageService toPackageService() const;

    /// The name, which identifies the service within its package.
    QString name() const;
    /// The command that starts the service.
    QString execStart() const;
    /// Whether the service starts with the robot.
    bool isAutoRun() const;
    /// Further settings of the service, by name.
    QMap<QString, QString> properties() const;

Q_SIGNALS:
    /// @{
    /// The value has changed.
    void autoRunChanged(bool value);
    void nameChanged(const QString &);
    void execStartChanged(const QString &);
    /// @}
    /// The property was set or removed.
    void servicePropertyChanged(const QString &property);

public Q_SLOTS:
    /// @{
    /// Sets a value of the service.
    void setAutoRun(bool value = true);
    void setName(const QString &);
    void setExecStart(const QString &);
    void setServiceProperty(const QString &property, const QString &value);
    /// @}
    /// Removes a property; returns false if there is none.
    bool removeServiceProperty(const QString &property);

private:
    friend class ChildAccess;
    struct Data;
    std::unique_ptr<Data> m_data;
};

} // namespace Zel

Q_DECLARE_METATYPE(Tano::PackageService)
