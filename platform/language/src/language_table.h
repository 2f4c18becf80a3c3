#pragma once

#include "zel/robot_language.h"

#include <QHash>

#include <vector>

namespace Zel {

/// The languages that can be looked up: the built-in ones, the partial ones registered since, and
/// those known only while a descriptor of them is in use.
class LanguageTable {
public:
    /// The process's table, built on first use.
    static LanguageTable &instance();

    /// In the order of knownLanguages().
    RobotLanguages languages() const;

    /// Those that the tool comes with, in ascending order of their codes.
    RobotLanguages builtInLanguages() const;

    /// The language with an empty code if there is none with this code.
    RobotLanguage find(const QString &isoCode) const;

    /// Keeps the language for good. Does nothing for an empty code; a code that is known already
    /// keeps its descriptor.
    void add(const RobotLanguage &language);

    /// find(), or a new partial language that the table forgets once nobody else has a copy of it.
    RobotLanguage findOrLend(const QString &isoCode);

    const RobotLanguage &defaultLanguage() const { return m_default; }
    void setDefaultLanguage(const RobotLanguage &language);

private:
    struct Entry {
        RobotLanguage language;
        bool isLent = false; // known only while its descriptor has other copies

        bool isKnown() const { return !isLent || language.hasCopies(); }
    };

    LanguageTable();

    void append(const RobotLanguage &language, bool isLent);
    void forgetUnused();

    std::vector<Entry> m_entries; // in the order of their registration
    QHash<QString, std::size_t> m_indexes;
    std::size_t m_builtIn = 0;  // how many of them, from the first on, are built in
    std::size_t m_forgetAt = 0; // the number of entries at which unused ones are dropped next
    RobotLanguage m_default;
};

} // namespace Zel
