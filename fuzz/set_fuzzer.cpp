// Lines FIELD=VALUE, as "zel-package set" takes them: what is made can be saved, and undone.

#include "observer_world.h"
#include "offscreen.h"
#include "target.h"

#include "field_edit.h"

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
    const std::string before = contentOf(package);
    const auto lines = QString::fromUtf8(reinterpret_cast<const char *>(data), int(size))
                           .split(QLatin1Char('\n'))
                           .mid(0, mostAssignments);
    ZelPackage::Console console;
    QUndoStack stack;
    for (const QString &line : lines) {
        const auto assignment = ZelPackage::parseAssignment(line);
        auto command = assignment ? commandFor(*assignment, package, console) : nullptr;
        if (command)
            stack.push(command.release());
    }
    package.syncRecord();
    const QString fault =
        Observers::disagreement(package, [](const QString &, const QString &) { return false; });
    require(fault.isEmpty(), fault.toStdString());
    while (stack.canUndo())
        stack.undo();
    require(contentOf(package) == before, "undoing gives back the manifest");
    return 0;
}
