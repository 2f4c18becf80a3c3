#pragma once

#include "manifest_format.h"

#include <algorithm>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace Tano {

/// The keys of the children of an element that may stand once each.
///
/// Keys that come in ascending order, as they are written, cost a comparison; any other order costs
/// a look-up.
class SeenKeys {
public:
    void clear() {
        m_ascending.clear();
        m_others.clear();
    }

    /// Returns false when the key is there already.
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
    std::set<Key> m_others; // those that came when a greater one was there
};

} // namespace Tano
