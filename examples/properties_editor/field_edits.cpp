#include "field_edits.h"

#include <packagemodel/text_conversion.h>

#include <QCoreApplication>

#include <limits>

namespace Editor {

using Tano::FieldPath;
using Zel::PackageInfoModel;
using Zel::SoftwareVersion;
using Zel::PackageModel::Edit;
using Zel::PackageModel::FieldValue;

namespace {

bool isVersion(const PackageInfoModel *package, const FieldPath &path) {
    const auto value = Zel::PackageModel::value(package, path);
    return value && std::holds_alternative<SoftwareVersion>(*value);
}

} // namespace

QString fieldText(const PackageInfoModel *package, const FieldPath &path) {
    const auto value = Zel::PackageModel::value(package, path);
    return value ? Zel::PackageModel::printed(*value) : QString();
}

Edit setText(const PackageInfoModel *package, const FieldPath &path, const QString &text) {
    const FieldValue value = isVersion(package, path)
                                 ? FieldValue(Zel::SoftwareVersionUtils::fromString(text))
                                 : FieldValue(text);
    return {Edit::Action::Set, path, value};
}

QString textRefusal(const PackageInfoModel *package, const FieldPath &path, const QString &text) {
    if (isVersion(package, path) && !text.trimmed().isEmpty()) {
        bool isValid = false;
        Zel::SoftwareVersionUtils::fromString(text, &isValid);
        if (!isValid)
            return QCoreApplication::translate(
                       "Editor::TextField",
                       "“%1” is no version. A version is numbers with dots between them, such as "
                       "2.5.0.")
                .arg(text);
    }
    return Zel::PackageModel::refusal(package, setText(package, path, text));
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

} // namespace Editor
