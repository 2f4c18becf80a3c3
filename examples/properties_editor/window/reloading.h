#pragma once

class QWidget;

namespace Editor {

class Document;

/// Reads the open file again. Where there are unsaved edits, shows them and what has changed in the
/// file, and offers to merge both.
void reload(Document &document, QWidget *window);

} // namespace Editor
