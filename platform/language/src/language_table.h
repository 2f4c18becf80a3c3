#pragma once

#include "zel/robot_language.h"

#include <QHash>

#include <vector>

namespace Zel {

/// The known languages: built-in ones, partial ones registered since, and temporary ones that are
/// known only while a descriptor of them is in use.
class LanguageTable {
public:
    /// The process's table, built on first use.
    static LanguageTable &instance();

    /// In the order of knownLanguages().
    RobotLanguages languages() const;

    /// The built-in languages, ordered by code.
    RobotLanguages builtInLanguages() const;

    /// The language with this code, or one with an empty code.
    RobotLanguage find(const QString &isoCode) const;

    /// Registers the language permanently. Ignores an empty code and codes that are already known.
    void add(const RobotLanguage &language);

    /// Like find(), but creates a partial language if needed, which the table drops once no copies
    /// of it remain.
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

    std::vector<Entry> m_entries; // in order of registration
    QHash<QString, std::size_t> m_indexes;
    std::size_t m_builtIn = 0;  // the number of built-in entries, which come first
    std::size_t m_forgetAt = 0; // the number of entries at which unused ones are dropped
    RobotLanguage m_default;
};

} // namespace Zel
