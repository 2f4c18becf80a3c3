#pragma once

#include <packagemodel/package_edits.h>

#include <QByteArray>

/// @file
/// Exchanges texts with translators in XLIFF 1.2 (OASIS, urn:oasis:names:tc:xliff:document:1.2).
/// See docs/translating.md.

namespace Zel {

class RecordEditor;

namespace PackageModel {

/// One text of a package in two languages. Translatable are the names and descriptions of the
/// package, and the names, descriptions, tags, trigger sentences and loading responses of its
/// behaviors.
struct TranslatableText {
    Tano::FieldPath path; ///< in the target language, with the index of a list item
    QString source;       ///< empty if the source language has no text
    QString target;       ///< empty if it is missing
    QString note;         ///< for the translator, in the language of the application
};

/// The texts in at least one of the two languages, in the order of the manifest. Item n of a list
/// translates item n of the list in the source language. Empty for a null package.
PACKAGEMODEL_EXPORT QVector<TranslatableText> translatableTexts(const PackageInfoModel *package,
                                                                const QString &language,
                                                                const QString &sourceLanguage);

/// Options of exportXliff().
struct XliffOptions {
    QString language;          ///< the code of the target language, as in manifests
    QString sourceLanguage;    ///< the code of the source language, as in manifests
    bool missingOnly = false;  ///< only texts without a target
    QString originalFile = {}; ///< the name of the manifest, for translators
};

/// The source of a unit without a text in the source language, since many tools reject empty
/// sources.
inline const QString noSourceText{QStringLiteral("\u2014")};

/// Writes translatableTexts() as XLIFF, with one unit each whose `id` and `resname` is the path.
/// The state of a target is "needs-translation" if it is missing, "needs-review-translation" if it
/// is a malformed speech script, otherwise "translated". Languages are written as bcp47().
///
/// If a text contains characters that XML cannot represent, or both languages are the same, returns
/// an empty array and sets `error`, if given, to one sentence.
///
/// ```cpp
/// const QByteArray xliff = PackageModel::exportXliff(
///     &package, {QStringLiteral("fr_FR"), QStringLiteral("en_US")});
/// ```
PACKAGEMODEL_EXPORT QByteArray exportXliff(const PackageInfoModel *package,
                                           const XliffOptions &options, QString *error = nullptr);

/// The language tag (BCP 47) of a code in manifests: "de-DE" for "de_DE". Other codes get distinct
/// tags for private use.
PACKAGEMODEL_EXPORT QString bcp47(const QString &code);

/// One unit of an XLIFF file.
struct TextUnit {
    Tano::FieldPath path;        ///< the field to translate
    QString sourceLanguage;      ///< as a language tag
    QString source;              ///< the source text
    QString target;              ///< the translation; empty if it is missing
    bool isUntranslated = false; ///< the state of the target asks for a translation
    qint64 line = 0;             ///< of the unit
    qint64 column = 0;           ///< of the unit
};

/// The outcome of parseXliff().
struct ParsedXliff {
    QVector<TextUnit> units; ///< empty on failure
    QString error;           ///< one sentence; empty on success
    qint64 line = 0;         ///< of the error
    qint64 column = 0;       ///< of the error
};

/// Reads XLIFF 1.2 and 1.1.
///
/// The path of a unit is its `resname`, or its `id`, or its source file in a `context-group`. Tags
/// of inline elements are dropped and their texts kept; an empty placeholder needs an `equiv-text`.
/// Alternatives, headers, units of PO headers and elements in other namespaces are ignored. Refused
/// are malformed XML, document types, misplaced elements, units without the path of a text, and
/// files beyond 256 MiB, 64 levels, 64 KiB per tag, or 64 attributes on an element.
PACKAGEMODEL_EXPORT ParsedXliff parseXliff(const QByteArray &xliff);

/// The outcome of importing a unit.
enum class TextOutcome {
    Imported,      ///< the package has the new text
    Unchanged,     ///< the package has this text already
    Untranslated,  ///< the target is empty, or a copy of the source whose state asks for a
                   ///< translation
    Superseded,    ///< a later unit has another text for the field
    FieldGone,     ///< the package no longer has the behavior
    SourceChanged, ///< the package has another source text, apart from white space
    ItemMissing,   ///< an item before it has no text, and lists have no empty items
    Malformed      ///< the text is a malformed speech script
};

/// Options of importTexts().
struct TextImportOptions {
    bool force = false;  ///< import texts whose source has changed, too
    bool dryRun = false; ///< report the outcome without changing the package
};

/// The outcome of an import.
struct TextImport {
    /// The outcome of one unit.
    struct Unit {
        TextOutcome outcome = TextOutcome::Imported; ///< whether it was imported
        QString reason = {};                         ///< why not, in one sentence
    };

    Edits edits;         ///< applied, unless this is a dry run
    QVector<Unit> units; ///< one for each given unit, in the same order
    QString error;       ///< why nothing was imported, in one sentence; empty on success
};

/// @{
/// Applies the targets of units to a package: all that are possible, or none if one of them is a
/// malformed speech script.
///
/// Lists grow as needed. Each language that gets a text becomes a description language. An empty
/// target leaves the package's text unchanged.
PACKAGEMODEL_EXPORT TextImport importTexts(PackageInfoModel *package,
                                           const QVector<TextUnit> &units,
                                           const TextImportOptions &options = {});
PACKAGEMODEL_EXPORT TextImport importTexts(RecordEditor &editor, const QVector<TextUnit> &units,
                                           const TextImportOptions &options = {});
/// @}

} // namespace PackageModel
} // namespace Zel
