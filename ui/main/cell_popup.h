#pragma once

#include "ui/main/context_menu.h"

namespace cellora {

struct CellPopupView;

/// `mnuRightClick`: the menu of a cell's notes, built each time it opens. Its numbered entries can
/// be chosen by their digits on the keyboard.
class CellPopup final : public ContextMenu {
    Q_OBJECT

public:
    explicit CellPopup(QWidget* parent);

    /// Replaces the entries: the quick entry of the selected digit, the numbered ones, "Remove
    /// All".
    void Build(const CellPopupView& popup);

signals:
    /// The entry of a digit 1 to 9 was chosen.
    void digitChosen(int intDigit);
    void removeAllChosen();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QAction* AddEntry(const std::string& strCaption, int intDigit);

    QList<QAction*> mnuC_; ///< from digit 1 on
};

} // namespace cellora
