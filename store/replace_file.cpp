#include "store/replace_file.h"

#include <chrono>
#include <thread>
#include <utility>

#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSaveFile>
#include <QString>

namespace cellora {

namespace {

/// A lock that has no holder's name in it after this time never gets one.
constexpr int msNameless = 1000;

/// A write on a full disk may stop short without an error; only going on with the rest tells.
bool WriteAll(QSaveFile& file, std::string_view bytes) {
    while (!bytes.empty()) {
        const qint64 lngWritten = file.write(bytes.data(), static_cast<qint64>(bytes.size()));
        if (lngWritten <= 0)
            return false;
        bytes.remove_prefix(static_cast<std::size_t>(lngWritten));
    }
    return true;
}

} // namespace

std::optional<std::string> ReplaceFile(const std::string& strPath, std::string_view bytes) {
    QSaveFile file(QString::fromStdString(strPath));
    // Unbuffered, because a short write of the buffer would go unnoticed.
    if (file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && WriteAll(file, bytes) &&
        file.commit())
        return std::nullopt;
    std::string strReason = file.errorString().toStdString();
    if (strReason.ends_with('.')) // as every message of Windows does
        strReason.pop_back();
    return "\"" + strPath + "\" could not be written: " + strReason + ".";
}

std::optional<std::string> ReadWholeFile(const std::string& strPath, std::size_t lngMaxBytes) {
    QFile file(QString::fromStdString(strPath));
    // Opening a pipe or a device could wait for ever.
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly) ||
        std::cmp_greater(file.size(), lngMaxBytes))
        return std::nullopt;
    const QByteArray bytes = file.readAll();
    // The file may have grown since its size was asked.
    if (file.error() != QFileDevice::NoError || std::cmp_greater(bytes.size(), lngMaxBytes))
        return std::nullopt;
    return bytes.toStdString();
}

struct FileLock::Impl {
    explicit Impl(const std::string& strPath) : lock(QString::fromStdString(strPath + ".lock")) {}

    bool TryOnce() {
        qint64 lngProcess = 0;
        QString strHost;
        QString strProgram;
        // However long a living holder keeps the lock, it is not taken from it. Only a lock without
        // a holder's name, left by a copy that was killed while making it, is judged by its age.
        const bool blnNamed = lock.getLockInfo(&lngProcess, &strHost, &strProgram);
        lock.setStaleLockTime(blnNamed ? 0 : msNameless);
        return lock.tryLock(0);
    }

    QLockFile lock;
};

FileLock::FileLock(const std::string& strPath) : impl_(std::make_unique<Impl>(strPath)) {}

FileLock::~FileLock() = default;

bool FileLock::TryLock(int msTimeout) {
    using Clock = std::chrono::steady_clock;
    const Clock::time_point deadline = Clock::now() + std::chrono::milliseconds(msTimeout);
    // QLockFile's own waiting doubles its pauses up to seconds, which starves a copy of the program
    // beside one that takes the lock often.
    while (!impl_->TryOnce()) {
        if (impl_->lock.error() != QLockFile::LockFailedError || Clock::now() >= deadline)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    return true;
}

bool FileLock::IsHeldElsewhere() const {
    return impl_->lock.error() == QLockFile::LockFailedError;
}

} // namespace cellora
