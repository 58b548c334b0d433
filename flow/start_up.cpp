#include "flow/start_up.h"

#include "play/selector.h"
#include "store/modCommon_File.h"
#include "store/settings.h"

namespace cellora {

namespace {

struct LoadedColor {
    ColorKey key;
    Color ColorSettings::*color;
};

constexpr LoadedColor aColors[] = {
    {ColorKey::GridCursor, &ColorSettings::lngColorGridCursor},
    {ColorKey::GridLines, &ColorSettings::lngColorGridLines},
    {ColorKey::FontUser, &ColorSettings::lngColorFontUser},
    {ColorKey::FontComputer, &ColorSettings::lngColorFontComputer},
    {ColorKey::GridX, &ColorSettings::lngColorGridX},
    {ColorKey::ScreenBackground, &ColorSettings::lngColorScreenBackground},
    {ColorKey::GridIncorrectCell, &ColorSettings::lngColorIncorrectCell},
};

struct ViewChoice {
    ViewFlag flag;
    MenuItem Game::*item;
};

constexpr ViewChoice aViewChoices[] = {
    {ViewFlag::StatusBar, &Game::mnuStatusBar},
    {ViewFlag::Toolbar, &Game::mnuToolbar},
    {ViewFlag::NumberSelector, &Game::mnuNumberSelector},
    {ViewFlag::Statistics, &Game::mnuStatistics},
    {ViewFlag::CellErrors, &Game::mnuCellErrors},
};

void LoadGameFolder(Game& game) {
    game.strGameFolder = ReadGamePath(GetSettingsFile(game));
    if (PathExists(game.strGameFolder))
        return;
    game.strGameFolder = game.strProgramFolder;
    WriteGamePath(game.strGameFolder, GetSettingsFile(game));
}

void ResetSession(Game& game) {
    game.blnLoadingGame = false;
    game.intCursorCell = intCenterCell;
    game.intPrevCursorCell = intCenterCell;
    game.intSelectedNumber = 1;
}

void LoadColors(Game& game) {
    const std::string strFile = GetSettingsFile(game);
    for (const LoadedColor& slot : aColors)
        game.colors.*slot.color = ReadColor(slot.key, strFile);
    game.picGrid.lngBackColor = ReadColor(ColorKey::GridBackground, strFile);
}

void LoadViewChoices(Game& game) {
    const std::string strFile = GetSettingsFile(game);
    game.intCursorOption = ReadCursorOption(strFile);
    for (const ViewChoice& choice : aViewChoices)
        (game.*choice.item).blnChecked = ReadViewFlag(choice.flag, strFile);
    game.blnStatusBarVisible = game.mnuStatusBar.blnChecked;
    game.tbrMain.blnVisible = game.mnuToolbar.blnChecked;
}

void ApplyColors(Game& game) {
    const ColorSettings& colors = game.colors;
    ApplyRegionColor(game, colors.lngColorGridX);
    ApplyGridLineColor(game, colors.lngColorGridLines);
    ApplyUserFontColor(game, colors.lngColorFontUser);
    game.picBorder.lngBackColor = colors.lngColorScreenBackground;
    game.picStatistics.lngBackColor = game.picGrid.lngBackColor;
    game.picButtons.lngBackColor = colors.lngColorScreenBackground;
    ApplyComputerFontColor(game, colors.lngColorFontComputer);
}

} // namespace

std::string GetSettingsFile(const Game& game) {
    return JoinPath(game.strProgramFolder, std::string(strSettingsFileName));
}

void LoadMainWindow(Game& game) {
    LoadGameFolder(game);
    ResetSession(game);
    LoadColors(game);
    LoadViewChoices(game);
    ApplyColors(game);
    ClearButtonBorders(game);
    game.blnGameActive = false;
    game.blnGameChanged = false;
    DoEnable(game);
}

void UnloadMainWindow(const Game& game) {
    for (const ViewChoice& choice : aViewChoices)
        WriteViewFlag(choice.flag, (game.*choice.item).blnChecked, GetSettingsFile(game));
}

} // namespace cellora
