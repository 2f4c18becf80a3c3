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
/// It holds its record by value. Setters do nothing if the value is unchanged; otherwise they write
/// the record, update their cache and notify last. Texts and lists are kept per language,
/// identified by its ISO code. A package owns the models added to it
/// (PackageInfoModel::addBehavior()).
///
/// ```cpp
/// package.addBehavior(QStringLiteral("greet"));
/// BehaviorInfoModel *greet = package.behavior(QStringLiteral("greet"));
/// greet->setNature(BehaviorInfoModel::natureInteractive());
/// greet->addTriggerSentence(QStringLiteral("Hello"), english);
/// ```
///
/// Insertions into its lists (insertTag() and its like) reach the package's record with
/// PackageInfoModel::syncRecord() or the next change of a behavior.
class PACKAGEMODEL_EXPORT BehaviorInfoModel : public QObject {
    Q_OBJECT

public:
    /// No nature: the null text.
    static const QString &natureNone();
    /// The nature of a behavior that reacts to people.
    static const QString &natureInteractive();
    /// The nature of a behavior that the robot runs by itself.
    static const QString &natureSolitary();

    /// The path to show to users: rootBehaviorPrettyPath() for the root behavior ".", otherwise the
    /// path itself.
    static QString prettyPath(const QString &path);
    /// ". (root behavior)".
    static const QString &rootBehaviorPrettyPath();

    /// A model of a copy of `info`. Its QObject parent is `parent`, or `package` if that is null.
    explicit BehaviorInfoModel(const Tano::BehaviorInfo &info, PackageInfoModel *package = nullptr,
                               QObject *parent = nullptr);
    /// A copy without a QObject parent and with the same parentPackage().
    BehaviorInfoModel(const BehaviorInfoModel &other);
    ~BehaviorInfoModel() override;
    BehaviorInfoModel &operator=(const BehaviorInfoModel &) = delete;

    /// The package of the behavior; null if it has none or the package was deleted.
    PackageInfoModel *parentPackage() const;
    /// Makes `package` the parentPackage() and the QObject parent. Does not notify.
    void setParentPackage(PackageInfoModel *package);

    /// The record.
    Tano::BehaviorInfo toBehaviorInfo() const;

    /// The path of the behavior in the package; "." for the root behavior.
    QString path() const;
    /// prettyPath() of path().
    QString prettyPath() const;
    /// path(), or "behavior.bhv" for the root behavior.
    QString pathWithDefaultBhvSuffix() const;

    /// One of the natures above.
    QString nature() const;

    /// The name in a language; the null text if there is none.
    QString name(const RobotLanguage &lang) const;
    /// The names in all languages.
    const Language::LocalizedStrings &names() const;

    /// The description in a language; the null text if there is none.
    QString description(const RobotLanguage &lang) const;
    /// The descriptions in all languages.
    const Language::LocalizedStrings &descriptions() const;

    /// The permissions that the behavior needs.
    QSet<QString> permissions() const;
    /// The permissions in the order of the record.
    QStringList permissionList() const;
    /// Whether the behavior has this permission.
    bool hasPermission(const QString &permType) const;

    /// Whether users may request the behavior.
    bool isUserRequestable() const;

    /// @{
    /// The tags, in one language or in all.
    QStringList tags(const RobotLanguage &lang) const;
    const Language::LocalizedStringLists &languagesToTags() const;
    /// @}

    /// @{
    /// The sentences with which users start the behavior, in one language or in all.
    QStringList triggerSentences(const RobotLanguage &lang) const;
    const Language::LocalizedStringLists &languagesToTriggerSentences() const;
    /// @}

    /// @{
    /// The sentences that the robot may say while the behavior is loading, in one language or in
    /// all.
    QStringList loadingResponses(const RobotLanguage &lang) const;
    const Language::LocalizedStringLists &languagesToLoadingResponses() const;
    /// @}

    /// The conditions for a purpose, which can be any text.
    QStringList conditions(const QString &purpose) const;
    /// The purposes that have conditions, in ascending order.
    QStringList purposes() const;

    /// Drops the names and descriptions in languages other than `descriptionLanguages`, and the
    /// tags, trigger sentences and loading responses in languages other than `supportedLanguages`.
    /// Does not notify.
    void trimExtraInfo(const RobotLanguages &descriptionLanguages,
                       const RobotLanguages &supportedLanguages);

Q_SIGNALS:
    /// @{
    /// The value has changed.
    void userRequestableChanged(bool userRequestable);
    void permissionAdded(const QString &permType);
    void permissionRemoved(const QString &permType);
    void pathUpdated(const QString &newPath);
    void natureUpdated(const QString &newNature);
    void behaviorNameUpdated(const QString &newName, const RobotLanguage &inLanguage);
    void behaviorDescriptionUpdated(const QString &newDesc, const RobotLanguage &inLanguage);
    /// @}

    /// @{
    /// Reserved for categories, which behaviors do not have yet; never sent.
    void categoryAdded(const QString &category);
    void categoryUpdated(int idx, const QString &newCategory);
    void categoryRemoved(int idx);
    /// @}

    /// @{
    /// A list has changed. `Added` items are at the end; the package's record does not follow
    /// `Inserted` items before PackageInfoModel::syncRecord().
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
    /// @}

public Q_SLOTS:
    /// @{
    /// Sets a value of the behavior.
    void setPath(const QString &path);
    void setNature(const QString &nature);
    void setName(const QString &name, const RobotLanguage &lang);
    void setDescription(const QString &desc, const RobotLanguage &lang);
    void setUserRequestable(bool userRequestable);
    /// @}

    /// Adds a permission; returns false if the behavior has it already.
    bool addPermission(const QString &permType);
    /// Removes a permission; returns false if the behavior does not have it.
    bool removePermission(const QString &permType);

    /// @{
    /// Edits one of the four kinds of lists; returns whether the list changed.
    ///
    /// `add` and `insert` refuse a value that the list has already, compared case-sensitively.
    /// `insert` clamps its index to the list and announces the actual position. The package's
    /// record does not follow an insertion before PackageInfoModel::syncRecord(). `update` accepts
    /// duplicates, and notifies even if the value is unchanged. `update` and `remove` refuse an
    /// index out of range.
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
    /// @}

    /// @{
    /// Removes the text in a language, which is announced as an update to the empty text. Returns
    /// false if there is none.
    bool removeName(const RobotLanguage &lang);
    bool removeDescription(const RobotLanguage &lang);
    /// @}
    /// Adds a permission before the one at index `idx`, which is clamped to the list; returns false
    /// if the behavior has it already.
    bool insertPermission(const QString &permType, int idx);

private:
    friend class ChildAccess;
    struct Data;
    std::unique_ptr<Data> m_data;
};

} // namespace Zel

Q_DECLARE_METATYPE(const Zel::BehaviorInfoModel *)
Q_DECLARE_METATYPE(Tano::BehaviorInfo)
