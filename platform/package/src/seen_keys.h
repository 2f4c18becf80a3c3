#pragma once

#include "manifest_format.h"

#include <algorithm>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace Tano {

/// The keys of an element's children that may occur only once each.
///
/// Ascending keys, as the writer produces them, cost one comparison; others cost a lookup.
class SeenKeys {
public:
    void clear() {
        m_ascending.clear();
        m_others.clear();
    }

    /// Returns false if the key is a duplicate.
    bool add(Element element, const std::string &key) {
        Key added(element, key);
        const bool isNext = m_ascending.empty() || m_ascending.back() < added;
        if (!isNext && std::binary_search(m_ascending.begin(), m_ascending.end(), added))
            return false;
        if (!isNext)
            return m_others.insert(std::move(added)).second;
        if (m_others.count(added) != 0)
            return false;
        m_ascending.push_back(std::move(added));
        return true;
    }

private:
    using Key = std::pair<Element, std::string>;

    std::vector<Key> m_ascending;
    std::set<Key> m_others; // keys smaller than the greatest one at their insertion
};

} // namespace Tano
