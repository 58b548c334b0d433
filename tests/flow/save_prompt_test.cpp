#include "flow/game_file.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "flow/start_up.h"
#include "played_game.h"
#include "store/settings.h"

namespace cellora {
namespace {

using Log = std::vector<std::string>;

std::string FormatGame(const Game& game) {
    return FormatSavedGame(TakeGame(game));
}

/// A game with unsaved changes, on a desktop with nothing in its log.
class SavePrompt : public testing::Test {
protected:
    SavePrompt() {
        played.Start(2);
        game.strGameFolder = played.folder.Path();
        desktop.log.clear();
    }

    void ExpectPrompt(MessageButtons buttons) {
        ASSERT_EQ(desktop.boxes.size(), 1U);
        EXPECT_EQ(desktop.boxes[0].strTitle, "Save Game?");
        EXPECT_EQ(desktop.boxes[0].strText, "Do you want to save the current game?");
        EXPECT_EQ(desktop.boxes[0].icon, MessageIcon::Question);
        EXPECT_EQ(desktop.boxes[0].buttons, buttons);
        EXPECT_EQ(desktop.intBeeps, 0);
    }

    PlayedGame played;
    ScriptedDesktop& desktop = played.desktop;
    Game& game = played.game;
};

TEST_F(SavePrompt, IsAskedOnlyForChanges) {
    game.blnGameChanged = false;
    EXPECT_TRUE(MayClose(game));
    NewGame(game);
    desktop.files = {std::nullopt};
    OpenGame(game);
    EXPECT_EQ(desktop.log, (Log{"hourglass", "window 0", "arrow", "hourglass", "arrow"}));
}

TEST_F(SavePrompt, BeforeNewGameGoesOnWhateverTheAnswer) {
    desktop.answers = {Answer::No};
    NewGame(game);
    ExpectPrompt(MessageButtons::YesNo);
    EXPECT_EQ(desktop.log, (Log{"box Save Game?", "hourglass", "window 0", "arrow"}));
    EXPECT_TRUE(game.blnGameChanged);

    const Log saved = {"box Save Game?", "hourglass", "arrow", "hourglass", "window 0", "arrow"};
    const std::string strFile = played.folder.Path("game.clp");
    for (const std::optional<std::string>& strChosen : {std::optional<std::string>(), {strFile}}) {
        desktop.log.clear();
        desktop.answers = {Answer::Yes};
        desktop.files = {strChosen};
        NewGame(game);
        EXPECT_EQ(desktop.log, saved);
        EXPECT_EQ(game.blnGameChanged, !strChosen);
        EXPECT_EQ(game.strGameFile, strChosen.value_or(""));
    }
    EXPECT_EQ(played.folder.ReadBytes("game.clp"), FormatGame(game));

    // The game has its file now.
    game.blnGameChanged = true;
    desktop.answers = {Answer::Yes};
    NewGame(game);
    EXPECT_EQ(desktop.requests.size(), 2U);
    EXPECT_FALSE(game.blnGameChanged);
}

TEST_F(SavePrompt, BeforeOpenSavesTheOldGameFirst) {
    PlayedGame other;
    other.Start(30);
    const std::string strOther = FormatGame(other.game);
    const std::string strOld = FormatGame(game);
    const std::string strOtherFile = played.folder.WriteBytes("other.clp", strOther);
    desktop.answers = {Answer::Yes};
    desktop.files = {played.folder.Path("old.clp"), strOtherFile};
    OpenGame(game);
    ExpectPrompt(MessageButtons::YesNo);
    EXPECT_EQ(played.folder.ReadBytes("old.clp"), strOld);
    EXPECT_EQ(FormatGame(game), strOther);
    EXPECT_EQ(game.strGameFile, strOtherFile);
    EXPECT_EQ(desktop.requests[0].purpose, FilePurpose::Save);
    EXPECT_EQ(desktop.requests[1].purpose, FilePurpose::Open);

    // Saved by mistake nowhere, opened nothing: the changes are still there.
    game.blnGameChanged = true;
    desktop.answers = {Answer::Yes};
    game.strGameFile.clear();
    desktop.files = {std::nullopt, std::nullopt};
    OpenGame(game);
    EXPECT_TRUE(game.blnGameChanged);
    EXPECT_EQ(game.strGameFile, "");
    EXPECT_EQ(FormatGame(game), strOther);
}

TEST_F(SavePrompt, BeforeClosingOnlyCancelKeepsTheWindowOpen) {
    desktop.answers = {Answer::Cancel, Answer::No, Answer::Yes, Answer::Yes};
    desktop.files = {std::nullopt, played.folder.Path("game.clp")};
    const std::string strBefore = DescribeGame(game);
    EXPECT_FALSE(MayClose(game));
    ExpectPrompt(MessageButtons::YesNoCancel);
    EXPECT_TRUE(MayClose(game));
    EXPECT_TRUE(MayClose(game)); // its Save As is cancelled
    EXPECT_EQ(DescribeGame(game), strBefore);
    EXPECT_EQ(game.strGameFile, "");
    EXPECT_TRUE(MayClose(game));
    EXPECT_FALSE(game.blnGameChanged);
    EXPECT_EQ(played.folder.ReadBytes("game.clp"), FormatGame(game));
}

TEST_F(SavePrompt, AFileThatCannotBeWrittenOffersAnotherPlace) {
    game.strGameFile = played.folder.Path("gone/game.clp");
    desktop.files = {std::nullopt, played.folder.MakeFolder("taken"),
                     played.folder.Path("second.clp")};
    SaveGame(game);
    EXPECT_EQ(desktop.log, (Log{"hourglass", "beep", "box Can't Save File", "arrow"}));
    EXPECT_EQ(desktop.boxes[0].icon, MessageIcon::Exclamation);
    EXPECT_NE(desktop.boxes[0].strText.find(game.strGameFile), std::string::npos);
    EXPECT_EQ(desktop.requests[0].purpose, FilePurpose::Save);
    EXPECT_EQ(game.strGameFile, played.folder.Path("gone/game.clp"));
    EXPECT_TRUE(game.blnGameChanged);

    SaveGame(game); // the next place cannot be written either; Save As says nothing
    EXPECT_EQ(desktop.boxes.size(), 2U);
    EXPECT_EQ(game.strGameFile, played.folder.Path("taken"));
    EXPECT_TRUE(game.blnGameChanged);

    SaveGame(game);
    EXPECT_EQ(desktop.boxes.size(), 3U);
    EXPECT_FALSE(game.blnGameChanged);
    EXPECT_EQ(played.folder.ReadBytes("second.clp"), FormatGame(game));
}

TEST_F(SavePrompt, TheFolderOfTheLastFileIsRemembered) {
    const std::string strSettings = GetSettingsFile(game);
    const std::string strOne = played.folder.MakeFolder("one") + "/";
    const std::string strTwo = played.folder.MakeFolder("two") + "/";
    desktop.files = {strOne + "game", strTwo + "game.clp", std::nullopt};
    SaveGameAs(game);
    EXPECT_EQ(desktop.requests[0].strFolder, played.folder.Path());
    EXPECT_EQ(game.strGameFile, strOne + "game"); // the name as typed
    EXPECT_EQ(ReadGamePath(strSettings), strOne);

    std::filesystem::copy(strOne + "game", strTwo + "game.clp");
    OpenGame(game);
    EXPECT_EQ(desktop.requests[1].strFolder, strOne);
    EXPECT_EQ(game.strGameFolder, strTwo);
    EXPECT_EQ(ReadGamePath(strSettings), strTwo);

    std::filesystem::remove_all(strTwo);
    SaveGameAs(game);
    EXPECT_EQ(desktop.requests[2].strFolder, game.strProgramFolder);
    EXPECT_EQ(ReadGamePath(strSettings), strTwo);
}

} // namespace
} // namespace cellora
