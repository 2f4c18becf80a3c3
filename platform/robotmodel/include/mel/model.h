#pragma once

#include <zel/zel_robotmodel_export.h>

#include <QString>

#include <string>

namespace Mel {

/// One model of robot, as its description tells.
class ZEL_ROBOTMODEL_EXPORT Model {
public:
    /// The kind of a robot: its type, which is its family, and its model within that. No kind is
    /// known beforehand; each gets its value when a description first speaks of it, and keeps it
    /// until the process ends.
    enum ROBOT_MODEL : int {};

    /// The type of a kind, in UTF-8; empty for a value that is none.
    static const std::string &robotTypeString(ROBOT_MODEL kind);
    /// The model of a kind without its type, in UTF-8; empty for a value that is none.
    static const std::string &robotModelWithoutTypeString(ROBOT_MODEL kind);

    virtual ~Model();
    Model(const Model &) = delete;
    Model &operator=(const Model &) = delete;

    /// What the makers call the model among themselves.
    virtual QString name() const = 0;
    virtual ROBOT_MODEL kind() const = 0;
    /// What users know the model by: in full, or else by the short name of its family.
    virtual QString displayName(bool full) const = 0;

protected:
    Model();
};

} // namespace Mel
