#include "store/settings.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <limits>
#include <locale>
#include <optional>
#include <sstream>
#include <string_view>

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

/// The length of the decimal number at the start of the text, 0 when there is none: digits with at
/// most one point, and an exponent where digits follow its letter.
std::size_t GetNumberLength(std::string_view strText) {
    std::size_t lngAt = 0;
    const auto Skip = [&](std::string_view strCharacters) {
        const bool blnThere =
            lngAt < strText.size() && strCharacters.find(strText[lngAt]) != std::string_view::npos;
        lngAt += blnThere ? 1 : 0;
        return blnThere;
    };
    const auto SkipDigits = [&] {
        const std::size_t lngBegin = lngAt;
        while (Skip("0123456789")) {
        }
        return lngAt - lngBegin;
    };
    Skip("-");
    std::size_t lngDigits = SkipDigits();
    if (Skip("."))
        lngDigits += SkipDigits();
    if (lngDigits == 0)
        return 0;
    const std::size_t lngEnd = lngAt;
    if (!Skip("eE"))
        return lngEnd;
    Skip("+-");
    return SkipDigits() > 0 ? lngAt : lngEnd;
}

std::optional<LeadingNumber> ParseLeadingNumber(std::string_view strText) {
    if (strText.starts_with('+'))
        strText.remove_prefix(1);
    const std::size_t lngLength = GetNumberLength(strText);
    LeadingNumber number{.strRest = strText.substr(lngLength)};
    // Not every standard library's from_chars knows floating point yet.
    std::istringstream stream{std::string(strText.substr(0, lngLength))};
    stream.imbue(std::locale::classic());
    stream >> number.dblValue;
    return stream.fail() ? std::nullopt : std::optional(number);
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
