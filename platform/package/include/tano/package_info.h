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

/// The record of one application package: everything that its manifest holds. UTF-8 throughout;
/// texts are keyed by language code.
///
/// It is an implicitly shared value: copying counts a reference, and a change detaches. What a
/// manifest holds beyond the fields (comments, and elements and attributes that this version does
/// not know) travels with the record and is saved again.
class TANO_PACKAGE_EXPORT PackageInfo {
public:
    const std::string &uuid() const;
    void setUuid(const std::string &uuid);

    /// The package's version, a dotted number.
    const std::string &version() const;
    void setVersion(const std::string &version);

    const std::string &typeVersion() const;
    void setTypeVersion(const std::string &typeVersion);

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

    const TextMap &names() const;
    /// The name in a language; empty when there is none.
    const std::string &name(const std::string &code) const;
    void setName(const std::string &name, const std::string &code);
    /// Returns false if there is no name in that language.
    bool removeName(const std::string &code);
    void clearNames();

    const TextMap &descriptions() const;
    /// The description in a language; empty when there is none.
    const std::string &description(const std::string &code) const;
    void setDescription(const std::string &description, const std::string &code);
    /// Returns false if there is no description in that language.
    bool removeDescription(const std::string &code);

    // The lists below keep the author's order. `insert` clamps its index to the list; `replace`,
    // `remove` and `move` return false, and change nothing, for an index outside the list. `move`
    // takes an entry out and inserts it so that its new index is `to`.

    /// The languages that the package runs in. Adding or inserting one that is there, or removing
    /// one that is not, changes nothing.
    const std::vector<std::string> &supportedLanguages() const;
    void addSupportedLanguage(const std::string &code);
    void removeSupportedLanguage(const std::string &code);
    void insertSupportedLanguage(int index, const std::string &code);
    bool moveSupportedLanguage(int from, int to);

    /// The languages that the package is described in.
    const std::vector<std::string> &descriptionLanguages() const;
    void addDescriptionLanguage(const std::string &code);
    void removeDescriptionLanguage(const std::string &code);
    void insertDescriptionLanguage(int index, const std::string &code);
    bool moveDescriptionLanguage(int from, int to);

    const std::vector<RobotRequirement> &robotRequirements() const;
    void clearRobotRequirements();
    void addRobotRequirement(const RobotRequirement &requirement);
    bool replaceRobotRequirement(int index, const RobotRequirement &requirement);
    bool removeRobotRequirement(int index);
    void insertRobotRequirement(int index, const RobotRequirement &requirement);
    bool moveRobotRequirement(int from, int to);

    const std::vector<BrioRequirement> &brioRequirements() const;
    void clearBrioRequirements();
    void addBrioRequirement(const BrioRequirement &requirement);
    bool replaceBrioRequirement(int index, const BrioRequirement &requirement);
    bool removeBrioRequirement(int index);
    void insertBrioRequirement(int index, const BrioRequirement &requirement);
    bool moveBrioRequirement(int from, int to);

    const std::vector<BehaviorInfo> &behaviors() const;
    void clearBehaviors();
    void addBehavior(const BehaviorInfo &behavior);
    bool replaceBehavior(int index, const BehaviorInfo &behavior);
    bool removeBehavior(int index);
    void insertBehavior(int index, const BehaviorInfo &behavior);
    bool moveBehavior(int from, int to);

    const std::vector<DialogInfo> &dialogs() const;
    void clearDialogs();
    void addDialog(const DialogInfo &dialog);
    bool replaceDialog(int index, const DialogInfo &dialog);
    bool removeDialog(int index);
    void insertDialog(int index, const DialogInfo &dialog);
    bool moveDialog(int from, int to);

    const std::vector<PackageService> &services() const;
    void clearServices();
    void addService(const PackageService &service);
    bool replaceService(int index, const PackageService &service);
    bool removeService(int index);
    void insertService(int index, const PackageService &service);
    bool moveService(int from, int to);

    /// Every language code that the record mentions, its behaviors and dialogs included.
    std::set<std::string> languageCodes() const;

    /// Drops the names and descriptions in languages other than the description languages, those of
    /// the behaviors included, and the behaviors' tags, trigger sentences and loading responses in
    /// languages other than the supported ones. What else a manifest holds within the texts of a
    /// language goes with them.
    void trimExtraInfo();

    /// Reads the manifest in `file`: from its current position when it is open, else by opening it.
    /// Returns false, keeps the record as it was and sets errorString() when that fails.
    bool loadFromManifestFile(QFile &file);
    /// Reads a manifest from its text, with the same failures.
    bool loadFromManifestContent(const std::string &content);

    /// Saves to the file at `path`, all or nothing, as saveFile() does: after a failure, which
    /// errorString() explains, an existing file is unchanged. Symbolic links are followed.
    bool saveToManifestFile(const std::string &path) const;
    /// The same, but fails if the file no longer has the content that is `expected`, so that no
    /// edit of another program is lost.
    bool saveToManifestFile(const std::string &path, const FileFingerprint &expected) const;
    /// The same for `file`; if the caller has opened it, it is written in place. One that is open
    /// for appending is refused.
    bool saveToManifestFile(QFile &file) const;
    /// The manifest's text; empty, with errorString() set, when a field holds what XML cannot.
    [[nodiscard]] std::string saveToManifestContent() const;

    /// Why the last load or save of this object failed, in one sentence; empty when it succeeded.
    const std::string &errorString() const;

    /// True when both have the same content, what a manifest holds beyond the fields included.
    friend TANO_PACKAGE_EXPORT bool operator==(const PackageInfo &a, const PackageInfo &b);
    friend bool operator!=(const PackageInfo &a, const PackageInfo &b) { return !(a == b); }

private:
    friend class RecordAccess;
    std::shared_ptr<PackageData> m_data; // null for a default record
    mutable std::string m_errorString;
};

/// Prints the record as its manifest, for people to read.
TANO_PACKAGE_EXPORT std::ostream &operator<<(std::ostream &stream, const PackageInfo &package);

} // namespace Tano
