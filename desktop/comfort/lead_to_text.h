#pragma once

namespace zeugnis {

struct EntryPlace;
class WindowHost;

/// Opens the entry window that the text is written in, if it is not open, and chooses child and
/// page there, by the keys that a hand would press. False if the way is barred now.
bool leadToText(WindowHost& host, const EntryPlace& place);

} // namespace zeugnis
