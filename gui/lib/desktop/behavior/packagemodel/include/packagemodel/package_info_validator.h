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

/// What can be wrong with the package itself so that it cannot be used.
enum class PackageError {
    InvalidUID = 0,
    MissingDefaultName = 1, ///< no name in the default language, which is supported
    InvalidRobotRequirements = 2,
    InvalidBrioRequirements = 3,
};

/// What is missing in the package so that some users see a stand-in.
enum class PackageWarning {
    MissingNames = 0, ///< in supported languages other than the default one
    MissingDescriptions = 1,
};

/// What can be wrong with a behavior.
enum class BehaviorError {
    MissingTriggerSentences = 0,
};

/// Keeps the validity of a package up to date while it is edited.
///
/// Between activate() and deactivate() it listens to the package and its behaviors and re-runs the
/// one check that a change concerns. Each run announces its outcome, changed or not; the two
/// summaries, packageHasErrorsChanged() and packageHasWarningsChanged(), are sent only when the set
/// of errors or warnings becomes empty or ceases to be. PackageModel::validate() has the sentences.
///
///     PackageInfoValidator validator(&package);
///     connect(&validator, &PackageInfoValidator::packageHasErrorsChanged, saveAction,
///             &QAction::setDisabled);
///     validator.activate();
///
/// Two things differ from the messages on purpose: a missing name in the default language is an
/// error here, and the errors of behaviors are not part of the summary.
///
/// The validator hears single edits only. After a load, clear(), an assignment or trimming, and
/// after Language::setDefaultLanguage(), call validateAll(), and deactivate() and activate() again
/// if the package was loaded: the models of loaded behaviors are new and come without notification.
///
/// The package is not owned. Once it is gone, the validator stays silent.
class PACKAGEMODEL_EXPORT PackageInfoValidator : public QObject {
    Q_OBJECT

public:
    /// Checks nothing, and listens to nothing, until activate().
    explicit PackageInfoValidator(const PackageInfoModel *package, QObject *parent = nullptr);
    ~PackageInfoValidator() override;

    /// Starts to listen, and checks everything. A second call without deactivate() in between
    /// connects once more, so that each change is checked twice.
    void activate();
    /// Stops listening, and forgets the package's errors and warnings without notification; those
    /// of the behaviors are kept.
    void deactivate();
    bool isActive() const { return m_active; }

    /// Runs every check.
    void validateAll();

    /// The behaviors that have errors, in ascending order of their addresses. A behavior that was
    /// removed while it had errors goes on being listed: look for it in the package before using
    /// it. A behavior that was added is checked at its next change or at validateAll().
    QList<const BehaviorInfoModel *> behaviorInErrors() const;

    /// Adds a kind of error to those present, or takes it out.
    void setPackageErrors(PackageError error, bool set);
    void setPackageWarnings(PackageWarning warning, bool set);

    /// The kinds of errors of the package itself at the last checks; those of behaviors are in
    /// behaviorInErrors().
    const std::set<PackageError> &packageErrors() const { return m_packageErrors; }
    const std::set<PackageWarning> &packageWarnings() const { return m_packageWarnings; }
    bool hasErrors() const { return !m_packageErrors.empty(); }
    bool hasWarnings() const { return !m_packageWarnings.empty(); }

Q_SIGNALS:
    void applicationUIDStateChanged(bool validState) const;
    void robotRequirementsStateChanged(bool validState) const;
    void brioRequirementsStateChanged(bool validState) const;
    void applicationNamesStateChanged(const RobotLanguages &errorMissingLangs,
                                      const RobotLanguages &warningMissingLangs) const;
    void applicationDescriptionsStateChanged(const RobotLanguages &missingLangs) const;
    void triggerSentencesStateChanged(const BehaviorInfoModel *bim,
                                      const RobotLanguages &missingLangs) const;
    void packageHasErrorsChanged(bool value);
    void packageHasWarningsChanged(bool value);

public Q_SLOTS:
    void validateUID();
    void validateRobotRequirements();
    void validateBrioRequirements();
    void validateApplicationNames();
    void validateApplicationDescriptions();
    void validateTriggerSentences(const BehaviorInfoModel *behaviorToShow);
    void validateBehaviorTriggerSentences();

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
