#pragma once

#include <packagemodel/packagemodel_export.h>

#include <tano/behavior_info.h>
#include <zel/language.h>

#include <QMetaType>
#include <QObject>
#include <QSet>
#include <QStringList>

#include <memory>

namespace Zel {

class PackageInfoModel;

/// The observable model of one behavior of a package.
///
/// It holds its record by value. A setter whose value is the current one does nothing; any other
/// writes the record, updates what is derived from it, and notifies last.
///
/// Texts and lists are kept per language, found by the language's ISO code; a list keeps its order.
/// Handed to a package, the model belongs to it (PackageInfoModel::addBehavior()).
class PACKAGEMODEL_EXPORT BehaviorInfoModel : public QObject {
    Q_OBJECT

public:
    /// The nature of a behavior that has none: the null text.
    static const QString &natureNone();
    /// The nature of a behavior that reacts to people.
    static const QString &natureInteractive();
    /// The nature of a behavior that the robot runs on its own.
    static const QString &natureSolitary();

    /// The path as it is shown: the root behavior "." reads rootBehaviorPrettyPath(), any other
    /// path itself.
    static QString prettyPath(const QString &path);
    /// ". (root behavior)".
    static const QString &rootBehaviorPrettyPath();

    /// A model of `info`. Its parent is `parent`, or `package` when that is null.
    explicit BehaviorInfoModel(const Tano::BehaviorInfo &info, PackageInfoModel *package = nullptr,
                               QObject *parent = nullptr);
    /// A copy without a QObject parent, which keeps the parentPackage() of its source.
    BehaviorInfoModel(const BehaviorInfoModel &other);
    ~BehaviorInfoModel() override;
    BehaviorInfoModel &operator=(const BehaviorInfoModel &) = delete;

    /// The package that the behavior belongs to; null when there is none or it is gone.
    PackageInfoModel *parentPackage() const;
    /// Makes `package` the parentPackage() and the QObject parent. Does not notify.
    void setParentPackage(PackageInfoModel *package);

    Tano::BehaviorInfo toBehaviorInfo() const;

    /// Where the behavior lies in the package; "." for the root behavior.
    QString path() const;
    /// prettyPath() of path().
    QString prettyPath() const;
    /// path(), or "behavior.bhv" for the root behavior.
    QString pathWithDefaultBhvSuffix() const;

    /// One of the natures above.
    QString nature() const;

    /// The name in a language; the null text when there is none.
    QString name(const RobotLanguage &lang) const;
    const Language::LocalizedStrings &names() const;

    /// The description in a language; the null text when there is none.
    QString description(const RobotLanguage &lang) const;
    const Language::LocalizedStrings &descriptions() const;

    QSet<QString> permissions() const;
    /// The permissions in the order of the record.
    QStringList permissionList() const;
    bool hasPermission(const QString &permType) const;

    /// Whether a user may ask for the behavior.
    bool isUserRequestable() const;

    QStringList tags(const RobotLanguage &lang) const;
    const Language::LocalizedStringLists &languagesToTags() const;

    /// What a user may say to start the behavior.
    QStringList triggerSentences(const RobotLanguage &lang) const;
    const Language::LocalizedStringLists &languagesToTriggerSentences() const;

    /// What the robot may say while the behavior is loading.
    QStringList loadingResponses(const RobotLanguage &lang) const;
    const Language::LocalizedStringLists &languagesToLoadingResponses() const;

    /// The conditions for a purpose, which is any text.
    QStringList conditions(const QString &purpose) const;
    /// The purposes that have conditions, in ascending order.
    QStringList purposes() const;

    /// Drops the names and descriptions in other languages than `descriptionLanguages`, and the
    /// tags, trigger sentences and loading responses in other languages than `supportedLanguages`.
    /// Does not notify.
    void trimExtraInfo(const RobotLanguages &descriptionLanguages,
                       const RobotLanguages &supportedLanguages);

Q_SIGNALS:
    void userRequestableChanged(bool userRequestable);
    void permissionAdded(const QString &permType);
    void permissionRemoved(const QString &permType);
    void pathUpdated(const QString &newPath);
    void natureUpdated(const QString &newNature);
    void behaviorNameUpdated(const QString &newName, const RobotLanguage &inLanguage);
    void behaviorDescriptionUpdated(const QString &newDesc, const RobotLanguage &inLanguage);

    // Behaviors have no categories yet; nothing sends these.
    void categoryAdded(const QString &category);
    void categoryUpdated(int idx, const QString &newCategory);
    void categoryRemoved(int idx);

    void tagAdded(const QString &tag, const RobotLanguage &inLanguage);
    void tagInserted(const QString &tag, const RobotLanguage &inLanguage, int idx);
    void tagUpdated(int idx, const QString &newTag, const RobotLanguage &inLanguage);
    void tagRemoved(int idx, const RobotLanguage &inLanguage);

    void triggerSentenceAdded(const QString &ts, const RobotLanguage &inLanguage);
    void triggerSentenceInserted(const QString &ts, const RobotLanguage &inLanguage, int idx);
    void triggerSentenceUpdated(int tsIdx, const QString &newTs, const RobotLanguage &inLanguage);
    void triggerSentenceRemoved(int tsIdx, const RobotLanguage &inLanguage);

    void loadingResponseAdded(const QString &lr, const RobotLanguage &inLanguage);
    void loadingResponseInserted(const QString &lr, const RobotLanguage &inLanguage, int idx);
    void loadingResponseUpdated(int lrIdx, const QString &newLr, const RobotLanguage &inLanguage);
    void loadingResponseRemoved(int lrIdx, const RobotLanguage &inLanguage);

    void conditionAdded(const QString &condition, const QString &purpose);
    void conditionInserted(const QString &condition, const QString &purpose, int idx);
    void conditionUpdated(int conditionIdx, const QString &newCondition, const QString &purpose);
    void conditionRemoved(int conditionIdx, const QString &purpose);

public Q_SLOTS:
    void setPath(const QString &path);
    void setNature(const QString &nature);
    void setName(const QString &name, const RobotLanguage &lang);
    void setDescription(const QString &desc, const RobotLanguage &lang);
    void setUserRequestable(bool userRequestable);

    /// Returns false when the permission is there already.
    bool addPermission(const QString &permType);
    /// Returns false when there is no such permission.
    bool removePermission(const QString &permType);

    // Four kinds of lists with the same slots; each returns whether it changed the list.
    //
    // Adding and inserting refuse a value that the list has already, compared case-sensitively. An
    // insertion clamps its index to the list and tells where the value ended up. Updating looks for
    // no duplicate and notifies even when the value stays the same. Updating and removing refuse an
    // index outside the list.

    bool addTag(const QString &tag, const RobotLanguage &lang);
    bool insertTag(const QString &tag, const RobotLanguage &lang, int idx);
    bool updateTag(int tagIdx, const QString &newTag, const RobotLanguage &lang);
    bool removeTag(int tagIdx, const RobotLanguage &lang);

    bool addTriggerSentence(const QString &ts, const RobotLanguage &lang);
    bool insertTriggerSentence(const QString &ts, const RobotLanguage &lang, int idx);
    bool updateTriggerSentence(int tsIdx, const QString &newTs, const RobotLanguage &lang);
    bool removeTriggerSentence(int tsIdx, const RobotLanguage &lang);

    bool addLoadingResponse(const QString &lr, const RobotLanguage &lang);
    bool insertLoadingResponse(const QString &lr, const RobotLanguage &lang, int idx);
    bool updateLoadingResponse(int lrIdx, const QString &newLr, const RobotLanguage &lang);
    bool removeLoadingResponse(int lrIdx, const RobotLanguage &lang);

    bool addCondition(const QString &condition, const QString &purpose);
    bool insertCondition(const QString &condition, const QString &purpose, int idx);
    bool updateCondition(int conditionIdx, const QString &newCondition, const QString &purpose);
    bool removeCondition(int conditionIdx, const QString &purpose);

    /// Removes the name in a language, so that names() no longer lists it; announced as an update
    /// to the empty text. Returns false if there is none.
    bool removeName(const RobotLanguage &lang);
    /// The same for the description.
    bool removeDescription(const RobotLanguage &lang);
    /// Adds a permission before the one at an index, which is clamped to the list.
    bool insertPermission(const QString &permType, int idx);

private:
    friend class ChildAccess;
    struct Data;
    std::unique_ptr<Data> m_data;
};

} // namespace Zel

Q_DECLARE_METATYPE(const Zel::BehaviorInfoModel *)
Q_DECLARE_METATYPE(Tano::BehaviorInfo)
