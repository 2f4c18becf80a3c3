#include "manifest_format.h"

#include "manifest_rules.h"

#include <tuple>

namespace Tano {
namespace {

constexpr auto rules = makeRules();

} // namespace

const ElementRule &ruleOf(Element element) {
    return rules[std::size_t(element)];
}

std::size_t childNamed(const ElementRule &rule, std::string_view name, std::size_t likely) {
    const auto search = [&](std::size_t from, std::size_t to) {
        while (from < to && rules[std::size_t(rule.children[from])].name != name)
            ++from;
        return from;
    };
    const std::size_t count = rule.children.size();
    const std::size_t found = search(likely, count);
    if (found < count)
        return found;
    const std::size_t earlier = search(0, likely);
    return earlier < likely ? earlier : count;
}

bool isTextsBlock(Element element) {
    return element != Element::Package && ruleOf(element).field.empty();
}

bool isEntry(Element element) {
    const ElementRule &rule = ruleOf(element);
    return rule.content == Content::Elements && !rule.field.empty();
}

bool operator<(const Place &a, const Place &b) {
    return std::tie(a.element, a.key, a.index) < std::tie(b.element, b.key, b.index);
}

const std::string &Position::keyText() const {
    static const std::string empty;
    return key ? *key : empty;
}

void appendField(FieldPath &path, Element element, std::string_view key, int index,
                 std::string_view texts) {
    const ElementRule &rule = ruleOf(element);
    if (rule.field.empty())
        return;
    path.field(rule.field);
    if (isEntry(element)) {
        path.entry(key, index);
        return;
    }
    if (!texts.empty())
        path.key(texts);
    if (rule.keyAttribute >= 0)
        path.key(key);
    if (rule.occurs == Occurs::AnyTimes)
        path.index(index);
}

std::string shortened(std::string sentence) {
    constexpr std::size_t longest = 500;
    constexpr std::size_t keptAtAnEnd = 200;
    if (sentence.size() <= longest)
        return sentence;
    const auto isInsideCharacter = [&](std::size_t at) {
        return (static_cast<unsigned char>(sentence[at]) & 0xC0U) == 0x80U;
    };
    std::size_t from = keptAtAnEnd;
    while (isInsideCharacter(from))
        --from;
    std::size_t to = sentence.size() - keptAtAnEnd;
    while (isInsideCharacter(to))
        ++to;
    return sentence.replace(from, to - from, " ... ");
}

} // namespace Tano
