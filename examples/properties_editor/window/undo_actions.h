#pragma once

#include <QList>

class QAction;
class QObject;
class QUndoStack;

namespace Editor {

/// The actions that undo and redo, owned by `parent`.
QList<QAction *> newUndoActions(QUndoStack &stack, QObject *parent);

} // namespace Editor
