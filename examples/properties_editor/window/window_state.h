#pragma once

class QMainWindow;

namespace Editor {

// The place and the docks of the window, its splitters and columns, and the page that it shows, in
// the settings.

void saveWindowState(const QMainWindow &window, int page);
/// Returns the page, or -1 if nothing was stored. A window outside of all screens is moved and
/// shrunk to fit.
int restoreWindowState(QMainWindow &window);

} // namespace Editor
