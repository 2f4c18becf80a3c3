#include "output_file.h"

#include "arguments/native_text.h"
#include "console/library_text.h"
#include "console/text_layout.h"
#include "manifest_source.h"

#include <tano/save_file.h>

#include <QCoreApplication>
#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace ZelPackage {
namespace {

using Status = struct stat;

std::optional<Status> statusOf(int file) {
    Status status = {};
    return ::fstat(file, &status) == 0 ? std::make_optional(status) : std::nullopt;
}

std::optional<Status> statusOf(const QString &file) {
    Status status = {};
    return ::stat(nativeBytes(file).c_str(), &status) == 0 ? std::make_optional(status)
                                                           : std::nullopt;
}

bool isSame(const std::optional<Status> &a, const std::optional<Status> &b) {
    return a && b && a->st_dev == b->st_dev && a->st_ino == b->st_ino;
}

QString systemSentence() {
    return reasonSentence(std::generic_category().message(errno));
}

// Also closes the file.
QString writeAll(int opened, const std::string &content) {
    QFile file;
    const auto size = qint64(content.size());
    if (file.open(opened, QIODevice::WriteOnly, QFileDevice::AutoCloseHandle) &&
        file.write(content.data(), size) == size && file.flush())
        return {};
    return reasonSentence(file.errorString().toStdString());
}

} // namespace

bool isSameFile(const QString &input, const QString &output) {
    const auto from = isStandardStream(input) ? statusOf(STDIN_FILENO) : statusOf(input);
    const auto to = isStandardStream(output) ? statusOf(STDOUT_FILENO) : statusOf(output);
    return isSame(from, to) && S_ISREG(from->st_mode);
}

bool isStandardOutput(const QString &output) {
    return isStandardStream(output) || isSame(statusOf(output), statusOf(STDOUT_FILENO));
}

bool isSpecialFile(const QString &output) {
    const auto status = statusOf(output);
    return status && !S_ISREG(status->st_mode);
}

QString createFile(const QString &file, const std::string &content) {
    const std::string name = nativeBytes(file);
    const int created = ::open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (created < 0)
        return systemSentence();
    QString reason = writeAll(created, content);
    if (!reason.isEmpty())
        static_cast<void>(::unlink(name.c_str()));
    return reason;
}

QString writeToSpecialFile(const QString &file, const std::string &content) {
    const int opened = ::open(nativeBytes(file).c_str(), O_WRONLY | O_CLOEXEC | O_NOCTTY);
    if (opened < 0)
        return systemSentence();
    if (::isatty(opened) == 0)
        return writeAll(opened, content);
    const QString text = printableExcept(QStringLiteral("\t\n"), QString::fromStdString(content));
    return writeAll(opened, text.toStdString());
}

QCommandLineOption outputOption() {
    return {{QStringLiteral("o"), outputOptionName},
            QCoreApplication::translate(
                "zel-package", "Write to this file; the default, also '-', is standard output."),
            QStringLiteral("OUT"),
            QStringLiteral("-")};
}

bool checkIsOther(const QString &file, const QString &output, Console &console) {
    if (!isSameFile(file, output))
        return true;
    console.printMessage(output, QCoreApplication::translate(
                                     "zel-package", "The output cannot be the manifest itself."));
    return false;
}

bool writeOutput(const QString &output, const std::string &content, Console &console) {
    if (isStandardOutput(output)) {
        console.printBytes(content);
        return true;
    }
    if (isSpecialFile(output)) {
        const QString reason = writeToSpecialFile(output, content);
        if (!reason.isEmpty())
            console.printMessage(output, reason);
        return reason.isEmpty();
    }
    const Tano::SaveResult result = Tano::saveFile({nativeBytes(output), content});
    if (!result)
        console.printMessage(translatedSentence(result.error));
    return bool(result);
}

} // namespace ZelPackage
