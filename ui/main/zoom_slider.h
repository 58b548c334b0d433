#pragma once

#include <cstdint>
#include <functional>

#include <QSlider>

namespace cellora {

/// The zoom in percent. It stands still at the steps alone.
class ZoomSlider final : public QSlider {
public:
    /// What the player chose, in percent, and a step up or down.
    struct Commands {
        std::function<void(int)> fnZoomTo;
        std::function<void()> fnZoomIn;
        std::function<void()> fnZoomOut;
    };

    ZoomSlider(Commands commands, QWidget* parent);

    /// The zoom that is shown and the largest that can be.
    void Mirror(std::int16_t intZoom, std::int16_t intLargest);

    /// A wheel that is turned here, or elsewhere to zoom: a step for each notch.
    void Wheel(const QWheelEvent& event);

protected:
    void wheelEvent(QWheelEvent* event) override;

private:
    void OnAction(int intAction) const;
    void TellValue(); ///< while the handle is dragged: the tool tip has gone with the press

    Commands commands_;
    int intTurned_ = 0; ///< of the wheel's next notch
};

} // namespace cellora
