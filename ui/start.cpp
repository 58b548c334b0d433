#include "ui/start.h"

#include <array>

#include <QFile>
#include <QSettings>

#include "flow/completion.h"
#include "flow/start_up.h"
#include "store/program_folder.h"
#include "store/settings.h"
#include "ui/board_accessible.h"
#include "ui/control_accessible.h"
#include "ui/text.h"

namespace cellora {

namespace {

std::string ReadShipped(const QString& strName) {
    QFile file(QStringLiteral(":/assets/") + strName);
    return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : std::string();
}

void PlaceFiles(const std::string& strFolder) {
    const std::string strSettings = ReadShipped(QStringLiteral("cl.ini"));
    const std::string strHallOfFame = ReadShipped(QStringLiteral("hof.clh"));
    const std::array aFiles = {ShippedFile{strSettingsFileName, strSettings},
                               ShippedFile{strHallOfFameFileName, strHallOfFame}};
    PlaceShippedFiles(strFolder, aFiles);
}

} // namespace

Program::Program(std::function<std::string()> fnFindFolder, std::uint64_t lngRandomState)
    : game_(desktop_), fnFindFolder_(std::move(fnFindFolder)) {
    game_.lngRandomState = lngRandomState;
    game_.fnDoCellCount = DoCellCount;
}

Program::~Program() = default;

void Program::Main() {
    splash_ = std::make_unique<frmSplash>(
        frmSplash::Steps{.fnLoad = [this] { LoadMain(); },
                         .fnEnable = [this] { main_->setEnabled(true); },
                         .fnStart = [this] { StartMain(); }});
    splash_->show();
}

void Program::LoadMain() {
    if (main_ == nullptr) {
        game_.strProgramFolder = fnFindFolder_();
        PlaceFiles(game_.strProgramFolder);
        // What the toolkit's own dialogs remember belongs there as well.
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                           ToQString(game_.strProgramFolder));
        recovery_.emplace(game_.strProgramFolder);
        InstallBoardAccessibility();
        InstallControlAccessibility();
        main_ = std::make_unique<frmMain>(game_, desktop_, *recovery_);
    }
    main_->setEnabled(false);
    if (!main_->isVisible()) {
        main_->ShowAtStart();
        splash_->raise();
    }
}

void Program::StartMain() {
    main_->activateWindow();
    if (OpensAtStartup(GetSettingsFile(game_)))
        desktop_.ShowModal(ModalWindow::frmHelp);
    recovery_->OfferToRestore(game_);
    main_->Mirror();
}

} // namespace cellora
