#include "tano/path.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QStringList>

#include <utility>

#include <dlfcn.h>
#include <link.h>

namespace Tano::path {
namespace {

/// The parent of the data directories in the tree from which this library (or the program that it
/// is linked into) was loaded; empty if unknown.
QString besideLibrary() {
    static const char addressInLibrary = 0;
    Dl_info info{};
    link_map *loaded = nullptr;
    if (dladdr1(&addressInLibrary, &info, reinterpret_cast<void **>(&loaded), RTLD_DL_LINKMAP) ==
            0 ||
        !info.dli_fname)
        return {};
    if (loaded && *loaded->l_name == 0) // the program itself, whose name may be arbitrary
        return QDir::cleanPath(
            QFileInfo(QFile::symLinkTarget(QStringLiteral("/proc/self/exe"))).path() %
            QLatin1String("/" ZEL_DATADIR_FROM_BINDIR));
    // Canonical, because ".." below a symlinked library directory leads elsewhere.
    const QString directory = QFileInfo(QFile::decodeName(info.dli_fname)).canonicalPath();
    if (directory.isEmpty())
        return {};
    return QDir::cleanPath(directory % QLatin1String("/" ZEL_DATADIR_FROM_LIBDIR));
}

/// The normalized relative path, empty if it leads outside its base directory.
QString insidePath(const std::string &relativePath) {
    const QString path = QDir::cleanPath(QString::fromStdString(relativePath));
    const bool leadsOut = path == QLatin1String("..") || path.startsWith(QLatin1String("../"));
    return leadsOut || QDir::isAbsolutePath(path) ? QString() : path;
}

QByteArray variableOf(const QString &application) {
    return QFile::encodeName(application.toUpper() % QLatin1String("_DATA_PATH"));
}

QStringList environmentEntries(const QString &application) {
    return qEnvironmentVariable(variableOf(application).constData())
        .split(QDir::listSeparator(), Qt::SkipEmptyParts);
}

/// The candidate directories in search order.
QStringList candidates(const QString &application, bool excludeUser) {
    // Computed once: a relative library path refers to the initial working directory.
    static const QString beside = besideLibrary();

    QStringList roots = QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation);
    if (excludeUser)
        roots.removeAll(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
    if (!beside.isEmpty())
        roots.append(beside);

    QStringList directories = environmentEntries(application);
    for (const QString &root : std::as_const(roots))
        directories.append(root % QLatin1Char('/') % application);
    return directories;
}

/// The existing directories among `paths`, without duplicates.
QStringList existing(const QStringList &paths) {
    QStringList directories;
    for (const QString &path : paths) {
        if (const QFileInfo info(path); info.isDir())
            directories.append(QDir::cleanPath(info.absoluteFilePath()));
    }
    directories.removeDuplicates();
    return directories;
}

/// Implements dataDirectories().
QStringList directoriesOf(const std::string &application, bool excludeUser) {
    const QString name = insidePath(application);
    return name.isEmpty() ? QStringList() : existing(candidates(name, excludeUser));
}

std::vector<std::string> toStdStrings(const QStringList &texts) {
    std::vector<std::string> result;
    for (const QString &text : texts)
        result.push_back(text.toStdString());
    return result;
}

} // namespace

std::vector<std::string> dataDirectories(const std::string &application, bool excludeUser) {
    return toStdStrings(directoriesOf(application, excludeUser));
}

std::optional<std::vector<std::string>> environmentDirectories(const std::string &application) {
    const QString name = insidePath(application);
    if (name.isEmpty() || !qEnvironmentVariableIsSet(variableOf(name).constData()))
        return {};
    return toStdStrings(existing(environmentEntries(name)));
}

std::string findData(const std::string &application, const std::string &relativePath,
                     bool excludeUser) {
    const QString path = insidePath(relativePath);
    if (path.isEmpty())
        return {};
    for (const QString &directory : directoriesOf(application, excludeUser)) {
        const QString file = QDir::cleanPath(directory % QLatin1Char('/') % path);
        if (QFileInfo::exists(file))
            return file.toStdString();
    }
    return {};
}

} // namespace Tano::path
