#include "manifest_contents.h"

#include <algorithm>
#include <expat.h>
#include <map>
#include <memory>
#include <set>
#include <string_view>
#include <vector>

namespace {

// Elements and attributes that are omitted if they are empty.
const std::set<std::string_view> omittedElements{"installer",   "author", "organization", "date",
                                                 "channel",     "path",   "texts",        "name",
                                                 "description", "topic",  "execStart"};
const std::set<std::string_view> omittedAttributes{
    "typeVersion", "minHeadVersion", "maxHeadVersion", "minBodyVersion",  "maxBodyVersion",
    "minVersion",  "maxVersion",     "nature",         "userRequestable", "autoRun"};

// Counts the items of a document, each described by a text.
class Contents {
public:
    explicit Contents(const std::string &xml) {
        const std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser(
            XML_ParserCreate("UTF-8"), &XML_ParserFree);
        XML_SetUserData(parser.get(), this);
        XML_SetElementHandler(parser.get(), onStart, onEnd);
        XML_SetCharacterDataHandler(parser.get(), onText);
        XML_SetCommentHandler(parser.get(), onComment);
        XML_SetProcessingInstructionHandler(parser.get(), onInstruction);
        XML_Parse(parser.get(), xml.data(), int(xml.size()), 1);
    }

    std::map<std::string, int> counts;

private:
    struct Element {
        std::string name;
        std::string attributes;
        std::string text;
        bool isEmpty = true; // ignoring what is omitted
    };

    static Contents &at(void *self) { return *static_cast<Contents *>(self); }

    static void onStart(void *self, const XML_Char *name, const XML_Char **attributes) {
        std::set<std::string> sorted;
        for (; *attributes; attributes += 2) {
            const std::string_view value = attributes[1];
            const bool isOmitted =
                omittedAttributes.count(attributes[0]) != 0 && (value.empty() || value == "false");
            if (!isOmitted)
                sorted.insert(std::string(attributes[0]) + '=' + attributes[1]);
        }
        Element element{name, {}, {}, true};
        for (const std::string &attribute : sorted)
            element.attributes += ' ' + attribute;
        at(self).m_open.push_back(std::move(element));
    }

    static void onEnd(void *self, const XML_Char *) {
        Contents &contents = at(self);
        const Element element = std::move(contents.m_open.back());
        contents.m_open.pop_back();
        const bool isBlank =
            element.text.find_first_not_of(" \t\r\n") == std::string::npos && !element.isEmpty;
        const bool isKeyedOnly =
            element.attributes.empty() || ((element.name == "texts" || element.name == "topic") &&
                                           element.attributes.find(' ', 1) == std::string::npos &&
                                           element.attributes.compare(0, 10, " language=") == 0);
        const bool isOmitted = element.isEmpty && isKeyedOnly &&
                               (element.text.empty() || element.name == "texts") &&
                               omittedElements.count(element.name) != 0;
        if (isOmitted)
            return;
        if (!contents.m_open.empty())
            contents.m_open.back().isEmpty = false;
        ++contents.counts['<' + element.name + element.attributes + '>' +
                          (isBlank || isElementOnly(element) ? std::string() : element.text)];
    }

    // White space between elements is not preserved.
    static bool isElementOnly(const Element &element) {
        return element.text.find_first_not_of(" \t\r\n") == std::string::npos &&
               (element.name == "package" || element.name == "texts" ||
                element.name == "behavior" || element.name == "dialog" ||
                element.name == "service" || element.name == "supportedLanguage" ||
                element.name == "descriptionLanguage" || element.name == "robotRequirement" ||
                element.name == "brioRequirement");
    }

    static void onText(void *self, const XML_Char *text, int size) {
        at(self).m_open.back().text.append(text, std::size_t(size));
    }

    static void onComment(void *self, const XML_Char *text) {
        at(self).addOther("<!--" + std::string(text));
    }

    static void onInstruction(void *self, const XML_Char *target, const XML_Char *data) {
        at(self).addOther("<?" + std::string(target) + ' ' + data);
    }

    void addOther(const std::string &text) {
        if (!m_open.empty())
            m_open.back().isEmpty = false;
        ++counts[text];
    }

    std::vector<Element> m_open;
};

} // namespace

std::string differenceOfManifests(const std::string &a, const std::string &b) {
    const Contents before(a);
    const Contents after(b);
    std::string difference;
    const auto compare = [&](const Contents &x, const Contents &y, const char *word) {
        for (const auto &[text, count] : x.counts) {
            const auto it = y.counts.find(text);
            if (difference.empty() && (it == y.counts.end() || it->second < count))
                difference = word + text;
        }
    };
    compare(before, after, "lost ");
    compare(after, before, "added ");
    return difference;
}
