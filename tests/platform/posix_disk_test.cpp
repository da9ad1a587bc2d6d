#include "platform/whole_file.h"

#include "tests/support/failure_of.h"
#include "tests/support/test_installation.h"

#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>

namespace zeugnis::test {
namespace {
namespace fs = std::filesystem;

class FullDisk : public testing::Test {
  protected:
    TemporaryFolder folder;
    Arbeitsverzeichnis directory{folder.path()};
};

TEST_F(FullDisk, IsAFailureThatNamesTheFile) {
    fs::create_symlink("/dev/full", folder.path() / "voll.txt");
    const auto write = [&] { writeWholeFile(directory, u"voll.txt", "Inhalt"); };
    EXPECT_EQ(failureOf(write), "disk-full");
    EXPECT_EQ(failureSentenceOf(write),
              u"Die Datei „voll.txt“ kann nicht geschrieben werden: Auf dem Datenträger ist kein "
              u"Platz mehr frei.");
}

TEST_F(FullDisk, WritesToADeviceThatHasNoLength) {
    fs::create_symlink("/dev/null", folder.path() / "weg.txt");
    EXPECT_EQ(failureOf([&] { writeWholeFile(directory, u"weg.txt", "Inhalt"); }), "none");
}

// Lets no file of this process grow beyond some bytes.
class FileSizeLimit {
  public:
    explicit FileSizeLimit(rlim_t bytes) : m_signal(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &m_former);
        const rlimit limit{bytes, m_former.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() {
        setrlimit(RLIMIT_FSIZE, &m_former);
        static_cast<void>(std::signal(SIGXFSZ, m_signal));
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

  private:
    rlimit m_former{};
    void (*m_signal)(int);
};

TEST_F(FullDisk, FailedWriteLeavesTheFormerContent) {
    folder.write(u"Speicher.txt", u"alter Inhalt");
    std::string_view kind;
    {
        const FileSizeLimit limit(100);
        kind =
            failureOf([&] { writeWholeFile(directory, u"Speicher.txt", std::string(5000, 'x')); });
    }
    EXPECT_EQ(kind, "disk-full");
    EXPECT_EQ(folder.read(u"Speicher.txt"), u"alter Inhalt");
}

TEST_F(FullDisk, SaysWhetherTheFormerContentStands) {
    folder.write(u"alt.txt", u"alter Inhalt");
    const auto sentenceFor = [&](TextView name) {
        const FileSizeLimit limit(100);
        return failureSentenceOf([&] { writeWholeFile(directory, name, std::string(5000, 'x')); });
    };
    EXPECT_TRUE(
        sentenceFor(u"alt.txt").ends_with(u"Der bisherige Inhalt wurde wiederhergestellt."));
    EXPECT_TRUE(sentenceFor(u"neu.txt").ends_with(u"Es wurde keine Datei angelegt."));
    EXPECT_FALSE(folder.has(u"neu.txt"));
}

} // namespace
} // namespace zeugnis::test
