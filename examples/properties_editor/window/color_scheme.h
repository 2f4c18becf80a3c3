#pragma once

namespace Editor {

/// The colors of the windows: the platform's or, where it has none, dark ones.
enum class ColorScheme { Platform, Dark };

/// Applies at once, to all windows.
void useColorScheme(ColorScheme scheme);

/// The scheme that the user has chosen, kept in the settings.
ColorScheme chosenColorScheme();
/// Keeps and applies a choice.
void chooseColorScheme(ColorScheme scheme);

} // namespace Editor
