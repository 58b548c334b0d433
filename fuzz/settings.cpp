#include "store/settings.h"

#include <algorithm>
#include <functional>
#include <iterator>

#include "core/settings.h"
#include "fuzz/fuzzing.h"
#include "store/modCommon_INI.h"
#include "store/system_files.h"
#include "tests/support/temporary_folder.h"

/// Settings that are read are written and read again the same; a write leaves the other settings
/// alone. A single write replaces one value or adds one line and leaves every other byte alone.
namespace cellora {
namespace {

constexpr const char* strFileName = "cl.ini";
constexpr std::size_t lngMaxCharacters = 254;

struct Key {
    SettingsGroup group;
    const char* strSection;
    const char* strKey;
};

constexpr Key aKeys[] = {
    {SettingsGroup::Options, "color", "screenbackground"},
    {SettingsGroup::Options, "view", "cursor"},
    {SettingsGroup::View, "view", "statusbar"},
    {SettingsGroup::Startup, "general", "startup"},
    {SettingsGroup::Path, "general", "path"},
};

/// The values that other groups write, one after the other.
std::string ReadOthers(FilePort& files, SettingsGroup group, const std::string& strPath) {
    std::string strValues;
    for (const Key& key : aKeys)
        if (key.group != group)
            strValues += ReadINI(files, key.strSection, key.strKey, strPath) + '\n';
    return strValues;
}

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
    static const TemporaryFolder folder;
    SystemFiles files;
    const std::string strPath = folder.WriteBytes(strFileName, bytes);
    // The key and the value come from the input as well, without a place in the file for them.
    const std::size_t lngChoice = std::hash<std::string_view>{}(bytes);
    const Key& key = aKeys[lngChoice % std::size(aKeys)];

    // A piece of the file without a line break makes a value as good as any.
    std::string strValue(bytes.substr(bytes.empty() ? 0 : (lngChoice >> 16U) % bytes.size()));
    strValue.resize(std::min(strValue.find_first_of("\r\n"), strValue.size()));
    WriteINI(files, key.strSection, key.strKey, strValue, strPath);
    const std::string strWritten = folder.ReadBytes(strFileName);
    Require(IsReadBack(ReadINI(files, key.strSection, key.strKey, strPath), strValue),
            "any value reads back as it was written");
    Require(DifferInOneLine(bytes, strWritten), "the rest of the file stays");

    const std::string strOthers = ReadOthers(files, key.group, strPath);
    SaveSettings(files, LoadSettings(files, strPath), key.group, strPath);
    const std::string strSaved = folder.ReadBytes(strFileName);
    Require(ReadOthers(files, key.group, strPath) == strOthers, "the other settings stay");
    SaveSettings(files, LoadSettings(files, strPath), key.group, strPath);
    Require(folder.ReadBytes(strFileName) == strSaved, "what was read is written the same");
}

} // namespace cellora
