#include <packagemodel/package_edits.h>

#include <packagemodel/package_info_model.h>

#include <algorithm>

namespace Zel::PackageModel {

Edits languageRemoval(const PackageInfoModel *package, const QString &languageCode) {
    Edits edits;
    const std::string code = toUtf8(languageCode);
    const auto isIn = [&code](const Tano::FieldPath &path) {
        const auto &selectors = path.steps().back().selectors;
        const auto form = formOf(path);
        return form && form->selectors.startsWith(QLatin1String("[CODE]")) &&
               selectors.front().text == code;
    };
    for (const Field &field : fields(package)) {
        if (isIn(field.path))
            edits.append({Edit::Action::Remove, field.path});
    }
    // Items go from the last to the first, and languages after what depends on them.
    std::reverse(edits.begin(), edits.end());
    return edits;
}

} // namespace Zel::PackageModel
