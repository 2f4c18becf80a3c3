#pragma once

#include "text_groups.h"

namespace Editor {

/// Which texts a translator wants to see: those in a state, or all, that hold what is searched for.
struct TextFilter {
    std::optional<Zel::PackageModel::TextState> state = {};
    QString search = {}; ///< in the source, the target, or the field in words; in any case

    bool passes(const TextGroup &group, int text) const;
};

inline bool operator==(const TextFilter &a, const TextFilter &b) {
    return a.state == b.state && a.search == b.search;
}

} // namespace Editor
