#pragma once

#include "document/document.h"

#include <QPlainTextEdit>

namespace Editor {

class XmlHighlighter;

/// Shows the manifest as it would be saved, read-only, at a field. Of a large manifest, only shows
/// the lines around the field.
class XmlView : public QPlainTextEdit {
    Q_OBJECT

public:
    explicit XmlView(Document &document, QWidget *parent = nullptr);

    /// Updates the text, scrolls to a field and marks its line.
    void showField(const Tano::FieldPath &path);

protected:
    void changeEvent(QEvent *event) override;

private:
    void refreshColors();

    Document &m_document;
    XmlHighlighter *m_highlighter;
};

} // namespace Editor
