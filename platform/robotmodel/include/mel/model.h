#pragma once

#include <zel/zel_robotmodel_export.h>

#include <QString>

#include <string>

namespace Mel {

/// The description of one robot model.
///
/// ```cpp
/// const QFileInfoList files = Zel::RobotModel::modelFilesInfoList({});
/// const std::unique_ptr<Mel::Model> robot = Zel::RobotModel::model(files.at(0));
/// robot->displayName(true); // -> Heron H1
/// ```
class ZEL_ROBOTMODEL_EXPORT Model {
public:
    /// The kind of a robot: its type (its family) and its model within the family. Kinds are not
    /// compiled in: each gets its value when a description first mentions it, for the lifetime of
    /// the process.
    enum ROBOT_MODEL : int {};

    /// The type of a kind, in UTF-8; empty for an unknown kind.
    static const std::string &robotTypeString(ROBOT_MODEL kind);
    /// The model of a kind without its type, in UTF-8; empty for an unknown kind.
    static const std::string &robotModelWithoutTypeString(ROBOT_MODEL kind);

    virtual ~Model();
    Model(const Model &) = delete;
    Model &operator=(const Model &) = delete;

    /// The internal name of the model.
    virtual QString name() const = 0;
    /// The kind of the robot.
    virtual ROBOT_MODEL kind() const = 0;
    /// The name of the model for users: in full, or the short name of its family.
    virtual QString displayName(bool full) const = 0;

protected:
    Model();
};

} // namespace Mel
