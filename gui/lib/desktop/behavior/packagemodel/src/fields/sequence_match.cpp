#include "sequence_match.h"

#include <QHash>

#include <algorithm>

namespace Zel::PackageModel {

SequenceMatch::SequenceMatch(int oldSize, int newSize)
    : m_newIndexes(std::size_t(oldSize), none)
    , m_oldIndexes(std::size_t(newSize), none) {
}

bool SequenceMatch::isFree(int oldIndex, int newIndex) const {
    return this->newIndex(oldIndex) == none && this->oldIndex(newIndex) == none;
}

void SequenceMatch::pair(int oldIndex, int newIndex) {
    m_newIndexes[std::size_t(oldIndex)] = newIndex;
    m_oldIndexes[std::size_t(newIndex)] = oldIndex;
}

void SequenceMatch::pairEqual(const QStringList &oldTexts, const QStringList &newTexts) {
    const auto pairIfEqual = [&](int oldIndex, int newIndex) {
        const bool isPair =
            isFree(oldIndex, newIndex) && oldTexts.at(oldIndex) == newTexts.at(newIndex);
        if (isPair)
            pair(oldIndex, newIndex);
        return isPair;
    };
    const int shorter = std::min(oldSize(), newSize());
    int fromStart = 0;
    while (fromStart < shorter && pairIfEqual(fromStart, fromStart))
        ++fromStart;
    int fromEnd = 1;
    while (fromEnd <= shorter && pairIfEqual(oldSize() - fromEnd, newSize() - fromEnd))
        ++fromEnd;

    QHash<QString, std::vector<int>> free; // old indexes, in descending order
    for (int i = oldSize() - 1; i >= 0; --i) {
        if (newIndex(i) == none)
            free[oldTexts.at(i)].push_back(i);
    }
    for (int i = 0; i < newSize(); ++i) {
        const auto found = oldIndex(i) == none ? free.find(newTexts.at(i)) : free.end();
        if (found == free.end() || found->empty())
            continue;
        pair(found->back(), i);
        found->pop_back();
    }
}

void SequenceMatch::pairReplaced() {
    for (int i = 0; i < newSize(); ++i) {
        const int previous = i == 0 ? none : oldIndex(i - 1);
        if (i > 0 && previous == none)
            continue;
        if (previous + 1 < oldSize() && isFree(previous + 1, i))
            pair(previous + 1, i);
    }
}

} // namespace Zel::PackageModel
