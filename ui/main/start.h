#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

namespace cellora {

class QtDesktop;
class Recovery;
class frmMain;
class frmSplash;
struct Game;

/// The program put together: its state, its desktop and its windows, from the splash on.
class Program final {
public:
    /// `fnFindFolder` names the folder of the settings and the hall of fame; it is asked once, when
    /// the splash can be seen. `lngRandomState` is where the random numbers begin.
    Program(std::function<std::string()> fnFindFolder, std::uint64_t lngRandomState);
    ~Program();

    /// Shows the splash and returns; the rest of the start follows by its timers. On Linux what the
    /// toolkit's dialogs remember in this process belongs to the program's folder from then on.
    void Main();

    Game& game() { return *game_; }
    QtDesktop& desktop() { return *desktop_; }
    frmSplash* splash() { return splash_.get(); }    ///< null before `Main`
    frmMain* mainWindow() { return main_.get(); }    ///< null until the splash has loaded it
    Recovery* recovery() { return recovery_.get(); } ///< null until then

private:
    bool LoadMain();
    void StartMain();

    std::unique_ptr<QtDesktop> desktop_;
    std::unique_ptr<Game> game_;
    std::function<std::string()> fnFindFolder_;
    std::unique_ptr<Recovery> recovery_; ///< from the loading of the main window on
    std::unique_ptr<frmSplash> splash_;
    std::unique_ptr<frmMain> main_;
};

} // namespace cellora
