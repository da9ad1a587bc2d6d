#pragma once

class QBoxLayout;

namespace zeugnis {

class Screen;
class ScreenWindow;
class WindowHost;

/// Tells in a row of the window, and in its title, whether its texts are saved: entry screens,
/// editors, master data. Nothing for other windows.
void addSavedLine(ScreenWindow& window, Screen& screen, WindowHost& host, QBoxLayout& row);

} // namespace zeugnis
