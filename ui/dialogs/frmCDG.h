#pragma once

#include <optional>

#include <QColor>

class QPrinter;
class QWidget;

namespace cellora {

/// The host of the toolkit's standard dialogs: each opens over its owner, in the middle of the
/// screen. A host is made for one dialog and goes with it.
class frmCDG final {
public:
    /// `owner` may be null and outlives the host.
    explicit frmCDG(QWidget* owner) : owner_(owner) {}

    /// The chosen colour, or nothing when the player cancelled. The dialog starts from white.
    std::optional<QColor> ShowColor();

    /// Lets the player choose printer, copies and orientation, which are set on `printer`. False
    /// when the player cancelled. There is no printing to a file.
    bool ShowPrinter(QPrinter& printer);

private:
    QWidget* const owner_;
};

} // namespace cellora
