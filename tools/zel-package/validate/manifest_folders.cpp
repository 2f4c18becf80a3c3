#include "manifest_folders.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace ZelPackage {
namespace {

using Report = std::function<void(const QString &folder, const QString &trouble)>;

void collect(const QString &folder, const Report &report, QStringList &files) {
    const QDir here(folder);
    if (!here.isReadable()) {
        report(folder, QCoreApplication::translate("zel-package", "The folder cannot be read."));
        return;
    }
    const auto entries =
        here.entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    for (const QFileInfo &entry : entries) {
        const QString path = QDir::cleanPath(entry.filePath());
        if (entry.isDir() && !entry.isSymLink())
            collect(path, report, files);
        else if (!entry.isDir() && entry.fileName() == QLatin1String("manifest.xml"))
            files += path;
    }
}

} // namespace

QStringList manifestsOf(const QStringList &arguments, const Report &report) {
    QStringList all;
    for (const QString &argument : arguments) {
        if (!QFileInfo(argument).isDir()) {
            all += argument;
            continue;
        }
        QStringList files;
        bool isFine = true;
        collect(
            argument,
            [&](const QString &folder, const QString &trouble) {
                isFine = false;
                report(folder, trouble);
            },
            files);
        files.sort();
        if (files.isEmpty() && isFine)
            report(argument, QCoreApplication::translate(
                                 "zel-package", "There is no manifest.xml in the folder."));
        all += files;
    }
    return all;
}

} // namespace ZelPackage
