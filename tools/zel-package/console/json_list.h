#pragma once

#include "console.h"
#include "json_text.h"

#include <QLatin1String>

namespace ZelPackage {

/// Writes a list of JSON objects incrementally, one per line.
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

/// Writes a document with a single list: {"format": 1, "NAME": [...]}.
class JsonListForm {
public:
    JsonListForm(QLatin1String name, Console &console)
        : m_console(console)
        , m_list(console) {
        console.print(QStringLiteral("{\"format\": 1,\n\"%1\": [").arg(name));
    }

    void add(const QJsonObject &object) { m_list.add(object); }
    void finish() { m_console.print(QStringLiteral("]}\n")); }

private:
    Console &m_console;
    JsonList m_list;
};

} // namespace ZelPackage
