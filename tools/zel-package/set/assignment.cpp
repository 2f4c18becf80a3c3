#include "assignment.h"

#include <packagemodel/text_conversion.h>

namespace ZelPackage {
namespace {

// Splits "FIELD@2" at the '@'; nullopt if no index follows.
std::optional<Assignment> parsePlace(const std::string &text) {
    Assignment assignment{Zel::fromUtf8(text), {}, {}, {}};
    const std::size_t sign = Tano::FieldPath::find(text, '@');
    if (sign != std::string::npos) {
        assignment.index = Tano::FieldPath::Selector{text.substr(sign + 1)}.toIndex();
        if (!assignment.index)
            return {};
    }
    const auto path = Tano::FieldPath::parse(text.substr(0, sign));
    if (!path || path->isEmpty())
        return {};
    assignment.path = *path;
    return assignment;
}

} // namespace

bool looksLikeAssignment(const QString &text) {
    const auto equalsSign = text.indexOf(u'=');
    if (equalsSign >= 0) {
        const auto bracket = text.indexOf(u'[');
        const auto slash = text.indexOf(u'/');
        return slash < 0 || slash > equalsSign || (bracket >= 0 && bracket < slash);
    }
    const auto place = parsePlace(Zel::toUtf8(text));
    return place && place->index && !place->path.steps().back().selectors.empty();
}

std::optional<Assignment> parseAssignment(const QString &text) {
    const std::string utf8 = Zel::toUtf8(text);
    const std::size_t equalsSign = Tano::FieldPath::find(utf8, '=');
    auto assignment = parsePlace(utf8.substr(0, equalsSign));
    if (assignment && equalsSign != std::string::npos)
        assignment->value = Zel::fromUtf8(utf8.substr(equalsSign + 1));
    const bool isEdit = assignment && (assignment->value || assignment->index);
    return isEdit ? assignment : std::nullopt;
}

} // namespace ZelPackage
