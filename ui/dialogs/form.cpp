#include "ui/dialogs/form.h"

#include <QEvent>
#include <QLabel>
#include <QPushButton>

#include "core/desktop.h"
#include "core/modCellora.h"
#include "ui/desktop/placing.h"

namespace cellora {

Form::Form(Game& game, const QString& strTitle, QSize sizeInTwips, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                          Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint),
      game_(game) {
    setWindowTitle(strTitle);
    setFixedSize(ToPixelSize(sizeInTwips.width(), sizeInTwips.height()));
}

Desktop& Form::desktop() {
    return game_.desktop;
}

void Form::Place(QWidget* widget, double dblLeft, double dblTop, double dblWidth,
                 double dblHeight) {
    widget->setGeometry(ToPixelRect(dblLeft, dblTop, dblWidth, dblHeight));
}

QLabel* Form::AddLabel(QWidget* parent, const QString& strName, const QString& strText,
                       double dblLeft, double dblTop, double dblWidth, double dblHeight,
                       Qt::Alignment alignment) {
    auto* const label = new QLabel(strText, parent);
    label->setObjectName(strName);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(alignment | Qt::AlignTop);
    Place(label, dblLeft, dblTop, dblWidth, dblHeight);
    return label;
}

QPushButton* Form::AddButton(QWidget* parent, const QString& strName, const QString& strCaption,
                             double dblLeft, double dblTop, double dblWidth, double dblHeight) {
    auto* const button = new QPushButton(strCaption, parent);
    button->setObjectName(strName);
    Place(button, dblLeft, dblTop, dblWidth, dblHeight);
    return button;
}

void Form::ShowHelp() {
    desktop().ShowModal(ModalWindow::frmHelp);
}

void Form::showEvent(QShowEvent* event) {
    QDialog::showEvent(event);
    // The style marks the control that has the keyboard from the first Tab on only.
    setAttribute(Qt::WA_KeyboardFocusChange);
    CenterOnScreen(*this);
}

void Form::changeEvent(QEvent* event) {
    QDialog::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        desktop().SetMousePointer(MousePointer::Default);
}

} // namespace cellora
