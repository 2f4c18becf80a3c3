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
/// It wraps the package's record, packageInfo(), which is what gets saved. A setter whose value is
/// the current one does nothing; any other writes the record, updates what is derived from it, and
/// notifies last. All of it belongs to the user-interface thread, and notifications are
/// synchronous.
///
/// The package owns the models of its behaviors, dialogs and services: they are its QObject
/// children, and it deletes one after announcing its removal. When a child announces a change, the
/// package brings the record's list up to date with its children.
///
/// Observers may edit, reload or delete the package, its children and themselves in every
/// notification.
class PACKAGEMODEL_EXPORT PackageInfoModel : public QObject {
    Q_OBJECT

public:
    /// The icon of a package that has none of its own; empty when its file is not installed. Needs
    /// a QGuiApplication.
    static QIcon defaultIcon();

    /// An empty package.
    explicit PackageInfoModel(QObject *parent = nullptr);
    explicit PackageInfoModel(const Tano::PackageInfo &info, QObject *parent = nullptr);
    /// A copy, its children copied too, without a QObject parent.
    PackageInfoModel(const PackageInfoModel &other);
    ~PackageInfoModel() override;

    /// Takes over everything from `other`, with copies of its children, through the setters, so
    /// that observers hear every change. The requirements that were there leave without
    /// notification. descriptions() keeps texts in languages in which `other` has none;
    /// the record ends as an exact copy.
    ///
    /// Of the edits that observers make meanwhile, those of the children stay and all others are
    /// overwritten. An observer that assigns, clears or loads itself has the last word.
    PackageInfoModel &operator=(const PackageInfoModel &other);

    /// Resets to an empty package, by assignment.
    void clear();

    // Reading and writing manifests. A load first resets the package as clear() does; if it fails,
    // it returns false and the package stays reset. A success ends with loadedFromManifest(). A
    // load also returns false if an observer of its notifications assigned, cleared or loaded
    // something else. packageInfo().errorString() says why a load or a save failed.

    /// Reads a manifest and, if there is a QGuiApplication, the icon from "icon.png" beside it. An
    /// icon that is not a PNG in a regular file of at most 16 MiB and 4096 x 4096 pixels is logged
    /// and left out.
    [[nodiscard]] bool loadFromManifestFile(const QString &path);
    /// The same for a file that is read from its current position when it is open.
    [[nodiscard]] bool loadFromManifestFile(QFile &file);
    /// Reads a manifest from its text, up to the first NUL.
    [[nodiscard]] bool loadFromManifestContent(const QByteArray &content);

    /// Writes the record. The icon is not saved.
    [[nodiscard]] bool saveToManifestFile(const QString &path) const;
    /// The same into a file, in place when it is open.
    [[nodiscard]] bool saveToManifestFile(QFile &file) const;
    /// The manifest's text; empty when a field holds what a manifest cannot.
    [[nodiscard]] QByteArray saveToManifestContent() const;

    /// Brings the record's behaviors, dialogs and services up to date with the children at once.
    /// Only insertions into the lists of a behavior, and changes made while a child's signals were
    /// blocked, wait for this or for the next change of a child of the same kind.
    void syncRecord();

    // Preparing a package for publication: first drop what it does not offer, then make its texts
    // plain. The script variants' languages are no description languages, so that trimming again
    // drops the scripts.

    /// Drops the package's and the behaviors' names and descriptions in languages other than the
    /// description languages, and the behaviors' tags, trigger sentences and loading responses in
    /// languages other than the supported ones. Does not notify.
    void trimExtraInfo();

    /// Makes plain text (Tano::PackageHelper::getHumanReadableText()) of the names and descriptions
    /// of the package and its behaviors and, in the supported languages, of the trigger sentences
    /// and loading responses. The text as it was is kept in the script variant of its language
    /// (PackageModel::k_sa), which itself is left alone. Every change notifies.
    ///
    /// A text that is a malformed script stays, and is told of in the log;
    /// PackageModel::scriptErrors() lists them beforehand.
    void genPlainTextFromScript();

    /// The record, as it is saved.
    const Tano::PackageInfo &packageInfo() const;

    QString installer() const;
    QString uid() const;
    QString typeVersion() const;
    QString author() const;
    QString organization() const;
    QString date() const;
    QString channel() const;
    QString path() const;

    /// Always of three fields.
    SoftwareVersion version() const;

    /// The languages that the package runs in, in the order of their addition.
    const RobotLanguages &supportedLanguages() const;
    bool hasLanguageSupport(const RobotLanguage &language) const;
    /// The languages that the package is described in.
    const RobotLanguages &descriptionLanguages() const;
    bool hasLanguageDescription(const RobotLanguage &language) const;

    /// The name in a language; empty when there is none.
    QString name(const RobotLanguage &language) const;
    const Language::LocalizedStrings &names() const;
    /// Whether there is a name in the language that is not empty.
    bool hasNameFor(const RobotLanguage &language) const;

    /// The description in a language; empty when there is none.
    QString description(const RobotLanguage &language) const;
    const Language::LocalizedStrings &descriptions() const;
    /// Whether there is a description in the language that is not empty.
    bool hasDescriptionFor(const RobotLanguage &language) const;

    QVector<RobotRequirement> robotRequirements() const;
    /// The requirement at `i`; a default one for an index outside the list.
    RobotRequirement robotRequirement(int i) const;
    QVector<BrioRequirement> brioRequirements() const;
    BrioRequirement brioRequirement(int i) const;

    /// The icon, which is no part of the record.
    QIcon icon() const;

    /// The children, in the order of the record.
    QVector<BehaviorInfoModel *> behaviors() const;
    QVector<DialogInfoModel *> dialogs() const;
    QVector<ServiceInfoModel *> services() const;

    /// The first behavior with that path; null when there is none.
    BehaviorInfoModel *behavior(const QString &path) const;
    /// The first dialog with that topic name; null when there is none.
    DialogInfoModel *dialog(const QString &name) const;
    /// The first service with that name; null when there is none.
    ServiceInfoModel *service(const QString &name) const;

    /// Replaces the behavior models by one for each behavior of the record. Announces those that
    /// go, not those that come.
    void createBehaviorInfoModels();

Q_SIGNALS:
    void loadedFromManifest();
    void installerUpdated(const QString &newInstaller);
    void uidUpdated(const QString &newUuid);
    void versionUpdated(const SoftwareVersion &newVersion);
    void typeVersionUpdated(const QString &newTypeVersion);
    void authorUpdated(const QString &newAuthor);
    void organizationUpdated(const QString &newOrganization);
    void dateUpdated(const QString &newDate);
    void channelUpdated(const QString &newChannel);
    void pathUpdated(const QString &newPath);
    void languageAdded(const RobotLanguage &language);
    void languageRemoved(const RobotLanguage &language);
    void descriptionRemoved(const RobotLanguage &language);
    void descriptionAdded(const RobotLanguage &language);
    void nameUpdated(const QString &newName, const RobotLanguage &newLanguage);
    void namesCleared();
    void descriptionUpdated(const QString &newDesc, const RobotLanguage &inLanguage);
    void robotRequirementAdded(const RobotRequirement &newRobotReq);
    void robotRequirementUpdated(int robotReqIdx, const RobotRequirement &newRobotReq);
    void robotRequirementRemoved(int robotReqIdx);
    void brioRequirementAdded(const BrioRequirement &newBrioReq);
    void brioRequirementUpdated(int brioReqIdx, const BrioRequirement &newBrioReq);
    void brioRequirementRemoved(int brioReqIdx);
    void behaviorAdded(BehaviorInfoModel *addedBehavior);
    /// Sent before the child is deleted, as are dialogRemoved() and serviceRemoved().
    void behaviorRemoved(BehaviorInfoModel *removedBehavior);
    void dialogAdded(DialogInfoModel *dialog);
    void dialogRemoved(DialogInfoModel *dialog);
    void serviceAdded(ServiceInfoModel *service);
    void serviceRemoved(ServiceInfoModel *service);
    void iconUpdated(const QIcon &newIcon);
    /// The entry that was at `from` is at `to`. An insertion is announced as an addition to the end
    /// and a move.
    void behaviorMoved(BehaviorInfoModel *behavior, int from, int to);
    void dialogMoved(DialogInfoModel *dialog, int from, int to);
    void serviceMoved(ServiceInfoModel *service, int from, int to);
    void languageMoved(const RobotLanguage &language, int from, int to);
    void descriptionMoved(const RobotLanguage &language, int from, int to);
    void robotRequirementMoved(int from, int to);
    void brioRequirementMoved(int from, int to);

private Q_SLOTS:
    void resyncBehaviors();
    void resyncDialogs();
    void resyncServices();

public Q_SLOTS:
    void setInstaller(const QString &installer);
    void setUid(const QString &uid);
    /// Pads or truncates to three fields, and notifies even when nothing changes.
    void setVersion(const SoftwareVersion &newVersion);
    void setTypeVersion(const QString &typeVersion);
    void setAuthor(const QString &author);
    void setOrganization(const QString &organization);
    void setDate(const QString &date);
    void setChannel(const QString &channel);
    void setPath(const QString &path);

    /// Makes the language a description language too.
    void addSupportedLanguage(const RobotLanguage &language);
    /// Removes the language and the dialogs' topic files in it; the description language, the name
    /// and the description stay.
    void removeSupportedLanguage(const RobotLanguage &language);
    void addDescriptionLanguage(const RobotLanguage &language);
    /// Removes the language; the description in it stays.
    void removeDescriptionLanguage(const RobotLanguage &language);

    /// Any language will do, supported or not.
    void setName(const QString &name, const RobotLanguage &language);
    /// Removes all names with one notification.
    void clearNames();
    /// Any language will do; it does not become a description language.
    void setDescription(const QString &desc, const RobotLanguage &language);

    // Requirements may be equal to one another. An update notifies even when the value stays the
    // same; updating and removing return false for an index outside the list.

    void addRobotRequirement(const RobotRequirement &robotReq = RobotRequirement());
    bool updateRobotRequirement(int robotReqIdx, const RobotRequirement &updatedRobotReq);
    bool removeRobotRequirement(int robotReqIdx);
    void addBrioRequirement(const BrioRequirement &brioReq = BrioRequirement());
    bool updateBrioRequirement(int brioReqIdx, const BrioRequirement &updatedBrioReq);
    bool removeBrioRequirement(int brioReqIdx);

    // Children. One added by pointer belongs to the package from then on; a package that it belongs
    // to brings its record up to date and announces the removal first. Adding a child that is there
    // already or is being removed, or a null pointer, does nothing. Removing returns false if there
    // is no such child; the pointer may be dangling.

    /// Adds an empty behavior; returns false when there is one with that path.
    bool addBehavior(const QString &behaviorPath);
    void addBehavior(const Tano::BehaviorInfo &bi);
    void addBehavior(BehaviorInfoModel *bim);
    bool removeBehavior(const QString &behaviorPath);
    bool removeBehavior(BehaviorInfoModel *bim);
    /// Removes all behaviors, each with its notification. The record keeps its list until the next
    /// change of the behaviors.
    void clearBehaviors();

    void addDialog(const Tano::DialogInfo &di);
    void addDialog(DialogInfoModel *dim);
    /// Adds an empty dialog, unless there is one with that topic name.
    void addDialog(const QString &topicName = QString());
    bool removeDialog(int dialogIndex);
    bool removeDialog(DialogInfoModel *dim);

    void addService(const Tano::PackageService &si);
    void addService(ServiceInfoModel *sim);
    bool removeService(QString serviceName);
    bool removeService(ServiceInfoModel *sim);
    /// Removes all services as clearBehaviors() does the behaviors.
    void clearServices();

    /// Does nothing when the icon looks the same as the current one, at any size. Needs a
    /// QGuiApplication to tell that of two different icons.
    void setIcon(const QIcon &newIcon);

    // Changes of the order. `insert` adds an entry and moves it to the index, which is clamped to
    // the list. `move` takes an entry out and inserts it so that its new index is `to`; it returns
    // false for an index outside the list, and notifies only if the index changes. Neither touches
    // the other entries.

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

    /// Removes the name in a language, so that names() no longer lists it; announced as an update
    /// to the empty text. Returns false if there is none.
    bool removeName(const RobotLanguage &language);
    /// The same for the description; the description language stays.
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

/// Prints the record as its manifest, for people to read.
PACKAGEMODEL_EXPORT std::ostream &operator<<(std::ostream &stream, const PackageInfoModel &package);

} // namespace Zel
