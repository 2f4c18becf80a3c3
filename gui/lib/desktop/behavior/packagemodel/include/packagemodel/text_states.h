#pragma once

#include <packagemodel/text_exchange.h>

// The texts of one owner with their states, for editors in which people translate.

namespace Zel {

class BehaviorInfoModel;

namespace PackageModel {

/// The state of a text for its translator: the first of these that applies.
enum class TextState {
    Missing,       ///< there is no target
    Malformed,     ///< the target is a malformed speech script
    SourceChanged, ///< the source is another one than before, but the target is not
    SameAsSource,
    Translated
};

/// The state of a text. `before` is the same text in an earlier version of the package; without
/// one, no source counts as changed.
PACKAGEMODEL_EXPORT TextState textState(const TranslatableText &text,
                                        const TranslatableText *before = nullptr);

/// Those of translatableTexts() that belong to the package itself. They have no notes.
PACKAGEMODEL_EXPORT QVector<TranslatableText>
ownTexts(const PackageInfoModel &package, const QString &language, const QString &sourceLanguage);

/// Those of translatableTexts() that belong to a behavior with that path as a field. They have no
/// notes. The behavior need not be in a package.
PACKAGEMODEL_EXPORT QVector<TranslatableText> textsOf(const BehaviorInfoModel &behavior,
                                                      const Tano::FieldPath &path,
                                                      const QString &language,
                                                      const QString &sourceLanguage);

/// Whether a text in a field is a speech script rather than plain text: it has markup, and the
/// field is no tag.
PACKAGEMODEL_EXPORT bool isSpeechScript(const Tano::FieldPath &path, const QString &text);

} // namespace PackageModel
} // namespace Zel
