#pragma once

class QWidget;

namespace Editor {

class Document;

/// Reads the open file again. If there are unsaved edits, shows them and the changes in the file,
/// and offers to merge both.
void reload(Document &document, QWidget *window);

} // namespace Editor
