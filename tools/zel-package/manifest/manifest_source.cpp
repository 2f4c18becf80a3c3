#include "manifest_source.h"

#include <tano/input_file.h>
#include <tano/manifest_reader.h>
#include <tano/save_file.h>

#include <QCoreApplication>
#include <QFile>

#include <unistd.h>

namespace ZelPackage {
namespace {

constexpr std::size_t pieceSize = std::size_t(64) << 10;

// Returns why that failed.
std::string openSource(QFile &input, const QString &file) {
    if (!isStandardStream(file)) {
        input.setFileName(file);
        return Tano::openInput(input);
    }
    const bool isOpen = input.open(STDIN_FILENO, QIODevice::ReadOnly | QIODevice::Unbuffered);
    return isOpen ? std::string() : input.errorString().toStdString();
}

// Nothing where reading failed.
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
                 QString &trouble) {
    QFile input;
    if (const std::string reason = openSource(input, file); !reason.empty()) {
        trouble = QCoreApplication::translate("zel-package", "The file cannot be opened: %1.")
                      .arg(QString::fromStdString(reason));
        return false;
    }
    const bool isRead = reader.readFile(input, package);
    if (!isRead && reader.errorPosition().line == 0)
        trouble = QString::fromStdString(reader.errorMessage());
    return isRead;
}

std::optional<std::string> readContent(const QString &file, QString &trouble) {
    QFile input;
    if (const std::string reason = openSource(input, file); !reason.empty()) {
        trouble = QCoreApplication::translate("zel-package", "The file cannot be opened: %1.")
                      .arg(QString::fromStdString(reason));
        return {};
    }
    Tano::InputFile source(input, Tano::ManifestReader::maxFileSize);
    auto content = readAll(source);
    if (!content)
        trouble = QCoreApplication::translate("zel-package", "The file cannot be read: %1.")
                      .arg(QString::fromStdString(source.error()));
    return content;
}

std::optional<Manifest> readManifest(const QString &file, Console &console) {
    QString trouble;
    auto content = readContent(file, trouble);
    if (!content) {
        console.tell(file, trouble);
        return {};
    }
    Manifest manifest;
    manifest.content = std::move(*content);

    Tano::ManifestReader reader;
    if (!reader.readContent(manifest.content, manifest.package)) {
        console.tell(file, reader.errorPosition(), QString::fromStdString(reader.errorMessage()));
        return {};
    }
    return manifest;
}

bool saveIfUnchanged(const QString &file, const Manifest &read, const Tano::PackageInfo &package) {
    return package.saveToManifestFile(file.toStdString(),
                                      Tano::FileFingerprint::ofContent(read.content));
}

} // namespace ZelPackage
