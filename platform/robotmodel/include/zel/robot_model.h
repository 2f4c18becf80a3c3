#pragma once

#include <mel/model.h>
#include <zel/zel_robotmodel_export.h>

#include <QFileInfo>

#include <memory>

/// Reads descriptions of robot models from files with one JSON object each; docs/robot-models.md
/// describes them. For the user-interface thread only.
namespace Zel::RobotModel {

/// The description files, `*.json`, in `directory`, in ascending order of their names.
///
/// An empty `directory` means the folder "robots" in the data directories of the application
/// "zentrix" (Tano::path); if ZENTRIX_DATA_PATH is set, even to the empty text, in its entries
/// only. A file hides those of the same name in later directories.
ZEL_ROBOTMODEL_EXPORT QFileInfoList modelFilesInfoList(const QString &directory);

/// The model that `file` describes; null if it cannot be read or is not a description.
[[nodiscard]] ZEL_ROBOTMODEL_EXPORT std::unique_ptr<Mel::Model> model(const QFileInfo &file);

} // namespace Zel::RobotModel
