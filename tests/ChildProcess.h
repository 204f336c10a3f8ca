#pragma once

#include <filesystem>

#ifdef _WIN32
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
#else
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>
#endif

namespace quillet {

// A program started with one argument, for tests that kill it at a moment of their choosing, the way a
// power cut or the task manager would: no handler of its own runs.
class ChildProcess {
public:
    ChildProcess(const std::filesystem::path& program, const std::filesystem::path& argument)
    {
#ifdef _WIN32
        std::wstring command = L"\"" + program.wstring() + L"\" \"" + argument.wstring() + L"\"";
        STARTUPINFOW startup{};
        startup.cb = sizeof startup;
        PROCESS_INFORMATION info{};
        if (CreateProcessW(program.c_str(), command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                           &startup, &info)) {
            CloseHandle(info.hThread);
            m_process = info.hProcess;
        }
#else
        m_pid = fork();
        if (m_pid == 0) {
            execl(program.c_str(), program.c_str(), argument.c_str(), static_cast<char*>(nullptr));
            _exit(127);
        }
#endif
    }
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;
    ~ChildProcess()
    {
        kill();
    }

    // Kills it at once; false when it had already ended by itself or never started.
    bool kill()
    {
#ifdef _WIN32
        if (!m_process)
            return false;
        TerminateProcess(m_process, kKilled);
        WaitForSingleObject(m_process, INFINITE);
        DWORD code = 0;
        GetExitCodeProcess(m_process, &code);
        CloseHandle(m_process);
        m_process = nullptr;
        return code == kKilled;
#else
        if (m_pid <= 0)
            return false;
        ::kill(m_pid, SIGKILL);
        int status = 0;
        waitpid(m_pid, &status, 0);
        m_pid = 0;
        return WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL;
#endif
    }

private:
#ifdef _WIN32
    static constexpr UINT kKilled = 0xDEAD; // an exit code the program itself never gives
    HANDLE m_process = nullptr;
#else
    pid_t m_pid = 0;
#endif
};

} // namespace quillet
