#include "store/settings.h"

#include <cmath>
#include <optional>
#include <string_view>
#include <type_traits>
#include <variant>
#include <vector>

#include <QLocale>
#include <QRegularExpression>
#include <QString>

#include "core/settings.h"
#include "core/text.h"
#include "store/ascii.h"
#include "store/modCommon_INI.h"
#include "store/replace_file.h"

namespace cellora {

namespace {

/// Where a value is kept in memory, which tells its kind. The default is that of fresh settings.
using Member = std::variant<ColorSlot, std::int16_t Settings::*, bool Settings::*,
                            double Settings::*, std::string Settings::*>;

/// The rows are written to be read, not to be packed.
struct Row { // NOLINT(clang-analyzer-optin.performance.Padding)
    SettingsGroup group;
    const char* strSection;
    const char* strKey;
    Member member;
};

/// Each group in the order of its writing.
constexpr Row aRows[] = {
    {SettingsGroup::Options, "color", "screenbackground", lngColorScreenBackground},
    {SettingsGroup::Options, "color", "gridbackground", lngColorGridBackground},
    {SettingsGroup::Options, "color", "gridlines", lngColorGridLines},
    {SettingsGroup::Options, "color", "gridx", lngColorGridX},
    {SettingsGroup::Options, "color", "gridcursor", lngColorGridCursor},
    {SettingsGroup::Options, "color", "fontuser", lngColorFontUser},
    {SettingsGroup::Options, "color", "fontcomputer", lngColorFontComputer},
    {SettingsGroup::Options, "color", "gridincorrectcell", lngColorIncorrectCell},
    {SettingsGroup::Options, "view", "cursor", &Settings::intCursorOption},
    {SettingsGroup::View, "view", "statusbar", &Settings::blnStatusBar},
    {SettingsGroup::View, "view", "toolbar", &Settings::blnToolbar},
    {SettingsGroup::View, "view", "numberselector", &Settings::blnNumberSelector},
    {SettingsGroup::View, "view", "statistics", &Settings::blnStatistics},
    {SettingsGroup::View, "view", "cellerrors", &Settings::blnCellErrors},
    {SettingsGroup::View, "view", "zoom", &Settings::intZoom},
    {SettingsGroup::Startup, "general", "startup", &Settings::dblStartup},
    {SettingsGroup::Path, "general", "path", &Settings::strGameFolder},
};

struct LeadingNumber {
    double dblValue;
    std::string_view strRest; ///< what follows the number
};

std::optional<LeadingNumber> ParseLeadingNumber(std::string_view strText) {
    static const QRegularExpression form(
        QStringLiteral("^\\+?(-?(?:\\d+\\.?\\d*|\\.\\d+)(?:[eE][+-]?\\d+)?)"));
    // A character for each byte, so that lengths agree.
    const QRegularExpressionMatch match =
        form.match(QString::fromLatin1(strText.data(), static_cast<qsizetype>(strText.size())));
    if (!match.hasMatch())
        return std::nullopt;
    const double dblValue = QLocale::c().toDouble(match.captured(1));
    if (std::isinf(dblValue))
        return std::nullopt;
    return LeadingNumber{dblValue,
                         strText.substr(static_cast<std::size_t>(match.capturedLength()))};
}

/// Each takes the value where the text holds one and else leaves the default.
void Parse(std::string_view strText, std::string& strValue) {
    strValue = strText;
}

template <std::integral Whole>
void Parse(std::string_view strText, Whole& number) {
    number = ParseWhole<Whole>(strText).value_or(number);
}

void Parse(std::string_view strText, double& dblValue) {
    if (const auto number = ParseLeadingNumber(strText))
        dblValue = number->dblValue;
}

void Parse(std::string_view strText, bool& blnValue) {
    if (EqualsIgnoringCase(strText, "True") || EqualsIgnoringCase(strText, "False"))
        blnValue = EqualsIgnoringCase(strText, "True");
    else if (const auto number = ParseLeadingNumber(strText); number && number->strRest.empty())
        blnValue = number->dblValue != 0;
}

std::string Format(const std::string& strValue) {
    return strValue;
}

template <std::integral Whole>
std::string Format(Whole number) {
    return std::to_string(number);
}

std::string Format(double dblValue) {
    return dblValue == 1 ? "1" : "0";
}

std::string Format(bool blnValue) {
    return blnValue ? "True" : "False";
}

/// Calls `fnUse` with the value that the row stands for.
template <typename AnySettings, typename Use>
auto Visit(const Row& row, AnySettings& settings, Use fnUse) {
    return std::visit(
        [&](auto member) {
            if constexpr (std::is_same_v<decltype(member), ColorSlot>)
                return fnUse(settings.colors[member]);
            else
                return fnUse(settings.*member);
        },
        row.member);
}

std::string FormatRow(const Row& row, const Settings& settings) {
    return Visit(row, settings, [](const auto& value) { return Format(value); });
}

} // namespace

Settings LoadSettings(FilePort& files, const std::string& strPath) {
    const ReadResult file = ReadWholeFile(files, strPath, lngMaxINIBytes);
    Settings settings;
    for (const Row& row : aRows)
        Visit(row, settings,
              [&](auto& value) { Parse(FindINI(file.bytes, row.strSection, row.strKey), value); });
    settings.intZoom = GetNearestZoom(settings.intZoom);
    settings.strUnread = file.strReason;
    return settings;
}

void SaveSettings(FilePort& files, const Settings& settings, SettingsGroup group,
                  const std::string& strPath) {
    if (!settings.strUnread.empty())
        return;
    std::vector<INIValue> values;
    for (const Row& row : aRows) {
        if (row.group != group)
            continue;
        const std::string strValue = FormatRow(row, settings);
        const bool blnSpared =
            row.member == Member(&Settings::intZoom) && strValue == FormatRow(row, {});
        values.push_back({row.strSection, row.strKey, strValue, blnSpared});
    }
    WriteINI(files, values, strPath);
}

} // namespace cellora
