#include <packagemodel/package_fields.h>

#include "field_tables.h"

namespace Zel::PackageModel {
namespace {

// The rows list and follow fields of a package that is only read here.
PackageInfoModel &unconst(const PackageInfoModel &package) {
    return const_cast<PackageInfoModel &>(package);
}

} // namespace

FieldTarget targetOf(PackageInfoModel &package, const Tano::FieldPath &path) {
    return path.isEmpty() ? FieldTarget() : followIn(packageFields(), package, {path, 0});
}

QVector<Field> fields(const PackageInfoModel *package) {
    QVector<Field> all;
    if (package)
        listAll(packageFields(), unconst(*package), {}, all);
    return all;
}

std::optional<FieldValue> value(const PackageInfoModel *package, const Tano::FieldPath &path) {
    if (!package)
        return {};
    const FieldTarget target = targetOf(unconst(*package), path);
    if (target.cell)
        return target.cell->value;
    if (target.item >= 0)
        return target.list->at(target.item);
    return {};
}

QString printed(const FieldValue &value) {
    if (const auto *text = std::get_if<QString>(&value))
        return *text;
    if (const auto *flag = std::get_if<bool>(&value))
        return *flag ? QStringLiteral("true") : QStringLiteral("false");
    if (const auto *version = std::get_if<SoftwareVersion>(&value))
        return SoftwareVersionUtils::toString(*version);
    return {};
}

} // namespace Zel::PackageModel
