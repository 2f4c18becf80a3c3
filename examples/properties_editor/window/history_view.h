#pragma once

#include <QUndoView>

namespace Editor {

/// The undo steps of a document; choosing one undoes or redoes up to it.
class HistoryView : public QUndoView {
public:
    using QUndoView::QUndoView;

protected:
    /// Qt's model resets itself while it follows a choice, which invalidates the indexes that this
    /// was called with.
    void currentChanged(const QModelIndex &, const QModelIndex &) override {
        QUndoView::currentChanged(currentIndex(), QModelIndex());
    }
};

} // namespace Editor
