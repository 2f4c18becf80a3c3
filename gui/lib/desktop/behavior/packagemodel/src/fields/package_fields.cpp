#include <packagemodel/package_fields.h>

#include "field_tables.h"
#include "package_replacement.h"

namespace Zel::PackageModel {
namespace {

// Rows take a mutable package, but listing and following fields does not change it.
PackageInfoModel &unconst(const PackageInfoModel &package) {
    return const_cast<PackageInfoModel &>(package);
}

} // namespace

FieldTarget targetOf(PackageInfoModel &package, const Tano::FieldPath &path) {
    if (!path.isEmpty())
        return followIn(packageFields(), package, {path, 0});
    package.syncRecord(); // insertions into a behavior's lists are not synchronized yet
    const auto set = [living = QPointer<PackageInfoModel>(&package)](const FieldValue &value) {
        if (living)
            replacePackage(*living, std::get<Tano::PackageInfo>(value));
    };
    return {FieldCell{FieldKind::Package, FieldValue(package.packageInfo()), set, {}}};
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

struct PACKAGEMODEL_NO_EXPORT FieldWalk::Data {
    PackageInfoModel *package; // may be null
    std::size_t row = 0;
    FieldPortions portions = {}; // of the previous row
    std::size_t portion = 0;
};

FieldWalk::FieldWalk(const PackageInfoModel *package)
    : m_data(new Data{package ? &unconst(*package) : nullptr}) {
}

FieldWalk::~FieldWalk() = default;

bool FieldWalk::isAtEnd() const {
    const bool hasRows = m_data->package && m_data->row < packageFields().size();
    return !hasRows && m_data->portion == m_data->portions.size();
}

QVector<Field> FieldWalk::next() {
    QVector<Field> found;
    if (isAtEnd())
        return found;
    if (m_data->portion == m_data->portions.size()) {
        m_data->portions.clear();
        m_data->portion = 0;
        packageFields()[m_data->row++]->divide(*m_data->package, {}, m_data->portions);
    }
    if (m_data->portion < m_data->portions.size())
        m_data->portions[m_data->portion++](found);
    return found;
}

QVector<Field> plainFields(const PackageInfoModel *package) {
    QVector<Field> plain;
    for (const auto &row : packageFields()) {
        if (package && row->isPlain())
            row->list(unconst(*package), {}, plain);
    }
    return plain;
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

QVector<FieldValue> entries(const PackageInfoModel *package, const Tano::FieldPath &path) {
    QVector<FieldValue> values;
    if (!package)
        return values;
    const FieldTarget target = targetOf(unconst(*package), path);
    for (int i = 0; target.list && target.item < 0 && i < target.list->size(); ++i)
        values.append(target.list->at(i));
    return values;
}

std::optional<FieldForm> formOf(const Tano::FieldPath &path, QString *error) {
    QString reason;
    std::optional<FieldForm> form;
    if (path.isEmpty())
        form = FieldForm{FieldKind::Package, false, {}, {}, false};
    else
        form = formIn(packageFields(), {path, 0}, reason);
    if (error)
        *error = reason;
    return form;
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

std::optional<FieldValue> parsedValue(FieldKind kind, const QString &text, QString *error) {
    QString reason;
    std::optional<FieldValue> value;
    if (kind == FieldKind::Text) {
        value = text;
    } else if (kind == FieldKind::Flag) {
        const bool isTrue = text == QLatin1String("true");
        if (isTrue || text == QLatin1String("false"))
            value = isTrue;
        else
            reason =
                QCoreApplication::translate("Zel::PackageModel", "'%1' is neither true nor false.");
    } else if (kind == FieldKind::Version) {
        bool isVersion = true;
        const SoftwareVersion version = SoftwareVersionUtils::fromString(text, &isVersion);
        if (isVersion || text.isEmpty())
            value = version;
        else
            reason = QCoreApplication::translate(
                "Zel::PackageModel",
                "'%1' is not a version, that is, numbers separated by dots as in 2.1.");
    } else {
        reason = QCoreApplication::translate(
            "Zel::PackageModel", "'%1' is not an entry; set the fields of the entry instead.");
    }
    if (error)
        *error = reason.isEmpty() ? QString() : reason.arg(text);
    return value;
}

} // namespace Zel::PackageModel
