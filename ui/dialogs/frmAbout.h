#pragma once

#include "ui/dialogs/form.h"

class QGroupBox;
class QPlainTextEdit;

namespace cellora {

class LinkLabel;

/// The About box: what the program is, its web site, and the way to the desktop's tool that
/// describes the computer.
class frmAbout final : public Form {
    Q_OBJECT

public:
    frmAbout(Game& game, QWidget* parent);

private:
    void MakePictures();
    void MakeVersion();
    void MakeComments();
    void MakeLink();
    void MakeButtons();
    void LoadAboutInfo();
    void ShowSystemInfo();

    QLabel* lblVersion_ = nullptr;
    QLabel* lblCopyright_ = nullptr;
    QGroupBox* fraComments_ = nullptr;
    QPlainTextEdit* txtComments_ = nullptr;
    LinkLabel* lblCompany_ = nullptr;
};

} // namespace cellora
