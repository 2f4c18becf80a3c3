#pragma once

#include <tano/tano_package_export.h>

#include <cstddef>
#include <functional>
#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

namespace Tano {

/// The path of a field in a package, for example `names[fr_FR]`,
/// `robotRequirements[0].maxBodyVersion` or `behaviors[greet].triggerSentences[ja_JP][0]`. UTF-8
/// throughout; the empty path is the package.
///
/// A path is an implicitly shared list of steps separated by dots; a step is the name of a field
/// and any number of selectors in brackets. A selector is a key (a language code, a behavior's
/// path), an index, or
/// `[+]`, the place after the last entry. `behaviors[greet][1]` is the second behavior with the
/// path "greet"; the index 0 of an entry is left out. In a selector, `\` precedes a literal `]` or
/// `\`, and the key "+" is written `[\+]`.
///
/// ```
/// FieldPath path;
/// path.field("behaviors").entry("greet").field("tags").key("en_US").index(0);
/// path.toString(); // behaviors[greet].tags[en_US][0]
/// ```
class TANO_PACKAGE_EXPORT FieldPath {
public:
    struct Selector {
        std::string text;
        bool appends = false; ///< true for `[+]`

        /// The selector as an index; nothing unless it is a decimal number without leading zeros.
        TANO_PACKAGE_EXPORT std::optional<int> toIndex() const;
    };

    struct Step {
        std::string field;
        std::vector<Selector> selectors;
    };

    /// Why a text is not a path.
    struct Error {
        std::string message;
        std::size_t position = 0; ///< the byte at fault, counted from 0
    };

    /// Parses a path; returns nothing for a malformed one and sets `error`, if given.
    [[nodiscard]] static std::optional<FieldPath> parse(std::string_view text,
                                                        Error *error = nullptr);
    /// The first place of `character` outside selectors; npos for none. Separates "path=value".
    static std::size_t find(std::string_view text, char character);

    std::string toString() const;

    const std::vector<Step> &steps() const;
    bool isEmpty() const { return steps().empty(); }

    // Each appends to the path and returns it. Selectors belong to the last field.

    FieldPath &field(std::string_view name);
    FieldPath &key(std::string_view key);
    FieldPath &index(int index);
    /// The entry number `index` among those with the same key.
    FieldPath &entry(std::string_view key, int index = 0);
    /// The place after the last entry.
    FieldPath &end();

    /// The path without its last selector or, where that has none, without its last field.
    FieldPath parent() const;

private:
    std::vector<Step> &edit();

    std::shared_ptr<std::vector<Step>> m_steps; // shared with copies; null for none
};

inline bool operator==(const FieldPath::Selector &a, const FieldPath::Selector &b) {
    return a.appends == b.appends && a.text == b.text;
}
inline bool operator<(const FieldPath::Selector &a, const FieldPath::Selector &b) {
    return std::tie(a.text, a.appends) < std::tie(b.text, b.appends);
}
inline bool operator==(const FieldPath::Step &a, const FieldPath::Step &b) {
    return a.field == b.field && a.selectors == b.selectors;
}
inline bool operator<(const FieldPath::Step &a, const FieldPath::Step &b) {
    return std::tie(a.field, a.selectors) < std::tie(b.field, b.selectors);
}
inline bool operator==(const FieldPath &a, const FieldPath &b) {
    return &a.steps() == &b.steps() || a.steps() == b.steps();
}
inline bool operator!=(const FieldPath &a, const FieldPath &b) {
    return !(a == b);
}
/// Orders paths step by step; a path precedes the paths below it.
inline bool operator<(const FieldPath &a, const FieldPath &b) {
    return a.steps() < b.steps();
}

TANO_PACKAGE_EXPORT std::ostream &operator<<(std::ostream &stream, const FieldPath &path);

} // namespace Tano

template<>
struct std::hash<Tano::FieldPath> {
    std::size_t operator()(const Tano::FieldPath &path) const {
        return std::hash<std::string>()(path.toString());
    }
};
