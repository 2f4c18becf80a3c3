#pragma once

#include "copy_beside.h"
#include "file_descriptor.h"

#include <tano/save_file.h>

#include <memory>
#include <optional>
#include <string>

namespace Tano {

/// Saving one file, in steps, so that several can be saved together. Steps return why they failed.
class FileSave {
public:
    /// `file` must outlive this.
    explicit FileSave(const FileToSave &file);

    /// All that may fail and that no one notices.
    [[nodiscard]] std::string prepare();
    /// Changes the file on disk.
    [[nodiscard]] std::string commit();
    /// Gives the file its old content again if commit() has changed it.
    [[nodiscard]] std::string rollBack();
    /// Removes the copy, and those that killed processes have left.
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
    std::string m_target; // as the system names it, links followed
    FileDescriptor m_opened;
    FileDescriptor m_folder;
    std::unique_ptr<CopyBeside> m_copy;
    std::optional<std::string> m_old; // while the file is overwritten
    bool m_isInPlace = false;
    bool m_isChanged = false;
    bool m_hasConflict = false;
};

} // namespace Tano
