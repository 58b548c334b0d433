#pragma once

#include <memory>

#include "ui/dialogs/form.h"

namespace cellora {

enum class ModalWindow;

/// A side window, made afresh and not yet shown.
std::unique_ptr<Form> MakeModalWindow(ModalWindow window, Game& game, QWidget* parent);

/// The Instructions window on a tab, 0 for the first.
std::unique_ptr<Form> MakeInstructions(Game& game, QWidget* parent, int intTab);

} // namespace cellora
