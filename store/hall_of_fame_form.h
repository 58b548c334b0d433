#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "core/modCommon_Constants.h"
#include "core/numbered.h"

/// What the file of best times holds, and its form: for each level its number and ten entries of
/// four lines (docs/file-formats.md).
namespace cellora {

/// A larger file is no file of best times.
inline constexpr std::size_t lngMaxHallOfFameBytes = std::size_t{1} << 20U;

inline constexpr std::string_view strNoName = "(none)";

struct HallOfFameEntry {
    std::string strName; ///< UTF-8; a file may hold other bytes
    std::int32_t lngHours = 0;
    std::int32_t lngMinutes = 0;
    std::int32_t lngSeconds = 0;

    bool operator==(const HallOfFameEntry&) const = default;
};

using LevelEntries = Numbered<HallOfFameEntry, 10>;
using HallOfFame = Numbered<LevelEntries, intLevelCount>;

/// Empty entries in all levels, as an installation starts with.
HallOfFame MakeEmptyHallOfFame();

/// The bytes of the file. Names hold no double quote and no line break.
std::string FormatHallOfFame(const HallOfFame& hallOfFame);

/// Takes what the bytes give; what a short or damaged file does not give keeps its value. True when
/// the whole file was in form. Lines end with CR LF or LF.
bool ReadHallOfFameBytes(std::string_view bytes, HallOfFame& hallOfFame);

/// What a damaged file still holds: the entries that are given whole, in their order. All others
/// are empty.
HallOfFame RepairHallOfFame(std::string_view bytes);

/// The same as `ReadHallOfFameBytes` for one level 1 to 30 alone.
bool ReadLevelBytes(std::string_view bytes, int intLevel, LevelEntries& entries);

} // namespace cellora
