#include "xml_namespaces.h"

#include "xml_reading.h"

#include <algorithm>

namespace Tano {
namespace {

constexpr std::string_view xmlUri = "http://www.w3.org/XML/1998/namespace";
constexpr std::string_view xmlnsUri = "http://www.w3.org/2000/xmlns/";

// The prefix that a declaration binds, empty for the default namespace.
std::string_view boundPrefix(std::string_view attribute) {
    const std::size_t colon = attribute.find(':');
    return colon == std::string_view::npos ? std::string_view() : attribute.substr(colon + 1);
}

// Whether a text may start the local part of a name; the parser accepts any letter after a colon.
bool startsName(std::string_view text) {
    constexpr std::string_view continuesOnly = "-.0123456789";
    return !text.empty() && continuesOnly.find(text[0]) == std::string_view::npos;
}

} // namespace

std::string XmlNamespaces::checkQualifiedName(std::string_view name) {
    const std::size_t colon = name.find(':');
    if (colon == std::string_view::npos)
        return {};
    const std::string_view local = name.substr(colon + 1);
    if (colon > 0 && local.find(':') == std::string_view::npos && startsName(local))
        return {};
    return "The name " + quoted(name) + " is not a prefix and a name with a colon between them.";
}

std::string XmlNamespaces::checkDeclaration(std::string_view name, std::string_view uri) {
    const std::string_view prefix = boundPrefix(name);
    if (const std::string sentence = checkQualifiedName(name); !sentence.empty())
        return sentence;
    const bool isXml = prefix == "xml" && uri == xmlUri;
    if (!prefix.empty() && uri.empty())
        return "The prefix " + quoted(prefix) + " is declared without a namespace.";
    const bool isReserved =
        prefix == "xml" || prefix == "xmlns" || uri == xmlUri || uri == xmlnsUri;
    if (isReserved && !isXml)
        return "The declaration " + quoted(name) + " is of a reserved prefix or namespace.";
    return {};
}

std::string XmlNamespaces::undeclared(std::string_view prefix) {
    return "The prefix " + quoted(prefix) + " is not declared.";
}

std::string XmlNamespaces::declare(int depth, const char *const *attributes) {
    for (; *attributes; attributes += 2) {
        const std::string_view name = attributes[0];
        if (!isDeclaration(name))
            continue;
        const std::string_view uri = attributes[1];
        if (std::string sentence = checkDeclaration(name, uri); !sentence.empty())
            return sentence;
        const std::string prefix(boundPrefix(name));
        const auto it = m_bindings.try_emplace(prefix).first;
        it->second.push_back(
            {depth, &*m_uris.emplace(uri).first,
             std::make_shared<const Namespace>(Namespace{prefix, std::string(uri)})});
        m_declared.push_back({depth, it});
    }
    return {};
}

void XmlNamespaces::leave(int depth) {
    while (hasDeclarationsAt(depth)) {
        const auto prefix = m_declared.back().prefix;
        prefix->second.pop_back();
        if (prefix->second.empty())
            m_bindings.erase(prefix);
        m_declared.pop_back();
    }
}

std::vector<std::shared_ptr<const Namespace>> XmlNamespaces::declared() const {
    std::vector<std::shared_ptr<const Namespace>> all;
    for (const auto &binding : m_bindings)
        all.push_back(binding.second.back().declared);
    return all;
}

const XmlNamespaces::Binding *XmlNamespaces::find(std::string_view prefix) const {
    const auto it = m_bindings.find(prefix);
    return it == m_bindings.end() ? nullptr : &it->second.back();
}

const std::string &XmlNamespaces::defaultNamespace() const {
    static const std::string none;
    if (m_declared.empty())
        return none;
    const Binding *binding = find({});
    return binding ? *binding->uri : none;
}

std::string
XmlNamespaces::checkDistinct(std::vector<std::pair<const std::string *, std::string_view>> &names) {
    if (names.size() < 2)
        return {};
    std::sort(names.begin(), names.end());
    const auto twice = std::adjacent_find(names.begin(), names.end());
    if (twice == names.end())
        return {};
    return "The attribute " + quoted(twice->second) + " occurs twice in the same namespace.";
}

} // namespace Tano
