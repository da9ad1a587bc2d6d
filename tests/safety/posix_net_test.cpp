#include "platform/code_page.h"
#include "platform/process.h"
#include "platform/whole_file.h"
#include "safety/damage.h"
#include "safety/folder_lock.h"
#include "safety/guard.h"
#include "tests/support/test_installation.h"

#include <gtest/gtest.h>

#include <csignal>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace zeugnis::safety::test {
namespace {
using namespace zeugnis::test;
using Outcome = FolderLock::Outcome;

TEST(FolderLockCrash, LeavesNoObstacle) {
    const TemporaryFolder folder;
    const Moment since = *momentFrom("2026-11-22 22:30:00");
    const auto holder = [&] { return Holder{u"pult", u"erika", since, ownProcess()}; };
    const pid_t child = fork();
    if (child == 0) {
        FolderLock crashing(folder.path(), holder());
        crashing.take();
        raise(SIGKILL);
    }
    int status = 0;
    waitpid(child, &status, 0);
    EXPECT_TRUE(folder.has(u"Notsicherung/Offen.txt"));
    EXPECT_EQ(FolderLock(folder.path(), holder()).take().outcome, Outcome::Ours);
}

TEST(Damage, OfAFileThatIsNoneAnyMoreIsTold) {
    constexpr TextView Store = u"Daten/AVSVspeicher.txt";
    const TestInstallation folder;
    {
        Guard guard(folder.path(), now);
        Arbeitsverzeichnis directory(folder.path());
        directory.watchWrites(&guard);
        writeWholeFile(directory, Store, encodeWindows1252(folder.read(Store)) + "\r\n");
    }
    folder.remove(Store);
    ASSERT_EQ(mkfifo((folder.path() / std::filesystem::path(Store)).c_str(), 0600), 0);
    const std::vector<Finding> found = examine(folder.path());
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found.front().kind, Damage::Unreadable);
}

} // namespace
} // namespace zeugnis::safety::test
