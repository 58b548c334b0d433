#include "store/program_folder.h"

#include <QDir>
#include <QStandardPaths>
#include <QString>
#include <QTemporaryFile>

#include "store/modCommon_File.h"
#include "store/replace_file.h"

namespace cellora {

namespace {

constexpr int msPlaceTimeout = 2000;

/// Trying is the only sure answer: permissions alone know nothing of read-only disks and quotas.
bool CanCreateFile(const std::string& strFolder) {
    QTemporaryFile file(QString::fromStdString(JoinPath(strFolder, "cellora-XXXXXX.tmp")));
    return file.open();
}

} // namespace

std::string GetUserDataFolder() {
    QString strData = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    // A relative folder would lie somewhere else at every start.
    if (QDir::isRelativePath(strData))
        strData = QDir::homePath() + QStringLiteral("/.local/share");
    if (QDir::isRelativePath(strData))
        return {};
#ifdef _WIN32
    const QString strFolder = strData + QStringLiteral("/Cellora");
#else
    const QString strFolder = strData + QStringLiteral("/cellora");
#endif
    return QDir::toNativeSeparators(QDir::cleanPath(strFolder)).toStdString();
}

std::string GetProgramFolder(const std::string& strExecutableFolder,
                             const std::string& strUserDataFolder) {
    if (strUserDataFolder.empty() || CanCreateFile(strExecutableFolder))
        return strExecutableFolder;
    QDir().mkpath(QString::fromStdString(strUserDataFolder));
    return strUserDataFolder;
}

void PlaceShippedFiles(const std::string& strFolder, std::span<const ShippedFile> files) {
    for (const ShippedFile& file : files) {
        const std::string strPath = JoinPath(strFolder, std::string(file.strName));
        if (PathExists(strPath))
            continue;
        FileLock lock(strPath);
        // Another copy may have placed the file, and even used it, before the lock was free.
        if (lock.TryLock(msPlaceTimeout) && !PathExists(strPath))
            ReplaceFile(strPath, file.strContent);
    }
}

} // namespace cellora
