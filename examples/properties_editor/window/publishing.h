#pragma once

class QString;
class QWidget;

namespace Editor {

class Document;

/// Publishes the open package to a file chosen by the user, after showing remaining errors. Refuses
/// packages with malformed speech scripts, and the open file as target.
void publish(Document &document, QWidget *window);

} // namespace Editor
