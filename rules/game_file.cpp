#include "rules/game_file.h"

#include <utility>

#include "core/desktop.h"
#include "core/modCellora.h"
#include "rules/aids.h"
#include "rules/check.h"
#include "rules/clock.h"
#include "rules/selector.h"
#include "rules/start_up.h"
#include "store/modCommon_File.h"
#include "store/replace_file.h"
#include "store/saved_game.h"
#include "store/settings.h"

namespace cellora {

namespace {

/// Saves when the player wants that. A game without changes needs no answer and gets a No.
Answer OfferToSave(Game& game, MessageButtons buttons) {
    if (!game.blnGameChanged)
        return Answer::No;
    const Answer answer =
        game.desktop.ShowMessageBox({.strTitle = "Save Game?",
                                     .strText = "Do you want to save the current game?",
                                     .icon = MessageIcon::Question,
                                     .buttons = buttons});
    if (answer == Answer::Yes)
        SaveGame(game);
    game.blnSaveOwed = answer == Answer::Yes && game.blnGameChanged;
    return answer;
}

void ShowFileError(Game& game, std::string strTitle, const std::string& strProblem,
                   std::string_view strAdvice) {
    game.desktop.Announce(std::move(strTitle),
                          strProblem + std::string(strParagraphBreak) + std::string(strAdvice),
                          MessageIcon::Exclamation);
}

std::optional<std::string> PickGameFile(Game& game, FilePurpose purpose) {
    if (!PathExists(game.files, game.settings.strGameFolder))
        game.settings.strGameFolder = game.strProgramFolder;
    return game.desktop.PickFile({purpose, game.settings.strGameFolder});
}

void RememberFolder(Game& game, const std::string& strFile) {
    game.settings.strGameFolder = GetFolderFromPath(strFile);
    SaveSettings(game.files, game.settings, SettingsGroup::Path, GetSettingsFile(game));
}

std::optional<SavedGame> ReadGameFile(FilePort& files, const std::string& strFile) {
    const ReadResult file = ReadWholeFile(files, strFile, lngMaxSavedGameBytes);
    return file ? ParseSavedGame(file.bytes) : std::nullopt;
}

void OpenGameFile(Game& game, const std::string& strFile) {
    if (!FileExists(game.files, strFile)) {
        ShowFileError(game, "File Doesn't Exist", "The selected file does not exist",
                      "To continue, please choose a valid file.");
        return;
    }
    const auto savedGame = ReadGameFile(game.files, strFile);
    if (!savedGame) {
        ShowFileError(game, "Can't Open File", "There was a problem opening the file.",
                      "To continue, please ensure that you are trying to open a Cellora format "
                      "file.");
        return;
    }
    game.strGameFile = strFile;
    RememberFolder(game, strFile);
    ShowSavedGame(game, *savedGame);
}

/// The check ends a finished game; its messages were given when it was played.
void CheckLoadedGame(Game& game) {
    game.blnLoadingGame = true;
    PerformCellCheck(game);
    if (game.cmdFinished != FinishButton::Hidden)
        ShowMistakesView(game);
    game.blnLoadingGame = false;
}

} // namespace

void AskToSave(Game& game) {
    OfferToSave(game, MessageButtons::YesNo);
}

bool MayClose(Game& game) {
    return OfferToSave(game, MessageButtons::YesNoCancel) != Answer::Cancel;
}

void SaveGame(Game& game) {
    game.desktop.SetMousePointer(MousePointer::Hourglass);
    if (game.strGameFile.empty()) {
        SaveGameAs(game);
    } else if (const auto strReason = WriteGameFile(game)) {
        ShowFileError(game, "Can't Save File", *strReason,
                      "To continue, please choose another place for the file.");
        SaveGameAs(game);
    }
    game.desktop.SetMousePointer(MousePointer::Default);
}

void SaveGameAs(Game& game) {
    const auto strFile = PickGameFile(game, FilePurpose::Save);
    if (!strFile)
        return;
    RememberFolder(game, *strFile);
    game.strGameFile = *strFile;
    WriteGameFile(game);
}

std::optional<std::string> WriteGameFile(Game& game) {
    auto strReason = ReplaceFile(game.files, game.strGameFile, FormatSavedGame(TakeGame(game)));
    if (!strReason)
        game.blnGameChanged = false;
    return strReason;
}

void OpenGame(Game& game) {
    AskToSave(game);
    game.desktop.SetMousePointer(MousePointer::Hourglass);
    if (const auto strFile = PickGameFile(game, FilePurpose::Open))
        OpenGameFile(game, *strFile);
    game.desktop.SetMousePointer(MousePointer::Default);
}

void ShowSavedGame(Game& game, const SavedGame& savedGame) {
    PutGame(game, savedGame);
    game.phase = Phase::Playing;
    DoEnable(game);
    SelectFirstNumber(game);
    game.blnGameChanged = false;
    DoTime(game);
    CheckLoadedGame(game);
    game.desktop.EnableTimer(Timer::tmr, true);
}

} // namespace cellora
