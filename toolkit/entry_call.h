#pragma once

#include <QObject>

#include <filesystem>
#include <functional>

namespace zeugnis {

/// A text of a class: the child by its place in the list, and the page of the entry screen.
struct EntryPlace {
    int child = 0;
    bool isBehaviour = false;
    int page = 0;
};

/// The other program of the same installation asks for a text to be opened in its entry window.
class EntryCallServer : public QObject {
  public:
    /// `open` returns false if that cannot be now.
    EntryCallServer(const std::filesystem::path& programFolder,
                    std::function<bool(const EntryPlace&)> open);
};

/// False if the program is not open with this folder, or cannot open the text now. Returns at the
/// latest after two seconds.
bool callEntry(const std::filesystem::path& programFolder, const EntryPlace& place);

} // namespace zeugnis
