#ifndef _WIN32

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

#include "played_game.h"

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

/// Starts a copy of the program that waits for the end of the pipe before it inserts.
pid_t StartCopy(PlayedGame& played, int intCopy, const int (&aPipe)[2]) {
    const pid_t pid = fork();
    if (pid != 0)
        return pid;
    close(aPipe[1]);
    char character = 0;
    const bool blnStarted = read(aPipe[0], &character, 1) == 0;
    _exit(blnStarted && InsertEntries(played, intCopy) ? 0 : 1);
}

TEST(HallOfFameSharing, LosesNoEntryOfTwoCopiesWritingAtOnce) {
    PlayedGame played;
    int aPipe[2];
    ASSERT_EQ(pipe(aPipe), 0);
    pid_t aPid[intCopies];
    for (int intCopy = 0; intCopy < intCopies; ++intCopy)
        aPid[intCopy] = StartCopy(played, intCopy, aPipe);
    close(aPipe[0]);
    close(aPipe[1]);
    for (const pid_t pid : aPid) {
        int intStatus = -1;
        ASSERT_EQ(waitpid(pid, &intStatus, 0), pid);
        EXPECT_EQ(intStatus, 0);
    }
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
