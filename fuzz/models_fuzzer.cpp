// The input is a manifest, a NUL, and bytes that choose calls. Models that are loaded, edited and
// copied have caches that agree with their records, and survive a save. A rejected manifest leaves
// an empty package.

#include "observer_world.h"
#include "offscreen.h"
#include "target.h"

#include <algorithm>

namespace {

using namespace Zel;

constexpr int mostCalls = 64;

void requireAgreement(const PackageInfoModel &package) {
    const auto noLeftovers = [](const QString &, const QString &) { return false; };
    for (const QString &fault :
         {Observers::disagreement(package, noLeftovers), Observers::lag(package)})
        require(fault.isEmpty(), fault.toStdString());
}

// The package or one of its children.
QObject *anyModel(PackageInfoModel &package, Decisions &decisions) {
    QVector<QObject *> models{&package};
    for (auto *behavior : package.behaviors())
        models.append(behavior);
    for (auto *dialog : package.dialogs())
        models.append(dialog);
    for (auto *service : package.services())
        models.append(service);
    return models.at(int(decisions.below(std::min<std::size_t>(256, std::size_t(models.size())))));
}

void edit(PackageInfoModel &package, const std::uint8_t *choices, std::size_t size) {
    constexpr int nobodyReacts = 0;
    Observers::World world(choices, size, nobodyReacts);
    for (int i = 0; i < mostCalls && !world.decisions.isAtEnd(); ++i)
        world.callAnySlot(anyModel(package, world.decisions));
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    startOffscreen();
    const std::uint8_t *end = std::find(data, data + size, std::uint8_t(0));
    const QByteArray content(reinterpret_cast<const char *>(data), int(end - data));
    PackageInfoModel package;
    if (!package.loadFromManifestContent(content)) {
        require(!package.packageInfo().errorString().empty(), "a refusal has a sentence");
        require(package.packageInfo() == PackageInfoModel().packageInfo(),
                "a refusal leaves an empty package");
        return 0;
    }
    requireAgreement(package);
    edit(package, end, std::size_t(data + size - end));
    package.syncRecord();
    requireAgreement(package);
    require(PackageInfoModel(package).packageInfo() == package.packageInfo(),
            "a copy has an equal record");
    return 0;
}
