#include "ui/main/zoom_slider.h"

#include <utility>

#include <QToolTip>
#include <QWheelEvent>

#include "core/zoom.h"

namespace cellora {

namespace {

constexpr int intZoomSliderWidth = 112;

} // namespace

ZoomSlider::ZoomSlider(Commands commands, QWidget* parent)
    : QSlider(Qt::Horizontal, parent), commands_(std::move(commands)) {
    setObjectName(QStringLiteral("sldZoom"));
    setAccessibleName(QStringLiteral("Zoom"));
    setFixedWidth(intZoomSliderWidth);
    // The keyboard stays with the grid when the mouse is used here.
    setFocusPolicy(Qt::TabFocus);
    connect(this, &QSlider::valueChanged, this, commands_.fnZoomTo);
    connect(this, &QSlider::actionTriggered, this, &ZoomSlider::OnAction);
    connect(this, &QSlider::sliderPressed, this, &ZoomSlider::TellValue);
}

void ZoomSlider::Mirror(std::int16_t intZoom, std::int16_t intLargest) {
    const QSignalBlocker blocker(this);
    setRange(aZoomSteps.front(), intLargest);
    setValue(intZoom);
    setToolTip(QStringLiteral("Zoom: %1 %").arg(intZoom));
    if (isSliderDown())
        TellValue();
}

void ZoomSlider::TellValue() {
    QToolTip::showText(QCursor::pos(), toolTip(), this);
}

void ZoomSlider::OnAction(int intAction) const {
    if (intAction == SliderSingleStepAdd || intAction == SliderPageStepAdd)
        commands_.fnZoomIn();
    else if (intAction == SliderSingleStepSub || intAction == SliderPageStepSub)
        commands_.fnZoomOut();
}

void ZoomSlider::Wheel(const QWheelEvent& event) {
    const int intNotch = QWheelEvent::DefaultDeltasPerStep;
    // Fine wheels report parts of a notch.
    for (intTurned_ += event.angleDelta().y(); intTurned_ >= intNotch; intTurned_ -= intNotch)
        commands_.fnZoomIn();
    for (; intTurned_ <= -intNotch; intTurned_ += intNotch)
        commands_.fnZoomOut();
}

void ZoomSlider::wheelEvent(QWheelEvent* event) {
    Wheel(*event);
    event->accept();
}

} // namespace cellora
