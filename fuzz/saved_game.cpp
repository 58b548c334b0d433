#include "fuzz/fuzzing.h"

#include "core/modCellora.h"
#include "rules/game_file.h"
#include "store/saved_game.h"
#include "store/system_files.h"
#include "tests/support/idle_desktop.h"
#include "tests/support/temporary_folder.h"

/// A saved game that is read is written and read again the same: as a record, and as the game that
/// Open Game puts on the board and Save writes. A file that is refused changes nothing.
namespace cellora {
namespace {

constexpr const char* strFileName = "game.clp";

} // namespace

void TryInput(std::string_view bytes) {
    static const TemporaryFolder folder;
    const auto savedGame = ParseSavedGame(bytes);
    IdleDesktop desktop;
    desktop.strPickedFile = folder.WriteBytes(strFileName, bytes);
    SystemFiles files;
    Game game(desktop, files);
    game.strProgramFolder = folder.Path();
    if (savedGame) {
        Require(ParseSavedGame(FormatSavedGame(*savedGame)) == savedGame,
                "a record reads back as it was written");
        PutGame(game, *savedGame);
        Require(TakeGame(game) == *savedGame, "the board takes the whole record");
    }
    const SavedGame before = TakeGame(game);
    OpenGame(game);
    Require(game.strGameFile.empty() != savedGame.has_value(), "what is in form is opened");
    Require(folder.ReadBytes(strFileName) == bytes, "opening leaves the file alone");
    if (!savedGame) {
        Require(TakeGame(game) == before && !game.blnGameActive(),
                "a refused file changes nothing");
        return;
    }
    const SavedGame opened = TakeGame(game);
    Require(!WriteGameFile(game), "the opened game can be saved");
    Require(ParseSavedGame(folder.ReadBytes(strFileName)) == opened,
            "the saved game reads back the same");
}

} // namespace cellora
