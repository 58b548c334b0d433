#pragma once

// The POSIX side of the tests about faults; elsewhere those tests are left out.
#ifndef _WIN32

#include <csignal>
#include <functional>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace cellora {

/// Lets no file grow beyond a size, as a disk that fills up does. A test that reports a failure
/// meanwhile may lose it.
class FileSizeLimit final {
public:
    explicit FileSizeLimit(rlim_t lngBytes) : oldHandler_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &old_);
        const rlimit limit{lngBytes, old_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() {
        setrlimit(RLIMIT_FSIZE, &old_);
        std::signal(SIGXFSZ, oldHandler_);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    rlimit old_{};
    void (*oldHandler_)(int);
};

/// A copy of this process that runs one routine and may tell its steps. Nothing of the test
/// framework works in it.
class ChildProcess final {
public:
    /// The routine calls `fnTell` after each of its steps; the child ends with 0 when it returns
    /// true, with 1 when false and with 3 when it throws.
    using Routine = std::function<bool(const std::function<void()>& fnTell)>;

    explicit ChildProcess(const Routine& fnRun) {
        int aPipe[2] = {-1, -1};
        if (pipe(aPipe) != 0)
            return;
        pid_ = fork();
        if (pid_ == 0) {
            close(aPipe[0]);
            const auto fnTell = [fd = aPipe[1]] {
                if (write(fd, "", 1) != 1)
                    _exit(2);
            };
            try {
                _exit(fnRun(fnTell) ? 0 : 1);
            } catch (...) {
                _exit(3);
            }
        }
        close(aPipe[1]);
        fd_ = aPipe[0];
    }

    /// Kills a child that still runs.
    ~ChildProcess() {
        Kill();
        close(fd_);
    }

    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    /// Waits for that many steps more. The number that came, fewer when the child ended first.
    int CountSteps(int intMost) const {
        char character = 0;
        int intSteps = 0;
        while (intSteps < intMost && read(fd_, &character, 1) == 1)
            ++intSteps;
        return intSteps;
    }

    /// Ends the child on the spot, as a crash does. False when it had ended by itself.
    bool Kill() {
        if (pid_ <= 0)
            return false;
        kill(pid_, SIGKILL);
        const int intStatus = WaitForStatus();
        return WIFSIGNALED(intStatus) && WTERMSIG(intStatus) == SIGKILL;
    }

    /// Waits for the end; what the child ended with, -1 for a violent end.
    int Wait() {
        const int intStatus = WaitForStatus();
        return WIFEXITED(intStatus) ? WEXITSTATUS(intStatus) : -1;
    }

private:
    int WaitForStatus() {
        int intStatus = -1;
        if (pid_ > 0)
            waitpid(pid_, &intStatus, 0);
        pid_ = -1;
        return intStatus;
    }

    pid_t pid_ = -1;
    int fd_ = -1;
};

} // namespace cellora

#endif
