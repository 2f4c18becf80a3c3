#pragma once

namespace Editor {

/// The colors of the windows: the platform's or, where it has none, dark ones.
enum class ColorScheme { Platform, Dark };

/// Applies a scheme to all windows immediately.
void useColorScheme(ColorScheme scheme);

/// The user's choice, from the settings.
ColorScheme chosenColorScheme();
/// Stores and applies a choice.
void chooseColorScheme(ColorScheme scheme);

} // namespace Editor
