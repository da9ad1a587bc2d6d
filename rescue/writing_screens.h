#pragma once

namespace zeugnis {

class Programm;
class Screen;

namespace rescue {

/// A shown screen that holds what it has read from the data files and would write it again; null if
/// there is none, so that files may be changed below the screens.
const Screen* shownWriter(const Programm& program);

/// Drops the hidden ones, which have read the files as they were.
void dropHiddenWriters(Programm& program);

} // namespace rescue
} // namespace zeugnis
