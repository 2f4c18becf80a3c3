#include "undo_actions.h"

#include "widgets/icons.h"
#include "widgets/plain_text.h"

#include <QAction>
#include <QCoreApplication>
#include <QUndoStack>

namespace Editor {
namespace {

QString text(const char *source) {
    return QCoreApplication::translate("Editor::MainWindow", source);
}

} // namespace

QList<QAction *> newUndoActions(QUndoStack &stack, QObject *parent) {
    QAction *undo =
        stack.createUndoAction(parent, text(QT_TRANSLATE_NOOP("Editor::MainWindow", "&Undo")));
    undo->setShortcuts(QKeySequence::Undo);
    undo->setIcon(iconOf(Symbol::Undo));
    QAction *redo =
        stack.createRedoAction(parent, text(QT_TRANSLATE_NOOP("Editor::MainWindow", "&Redo")));
    redo->setShortcuts(QKeySequence::Redo);
    redo->setIcon(iconOf(Symbol::Redo));
    for (QAction *action : {undo, redo}) {
        // The default tool tip is the command's text, in which a value may look like markup.
        const auto update = [action] { action->setToolTip(toolTipOf(action->iconText())); };
        QObject::connect(action, &QAction::changed, action, update);
        update();
    }
    return {undo, redo};
}

} // namespace Editor
