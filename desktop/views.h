#pragma once

class QWidget;

namespace zeugnis {

class Screen;
class ScreenWindow;
class WindowHost;

/// Makes the window of a screen; it stays above `below`, which owns it if it is not null.
ScreenWindow* makeWindow(Screen& screen, WindowHost& host, QWidget* below);

} // namespace zeugnis
