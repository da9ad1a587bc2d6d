#include "tests/support/test_installation.h"
#include "toolkit/entry_call.h"
#include "toolkit/one_window.h"
#include "toolkit/qt_text.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QProcess>
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

// It loads what answers only when its window stands.
TEST(OneWindow, OfTheProgramItselfIsFoundByASecondStart) {
    const test::TemporaryFolder folder;
    const std::filesystem::path ours = folder.path() / "Klasse 3a";
    std::filesystem::copy(ZEUGNIS_SOURCE_FOLDER "/install", ours,
                          std::filesystem::copy_options::recursive);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), qPath(folder.path()));
    QProcess first;
    QProcess second;
    for (QProcess* program : {&first, &second}) {
        program->setProcessEnvironment(environment);
        program->setProgram(QStringLiteral(ZEUGNIS_PROGRAM));
        program->setWorkingDirectory(qPath(ours));
    }
    first.start();
    constexpr int Patience = 100;
    bool found = false;
    for (int i = 0; i < Patience && !found; ++i)
        found = called(ours) || first.waitForFinished(50);
    EXPECT_EQ(first.state(), QProcess::Running);
    second.start();
    EXPECT_TRUE(second.waitForFinished());
    EXPECT_EQ(second.exitCode(), 0);
    first.kill();
    first.waitForFinished();
}

} // namespace
} // namespace zeugnis
