#include "rules/start_up.h"

#include "core/desktop.h"
#include "core/modCellora.h"
#include "store/modCommon_File.h"
#include "store/settings.h"

namespace cellora {

std::string GetSettingsFile(const Game& game) {
    return JoinPath(game.strProgramFolder, std::string(strSettingsFileName));
}

void LoadMainWindow(Game& game) {
    game.settings = LoadSettings(game.files, GetSettingsFile(game));
    if (PathExists(game.files, game.settings.strGameFolder))
        return;
    game.settings.strGameFolder = game.strProgramFolder;
    SaveSettings(game.files, game.settings, SettingsGroup::Path, GetSettingsFile(game));
}

void TellOfSettings(Game& game) {
    if (!game.settings.strUnread.empty())
        game.desktop.Announce(
            "Settings",
            game.settings.strUnread + std::string(strParagraphBreak) +
                "The game goes on with its default colours and view. Your own stay "
                "in the file, and the next start tries again.",
            MessageIcon::Exclamation);
}

void UnloadMainWindow(const Game& game) {
    SaveSettings(game.files, game.settings, SettingsGroup::View, GetSettingsFile(game));
}

} // namespace cellora
