#pragma once

#include <mel/model.h>

#include <QString>

namespace Mel {

/// The kind of that type and model, which gets its value here where it has none yet.
Model::ROBOT_MODEL robotKind(const QString &type, const QString &model);

} // namespace Mel
