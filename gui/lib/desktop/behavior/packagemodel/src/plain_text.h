#pragma once

#include <QString>

namespace Zel {

/// The plain text of a script, or why there is none.
struct PlainText {
    QString text;
    QString error;
};

PlainText plainTextOf(const QString &script);

} // namespace Zel
