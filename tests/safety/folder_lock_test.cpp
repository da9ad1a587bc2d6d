#include "safety/folder_lock.h"

#include "platform/process.h"
#include "tests/support/test_installation.h"

#include <gtest/gtest.h>

namespace zeugnis::safety::test {
namespace {
namespace fs = std::filesystem;
using namespace zeugnis::test;
using Outcome = FolderLock::Outcome;

class FolderLockTest : public testing::Test {
  protected:
    // Where locks do not reach, another machine leaves nothing but its file.
    void writtenFarAway(const Holder& holder, std::chrono::seconds ago) const {
        {
            FolderLock other(folder.path(), holder);
            other.take();
            fs::copy(file(), folder.path() / "kept");
        }
        fs::rename(folder.path() / "kept", file());
        fs::last_write_time(file(), fs::file_time_type::clock::now() - ago);
    }

    [[nodiscard]] fs::path file() const { return folder.path() / "Notsicherung/Offen.txt"; }

    TemporaryFolder folder;
    const Moment since = *momentFrom("2026-11-22 22:30:00");
    const Holder here{u"pult", u"erika", since, ownProcess()};
    const Holder second{u"pult", u"erika", since + std::chrono::minutes(5), ownProcess()};
    const Holder far{u"sofa", u"karl", since, 4711};
};

TEST_F(FolderLockTest, ASecondStartIsToldWhoHasTheFolderOpen) {
    auto first = std::make_unique<FolderLock>(folder.path(), here);
    EXPECT_EQ(first->take().outcome, Outcome::Ours);
    FolderLock other(folder.path(), second);
    const FolderLock::Answer answer = other.take();
    EXPECT_EQ(answer.outcome, Outcome::Held);
    EXPECT_EQ(holderSentence(answer.holder),
              u"Diese Klasse ist schon geöffnet: am Rechner „pult“ von „erika“, seit 22.11.2026, "
              u"22:30 Uhr.");
    EXPECT_TRUE(first->renew());
    first.reset();
    EXPECT_EQ(other.take().outcome, Outcome::Ours);
}

TEST_F(FolderLockTest, AnotherMachineIsBelievedForAWhile) {
    writtenFarAway(far, std::chrono::seconds(60));
    FolderLock lock(folder.path(), here);
    const FolderLock::Answer answer = lock.take();
    EXPECT_EQ(answer.outcome, Outcome::HeldFarAway);
    EXPECT_EQ(answer.holder.user, u"karl");
    writtenFarAway(far, std::chrono::seconds(600));
    EXPECT_EQ(lock.take().outcome, Outcome::Ours);
}

TEST_F(FolderLockTest, OneThatWasTakenOverLearnsOfIt) {
    FolderLock first(folder.path(), far);
    EXPECT_EQ(first.take().outcome, Outcome::Ours);
    FolderLock other(folder.path(), here);
    EXPECT_EQ(other.take().outcome, Outcome::HeldFarAway);
    EXPECT_TRUE(other.takeOver());
    EXPECT_FALSE(first.renew());
    EXPECT_TRUE(other.renew());
}

TEST_F(FolderLockTest, DamagedOrUnwritableItIsNoObstacle) {
    folder.write(u"Notsicherung/Offen.txt", u"Unfug");
    EXPECT_EQ(FolderLock(folder.path(), here).take().outcome, Outcome::Ours);
    folder.remove(u"Notsicherung");
    folder.write(u"Notsicherung", u"kein Ordner");
    FolderLock lock(folder.path(), here);
    EXPECT_EQ(lock.take().outcome, Outcome::Unknown);
    EXPECT_FALSE(lock.renew());
}

} // namespace
} // namespace zeugnis::safety::test
