#pragma once

// The POSIX side of the tests about other processes and their limits; elsewhere those tests are
// left out.
#ifndef _WIN32

#include <csignal>
#include <functional>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace cellora {

/// A copy of this process that runs one routine and may tell its steps. Nothing of the test
/// framework works in it.
class ChildProcess final {
public:
    /// The child ends with 0 when the routine returns true, else with 1.
    explicit ChildProcess(const std::function<bool(const std::function<void()>& fnTell)>& fnRun) {
        if (pipe(aPipe_) != 0 || (pid_ = fork()) != 0)
            return;
        _exit(fnRun([this] { static_cast<void>(write(aPipe_[1], "", 1) == 1); }) ? 0 : 1);
    }
    ~ChildProcess() {
        End(SIGKILL);
        close(aPipe_[0]);
        close(aPipe_[1]);
    }
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;

    /// Waits for the next step; once the child has ended, tells whether there is one more.
    bool TakeStep() {
        if (pid_ <= 0)
            close(aPipe_[1]);
        char character = 0;
        return read(aPipe_[0], &character, 1) == 1;
    }

    /// Waits for the end, which the signal brings about; 0 sends none. What the child ended with,
    /// or the signal, negative.
    int End(int intSignal) {
        int intStatus = -1;
        if (pid_ <= 0)
            return 0;
        kill(pid_, intSignal);
        waitpid(pid_, &intStatus, 0);
        pid_ = -1;
        return WIFEXITED(intStatus) ? WEXITSTATUS(intStatus) : -WTERMSIG(intStatus);
    }

private:
    int aPipe_[2] = {-1, -1};
    pid_t pid_ = -1;
};

} // namespace cellora

#endif
