#include "robot_kinds.h"

#include <algorithm>
#include <deque>
#include <string>

namespace Mel {
namespace {

struct Kind {
    std::string type;
    std::string model;
};

// Indexed by value; a deque never moves its elements while it grows.
std::deque<Kind> &kinds() {
    static std::deque<Kind> all;
    return all;
}

const Kind &kindOf(Model::ROBOT_MODEL value) {
    static const Kind none;
    const auto index = static_cast<std::size_t>(value);
    return value >= 0 && index < kinds().size() ? kinds()[index] : none;
}

} // namespace

Model::ROBOT_MODEL robotKind(const QString &type, const QString &model) {
    const Kind wanted{type.toStdString(), model.toStdString()};
    const auto it = std::find_if(kinds().begin(), kinds().end(), [&](const Kind &kind) {
        return kind.type == wanted.type && kind.model == wanted.model;
    });
    const auto value = static_cast<Model::ROBOT_MODEL>(it - kinds().begin());
    if (it == kinds().end())
        kinds().push_back(wanted);
    return value;
}

const std::string &Model::robotTypeString(ROBOT_MODEL kind) {
    return kindOf(kind).type;
}

const std::string &Model::robotModelWithoutTypeString(ROBOT_MODEL kind) {
    return kindOf(kind).model;
}

} // namespace Mel
