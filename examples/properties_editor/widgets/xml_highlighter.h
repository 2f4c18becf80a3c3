#pragma once

#include <QSyntaxHighlighter>

namespace Editor {

/// Highlights XML 1.0: tags, attributes, values, references and comments. Colors follow the palette
/// of the text's widget.
class XmlHighlighter : public QSyntaxHighlighter {
    Q_OBJECT

public:
    explicit XmlHighlighter(QTextDocument *document);

    /// Chooses the colors for this background.
    void setBackground(const QColor &color);

protected:
    void highlightBlock(const QString &text) override;

private:
    enum State { Text, Tag, SingleQuoted, DoubleQuoted, Comment };

    bool m_isDark = false;
};

} // namespace Editor
