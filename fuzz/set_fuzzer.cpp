// The input is lines FIELD=VALUE, as for "zel-package set", or edits as JSON. The result is
// consistent and survives a save; the edits survive a round trip through JSON, and their inverses
// restore the package.

#include "observer_world.h"
#include "offscreen.h"
#include "target.h"

#include "set/assigned_edit.h"

#include <packagemodel/package_json.h>

namespace {

using namespace Zel;

constexpr int mostAssignments = 32;

std::string contentOf(PackageInfoModel &package) {
    package.syncRecord();
    return package.packageInfo().saveToManifestContent();
}

PackageModel::Edits editsOf(const QString &line, const PackageInfoModel &package) {
    if (line.startsWith(QLatin1Char('{')))
        return PackageModel::editsFromJson(line.toUtf8()).edits;
    const auto assignment = ZelPackage::parseAssignment(line);
    const auto edit =
        assignment ? ZelPackage::assignedEdit(*assignment, package).edit : std::nullopt;
    return edit ? PackageModel::Edits{*edit} : PackageModel::Edits();
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    startOffscreen();
    PackageInfoModel package(Observers::loadedRecord(0));
    const auto lines = QString::fromUtf8(reinterpret_cast<const char *>(data), int(size))
                           .split(QLatin1Char('\n'))
                           .mid(0, mostAssignments);
    const std::string initial = contentOf(package);
    PackageModel::Edits undo;
    for (const QString &line : lines) {
        const PackageModel::Edits edits = editsOf(line, package);
        const PackageModel::Applied applied = apply(&package, edits);
        // A text that a manifest cannot hold, such as U+FFFF, may not survive JSON either.
        require(!applied.error.isEmpty() ||
                    PackageModel::editsFromJson(toJson(edits)).edits == edits,
                "JSON keeps the edits");
        undo = applied.inverse + undo;
    }
    const std::string content = contentOf(package);
    const QString fault =
        Observers::disagreement(package, [](const QString &, const QString &) { return false; });
    require(fault.isEmpty(), fault.toStdString());
    Tano::PackageInfo reread;
    require(content.empty() || (reread.loadFromManifestContent(content) &&
                                reread.saveToManifestContent() == content),
            "the manifest can be read again");
    require(apply(&package, undo).error.isEmpty() && contentOf(package) == initial,
            "the inverses restore the package");
    return 0;
}
