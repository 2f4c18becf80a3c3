#pragma once

#include <mel/model.h>
#include <zel/zel_robotmodel_export.h>

#include <QFileInfo>

#include <memory>

/// The robot models that are described in files: one JSON object a file, as docs/robot-models.md
/// has it. All of it belongs to the user-interface thread.
namespace Zel::RobotModel {

/// The description files, "*.json", in `directory`, in ascending order of their names.
///
/// The empty text stands for the folder "robots" among the data of the application "zentrix": of
/// the entries of ZENTRIX_DATA_PATH where that is set, even to nothing, else of all its data
/// directories (Tano::path). A file hides those of the same name in later directories.
ZEL_ROBOTMODEL_EXPORT QFileInfoList modelFilesInfoList(const QString &directory);

/// The model that `file` describes; null when it cannot be read or is no description.
[[nodiscard]] ZEL_ROBOTMODEL_EXPORT std::unique_ptr<Mel::Model> model(const QFileInfo &file);

} // namespace Zel::RobotModel
