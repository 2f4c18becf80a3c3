#pragma once

#include <QString>
#include <QStringList>

namespace ZelPackage {

/// The word that a mistyped one most likely stands for; empty where none is near.
QString nearestWord(const QString &given, const QStringList &words);

/// All words that a mistyped or shortened one may stand for, the likeliest first.
QStringList nearWords(const QString &given, const QStringList &words);

/// "; did you mean 'WORD'?", or `otherwise` where no word is near.
QString suggestion(const QString &given, const QStringList &words, const QString &otherwise);

} // namespace ZelPackage
