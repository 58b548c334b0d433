#include "store/hall_of_fame_form.h"

#include <vector>

#include "core/text.h"

namespace cellora {

namespace {

constexpr std::size_t intLinesPerEntry = 4;
constexpr std::size_t intLinesPerLevel = 1 + LevelEntries::size() * intLinesPerEntry;

using Lines = std::vector<std::string_view>;

Lines SplitLines(std::string_view strBytes) {
    Lines lines;
    while (!strBytes.empty())
        lines.push_back(TakeLine(strBytes));
    return lines;
}

bool ReadNumber(std::string_view strLine, std::int32_t& lngNumber) {
    const auto lngRead = ParseWhole<std::int32_t>(Trim(strLine));
    lngNumber = lngRead.value_or(lngNumber);
    return lngRead.has_value();
}

/// The name without any quotes, which could not be written back; true when it stood between the two
/// of a name in form.
bool ReadName(std::string_view strLine, std::string& strName) {
    const bool blnQuoted = strLine.starts_with('"') && strLine.ends_with('"');
    strName = strLine;
    return std::erase(strName, '"') == 2 && blnQuoted;
}

enum class Given { InForm, Whole, InParts };

Given ReadEntry(const Lines& lines, std::size_t intLine, HallOfFameEntry& entry) {
    bool blnWhole = intLine < lines.size();
    const bool blnNamed = blnWhole && ReadName(lines[intLine], entry.strName);
    for (std::int32_t* const pNumber : {&entry.lngHours, &entry.lngMinutes, &entry.lngSeconds}) {
        ++intLine;
        blnWhole &= intLine < lines.size() && ReadNumber(lines[intLine], *pNumber);
    }
    return !blnWhole ? Given::InParts : blnNamed ? Given::InForm : Given::Whole;
}

std::size_t GetFirstLine(int intLevel) {
    return static_cast<std::size_t>(intLevel - 1) * intLinesPerLevel;
}

/// Takes what the lines of one level give; true when all of it was in form.
bool ReadLevel(const Lines& lines, int intLevel, LevelEntries& entries) {
    std::size_t intLine = GetFirstLine(intLevel);
    std::int32_t lngLevel = 0;
    bool blnInForm =
        intLine < lines.size() && ReadNumber(lines[intLine], lngLevel) && lngLevel == intLevel;
    ++intLine;
    for (HallOfFameEntry& entry : entries) {
        blnInForm &= ReadEntry(lines, intLine, entry) == Given::InForm;
        intLine += intLinesPerEntry;
    }
    return blnInForm;
}

} // namespace

HallOfFame MakeEmptyHallOfFame() {
    HallOfFame hallOfFame;
    for (LevelEntries& entries : hallOfFame)
        entries.fill({std::string(strNoName), 99, 99, 99});
    return hallOfFame;
}

bool ReadHallOfFameBytes(std::string_view bytes, HallOfFame& hallOfFame) {
    const Lines lines = SplitLines(bytes);
    bool blnInForm = bytes.ends_with('\n') && lines.size() == intLevelCount * intLinesPerLevel;
    for (int intLevel = 1; intLevel <= intLevelCount; ++intLevel)
        blnInForm &= ReadLevel(lines, intLevel, hallOfFame[intLevel]);
    return blnInForm;
}

HallOfFame RepairHallOfFame(std::string_view bytes) {
    const Lines lines = SplitLines(bytes);
    HallOfFame hallOfFame = MakeEmptyHallOfFame();
    for (int intLevel = 1; intLevel <= intLevelCount; ++intLevel) {
        int intPlace = 0; // of the last whole entry, so that empty ones come behind
        for (std::size_t n = 0; n < LevelEntries::size(); ++n) {
            HallOfFameEntry entry;
            const std::size_t intLine = GetFirstLine(intLevel) + 1 + n * intLinesPerEntry;
            if (ReadEntry(lines, intLine, entry) != Given::InParts)
                hallOfFame[intLevel][++intPlace] = entry;
        }
    }
    return hallOfFame;
}

std::string FormatHallOfFame(const HallOfFame& hallOfFame) {
    std::string strBytes;
    const auto AddLine = [&strBytes](const std::string& strLine) {
        strBytes.append(strLine).append(strLineBreak);
    };
    for (int intLevel = 1; intLevel <= intLevelCount; ++intLevel) {
        AddLine(std::to_string(intLevel));
        for (const HallOfFameEntry& entry : hallOfFame[intLevel]) {
            AddLine('"' + entry.strName + '"');
            for (const std::int32_t lngNumber :
                 {entry.lngHours, entry.lngMinutes, entry.lngSeconds})
                AddLine(std::to_string(lngNumber));
        }
    }
    return strBytes;
}

bool ReadLevelBytes(std::string_view bytes, int intLevel, LevelEntries& entries) {
    return ReadLevel(SplitLines(bytes), intLevel, entries);
}

} // namespace cellora
