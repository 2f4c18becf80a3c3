#pragma once

#include <packagemodel/package_issues.h>

#include <memory>

namespace Zel::PackageModel {

/// The issues of a package that is being edited. They are the same as those of issues(), but an
/// update after an edit costs what the edited behaviors cost, however many others there are.
///
/// ```
/// PackageModel::IssueTracker tracker(&package);
/// connect(&undoStack, &QUndoStack::indexChanged, this, [&] {
///     if (tracker.update())
///         list->show(tracker.issues());
/// });
/// ```
///
/// The issues have no fixes; fixes() makes those of one. If the package is deleted, there are no
/// issues from the next update() on. The texts are in the language that the application had when
/// they were made.
class PACKAGEMODEL_EXPORT IssueTracker {
public:
    /// Checks the whole package. The options stay in force for updates; what they point to has to
    /// live as long as the tracker, and their `withFixes` has no effect.
    explicit IssueTracker(const PackageInfoModel *package, const IssueOptions &options = {});
    ~IssueTracker();
    IssueTracker(const IssueTracker &) = delete;
    IssueTracker &operator=(const IssueTracker &) = delete;

    /// Checks the package itself, and the behaviors that were changed, added or moved since the
    /// last call. Call it when an edit is complete. Returns whether the issues have changed.
    bool update();

    const QVector<Issue> &issues() const;

    /// The fixes of one of issues(), the most likely first. None if the package has changed since
    /// so that the issue is gone.
    QVector<Fix> fixes(const Issue &issue) const;

private:
    struct Data;
    std::unique_ptr<Data> m_data;
};

} // namespace Zel::PackageModel
