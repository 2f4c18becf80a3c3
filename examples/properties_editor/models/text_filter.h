#pragma once

#include "text_groups.h"

namespace Editor {

/// Selects texts by state, and by a search in them.
struct TextFilter {
    std::optional<Zel::PackageModel::TextState> state = {};
    QString search = {}; ///< in the source, the target, or the field in words; case-insensitive

    bool passes(const TextGroup &group, int text) const;
};

inline bool operator==(const TextFilter &a, const TextFilter &b) {
    return a.state == b.state && a.search == b.search;
}

} // namespace Editor
