#pragma once

#include <array>

#include "core/settings.h"
#include "ui/dialogs/form.h"

class QCheckBox;
class QFrame;
class QTabWidget;

namespace cellora {

class ColorSwatch;
struct Settings;

/// The Options dialog: eight colours and the disappearing cursor. The game changes only with "OK"
/// and "Apply".
class frmOptions final : public Form {
    Q_OBJECT

public:
    frmOptions(Game& game, QWidget* parent);
    ~frmOptions() override;

private:
    void MakeTabs();
    static QFrame* MakePage(QTabWidget* tab, const QString& strCaption);
    void MakeSlot(QFrame* frame, int intSlotRow, double dblTop);
    void MakeButtons();
    void Form_Load();
    void ShowColor(ColorSlot slot);

    void cmdColor_Click(ColorSlot slot);
    void chkCursor_Click();
    void cmdOK_Click();
    void cmdApply_Click();
    void Apply();

    Settings options_; ///< what the window shows
    std::array<ColorSwatch*, lngColorSlotCount> picColor_{};
    std::array<QPushButton*, lngColorSlotCount> cmdColor_{};
    QCheckBox* chkCursor_ = nullptr;
    QPushButton* cmdApply_ = nullptr;
};

} // namespace cellora
