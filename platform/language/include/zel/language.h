#pragma once

#include <zel/robot_language.h>

#include <QStringList>

/// The languages that the tool knows, and the editing of lists that hold one entry per language.
/// All of it belongs to the user-interface thread.
namespace Zel::Language {

/// One text per language, in the order in which the languages were added.
using LocalizedStrings = std::vector<std::pair<QString, RobotLanguage>>;
/// One list of texts per language, in the order in which the languages were added.
using LocalizedStringLists = std::vector<std::pair<QStringList, RobotLanguage>>;

/// The languages of the built-in table in ascending order of their codes, then the partial ones in
/// the order of their registration.
ZEL_LANGUAGE_EXPORT RobotLanguages knownLanguages();

/// Those that the tool comes with, in ascending order of their codes.
ZEL_LANGUAGE_EXPORT RobotLanguages builtInLanguages();

/// Registers a descriptor for good, so that later look-ups of its code find it. Ignores an empty
/// code; a code that is known already keeps its descriptor.
ZEL_LANGUAGE_EXPORT void addPartialLanguage(const RobotLanguage &language);

/// The known language with that code, else a new partial one that is known as long as the returned
/// descriptor or a copy of it exists. An empty code gives a descriptor whose code is empty.
///
/// The models get their languages from here. A package therefore makes the codes of its manifest
/// known, and they are forgotten with the last package, command or list that uses them.
ZEL_LANGUAGE_EXPORT RobotLanguage languageInUse(const QString &isoCode);

/// The language that stands in where a text is missing: en_US until setDefaultLanguage(), which
/// ignores a language whose code is empty.
ZEL_LANGUAGE_EXPORT RobotLanguage defaultLanguage();
ZEL_LANGUAGE_EXPORT void setDefaultLanguage(const RobotLanguage &language);

/// Erases the entry equal to `language`, if any.
ZEL_LANGUAGE_EXPORT void removeLanguage(RobotLanguages &languages, const RobotLanguage &language);

/// Replaces the text of `language`, or appends the pair where the language has none.
ZEL_LANGUAGE_EXPORT void setValue(LocalizedStrings &values, const QString &text,
                                  const RobotLanguage &language);

/// Appends to the list of `language`, which is made where the language has none.
ZEL_LANGUAGE_EXPORT void addValue(LocalizedStringLists &values, const QString &value,
                                  const RobotLanguage &language);
/// Inserts before the item at `index`, which is clamped to the list; the list is made where the
/// language has none.
ZEL_LANGUAGE_EXPORT void insertValue(LocalizedStringLists &values, int index, const QString &value,
                                     const RobotLanguage &language);
/// Replaces the item at `index`; does nothing for an index outside the list.
ZEL_LANGUAGE_EXPORT void updateValue(LocalizedStringLists &values, int index, const QString &value,
                                     const RobotLanguage &language);
/// Removes the item at `index`, and the language's entry with its last item; does nothing for an
/// index outside the list.
ZEL_LANGUAGE_EXPORT void removeValue(LocalizedStringLists &values, int index,
                                     const RobotLanguage &language);

} // namespace Zel::Language
