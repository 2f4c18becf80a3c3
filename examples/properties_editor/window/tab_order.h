#pragma once

class QMainWindow;

namespace Editor {

/// Makes the Tab key follow the layouts of a window: central widget, docks, status bar.
void setTabOrderOf(QMainWindow &window);

} // namespace Editor
