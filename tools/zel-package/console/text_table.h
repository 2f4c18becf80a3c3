#pragma once

#include "console.h"

#include <QString>

#include <vector>

namespace ZelPackage {

/// A table with aligned columns, two spaces apart, below their titles.
class TextTable {
public:
    enum class Align { Left, Center, Right };

    struct Column {
        QString title;
        Align align = Align::Left;
        QString group = {}; ///< shown above neighboring columns of the same group
    };

    /// One line of printable text.
    struct Cell {
        QString text;
        Style style = Style::Plain;
    };
    using Row = std::vector<Cell>;

    explicit TextTable(std::vector<Column> columns);

    /// A row must not have more cells than the table has columns.
    void addRow(const Row &row);

    /// The width of the table in columns of the terminal.
    int width() const;
    /// The lines of the table, each indented by `indent` spaces and ended by a line feed. If the
    /// output is too narrow, wraps the last column or, if that is not enough, shows each row as a
    /// list of titled cells.
    QString toText(const Console &console, int indent) const;

private:
    QString groupLine() const;
    QString toLines(const Console &console, int indent, int lastWidth) const;
    QString toRecords(const Console &console, int indent) const;

    std::vector<Column> m_columns;
    std::vector<int> m_widths;
    std::vector<Row> m_rows;
};

} // namespace ZelPackage
