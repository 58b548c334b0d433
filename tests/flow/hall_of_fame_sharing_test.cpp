#ifndef _WIN32

#include <gtest/gtest.h>

#include "played_game.h"
#include "tests/support/faults.h"

namespace cellora {
namespace {

constexpr int intCopies = 2;
constexpr int intLevels = 20;
constexpr int intEntriesPerLevel = 5; ///< of one copy; both together fill a list exactly

HallOfFameEntry MakeEntry(int intCopy, int intNumber) {
    return {"Copy " + std::to_string(intCopy) + " No. " + std::to_string(intNumber), 0,
            intNumber * intCopies + intCopy, 0};
}

/// Inserts this copy's 100 entries, shortest times first or longest times first.
bool InsertEntries(PlayedGame& played, int intCopy) {
    for (int i = 0; i < intEntriesPerLevel; ++i) {
        const HallOfFameEntry entry =
            MakeEntry(intCopy, intCopy == 0 ? i : intEntriesPerLevel - 1 - i);
        played.SetTime(0, entry.lngMinutes, 0);
        for (int intLevel = 1; intLevel <= intLevels; ++intLevel) {
            played.game.lblLevel = GetLevelName(intLevel);
            if (SaveHallOfFameEntry(played.game, entry.strName))
                return false;
        }
    }
    return true;
}

TEST(HallOfFameSharing, LosesNoEntryOfTwoCopiesWritingAtOnce) {
    PlayedGame played;
    ChildProcess first([&](const auto&) { return InsertEntries(played, 0); });
    ChildProcess second([&](const auto&) { return InsertEntries(played, 1); });
    EXPECT_EQ(first.Wait(), 0);
    EXPECT_EQ(second.Wait(), 0);
    RecordedEntries expected;
    for (int intLevel = 1; intLevel <= intLevels; ++intLevel) {
        for (int i = 0; i < intEntriesPerLevel; ++i) {
            for (int intCopy = 0; intCopy < intCopies; ++intCopy)
                expected[intLevel].push_back(MakeEntry(intCopy, i));
        }
    }
    EXPECT_EQ(FindDifference(played.ReadFile(), WriteHallOfFame(expected)), "");
    EXPECT_EQ(played.folder.Count(), 1);
}

} // namespace
} // namespace cellora

#endif
