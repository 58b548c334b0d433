#include "ui/modal_windows.h"

#include "ui/frmAbout.h"
#include "ui/frmEnterName.h"
#include "ui/frmHelp.h"
#include "ui/frmNew.h"
#include "ui/frmOptions.h"
#include "ui/frmPause.h"
#include "ui/frmTopTen.h"

namespace cellora {

std::unique_ptr<Form> MakeModalWindow(ModalWindow window, Game& game, QWidget* parent) {
    switch (window) {
    case ModalWindow::frmNew:
        return std::make_unique<frmNew>(game, parent);
    case ModalWindow::frmPause:
        return std::make_unique<frmPause>(game, parent);
    case ModalWindow::frmEnterName:
        return std::make_unique<frmEnterName>(game, parent);
    case ModalWindow::frmTopTen:
        return std::make_unique<frmTopTen>(game, parent);
    case ModalWindow::frmOptions:
        return std::make_unique<frmOptions>(game, parent);
    case ModalWindow::frmHelp:
        return std::make_unique<frmHelp>(game, parent);
    case ModalWindow::frmAbout:
        return std::make_unique<frmAbout>(game, parent);
    }
    Q_UNREACHABLE();
}

std::unique_ptr<Form> MakeInstructions(Game& game, QWidget* parent, int intTab) {
    auto form = std::make_unique<frmHelp>(game, parent);
    form->ShowTab(intTab);
    return form;
}

} // namespace cellora
