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

std::optional<Manifest> readManifest(const QString &file, Console &console) {
    QFile input;
    if (!openInput(input, file)) {
        console.tell(file,
                     QCoreApplication::translate("zel-package", "The file cannot be opened: %1.")
                         .arg(input.errorString()));
        return {};
    }
    Manifest manifest;
    manifest.content = input.readAll().toStdString();
    if (input.error() != QFileDevice::NoError) {
        console.tell(file,
                     QCoreApplication::translate("zel-package", "The file cannot be read: %1.")
                         .arg(input.errorString()));
        return {};
    }

    Tano::ManifestReader reader;
    if (!reader.readContent(manifest.content, manifest.package)) {
        console.tell(file, reader.errorPosition(), QString::fromStdString(reader.errorMessage()));
        return {};
    }
    return manifest;
}

} // namespace ZelPackage
