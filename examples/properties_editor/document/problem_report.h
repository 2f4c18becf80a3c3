#pragma once

#include <packagemodel/package_issues.h>

#include <QStringList>

namespace Editor {

class Document;

/// The options that all issues of the editor are found with: files are looked for beside the
/// manifest, and what comments of the package ignore is left out, as by `zel-package validate`.
Zel::PackageModel::IssueOptions issueOptions(const QString &fileName);

/// Issues of the document as lines that `zel-package validate` prints: with their places in the
/// file or, while there are unsaved changes, in the file as it would be saved.
QStringList reportLines(const Document &document, const QVector<Zel::PackageModel::Issue> &issues);

} // namespace Editor
