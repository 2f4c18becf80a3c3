#pragma once

#include <packagemodel/packagemodel_export.h>

#include <tano/dialog_info.h>
#include <zel/language.h>

#include <QMetaType>
#include <QObject>

#include <memory>

namespace Zel {

/// The observable model of one dialog topic of a package: its name, its type version and one topic
/// file per language.
///
/// It holds its record by value. Setters do nothing if the value is unchanged; otherwise they write
/// the record, update their cache and notify last. A package owns the models added to it
/// (PackageInfoModel::addDialog()).
///
/// ```cpp
/// package.addDialog(QStringLiteral("talk"));
/// DialogInfoModel *talk = package.dialog(QStringLiteral("talk"));
/// talk->setTopic(french, QStringLiteral("dialogs/talk_frf.top"));
/// ```
class PACKAGEMODEL_EXPORT DialogInfoModel : public QObject {
    Q_OBJECT

public:
    /// A model of a copy of `info`.
    explicit DialogInfoModel(const Tano::DialogInfo &info, QObject *parent = nullptr);
    /// A copy with the same QObject parent as its source.
    DialogInfoModel(const DialogInfoModel &other);
    ~DialogInfoModel() override;
    DialogInfoModel &operator=(const DialogInfoModel &) = delete;

    /// The record.
    Tano::DialogInfo toDialogInfo() const;

    /// The topic name, which identifies the dialog within its package.
    QString topicName() const;
    /// The version of the dialog's format.
    QString typeVersion() const;

    /// The path of the topic file of a language; the null text if there is none.
    QString topic(const RobotLanguage &lang) const;
    /// The paths of the topic files in all languages.
    const Language::LocalizedStrings &topics() const;
    /// The languages of topics(), in the same order.
    RobotLanguages topicsLanguages() const;

Q_SIGNALS:
    /// @{
    /// The value has changed.
    void nameChanged(const QString &newName);
    void typeVersionChanged(const QString &newTypeVersion);
    void topicChanged(const RobotLanguage &lang, const QString &path);
    /// @}
    /// The record no longer has the topic file, while topic() still returns its path.
    void topicRemoved(const RobotLanguage &lang);

public Q_SLOTS:
    /// @{
    /// Sets a value of the dialog.
    void setTopicName(const QString &name);
    void setTypeVersion(const QString &version);
    void setTopic(const RobotLanguage &lang, const QString &topic);
    /// @}
    /// Removes the topic file of a language; returns false if there is none.
    bool removeTopic(const RobotLanguage &lang);

private:
    friend class ChildAccess;
    struct Data;
    std::unique_ptr<Data> m_data;
};

} // namespace Zel

Q_DECLARE_METATYPE(Tano::DialogInfo)
