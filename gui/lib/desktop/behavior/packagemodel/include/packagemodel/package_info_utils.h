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

// Names to show. The texts of a null package are empty.

/// The name in that very language; empty when there is none.
PACKAGEMODEL_EXPORT QString nameFromLanguage(const PackageInfoModel *package,
                                             const RobotLanguage &language);
/// The description in that very language; empty when there is none.
PACKAGEMODEL_EXPORT QString descriptionFromLanguage(const PackageInfoModel *package,
                                                    const RobotLanguage &language);
/// The name in the language, else in the default language, else the UID.
PACKAGEMODEL_EXPORT QString uiName(const PackageInfoModel *package, const RobotLanguage &language);
/// The description in the language, else in the default language, else nothing.
PACKAGEMODEL_EXPORT QString uiDescription(const PackageInfoModel *package,
                                          const RobotLanguage &language);

// Checks. Each clears the containers that it is given, fills them, and returns whether it found
// nothing. Messages are in the language of the application; their languages have the order of the
// package's supported languages. "<" of a message's wording is "&lt;", but the values in it are not
// escaped: for a rich-text widget, use Issue::richText(). Nothing is found in a null package, but
// false is returned.

/// For each behavior, by its path, the supported languages in which it lacks something.
using BehaviorsMissingLanguages = std::vector<std::pair<QString, RobotLanguages>>;

/// All checks. A package with warnings and no errors gives false too.
PACKAGEMODEL_EXPORT bool validate(const PackageInfoModel *package, QStringList &errors,
                                  QStringList &warnings);
/// The checks of the package itself, without its behaviors.
PACKAGEMODEL_EXPORT bool validateApplication(const PackageInfoModel *package, QStringList &errors,
                                             QStringList &warnings);
/// The checks of the behaviors, with the messages by behavior path.
PACKAGEMODEL_EXPORT bool validateBehaviors(const PackageInfoModel *package,
                                           QMap<QString, QStringList> &behaviorMessages);

/// A UID has 1 to 50 characters, each a lower-case ASCII letter, a digit, "_" or "-", and not
/// digits alone.
PACKAGEMODEL_EXPORT bool validatePackageUID(const PackageInfoModel *package, QStringList &errors);
/// There is a robot requirement; each names a model, and no maximum is less than its minimum.
PACKAGEMODEL_EXPORT bool validateRobotRequirements(const PackageInfoModel *package,
                                                   QStringList &errors);
/// There is a Brio requirement; each has a minimum, and no maximum is less than its minimum. The
/// first one without a minimum ends the check.
PACKAGEMODEL_EXPORT bool validateBrioRequirements(const PackageInfoModel *package,
                                                  QStringList &errors);
/// There is a name in every supported language; the default language is told apart.
PACKAGEMODEL_EXPORT bool validateApplicationNames(const PackageInfoModel *package,
                                                  RobotLanguages &missingDefault,
                                                  RobotLanguages &missingOthers);
/// There is a description in every supported language.
PACKAGEMODEL_EXPORT bool validateApplicationDescriptions(const PackageInfoModel *package,
                                                         RobotLanguages &missing);
/// Each behavior passes validateTriggerSentences(); lists them all, also those that pass.
PACKAGEMODEL_EXPORT bool validateBehaviorTriggerSentences(const PackageInfoModel *package,
                                                          BehaviorsMissingLanguages &result);
/// A behavior that has a trigger sentence in any language has some in every supported one.
PACKAGEMODEL_EXPORT bool validateTriggerSentences(const PackageInfoModel *package,
                                                  const BehaviorInfoModel *behavior,
                                                  RobotLanguages &missing);

} // namespace PackageModel

namespace BehaviorModel {

/// The name in that very language; empty when there is none.
PACKAGEMODEL_EXPORT QString nameFromLocale(const BehaviorInfoModel *behavior,
                                           const RobotLanguage &language);
/// The name in the language, else in the default language, else the path.
PACKAGEMODEL_EXPORT QString uiName(const BehaviorInfoModel *behavior,
                                   const RobotLanguage &language);

} // namespace BehaviorModel
} // namespace Zel
