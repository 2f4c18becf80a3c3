#include "manifest_file.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <unistd.h>

namespace Tano {
namespace {

std::string cannotSave(const QString &path, const QString &reason) {
    return "The file \"" + path.toStdString() + "\" cannot be saved: " + reason.toStdString() + '.';
}

// A disk that fills up shows as a short write first, and tells the reason at the next one. Success
// must be asked for before QSaveFile::commit(), which does not mind a failed flush.
bool writeAll(QFileDevice &file, const std::string &bytes) {
    std::size_t done = 0;
    while (done < bytes.size()) {
        const qint64 written = file.write(bytes.data() + done, qint64(bytes.size() - done));
        if (written <= 0)
            return false;
        done += std::size_t(written);
    }
    return file.flush() && file.error() == QFileDevice::NoError;
}

// Returns why the bytes did not reach the disk; the empty text where they did, or where the file
// system cannot say. QSaveFile::commit() does not mind a failure of this either.
QString syncToDisk(const QFileDevice &file) {
    if (::fdatasync(file.handle()) == 0 || errno == EINVAL || errno == ENOSYS)
        return {};
    return qt_error_string(errno);
}

} // namespace

std::string replaceFile(const QString &path, const std::string &bytes) {
    const QFileInfo target(path);
    if (target.exists() && !target.isFile())
        return cannotSave(path, QStringLiteral("it is not a regular file"));
    if (target.isSymLink() && !target.exists())
        return cannotSave(path, QStringLiteral("it is a link to a file that is not there"));

    QSaveFile file(path);
    file.setDirectWriteFallback(false);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return cannotSave(path, file.errorString());
    if (!writeAll(file, bytes)) {
        const QString reason = file.errorString();
        file.cancelWriting();
        return cannotSave(path, reason);
    }
    if (const QString reason = syncToDisk(file); !reason.isEmpty()) {
        file.cancelWriting();
        return cannotSave(path, reason);
    }
    if (!file.commit())
        return cannotSave(path, file.errorString());
    return {};
}

std::string writeInPlace(QFile &file, const std::string &bytes) {
    if (!file.isWritable())
        return cannotSave(file.fileName(), QStringLiteral("it is not open for writing"));
    const bool canSeek = !file.isSequential();
    const bool written = (!canSeek || file.seek(0)) && writeAll(file, bytes) &&
                         (!canSeek || file.resize(qint64(bytes.size())));
    return written ? std::string() : cannotSave(file.fileName(), file.errorString());
}

} // namespace Tano
