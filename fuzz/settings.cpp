#include "store/settings.h"

#include <algorithm>
#include <functional>
#include <iterator>

#include "fuzz/fuzzing.h"
#include "store/modCommon_INI.h"
#include "tests/support/temporary_folder.h"

/// A setting that is read is written and read again the same; a write replaces one value or adds
/// one line, and leaves every other byte of the file and every other setting alone.
namespace cellora {
namespace {

constexpr const char* strFileName = "cl.ini";
constexpr std::size_t lngMaxCharacters = 254;

struct Setting {
    const char* strSection;
    const char* strKey;
    /// Writes the value that it reads; true when it then reads the same.
    bool (*fnRewrite)(const std::string& strPath);
};

template <ColorKey key>
bool RewriteColor(const std::string& strPath) {
    const std::int32_t lngColor = ReadColor(key, strPath);
    WriteColor(key, lngColor, strPath);
    return ReadColor(key, strPath) == lngColor;
}

template <ViewFlag flag>
bool RewriteViewFlag(const std::string& strPath) {
    const bool blnShown = ReadViewFlag(flag, strPath);
    WriteViewFlag(flag, blnShown, strPath);
    return ReadViewFlag(flag, strPath) == blnShown;
}

bool RewriteCursorOption(const std::string& strPath) {
    const std::int16_t intOption = ReadCursorOption(strPath);
    WriteCursorOption(intOption, strPath);
    return ReadCursorOption(strPath) == intOption;
}

bool RewriteStartup(const std::string& strPath) {
    const bool blnShow = ReadStartup(strPath) == 1;
    WriteStartup(blnShow, strPath);
    return OpensAtStartup(strPath) == blnShow && ReadStartup(strPath) == (blnShow ? 1 : 0);
}

bool RewriteGamePath(const std::string& strPath) {
    const std::string strFolder = ReadGamePath(strPath);
    WriteGamePath(strFolder, strPath);
    return ReadGamePath(strPath) == strFolder;
}

constexpr Setting settings[] = {
    {"general", "path", RewriteGamePath},
    {"general", "startup", RewriteStartup},
    {"color", "screenbackground", RewriteColor<ColorKey::ScreenBackground>},
    {"color", "gridbackground", RewriteColor<ColorKey::GridBackground>},
    {"color", "gridlines", RewriteColor<ColorKey::GridLines>},
    {"color", "gridx", RewriteColor<ColorKey::GridX>},
    {"color", "gridcursor", RewriteColor<ColorKey::GridCursor>},
    {"color", "fontuser", RewriteColor<ColorKey::FontUser>},
    {"color", "fontcomputer", RewriteColor<ColorKey::FontComputer>},
    {"color", "gridincorrectcell", RewriteColor<ColorKey::GridIncorrectCell>},
    {"view", "cursor", RewriteCursorOption},
    {"view", "statusbar", RewriteViewFlag<ViewFlag::StatusBar>},
    {"view", "toolbar", RewriteViewFlag<ViewFlag::Toolbar>},
    {"view", "numberselector", RewriteViewFlag<ViewFlag::NumberSelector>},
    {"view", "statistics", RewriteViewFlag<ViewFlag::Statistics>},
    {"view", "cellerrors", RewriteViewFlag<ViewFlag::CellErrors>},
};

std::string ReadRaw(const Setting& setting, const std::string& strPath) {
    return ReadINI(setting.strSection, setting.strKey, strPath);
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

/// A piece of the file without a line break, which makes a path as good as any.
std::string PickLine(std::string_view bytes, std::size_t lngChoice) {
    const std::size_t lngBegin = bytes.empty() ? 0 : lngChoice % bytes.size();
    const std::string_view strRest = bytes.substr(lngBegin);
    return std::string(strRest.substr(0, strRest.find_first_of("\r\n")));
}

/// The value of a long text is its first 254 characters, which are at least as many bytes.
bool IsReadBack(const std::string& strRead, const std::string& strWritten) {
    return strRead == strWritten ||
           (strRead.size() >= lngMaxCharacters && strWritten.starts_with(strRead));
}

} // namespace

void TryInput(std::string_view bytes) {
    static const TemporaryFolder folder;
    const std::string strPath = folder.WriteBytes(strFileName, bytes);
    // The settings and the path come from the input as well, without a place in the file for them.
    const std::size_t lngChoice = std::hash<std::string_view>{}(bytes);
    const std::size_t lngWritten = lngChoice % std::size(settings);
    const std::size_t lngOther =
        (lngWritten + 1 + (lngChoice >> 8U) % (std::size(settings) - 1)) % std::size(settings);
    const std::string strOther = ReadRaw(settings[lngOther], strPath);

    Require(settings[lngWritten].fnRewrite(strPath), "a setting reads back as it was written");
    const std::string strRewritten = folder.ReadBytes(strFileName);
    Require(DifferInOneLine(bytes, strRewritten), "the rest of the file stays");
    Require(settings[lngWritten].fnRewrite(strPath) &&
                folder.ReadBytes(strFileName) == strRewritten,
            "the same value once more changes nothing");
    Require(ReadRaw(settings[lngOther], strPath) == strOther, "the other settings stay");

    const std::string strValue = PickLine(bytes, lngChoice >> 16U);
    WriteINI(settings[lngWritten].strSection, settings[lngWritten].strKey, strValue, strPath);
    Require(IsReadBack(ReadRaw(settings[lngWritten], strPath), strValue),
            "any value reads back as it was written");
    Require(DifferInOneLine(strRewritten, folder.ReadBytes(strFileName)),
            "the rest of the rewritten file stays");
    Require(ReadRaw(settings[lngOther], strPath) == strOther,
            "the other settings of the rewritten file stay");
}

} // namespace cellora
