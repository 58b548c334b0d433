#include "ui/main/number_selector.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

#include "rules/view.h"
#include "ui/desktop/keys.h"
#include "ui/desktop/look.h"
#include "ui/desktop/pictures.h"
#include "ui/desktop/snap.h"
#include "ui/desktop/twips.h"

namespace cellora {

namespace {

constexpr double dblButtonSize = 390;
constexpr double dblButtonTop = 105;
constexpr double dblFirstLeft = 480;
constexpr double dblButtonPitch = 600;
constexpr double dblFocusInset = 2; ///< in pixels
constexpr double dblTileRadius = 4; ///< in pixels

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
    setAttribute(Qt::WA_Hover);
    settling_.setStartValue(0.0);
    settling_.setEndValue(1.0);
    connect(&settling_, &QVariantAnimation::valueChanged, this, qOverload<>(&QWidget::update));
    SetZoom(1);
}

void NumberSelectorButton::SetZoom(double dblZoom) {
    dblZoom_ = dblZoom;
    const double dblLeft = dblFirstLeft + dblButtonPitch * (intNumber_ - 1);
    const double dblSize = dblButtonSize * dblZoom;
    setGeometry(ToPixelRect(dblLeft * dblZoom, dblButtonTop * dblZoom, dblSize, dblSize));
    update();
}

void NumberSelectorButton::Mirror(const NumberButtonView& button) {
    if (isChecked() != button.blnSelected) {
        const QSignalBlocker blocker(this);
        setChecked(button.blnSelected);
    }
    if (button.blnShaded != blnShaded_)
        setAccessibleDescription(button.blnShaded ? QStringLiteral("complete") : QString());
    if (button.blnFramed == blnFramed_ && button.blnShaded == blnShaded_ &&
        button.lngFrameColor == lngFrameColor_)
        return;
    blnFramed_ = button.blnFramed;
    lngFrameColor_ = button.lngFrameColor;
    if (button.blnShaded != blnShaded_) {
        blnShaded_ = button.blnShaded;
        Settle();
    }
    update();
}

void NumberSelectorButton::Settle() {
    settling_.stop();
    settling_.setDuration(style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, this));
    if (blnShaded_ && isVisible())
        settling_.start();
}

void NumberSelectorButton::DrawTile(QPainter& painter, const QRectF& rectPicture) const {
    const bool blnSettling = settling_.state() == QAbstractAnimation::Running;
    DrawPicture(painter, rectPicture, GetButtonPicture(intNumber_, blnShaded_ && !blnSettling));
    if (blnSettling) {
        painter.setOpacity(settling_.currentValue().toDouble());
        DrawPicture(painter, rectPicture, GetButtonPicture(intNumber_, true));
        painter.setOpacity(1);
    }
    if (isEnabled() && (isDown() || underMouse()))
        DrawTint(painter, rectPicture, palette().color(QPalette::Highlight), isDown(),
                 dblTileRadius * dblZoom_);
}

void NumberSelectorButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    // The frame's room stays free on every side, framed or not.
    const double dblLine = SnapWidth(painter, dblZoom_);
    const QRectF rectFrame = SnapInside(painter, rect());
    // A pressed button sinks by the width of a line.
    const QRectF rectPicture = rectFrame.adjusted(dblLine, dblLine, -dblLine, -dblLine)
                                   .translated(0, isDown() ? dblLine : 0);
    DrawTile(painter, rectPicture);
    if (blnFramed_)
        DrawFrame(painter, rectFrame, ToQColor(lngFrameColor_), dblZoom_);
    // Within the tile, whose light face is the same on every desk.
    const double dblInset = dblFocusInset * dblZoom_;
    if (hasFocus())
        DrawFocusRing(painter, rectPicture.adjusted(dblInset, dblInset, -dblInset, -dblInset),
                      palette().color(QPalette::WindowText));
}

void NumberSelectorButton::mousePressEvent(QMouseEvent* event) {
    event->accept();
    setDown(true);
}

void NumberSelectorButton::mouseMoveEvent(QMouseEvent* event) {
    setDown(event->buttons() != Qt::NoButton && rect().contains(event->position().toPoint()));
}

void NumberSelectorButton::mouseReleaseEvent(QMouseEvent* event) {
    setDown(false);
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

void NumberSelector::SetZoom(double dblZoom) {
    for (NumberSelectorButton* const button : picButton_)
        button->SetZoom(dblZoom);
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
