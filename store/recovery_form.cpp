#include "store/recovery_form.h"

#include <utility>

#include "core/text.h"

namespace cellora {

namespace {

/// No line of a saved game reads like this one.
constexpr std::string_view strMark = "\r\n[recovery]\r\n";

std::optional<std::string> TakeValue(std::string_view& rest, std::string_view strKey) {
    const std::string_view strLine = TakeLine(rest);
    if (!strLine.starts_with(strKey))
        return std::nullopt;
    return std::string(strLine.substr(strKey.size()));
}

} // namespace

std::string FormatRecoveryCopy(const RecoveryCopy& copy) {
    const bool blnOneLine = copy.strGameFile.find('\n') == std::string::npos;
    std::string bytes = FormatSavedGame(copy.savedGame);
    bytes.append(strMark.substr(strLineBreak.size()));
    for (const auto& [strKey, strValue] : {
             std::pair<const char*, std::string>{"file=", blnOneLine ? copy.strGameFile : ""},
             {"waits=", copy.score.blnWaits ? "True" : "False"},
             {"name=", copy.score.strName},
             {"equal=", std::to_string(copy.score.intEqual)},
         })
        bytes.append(strKey).append(strValue).append(strLineBreak);
    return bytes;
}

std::optional<RecoveryCopy> ParseRecoveryCopy(std::string_view bytes) {
    const std::size_t lngMark = bytes.find(strMark);
    if (lngMark == std::string_view::npos)
        return std::nullopt;
    std::string_view rest = bytes.substr(lngMark + strMark.size());
    const auto savedGame = ParseSavedGame(bytes.substr(0, lngMark));
    const auto strFile = TakeValue(rest, "file=");
    const auto strWaits = TakeValue(rest, "waits=");
    const auto strName = TakeValue(rest, "name=");
    const auto strEqual = TakeValue(rest, "equal=");
    const auto intEqual = ParseWhole<std::int16_t>(strEqual.value_or(""));
    if (!savedGame || !strFile || !strWaits || !strName || !intEqual)
        return std::nullopt;
    return RecoveryCopy{*savedGame, *strFile, {*strWaits == "True", *strName, *intEqual}};
}

} // namespace cellora
