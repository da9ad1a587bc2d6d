#pragma once

namespace zeugnis {

class Screen;
class ScreenWindow;
class WindowHost;

/// Puts beside the controls of a screen's window what helps on the way. Each window that holds
/// something to save tells whether it is saved. An entry window has keys from category to category
/// and from child to child, a line that tells them, and the list of who is unfinished.
void addEntryComfort(ScreenWindow& window, Screen& screen, WindowHost& host);

} // namespace zeugnis
