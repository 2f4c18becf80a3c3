#pragma once

#include <QString>

class QWidget;

namespace Editor {

class Document;
struct LanguagePair;

// Actions of translators on many texts at once. Each asks and reports in dialogs over `parent`, and
// is one undo step.

/// Exports the texts to a file for translation tools.
void exportTexts(QWidget *parent, Document &document, const LanguagePair &languages);
/// Imports translated texts from such a file.
void importTexts(QWidget *parent, Document &document);
/// Copies source texts to missing translations. Returns a sentence with the number of copied and
/// missing ones.
QString fillMissingTexts(Document &document, const LanguagePair &languages);

} // namespace Editor
