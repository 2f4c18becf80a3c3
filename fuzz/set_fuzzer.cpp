// Lines FIELD=VALUE, as "zel-package set" takes them: the result is consistent, and survives being
// saved.

#include "observer_world.h"
#include "offscreen.h"
#include "target.h"

#include "set/field_edit.h"

#include <QFile>

namespace {

using namespace Zel;

constexpr int mostAssignments = 32;

std::string contentOf(PackageInfoModel &package) {
    package.syncRecord();
    return package.packageInfo().saveToManifestContent();
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    startOffscreen();
    PackageInfoModel package(Observers::loadedRecord(0));
    const auto lines = QString::fromUtf8(reinterpret_cast<const char *>(data), int(size))
                           .split(QLatin1Char('\n'))
                           .mid(0, mostAssignments);
    ZelPackage::Console console;
    for (const QString &line : lines) {
        const auto assignment = ZelPackage::parseAssignment(line);
        if (assignment)
            static_cast<void>(assign(*assignment, package, console));
    }
    const std::string content = contentOf(package);
    const QString fault =
        Observers::disagreement(package, [](const QString &, const QString &) { return false; });
    require(fault.isEmpty(), fault.toStdString());
    Tano::PackageInfo reread;
    require(content.empty() || (reread.loadFromManifestContent(content) &&
                                reread.saveToManifestContent() == content),
            "the manifest can be read again");
    return 0;
}
