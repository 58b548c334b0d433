#pragma once

#include <optional>
#include <string>

/// The commands that save and open games, and the questions that protect unsaved changes.
namespace cellora {

struct Game;
struct SavedGame;

/// Before another game takes the board: while the game has unsaved changes, offers to save it. The
/// caller goes on whatever the answer, and even when the player did not save after all.
void AskToSave(Game& game);

/// Before the main window closes: the same offer, with Cancel. False when the window stays open,
/// which is the answer Cancel and nothing else.
bool MayClose(Game& game);

/// Saves to the game's own file, or as `SaveGameAs` when it has none. A file that cannot be written
/// stays as it was; the player is told why and offered another place.
void SaveGame(Game& game);

/// Asks for a file, remembers its folder and saves there; the file becomes the game's own even when
/// it could not be written. Cancelling changes nothing.
void SaveGameAs(Game& game);

/// Replaces the file `strGameFile` whole. Nothing is returned when done, and the game counts as
/// unchanged; else the reason in one sentence.
std::optional<std::string> WriteGameFile(Game& game);

/// Offers to save, asks for a file and puts its game on the board. A file that is missing or not in
/// form is announced and leaves the game, its clock and its file as they are.
void OpenGame(Game& game);

/// Makes a saved game the game in play, unchanged since it was saved, and starts its clock. A
/// finished one ends again without messages: the board is locked and shows the mistakes, if any.
/// Cursor cell, `strGameFile` and the view choices stay.
void ShowSavedGame(Game& game, const SavedGame& savedGame);

} // namespace cellora
