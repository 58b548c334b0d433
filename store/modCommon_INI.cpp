#include "store/modCommon_INI.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

#include "store/ascii.h"
#include "store/replace_file.h"

namespace cellora {

namespace {

constexpr std::size_t lngMaxCharacters = 254;
constexpr std::string_view strByteOrderMark = "\xEF\xBB\xBF";

/// Where a key stands in the text, or where it would have to be inserted.
struct Place {
    bool blnSectionFound = false;
    bool blnKeyFound = false;
    std::size_t lngValueBegin = 0; ///< first byte behind "=" and its blanks
    std::size_t lngValueEnd = 0;   ///< the end of the line, before its line ending
    std::size_t lngInsertAt = 0;   ///< the end of the section's last line that is not blank
};

bool IsBlank(char c) {
    return c == ' ' || c == '\t';
}

bool IsLineEnd(char c) {
    return c == '\r' || c == '\n';
}

std::string_view TrimBlanks(std::string_view strText) {
    while (!strText.empty() && IsBlank(strText.front()))
        strText.remove_prefix(1);
    while (!strText.empty() && IsBlank(strText.back()))
        strText.remove_suffix(1);
    return strText;
}

std::string_view DropQuotes(std::string_view strText) {
    const bool blnQuoted = strText.size() >= 2 && strText.front() == strText.back() &&
                           (strText.front() == '"' || strText.front() == '\'');
    return blnQuoted ? strText.substr(1, strText.size() - 2) : strText;
}

/// The line ending that starts at `lngAt`, empty at the end of the text.
std::string_view GetLineEnd(std::string_view strText, std::size_t lngAt) {
    const bool blnPair = strText.substr(lngAt).starts_with("\r\n");
    return strText.substr(lngAt, blnPair ? 2 : 1);
}

std::size_t FindLineEnd(std::string_view strText, std::size_t lngBegin) {
    return std::min(strText.find_first_of("\r\n", lngBegin), strText.size());
}

std::optional<std::string_view> GetSectionName(std::string_view strLine) {
    const std::size_t lngClose = strLine.find(']');
    if (!strLine.starts_with('[') || lngClose == std::string_view::npos)
        return std::nullopt;
    return TrimBlanks(strLine.substr(1, lngClose - 1));
}

/// True when the line holds the key; sets the place's value to what follows its equals sign.
bool MatchKey(std::string_view strText, std::size_t lngBegin, std::size_t lngEnd,
              std::string_view strKey, Place& place) {
    const std::string_view strLine = strText.substr(lngBegin, lngEnd - lngBegin);
    const std::size_t lngEquals = strLine.find('=');
    if (lngEquals == std::string_view::npos || TrimBlanks(strLine).starts_with(';') ||
        !EqualsIgnoringCase(TrimBlanks(strLine.substr(0, lngEquals)), strKey))
        return false;
    place.lngValueBegin = lngBegin + lngEquals + 1;
    while (place.lngValueBegin < lngEnd && IsBlank(strText[place.lngValueBegin]))
        ++place.lngValueBegin;
    place.lngValueEnd = lngEnd;
    return true;
}

Place FindPlace(std::string_view strText, std::string_view strSection, std::string_view strKey) {
    Place place;
    for (std::size_t lngBegin = 0; lngBegin < strText.size();) {
        const std::size_t lngEnd = FindLineEnd(strText, lngBegin);
        const std::size_t lngNext = lngEnd + GetLineEnd(strText, lngEnd).size();
        const std::string_view strLine = TrimBlanks(strText.substr(lngBegin, lngEnd - lngBegin));
        if (const auto strName = GetSectionName(strLine)) {
            if (place.blnSectionFound)
                return place;
            place.blnSectionFound = EqualsIgnoringCase(*strName, strSection);
        } else if (place.blnSectionFound && MatchKey(strText, lngBegin, lngEnd, strKey, place)) {
            place.blnKeyFound = true;
            return place;
        }
        if (place.blnSectionFound && !strLine.empty())
            place.lngInsertAt = lngNext;
        lngBegin = lngNext;
    }
    if (!place.blnSectionFound)
        place.lngInsertAt = strText.size();
    return place;
}

/// The bytes a character takes at the start of the text, 1 for a byte that begins none.
std::size_t GetCharacterSize(std::string_view strText) {
    const auto byteLead = static_cast<unsigned char>(strText.front());
    const std::size_t lngWanted = byteLead < 0xC0   ? 1
                                  : byteLead < 0xE0 ? 2
                                  : byteLead < 0xF0 ? 3
                                                    : 4;
    std::size_t lngSize = 1;
    while (lngSize < std::min(lngWanted, strText.size()) &&
           (static_cast<unsigned char>(strText[lngSize]) & 0xC0) == 0x80)
        ++lngSize;
    return lngSize;
}

std::string_view CutToLimit(std::string_view strText) {
    std::size_t lngSize = 0;
    for (std::size_t n = 0; n < lngMaxCharacters && lngSize < strText.size(); ++n)
        lngSize += GetCharacterSize(strText.substr(lngSize));
    return strText.substr(0, lngSize);
}

std::string_view SplitByteOrderMark(std::string_view& strText) {
    const std::size_t lngSize = strText.starts_with(strByteOrderMark) ? strByteOrderMark.size() : 0;
    const std::string_view strMark = strText.substr(0, lngSize);
    strText.remove_prefix(lngSize);
    return strMark;
}

bool IsWritableName(std::string_view strName, std::string_view strForbidden) {
    return !strName.empty() && TrimBlanks(strName) == strName &&
           strName.find_first_of(strForbidden) == std::string_view::npos;
}

std::string GetStoredForm(const std::string& strValue) {
    const bool blnKept = TrimBlanks(strValue) == strValue && DropQuotes(strValue) == strValue;
    return blnKept ? strValue : "\"" + strValue + "\"";
}

bool IsWritable(const INIValue& value) {
    return IsWritableName(value.strSection, "\r\n]") && IsWritableName(value.strKey, "\r\n=[;") &&
           value.strValue.find_first_of("\r\n") == std::string::npos;
}

std::string SetValue(std::string_view strText, const INIValue& value) {
    std::string strResult(SplitByteOrderMark(strText));
    const Place place = FindPlace(strText, value.strSection, value.strKey);
    if (place.blnKeyFound) {
        strResult.append(strText.substr(0, place.lngValueBegin));
        strResult.append(GetStoredForm(value.strValue));
        return strResult.append(strText.substr(place.lngValueEnd));
    }
    const std::string_view strFirstEnd = GetLineEnd(strText, FindLineEnd(strText, 0));
    const std::string strLineEnd(strFirstEnd.empty() ? "\r\n" : strFirstEnd);
    strResult.append(strText.substr(0, place.lngInsertAt));
    if (place.lngInsertAt > 0 && !IsLineEnd(strText[place.lngInsertAt - 1]))
        strResult.append(strLineEnd);
    if (!place.blnSectionFound)
        strResult.append("[" + value.strSection + "]" + strLineEnd);
    strResult.append(value.strKey + "=" + GetStoredForm(value.strValue) + strLineEnd);
    return strResult.append(strText.substr(place.lngInsertAt));
}

} // namespace

std::string ReadINI(FilePort& files, const std::string& strSection, const std::string& strKey,
                    const std::string& strPath) {
    return FindINI(ReadWholeFile(files, strPath, lngMaxINIBytes).bytes, strSection, strKey);
}

std::string FindINI(std::string_view strFile, std::string_view strSection,
                    std::string_view strKey) {
    SplitByteOrderMark(strFile);
    const Place place = FindPlace(strFile, strSection, strKey);
    const std::string_view strValue =
        strFile.substr(place.lngValueBegin, place.lngValueEnd - place.lngValueBegin);
    return std::string(CutToLimit(DropQuotes(TrimBlanks(strValue))));
}

void WriteINI(FilePort& files, const std::string& strSection, const std::string& strKey,
              const std::string& strValue, const std::string& strPath) {
    WriteINI(files, std::array{INIValue{strSection, strKey, strValue}}, strPath);
}

void WriteINI(FilePort& files, std::span<const INIValue> values, const std::string& strPath) {
    const ReadResult file = ReadWholeFile(files, strPath, lngMaxINIBytes);
    // A file that is there but cannot be read must not be replaced by one that holds a few keys.
    if (file.outcome == ReadOutcome::Failed)
        return;
    std::string strText = file.bytes;
    for (const INIValue& value : values) {
        const bool blnSpared =
            value.blnSpared && FindINI(file.bytes, value.strSection, value.strKey).empty();
        if (IsWritable(value) && !blnSpared)
            strText = SetValue(strText, value);
    }
    if (strText != file.bytes && strText.size() <= lngMaxINIBytes)
        ReplaceFile(files, strPath, strText);
}

} // namespace cellora
