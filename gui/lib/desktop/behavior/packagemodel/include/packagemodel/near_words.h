#pragma once

#include <packagemodel/packagemodel_export.h>

#include <QString>
#include <QStringList>

/// @file
/// Suggestions for messages such as "did you mean 'author'?". Case is ignored. A word may have one
/// typo, or one for every three characters: a character that is inserted, missing, replaced or
/// swapped with its neighbor.

namespace Zel {

/// The most likely intended word for a mistyped or abbreviated one; empty if none is close.
PACKAGEMODEL_EXPORT QString nearestWord(const QString &given, const QStringList &words);

/// All possible intended words for a mistyped or abbreviated one, the most likely first.
PACKAGEMODEL_EXPORT QStringList nearWords(const QString &given, const QStringList &words);

} // namespace Zel
