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
/// `robotRequirements[0].maxBodyVersion` or `behaviors[greet].triggerSentences[ja_JP][0]`. All
/// texts are UTF-8; the empty path is the package itself.
///
/// A path is an implicitly shared list of steps separated by dots; a step is the name of a field
/// and any number of selectors in brackets. A selector is a key (a language code, a behavior's
/// path), an index, or `[+]`, the position after the last entry. `behaviors[greet][1]` is the
/// second behavior with the path "greet"; the index 0 of such an entry is omitted. In a selector, a
/// backslash escapes `]` and the backslash itself, and the key "+" is written `[\+]`.
///
/// ```cpp
/// Tano::FieldPath path;
/// path.field("behaviors").entry("greet").field("tags").key("en_US").index(0);
/// path.toString(); // -> behaviors[greet].tags[en_US][0]
/// ```
class TANO_PACKAGE_EXPORT FieldPath {
public:
    /// A key, an index or `[+]`, in brackets after the name of a field.
    struct Selector {
        std::string text;     ///< the key, or the index in decimal digits
        bool appends = false; ///< true for `[+]`

        /// The selector as an index; nullopt unless it is a decimal number without leading zeros.
        TANO_PACKAGE_EXPORT std::optional<int> toIndex() const;
    };

    /// The name of a field with its selectors.
    struct Step {
        std::string field;               ///< the name
        std::vector<Selector> selectors; ///< in order
    };

    /// Why a text is not a path.
    struct Error {
        std::string message;      ///< one sentence
        std::size_t position = 0; ///< the offset of the offending byte
    };

    /// Parses a path; for a malformed one, returns nullopt and sets `error`, if given.
    [[nodiscard]] static std::optional<FieldPath> parse(std::string_view text,
                                                        Error *error = nullptr);
    /// The offset of the first `character` outside selectors, npos if there is none: where to split
    /// "path=value".
    static std::size_t find(std::string_view text, char character);

    /// The path as text, which parse() reads.
    std::string toString() const;

    /// The steps in order.
    const std::vector<Step> &steps() const;
    /// Whether this is the path of the package itself.
    bool isEmpty() const { return steps().empty(); }

    /// Appends the name of a field, and returns this path.
    FieldPath &field(std::string_view name);
    /// Appends a key to the last field.
    FieldPath &key(std::string_view key);
    /// Appends an index to the last field.
    FieldPath &index(int index);
    /// Appends the selectors of an entry: its key and, unless 0, its index among those with that
    /// key.
    FieldPath &entry(std::string_view key, int index = 0);
    /// Appends `[+]`, the position after the last entry.
    FieldPath &end();

    /// The path without its last selector or, if the last field has none, without that field.
    FieldPath parent() const;

private:
    std::vector<Step> &edit();

    std::shared_ptr<std::vector<Step>> m_steps; // shared with copies; null for none
};

/// @{
/// Compares paths and their parts step by step; a path precedes the paths below it.
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
inline bool operator<(const FieldPath &a, const FieldPath &b) {
    return a.steps() < b.steps();
}
/// @}

/// Prints FieldPath::toString().
TANO_PACKAGE_EXPORT std::ostream &operator<<(std::ostream &stream, const FieldPath &path);

} // namespace Tano

/// Hashes paths, for std::unordered_map.
template<>
struct std::hash<Tano::FieldPath> {
    /// Equal paths have equal hashes.
    std::size_t operator()(const Tano::FieldPath &path) const {
        return std::hash<std::string>()(path.toString());
    }
};
