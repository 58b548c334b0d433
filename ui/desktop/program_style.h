#pragma once

#include <QProxyStyle>

class QStyleOptionGroupBox;
class QStyleOptionMenuItem;
class QStyleOptionTab;

namespace cellora {

/// Fusion in the program's fonts and colours: lists that scroll, plain ticks in menus, the icons of
/// message boxes in the game's own style, frames on whole pixels and one mark for the keyboard's
/// place.
class ProgramStyle final : public QProxyStyle {
public:
    ProgramStyle();

    QPalette standardPalette() const override;
    using QProxyStyle::polish;
    void polish(QPalette& palette) override;
    void polish(QWidget* widget) override;

    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
    QIcon standardIcon(StandardPixmap which, const QStyleOption* option,
                       const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;

private:
    void DrawMenuItem(const QStyleOptionMenuItem& item, QPainter& painter,
                      const QWidget* widget) const;
    void DrawGroupBox(const QStyleOptionGroupBox& group, QPainter& painter,
                      const QWidget* widget) const;
    void DrawTabLabel(const QStyleOptionTab& tab, QPainter& painter, const QWidget* widget) const;
};

} // namespace cellora
