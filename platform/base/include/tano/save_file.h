#pragma once

#include <tano/tano_base_export.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

class QFile;

namespace Tano {

/// Identifies the content of a file at one moment. A default fingerprint means "no file".
///
/// Fingerprints compare the content alone: rewriting a file with the same bytes does not change its
/// fingerprint, while an edit that keeps size and time does.
struct TANO_BASE_EXPORT FileFingerprint {
    std::int64_t size = -1; ///< in bytes; -1 for no file
    std::string digest;     ///< XXH3 with 128 bits: 16 bytes, the most significant first

    /// The fingerprint of a file with this content.
    static FileFingerprint ofContent(const std::string &content);
    /// Reads the file at `path`, as in FileToSave; "no file" if it cannot be read.
    static FileFingerprint ofFile(const std::string &path);

    /// @{
    /// Compares size and digest.
    friend bool operator==(const FileFingerprint &a, const FileFingerprint &b) {
        return a.size == b.size && a.digest == b.digest;
    }
    friend bool operator!=(const FileFingerprint &a, const FileFingerprint &b) { return !(a == b); }
    /// @}
};

/// A file to save, and the conditions for saving it.
struct FileToSave {
    /// How to treat a symbolic link.
    enum class Links { Follow, Refuse };

    /// The path in UTF-8. Since file systems accept any bytes, bytes that are not UTF-8 are used as
    /// they are.
    std::string path;
    /// The new content; if nullopt, the file is removed if it exists.
    std::optional<std::string> bytes = {};
    /// If set, the file is saved only if it still has this content.
    std::optional<FileFingerprint> expected = {};
    /// Whether a symbolic link at `path` is followed or makes the save fail. A link is never
    /// removed.
    Links links = Links::Follow;
};

/// The outcome of saving.
struct SaveResult {
    /// Why it failed, in one sentence that names the file; empty on success.
    std::string error = {};
    /// Whether it failed because a file did not have the expected content.
    bool hasConflict = false;

    /// Whether the file was saved.
    explicit operator bool() const { return error.empty(); }
};

/// Replaces the content of a file atomically: at any moment, even after a crash, the file has
/// either the old content or the new one. A failure leaves it unchanged.
///
/// The bytes are written to a temporary file beside it, synced, and renamed over it. Mode, owner,
/// group, access control list and extended attributes are preserved, and nobody who cannot read the
/// old content can read the new one at any moment. Where a rename would change these attributes or
/// split hard links, the file is overwritten instead, while the synced copy remains beside it.
///
/// The temporary file is named ".NAME.saving-" plus eight random characters. The next successful
/// save of the same file removes one that a killed process has left.
///
/// Only regular files that may be written are saved. Programs that call this function for the same
/// file wait for each other, for at most two seconds.
///
/// ```cpp
/// const std::string path = fileName.toStdString();
/// const Tano::FileFingerprint opened = Tano::FileFingerprint::ofFile(path);
/// // while a user edits the manifest
/// const Tano::SaveResult saved = Tano::saveFile({path, manifest, opened});
/// if (saved.hasConflict)
///     showMessage(QStringLiteral("Another program has changed the file."));
/// ```
[[nodiscard]] TANO_BASE_EXPORT SaveResult saveFile(const FileToSave &file);

/// Saves all of several files or none: if one fails, those saved before it get their old content
/// back. A crash in between can leave some files old and others new.
[[nodiscard]] TANO_BASE_EXPORT SaveResult saveFiles(const std::vector<FileToSave> &files);

/// Replaces the content of a file that the caller has opened for writing; its position is then at
/// the end. After a failure the old content is restored if the file can be read. Pipes are written
/// to as they are; a file opened for appending is refused.
[[nodiscard]] TANO_BASE_EXPORT SaveResult saveToOpenFile(QFile &file, const std::string &bytes);

} // namespace Tano
