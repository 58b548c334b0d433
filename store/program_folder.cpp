#include "store/program_folder.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <vector>

#include <QDir>
#include <QStandardPaths>
#include <QString>

#include "core/modCommon_Constants.h"
#include "store/modCommon_File.h"
#include "store/replace_file.h"

namespace cellora {

namespace {

constexpr int msPlaceTimeout = 2000;
constexpr std::int64_t lngMaxAge = 3600; // seconds; no write takes as long

bool IsCapital(char c) {
    return c >= 'A' && c <= 'Z';
}

bool IsLetter(char c) {
    return IsCapital(c) || (c >= 'a' && c <= 'z');
}

/// Trying is the only sure answer: permissions alone know nothing of read-only disks and quotas.
std::error_code TryToCreateFile(FilePort& files, const std::string& strFolder) {
    const std::string strFile = JoinPath(strFolder, MakeTemporaryName());
    FileHandle file = FileHandle::None;
    if (const auto error = files.Create(strFile, {}, file))
        return error;
    files.Close(file);
    files.Remove(strFile);
    return {};
}

/// The folder and those it lies in, as far as they are missing. Failures are ignored.
void MakeFolders(FilePort& files, std::string strFolder) {
    std::vector<std::string> missing;
    for (;; strFolder = GetFolderFromPath(strFolder)) {
        while (!strFolder.empty() && strFolder == GetFolderFromPath(strFolder))
            strFolder.pop_back();
        if (strFolder.empty() || PathExists(files, strFolder))
            break;
        missing.push_back(strFolder);
    }
    for (; !missing.empty(); missing.pop_back())
        files.MakeFolder(missing.back());
}

bool HoldsFiles(FilePort& files, const std::string& strFolder) {
    return FileExists(files, JoinPath(strFolder, std::string(strSettingsFileName))) ||
           FileExists(files, JoinPath(strFolder, std::string(strHallOfFameFileName)));
}

/// A disk that is full or fails for the moment does not make its files another folder's: best times
/// and games would seem lost until it is mended.
bool IsOurs(FilePort& files, const std::string& strFolder) {
    const auto error = TryToCreateFile(files, strFolder);
    const bool blnRefused = error == std::errc::permission_denied ||
                            error == std::errc::operation_not_permitted ||
                            error == std::errc::read_only_file_system;
    return !error || (!blnRefused && HoldsFiles(files, strFolder));
}

bool IsOldTemporary(std::string_view strName) {
    if (IsTemporaryName(strName))
        return true;
    // Earlier versions put six letters at random behind the name, and so does the toolkit. Only
    // those that can hardly be a word of a player's count.
    constexpr std::string_view aOwners[] = {strSettingsFileName, strHallOfFameFileName,
                                            "recovery.clp", "QtProject.conf"};
    const std::size_t lngDot = strName.rfind('.');
    const std::string_view strOwner = strName.substr(0, lngDot);
    const std::string_view strLetters =
        lngDot == std::string_view::npos ? std::string_view() : strName.substr(lngDot + 1);
    if (std::ranges::find(aOwners, strOwner) == std::end(aOwners) || strLetters.size() != 6 ||
        !std::ranges::all_of(strLetters, IsLetter))
        return false;
    int intChanges = 0;
    bool blnOddCapital = IsCapital(strLetters.back());
    for (std::size_t n = 1; n < strLetters.size(); ++n) {
        intChanges += IsCapital(strLetters[n]) != IsCapital(strLetters[n - 1]) ? 1 : 0;
        blnOddCapital |= IsCapital(strLetters[n]) && IsCapital(strLetters[n - 1]);
    }
    return intChanges >= 3 && blnOddCapital;
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
    if (strUserDataFolder.empty() || IsOurs(files, strExecutableFolder))
        return strExecutableFolder;
    MakeFolders(files, strUserDataFolder);
    const bool blnReadOnly = TryToCreateFile(files, strUserDataFolder) &&
                             !HoldsFiles(files, strUserDataFolder) &&
                             HoldsFiles(files, strExecutableFolder);
    return blnReadOnly ? strExecutableFolder : strUserDataFolder;
}

void PlaceShippedFiles(FilePort& files, const std::string& strFolder,
                       std::span<const ShippedFile> shipped) {
    for (const ShippedFile& file : shipped) {
        const std::string strPath = JoinPath(strFolder, std::string(file.strName));
        if (!IsMissing(files, strPath))
            continue;
        FileLock lock(files, strPath);
        // Another copy may have placed the file, and even used it, before the lock was free.
        const LockOutcome outcome = lock.TryLock(msPlaceTimeout);
        const bool blnMine = outcome == LockOutcome::Locked || outcome == LockOutcome::NotSupported;
        if (blnMine && IsMissing(files, strPath))
            ReplaceFile(files, strPath, file.strContent);
    }
}

void RemoveOldTemporaries(FilePort& files, const std::string& strFolder) {
    std::vector<std::string> names;
    if (files.ListFolder(strFolder, names))
        return;
    for (const std::string& strName : names) {
        PathStatus status;
        const std::string strPath = JoinPath(strFolder, strName);
        if (IsOldTemporary(strName) && !files.GetStatus(strPath, status) &&
            status.kind == PathKind::File && status.lngAge > lngMaxAge)
            files.Remove(strPath);
    }
}

} // namespace cellora
