#include "field_edits.h"

#include <packagemodel/text_conversion.h>

#include <limits>

namespace Editor {

using Tano::FieldPath;
using Zel::PackageInfoModel;
using Zel::PackageModel::Edit;
using Zel::PackageModel::FieldValue;

namespace {

std::optional<FieldValue> valueOf(const FieldPath &path, const QString &text, QString &error) {
    const auto form = Zel::PackageModel::formOf(path, &error);
    return form ? Zel::PackageModel::parsedValue(form->kind, text, &error) : std::nullopt;
}

} // namespace

QString fieldText(const PackageInfoModel *package, const FieldPath &path) {
    const auto value = Zel::PackageModel::value(package, path);
    return value ? Zel::PackageModel::printed(*value) : QString();
}

Edit setText(const FieldPath &path, const QString &text) {
    QString error;
    return {Edit::Action::Set, path, valueOf(path, text, error)};
}

Edit typedEdit(const PackageInfoModel *package, const FieldPath &path, const QString &text) {
    const Edit edit = setText(path, text);
    const int index = itemIndex(path);
    const FieldPath list = path.parent();
    const auto form = Zel::PackageModel::formOf(list);
    const bool isItem = index >= 0 && form && form->isList && edit.value;
    if (!isItem || Zel::PackageModel::entries(package, list).size() != index)
        return edit;
    return {Edit::Action::Insert, list, edit.value, index};
}

QString textRefusal(const PackageInfoModel *package, const FieldPath &path, const QString &text) {
    QString error;
    const auto value = valueOf(path, text, error);
    return value ? Zel::PackageModel::refusal(package, typedEdit(package, path, text)) : error;
}

Edit appended(const FieldPath &list, const FieldValue &entry) {
    return {Edit::Action::Insert, list, entry, std::numeric_limits<int>::max()};
}

Edit removed(const PackageInfoModel *package, const FieldPath &list, int index) {
    return {Edit::Action::Remove, Zel::PackageModel::itemPath(package, list, index)};
}

QString fieldName(const FieldPath &path, std::size_t step) {
    const auto &steps = path.steps();
    return step < steps.size() ? Zel::fromUtf8(steps[step].field) : QString();
}

QString fieldKey(const FieldPath &path, std::size_t step) {
    const auto &steps = path.steps();
    const bool hasKey = step < steps.size() && !steps[step].selectors.empty();
    return hasKey ? Zel::fromUtf8(steps[step].selectors.front().text) : QString();
}

int itemIndex(const FieldPath &path) {
    if (path.isEmpty() || path.steps().back().selectors.empty())
        return -1;
    return path.steps().back().selectors.back().toIndex().value_or(-1);
}

} // namespace Editor
