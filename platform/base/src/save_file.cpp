#include <tano/save_file.h>

#include "file_save.h"
#include "file_writing.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <memory>

namespace Tano {
namespace {

std::string sentence(const std::string &path, const std::string &reason) {
    return "The file \"" + path + "\" cannot be saved: " + reason + '.';
}

using FileSaves = std::vector<std::unique_ptr<FileSave>>;

// Runs a step of each save until one fails.
SaveResult runEach(const FileSaves &saves, std::string (FileSave::*step)()) {
    for (const auto &save : saves) {
        const std::string reason = (save.get()->*step)();
        if (!reason.empty())
            return {sentence(save->path(), reason), save->hasConflict()};
    }
    return {};
}

SaveResult saveAll(const FileToSave *files, std::size_t count) {
    const FileSizeSignalBlock block;
    FileSaves saves;
    for (const FileToSave *file = files; file != files + count; ++file)
        saves.push_back(std::make_unique<FileSave>(*file));
    SaveResult result = runEach(saves, &FileSave::prepare);
    if (result)
        result = runEach(saves, &FileSave::commit);
    for (const auto &save : saves) {
        if (result)
            save->finish();
        else if (const std::string reason = save->rollBack(); !reason.empty())
            result.error += " The old content of \"" + save->path() + "\" is lost: " + reason + '.';
    }
    return result;
}

std::string writeThroughQt(QFile &file, const std::string &bytes) {
    std::size_t done = 0;
    while (done < bytes.size()) {
        const qint64 written = file.write(bytes.data() + done, qint64(bytes.size() - done));
        if (written <= 0)
            return file.errorString().toStdString();
        done += std::size_t(written);
    }
    return file.flush() ? std::string() : file.errorString().toStdString();
}

// A file opened write-only was truncated by the caller, or is to be overwritten.
std::string writeInPlace(QFile &file, const std::string &bytes) {
    if (!file.flush() || !file.seek(0))
        return file.errorString().toStdString();
    const auto old = contentOf(file.handle());
    if (!old && errno != EBADF)
        return systemReason();
    bool isDamaged = false;
    std::string reason = overwrite(file.handle(), bytes, old, isDamaged);
    if (isDamaged)
        reason += ", and its old content is lost";
    if (reason.empty() && !file.seek(qint64(bytes.size())))
        reason = file.errorString().toStdString();
    return reason;
}

bool appends(const QFile &file) {
    const int flags = ::fcntl(file.handle(), F_GETFL);
    return (file.openMode() & QIODevice::Append) != 0 || (flags != -1 && (flags & O_APPEND) != 0);
}

} // namespace

SaveResult saveFile(const FileToSave &file) {
    return saveAll(&file, 1);
}

SaveResult saveFiles(const std::vector<FileToSave> &files) {
    return saveAll(files.data(), files.size());
}

SaveResult saveToOpenFile(QFile &file, const std::string &bytes) {
    const FileSizeSignalBlock block;
    std::string reason;
    if (!file.isWritable())
        reason = "it is not open for writing";
    else if (file.isSequential() || file.handle() < 0)
        reason = writeThroughQt(file, bytes);
    else if (appends(file))
        reason = "it is open for appending";
    else
        reason = writeInPlace(file, bytes);
    return {reason.empty() ? reason : sentence(file.fileName().toStdString(), reason), false};
}

} // namespace Tano
