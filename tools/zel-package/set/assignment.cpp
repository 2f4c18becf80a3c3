#include "assignment.h"

#include <packagemodel/text_conversion.h>

namespace ZelPackage {

std::optional<Assignment> parseAssignment(const QString &text) {
    const std::string utf8 = Zel::toUtf8(text);
    const std::size_t equalsSign = Tano::FieldPath::find(utf8, '=');
    if (equalsSign == std::string::npos)
        return {};
    const std::string field = utf8.substr(0, equalsSign);
    const auto path = Tano::FieldPath::parse(field);
    if (!path || path->isEmpty())
        return {};
    return Assignment{Zel::fromUtf8(field), *path, Zel::fromUtf8(utf8.substr(equalsSign + 1))};
}

} // namespace ZelPackage
