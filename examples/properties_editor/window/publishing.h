#pragma once

class QString;
class QWidget;

namespace Editor {

class Document;

/// Publishes the open package into a file that the user chooses, once they have seen the errors
/// that are left. Refuses a package with malformed speech scripts, and the open file as the target.
void publish(Document &document, QWidget *window);

} // namespace Editor
