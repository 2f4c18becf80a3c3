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
/// It holds its record by value. A setter whose value is the current one does nothing; any other
/// writes the record and then notifies. Handed to a package, the model belongs to it
/// (PackageInfoModel::addService()).
class PACKAGEMODEL_EXPORT ServiceInfoModel : public QObject {
    Q_OBJECT

public:
    explicit ServiceInfoModel(const Tano::PackageService &service, QObject *parent = nullptr);
    /// A copy whose QObject parent is `parent`, or that of its source when `parent` is null.
    ServiceInfoModel(const ServiceInfoModel &other, QObject *parent = nullptr);
    ~ServiceInfoModel() override;
    /// Takes the QObject parent of `other` as well as its content. Does not notify.
    ServiceInfoModel &operator=(const ServiceInfoModel &other);

    Tano::PackageService toPackageService() const;

    QString name() const;
    QString execStart() const;
    bool isAutoRun() const;
    /// Further settings of the service, by name.
    QMap<QString, QString> properties() const;

Q_SIGNALS:
    void autoRunChanged(bool value);
    void nameChanged(const QString &);
    void execStartChanged(const QString &);
    /// A property was set or removed.
    void servicePropertyChanged(const QString &property);

public Q_SLOTS:
    void setAutoRun(bool value = true);
    void setName(const QString &);
    void setExecStart(const QString &);
    void setServiceProperty(const QString &property, const QString &value);
    /// Returns false if there is no such property.
    bool removeServiceProperty(const QString &property);

private:
    friend class ChildAccess;
    struct Data;
    std::unique_ptr<Data> m_data;
};

} // namespace Zel

Q_DECLARE_METATYPE(Tano::PackageService)
