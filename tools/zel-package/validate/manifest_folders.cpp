#include "manifest_folders.h"

#include "arguments/native_text.h"
#include "console/library_text.h"

#include <QCoreApplication>

#include <filesystem>
#include <system_error>

namespace ZelPackage {
namespace {

namespace fs = std::filesystem;

using Report = std::function<void(const QString &folder, const QString &reason)>;

QString textOf(const fs::path &path) {
    return nativeText(QByteArray::fromStdString(path.lexically_normal().string()));
}

void collect(const fs::path &folder, const Report &report, QStringList &files) {
    std::error_code error;
    for (auto entry = fs::directory_iterator(folder, error);
         !error && entry != fs::directory_iterator(); entry.increment(error)) {
        std::error_code ignored; // the entry may be gone
        if (!entry->is_symlink(ignored) && entry->is_directory(ignored))
            collect(entry->path(), report, files);
        else if (entry->path().filename() == "manifest.xml" && !entry->is_directory(ignored))
            files += textOf(entry->path());
    }
    if (error)
        report(textOf(folder), reasonSentence(error.message()));
}

} // namespace

QStringList manifestsOf(const QStringList &arguments, const Report &report) {
    QStringList all;
    for (const QString &argument : arguments) {
        std::error_code ignored; // the file may not exist
        if (!fs::is_directory(nativeBytes(argument), ignored)) {
            all += argument;
            continue;
        }
        QStringList files;
        bool isFine = true;
        collect(
            nativeBytes(argument),
            [&](const QString &folder, const QString &reason) {
                isFine = false;
                report(folder, reason);
            },
            files);
        files.sort();
        if (files.isEmpty() && isFine)
            report(argument, QCoreApplication::translate("zel-package",
                                                         "The folder contains no manifest.xml."));
        all += files;
    }
    return all;
}

} // namespace ZelPackage
