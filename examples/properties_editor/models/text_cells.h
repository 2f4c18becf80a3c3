#pragma once

#include "text_groups.h"

#include <QVariant>

namespace Editor {

// What the list of texts shows: how a TextGroup and its texts look in each column.

enum class TextColumn { Field, Source, Target, State };
inline constexpr int textColumnCount = 4;

QString columnTitle(TextColumn column, const LanguagePair &languages);

/// A state in words.
QString stateWords(Zel::PackageModel::TextState state);

/// A cell of the heading of a group, which says how many of its texts are there.
QVariant headingCell(const TextGroup &group, TextColumn column, int role);
/// A cell of a text; its state is marked as problems are.
QVariant textCell(const Zel::PackageModel::TranslatableText &text,
                  Zel::PackageModel::TextState state, TextColumn column, int role);

} // namespace Editor
