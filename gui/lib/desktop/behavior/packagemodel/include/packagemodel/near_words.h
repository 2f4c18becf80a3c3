#pragma once

#include <packagemodel/packagemodel_export.h>

#include <QString>
#include <QStringList>

// For messages such as "did you mean 'author'?". Case is ignored; a slip is a character that was
// inserted, left out, replaced or swapped with its neighbor, and a word may have one slip for every
// three characters.

namespace Zel {

/// The word that a mistyped or shortened one most likely means; empty if none is near.
PACKAGEMODEL_EXPORT QString nearestWord(const QString &given, const QStringList &words);

/// All words that a mistyped or shortened one may mean, the likeliest first.
PACKAGEMODEL_EXPORT QStringList nearWords(const QString &given, const QStringList &words);

} // namespace Zel
