#pragma once

#include "console.h"
#include "json_text.h"

namespace ZelPackage {

/// Writes a list of JSON objects, each at once and on a line of its own.
class JsonList {
public:
    explicit JsonList(Console &console)
        : m_console(console) {}

    void add(const QJsonObject &object) {
        m_console.print((m_isEmpty ? QStringLiteral("\n") : QStringLiteral(",\n")) %
                        jsonText(object, QJsonDocument::Compact));
        m_isEmpty = false;
    }

private:
    Console &m_console;
    bool m_isEmpty = true;
};

} // namespace ZelPackage
