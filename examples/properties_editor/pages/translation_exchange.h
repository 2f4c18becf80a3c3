#pragma once

#include <QString>

class QWidget;

namespace Editor {

class Document;
struct LanguagePair;

// What a translator does with many texts at once. Each asks and reports in dialogs over `parent`,
// and is one undo step.

/// Writes the texts into a file for translation tools.
void exportTexts(QWidget *parent, Document &document, const LanguagePair &languages);
/// Reads translated texts from such a file.
void importTexts(QWidget *parent, Document &document);
/// Copies the source text to where the translation is missing. Returns how many, of all missing
/// ones, as a sentence.
QString fillMissingTexts(Document &document, const LanguagePair &languages);

} // namespace Editor
