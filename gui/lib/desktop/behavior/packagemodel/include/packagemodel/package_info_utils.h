#pragma once

#include <packagemodel/package_issues.h>
#include <packagemodel/packagemodel_export.h>

#include <zel/robot_language.h>

#include <QMap>
#include <QString>
#include <QStringList>

#include <utility>
#include <vector>

namespace Zel {

class BehaviorInfoModel;
class PackageInfoModel;

namespace PackageModel {

/// The name in exactly this language; empty if there is none or the package is null.
PACKAGEMODEL_EXPORT QString nameFromLanguage(const PackageInfoModel *package,
                                             const RobotLanguage &language);
/// The description in exactly this language; empty if there is none or the package is null.
PACKAGEMODEL_EXPORT QString descriptionFromLanguage(const PackageInfoModel *package,
                                                    const RobotLanguage &language);
/// The name to show: in the language, or in the default language, or the UID. Empty for a null
/// package.
///
/// ```cpp
/// window.setWindowTitle(PackageModel::uiName(&package, english));
/// ```
PACKAGEMODEL_EXPORT QString uiName(const PackageInfoModel *package, const RobotLanguage &language);
/// The description to show: in the language, or in the default language, or empty.
PACKAGEMODEL_EXPORT QString uiDescription(const PackageInfoModel *package,
                                          const RobotLanguage &language);

/// Pairs of a behavior's path and the supported languages in which it lacks something.
using BehaviorsMissingLanguages = std::vector<std::pair<QString, RobotLanguages>>;

/// Runs all checks and fills the lists with messages in the language of the application. Returns
/// whether both are empty, so warnings alone return false too; also false for a null package.
///
/// All functions below clear their results first, list languages in the order of the package's
/// supported languages, and return whether they found nothing. In messages, "<" is written "&lt;"
/// but values of the package are not escaped: use Issue::richText() for rich-text widgets.
///
/// ```cpp
/// QStringList errors, warnings;
/// if (!PackageModel::validate(&package, errors, warnings))
///     showMessage((errors + warnings).join(u'\n'));
/// ```
PACKAGEMODEL_EXPORT bool validate(const PackageInfoModel *package, QStringList &errors,
                                  QStringList &warnings);
/// Runs the checks of the package itself, without its behaviors.
PACKAGEMODEL_EXPORT bool validateApplication(const PackageInfoModel *package, QStringList &errors,
                                             QStringList &warnings);
/// Runs the checks of the behaviors; the messages are keyed by behavior path.
PACKAGEMODEL_EXPORT bool validateBehaviors(const PackageInfoModel *package,
                                           QMap<QString, QStringList> &behaviorMessages);

/// Checks the UID: 1 to 50 lower-case ASCII letters, digits, "_" or "-", not only digits.
PACKAGEMODEL_EXPORT bool validatePackageUID(const PackageInfoModel *package, QStringList &errors);
/// Checks that there is a robot requirement, that each names a model, and that no maximum is less
/// than its minimum.
PACKAGEMODEL_EXPORT bool validateRobotRequirements(const PackageInfoModel *package,
                                                   QStringList &errors);
/// Checks that there is a Brio requirement, that each has a minimum, and that no maximum is less
/// than its minimum. The first requirement without a minimum ends the check.
PACKAGEMODEL_EXPORT bool validateBrioRequirements(const PackageInfoModel *package,
                                                  QStringList &errors);
/// Checks that there is a name in every supported language; the default language is reported
/// separately.
PACKAGEMODEL_EXPORT bool validateApplicationNames(const PackageInfoModel *package,
                                                  RobotLanguages &missingDefault,
                                                  RobotLanguages &missingOthers);
/// Checks that there is a description in every supported language.
PACKAGEMODEL_EXPORT bool validateApplicationDescriptions(const PackageInfoModel *package,
                                                         RobotLanguages &missing);
/// Runs validateTriggerSentences() for each behavior; `result` lists all behaviors, including those
/// without findings.
PACKAGEMODEL_EXPORT bool validateBehaviorTriggerSentences(const PackageInfoModel *package,
                                                          BehaviorsMissingLanguages &result);
/// Checks that a behavior with trigger sentences in any language has some in every supported one.
PACKAGEMODEL_EXPORT bool validateTriggerSentences(const PackageInfoModel *package,
                                                  const BehaviorInfoModel *behavior,
                                                  RobotLanguages &missing);

} // namespace PackageModel

/// Names of behaviors to show.
namespace BehaviorModel {

/// The name in exactly this language; empty if there is none or the behavior is null.
PACKAGEMODEL_EXPORT QString nameFromLocale(const BehaviorInfoModel *behavior,
                                           const RobotLanguage &language);
/// The name to show: in the language, or in the default language, or the path.
PACKAGEMODEL_EXPORT QString uiName(const BehaviorInfoModel *behavior,
                                   const RobotLanguage &language);

} // namespace BehaviorModel
} // namespace Zel
