#include "extras.h"

#include <algorithm>
#include <deque>
#include <iterator>
#include <limits>
#include <unordered_map>

namespace Tano {
namespace {

constexpr int gone = -1;

// Where each original entry of a list stands now, `gone` for one that was removed. Entries are
// found again by what tells them apart; one that is left over and stands right behind the same
// neighbour as before was changed in place.
std::vector<int> currentIndexes(const std::vector<std::string> &original,
                                const std::vector<std::string> &current) {
    std::unordered_map<std::string, std::deque<int>> free;
    for (std::size_t i = 0; i < current.size(); ++i)
        free[current[i]].push_back(int(i));

    std::vector<int> indexes(original.size(), gone);
    std::vector<bool> taken(current.size(), false);
    for (std::size_t i = 0; i < original.size(); ++i) {
        const auto it = free.find(original[i]);
        if (it == free.end() || it->second.empty())
            continue;
        indexes[i] = it->second.front();
        it->second.pop_front();
        taken[std::size_t(indexes[i])] = true;
    }

    for (std::size_t i = 0; i < original.size(); ++i) {
        if (indexes[i] != gone)
            continue;
        if (i != 0 && indexes[i - 1] == gone)
            continue;
        const std::size_t candidate = i == 0 ? 0 : std::size_t(indexes[i - 1]) + 1;
        if (candidate < current.size() && !taken[candidate]) {
            indexes[i] = int(candidate);
            taken[candidate] = true;
        }
    }
    return indexes;
}

using CurrentIndexes = std::map<Extras::ListId, std::vector<int>>;

// What stood before a removed entry stands before the next one that is still there, else at the
// end of the list.
Position currentAnchor(const Position &position, const CurrentIndexes &lists) {
    const auto list = lists.find({position.element, position.key});
    if (list == lists.end())
        return position;
    for (auto i = std::size_t(position.index); i < list->second.size(); ++i) {
        if (list->second[i] != gone)
            return {position.element, position.key, list->second[i]};
    }
    return {position.element, position.key, std::numeric_limits<int>::max()};
}

} // namespace

void rememberLists(Extras &extras, const ListKeys &listKeys) {
    const auto remember = [&](const Position &position) {
        if (position.element >= Element::Count || ruleOf(position.element).occurs == Occurs::Once)
            return;
        const Extras::ListId id(position.element, position.key);
        if (extras.lists.find(id) == extras.lists.end()) {
            auto keys = listKeys(id);
            if (!keys.empty())
                extras.lists.emplace(id, std::move(keys));
        }
    };
    for (const Extras::Kept &kept : extras.kept)
        remember(kept.before);
    for (const auto &child : extras.children)
        remember(child.first);
}

void dropForeign(ExtrasPointer &extras, Element element, const std::vector<std::string> &keys) {
    const auto isForeign = [&](const auto &child) {
        return child.first.element == element &&
               std::find(keys.begin(), keys.end(), child.first.key) == keys.end();
    };
    if (!extras || std::none_of(extras->children.begin(), extras->children.end(), isForeign))
        return;
    auto edited = std::make_shared<Extras>(*extras);
    for (auto it = edited->children.begin(); it != edited->children.end();)
        it = isForeign(*it) ? edited->children.erase(it) : std::next(it);
    extras = std::move(edited);
}

ExtrasWalk::ExtrasWalk(const Extras *extras, const ListKeys &listKeys) {
    if (!extras)
        return;
    CurrentIndexes lists;
    for (const auto &[id, original] : extras->lists)
        lists.emplace(id, currentIndexes(original, listKeys(id)));

    m_kept.reserve(extras->kept.size());
    for (const Extras::Kept &kept : extras->kept)
        m_kept.emplace_back(currentAnchor(kept.before, lists), &kept.xml);
    std::stable_sort(m_kept.begin(), m_kept.end(),
                     [](const auto &a, const auto &b) { return a.first < b.first; });

    for (const auto &[position, child] : extras->children) {
        Position now = position;
        const auto list = lists.find({position.element, position.key});
        if (list != lists.end())
            now.index = list->second[std::size_t(position.index)];
        if (now.index != gone)
            m_children.emplace(std::move(now), child.get());
    }
}

std::vector<const std::string *> ExtrasWalk::childKeys(Element element) const {
    std::vector<const std::string *> keys;
    for (const auto &child : m_children) {
        if (child.first.element == element)
            keys.push_back(&child.first.key);
    }
    return keys;
}

} // namespace Tano
