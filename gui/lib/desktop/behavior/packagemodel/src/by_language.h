#pragma once

#include <zel/language.h>

#include <QHash>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

namespace Zel {

inline const RobotLanguage &languageOf(const RobotLanguage &language) {
    return language;
}

template<typename Value>
const RobotLanguage &languageOf(const std::pair<Value, RobotLanguage> &entry) {
    return entry.second;
}

/// An ordered list of entries that each have a language: languages themselves, or values that a
/// model caches for them. If several entries have the same language, lookups and removals refer to
/// the first.
///
/// Adding, finding and removing an entry take amortized constant time, so that a package with many
/// languages is loaded, compared and cleared in linear time. Removals are deferred until the
/// entries are read. Short lists, the usual case, are searched without an index.
template<typename Entry>
class ByLanguage {
public:
    using Entries = std::vector<Entry>;

    ByLanguage() = default;
    // NOLINTNEXTLINE(google-explicit-constructor): it is a vector with an index
    ByLanguage(Entries entries)
        : m_entries(std::move(entries)) {}
    ByLanguage(const ByLanguage &other)
        : m_entries(other.entries()) {}
    ByLanguage(ByLanguage &&other) noexcept = default;
    ~ByLanguage() = default;
    ByLanguage &operator=(ByLanguage other) noexcept {
        std::swap(m_entries, other.m_entries);
        std::swap(m_index, other.m_index);
        ++m_revision;
        return *this;
    }

    // NOLINTNEXTLINE(google-explicit-constructor): the models' getters return the vector
    operator const Entries &() const { return entries(); }

    const Entries &entries() const {
        if (m_index && !m_index->removed.empty())
            dropRemoved();
        return m_entries;
    }

    bool contains(const RobotLanguage &language) const { return find(language) != nullptr; }

    /// The entry of a language, null if there is none. Valid until the entries change.
    const Entry *find(const RobotLanguage &language) const {
        const std::size_t position = positionOf(language);
        return position < m_entries.size() ? &m_entries[position] : nullptr;
    }
    Entry *find(const RobotLanguage &language) {
        return const_cast<Entry *>(std::as_const(*this).find(language));
    }

    /// Changes whenever entries are added or removed.
    std::uint64_t revision() const { return m_revision; }

    Entry &append(Entry entry) {
        ++m_revision;
        if (m_index)
            m_index->add(languageOf(entry), m_entries.size());
        m_entries.push_back(std::move(entry));
        return m_entries.back();
    }

    void remove(const RobotLanguage &language) {
        const std::size_t position = positionOf(language);
        if (position >= m_entries.size())
            return;
        ++m_revision;
        if (m_index && !m_index->hasDuplicates) {
            m_index->positions.remove(language.isoCode());
            m_index->removed.push_back(position);
            return;
        }
        m_entries.erase(m_entries.begin() + std::ptrdiff_t(position));
        m_index.reset();
    }

    /// Moves the entry at `from` so that its new index is `to`.
    void move(int from, int to) {
        static_cast<void>(entries());
        ++m_revision;
        m_index.reset();
        const auto first = m_entries.begin() + std::min(from, to);
        const auto last = m_entries.begin() + std::max(from, to) + 1;
        std::rotate(first, from < to ? first + 1 : last - 1, last);
    }

    /// Removes the entries whose language `isForeign` accepts.
    template<typename Predicate>
    void removeIf(Predicate isForeign) {
        entries();
        ++m_revision;
        m_index.reset();
        m_entries.erase(
            std::remove_if(m_entries.begin(), m_entries.end(),
                           [&](const Entry &entry) { return isForeign(languageOf(entry)); }),
            m_entries.end());
    }

    void clear() {
        ++m_revision;
        m_entries.clear();
        m_index.reset();
    }

private:
    static constexpr std::size_t longestSearched = 16;

    struct Index {
        void add(const RobotLanguage &language, std::size_t position) {
            if (positions.contains(language.isoCode()))
                hasDuplicates = true;
            else
                positions.insert(language.isoCode(), position);
        }

        QHash<QString, std::size_t> positions; // by ISO code
        std::vector<std::size_t> removed;      // removed entries that are still in the vector
        bool hasDuplicates = false;
    };

    // The index of a language's entry, or the number of entries.
    std::size_t positionOf(const RobotLanguage &language) const {
        if (!m_index && m_entries.size() <= longestSearched) {
            const auto found =
                std::find_if(m_entries.begin(), m_entries.end(),
                             [&](const Entry &entry) { return languageOf(entry) == language; });
            return std::size_t(found - m_entries.begin());
        }
        if (!m_index)
            makeIndex();
        return m_index->positions.value(language.isoCode(), m_entries.size());
    }

    void makeIndex() const {
        m_index = std::make_unique<Index>();
        m_index->positions.reserve(int(m_entries.size()));
        for (std::size_t i = 0; i < m_entries.size(); ++i)
            m_index->add(languageOf(m_entries[i]), i);
    }

    void dropRemoved() const {
        std::vector<bool> isRemoved(m_entries.size());
        for (const std::size_t position : m_index->removed)
            isRemoved[position] = true;
        std::size_t kept = 0;
        for (std::size_t i = 0; i < m_entries.size(); ++i) {
            if (!isRemoved[i])
                std::swap(m_entries[kept++], m_entries[i]);
        }
        m_entries.resize(kept);
        m_index.reset();
    }

    mutable Entries m_entries;
    std::uint64_t m_revision = 0;
    mutable std::unique_ptr<Index> m_index; // null for short lists and until the first lookup
};

} // namespace Zel
