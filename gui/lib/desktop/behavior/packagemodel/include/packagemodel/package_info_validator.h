#pragma once

#include <packagemodel/package_info_model.h>
#include <packagemodel/packagemodel_export.h>

#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>

#include <map>
#include <set>

namespace Zel {

/// Errors of the package itself, which make it unusable.
enum class PackageError {
    InvalidUID = 0,               ///< see PackageModel::validatePackageUID()
    MissingDefaultName = 1,       ///< no name in the default language, which is supported
    InvalidRobotRequirements = 2, ///< see PackageModel::validateRobotRequirements()
    InvalidBrioRequirements = 3,  ///< see PackageModel::validateBrioRequirements()
};

/// Missing texts of the package itself, which some users see replaced.
enum class PackageWarning {
    MissingNames = 0,        ///< in supported languages other than the default one
    MissingDescriptions = 1, ///< in supported languages
};

/// Errors of a behavior.
enum class BehaviorError {
    MissingTriggerSentences = 0, ///< see PackageModel::validateTriggerSentences()
};

/// Keeps the validity of a package up to date while it is edited.
///
/// Between activate() and deactivate(), it listens to the package and its behaviors and repeats the
/// one check that a change concerns. Each check announces its result, changed or not. The summaries
/// packageHasErrorsChanged() and packageHasWarningsChanged() are sent only when the set of errors
/// or warnings becomes empty or non-empty. PackageModel::validate() returns the messages.
///
/// ```cpp
/// PackageInfoValidator validator(&package);
/// QObject::connect(&validator, &PackageInfoValidator::packageHasErrorsChanged, publishAction,
///                  &QAction::setDisabled);
/// validator.activate();
/// ```
///
/// Two results differ from the messages on purpose: a missing name in the default language is an
/// error here, and errors of behaviors are not part of the summary.
///
/// An active validator hears single edits only, not loads. After a load, call deactivate() and
/// activate(), since the models of loaded behaviors are new and are not announced. After clear(),
/// an assignment, trimming or Language::setDefaultLanguage(), call validateAll().
///
/// The package is not owned. Once it is deleted, the validator is silent.
class PACKAGEMODEL_EXPORT PackageInfoValidator : public QObject {
    Q_OBJECT

public:
    /// A validator that is not active yet.
    explicit PackageInfoValidator(const PackageInfoModel *package, QObject *parent = nullptr);
    ~PackageInfoValidator() override;

    /// Starts listening and checks everything. A second call without deactivate() connects again,
    /// so that each change is checked twice.
    void activate();
    /// Stops listening, and drops the package's errors and warnings without notification. Those of
    /// behaviors are kept.
    void deactivate();
    /// Whether the validator is listening.
    bool isActive() const { return m_active; }

    /// Runs every check.
    void validateAll();

    /// The behaviors with errors, in ascending order of their addresses. A behavior that had errors
    /// when it was removed is still listed: look for it in the package before using the pointer. An
    /// added behavior is checked when it changes or with validateAll().
    QList<const BehaviorInfoModel *> behaviorInErrors() const;

    /// @{
    /// Adds a kind of error or warning, or removes it.
    void setPackageErrors(PackageError error, bool set);
    void setPackageWarnings(PackageWarning warning, bool set);
    /// @}

    /// @{
    /// The errors or warnings of the package itself, as of the last checks. behaviorInErrors()
    /// lists the behaviors with errors.
    const std::set<PackageError> &packageErrors() const { return m_packageErrors; }
    const std::set<PackageWarning> &packageWarnings() const { return m_packageWarnings; }
    bool hasErrors() const { return !m_packageErrors.empty(); }
    bool hasWarnings() const { return !m_packageWarnings.empty(); }
    /// @}

Q_SIGNALS:
    /// @{
    /// The result of a check, sent whenever the check has run. Languages are in the order of the
    /// package.
    void applicationUIDStateChanged(bool validState) const;
    void robotRequirementsStateChanged(bool validState) const;
    void brioRequirementsStateChanged(bool validState) const;
    void applicationNamesStateChanged(const RobotLanguages &errorMissingLangs,
                                      const RobotLanguages &warningMissingLangs) const;
    void applicationDescriptionsStateChanged(const RobotLanguages &missingLangs) const;
    void triggerSentencesStateChanged(const BehaviorInfoModel *bim,
                                      const RobotLanguages &missingLangs) const;
    /// @}
    /// @{
    /// The package itself has its first error or warning, or no longer has any.
    void packageHasErrorsChanged(bool value);
    void packageHasWarningsChanged(bool value);
    /// @}

public Q_SLOTS:
    /// @{
    /// Runs one check and announces its result.
    void validateUID();
    void validateRobotRequirements();
    void validateBrioRequirements();
    void validateApplicationNames();
    void validateApplicationDescriptions();
    void validateTriggerSentences(const BehaviorInfoModel *behaviorToShow);
    void validateBehaviorTriggerSentences();
    /// @}

private Q_SLOTS:
    void onBehaviorAdded(const BehaviorInfoModel *addedBehavior);
    void onBehaviorRemoved(const BehaviorInfoModel *removedBehavior);
    void onBehaviorTriggerChanged();

private:
    void listenTo(const BehaviorInfoModel *behavior);

    QPointer<const PackageInfoModel> m_package;
    QHash<const BehaviorInfoModel *, QPointer<const BehaviorInfoModel>> m_heard;
    std::set<PackageError> m_packageErrors;
    std::set<PackageWarning> m_packageWarnings;
    std::map<const BehaviorInfoModel *, std::set<BehaviorError>> m_behaviorErrors;
    bool m_active = false;
};

} // namespace Zel
