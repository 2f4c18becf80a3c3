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
/// It holds its record by value. A setter whose value is the current one does nothing; any other
/// writes the record, updates what is derived from it, and notifies last. Handed to a package, the
/// model belongs to it (PackageInfoModel::addDialog()).
class PACKAGEMODEL_EXPORT DialogInfoModel : public QObject {
    Q_OBJECT

public:
    explicit DialogInfoModel(const Tano::DialogInfo &info, QObject *parent = nullptr);
    /// A copy with the same QObject parent as its source.
    DialogInfoModel(const DialogInfoModel &other);
    ~DialogInfoModel() override;
    DialogInfoModel &operator=(const DialogInfoModel &) = delete;

    Tano::DialogInfo toDialogInfo() const;

    QString topicName() const;
    QString typeVersion() const;

    /// The path of the topic file of a language; the null text when there is none.
    QString topic(const RobotLanguage &lang) const;
    const Language::LocalizedStrings &topics() const;
    /// The languages of topics(), in its order.
    RobotLanguages topicsLanguages() const;

Q_SIGNALS:
    void nameChanged(const QString &newName);
    void typeVersionChanged(const QString &newTypeVersion);
    void topicChanged(const RobotLanguage &lang, const QString &path);
    /// Sent when the record has lost the topic file, while topic() still answers its path.
    void topicRemoved(const RobotLanguage &lang);

public Q_SLOTS:
    void setTopicName(const QString &name);
    void setTypeVersion(const QString &version);
    void setTopic(const RobotLanguage &lang, const QString &topic);
    /// Returns false when the language has no topic file.
    bool removeTopic(const RobotLanguage &lang);

private:
    friend class ChildAccess;
    struct Data;
    std::unique_ptr<Data> m_data;
};

} // namespace Zel

Q_DECLARE_METATYPE(Tano::DialogInfo)
