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

Tano::FieldPath itemPath(const FieldTarget &list, int index) {
    Tano::FieldPath path = list.listPath;
    list.list->select(path, index);
    return path;
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

Tano::FieldPath itemPath(const PackageInfoModel *package, const Tano::FieldPath &list, int index) {
    if (!package)
        return {};
    const FieldTarget target = targetOf(unconst(*package), list);
    const bool isItem = target.list && target.item < 0 && index >= 0 && index < target.list->size();
    return isItem ? itemPath(target, index) : Tano::FieldPath();
}

QString label(const Tano::FieldPath &path) {
    const QString words = path.isEmpty() ? QString()
                                         : describeIn(packageFields(), {path, 0},
                                                      [](const QString &label) { return label; });
    return words.isEmpty() ? fromUtf8(path.toString()) : words;
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
