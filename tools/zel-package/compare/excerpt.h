#pragma once

#include <QString>

namespace ZelPackage {

/// A text in quotation marks on one line, printable and cut if it is long.
QString excerpt(const QString &text);

/// Two texts like that, each cut so that the first difference between them shows.
struct Excerpts {
    QString before;
    QString after;
};
Excerpts excerpts(const QString &before, const QString &after);

} // namespace ZelPackage
