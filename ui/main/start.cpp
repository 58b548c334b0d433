#include "ui/main/start.h"

#include <array>
#include <cstdlib>
#include <utility>

#include <QApplication>
#include <QFile>
#include <QSettings>
#include <QTimer>

#include "core/desktop.h"
#include "core/modCellora.h"
#include "rules/recovery.h"
#include "rules/start_up.h"
#include "store/hall_of_fame_form.h"
#include "store/program_folder.h"
#include "store/system_files.h"
#include "ui/board/board_accessible.h"
#include "ui/desktop/qt_desktop.h"
#include "ui/desktop/text.h"
#include "ui/dialogs/frmSplash.h"
#include "ui/main/control_accessible.h"
#include "ui/main/font_check.h"
#include "ui/main/frmMain.h"
#include "ui/main/window_layout.h"

namespace cellora {

namespace {

std::string ReadShippedSettings() {
    QFile file(QStringLiteral(":/assets/cl.ini"));
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
}

void PlaceFiles(FilePort& files, const std::string& strFolder) {
    const std::string strSettings = ReadShippedSettings();
    const std::string strHallOfFame = FormatHallOfFame(MakeEmptyHallOfFame());
    const std::array aFiles = {ShippedFile{strSettingsFileName, strSettings},
                               ShippedFile{strHallOfFameFileName, strHallOfFame}};
    RemoveOldTemporaries(files, strFolder);
    PlaceShippedFiles(files, strFolder, aFiles);
}

/// Never destroyed: a write may go on when the program has ended.
FilePort& GetSystemFiles() {
    static FilePort* const files = new SystemFiles;
    return *files;
}

} // namespace

Program::Program(std::function<std::string()> fnFindFolder, std::uint64_t lngRandomState)
    : desktop_(std::make_unique<QtDesktop>()),
      game_(std::make_unique<Game>(*desktop_, GetSystemFiles())),
      fnFindFolder_(std::move(fnFindFolder)) {
    game_->lngRandomState = lngRandomState;
}

Program::~Program() = default;

void Program::Main() {
    splash_ =
        std::make_unique<frmSplash>(frmSplash::Steps{.fnLoad = [this] { return LoadMain(); },
                                                     .fnEnable = [this] { main_->TakeInput(true); },
                                                     .fnStart = [this] { StartMain(); }});
    splash_->show();
}

bool Program::LoadMain() {
    if (main_ == nullptr) {
        // Not before the splash is seen: loading the first font takes longer than its picture.
        if (!HasScalableFont()) {
            QTimer::singleShot(0, [] {
                TellOfMissingFont();
                QApplication::exit(EXIT_FAILURE);
            });
            return false;
        }
        game_->strProgramFolder = fnFindFolder_();
        PlaceFiles(game_->files, game_->strProgramFolder);
        // What the toolkit's own dialogs remember belongs there as well.
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                           ToQString(game_->strProgramFolder));
        recovery_ = std::make_unique<Recovery>(game_->files, game_->strProgramFolder);
        InstallBoardAccessibility();
        InstallControlAccessibility();
        main_ = std::make_unique<frmMain>(*game_, *desktop_, *recovery_);
    }
    main_->TakeInput(false);
    if (!main_->isVisible()) {
        main_->windowLayout().ShowAtStart();
        splash_->raise();
    }
    return true;
}

void Program::StartMain() {
    main_->activateWindow();
    if (game_->settings.dblStartup == 1)
        desktop_->ShowModal(ModalWindow::frmHelp);
    TellOfSettings(*game_);
    recovery_->OfferToRestore(*game_);
    main_->Update();
}

} // namespace cellora
