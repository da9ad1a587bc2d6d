#include "toolkit/entry_call.h"
#include "toolkit/one_window.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QWidget>

#include <future>
#include <optional>

namespace zeugnis {
namespace {

// As another process would, while the windows of this one stay alive.
bool called(const std::filesystem::path& document) {
    auto answer =
        std::async(std::launch::async, [&document] { return OneWindow::bringToFront(document); });
    while (answer.wait_for(std::chrono::milliseconds(5)) != std::future_status::ready)
        QCoreApplication::processEvents();
    return answer.get();
}

TEST(OneWindow, IsBroughtToTheFrontInsteadOfASecondOne) {
    const std::filesystem::path folder = std::filesystem::temp_directory_path() / "Größe Klasse 3a";
    QWidget window;
    window.showMinimized();
    std::optional<OneWindow> open(std::in_place, folder / "3aZeugnisse32.doc",
                                  [&] { return &window; });
    EXPECT_TRUE(called(folder / "." / "3aZEUGNISSE32.doc"));
    EXPECT_FALSE(window.isMinimized());
    EXPECT_FALSE(called(folder / "3aNamensliste.doc"));
    EXPECT_FALSE(called(folder.parent_path() / "3aZeugnisse32.doc"));
    open.reset();
    EXPECT_FALSE(called(folder / "3aZeugnisse32.doc"));
}

TEST(OneWindow, OfAClassIsFoundBesideTheWayToItsTexts) {
    const std::filesystem::path folder = std::filesystem::temp_directory_path() / "Klasse 3a";
    QWidget window;
    const OneWindow open(folder, [&] { return &window; });
    const EntryCallServer texts(folder, [](const EntryPlace&) { return true; });
    EXPECT_TRUE(called(folder));
}

} // namespace
} // namespace zeugnis
