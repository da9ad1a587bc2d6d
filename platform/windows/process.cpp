#include "platform/process.h"

#include "platform/windows/windows_text.h"

#include <array>
#include <fcntl.h>
#include <io.h>
#include <shellapi.h>

namespace zeugnis {
namespace {

class Handle {
  public:
    explicit Handle(HANDLE handle) : m_handle(handle) {}
    ~Handle() {
        if (m_handle != nullptr)
            ::CloseHandle(m_handle);
    }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;
    [[nodiscard]] HANDLE get() const { return m_handle; }

  private:
    HANDLE m_handle;
};

// The job ends with its last handle, and with it all that belongs to it.
class Job : public ProcessFamily {
  public:
    /// Takes over the process, which must not have started anything yet.
    Job(HANDLE job, HANDLE process) : m_job(job), m_process(process) {
        ::AssignProcessToJobObject(job, process);
    }
    ~Job() override { ::TerminateJobObject(m_job.get(), 1); }
    Job(const Job&) = delete;
    Job& operator=(const Job&) = delete;

    bool hasEnded() override { return ::WaitForSingleObject(m_process.get(), 0) == WAIT_OBJECT_0; }

  private:
    Handle m_job;
    Handle m_process;
};

// In quotes, as the other side splits a command line: backslashes count only before a quote.
void appendQuoted(std::wstring& line, std::wstring_view word) {
    line += L" \"";
    size_t backslashes = 0;
    for (const wchar_t c : word) {
        if (c == L'"')
            line.append(backslashes + 1, L'\\');
        backslashes = c == L'\\' ? backslashes + 1 : 0;
        line += c;
    }
    line.append(backslashes, L'\\');
    line += L'"';
}

HANDLE endingJob() {
    HANDLE job = ::CreateJobObjectW(nullptr, nullptr);
    if (job == nullptr)
        return nullptr;
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
    limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
    ::SetInformationJobObject(job, JobObjectExtendedLimitInformation, &limits, sizeof limits);
    return job;
}

template <typename Ask>
Text nameFrom(Ask ask) {
    std::array<wchar_t, 512> name{};
    DWORD length = name.size();
    return ask(name.data(), &length) ? textFromWide(name.data()) : Text();
}

} // namespace

int ownProcess() { return static_cast<int>(::GetCurrentProcessId()); }

bool processLives(int process) {
    if (process <= 0)
        return false;
    const Handle opened(::OpenProcess(SYNCHRONIZE, FALSE, static_cast<DWORD>(process)));
    if (opened.get() == nullptr)
        return ::GetLastError() == ERROR_ACCESS_DENIED;
    return ::WaitForSingleObject(opened.get(), 0) == WAIT_TIMEOUT;
}

Text machineName() {
    return nameFrom([](wchar_t* name, DWORD* length) {
        return ::GetComputerNameExW(ComputerNameDnsHostname, name, length);
    });
}

Text userName() {
    Text name = nameFrom([](wchar_t* at, DWORD* length) { return ::GetUserNameW(at, length); });
    return name.empty() ? Text(u"unbekannt") : name;
}

std::vector<Text> programArguments(int /*argc*/, char** /*argv*/) {
    int count = 0;
    wchar_t** words = ::CommandLineToArgvW(::GetCommandLineW(), &count);
    std::vector<Text> arguments;
    for (int i = 1; i < count; ++i)
        arguments.push_back(textFromWide(words[i]));
    ::LocalFree(static_cast<void*>(words));
    return arguments;
}

std::filesystem::path programFile() {
    std::wstring name(32768, L'\0');
    name.resize(::GetModuleFileNameW(nullptr, name.data(), static_cast<DWORD>(name.size())));
    return name;
}

void letOthersComeToFront() { ::AllowSetForegroundWindow(ASFW_ANY); }

void useBinaryStreams() {
    for (std::FILE* stream : {stdin, stdout, stderr})
        ::_setmode(::_fileno(stream), _O_BINARY);
}

std::unique_ptr<ProcessFamily> ProcessFamily::start(const std::filesystem::path& program,
                                                    const std::vector<Text>& arguments) {
    std::wstring line = L"\"" + program.native() + L"\"";
    for (const Text& argument : arguments)
        appendQuoted(line, wideFromText(argument));
    STARTUPINFOW beginning{};
    beginning.cb = sizeof beginning;
    PROCESS_INFORMATION started{};
    // It belongs to the job before it can start anything.
    if (::CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, FALSE,
                         CREATE_SUSPENDED | CREATE_NO_WINDOW, nullptr, nullptr, &beginning,
                         &started) == 0)
        return nullptr;
    const Handle thread(started.hThread);
    std::unique_ptr<ProcessFamily> family = std::make_unique<Job>(endingJob(), started.hProcess);
    ::ResumeThread(thread.get());
    return family;
}

} // namespace zeugnis
