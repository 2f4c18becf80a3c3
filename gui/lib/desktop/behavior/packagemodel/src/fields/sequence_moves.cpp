#include "sequence_moves.h"

#include <QHash>

#include <algorithm>
#include <map>
#include <numeric>

namespace Zel::PackageModel {
namespace {

// Counts the items at consecutive places, as a Fenwick tree.
class PlaceCounts {
public:
    explicit PlaceCounts(int placeCount)
        : m_placeCount(placeCount) {}

    void add(int place, int count) {
        for (int node = place + 1; node <= m_placeCount; node += node & -node)
            m_sums[node] += count;
    }
    int before(int place) const {
        int sum = 0;
        for (int node = place; node > 0; node -= node & -node)
            sum += m_sums.value(node);
        return sum;
    }

private:
    int m_placeCount;
    QHash<int, int> m_sums; // sparse, since there is one object per name
};

// Marks the elements of a longest increasing subsequence of distinct numbers.
std::vector<bool> longestRun(const std::vector<int> &numbers) {
    std::vector<int> ends; // for each length, the position of the lowest last number
    std::vector<int> previous(numbers.size(), -1);
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const auto end =
            std::lower_bound(ends.begin(), ends.end(), numbers[i], [&](int position, int number) {
                return numbers[std::size_t(position)] < number;
            });
        if (end != ends.begin())
            previous[i] = *std::prev(end);
        if (end == ends.end())
            ends.push_back(int(i));
        else
            *end = int(i);
    }
    std::vector<bool> isInRun(numbers.size());
    for (int i = ends.empty() ? -1 : ends.back(); i >= 0; i = previous[std::size_t(i)])
        isInRun[std::size_t(i)] = true;
    return isInRun;
}

std::vector<int> pairedInOldOrder(const SequenceMatch &match) {
    std::vector<int> items;
    for (int i = 0; i < match.oldSize(); ++i) {
        if (match.newIndex(i) != SequenceMatch::none)
            items.push_back(match.newIndex(i));
    }
    return items;
}

} // namespace

// Place i + 1 is that of old item i; place 0 precedes all. A moved item goes to the place of the
// last unmoved item before it, behind those that were moved there earlier.
std::vector<SequenceMove> movesOf(const SequenceMatch &match, const QStringList &names) {
    const std::vector<int> items = pairedInOldOrder(match);
    std::vector<SequenceMove> moves;
    if (std::is_sorted(items.begin(), items.end()))
        return moves;

    const int placeCount = int(items.size()) + 1;
    PlaceCounts all(placeCount);
    std::map<QString, PlaceCounts> byName;
    const auto count = [&](int item, int place, int change) {
        all.add(place, change);
        byName.try_emplace(names.at(item), placeCount).first->second.add(place, change);
    };
    const auto itemAt = [&](int place) { return items[std::size_t(place - 1)]; };
    for (int place = 1; place < placeCount; ++place)
        count(itemAt(place), place, 1);

    std::vector<int> places(items.size()); // in the items' new order
    std::iota(places.begin(), places.end(), 1);
    std::sort(places.begin(), places.end(), [&](int a, int b) { return itemAt(a) < itemAt(b); });
    const std::vector<bool> stays = longestRun(items);
    int target = 0;
    for (const int place : places) {
        if (stays[std::size_t(place - 1)]) {
            target = place;
            continue;
        }
        const int item = itemAt(place);
        const int occurrence = byName.at(names.at(item)).before(place);
        count(item, place, -1);
        moves.push_back({item, occurrence, all.before(target + 1)});
        count(item, target, 1);
    }
    return moves;
}

} // namespace Zel::PackageModel
