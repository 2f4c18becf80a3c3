#pragma once

#include <packagemodel/package_edits.h>

#include <QDateTime>

#include <memory>
#include <optional>

namespace Zel::PackageModel {

/// Edits that are not saved yet, and the manifest that they apply to.
struct UnsavedEdits {
    /// The absolute path of the manifest; empty for a package that was never saved.
    QString fileName;
    /// The manifest that the edits apply to, if the package was never saved; otherwise empty.
    QByteArray manifest;
    /// The digest of the manifest that the edits apply to, see manifestDigest(). If the file has a
    /// different one, it was changed since.
    QByteArray digest;
    QDateTime time; ///< when the last edit was kept; UTC, in seconds
    Edits edits;    ///< in order
    /// The icon as PNG, empty if it was removed; nullopt if it was not changed.
    std::optional<QByteArray> icon = {};
};

/// Unsaved edits as JSON: `{"format": 1, "manifest": "/.../manifest.xml", "xxh3": "...", "time":
/// "2026-11-21T12:00:00Z", "edits": [...]}`, with the icon in Base64; see
/// schema/unsaved-edits.schema.json.
PACKAGEMODEL_EXPORT QByteArray toJson(const UnsavedEdits &unsaved);

/// The outcome of reading unsaved edits.
struct ParsedUnsavedEdits {
    UnsavedEdits unsaved; ///< empty on failure
    QString error;        ///< one sentence with the position; empty on success
};

/// Reads what toJson() writes.
PACKAGEMODEL_EXPORT ParsedUnsavedEdits unsavedEditsFromJson(const QByteArray &json);

/// The digest of a manifest's bytes for UnsavedEdits: XXH3 with 128 bits, as 32 hexadecimal digits.
/// The same as that of a Tano::FileFingerprint.
PACKAGEMODEL_EXPORT QByteArray manifestDigest(const QByteArray &manifest);

/// An editing session of one manifest: a lock that other editors respect, and a file that keeps the
/// unsaved edits in case the editor crashes.
///
/// Both are in a folder of the user, for example "zel-properties-editor" in $XDG_STATE_HOME. The
/// folder is created if needed; only the user can read its files. The lock ends with the process.
///
/// ```cpp
/// PackageModel::EditSession session(folder, fileName);
/// if (const auto other = session.otherOwner())
///     showMessage(QStringLiteral("%1 has it open").arg(other->application));
/// else if (const auto lost = session.leftover())
///     stack.push(new PackageEditCommand(&package, lost->edits)); // if the user wants them
/// session.keep(unsaved); // a few seconds after an edit
/// session.discard();     // after saving
/// ```
class PACKAGEMODEL_EXPORT EditSession {
public:
    /// The process that has the manifest open.
    struct Owner {
        qint64 process;      ///< its id
        QString host;        ///< the name of the computer
        QString application; ///< the name of the program
    };

    /// Starts a session for a manifest or, without a file name, for a package that was never saved.
    explicit EditSession(const QString &folder, const QString &fileName = {});
    /// Resumes a session that leftovers() found.
    static EditSession ofLeftover(const QString &folder, const QString &id);
    /// @{
    /// Moves the session, including its lock.
    EditSession(EditSession &&other) noexcept;
    EditSession &operator=(EditSession &&other) noexcept;
    /// @}
    /// Releases the lock. Unsaved edits are kept on disk unless discard() was called.
    ~EditSession();

    /// The other process that has the manifest open; nullopt if there is none, or if the lock file
    /// cannot be created.
    std::optional<Owner> otherOwner() const;

    /// The unsaved edits on disk for this manifest, for example those of an editor that crashed;
    /// nullopt if there are none or another process has the manifest open.
    std::optional<UnsavedEdits> leftover() const;

    /// Replaces the unsaved edits on disk atomically. Returns one sentence about a failure; empty
    /// on success. Does nothing if another process has the manifest open.
    QString keep(const UnsavedEdits &unsaved);

    /// Removes the unsaved edits from disk.
    void discard();

private:
    struct Data;
    explicit EditSession(std::unique_ptr<Data> data);

    std::unique_ptr<Data> m_data;
};

/// Unsaved edits of an editor that is no longer running.
struct Leftover {
    QString id;           ///< for EditSession::ofLeftover()
    UnsavedEdits unsaved; ///< the edits on disk
};

/// All unsaved edits in a folder whose manifests no editor has open, newest first. Unreadable files
/// are left in place and logged. Locks of killed processes are removed.
PACKAGEMODEL_EXPORT QVector<Leftover> leftovers(const QString &folder);

} // namespace Zel::PackageModel
