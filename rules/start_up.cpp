#include "rules/start_up.h"

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

void UnloadMainWindow(const Game& game) {
    SaveSettings(game.files, game.settings, SettingsGroup::View, GetSettingsFile(game));
}

} // namespace cellora
