#pragma once

#include <cstdint>
#include <memory>

#include "core/modCellora.h"
#include "flow/recovery.h"
#include "ui/frmMain.h"
#include "ui/frmSplash.h"
#include "ui/qt_desktop.h"

namespace cellora {

/// The program put together: its state, its desktop and its windows, from the splash on.
class Program final {
public:
    /// `strProgramFolder` holds the settings and the hall of fame; `lngRandomState` is where the
    /// random numbers begin.
    Program(std::string strProgramFolder, std::uint64_t lngRandomState);
    ~Program();

    /// Shows the splash and returns; the rest of the start follows by its timers.
    void Main();

    Game& game() { return game_; }
    QtDesktop& desktop() { return desktop_; }
    frmSplash* splash() { return splash_.get(); }
    frmMain* mainWindow() { return main_.get(); } ///< null until the splash has loaded it

private:
    void LoadMain();
    void StartMain();

    QtDesktop desktop_;
    Game game_;
    Recovery recovery_;
    std::unique_ptr<frmSplash> splash_;
    std::unique_ptr<frmMain> main_;
};

} // namespace cellora
