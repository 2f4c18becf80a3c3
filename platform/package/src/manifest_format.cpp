#include "manifest_format.h"

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

ElementRule textRule(std::string_view name, std::string_view field, Occurs occurs) {
    return {name, field, Content::Text, occurs, {}, noKey, authorsOrder, {}};
}

ElementRule keyedRule(std::string_view name, std::string_view field, Content content, Occurs occurs,
                      std::string_view key, std::vector<Element> children = {}) {
    return {name, field, content, occurs, {{key, required}}, 0, byKey, std::move(children)};
}

std::array<ElementRule, std::size_t(Element::Count)> makeRules() {
    std::array<ElementRule, std::size_t(Element::Count)> rules;
    const auto at = [&](Element element) -> ElementRule & { return rules[std::size_t(element)]; };

    at(E::Package) = {
        "package",
        "",
        Content::Elements,
        Occurs::Once,
        {{"format", required}, {"uid", required}, {"version", required}, {"typeVersion", optional}},
        noKey,
        authorsOrder,
        // the frequent ones first: they are looked up in this order
        {E::Behavior, E::Dialog, E::Service, E::PackageTexts, E::SupportedLanguage,
         E::DescriptionLanguage, E::RobotRequirement, E::BrioRequirement, E::Installer, E::Author,
         E::Organization, E::Date, E::Channel, E::Path}};
    at(E::Installer) = textRule("installer", "installer", Occurs::Once);
    at(E::Author) = textRule("author", "author", Occurs::Once);
    at(E::Organization) = textRule("organization", "organization", Occurs::Once);
    at(E::Date) = textRule("date", "date", Occurs::Once);
    at(E::Channel) = textRule("channel", "channel", Occurs::Once);
    at(E::Path) = textRule("path", "path", Occurs::Once);
    at(E::SupportedLanguage) = keyedRule("supportedLanguage", "supportedLanguages",
                                         Content::Nothing, Occurs::OncePerKey, "code");
    at(E::DescriptionLanguage) = keyedRule("descriptionLanguage", "descriptionLanguages",
                                           Content::Nothing, Occurs::OncePerKey, "code");
    at(E::SupportedLanguage).sortedByKey = authorsOrder;
    at(E::DescriptionLanguage).sortedByKey = authorsOrder;
    at(E::PackageTexts) = keyedRule("texts", "", Content::Elements, Occurs::OncePerKey, "language",
                                    {E::Name, E::Description});
    at(E::RobotRequirement) = {"robotRequirement",
                               "robotRequirements",
                               Content::Nothing,
                               Occurs::AnyTimes,
                               {{"model", required},
                                {"minHeadVersion", optional},
                                {"maxHeadVersion", optional},
                                {"minBodyVersion", optional},
                                {"maxBodyVersion", optional}},
                               noKey,
                               authorsOrder,
                               {}};
    at(E::BrioRequirement) = {"brioRequirement",
                              "brioRequirements",
                              Content::Nothing,
                              Occurs::AnyTimes,
                              {{"minVersion", optional}, {"maxVersion", optional}},
                              noKey,
                              authorsOrder,
                              {}};

    at(E::Behavior) = {"behavior",
                       "behaviors",
                       Content::Elements,
                       Occurs::AnyTimes,
                       {{"path", required}, {"nature", optional}, {"userRequestable", optional}},
                       0,
                       authorsOrder,
                       {E::BehaviorTexts, E::Permission, E::Condition}};
    at(E::Permission) = textRule("permission", "permissions", Occurs::AnyTimes);
    at(E::Condition) =
        keyedRule("condition", "conditions", Content::Text, Occurs::AnyTimes, "purpose");
    at(E::BehaviorTexts) =
        keyedRule("texts", "", Content::Elements, Occurs::OncePerKey, "language",
                  {E::TriggerSentence, E::Tag, E::LoadingResponse, E::Name, E::Description});
    at(E::Name) = textRule("name", "names", Occurs::Once);
    at(E::Description) = textRule("description", "descriptions", Occurs::Once);
    at(E::Tag) = textRule("tag", "tags", Occurs::AnyTimes);
    at(E::TriggerSentence) = textRule("triggerSentence", "triggerSentences", Occurs::AnyTimes);
    at(E::LoadingResponse) = textRule("loadingResponse", "loadingResponses", Occurs::AnyTimes);

    at(E::Dialog) = {"dialog",
                     "dialogs",
                     Content::Elements,
                     Occurs::AnyTimes,
                     {{"topicName", required}, {"typeVersion", optional}},
                     0,
                     authorsOrder,
                     {E::Topic}};
    at(E::Topic) = keyedRule("topic", "topics", Content::Text, Occurs::OncePerKey, "language");

    at(E::Service) = {"service",
                      "services",
                      Content::Elements,
                      Occurs::AnyTimes,
                      {{"name", required}, {"autoRun", optional}},
                      0,
                      authorsOrder,
                      {E::ExecStart, E::Property}};
    at(E::ExecStart) = textRule("execStart", "execStart", Occurs::Once);
    at(E::Property) =
        keyedRule("property", "properties", Content::Text, Occurs::OncePerKey, "name");
    return rules;
}

void appendSelector(std::string &path, std::string_view selector) {
    path += '[';
    path += selector;
    path += ']';
}

} // namespace

const ElementRule &ruleOf(Element element) {
    static const auto rules = makeRules();
    return rules[std::size_t(element)];
}

Element childNamed(const ElementRule &rule, std::string_view name) {
    const ElementRule *rules = &ruleOf(Element(0));
    for (const Element child : rule.children) {
        if (rules[std::size_t(child)].name == name)
            return child;
    }
    return Element::Count;
}

bool operator<(const Position &a, const Position &b) {
    return std::tie(a.element, a.key, a.index) < std::tie(b.element, b.key, b.index);
}

std::string fieldPath(const std::string &parent, Element element, std::string_view key, int index,
                      std::string_view texts) {
    const ElementRule &rule = ruleOf(element);
    if (rule.field.empty())
        return parent;

    std::string path = parent;
    if (!path.empty())
        path += '.';
    path += rule.field;
    if (!texts.empty())
        appendSelector(path, texts);
    if (rule.keyAttribute >= 0)
        appendSelector(path, key);
    const bool isEntry = element == E::Behavior || element == E::Dialog || element == E::Service;
    if (rule.occurs == Occurs::AnyTimes && !isEntry)
        appendSelector(path, std::to_string(index));
    return path;
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
