#pragma once

#include "safety/folder_lock.h"

#include <memory>

class QWidget;

namespace zeugnis {

/// A class folder that this program may work in, as long as the lock lives.
struct TakenClass {
    std::filesystem::path folder;
    std::unique_ptr<safety::FolderLock> lock; ///< null: the folder is not to be opened here
    bool elsewhere = false;                   ///< its window has come to the front instead
};

/// Takes the folder for this program. Where another one has it open its window comes to the front,
/// or the teacher is told who it is. With an owner the folder was chosen in that window, which then
/// stays; one that cannot be written is asked about.
TakenClass takeClass(const std::filesystem::path& folder, QWidget* owner);

} // namespace zeugnis
