#include "xml_view.h"

#include "xml_highlighter.h"

#include <tano/manifest_reader.h>

#include <QEvent>
#include <QFontDatabase>
#include <QTextBlock>

namespace Editor {
namespace {

// QPlainTextEdit lays out this much text without a noticeable pause.
constexpr int largestSize = 1 << 20;
constexpr int linesAround = 500;

struct Excerpt {
    QString text;
    int line; // of the field in the text, counted from 0
};

Excerpt excerptAround(const QString &xml, int line) {
    if (xml.size() <= largestSize)
        return {xml, line};
    const QString ellipsis = QStringLiteral("…");
    const int first = std::max(0, line - linesAround);
    QString text = xml.section(u'\n', first, line + linesAround);
    const int before = first > 0 ? 1 : 0;
    if (before > 0)
        text.prepend(ellipsis + u'\n');
    return {text + u'\n' + ellipsis, line - first + before};
}

} // namespace

XmlView::XmlView(Document &document, QWidget *parent)
    : QPlainTextEdit(parent)
    , m_document(document)
    , m_highlighter(new XmlHighlighter(this->document())) {
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setTabChangesFocus(true);
    setLineWrapMode(NoWrap);
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setAccessibleName(tr("The manifest as XML"));
    refreshColors();
}

void XmlView::showField(const Tano::FieldPath &path) {
    m_document.package()->syncRecord();
    const auto &record = m_document.package()->packageInfo();
    const std::string xml = record.saveToManifestContent();
    if (xml.empty()) {
        setPlainText(Zel::fromUtf8(record.errorString()));
        setExtraSelections({});
        return;
    }
    Tano::ManifestReader reader(Tano::ManifestReader::Positions::Keep);
    Tano::PackageInfo written;
    const bool isRead = reader.readContent(xml, written);
    const auto position = isRead ? reader.position(path) : Tano::SourcePosition();
    const Excerpt excerpt = excerptAround(Zel::fromUtf8(xml), std::max(int(position.line) - 1, 0));
    if (toPlainText() != excerpt.text)
        setPlainText(excerpt.text);

    QTextEdit::ExtraSelection mark;
    mark.cursor = QTextCursor(document()->findBlockByNumber(excerpt.line));
    mark.format.setProperty(QTextFormat::FullWidthSelection, true);
    mark.format.setBackground(palette().alternateBase());
    setTextCursor(mark.cursor);
    centerCursor();
    setExtraSelections({mark});
}

void XmlView::changeEvent(QEvent *event) {
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        refreshColors();
}

void XmlView::refreshColors() {
    m_highlighter->setBackground(palette().color(QPalette::Base));
}

} // namespace Editor
