#include "rules/start_up.h"

#include "core/modCellora.h"
#include "store/modCommon_File.h"
#include "store/settings.h"

namespace cellora {

std::string GetSettingsFile(const Game& game) {
    return JoinPath(game.strProgramFolder, std::string(strSettingsFileName));
}

void LoadMainWindow(Game& game) {
    game.settings = LoadSettings(GetSettingsFile(game));
    if (PathExists(game.settings.strGameFolder))
        return;
    game.settings.strGameFolder = game.strProgramFolder;
    SaveSettings(game.settings, SettingsGroup::Path, GetSettingsFile(game));
}

void UnloadMainWindow(const Game& game) {
    SaveSettings(game.settings, SettingsGroup::View, GetSettingsFile(game));
}

} // namespace cellora
