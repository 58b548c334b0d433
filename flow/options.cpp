#include "flow/options.h"

#include "flow/start_up.h"

#include <string>

#include "play/check.h"
#include "play/cursor.h"
#include "store/modCommon_File.h"
#include "store/settings.h"

namespace cellora {

namespace {

struct ColorSetting {
    ColorKey key;
    ColorSlot slot;
};

constexpr ColorSetting aColorSettings[] = {
    {ColorKey::ScreenBackground, ColorSlot::ScreenBackground},
    {ColorKey::GridBackground, ColorSlot::GridBackground},
    {ColorKey::GridLines, ColorSlot::GridLines},
    {ColorKey::GridX, ColorSlot::GridX},
    {ColorKey::GridCursor, ColorSlot::GridCursor},
    {ColorKey::FontUser, ColorSlot::FontUser},
    {ColorKey::FontComputer, ColorSlot::FontComputer},
    {ColorKey::GridIncorrectCell, ColorSlot::GridIncorrectCell},
};

void SaveOptions(const Game& game, const Options& options) {
    const std::string strPath = GetSettingsFile(game);
    for (const ColorSetting& setting : aColorSettings)
        WriteColor(setting.key, options[setting.slot], strPath);
    WriteCursorOption(options.blnDisappearingCursor ? 1 : 0, strPath);
}

} // namespace

void ShowOptions(Game& game) {
    game.desktop.SetMousePointer(MousePointer::Hourglass);
    game.desktop.ShowModal(ModalWindow::frmOptions);
    game.desktop.SetMousePointer(MousePointer::Default);
    DrawCursor(game);
    RestartTimer(game.desktop, Timer::tmrCellWait);
}

Options ReadOptions(const Game& game) {
    Options options;
    options[ColorSlot::GridBackground] = game.picGrid.lngBackColor;
    options[ColorSlot::ScreenBackground] = game.picBorder.lngBackColor;
    options[ColorSlot::GridLines] = game.boardColors.lngRegionLine;
    options[ColorSlot::FontUser] = game.colors.lngColorFontUser;
    options[ColorSlot::FontComputer] = game.colors.lngColorFontComputer;
    options[ColorSlot::GridCursor] = game.colors.lngColorGridCursor;
    options[ColorSlot::GridIncorrectCell] = game.colors.lngColorIncorrectCell;
    options[ColorSlot::GridX] = game.colors.lngColorGridX;
    options.blnDisappearingCursor = game.intCursorOption == 1;
    return options;
}

void ApplyOptions(Game& game, const Options& options) {
    game.picBorder.lngBackColor = options[ColorSlot::ScreenBackground];
    game.picButtons.lngBackColor = options[ColorSlot::ScreenBackground];
    game.picGrid.lngBackColor = options[ColorSlot::GridBackground];
    game.picStatistics.lngBackColor = options[ColorSlot::GridBackground];
    game.colors.lngColorGridLines = options[ColorSlot::GridLines];
    ApplyGridLineColor(game, game.colors.lngColorGridLines);
    game.colors.lngColorGridX = options[ColorSlot::GridX];
    ApplyRegionColor(game, game.colors.lngColorGridX);
    game.intCursorOption = options.blnDisappearingCursor ? 1 : 0;
    game.colors.lngColorGridCursor = options[ColorSlot::GridCursor];
    DrawCursor(game);
    RestartTimer(game.desktop, Timer::tmrCellWait);
    game.colors.lngColorFontUser = options[ColorSlot::FontUser];
    ApplyUserFontColor(game, game.colors.lngColorFontUser);
    game.colors.lngColorIncorrectCell = options[ColorSlot::GridIncorrectCell];
    if (game.picGrid.blnVisible && game.picGrid.blnEnabled)
        PerformCellCheck(game);
    game.colors.lngColorFontComputer = options[ColorSlot::FontComputer];
    ApplyComputerFontColor(game, game.colors.lngColorFontComputer);
    SaveOptions(game, options);
}

} // namespace cellora
