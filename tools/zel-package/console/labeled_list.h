#pragma once

#include "console.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace ZelPackage {

/// Labels, each with its text beside it, wrapped to the width of the terminal.
class LabeledList {
public:
    /// Both of any text; a line feed in `text` starts a new line.
    void add(const QString &label, const QString &text);
    /// The same, left out where the text is empty.
    void addFilled(const QString &label, const QString &text);
    /// A field to look at: "!" stands in the margin, and `remark` in parentheses after the text.
    void addMarked(const QString &label, const QString &text, const QString &remark);

    /// The columns that the labels take.
    int labelWidth() const;
    /// The lines of the list, each after `indent` spaces, at least 2, and with a line feed.
    /// `labelWidth` lines several lists up with one another.
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
