#pragma once

#include "console.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace ZelPackage {

/// Labels with texts beside them, wrapped to the width of the terminal.
class LabeledList {
public:
    /// Takes any texts; a line feed in `text` starts a new line.
    void add(const QString &label, const QString &text);
    /// Like add(), unless the text is empty.
    void addFilled(const QString &label, const QString &text);
    /// Adds a field that needs attention: "!" in the margin, and `remark` in parentheses after the
    /// text.
    void addMarked(const QString &label, const QString &text, const QString &remark);

    /// The width of the label column.
    int labelWidth() const;
    /// The lines of the list, each indented by `indent` spaces, at least 2, and ended by a line
    /// feed. `labelWidth` aligns several lists.
    QString toText(const Console &console, int indent, int labelWidth) const;
    QString toText(const Console &console, int indent) const {
        return toText(console, indent, labelWidth());
    }

private:
    struct Field {
        QString label;
        QString text;
        QString remark;
    };

    static QStringList linesOf(const Field &field, int width, const Console &console);

    std::vector<Field> m_fields;
};

} // namespace ZelPackage
