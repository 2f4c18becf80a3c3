#include <packagemodel/package_info_validator.h>

#include <packagemodel/package_info_utils.h>

#include "meta_types.h"

#include <algorithm>
#include <array>
#include <utility>

namespace Zel {
namespace {

// Inserts or removes a kind; returns whether the set became empty or non-empty.
template<typename Kind>
bool turns(std::set<Kind> &kinds, Kind kind, bool set) {
    const bool wasEmpty = kinds.empty();
    if (set)
        kinds.insert(kind);
    else
        kinds.erase(kind);
    return kinds.empty() != wasEmpty;
}

// Runs a check of the package and announces the result.
void runCheck(PackageInfoValidator *validator, const PackageInfoModel *package,
              bool (*check)(const PackageInfoModel *, QStringList &), PackageError error,
              void (PackageInfoValidator::*announce)(bool) const) {
    if (!package)
        return;
    const QPointer<PackageInfoValidator> living(validator);
    QStringList messages;
    const bool isValid = check(package, messages);
    validator->setPackageErrors(error, !isValid);
    if (living)
        Q_EMIT(validator->*announce)(isValid);
}

bool isChild(const PackageInfoModel &package, const BehaviorInfoModel *behavior) {
    const auto behaviors = package.behaviors();
    return std::find(behaviors.begin(), behaviors.end(), behavior) != behaviors.end();
}

} // namespace

PackageInfoValidator::PackageInfoValidator(const PackageInfoModel *package, QObject *parent)
    : QObject(parent)
    , m_package(package) {
    registerMetaTypes();
}

// Receivers of destroyed() may still edit the package.
PackageInfoValidator::~PackageInfoValidator() {
    deactivate();
}

void PackageInfoValidator::activate() {
    m_active = true;
    if (!m_package)
        return;

    using Package = PackageInfoModel;
    using Self = PackageInfoValidator;
    const auto listen = [this](auto slot, auto... notifications) {
        (connect(m_package, notifications, this, slot), ...);
    };
    listen(&Self::validateUID, &Package::uidUpdated);
    listen(&Self::validateRobotRequirements, &Package::robotRequirementAdded,
           &Package::robotRequirementRemoved, &Package::robotRequirementUpdated);
    listen(&Self::validateBrioRequirements, &Package::brioRequirementAdded,
           &Package::brioRequirementRemoved, &Package::brioRequirementUpdated);
    listen(&Self::validateApplicationNames, &Package::namesCleared, &Package::nameUpdated,
           &Package::languageAdded, &Package::languageRemoved);
    listen(&Self::validateApplicationDescriptions, &Package::languageAdded,
           &Package::languageRemoved, &Package::descriptionUpdated);
    listen(&Self::onBehaviorAdded, &Package::behaviorAdded);
    listen(&Self::onBehaviorRemoved, &Package::behaviorRemoved);

    const auto behaviors = m_package->behaviors();
    for (const BehaviorInfoModel *behavior : behaviors)
        listenTo(behavior);
    validateAll();
}

void PackageInfoValidator::deactivate() {
    m_active = false;
    if (m_package)
        disconnect(m_package, nullptr, this, nullptr);
    for (const auto &behavior : std::exchange(m_heard, {})) {
        if (behavior)
            disconnect(behavior, nullptr, this, nullptr);
    }
    m_packageErrors.clear();
    m_packageWarnings.clear();
}

void PackageInfoValidator::validateAll() {
    using Check = void (PackageInfoValidator::*)();
    constexpr std::array<Check, 6> checks{&PackageInfoValidator::validateUID,
                                          &PackageInfoValidator::validateRobotRequirements,
                                          &PackageInfoValidator::validateBrioRequirements,
                                          &PackageInfoValidator::validateApplicationNames,
                                          &PackageInfoValidator::validateApplicationDescriptions,
                                          &PackageInfoValidator::validateBehaviorTriggerSentences};
    const QPointer<PackageInfoValidator> living(this);
    for (const Check check : checks) {
        if (living)
            (this->*check)();
    }
}

QList<const BehaviorInfoModel *> PackageInfoValidator::behaviorInErrors() const {
    QList<const BehaviorInfoModel *> behaviors;
    for (const auto &[behavior, errors] : m_behaviorErrors) {
        if (!errors.empty())
            behaviors.append(behavior);
    }
    return behaviors;
}

void PackageInfoValidator::setPackageErrors(PackageError error, bool set) {
    if (m_package && turns(m_packageErrors, error, set))
        Q_EMIT packageHasErrorsChanged(!m_packageErrors.empty());
}

void PackageInfoValidator::setPackageWarnings(PackageWarning warning, bool set) {
    if (m_package && turns(m_packageWarnings, warning, set))
        Q_EMIT packageHasWarningsChanged(!m_packageWarnings.empty());
}

void PackageInfoValidator::validateUID() {
    runCheck(this, m_package, PackageModel::validatePackageUID, PackageError::InvalidUID,
             &PackageInfoValidator::applicationUIDStateChanged);
}

void PackageInfoValidator::validateRobotRequirements() {
    runCheck(this, m_package, PackageModel::validateRobotRequirements,
             PackageError::InvalidRobotRequirements,
             &PackageInfoValidator::robotRequirementsStateChanged);
}

void PackageInfoValidator::validateBrioRequirements() {
    runCheck(this, m_package, PackageModel::validateBrioRequirements,
             PackageError::InvalidBrioRequirements,
             &PackageInfoValidator::brioRequirementsStateChanged);
}

void PackageInfoValidator::validateApplicationNames() {
    if (!m_package)
        return;
    const QPointer<PackageInfoValidator> living(this);
    RobotLanguages missingDefault;
    RobotLanguages missingOthers;
    PackageModel::validateApplicationNames(m_package, missingDefault, missingOthers);
    setPackageErrors(PackageError::MissingDefaultName, !missingDefault.empty());
    if (living)
        setPackageWarnings(PackageWarning::MissingNames, !missingOthers.empty());
    if (living)
        Q_EMIT applicationNamesStateChanged(missingDefault, missingOthers);
}

void PackageInfoValidator::validateApplicationDescriptions() {
    if (!m_package)
        return;
    const QPointer<PackageInfoValidator> living(this);
    RobotLanguages missing;
    const bool isValid = PackageModel::validateApplicationDescriptions(m_package, missing);
    setPackageWarnings(PackageWarning::MissingDescriptions, !isValid);
    if (living)
        Q_EMIT applicationDescriptionsStateChanged(missing);
}

void PackageInfoValidator::validateTriggerSentences(const BehaviorInfoModel *behaviorToShow) {
    if (!behaviorToShow || !m_package)
        return;
    RobotLanguages missing;
    const bool isValid = PackageModel::validateTriggerSentences(m_package, behaviorToShow, missing);
    turns(m_behaviorErrors[behaviorToShow], BehaviorError::MissingTriggerSentences, !isValid);
    Q_EMIT triggerSentencesStateChanged(behaviorToShow, missing);
}

void PackageInfoValidator::validateBehaviorTriggerSentences() {
    if (!m_package)
        return;
    // Receivers may remove behaviors, and delete the validator.
    const QPointer<PackageInfoValidator> living(this);
    const auto behaviors = m_package->behaviors();
    std::vector<QPointer<const BehaviorInfoModel>> guarded(behaviors.begin(), behaviors.end());
    for (const auto &behavior : guarded) {
        if (living)
            validateTriggerSentences(behavior);
    }
}

void PackageInfoValidator::onBehaviorAdded(const BehaviorInfoModel *addedBehavior) {
    // An earlier receiver may have deleted it.
    if (m_package && isChild(*m_package, addedBehavior))
        listenTo(addedBehavior);
}

void PackageInfoValidator::listenTo(const BehaviorInfoModel *behavior) {
    using Behavior = BehaviorInfoModel;
    const auto listen = [&](auto... notifications) {
        (connect(behavior, notifications, this, &PackageInfoValidator::onBehaviorTriggerChanged),
         ...);
    };
    listen(&Behavior::userRequestableChanged, &Behavior::triggerSentenceAdded,
           &Behavior::triggerSentenceInserted, &Behavior::triggerSentenceRemoved,
           &Behavior::triggerSentenceUpdated);
    m_heard.insert(behavior, behavior);
}

void PackageInfoValidator::onBehaviorRemoved(const BehaviorInfoModel *removedBehavior) {
    // An earlier receiver may have deleted it.
    if (const auto behavior = m_heard.take(removedBehavior))
        disconnect(behavior, nullptr, this, nullptr);
}

void PackageInfoValidator::onBehaviorTriggerChanged() {
    validateTriggerSentences(qobject_cast<const BehaviorInfoModel *>(sender()));
}

} // namespace Zel
