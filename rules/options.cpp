#include "rules/options.h"

#include "core/desktop.h"
#include "core/modCellora.h"
#include "rules/check.h"
#include "rules/cursor.h"
#include "rules/start_up.h"
#include "store/settings.h"

namespace cellora {

namespace {

void SaveOptions(const Game& game) {
    SaveSettings(game.files, game.settings, SettingsGroup::Options, GetSettingsFile(game));
}

} // namespace

void ShowOptions(Game& game) {
    game.desktop.SetMousePointer(MousePointer::Hourglass);
    game.desktop.ShowModal(ModalWindow::frmOptions);
    game.desktop.SetMousePointer(MousePointer::Default);
    DrawCursor(game);
    game.desktop.RestartTimer(Timer::tmrCellWait);
}

void ApplyOptions(Game& game, const Settings& options) {
    game.settings.colors = options.colors;
    game.settings.intCursorOption = options.intCursorOption;
    DrawOutlinesAsLines(game);
    DrawCursor(game);
    game.desktop.RestartTimer(Timer::tmrCellWait);
    if (game.IsInPlay())
        PerformCellCheck(game);
    SaveOptions(game);
}

} // namespace cellora
