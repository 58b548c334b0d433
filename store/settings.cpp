#include "store/settings.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>
#include <limits>
#include <optional>
#include <string_view>
#include <system_error>

#include "core/modCommon_Constants.h"
#include "core/text.h"
#include "store/ascii.h"
#include "store/modCommon_INI.h"

namespace cellora {

namespace {

struct Setting {
    const char* strSection;
    const char* strKey;
    std::int32_t lngDefault;
};

constexpr Color lngRed = MakeColor(255, 0, 0);
constexpr Color lngBlue = MakeColor(0, 0, 255);
constexpr Color lngLightYellow = MakeColor(255, 255, 192);

/// The colours in the order of `ColorKey`, then the panes in the order of `ViewFlag`.
constexpr Setting settings[] = {
    {"color", "screenbackground", lngColorWhite},
    {"color", "gridbackground", lngColorWhite},
    {"color", "gridlines", lngColorBlack},
    {"color", "gridx", lngLightYellow},
    {"color", "gridcursor", lngBlue},
    {"color", "fontuser", lngBlue},
    {"color", "fontcomputer", lngColorBlack},
    {"color", "gridincorrectcell", lngRed},
    {"view", "statusbar", 1},
    {"view", "toolbar", 1},
    {"view", "numberselector", 1},
    {"view", "statistics", 1},
    {"view", "cellerrors", 1},
    {"view", "cursor", 0},
    {"general", "startup", 0},
    {"general", "path", 0},
};

constexpr std::size_t lngFirstViewFlag = static_cast<std::size_t>(ColorKey::GridIncorrectCell) + 1;
constexpr std::size_t lngCursor =
    lngFirstViewFlag + static_cast<std::size_t>(ViewFlag::CellErrors) + 1;

constexpr const Setting& settingCursor = settings[lngCursor];
constexpr const Setting& settingStartup = settings[lngCursor + 1];
constexpr const Setting& settingPath = settings[lngCursor + 2];
static_assert(std::size(settings) == lngCursor + 3);

const Setting& GetSetting(ColorKey key) {
    return settings[static_cast<std::size_t>(key)];
}

const Setting& GetSetting(ViewFlag flag) {
    return settings[lngFirstViewFlag + static_cast<std::size_t>(flag)];
}

std::string Read(const Setting& setting, const std::string& strPath) {
    return ReadINI(setting.strSection, setting.strKey, strPath);
}

void Write(const Setting& setting, const std::string& strValue, const std::string& strPath) {
    WriteINI(setting.strSection, setting.strKey, strValue, strPath);
}

template <typename Whole>
Whole ReadWhole(const Setting& setting, const std::string& strPath) {
    return ParseWhole<Whole>(Read(setting, strPath))
        .value_or(static_cast<Whole>(setting.lngDefault));
}

struct LeadingNumber {
    double dblValue = 0;
    std::string_view strRest; ///< what follows the number
};

std::optional<LeadingNumber> ParseLeadingNumber(std::string_view strText) {
    if (strText.starts_with('+'))
        strText.remove_prefix(1);
    // Words such as "inf" are numbers to the library, but not to a player.
    const std::size_t lngDigit = strText.starts_with('-') ? 1 : 0;
    constexpr std::string_view strStarts = "0123456789.";
    if (lngDigit >= strText.size() || strStarts.find(strText[lngDigit]) == std::string_view::npos)
        return std::nullopt;
    LeadingNumber number;
    const char* const end = strText.data() + strText.size();
    const std::from_chars_result result = std::from_chars(strText.data(), end, number.dblValue);
    if (result.ec != std::errc())
        return std::nullopt;
    number.strRest = strText.substr(static_cast<std::size_t>(result.ptr - strText.data()));
    return number;
}

double ReadStartupNumber(const std::string& strPath) {
    return ParseLeadingNumber(Read(settingStartup, strPath))
        .value_or(LeadingNumber{static_cast<double>(settingStartup.lngDefault), {}})
        .dblValue;
}

} // namespace

std::int32_t ReadColor(ColorKey key, const std::string& strPath) {
    return ReadWhole<std::int32_t>(GetSetting(key), strPath);
}

void WriteColor(ColorKey key, std::int32_t lngColor, const std::string& strPath) {
    Write(GetSetting(key), std::to_string(lngColor), strPath);
}

bool ReadViewFlag(ViewFlag flag, const std::string& strPath) {
    const std::string strValue = Read(GetSetting(flag), strPath);
    if (EqualsIgnoringCase(strValue, "True") || EqualsIgnoringCase(strValue, "False"))
        return EqualsIgnoringCase(strValue, "True");
    const std::optional<LeadingNumber> number = ParseLeadingNumber(strValue);
    if (number && number->strRest.empty())
        return number->dblValue != 0;
    return GetSetting(flag).lngDefault != 0;
}

void WriteViewFlag(ViewFlag flag, bool blnShown, const std::string& strPath) {
    Write(GetSetting(flag), blnShown ? "True" : "False", strPath);
}

std::int16_t ReadCursorOption(const std::string& strPath) {
    return ReadWhole<std::int16_t>(settingCursor, strPath);
}

void WriteCursorOption(std::int16_t intOption, const std::string& strPath) {
    Write(settingCursor, std::to_string(intOption), strPath);
}

bool OpensAtStartup(const std::string& strPath) {
    return ReadStartupNumber(strPath) == 1;
}

std::int32_t ReadStartup(const std::string& strPath) {
    using Limits = std::numeric_limits<std::int32_t>;
    const double dblRounded = std::nearbyint(ReadStartupNumber(strPath));
    return static_cast<std::int32_t>(std::clamp<double>(dblRounded, Limits::min(), Limits::max()));
}

void WriteStartup(bool blnShow, const std::string& strPath) {
    Write(settingStartup, blnShow ? "1" : "0", strPath);
}

std::string ReadGamePath(const std::string& strPath) {
    return Read(settingPath, strPath);
}

void WriteGamePath(const std::string& strFolder, const std::string& strPath) {
    Write(settingPath, strFolder, strPath);
}

} // namespace cellora
