#include "text_filter.h"

namespace Editor {

bool TextFilter::passes(const TextGroup &group, int text) const {
    if (state && group.states[std::size_t(text)] != *state)
        return false;
    const auto holds = [this](const QString &where) {
        return where.contains(search, Qt::CaseInsensitive);
    };
    const auto &candidate = group.texts.at(text);
    return search.isEmpty() || holds(candidate.source) || holds(candidate.target) ||
           holds(Zel::PackageModel::label(candidate.path));
}

} // namespace Editor
