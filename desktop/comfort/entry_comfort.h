#pragma once

namespace zeugnis {

class Screen;
class ScreenWindow;
class WindowHost;

/// Puts beside the controls of an entry screen's window what helps on the way: keys from category
/// to category and from child to child, a line that tells them, and the list of who is unfinished.
/// Nothing for the windows of other screens.
void addEntryComfort(ScreenWindow& window, Screen& screen, WindowHost& host);

} // namespace zeugnis
