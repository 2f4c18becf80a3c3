#include <packagemodel/text_states.h>

#include "text_places.h"

namespace Zel::PackageModel {

TextState textState(const TranslatableText &text, const TranslatableText *before) {
    if (text.target.isEmpty())
        return TextState::Missing;
    const auto place = textPlace(text.path);
    if (place && !place->kind->scriptError(text.target).isEmpty())
        return TextState::Malformed;
    if (before && before->source != text.source && before->target == text.target)
        return TextState::SourceChanged;
    return text.target == text.source ? TextState::SameAsSource : TextState::Translated;
}

bool isSpeechScript(const Tano::FieldPath &path, const QString &text) {
    const auto place = textPlace(path);
    return place && place->kind->isMarkup(text);
}

} // namespace Zel::PackageModel
