#pragma once

class QAbstractItemView;
class QString;

namespace Editor {

/// Shows a text in the middle of an empty view: what its entries are for and how to add one. Must
/// be called after the view's model was set.
void explainWhenEmpty(QAbstractItemView *view, const QString &text);

} // namespace Editor
