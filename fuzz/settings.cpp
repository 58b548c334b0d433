#include "store/settings.h"

#include <algorithm>

#include "core/settings.h"
#include "fuzz/chance_player.h"
#include "fuzz/fuzzing.h"
#include "store/modCommon_INI.h"

/// Settings that are read are written and read again the same. A single write replaces one value or
/// adds one line and leaves every other byte alone. The program then runs with them.
namespace cellora {
namespace {

constexpr const char* strFileName = "cl.ini";
constexpr std::size_t lngMaxCharacters = 254;

/// True when one piece of one line, or none, was replaced by another.
bool DifferInOneLine(std::string_view strBefore, std::string_view strAfter) {
    const auto [before, after] = std::ranges::mismatch(strBefore, strAfter);
    strBefore.remove_prefix(static_cast<std::size_t>(before - strBefore.begin()));
    strAfter.remove_prefix(static_cast<std::size_t>(after - strAfter.begin()));
    const auto [beforeEnd, afterEnd] =
        std::mismatch(strBefore.rbegin(), strBefore.rend(), strAfter.rbegin(), strAfter.rend());
    strBefore.remove_suffix(static_cast<std::size_t>(beforeEnd - strBefore.rbegin()));
    return strBefore.find_first_of("\r\n") == std::string_view::npos;
}

/// The value of a long text is its first 254 characters, which are at least as many bytes.
bool IsReadBack(const std::string& strRead, const std::string& strWritten) {
    return strRead == strWritten ||
           (strRead.size() >= lngMaxCharacters && strWritten.starts_with(strRead));
}

} // namespace

void TryInput(std::string_view bytes) {
    ChancePlayer player(bytes);
    FilePort& files = player.files;
    const TemporaryFolder& folder = player.folder;
    const std::string strPath = folder.WriteBytes(strFileName, bytes);

    // A piece of the file without a line break makes a value as good as any.
    std::string strValue(bytes.substr(static_cast<std::size_t>(player.Draw(bytes.size() + 1))));
    strValue.resize(std::min(strValue.find_first_of("\r\n"), strValue.size()));
    WriteINI(files, "view", "toolbar", strValue, strPath);
    const std::string strWritten = folder.ReadBytes(strFileName);
    Require(IsReadBack(ReadINI(files, "view", "toolbar", strPath), strValue),
            "any value reads back as it was written");
    Require(DifferInOneLine(bytes, strWritten), "the rest of the file stays");

    const auto group = static_cast<SettingsGroup>(player.Draw(4));
    SaveSettings(files, LoadSettings(files, strPath), group, strPath);
    const std::string strSaved = folder.ReadBytes(strFileName);
    SaveSettings(files, LoadSettings(files, strPath), group, strPath);
    Require(folder.ReadBytes(strFileName) == strSaved, "what was read is written the same");
    player.Start();
    player.Play(5);
}

} // namespace cellora
