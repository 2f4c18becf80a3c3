#pragma once

#include "console.h"

#include <QString>

#include <vector>

namespace ZelPackage {

/// A table in columns that line up, two spaces apart, under their titles.
class TextTable {
public:
    enum class Align { Left, Center, Right };

    struct Column {
        QString title;
        Align align = Align::Left;
        QString group = {}; ///< stands above neighboring columns of the same group
    };

    /// One line of printable text.
    struct Cell {
        QString text;
        Style style = Style::Plain;
    };
    using Row = std::vector<Cell>;

    explicit TextTable(std::vector<Column> columns);

    /// A row has at most as many cells as the table has columns.
    void addRow(const Row &row);

    /// How many columns of the terminal the table takes.
    int width() const;
    /// The lines of the table, each after `indent` spaces and with a line feed. Where the output is
    /// too narrow, the last column is wrapped or, where that is not enough, each row becomes a list
    /// of its titled cells.
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
