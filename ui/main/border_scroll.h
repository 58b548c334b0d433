#pragma once

#include <functional>

#include <QPoint>
#include <QRect>

class QScrollBar;
class QWheelEvent;
class QWidget;

namespace cellora {

struct ScrollRange;

/// The scroll bars of the border pane: there while the panes in it do not fit.
class BorderScroll final {
public:
    /// The bars belong to `picBorder`. `fnScrolled` follows every move of the player's.
    BorderScroll(QWidget& picBorder, const std::function<void()>& fnScrolled);

    /// Called when the border pane has its size.
    void SetRanges(const ScrollRange& across, const ScrollRange& down);

    /// How far the panes are moved, in pixels.
    QPoint GetOffset() const;

    /// Moves as little as shows the place, which is measured in the border pane.
    void Reveal(const QRect& rect);

    /// A wheel over the border pane; false where there is nothing to scroll.
    bool Wheel(QWheelEvent& event);

private:
    QScrollBar* MakeBar(Qt::Orientation orientation, const QString& strName);
    QRect GetSeen() const;

    QWidget& picBorder_;
    QScrollBar* scrAcross_;
    QScrollBar* scrDown_;
};

} // namespace cellora
