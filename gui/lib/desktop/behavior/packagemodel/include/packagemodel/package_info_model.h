#pragma once

#include <packagemodel/behavior_info_model.h>
#include <packagemodel/dialog_info_model.h>
#include <packagemodel/packagemodel_export.h>
#include <packagemodel/requirements.h>
#include <packagemodel/service_info_model.h>
#include <packagemodel/text_conversion.h>

#include <tano/package_info.h>
#include <zel/language.h>
#include <zel/software_version.h>

#include <QByteArray>
#include <QIcon>
#include <QObject>
#include <QVector>

#include <functional>
#include <iosfwd>
#include <memory>

class QFile;

namespace Zel {

class WholeChange;

/// The observable model of one application package.
///
/// It wraps the package's record, packageInfo(), which is what gets saved. Setters do nothing if
/// the value is unchanged; otherwise they write the record, update their cache and notify last. For
/// the user-interface thread only; notifications are synchronous.
///
/// ```cpp
/// PackageInfoModel package; // a fresh one for each file
/// if (!package.loadFromManifestFile(fileName))
///     showMessage(QString::fromStdString(package.packageInfo().errorString()));
/// QObject::connect(&package, &PackageInfoModel::nameUpdated, &window, &QWidget::setWindowTitle);
/// package.setName(QStringLiteral("Tea"), english);
/// package.syncRecord();
/// if (!package.saveToManifestFile(fileName))
///     showMessage(QString::fromStdString(package.packageInfo().errorString()));
/// ```
///
/// The package owns the models of its behaviors, dialogs and services: they are its QObject
/// children, and it deletes a child after announcing its removal. Whenever a child announces a
/// change, the package updates the corresponding list of its record. Insertions into the lists of a
/// behavior are the exception; see syncRecord().
///
/// Observers may edit, reload or delete the package, its children and themselves in every
/// notification.
class PACKAGEMODEL_EXPORT PackageInfoModel : public QObject {
    Q_OBJECT

public:
    /// The icon of packages without their own; empty if its file is not installed. Needs a
    /// QGuiApplication.
    static QIcon defaultIcon();

    /// An empty package.
    explicit PackageInfoModel(QObject *parent = nullptr);
    /// A model of a copy of `info`.
    explicit PackageInfoModel(const Tano::PackageInfo &info, QObject *parent = nullptr);
    /// A deep copy without a QObject parent.
    PackageInfoModel(const PackageInfoModel &other);
    ~PackageInfoModel() override;

    /// Copies everything from `other`, including its children, through the setters, so that
    /// observers hear every change except the removal of the old requirements. The record becomes
    /// an exact copy, but the cache behind descriptions() keeps texts in languages in which `other`
    /// has none.
    ///
    /// Edits that observers make meanwhile are overwritten, except for those of children. If an
    /// observer assigns, clears or loads, its result wins.
    PackageInfoModel &operator=(const PackageInfoModel &other);

    /// Resets to an empty package by assigning one. As with every assignment, descriptions() still
    /// returns the old texts afterwards, although the record has none.
    void clear();

    /// Reads a manifest and, if there is a QGuiApplication, the icon from "icon.png" beside it. An
    /// icon that is not a PNG in a regular file of at most 16 MiB and 4096 x 4096 pixels is ignored
    /// and logged.
    ///
    /// Every load resets the package first, as clear() does. If it fails, it returns false and the
    /// package stays reset, so open files into a fresh package to keep the current one.
    /// packageInfo().errorString() explains the failure. A load also returns false if an observer
    /// assigns, clears or loads meanwhile.
    ///
    /// Of the new content, a load announces only the version, the requirements, the dialogs, the
    /// services and the icon; it does not send languageAdded(), nameUpdated() or behaviorAdded(),
    /// for example. Observers read everything again on loadedFromManifest(), which ends a
    /// successful load.
    [[nodiscard]] bool loadFromManifestFile(const QString &path);
    /// Like the above, from the current position of `file` if it is open.
    [[nodiscard]] bool loadFromManifestFile(QFile &file);
    /// Like the above, from the text of a manifest up to the first NUL, without an icon.
    [[nodiscard]] bool loadFromManifestContent(const QByteArray &content);

    /// Saves the record, but not the icon. Call syncRecord() before: texts inserted into the lists
    /// of a behavior are otherwise missing. On failure, returns false and leaves an existing file
    /// unchanged; packageInfo().errorString() explains it.
    [[nodiscard]] bool saveToManifestFile(const QString &path) const;
    /// Saves the record to `file`, in place if it is open. Call syncRecord() before, as above.
    [[nodiscard]] bool saveToManifestFile(QFile &file) const;
    /// The manifest of the record; empty if a field contains characters that XML cannot represent.
    /// Call syncRecord() before, as above.
    [[nodiscard]] QByteArray saveToManifestContent() const;

    /// Updates the record's behaviors, dialogs and services from the children. Call this before
    /// saving or reading the record.
    ///
    /// All other changes of children reach the record at once. Insertions into the lists of a
    /// behavior (insertTag() and its like), and changes made while a child's signals are blocked,
    /// wait for this function or for the next change of a child of the same kind.
    void syncRecord();

    /// Drops the package's and the behaviors' names and descriptions in languages other than the
    /// description languages, and the behaviors' tags, trigger sentences and loading responses in
    /// languages other than the supported ones. Does not notify.
    ///
    /// For publication, trim the package first, then call genPlainTextFromScript(). Trimming again
    /// drops the scripts, since their languages are not description languages.
    void trimExtraInfo();

    /// Converts speech scripts to plain text (Tano::PackageHelper::getHumanReadableText()): names
    /// and descriptions of the package and its behaviors in all languages, trigger sentences and
    /// loading responses in the supported languages. The script is kept in the script variant of
    /// the language (PackageModel::k_sa). Every change notifies.
    ///
    /// A malformed script is left unchanged and logged; PackageModel::scriptErrors() lists
    /// malformed scripts beforehand.
    void genPlainTextFromScript();

    /// The record, which is what gets saved; see syncRecord().
    const Tano::PackageInfo &packageInfo() const;

    /// @{
    /// One of the package's plain texts, as in Tano::PackageInfo; empty if it is not set.
    QString installer() const;
    QString uid() const;
    QString typeVersion() const;
    QString author() const;
    QString organization() const;
    QString date() const;
    QString channel() const;
    QString path() const;
    /// @}

    /// The version of the package, which always has three fields.
    SoftwareVersion version() const;

    /// The languages that the package runs in, in the order of their addition.
    const RobotLanguages &supportedLanguages() const;
    /// Whether the package runs in the language.
    bool hasLanguageSupport(const RobotLanguage &language) const;
    /// The languages that the package is described in.
    const RobotLanguages &descriptionLanguages() const;
    /// Whether the package is described in the language.
    bool hasLanguageDescription(const RobotLanguage &language) const;

    /// The name in a language; empty if there is none.
    QString name(const RobotLanguage &language) const;
    /// The names in all languages.
    const Language::LocalizedStrings &names() const;
    /// Whether there is a non-empty name in the language.
    bool hasNameFor(const RobotLanguage &language) const;

    /// The description in a language; empty if there is none.
    QString description(const RobotLanguage &language) const;
    /// The descriptions in all languages. After clear() or an assignment, these include texts that
    /// the record no longer has.
    const Language::LocalizedStrings &descriptions() const;
    /// Whether there is a non-empty description in the language.
    bool hasDescriptionFor(const RobotLanguage &language) const;

    /// The robots that the package runs on.
    QVector<RobotRequirement> robotRequirements() const;
    /// The requirement at index `i`; a default one if out of range.
    RobotRequirement robotRequirement(int i) const;
    /// The versions of the middleware that the package runs on.
    QVector<BrioRequirement> brioRequirements() const;
    /// The requirement at index `i`; a default one if out of range.
    BrioRequirement brioRequirement(int i) const;

    /// The icon, which is not part of the record.
    QIcon icon() const;

    /// @{
    /// The children in the order of the record; owned by the package.
    QVector<BehaviorInfoModel *> behaviors() const;
    QVector<DialogInfoModel *> dialogs() const;
    QVector<ServiceInfoModel *> services() const;
    /// @}

    /// The first behavior with this path; null if there is none.
    BehaviorInfoModel *behavior(const QString &path) const;
    /// The first dialog with this topic name; null if there is none.
    DialogInfoModel *dialog(const QString &name) const;
    /// The first service with this name; null if there is none.
    ServiceInfoModel *service(const QString &name) const;

    /// Replaces the behavior models with one for each behavior of the record. Announces removals,
    /// but not additions.
    void createBehaviorInfoModels();

Q_SIGNALS:
    /// A load has succeeded; everything may be different.
    void loadedFromManifest();
    /// @{
    /// The value has changed.
    void installerUpdated(const QString &newInstaller);
    void uidUpdated(const QString &newUuid);
    void versionUpdated(const SoftwareVersion &newVersion);
    void typeVersionUpdated(const QString &newTypeVersion);
    void authorUpdated(const QString &newAuthor);
    void organizationUpdated(const QString &newOrganization);
    void dateUpdated(const QString &newDate);
    void channelUpdated(const QString &newChannel);
    void pathUpdated(const QString &newPath);
    /// @}
    /// @{
    /// The supported languages have changed. Loads do not send languageAdded().
    void languageAdded(const RobotLanguage &language);
    void languageRemoved(const RobotLanguage &language);
    /// @}
    /// @{
    /// The description languages have changed; the description itself may be absent.
    void descriptionRemoved(const RobotLanguage &language);
    void descriptionAdded(const RobotLanguage &language);
    /// @}
    /// The name in a language has changed; empty if it was removed.
    void nameUpdated(const QString &newName, const RobotLanguage &newLanguage);
    /// All names were removed.
    void namesCleared();
    /// The description in a language has changed; empty if it was removed.
    void descriptionUpdated(const QString &newDesc, const RobotLanguage &inLanguage);
    /// @{
    /// The requirements have changed. Additions are at the end of the list.
    void robotRequirementAdded(const RobotRequirement &newRobotReq);
    void robotRequirementUpdated(int robotReqIdx, const RobotRequirement &newRobotReq);
    void robotRequirementRemoved(int robotReqIdx);
    void brioRequirementAdded(const BrioRequirement &newBrioReq);
    void brioRequirementUpdated(int brioReqIdx, const BrioRequirement &newBrioReq);
    void brioRequirementRemoved(int brioReqIdx);
    /// @}
    /// @{
    /// A child was added at the end of its list, or removed. A removed child is deleted after the
    /// notification, unless it was added to another package.
    void behaviorAdded(BehaviorInfoModel *addedBehavior);
    void behaviorRemoved(BehaviorInfoModel *removedBehavior);
    void dialogAdded(DialogInfoModel *dialog);
    void dialogRemoved(DialogInfoModel *dialog);
    void serviceAdded(ServiceInfoModel *service);
    void serviceRemoved(ServiceInfoModel *service);
    /// @}
    /// The icon has changed.
    void iconUpdated(const QIcon &newIcon);
    /// @{
    /// The entry at index `from` is now at `to`. An insertion is announced as an addition at the
    /// end followed by a move.
    void behaviorMoved(BehaviorInfoModel *behavior, int from, int to);
    void dialogMoved(DialogInfoModel *dialog, int from, int to);
    void serviceMoved(ServiceInfoModel *service, int from, int to);
    void languageMoved(const RobotLanguage &language, int from, int to);
    void descriptionMoved(const RobotLanguage &language, int from, int to);
    void robotRequirementMoved(int from, int to);
    void brioRequirementMoved(int from, int to);
    /// @}

private Q_SLOTS:
    void resyncBehaviors();
    void resyncDialogs();
    void resyncServices();

public Q_SLOTS:
    /// @{
    /// Sets one of the package's plain texts.
    void setInstaller(const QString &installer);
    void setUid(const QString &uid);
    /// @}
    /// Sets the version, padded or truncated to three fields. Notifies even if it is unchanged.
    void setVersion(const SoftwareVersion &newVersion);
    /// @{
    /// Sets one of the package's plain texts.
    void setTypeVersion(const QString &typeVersion);
    void setAuthor(const QString &author);
    void setOrganization(const QString &organization);
    void setDate(const QString &date);
    void setChannel(const QString &channel);
    void setPath(const QString &path);
    /// @}

    /// Adds a supported language, which becomes a description language too.
    void addSupportedLanguage(const RobotLanguage &language);
    /// Removes a supported language and the dialogs' topic files in it. The description language,
    /// the name and the description are kept.
    void removeSupportedLanguage(const RobotLanguage &language);
    /// Adds a description language.
    void addDescriptionLanguage(const RobotLanguage &language);
    /// Removes a description language; the description in it is kept.
    void removeDescriptionLanguage(const RobotLanguage &language);

    /// Sets the name in any language, supported or not.
    void setName(const QString &name, const RobotLanguage &language);
    /// Removes all names with one notification.
    void clearNames();
    /// Sets the description in any language, which does not become a description language.
    void setDescription(const QString &desc, const RobotLanguage &language);

    /// @{
    /// Edits the requirements, which may be equal to one another. An update notifies even if the
    /// value is unchanged; update and remove return false if the index is out of range.
    void addRobotRequirement(const RobotRequirement &robotReq = RobotRequirement());
    bool updateRobotRequirement(int robotReqIdx, const RobotRequirement &updatedRobotReq);
    bool removeRobotRequirement(int robotReqIdx);
    void addBrioRequirement(const BrioRequirement &brioReq = BrioRequirement());
    bool updateBrioRequirement(int brioReqIdx, const BrioRequirement &updatedBrioReq);
    bool removeBrioRequirement(int brioReqIdx);
    /// @}

    /// Adds an empty behavior; returns false if there is one with this path.
    bool addBehavior(const QString &behaviorPath);
    /// @{
    /// Adds a copy of a record, or a model, at the end. The package takes ownership of the model;
    /// its previous package updates its record and announces the removal first. A null pointer, and
    /// a child that is present already or is being removed, are ignored.
    void addBehavior(const Tano::BehaviorInfo &bi);
    void addBehavior(BehaviorInfoModel *bim);
    /// @}
    /// @{
    /// Removes and deletes a child; returns false if there is no such child. The pointer may be
    /// dangling.
    bool removeBehavior(const QString &behaviorPath);
    bool removeBehavior(BehaviorInfoModel *bim);
    /// @}
    /// Removes all behaviors, each with its notification. The record does not change: it keeps its
    /// list until syncRecord() or the next change of the behaviors.
    void clearBehaviors();

    /// @{
    /// Adds a dialog as addBehavior() adds a behavior.
    void addDialog(const Tano::DialogInfo &di);
    void addDialog(DialogInfoModel *dim);
    /// @}
    /// Adds an empty dialog, unless there is one with this topic name.
    void addDialog(const QString &topicName = QString());
    /// @{
    /// Removes a dialog as removeBehavior() removes a behavior.
    bool removeDialog(int dialogIndex);
    bool removeDialog(DialogInfoModel *dim);
    /// @}

    /// @{
    /// Adds a service as addBehavior() adds a behavior.
    void addService(const Tano::PackageService &si);
    void addService(ServiceInfoModel *sim);
    /// @}
    /// @{
    /// Removes a service as removeBehavior() removes a behavior.
    bool removeService(QString serviceName);
    bool removeService(ServiceInfoModel *sim);
    /// @}
    /// Removes all services. The record does not change, as with clearBehaviors().
    void clearServices();

    /// Sets the icon; does nothing if it looks the same as the current one at any size. Comparing
    /// different icons needs a QGuiApplication.
    void setIcon(const QIcon &newIcon);

    /// @{
    /// Changes the order of a list. `insert` adds an entry and moves it to `index`, which is
    /// clamped to the list. `move` makes `to` the new index of the entry; it returns false if an
    /// index is out of range, and notifies only if the index changes. Other entries keep their
    /// order.
    void insertBehavior(int index, const Tano::BehaviorInfo &bi);
    bool moveBehavior(int from, int to);
    void insertDialog(int index, const Tano::DialogInfo &di);
    bool moveDialog(int from, int to);
    void insertService(int index, const Tano::PackageService &si);
    bool moveService(int from, int to);
    void insertSupportedLanguage(int index, const RobotLanguage &language);
    bool moveSupportedLanguage(int from, int to);
    void insertDescriptionLanguage(int index, const RobotLanguage &language);
    bool moveDescriptionLanguage(int from, int to);
    void insertRobotRequirement(int index, const RobotRequirement &robotReq);
    bool moveRobotRequirement(int from, int to);
    void insertBrioRequirement(int index, const BrioRequirement &brioReq);
    bool moveBrioRequirement(int from, int to);
    /// @}

    /// Removes the name in a language, which is announced as an update to the empty text. Returns
    /// false if there is none.
    bool removeName(const RobotLanguage &language);
    /// Removes the description in a language likewise; the description language is kept.
    bool removeDescription(const RobotLanguage &language);

private:
    friend class ChildAccess;
    void assign(const PackageInfoModel &other, const WholeChange &change);
    bool load(const std::function<bool(Tano::PackageInfo &)> &read,
              const std::function<void()> &readIcon);
    bool initFromPackage(const Tano::PackageInfo &loaded, const WholeChange &change);
    void readVersionFromPackage();
    void readCaches(const Tano::PackageInfo &loaded);
    void createBehaviors(const Tano::PackageInfo &record);
    void appendRequirements(const Tano::PackageInfo &record);
    void resyncRobotRequirements();
    void resyncBrioRequirements();

    struct Data;
    std::unique_ptr<Data> m_data;
};

/// Prints the manifest of the record, for debugging.
PACKAGEMODEL_EXPORT std::ostream &operator<<(std::ostream &stream, const PackageInfoModel &package);

} // namespace Zel
