#pragma once

#include "zel/robot_language.h"

#include <QHash>
#include <QJsonObject>

#include <vector>

namespace Zel {

/// The known languages: built-in ones, partial ones registered since, and temporary ones that are
/// known only while a descriptor of them is in use.
class LanguageTable {
public:
    /// The process's table, built on first use.
    static LanguageTable &instance();

    /// In the order of knownLanguages().
    RobotLanguages languages();

    /// The built-in languages, ordered by code.
    RobotLanguages builtInLanguages();
    QStringList builtInCodes() const;

    /// The language with this code, or one with an empty code.
    RobotLanguage find(const QString &isoCode);

    /// Registers the language permanently. Ignores an empty code and codes that are already known.
    void add(const RobotLanguage &language);

    /// Like find(), but creates a partial language if needed, which the table drops once no copies
    /// of it remain.
    RobotLanguage findOrLend(const QString &isoCode);

    const RobotLanguage &defaultLanguage() const { return m_default; }
    void setDefaultLanguage(const RobotLanguage &language);

private:
    struct Entry {
        QString code;
        RobotLanguage language = {};
        bool isLent = false;  // known only while its descriptor has other copies
        QJsonObject row = {}; // of a built-in language that was not used yet

        bool isKnown() const { return !isLent || language.hasCopies(); }
    };

    LanguageTable();

    static const RobotLanguage &languageOf(Entry &entry);
    void append(Entry entry);
    void forgetUnused();

    std::vector<Entry> m_entries; // in order of registration
    QHash<QString, std::size_t> m_indexes;
    std::size_t m_builtIn = 0;  // the number of built-in entries, which come first
    std::size_t m_forgetAt = 0; // the number of entries at which unused ones are dropped
    RobotLanguage m_default;
};

} // namespace Zel
