#include "manifest_format.h"

#include <algorithm>
#include <array>
#include <tuple>

namespace Tano {
namespace {

constexpr bool required = true;
constexpr bool optional = false;
constexpr int noKey = -1;
constexpr bool authorsOrder = false;
constexpr bool byKey = true;

using E = Element;

constexpr AttributeRule packageAttributes[] = {
    {"format", required}, {"uid", required}, {"version", required}, {"typeVersion", optional}};
constexpr AttributeRule robotAttributes[] = {{"model", required},
                                             {"minHeadVersion", optional},
                                             {"maxHeadVersion", optional},
                                             {"minBodyVersion", optional},
                                             {"maxBodyVersion", optional}};
constexpr AttributeRule brioAttributes[] = {{"minVersion", optional}, {"maxVersion", optional}};
constexpr AttributeRule behaviorAttributes[] = {
    {"path", required}, {"nature", optional}, {"userRequestable", optional}};
constexpr AttributeRule dialogAttributes[] = {{"topicName", required}, {"typeVersion", optional}};
constexpr AttributeRule serviceAttributes[] = {{"name", required}, {"autoRun", optional}};
constexpr AttributeRule codeAttribute[] = {{"code", required}};
constexpr AttributeRule languageAttribute[] = {{"language", required}};
constexpr AttributeRule purposeAttribute[] = {{"purpose", required}};
constexpr AttributeRule nameAttribute[] = {{"name", required}};

// The frequent ones first: they are looked up in this order.
constexpr Element packageChildren[] = {E::Behavior,          E::Dialog,
                                       E::Service,           E::PackageTexts,
                                       E::SupportedLanguage, E::DescriptionLanguage,
                                       E::RobotRequirement,  E::BrioRequirement,
                                       E::Installer,         E::Author,
                                       E::Organization,      E::Date,
                                       E::Channel,           E::Path};
constexpr Element packageTexts[] = {E::Name, E::Description};
constexpr Element behaviorChildren[] = {E::BehaviorTexts, E::Permission, E::Condition};
constexpr Element behaviorTexts[] = {E::TriggerSentence, E::Tag, E::LoadingResponse, E::Name,
                                     E::Description};
constexpr Element dialogChildren[] = {E::Topic};
constexpr Element serviceChildren[] = {E::ExecStart, E::Property};

constexpr ElementRule textRule(std::string_view name, std::string_view field, Occurs occurs) {
    return {name, field, Content::Text, occurs, {}, noKey, authorsOrder, {}};
}

constexpr ElementRule keyedRule(std::string_view name, std::string_view field, Content content,
                                Occurs occurs, Rows<AttributeRule> key,
                                Rows<Element> children = {}) {
    return {name, field, content, occurs, key, 0, byKey, children};
}

constexpr ElementRule languageRule(std::string_view name, std::string_view field) {
    return {name, field, Content::Nothing, Occurs::OncePerKey, codeAttribute, 0, authorsOrder, {}};
}

constexpr ElementRule requirementRule(std::string_view name, std::string_view field,
                                      Rows<AttributeRule> attributes) {
    return {name, field, Content::Nothing, Occurs::AnyTimes, attributes, noKey, authorsOrder, {}};
}

constexpr ElementRule entryRule(std::string_view name, std::string_view field,
                                Rows<AttributeRule> attributes, Rows<Element> children) {
    return {name,       field, Content::Elements, Occurs::AnyTimes,
            attributes, 0,     authorsOrder,      children};
}

using Rules = std::array<ElementRule, std::size_t(Element::Count)>;

constexpr Rules makeRules() {
    Rules rules{};
    const auto set = [&](Element element, const ElementRule &rule) {
        rules[std::size_t(element)] = rule;
    };
    constexpr auto once = Occurs::Once;
    constexpr auto anyTimes = Occurs::AnyTimes;
    set(E::Package, {"package", "", Content::Elements, once, packageAttributes, noKey, authorsOrder,
                     packageChildren});
    set(E::Installer, textRule("installer", "installer", once));
    set(E::Author, textRule("author", "author", once));
    set(E::Organization, textRule("organization", "organization", once));
    set(E::Date, textRule("date", "date", once));
    set(E::Channel, textRule("channel", "channel", once));
    set(E::Path, textRule("path", "path", once));
    set(E::SupportedLanguage, languageRule("supportedLanguage", "supportedLanguages"));
    set(E::DescriptionLanguage, languageRule("descriptionLanguage", "descriptionLanguages"));
    set(E::PackageTexts, keyedRule("texts", "", Content::Elements, Occurs::OncePerKey,
                                   languageAttribute, packageTexts));
    set(E::RobotRequirement,
        requirementRule("robotRequirement", "robotRequirements", robotAttributes));
    set(E::BrioRequirement, requirementRule("brioRequirement", "brioRequirements", brioAttributes));
    set(E::Behavior, entryRule("behavior", "behaviors", behaviorAttributes, behaviorChildren));
    set(E::Permission, textRule("permission", "permissions", anyTimes));
    set(E::Condition,
        keyedRule("condition", "conditions", Content::Text, anyTimes, purposeAttribute));
    set(E::BehaviorTexts, keyedRule("texts", "", Content::Elements, Occurs::OncePerKey,
                                    languageAttribute, behaviorTexts));
    set(E::Name, textRule("name", "names", once));
    set(E::Description, textRule("description", "descriptions", once));
    set(E::Tag, textRule("tag", "tags", anyTimes));
    set(E::TriggerSentence, textRule("triggerSentence", "triggerSentences", anyTimes));
    set(E::LoadingResponse, textRule("loadingResponse", "loadingResponses", anyTimes));
    set(E::Dialog, entryRule("dialog", "dialogs", dialogAttributes, dialogChildren));
    set(E::Topic,
        keyedRule("topic", "topics", Content::Text, Occurs::OncePerKey, languageAttribute));
    set(E::Service, entryRule("service", "services", serviceAttributes, serviceChildren));
    set(E::ExecStart, textRule("execStart", "execStart", once));
    set(E::Property,
        keyedRule("property", "properties", Content::Text, Occurs::OncePerKey, nameAttribute));
    return rules;
}

constexpr Rules rules = makeRules();

constexpr std::size_t mostAttributes() {
    std::size_t most = 0;
    for (std::size_t i = 0; i < rules.size(); ++i)
        most = std::max(most, rules[i].attributes.size());
    return most;
}

constexpr int depthOf(Element element) {
    int deepest = 0;
    for (const Element child : rules[std::size_t(element)].children)
        deepest = std::max(deepest, depthOf(child));
    return 1 + deepest;
}

constexpr bool allElementsHaveRules() {
    for (std::size_t i = std::size_t(E::Package); i < rules.size(); ++i) {
        if (rules[i].name.empty())
            return false;
    }
    return true;
}

static_assert(mostAttributes() == mostKnownAttributes);
static_assert(depthOf(Element::Package) == deepestKnown);
static_assert(allElementsHaveRules());

} // namespace

const ElementRule &ruleOf(Element element) {
    return rules[std::size_t(element)];
}

Element childNamed(const ElementRule &rule, std::string_view name) {
    for (const Element child : rule.children) {
        if (rules[std::size_t(child)].name == name)
            return child;
    }
    return Element::Count;
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
