#pragma once

#include "copy_beside.h"
#include "file_descriptor.h"

#include <tano/save_file.h>

#include <memory>
#include <optional>
#include <string>

namespace Tano {

/// Saves one file in steps, so that several files can be saved together. Each step returns an error
/// message, empty on success.
class FileSave {
public:
    /// `file` must outlive this.
    explicit FileSave(const FileToSave &file);

    /// Does everything that can fail without changing the target.
    [[nodiscard]] std::string prepare();
    /// Changes the file on disk.
    [[nodiscard]] std::string commit();
    /// Restores the old content if commit() has changed the file.
    [[nodiscard]] std::string rollBack();
    /// Removes the temporary copy and those left by killed processes.
    void finish();

    const std::string &path() const { return m_file.path; }
    bool hasConflict() const { return m_hasConflict; }

private:
    std::string resolve();
    std::string openTarget();
    std::string openFolder();
    std::string writeCopy();
    std::string checkExpected();
    bool isStillThere() const;
    std::string copyBeside(const std::string &bytes);
    std::string moveCopy();
    std::string writeInPlace();
    std::string removeTarget();
    std::string syncFolder();

    const FileToSave &m_file;
    std::string m_target; // canonical, with links resolved
    FileDescriptor m_opened;
    FileDescriptor m_folder;
    std::unique_ptr<CopyBeside> m_copy;
    std::optional<std::string> m_old; // set while the file is overwritten in place
    bool m_isInPlace = false;
    bool m_isChanged = false;
    bool m_hasConflict = false;
};

} // namespace Tano
