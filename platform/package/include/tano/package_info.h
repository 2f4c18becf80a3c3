#pragma once

#include <tano/behavior_info.h>
#include <tano/dialog_info.h>
#include <tano/package_service.h>
#include <tano/requirements.h>
#include <tano/tano_package_export.h>
#include <tano/text_maps.h>

#include <iosfwd>
#include <memory>
#include <set>
#include <string>
#include <vector>

class QFile;

namespace Tano {

struct FileFingerprint;
struct PackageData;

/// The record of one application package: the content of its manifest. All texts are UTF-8; names
/// and descriptions are keyed by language code.
///
/// An implicitly shared value: a copy increments a reference count, a change detaches. Comments,
/// and elements and attributes that this version does not know, are kept in the record and saved
/// again.
///
/// ```cpp
/// Tano::PackageInfo record;
/// QFile file(fileName);
/// if (!record.loadFromManifestFile(file))
///     showMessage(QString::fromStdString(record.errorString()));
/// record.setAuthor("Ines");
/// if (!record.saveToManifestFile(fileName.toStdString()))
///     showMessage(QString::fromStdString(record.errorString()));
/// ```
class TANO_PACKAGE_EXPORT PackageInfo {
public:
    /// @{
    /// The UID, which identifies the package.
    const std::string &uuid() const;
    void setUuid(const std::string &uuid);
    /// @}

    /// @{
    /// The version of the package, a dotted number.
    const std::string &version() const;
    void setVersion(const std::string &version);
    /// @}

    /// @{
    /// The version of the package's type, a dotted number; empty if it is not set.
    const std::string &typeVersion() const;
    void setTypeVersion(const std::string &typeVersion);
    /// @}

    /// @{
    /// A plain text; empty if it is not set. The date is in ISO 8601 ("2026-09-14"), the channel is
    /// that of the release ("stable"), and the path is where the package is on the robot; none of
    /// them is checked.
    const std::string &installer() const;
    void setInstaller(const std::string &installer);

    const std::string &author() const;
    void setAuthor(const std::string &author);

    const std::string &organization() const;
    void setOrganization(const std::string &organization);

    const std::string &date() const;
    void setDate(const std::string &date);

    const std::string &channel() const;
    void setChannel(const std::string &channel);

    const std::string &path() const;
    void setPath(const std::string &path);
    /// @}

    /// The names by language code.
    const TextMap &names() const;
    /// The name in a language; empty if there is none.
    const std::string &name(const std::string &code) const;
    /// Sets the name in a language; an empty one is kept as such.
    void setName(const std::string &name, const std::string &code);
    /// Removes the name in a language; returns false if there is none.
    bool removeName(const std::string &code);
    /// Removes the names in all languages.
    void clearNames();

    /// The descriptions by language code.
    const TextMap &descriptions() const;
    /// The description in a language; empty if there is none.
    const std::string &description(const std::string &code) const;
    /// Sets the description in a language; an empty one is kept as such.
    void setDescription(const std::string &description, const std::string &code);
    /// Removes the description in a language; returns false if there is none.
    bool removeDescription(const std::string &code);

    /// The codes of the languages that the package runs in, in the author's order.
    const std::vector<std::string> &supportedLanguages() const;
    /// @{
    /// Edits the supported languages. Adding or inserting a language that is present, or removing
    /// one that is absent, changes nothing. `insert` clamps its index to the list; `move` makes
    /// `to` the new index of the language, and returns false if an index is out of range.
    void addSupportedLanguage(const std::string &code);
    void removeSupportedLanguage(const std::string &code);
    void insertSupportedLanguage(int index, const std::string &code);
    bool moveSupportedLanguage(int from, int to);
    /// @}

    /// The codes of the languages that the package is described in, in the author's order.
    const std::vector<std::string> &descriptionLanguages() const;
    /// @{
    /// Edits the description languages, as for the supported ones.
    void addDescriptionLanguage(const std::string &code);
    void removeDescriptionLanguage(const std::string &code);
    void insertDescriptionLanguage(int index, const std::string &code);
    bool moveDescriptionLanguage(int from, int to);
    /// @}

    /// The robots that the package runs on, in the author's order.
    const std::vector<RobotRequirement> &robotRequirements() const;
    /// @{
    /// Edits a list. `insert` clamps its index to the list; `replace`, `remove` and `move` return
    /// false and change nothing if an index is out of range. `move` makes `to` the new index of the
    /// entry.
    void clearRobotRequirements();
    void addRobotRequirement(const RobotRequirement &requirement);
    bool replaceRobotRequirement(int index, const RobotRequirement &requirement);
    bool removeRobotRequirement(int index);
    void insertRobotRequirement(int index, const RobotRequirement &requirement);
    bool moveRobotRequirement(int from, int to);
    /// @}

    /// The versions of the middleware that the package runs on, in the author's order.
    const std::vector<BrioRequirement> &brioRequirements() const;
    /// @{
    /// Edits the Brio requirements, as for robot requirements.
    void clearBrioRequirements();
    void addBrioRequirement(const BrioRequirement &requirement);
    bool replaceBrioRequirement(int index, const BrioRequirement &requirement);
    bool removeBrioRequirement(int index);
    void insertBrioRequirement(int index, const BrioRequirement &requirement);
    bool moveBrioRequirement(int from, int to);
    /// @}

    /// The behaviors, in the author's order.
    const std::vector<BehaviorInfo> &behaviors() const;
    /// @{
    /// Edits the behaviors, as for robot requirements.
    void clearBehaviors();
    void addBehavior(const BehaviorInfo &behavior);
    bool replaceBehavior(int index, const BehaviorInfo &behavior);
    bool removeBehavior(int index);
    void insertBehavior(int index, const BehaviorInfo &behavior);
    bool moveBehavior(int from, int to);
    /// @}

    /// The dialogs, in the author's order.
    const std::vector<DialogInfo> &dialogs() const;
    /// @{
    /// Edits the dialogs, as for robot requirements.
    void clearDialogs();
    void addDialog(const DialogInfo &dialog);
    bool replaceDialog(int index, const DialogInfo &dialog);
    bool removeDialog(int index);
    void insertDialog(int index, const DialogInfo &dialog);
    bool moveDialog(int from, int to);
    /// @}

    /// The services, in the author's order.
    const std::vector<PackageService> &services() const;
    /// @{
    /// Edits the services, as for robot requirements.
    void clearServices();
    void addService(const PackageService &service);
    bool replaceService(int index, const PackageService &service);
    bool removeService(int index);
    void insertService(int index, const PackageService &service);
    bool moveService(int from, int to);
    /// @}

    /// All language codes in the record, including those in its behaviors and dialogs.
    std::set<std::string> languageCodes() const;

    /// Drops the names and descriptions in languages other than the description languages, those of
    /// the behaviors included, and the behaviors' tags, trigger sentences and loading responses in
    /// languages other than the supported ones. Comments and unknown elements among the texts of a
    /// dropped language are dropped too.
    void trimExtraInfo();

    /// Reads a manifest, from the current position of `file` if it is open. On failure, returns
    /// false, sets errorString() and leaves the record unchanged.
    [[nodiscard]] bool loadFromManifestFile(QFile &file);
    /// Reads a manifest from its text; failures as above.
    [[nodiscard]] bool loadFromManifestContent(const std::string &content);

    /// Saves to the file at `path` atomically, see saveFile(). On failure, returns false, sets
    /// errorString() and leaves an existing file unchanged. Symbolic links are followed.
    [[nodiscard]] bool saveToManifestFile(const std::string &path) const;
    /// Like the above, but fails if the file does not have the `expected` content, so that no edit
    /// of another program is lost.
    [[nodiscard]] bool saveToManifestFile(const std::string &path,
                                          const FileFingerprint &expected) const;
    /// Saves to `file`, in place if the caller has opened it, otherwise as above. A file opened for
    /// appending is refused.
    [[nodiscard]] bool saveToManifestFile(QFile &file) const;
    /// The text of the manifest; empty, with errorString() set, if a field contains characters that
    /// XML cannot represent.
    [[nodiscard]] std::string saveToManifestContent() const;

    /// Why the last load or save of this object failed, in one sentence; empty if it succeeded.
    const std::string &errorString() const;

    /// @{
    /// Compares the content, including comments and unknown elements and attributes.
    friend TANO_PACKAGE_EXPORT bool operator==(const PackageInfo &a, const PackageInfo &b);
    friend bool operator!=(const PackageInfo &a, const PackageInfo &b) { return !(a == b); }
    /// @}

private:
    friend class RecordAccess;
    std::shared_ptr<PackageData> m_data; // null for a default record
    mutable std::string m_errorString;
};

/// Prints the manifest of the record, for debugging.
TANO_PACKAGE_EXPORT std::ostream &operator<<(std::ostream &stream, const PackageInfo &package);

} // namespace Tano
