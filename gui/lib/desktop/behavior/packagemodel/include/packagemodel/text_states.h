#pragma once

#include <packagemodel/text_exchange.h>

/// @file
/// The texts of a package or behavior with their states, for editors of translations.

namespace Zel {

class BehaviorInfoModel;

namespace PackageModel {

/// The state of a text for its translator: the first that applies.
enum class TextState {
    Missing,       ///< there is no target
    Malformed,     ///< the target is a malformed speech script
    SourceChanged, ///< the source has changed, but not the target
    SameAsSource,  ///< the target is a copy of the source
    Translated     ///< none of the above
};

/// The state of a text. `before` is the same text in an earlier version of the package; if it is
/// null, the source counts as unchanged.
PACKAGEMODEL_EXPORT TextState textState(const TranslatableText &text,
                                        const TranslatableText *before = nullptr);

/// The translatableTexts() of the package itself, without notes.
PACKAGEMODEL_EXPORT QVector<TranslatableText>
ownTexts(const PackageInfoModel &package, const QString &language, const QString &sourceLanguage);

/// The translatableTexts() of a behavior, without notes. `path` is the path of the behavior as a
/// field; the behavior need not be in a package.
PACKAGEMODEL_EXPORT QVector<TranslatableText> textsOf(const BehaviorInfoModel &behavior,
                                                      const Tano::FieldPath &path,
                                                      const QString &language,
                                                      const QString &sourceLanguage);

/// Whether the text of a field is a speech script: it has markup, and the field is not a tag.
PACKAGEMODEL_EXPORT bool isSpeechScript(const Tano::FieldPath &path, const QString &text);

} // namespace PackageModel
} // namespace Zel
