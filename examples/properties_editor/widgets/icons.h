#pragma once

#include <QIcon>

namespace Editor {

/// The icons of the editor, in the order of their drawings.
enum class Symbol {
    New,
    Open,
    Recent,
    Save,
    SaveAs,
    Publish,
    Reload,
    Quit,
    Undo,
    Redo,
    Identity,
    Languages,
    Translation,
    Requirements,
    Behaviors,
    Dialogs,
    Services,
    Review,
    Find,
    Add,
    Remove,
    Check,
    Clear,
    Error,
    Warning,
    Note,
    Question,
};

/// An icon that scales and uses the current palette.
QIcon iconOf(Symbol symbol);

} // namespace Editor
