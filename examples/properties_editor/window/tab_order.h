#pragma once

class QMainWindow;

namespace Editor {

/// Makes the Tab key follow the layouts of a window: its central widget, its docks, its status bar.
void setTabOrderOf(QMainWindow &window);

} // namespace Editor
