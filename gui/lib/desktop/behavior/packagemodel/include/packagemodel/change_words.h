#pragma once

#include <packagemodel/package_edits.h>

#include <functional>

/// @file
/// Describes changes in the language of the application. Values are plain text with any characters:
/// escape them for a terminal or rich text.

namespace Zel::PackageModel {

/// Applies each edit to the package after calling `visit` with its description: a sentence without
/// a period, such as `Name of “greet” in French changed from "Salut" to "Bonjour"`.
///
/// ```cpp
/// PackageInfoModel scratch(opened);
/// visitChanges(&scratch, edits(&scratch, &edited), [&](const QString &line) { list += line; });
/// ```
PACKAGEMODEL_EXPORT void visitChanges(PackageInfoModel *package, const Edits &edits,
                                      const std::function<void(const QString &line)> &visit);

/// A text in quotation marks, cut if it is long.
PACKAGEMODEL_EXPORT QString excerpt(const QString &text);

/// Two texts in quotation marks, each cut so that it shows the first difference.
struct Excerpts {
    QString before; ///< of the first text
    QString after;  ///< of the second text
};
/// Quotes and cuts two texts that differ.
PACKAGEMODEL_EXPORT Excerpts excerpts(const QString &before, const QString &after);

} // namespace Zel::PackageModel
