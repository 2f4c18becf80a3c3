#pragma once

#include <QStyledItemDelegate>

class QAbstractItemView;
class QLineEdit;

namespace Editor {

class Document;

/// Edits the cells of a TableModel: what is typed goes into the package at once, as one undo step
/// until the editor closes, and a cell at fault is marked while it is typed. Escape takes the step
/// back.
class TypingDelegate : public QStyledItemDelegate {
    Q_OBJECT

public:
    TypingDelegate(Document &document, QAbstractItemView *view);

    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model,
                      const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

    /// Why the text in an editor cannot be taken; empty when it can.
    static QString refusal(const QLineEdit *editor);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void take(QLineEdit *editor);

    Document &m_document;
};

/// Gives a view the delegate, and the manners that the tables of the editor share.
void setUpTable(QAbstractItemView *view, Document &document, const QString &accessibleName);

} // namespace Editor
