#include "store/program_folder.h"

#include <QDir>
#include <QString>
#include <QTemporaryFile>

#include "store/modCommon_File.h"
#include "store/replace_file.h"

namespace cellora {

namespace {

constexpr int msPlaceTimeout = 2000;

/// Trying is the only sure answer: permissions alone know nothing of read-only disks and quotas.
bool CanCreateFile(const std::string& strFolder) {
    if (strFolder.empty())
        return false;
    QTemporaryFile file(QString::fromStdString(JoinPath(strFolder, "cellora-XXXXXX.tmp")));
    return file.open();
}

/// Keeps the separator of a root such as "/" or "C:\".
std::string DropEndSeparators(std::string strFolder) {
    while (strFolder.size() > 1 && GetFolderFromPath(strFolder) == strFolder &&
           strFolder[strFolder.size() - 2] != ':')
        strFolder.pop_back();
    return strFolder;
}

std::string GetEnvironmentText(const char* strName) {
    return qEnvironmentVariable(strName).toStdString();
}

} // namespace

std::string GetUserDataFolder() {
#ifdef _WIN32
    const std::string strData = GetEnvironmentText("LOCALAPPDATA");
    return strData.empty() ? std::string() : strData + "\\Cellora";
#else
    // A relative folder would lie somewhere else at every start.
    const std::string strData = GetEnvironmentText("XDG_DATA_HOME");
    if (strData.starts_with('/'))
        return JoinPath(strData, "cellora");
    const std::string strHome = GetEnvironmentText("HOME");
    return strHome.starts_with('/') ? JoinPath(strHome, ".local/share/cellora") : std::string();
#endif
}

std::string GetProgramFolder(const std::string& strExecutableFolder,
                             const std::string& strUserDataFolder) {
    if (strUserDataFolder.empty() || CanCreateFile(strExecutableFolder))
        return DropEndSeparators(strExecutableFolder);
    QDir().mkpath(QString::fromStdString(strUserDataFolder));
    return DropEndSeparators(strUserDataFolder);
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
