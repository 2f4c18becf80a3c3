#pragma once

#include <QStyledItemDelegate>

class QAbstractItemView;

namespace Editor {

class Document;

/// Edits the cells of a TableModel with a TextField or, where a cell has choices, with a list of
/// them. A cell without a field, such as a name that is a key, is set when its editor closes.
/// Escape restores what the cell held when its editor opened. A cell whose text is refused stays
/// open on Return, and while another window is active.
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

/// Gives a view the delegate, and the manners that the tables of the editor share.
void setUpTable(QAbstractItemView *view, Document &document, const QString &accessibleName);

} // namespace Editor
