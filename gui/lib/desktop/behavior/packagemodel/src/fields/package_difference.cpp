#include <packagemodel/package_difference.h>

#include "field_tables.h"

#include <memory>

namespace Zel::PackageModel {
namespace {

// The rows do not change the packages that they compare.
PackageInfoModel &readable(const PackageInfoModel &package) {
    return const_cast<PackageInfoModel &>(package);
}

} // namespace

Edits edits(const PackageInfoModel *from, const PackageInfoModel *to) {
    Edits all;
    if (!from || !to)
        return all;
    std::unique_ptr<PackageInfoModel> changed;
    PackageInfoModel *current = &readable(*from);
    for (const auto &row : packageFields()) {
        const auto before = all.size();
        row->compare(*current, readable(*to), {}, all);
        if (!row->changesOthers() || all.size() == before)
            continue;
        changed = std::make_unique<PackageInfoModel>(*current);
        apply(changed.get(), all.mid(before));
        current = changed.get();
    }
    return all;
}

} // namespace Zel::PackageModel
