#include "ui/dialogs/modal_windows.h"

#include <iterator>

#include "core/desktop.h"
#include "ui/dialogs/frmAbout.h"
#include "ui/dialogs/frmEnterName.h"
#include "ui/dialogs/frmHelp.h"
#include "ui/dialogs/frmNew.h"
#include "ui/dialogs/frmOptions.h"
#include "ui/dialogs/frmPause.h"
#include "ui/dialogs/frmTopTen.h"

namespace cellora {

namespace {

template <typename Window>
std::unique_ptr<Form> MakeForm(Game& game, QWidget* parent) {
    return std::make_unique<Window>(game, parent);
}

/// In the order of `ModalWindow`.
constexpr std::unique_ptr<Form> (*aMakers[])(Game&, QWidget*) = {
    MakeForm<frmNew>,     MakeForm<frmPause>, MakeForm<frmEnterName>, MakeForm<frmTopTen>,
    MakeForm<frmOptions>, MakeForm<frmHelp>,  MakeForm<frmAbout>};
static_assert(std::size(aMakers) == static_cast<std::size_t>(ModalWindow::frmAbout) + 1,
              "a window is found by its place");

} // namespace

std::unique_ptr<Form> MakeModalWindow(ModalWindow window, Game& game, QWidget* parent) {
    return aMakers[static_cast<std::size_t>(window)](game, parent);
}

std::unique_ptr<Form> MakeInstructions(Game& game, QWidget* parent, int intTab) {
    auto form = std::make_unique<frmHelp>(game, parent);
    form->ShowTab(intTab);
    return form;
}

} // namespace cellora
