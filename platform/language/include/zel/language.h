#pragma once

#include <zel/robot_language.h>

#include <QStringList>

/// The known languages, and editing of lists with one entry per language. For the user-interface
/// thread only.
///
/// ```cpp
/// Zel::Language::LocalizedStrings names;
/// Zel::Language::setValue(names, QStringLiteral("Thé"), french);
/// for (const auto &[text, language] : names)
///     out << language.uiName() << ": " << text; // -> French (France): Thé
/// ```
namespace Zel::Language {

/// One text per language, in the order in which the languages were added.
using LocalizedStrings = std::vector<std::pair<QString, RobotLanguage>>;
/// One list of texts per language, in the order in which the languages were added.
using LocalizedStringLists = std::vector<std::pair<QStringList, RobotLanguage>>;

/// The languages of the built-in table in ascending order of their codes, then the partial ones in
/// the order of their registration.
ZEL_LANGUAGE_EXPORT RobotLanguages knownLanguages();

/// The languages of the built-in table, in ascending order of their codes.
ZEL_LANGUAGE_EXPORT RobotLanguages builtInLanguages();

/// The codes of builtInLanguages(), whose other texts take longer to look up.
ZEL_LANGUAGE_EXPORT QStringList builtInCodes();

/// Registers a descriptor permanently, so that later lookups of its code find it. Empty and known
/// codes are ignored.
ZEL_LANGUAGE_EXPORT void addPartialLanguage(const RobotLanguage &language);

/// The known language with this code, or a new partial one that stays known as long as the returned
/// descriptor or a copy of it exists. An empty code gives a descriptor with an empty code.
///
/// The models get their languages from this function: a package makes the codes of its manifest
/// known, and they are forgotten with the last package, command or list that uses them.
ZEL_LANGUAGE_EXPORT RobotLanguage languageInUse(const QString &isoCode);

/// The language to fall back to when a text is missing; en_US until setDefaultLanguage().
ZEL_LANGUAGE_EXPORT RobotLanguage defaultLanguage();
/// Changes defaultLanguage(); ignores a language with an empty code.
ZEL_LANGUAGE_EXPORT void setDefaultLanguage(const RobotLanguage &language);

/// Removes `language` from the list, if present.
ZEL_LANGUAGE_EXPORT void removeLanguage(RobotLanguages &languages, const RobotLanguage &language);

/// Replaces the text of `language`, or appends one.
ZEL_LANGUAGE_EXPORT void setValue(LocalizedStrings &values, const QString &text,
                                  const RobotLanguage &language);

/// Appends to the list of `language`, and creates the list if needed.
ZEL_LANGUAGE_EXPORT void addValue(LocalizedStringLists &values, const QString &value,
                                  const RobotLanguage &language);
/// Inserts before the item at `index`, which is clamped to the list; creates the list if needed.
ZEL_LANGUAGE_EXPORT void insertValue(LocalizedStringLists &values, int index, const QString &value,
                                     const RobotLanguage &language);
/// Replaces the item at `index`; does nothing for an index out of range.
ZEL_LANGUAGE_EXPORT void updateValue(LocalizedStringLists &values, int index, const QString &value,
                                     const RobotLanguage &language);
/// Removes the item at `index`, and the language's entry with its last item; does nothing for an
/// index out of range.
ZEL_LANGUAGE_EXPORT void removeValue(LocalizedStringLists &values, int index,
                                     const RobotLanguage &language);

} // namespace Zel::Language
