#pragma once

class QAbstractItemView;
class QString;

namespace Editor {

/// Shows a text in the middle of a view while it has no rows: what its entries are for and how to
/// add one. To be called after the view has its model.
void explainWhenEmpty(QAbstractItemView *view, const QString &text);

} // namespace Editor
