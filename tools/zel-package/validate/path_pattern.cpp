#include "path_pattern.h"

#include <QStringList>

#include <fnmatch.h>

namespace ZelPackage {

// If the names after a `**` do not match, backtracks and lets it match one more name. Only the last
// `**` needs this, since earlier ones matched as few names as possible.
bool matchesPath(const QString &pattern, const QString &path) {
    const QStringList wanted = pattern.split(u'/');
    const QStringList names = path.split(u'/');
    int next = 0;          // in wanted
    int afterFolders = -1; // of the last `**`
    int restart = 0;
    int name = 0;
    while (name < names.size()) {
        if (next < wanted.size() && wanted.at(next) == QLatin1String("**")) {
            afterFolders = ++next;
            restart = name;
        } else if (next < wanted.size() && fnmatch(wanted.at(next).toUtf8().constData(),
                                                   names.at(name).toUtf8().constData(), 0) == 0) {
            ++next;
            ++name;
        } else if (afterFolders >= 0) {
            next = afterFolders;
            name = ++restart;
        } else {
            return false;
        }
    }
    return next == wanted.size();
}

} // namespace ZelPackage
