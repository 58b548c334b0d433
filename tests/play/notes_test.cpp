#include "play/notes.h"

#include <gtest/gtest.h>

#include "play/entry.h"
#include "play/selector.h"
#include "tests/support/test_game.h"

namespace cellora {
namespace {

/// The popup's entries that are shown, top to bottom; "Remove All" in parentheses while disabled.
std::string DescribePopup(const Game& game) {
    std::string strText;
    const auto fnAddShown = [&strText](const Numbered<PopupItem, 9>& items) {
        for (const PopupItem& item : items) {
            if (item.blnVisible)
                strText += item.strCaption + '|';
        }
    };
    fnAddShown(game.mnuA);
    strText += game.mnuAsepVisible ? "--|" : "";
    fnAddShown(game.mnuC);
    return strText + "--|" + (game.mnuRemoveAllEnabled ? "Remove All" : "(Remove All)");
}

class Notes : public testing::Test {
protected:
    /// The popup of cell 41 with these notes and this number selected.
    std::string OpenPopup(const std::string& strNotes, int intNumber = 0) {
        DoNumberSelect(game, intNumber);
        game.cells[41].strNotes = strNotes;
        CellClick(game, 41, MouseButton::Right);
        return DescribePopup(game);
    }

    const std::string& Get() const { return game.cells[41].strNotes; }

    TestGame test;
    Game& game = test.game;
};

TEST_F(Notes, PopupOffersWhatTheCellLacksAndRemovesWhatItHas) {
    struct Case {
        const char* strNotes;
        int intNumber;
        const char* strPopup;
    };
    for (const Case& row : {
             Case{"", 0, "1|2|3|4|5|6|7|8|9|--|(Remove All)"},
             Case{"", 10, "1|2|3|4|5|6|7|8|9|--|(Remove All)"},
             Case{"", 8, "8|--|1|2|3|4|5|6|7|8|9|--|(Remove All)"},
             Case{"4 2 ", 0, "1|2 - Remove|3|4 - Remove|5|6|7|8|9|--|Remove All"},
             Case{"4 2 ", 2, "2 - Remove|--|1|2 - Remove|3|4 - Remove|5|6|7|8|9|--|Remove All"},
             Case{"1 2 3 4 5 ", 7,
                  "--|1 - Remove|2 - Remove|3 - Remove|4 - Remove|5 - Remove|--|Remove All"},
             Case{"5 4 3 2 1 ", 3,
                  "3 - Remove|--|1 - Remove|2 - Remove|3 - Remove|4 - Remove|5 - Remove|--|"
                  "Remove All"},
             // Notes an opened file may bring: a sixth one, a digit twice, no digits at all.
             Case{"1 2 3 4 5 6 ", 6,
                  "--|1 - Remove|2 - Remove|3 - Remove|4 - Remove|5 - Remove|--|Remove All"},
             Case{"7 7 7 7 7 ", 0, "7 - Remove|--|Remove All"},
             Case{"x0", 0, "1|2|3|4|5|6|7|8|9|--|Remove All"},
         })
        EXPECT_EQ(OpenPopup(row.strNotes, row.intNumber), row.strPopup) << row.strNotes;
    EXPECT_EQ(test.desktop.popups.size(), 10U);
    EXPECT_FALSE(test.desktop.IsRunning(Timer::tmrCellWait));
}

TEST_F(Notes, AreAddedInOrderAndRemovedOneByOne) {
    for (const int n : {3, 5, 1}) {
        OpenPopup(Get());
        test.TakeLog();
        mnuC_Click(game, n);
        EXPECT_EQ(test.TakeLog(), "tmrCellWait off, tmrCellWait on");
    }
    EXPECT_EQ(Get(), "3 5 1 ");
    OpenPopup(Get(), 3);
    mnuA_Click(game, 3);
    EXPECT_EQ(Get(), "5 1 ");
    OpenPopup(Get(), 8);
    mnuA_Click(game, 8);
    EXPECT_EQ(Get(), "5 1 8 ");
    OpenPopup(Get());
    mnuC_Click(game, 5);
    OpenPopup(Get());
    mnuC_Click(game, 8);
    OpenPopup(Get());
    mnuC_Click(game, 1);
    EXPECT_EQ(Get(), "");
    EXPECT_EQ(OpenPopup("3 5 1 "), "1 - Remove|2|3 - Remove|4|5 - Remove|6|7|8|9|--|Remove All");
    mnuRemoveAll_Click(game);
    EXPECT_EQ(Get(), "");
    EXPECT_TRUE(test.desktop.IsRunning(Timer::tmrCellWait));
}

TEST_F(Notes, RemovingTakesEveryCopyAndStopsAtTheEnd) {
    struct Case {
        const char *strNotes, *strLeft;
    };
    for (const Case& row : {Case{"3 1 3 ", "1 "}, Case{"3 3", ""}, Case{"1 2 3", "1 2 "},
                            Case{"   3 ", ""}, Case{"1 2 ", "1 2 "}, Case{"33 1 ", " 1 "}}) {
        game.cells[41].strNotes = row.strNotes;
        CandidateRemove(game, 3);
        EXPECT_EQ(Get(), row.strLeft) << row.strNotes;
    }
}

TEST_F(Notes, StandBesideAnEntryAndAreNoChange) {
    test.Fill(41);
    OpenPopup("");
    mnuC_Click(game, 9);
    EXPECT_EQ(AsText(game.cells[41]), game.cells[41].strSolution + "{9 }");
    EXPECT_FALSE(game.blnGameChanged);
    EXPECT_EQ(test.intCounts, 0);
}

} // namespace
} // namespace cellora
