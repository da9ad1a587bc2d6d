#include "platform/process.h"

#include "platform/path_text.h"

#include <array>
#include <cerrno>
#include <climits>
#include <csignal>
#include <fcntl.h>
#include <pwd.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace zeugnis {
namespace {

constexpr const char* Nowhere = "/dev/null";

// A process group of its own: LibreOffice starts by way of other programs.
class ProcessGroup : public ProcessFamily {
  public:
    explicit ProcessGroup(pid_t leader) : m_leader(leader) {}
    ~ProcessGroup() override {
        ::kill(-m_leader, SIGKILL);
        if (!m_ended)
            ::waitpid(m_leader, nullptr, 0);
    }
    ProcessGroup(const ProcessGroup&) = delete;
    ProcessGroup& operator=(const ProcessGroup&) = delete;

    bool hasEnded() override {
        if (!m_ended)
            m_ended = ::waitpid(m_leader, nullptr, WNOHANG) != 0;
        return m_ended;
    }

  private:
    pid_t m_leader;
    bool m_ended = false;
};

// What a program is started with: silent, and leading a group.
class Beginning {
  public:
    Beginning() {
        posix_spawnattr_init(&m_attributes);
        posix_spawnattr_setflags(&m_attributes, POSIX_SPAWN_SETPGROUP);
        posix_spawnattr_setpgroup(&m_attributes, 0);
        posix_spawn_file_actions_init(&m_files);
        posix_spawn_file_actions_addopen(&m_files, STDIN_FILENO, Nowhere, O_RDONLY, 0);
        for (const int output : {STDOUT_FILENO, STDERR_FILENO})
            posix_spawn_file_actions_addopen(&m_files, output, Nowhere, O_WRONLY, 0);
    }
    ~Beginning() {
        posix_spawn_file_actions_destroy(&m_files);
        posix_spawnattr_destroy(&m_attributes);
    }
    Beginning(const Beginning&) = delete;
    Beginning& operator=(const Beginning&) = delete;

    /// 0 if it cannot be started.
    pid_t start(const char* program, char* const* words) const {
        pid_t started = 0;
        return ::posix_spawn(&started, program, &m_files, &m_attributes, words, environ) == 0
                   ? started
                   : 0;
    }

  private:
    posix_spawnattr_t m_attributes{};
    posix_spawn_file_actions_t m_files{};
};

} // namespace

int ownProcess() { return ::getpid(); }

bool processLives(int process) {
    return process > 0 && (::kill(process, 0) == 0 || errno == EPERM);
}

Text machineName() {
    std::array<char, 256> name{};
    if (::gethostname(name.data(), name.size() - 1) != 0)
        name[0] = '\0';
    return textFromUtf8(name.data());
}

Text userName() {
    const passwd* user = ::getpwuid(::getuid());
    return user != nullptr ? textFromUtf8(user->pw_name) : Text(u"unbekannt");
}

std::vector<Text> programArguments(int argc, char** argv) {
    std::vector<Text> arguments;
    for (int i = 1; i < argc; ++i)
        arguments.push_back(textFromUtf8(argv[i]));
    return arguments;
}

std::filesystem::path programFile() {
    std::error_code ignored;
    return std::filesystem::read_symlink("/proc/self/exe", ignored);
}

void letOthersComeToFront() {
    // They may.
}

void useBinaryStreams() {
    // They are.
}

std::unique_ptr<ProcessFamily> ProcessFamily::start(const std::filesystem::path& program,
                                                    const std::vector<Text>& arguments) {
    std::vector<std::string> words = {program.native()};
    words.reserve(1 + arguments.size());
    for (const Text& argument : arguments)
        words.push_back(utf8FromText(argument));
    std::vector<char*> pointers;
    pointers.reserve(words.size() + 1);
    for (std::string& word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);
    const pid_t leader = Beginning().start(program.c_str(), pointers.data());
    return leader > 0 ? std::make_unique<ProcessGroup>(leader) : nullptr;
}

} // namespace zeugnis
