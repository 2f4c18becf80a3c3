#include "manifest_source.h"

#include "arguments/native_text.h"
#include "console/library_text.h"

#include <tano/input_file.h>
#include <tano/manifest_reader.h>
#include <tano/save_file.h>

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <system_error>
#include <unistd.h>

namespace ZelPackage {
namespace {

constexpr std::size_t pieceSize = std::size_t(64) << 10;

// Returns the reason on failure.
std::string openSource(QFile &input, const QString &file) {
    const auto mode = QIODevice::ReadOnly | QIODevice::Unbuffered;
    if (isStandardStream(file))
        return input.open(STDIN_FILENO, mode) ? std::string() : input.errorString().toStdString();
    const int opened = ::open(nativeBytes(file).c_str(), O_RDONLY | O_CLOEXEC);
    if (opened < 0)
        return std::generic_category().message(errno);
    return input.open(opened, mode, QFileDevice::AutoCloseHandle)
               ? std::string()
               : input.errorString().toStdString();
}

// Returns nullopt on a read error.
std::optional<std::string> readAll(Tano::InputFile &input) {
    std::string content;
    if (!input.isSequential() && input.error().empty())
        content.reserve(std::size_t(input.left()) + pieceSize);
    for (;;) {
        const std::size_t done = content.size();
        content.resize(done + pieceSize);
        const std::int64_t size = input.read(&content[done], pieceSize);
        if (size < 0)
            return {};
        content.resize(done + std::size_t(size));
        if (size == 0)
            return content;
    }
}

} // namespace

bool isStandardStream(const QString &file) {
    return file == QLatin1String("-");
}

bool readPackage(const QString &file, Tano::ManifestReader &reader, Tano::PackageInfo &package,
                 QString &reason) {
    QFile input;
    if (const std::string failure = openSource(input, file); !failure.empty()) {
        reason = reasonSentence(failure);
        return false;
    }
    const bool isRead = reader.readFile(input, package);
    if (!isRead && reader.errorPosition().line == 0)
        reason = translatedSentence(reader.errorMessage());
    return isRead;
}

std::optional<std::string> readContent(const QString &file, QString &reason) {
    QFile input;
    if (const std::string failure = openSource(input, file); !failure.empty()) {
        reason = reasonSentence(failure);
        return {};
    }
    Tano::InputFile source(input, Tano::ManifestReader::maxFileSize);
    auto content = readAll(source);
    if (!content)
        reason = reasonSentence(source.error());
    return content;
}

std::optional<Manifest> manifestOf(std::string content, ManifestError &error) {
    Manifest manifest;
    manifest.content = std::move(content);

    Tano::ManifestReader reader;
    if (!reader.readContent(manifest.content, manifest.package)) {
        error = {reader.errorPosition(), translatedSentence(reader.errorMessage())};
        return {};
    }
    return manifest;
}

std::optional<Manifest> readManifest(const QString &file, ManifestError &error) {
    auto content = readContent(file, error.text);
    return content ? manifestOf(std::move(*content), error) : std::nullopt;
}

std::optional<Manifest> readManifest(const QString &file, Console &console) {
    ManifestError error;
    auto manifest = readManifest(file, error);
    if (!manifest)
        console.printMessage(file, error.position, error.text);
    return manifest;
}

bool saveIfUnchanged(const QString &file, const Manifest &read, const Tano::PackageInfo &package) {
    return package.saveToManifestFile(nativeBytes(file),
                                      Tano::FileFingerprint::ofContent(read.content));
}

} // namespace ZelPackage
