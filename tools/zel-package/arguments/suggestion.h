#pragma once

#include <packagemodel/near_words.h>

namespace ZelPackage {

/// "; did you mean 'WORD'?", or `otherwise` if no word is similar.
QString suggestion(const QString &given, const QStringList &words, const QString &otherwise);

} // namespace ZelPackage
