#pragma once

#include <packagemodel/package_edits.h>

#include <QDateTime>

#include <memory>

namespace Zel::PackageModel {

/// Edits that no file has yet, and the manifest that they apply to.
struct UnsavedEdits {
    /// The absolute path of the manifest; empty for a package that was never saved.
    QString fileName;
    /// The manifest that the edits apply to, for a package that was never saved; else empty.
    QByteArray manifest;
    /// The SHA-256 digest of the manifest that the edits apply to, in hexadecimal digits. A file
    /// with another one was changed since.
    QByteArray digest;
    QDateTime time; ///< when the last edit was kept; UTC, in seconds
    Edits edits;
};

/// As edits are, with the other members beside them: `{"format": 1, "manifest":
/// "/.../manifest.xml", "sha256": "...", "time": "2026-11-21T12:00:00Z", "edits": [...]}`;
/// schema/unsaved-edits.schema.json describes the form.
PACKAGEMODEL_EXPORT QByteArray toJson(const UnsavedEdits &unsaved);

/// Unsaved edits that were read, or why there are none.
struct ParsedUnsavedEdits {
    UnsavedEdits unsaved;
    QString error; ///< one sentence that names the place; empty on success
};

/// Reads what toJson() writes.
PACKAGEMODEL_EXPORT ParsedUnsavedEdits unsavedEditsFromJson(const QByteArray &json);

/// The digest of a manifest's bytes, as in UnsavedEdits.
PACKAGEMODEL_EXPORT QByteArray manifestDigest(const QByteArray &manifest);

/// The time during which an editor has a manifest open: a lock that other editors see, and a file
/// that keeps the unsaved edits in case the editor ends without saving them.
///
/// Both are in a folder of the user, for example "zel-properties-editor" in $XDG_STATE_HOME; the
/// folder is made when it is missing, and only the user may read the files in it. The lock ends
/// with the process at the latest.
///
/// ```
/// EditSession session(folder, fileName);
/// if (const auto other = session.otherOwner())
///     warnAboutSecondWindow(other->process);
/// else if (const auto lost = session.leftover())
///     offer(*lost); // a PackageEditCommand applies lost->edits
/// session.keep(unsaved); // a few seconds after an edit
/// session.discard();     // after saving
/// ```
class PACKAGEMODEL_EXPORT EditSession {
public:
    /// The process that has the manifest open.
    struct Owner {
        qint64 process;
        QString host;
        QString application;
    };

    /// Opens a manifest; without a file name, a package that was never saved.
    explicit EditSession(const QString &folder, const QString &fileName = {});
    /// Takes over what leftovers() found under that id.
    static EditSession ofLeftover(const QString &folder, const QString &id);
    EditSession(EditSession &&other) noexcept;
    EditSession &operator=(EditSession &&other) noexcept;
    /// Ends the lock. Unsaved edits stay unless they were discarded.
    ~EditSession();

    /// Who else has the manifest open. Nothing if this session owns it, or if no lock can be made.
    std::optional<Owner> otherOwner() const;

    /// The unsaved edits that the file of this session has, for example those of an editor that
    /// crashed. Nothing if there are none, or if somebody else has the manifest open.
    std::optional<UnsavedEdits> leftover() const;

    /// Replaces the unsaved edits on disk, at once and completely. Returns why it failed, in one
    /// sentence; empty on success. Somebody else's file is left alone, without an error.
    QString keep(const UnsavedEdits &unsaved);

    /// Removes the unsaved edits from disk.
    void discard();

private:
    struct Data;
    explicit EditSession(std::unique_ptr<Data> data);

    std::unique_ptr<Data> m_data;
};

/// Unsaved edits of an editor that runs no more.
struct Leftover {
    QString id; ///< for EditSession::ofLeftover()
    UnsavedEdits unsaved;
};

/// All unsaved edits in a folder whose manifests no editor has open, the newest first. Files that
/// cannot be read are left in place, and logged. Locks of processes that were killed are removed.
PACKAGEMODEL_EXPORT QVector<Leftover> leftovers(const QString &folder);

} // namespace Zel::PackageModel
