#pragma once

#include <packagemodel/package_edits.h>

#include <functional>

// Changes in words for people, in the language of the application. Values are plain text and may
// hold any character, so that a terminal or rich text needs them escaped.

namespace Zel::PackageModel {

/// Passes on each edit of a package as one sentence without a period, such as
/// `Name of “greet” in French changed from "Salut" to "Bonjour"`, and applies it.
///
/// ```
/// PackageInfoModel scratch(record);
/// visitChanges(&scratch, edits(&opened, &edited), [&](const QString &line) { list += line; });
/// ```
PACKAGEMODEL_EXPORT void visitChanges(PackageInfoModel *package, const Edits &edits,
                                      const std::function<void(const QString &line)> &visit);

/// A text in quotation marks, cut if it is long.
PACKAGEMODEL_EXPORT QString excerpt(const QString &text);

/// Two texts like that, each cut so that the first difference between them shows.
struct Excerpts {
    QString before;
    QString after;
};
PACKAGEMODEL_EXPORT Excerpts excerpts(const QString &before, const QString &after);

} // namespace Zel::PackageModel
