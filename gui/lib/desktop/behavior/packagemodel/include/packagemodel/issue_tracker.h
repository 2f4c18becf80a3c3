#pragma once

#include <packagemodel/package_issues.h>

#include <memory>

namespace Zel::PackageModel {

/// Keeps the issues() of a package up to date while it is edited. An update checks the package
/// itself and edited behaviors again; for other behaviors and their issues, it makes only a few
/// comparisons each.
///
/// ```cpp
/// PackageModel::IssueTracker tracker(&package);
/// QObject::connect(&stack, &QUndoStack::indexChanged, &window, [&] {
///     if (tracker.update())
///         showIssues(tracker.issues());
/// });
/// ```
///
/// The issues have no fixes; see fixes(). After the package is deleted, the next update() removes
/// all issues. Texts are in the language of the application at the time of the check.
class PACKAGEMODEL_EXPORT IssueTracker {
public:
    /// Checks the whole package. The options apply to updates too; pointers in them must be valid
    /// as long as the tracker exists. `withFixes` has no effect.
    ///
    /// `filterFor` must depend only on comments and where they are, as notIgnored() does. It is
    /// called again when that may have changed: after edits of behaviors with comments that contain
    /// `zel-package:`, of the order and paths of behaviors, and of the package itself except for
    /// the wording of its texts.
    explicit IssueTracker(const PackageInfoModel *package, const IssueOptions &options = {});
    ~IssueTracker();
    IssueTracker(const IssueTracker &) = delete;
    IssueTracker &operator=(const IssueTracker &) = delete;

    /// Checks the package itself, and behaviors that were changed, added or moved since the last
    /// call. Call it after a complete edit. Returns whether the issues have changed.
    bool update();

    /// The issues as of the last update().
    const QVector<Issue> &issues() const;

    /// The fixes of one of issues(), the most likely first. Empty if a later edit has removed the
    /// issue.
    QVector<Fix> fixes(const Issue &issue) const;

private:
    struct Data;
    std::unique_ptr<Data> m_data;
};

} // namespace Zel::PackageModel
