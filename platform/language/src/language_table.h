#pragma once

#include "zel/robot_language.h"

#include <QHash>

namespace Zel {

/// The languages that can be looked up: the built-in ones, and the partial ones registered since.
class LanguageTable {
public:
    /// The process's table, built on first use.
    static LanguageTable &instance();

    /// In the order of knownLanguages().
    [[nodiscard]] const RobotLanguages &languages() const { return m_languages; }

    /// The language with an empty code, where there is none of this code.
    [[nodiscard]] RobotLanguage find(const QString &isoCode) const {
        return m_byCode.value(isoCode);
    }

    /// Leaves the table as it is for a code that is empty or already there.
    void add(const RobotLanguage &language);

    [[nodiscard]] const RobotLanguage &defaultLanguage() const { return m_default; }
    void setDefaultLanguage(const RobotLanguage &language);

private:
    LanguageTable();

    RobotLanguages m_languages;
    QHash<QString, RobotLanguage> m_byCode;
    RobotLanguage m_default;
};

} // namespace Zel
