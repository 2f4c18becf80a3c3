#pragma once

#include <QStyledItemDelegate>

class QAbstractItemView;

namespace Editor {

class Document;

/// Edits cells of a TableModel with a TextField or, if a cell has choices, with a combo box. A cell
/// without a field, such as a name that is a key, is set when its editor closes. Escape restores
/// the value from before. If the text is refused, the editor stays open on Return and while another
/// window is active.
class TypingDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    TypingDelegate(Document &document, QAbstractItemView *view);

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    Document &m_document;
};

/// Sets the delegate of a view, and the behavior common to the editor's tables.
void setUpTable(QAbstractItemView *view, Document &document, const QString &accessibleName);

} // namespace Editor
