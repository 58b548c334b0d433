#pragma once

#include "ui/dialogs/form.h"

namespace cellora {

/// The window of a paused game. Closing it, in whatever way, is all it does.
class frmPause final : public Form {
    Q_OBJECT

public:
    frmPause(Game& game, QWidget* parent);
};

} // namespace cellora
