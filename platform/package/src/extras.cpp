#include "extras.h"

#include <algorithm>
#include <limits>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace Tano {
namespace {

constexpr int gone = -1;

// The current index of each original entry, `gone` for removed ones. Entries are matched by key; an
// unmatched entry directly after the same neighbor counts as changed in place.
std::vector<int> currentIndexes(const std::vector<std::string> &original,
                                const std::vector<std::string> &current) {
    std::unordered_map<std::string_view, int> firstFree;
    std::vector<int> nextEqual(current.size(), gone);
    for (std::size_t i = current.size(); i-- > 0;) {
        const auto [it, isNew] = firstFree.emplace(current[i], int(i));
        if (!isNew)
            nextEqual[i] = std::exchange(it->second, int(i));
    }

    std::vector<int> indexes(original.size(), gone);
    std::vector<bool> taken(current.size(), false);
    for (std::size_t i = 0; i < original.size(); ++i) {
        const auto it = firstFree.find(original[i]);
        if (it == firstFree.end() || it->second == gone)
            continue;
        indexes[i] = it->second;
        taken[std::size_t(indexes[i])] = true;
        it->second = nextEqual[std::size_t(indexes[i])];
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

// The current indexes of a list's original entries, and for each the index of the first remaining
// entry at or after it.
struct CurrentList {
    std::vector<int> indexes;
    std::vector<int> anchors;
};

CurrentList currentList(const std::vector<std::string> &original,
                        const std::vector<std::string> &current) {
    CurrentList list{currentIndexes(original, current), {}};
    list.anchors = list.indexes;
    int next = std::numeric_limits<int>::max(); // the end of the list
    for (auto it = list.anchors.rbegin(); it != list.anchors.rend(); ++it)
        next = *it = *it == gone ? next : *it;
    return list;
}

using CurrentLists = std::map<Extras::ListId, CurrentList>;

const CurrentList *listOfPosition(const CurrentLists &lists, const Position &position) {
    if (lists.empty())
        return nullptr;
    const auto it = lists.find({position.element, position.keyText()});
    return it == lists.end() ? nullptr : &it->second;
}

} // namespace

void rememberLists(Extras &extras, const ListKeys &listKeys) {
    Extras::Lists lists;
    const auto remember = [&](const Position &position) {
        if (position.element >= Element::None || ruleOf(position.element).occurs == Occurs::Once)
            return;
        Extras::ListId id(position.element, position.keyText());
        if (lists.find(id) == lists.end()) {
            auto keys = listKeys(id);
            if (!keys.empty())
                lists.emplace(std::move(id), std::move(keys));
        }
    };
    for (const Extras::Kept &kept : extras.kept)
        remember(kept.before);
    for (const Extras::Child &child : extras.children)
        remember(child.position);
    if (!lists.empty())
        extras.lists = std::make_shared<const Extras::Lists>(std::move(lists));
}

void dropChildren(ExtrasPointer &extras, Element element,
                  const std::function<bool(const std::string &key)> &isDropped) {
    const auto isForeign = [&](const Extras::Child &child) {
        return child.position.element == element && isDropped(child.position.keyText());
    };
    if (!extras || std::none_of(extras->children.begin(), extras->children.end(), isForeign))
        return;
    auto edited = std::make_shared<Extras>(*extras);
    auto &children = edited->children;
    children.erase(std::remove_if(children.begin(), children.end(), isForeign), children.end());
    extras = std::move(edited);
}

void hideChild(ExtrasPointer &extras, Element element, const std::string &key, bool isHidden) {
    const int index = isHidden ? gone : 0;
    const auto isChanged = [&](const Extras::Child &child) {
        return child.position.element == element && child.position.keyText() == key &&
               child.position.index != index;
    };
    if (!extras || std::none_of(extras->children.begin(), extras->children.end(), isChanged))
        return;
    auto edited = std::make_shared<Extras>(*extras);
    for (Extras::Child &child : edited->children) {
        if (isChanged(child))
            child.position.index = index;
    }
    extras = std::move(edited);
}

ExtrasWalk::ExtrasWalk(const Extras *extras, const ListKeys &listKeys) {
    if (!extras)
        return;
    CurrentLists lists;
    if (extras->lists) {
        for (const auto &[id, original] : *extras->lists)
            lists.emplace(id, currentList(original, listKeys(id)));
    }

    m_kept.reserve(extras->kept.size());
    for (const Extras::Kept &kept : extras->kept) {
        Position now = kept.before;
        if (const CurrentList *list = listOfPosition(lists, now))
            now.index = list->anchors[std::size_t(now.index)];
        m_kept.emplace_back(std::move(now), &kept.xml);
    }
    const auto ascending = [](const auto &a, const auto &b) { return a.first < b.first; };
    std::stable_sort(m_kept.begin(), m_kept.end(), ascending);

    m_children.reserve(extras->children.size());
    for (const auto &[position, child] : extras->children) {
        Position now = position;
        if (const CurrentList *list = listOfPosition(lists, position))
            now.index = list->indexes[std::size_t(position.index)];
        if (now.index != gone)
            m_children.emplace_back(std::move(now), child.get());
    }
    std::sort(m_children.begin(), m_children.end(), ascending);
}

const Extras *ExtrasWalk::child(Element element, std::string_view key, int index) const {
    const Place place{element, key, index};
    const auto it =
        std::lower_bound(m_children.begin(), m_children.end(), place,
                         [](const auto &child, const Place &p) { return child.first.place() < p; });
    return it == m_children.end() || place < it->first.place() ? nullptr : it->second;
}

std::vector<const std::string *> ExtrasWalk::childKeys(Element element) const {
    std::vector<const std::string *> keys;
    for (const auto &child : m_children) {
        if (child.first.element == element)
            keys.push_back(&child.first.keyText());
    }
    return keys;
}

} // namespace Tano
