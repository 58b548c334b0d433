#include "store/program_folder.h"

#include <QDir>
#include <QStandardPaths>
#include <QString>

#include "store/modCommon_File.h"
#include "store/replace_file.h"

namespace cellora {

namespace {

constexpr int msPlaceTimeout = 2000;

/// Trying is the only sure answer: permissions alone know nothing of read-only disks and quotas.
bool CanCreateFile(FilePort& files, const std::string& strFolder) {
    const std::string strFile = JoinPath(strFolder, MakeTemporaryName());
    FileHandle file = FileHandle::None;
    if (files.Create(strFile, {}, file))
        return false;
    files.Close(file);
    files.Remove(strFile);
    return true;
}

/// The folder and those it lies in, as far as they are missing. Failures are ignored.
void MakeFolders(FilePort& files, std::string strFolder) {
    while (!strFolder.empty() && strFolder == GetFolderFromPath(strFolder))
        strFolder.pop_back();
    if (strFolder.empty() || PathExists(files, strFolder))
        return;
    MakeFolders(files, GetFolderFromPath(strFolder));
    files.MakeFolder(strFolder);
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

std::string GetProgramFolder(FilePort& files, const std::string& strExecutableFolder,
                             const std::string& strUserDataFolder) {
    if (strUserDataFolder.empty() || CanCreateFile(files, strExecutableFolder))
        return strExecutableFolder;
    MakeFolders(files, strUserDataFolder);
    return strUserDataFolder;
}

void PlaceShippedFiles(FilePort& files, const std::string& strFolder,
                       std::span<const ShippedFile> shipped) {
    for (const ShippedFile& file : shipped) {
        const std::string strPath = JoinPath(strFolder, std::string(file.strName));
        if (PathExists(files, strPath))
            continue;
        FileLock lock(files, strPath);
        // Another copy may have placed the file, and even used it, before the lock was free.
        if (lock.TryLock(msPlaceTimeout) == LockOutcome::Locked && !PathExists(files, strPath))
            ReplaceFile(files, strPath, file.strContent);
    }
}

} // namespace cellora
