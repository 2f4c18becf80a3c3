#include "recent_files.h"

#include <QSettings>

namespace Editor {
namespace {

constexpr int maximumRecent = 8;
const QString recentKey = QStringLiteral("recentFiles");

} // namespace

QStringList recentFiles() {
    return QSettings().value(recentKey).toStringList();
}

void rememberFile(const QString &fileName) {
    QStringList files = recentFiles();
    files.removeAll(fileName);
    files.prepend(fileName);
    QSettings().setValue(recentKey, QStringList(files.mid(0, maximumRecent)));
}

} // namespace Editor
