#pragma once

#include <QSyntaxHighlighter>

namespace Editor {

/// Colors XML 1.0: tags, attributes, their values, references and comments. The colors follow the
/// palette of the text's widget, light or dark.
class XmlHighlighter : public QSyntaxHighlighter {
    Q_OBJECT

public:
    explicit XmlHighlighter(QTextDocument *document);

    /// Takes the colors for a background as light as that one.
    void setBackground(const QColor &color);

protected:
    void highlightBlock(const QString &text) override;

private:
    enum State { Text, Tag, SingleQuoted, DoubleQuoted, Comment };

    bool m_isDark = false;
};

} // namespace Editor
