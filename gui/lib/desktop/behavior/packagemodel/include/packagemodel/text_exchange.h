#pragma once

#include <packagemodel/package_edits.h>

#include <QByteArray>

// Exchange of texts with translators, in XLIFF 1.2 (OASIS, urn:oasis:names:tc:xliff:document:1.2).
// docs/translating.md describes the files.

namespace Zel {

class RecordEditor;

namespace PackageModel {

/// One text of a package in two languages. Texts that translators work on are the names and
/// descriptions of the package, and the names, descriptions, tags, trigger sentences and loading
/// responses of its behaviors.
struct TranslatableText {
    Tano::FieldPath path; ///< in the target language; an item of a list has its index
    QString source;       ///< empty where the source language has no text
    QString target;       ///< empty if it is missing
    QString note;         ///< for the translator, in the language of the application
};

/// The texts that are there in at least one of the languages, in the order of the manifest. Item n
/// of a list belongs to item n of the list in the source language. Empty for a null package.
PACKAGEMODEL_EXPORT QVector<TranslatableText> translatableTexts(const PackageInfoModel *package,
                                                                const QString &language,
                                                                const QString &sourceLanguage);

/// What exportXliff() writes.
struct XliffOptions {
    QString language;       ///< the code of the target language, as in manifests
    QString sourceLanguage; ///< likewise
    bool missingOnly = false;
    QString originalFile = {}; ///< the name of the manifest, for translators
};

/// The source of a unit whose source language has no text: many tools refuse an empty source.
inline const QString noSourceText{QStringLiteral("\u2014")};

/// Writes translatableTexts() as XLIFF, one unit for each with its path as `id` and `resname`. A
/// missing target has the state "needs-translation", one that is a malformed speech script
/// "needs-review-translation", any other "translated". Languages are written as bcp47().
///
/// Empty if a text holds what XML cannot, or if both languages are the same; then `error`, if
/// given, says why in one sentence.
PACKAGEMODEL_EXPORT QByteArray exportXliff(const PackageInfoModel *package,
                                           const XliffOptions &options, QString *error = nullptr);

/// The language tag (BCP 47) of a code in manifests: "de-DE" for "de_DE". A code that makes no tag
/// becomes one for private use, so that different codes of that kind have different tags.
PACKAGEMODEL_EXPORT QString bcp47(const QString &code);

/// One unit of an XLIFF file.
struct TextUnit {
    Tano::FieldPath path;
    QString sourceLanguage; ///< as a language tag
    QString source;
    QString target;              ///< empty if it is missing
    bool isUntranslated = false; ///< the state says that the target is yet to be translated
    qint64 line = 0;
    qint64 column = 0;
};

/// The units of an XLIFF file, or why there are none.
struct ParsedXliff {
    QVector<TextUnit> units;
    QString error; ///< one sentence; empty on success
    qint64 line = 0;
    qint64 column = 0;
};

/// Reads XLIFF 1.2, and 1.1, which some tools write.
///
/// The path of a unit is its `resname`, else its `id`, else its source file in a `context-group`.
/// The texts within inline elements count, their tags do not; an empty placeholder has to have an
/// `equiv-text`. Alternatives, headers, the units of PO headers and elements in other namespaces
/// are passed over. Refused are malformed XML, document types, elements that XLIFF does not have in
/// that place, units without a path of a text, and files beyond 256 MiB, 64 levels, 64 KiB of
/// a tag, or 64 attributes on an element.
PACKAGEMODEL_EXPORT ParsedXliff parseXliff(const QByteArray &xliff);

/// What became of a unit.
enum class TextOutcome {
    Imported,
    Unchanged,     ///< the package has this text already
    Untranslated,  ///< the target is empty, or is a copy of the source that is yet to be translated
    Superseded,    ///< a later unit has another text for the field
    FieldGone,     ///< the package no longer has the behavior
    SourceChanged, ///< the package has another source text, white space aside
    ItemMissing,   ///< an item before it has no text, and lists have no empty items
    Malformed      ///< the text is a malformed speech script
};

struct TextImportOptions {
    bool force = false; ///< import also where the source text has changed
    bool dryRun = false;
};

/// The outcome of an import.
struct TextImport {
    struct Unit {
        TextOutcome outcome = TextOutcome::Imported;
        QString reason = {}; ///< one sentence about a text that is not imported
    };

    Edits edits;
    QVector<Unit> units; ///< one for each unit that was given
    QString error;       ///< why nothing was imported, in one sentence; empty on success
};

/// Applies the targets of units to the package, all that can be or, if one of them is a malformed
/// speech script, none.
///
/// A list grows to the translator's length. A language that gets a text becomes a description
/// language. An empty target leaves the package's text as it is.
PACKAGEMODEL_EXPORT TextImport importTexts(PackageInfoModel *package,
                                           const QVector<TextUnit> &units,
                                           const TextImportOptions &options = {});
PACKAGEMODEL_EXPORT TextImport importTexts(RecordEditor &editor, const QVector<TextUnit> &units,
                                           const TextImportOptions &options = {});

} // namespace PackageModel
} // namespace Zel
