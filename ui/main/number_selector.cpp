#include "ui/main/number_selector.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QPainter>

#include "rules/view.h"
#include "ui/desktop/keys.h"
#include "ui/desktop/look.h"
#include "ui/desktop/pictures.h"
#include "ui/desktop/twips.h"

namespace cellora {

namespace {

constexpr double dblButtonSize = 390;
constexpr double dblButtonTop = 105;
constexpr double dblFirstLeft = 480;
constexpr double dblButtonPitch = 600;
constexpr int intDigitSize = 24;

} // namespace

NumberSelectorButton::NumberSelectorButton(int intNumber, QWidget* parent)
    : QAbstractButton(parent), intNumber_(intNumber) {
    const bool blnEraser = intNumber == intEraser;
    const QString strName = blnEraser ? QStringLiteral("Eraser") : QString::number(intNumber);
    setObjectName(QStringLiteral("picButton%1").arg(intNumber));
    setAccessibleName(strName);
    setToolTip(blnEraser ? QStringLiteral("Select the eraser")
                         : QStringLiteral("Select the number %1").arg(intNumber));
    setCheckable(true);
    // The game says which button is checked; assistive technology asks for it by a toggle.
    connect(this, &QAbstractButton::toggled, this,
            [this] { emit released(false, GetPopupPosition()); });
    // The keyboard stays with the grid when the mouse is used here.
    setFocusPolicy(Qt::TabFocus);
    setGeometry(ToPixelRect(dblFirstLeft + dblButtonPitch * (intNumber - 1), dblButtonTop,
                            dblButtonSize, dblButtonSize));
}

void NumberSelectorButton::Mirror(const NumberButtonView& button) {
    if (isChecked() != button.blnSelected) {
        const QSignalBlocker blocker(this);
        setChecked(button.blnSelected);
    }
    if (button.blnShaded != blnShaded_)
        setAccessibleDescription(button.blnShaded ? QStringLiteral("complete") : QString());
    if (button.blnFramed == blnFramed_ && button.blnShaded == blnShaded_)
        return;
    blnFramed_ = button.blnFramed;
    blnShaded_ = button.blnShaded;
    update();
}

QString NumberSelectorButton::GetPictureName() const {
    if (intNumber_ == intEraser)
        return QStringLiteral("button_eraser");
    return QStringLiteral("button_%1").arg(intNumber_) +
           (blnShaded_ ? QStringLiteral("_shaded") : QString());
}

void NumberSelectorButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QSize size(intDigitSize, intDigitSize);
    QRect rectPicture(QPoint(), size);
    rectPicture.moveCenter(rect().center());
    painter.drawPixmap(rectPicture, MakePixmap(GetPictureName(), size, devicePixelRatioF()));
    // Half a pixel inside, so that no side falls outside at a fractional scale.
    const QRectF rectFrame = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    if (blnFramed_) {
        painter.setPen(QPen(Qt::black, 1));
        painter.drawRect(rectFrame);
    }
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 1, Qt::DotLine));
        painter.drawRect(rectFrame.adjusted(1, 1, -1, -1));
    }
}

void NumberSelectorButton::mousePressEvent(QMouseEvent* event) {
    event->accept();
}

void NumberSelectorButton::mouseReleaseEvent(QMouseEvent* event) {
    if (rect().contains(event->position().toPoint()))
        emit released(event->button() == Qt::RightButton, event->globalPosition().toPoint());
}

void NumberSelectorButton::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Space || event->key() == Qt::Key_Return ||
        event->key() == Qt::Key_Enter)
        emit released(false, GetPopupPosition());
    else if (IsPopupKey(*event))
        emit released(true, GetPopupPosition());
    else
        event->ignore(); // the border pane hands it to the grid
}

void NumberSelectorButton::contextMenuEvent(QContextMenuEvent* event) {
    if (event->reason() != QContextMenuEvent::Mouse)
        emit released(true, GetPopupPosition());
}

void NumberSelectorButton::nextCheckState() {
    emit released(false, GetPopupPosition());
}

QPoint NumberSelectorButton::GetPopupPosition() const {
    return mapToGlobal(rect().bottomLeft());
}

NumberSelector::NumberSelector(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("picButtons"));
    setAccessibleName(QStringLiteral("Number Selector"));
    for (int n = 1; n <= intEraser; ++n) {
        auto* const button = new NumberSelectorButton(n, this);
        picButton_[n] = button;
        connect(button, &NumberSelectorButton::released, this,
                [this, n](bool blnRightButton, QPoint globalPosition) {
                    emit numberReleased(n, blnRightButton, globalPosition);
                });
    }
    hide();
}

void NumberSelector::Mirror(const View& view) {
    for (int n = 1; n <= intEraser; ++n)
        picButton_[n]->Mirror(view.picButton[n]);
    const PaneView& pane = view.picButtons;
    SetBackColor(*this, pane.lngBackColor);
    if (isEnabled() != pane.blnEnabled)
        setEnabled(pane.blnEnabled);
    if (isVisibleTo(parentWidget()) != pane.blnVisible)
        setVisible(pane.blnVisible);
}

} // namespace cellora
