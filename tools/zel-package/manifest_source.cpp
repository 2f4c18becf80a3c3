#include "manifest_source.h"

#include <tano/manifest_reader.h>

#include <QCoreApplication>
#include <QFile>

#include <unistd.h>

namespace ZelPackage {
namespace {

bool openInput(QFile &input, const QString &file) {
    if (isStandardStream(file))
        return input.open(STDIN_FILENO, QIODevice::ReadOnly);
    input.setFileName(file);
    return input.open(QIODevice::ReadOnly);
}

} // namespace

bool isStandardStream(const QString &file) {
    return file == QLatin1String("-");
}

std::optional<std::string> readContent(const QString &file, QString &trouble) {
    QFile input;
    if (!openInput(input, file)) {
        trouble = QCoreApplication::translate("zel-package", "The file cannot be opened: %1.")
                      .arg(input.errorString());
        return {};
    }
    std::string content = input.readAll().toStdString();
    if (input.error() != QFileDevice::NoError) {
        trouble = QCoreApplication::translate("zel-package", "The file cannot be read: %1.")
                      .arg(input.errorString());
        return {};
    }
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

} // namespace ZelPackage
