#pragma once

#include "text_groups.h"

#include <QVariant>

namespace Editor {

// The appearance of a TextGroup and its texts in each column of the list of texts.

enum class TextColumn { Field, Source, Target, State };
inline constexpr int textColumnCount = 4;

QString columnTitle(TextColumn column, const LanguagePair &languages);

/// A state in words.
QString stateWords(Zel::PackageModel::TextState state);

/// A cell in the heading of a group, which shows how many of its texts exist.
QVariant headingCell(const TextGroup &group, TextColumn column, int role);
/// A cell of a text; its state is marked like problems.
QVariant textCell(const Zel::PackageModel::TranslatableText &text,
                  Zel::PackageModel::TextState state, TextColumn column, int role);

} // namespace Editor
