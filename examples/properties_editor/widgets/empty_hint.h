#pragma once

#include <QString>

class QAbstractItemView;
class QLabel;

namespace Editor {

/// Shows a text in the middle of an empty view: what its entries are for and how to add one. Must
/// be called after the view's model was set. Returns the label, which belongs to the view.
QLabel *explainWhenEmpty(QAbstractItemView *view, const QString &text = {});

} // namespace Editor
