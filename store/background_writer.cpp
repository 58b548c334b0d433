#include "store/background_writer.h"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <system_error>
#include <utility>

namespace cellora {

struct BackgroundWriter::Queue {
    std::mutex mutex; ///< for all that follows
    std::condition_variable changed;
    std::deque<std::pair<std::string, Write>> waiting; ///< one for each file
    bool blnBusy = false;
    bool blnEnding = false;

    bool IsDone() const { return !blnBusy && waiting.empty(); }
};

BackgroundWriter::BackgroundWriter() = default;

BackgroundWriter::~BackgroundWriter() {
    if (queue_ == nullptr)
        return;
    std::unique_lock lock(queue_->mutex);
    queue_->waiting.clear();
    queue_->blnEnding = true;
    queue_->changed.notify_all();
    const bool blnBusy = queue_->blnBusy;
    lock.unlock();
    if (blnBusy)
        thread_.detach();
    else
        thread_.join(); // a process that ends in the middle of a thread's end may hang on Windows
}

bool BackgroundWriter::Start() {
    if (queue_ != nullptr)
        return true;
    const auto queue = std::make_shared<Queue>();
    try {
        thread_ = std::thread([queue] { Run(*queue); });
    } catch (const std::system_error&) {
        return false;
    }
    queue_ = queue;
    return true;
}

void BackgroundWriter::Do(const std::string& strFile, Write fnWrite) {
    if (!Start())
        return fnWrite();
    const std::lock_guard lock(queue_->mutex);
    std::erase_if(queue_->waiting, [&](const auto& write) { return write.first == strFile; });
    queue_->waiting.emplace_back(strFile, std::move(fnWrite));
    queue_->changed.notify_all();
}

bool BackgroundWriter::Wait(std::chrono::milliseconds msLongest) {
    if (queue_ == nullptr)
        return true;
    std::unique_lock lock(queue_->mutex);
    return queue_->changed.wait_for(lock, msLongest, [this] { return queue_->IsDone(); });
}

void BackgroundWriter::Run(Queue& queue) {
    std::unique_lock lock(queue.mutex);
    for (;;) {
        queue.changed.wait(lock, [&] { return !queue.waiting.empty() || queue.blnEnding; });
        if (queue.blnEnding)
            return;
        Write fnWrite = std::move(queue.waiting.front().second);
        queue.waiting.pop_front();
        queue.blnBusy = true;
        lock.unlock();
        fnWrite();
        fnWrite = nullptr; // with all that it holds
        lock.lock();
        queue.blnBusy = false;
        queue.changed.notify_all();
    }
}

} // namespace cellora
