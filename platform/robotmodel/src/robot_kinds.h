#pragma once

#include <mel/model.h>

#include <QString>

namespace Mel {

/// The kind for a type and model, registered on first use.
Model::ROBOT_MODEL robotKind(const QString &type, const QString &model);

} // namespace Mel
