#pragma once

#include "extras.h"

#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace Tano {

/// The namespace declarations in scope, and the rules of Namespaces in XML 1.0 that the XML parser
/// does not check.
class XmlNamespaces {
public:
    /// A declaration in scope; `depth` is the depth of its element, counted from 1.
    struct Binding {
        int depth;
        const std::string *uri; // equal URIs have equal pointers
        std::shared_ptr<const Namespace> declared;
    };

    /// Whether an attribute declares a prefix or the default namespace.
    static bool isDeclaration(std::string_view attribute) {
        constexpr std::string_view word = "xmlns";
        return attribute.substr(0, word.size()) == word &&
               (attribute.size() == word.size() || attribute[word.size()] == ':');
    }

    /// Adds the declarations in an element's attributes, given as a null-terminated list of
    /// alternating names and values. Returns a sentence about an invalid one, else an empty text.
    std::string declare(int depth, const char *const *attributes);
    /// Removes the declarations of the element at `depth`.
    void leave(int depth);
    bool hasDeclarationsAt(int depth) const {
        return !m_declared.empty() && m_declared.back().depth == depth;
    }

    /// The default namespace, empty if there is none.
    const std::string &defaultNamespace() const;

    /// The prefixes in scope.
    std::vector<std::shared_ptr<const Namespace>> declared() const;

    /// Checks the name of an element and calls `use` with the binding of its prefix.
    template<typename Use>
    std::string checkElement(std::string_view name, Use &&use) const {
        return checkName(name, [&](const Binding &binding, std::string_view) { use(binding); });
    }
    /// Checks the attribute names of an element and calls `use` with the bindings of their
    /// prefixes.
    template<typename Use>
    std::string checkAttributes(const char *const *attributes, Use &&use) const {
        std::vector<std::pair<const std::string *, std::string_view>> names;
        for (; *attributes; attributes += 2) {
            if (isDeclaration(*attributes))
                continue;
            std::string sentence =
                checkName(*attributes, [&](const Binding &binding, std::string_view local) {
                    use(binding);
                    names.emplace_back(binding.uri, local);
                });
            if (!sentence.empty())
                return sentence;
        }
        return checkDistinct(names);
    }

private:
    using Bindings = std::map<std::string, std::vector<Binding>, std::less<>>;
    struct Declared {
        int depth;
        Bindings::iterator prefix;
    };

    template<typename Use>
    std::string checkName(std::string_view name, Use &&use) const {
        const std::size_t colon = name.find(':');
        if (colon == std::string_view::npos)
            return {};
        std::string sentence = checkQualifiedName(name);
        if (!sentence.empty())
            return sentence;
        if (const Binding *binding = find(name.substr(0, colon))) {
            use(*binding, name.substr(colon + 1));
            return {};
        }
        const bool isXml = name.substr(0, colon) == "xml";
        return isXml ? std::string() : undeclared(name.substr(0, colon));
    }

    const Binding *find(std::string_view prefix) const;
    static std::string checkQualifiedName(std::string_view name);
    static std::string checkDeclaration(std::string_view name, std::string_view uri);
    static std::string undeclared(std::string_view prefix);
    static std::string
    checkDistinct(std::vector<std::pair<const std::string *, std::string_view>> &names);

    Bindings m_bindings; // the empty prefix is the default namespace
    std::vector<Declared> m_declared;
    std::set<std::string, std::less<>> m_uris;
};

} // namespace Tano
