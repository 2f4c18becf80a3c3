#pragma once

#include <packagemodel/packagemodel_export.h>

#include <zel/robot_language.h>

#include <QString>

namespace Zel::PackageModel {

/// The name of a language in the language of the application; its code if it has no name.
PACKAGEMODEL_EXPORT QString languageName(const RobotLanguage &language);

} // namespace Zel::PackageModel
