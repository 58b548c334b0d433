#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <thread>

namespace cellora {

/// Writes away from the caller's thread what its caller does not wait for, in the order given. What
/// still waits behind a write under way gives way to what comes next for the same file: the newest
/// wins.
class BackgroundWriter final {
public:
    using Write = std::function<void()>;

    BackgroundWriter();
    /// Gives up what has not been begun. A write under way is left to end by itself, so it may hold
    /// on only to what it shares or to what lives as long as the process.
    ~BackgroundWriter();
    BackgroundWriter(const BackgroundWriter&) = delete;
    BackgroundWriter& operator=(const BackgroundWriter&) = delete;

    /// Where the system has no thread left to give, the caller writes after all.
    void Do(const std::string& strFile, Write fnWrite);

    /// Waits until everything is written. False when that took longer.
    bool Wait(std::chrono::milliseconds msLongest);

private:
    struct Queue;
    static void Run(Queue& queue);
    bool Start();

    std::shared_ptr<Queue> queue_; ///< null before the first write: most runs need no thread
    std::thread thread_;
};

} // namespace cellora
