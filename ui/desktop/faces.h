#pragma once

#include <QRect>

class QColor;
class QPainter;
class QStyle;
class QStyleOption;
class QStyleOptionComboBox;
class QStyleOptionGroupBox;
class QStyleOptionSlider;
class QStyleOptionSpinBox;
class QStyleOptionTab;
class QWidget;

/// How the program's controls look, apart from their texts: plain faces whose edges lie on whole
/// device pixels. What can be pressed or filled in has a darker edge than what only holds
/// something, and all that can be pressed answers to the pointer in the same manner.
namespace cellora {

/// Whether a button is held down or stays pressed.
bool IsDown(const QStyleOption& option);

void DrawButton(QPainter& painter, const QStyleOption& option);
void DrawCheckBox(QPainter& painter, const QStyleOption& option);
void DrawInputFrame(QPainter& painter, const QStyleOption& option);
void DrawTabPane(QPainter& painter, const QStyleOption& option);

/// What is seen of a tab; beside it is a gap.
QRect GetTabFace(const QStyleOptionTab& tab);
void DrawTab(QPainter& painter, const QStyleOptionTab& tab, const QStyle& style);
void DrawHeader(QPainter& painter, const QStyleOption& option);

/// A line across the lower end of a header or menu bar, without a gap between neighbours.
void DrawFoot(QPainter& painter, const QRect& rect, const QColor& color);

void DrawMenuSeparator(QPainter& painter, const QStyleOption& option);

/// In the middle of a rectangle, as tall as the text beside it.
void DrawTick(QPainter& painter, const QRect& rect, const QColor& color);

// The controls of several parts, which the style places.
void DrawGroupFrame(QPainter& painter, const QStyleOptionGroupBox& group, const QStyle& style,
                    const QWidget* widget);
void DrawComboBox(QPainter& painter, const QStyleOptionComboBox& box, const QStyle& style,
                  const QWidget* widget);
void DrawSpinBox(QPainter& painter, const QStyleOptionSpinBox& box, const QStyle& style,
                 const QWidget* widget);
void DrawSlider(QPainter& painter, const QStyleOptionSlider& slider, const QStyle& style,
                const QWidget* widget);
void DrawScrollBar(QPainter& painter, const QStyleOptionSlider& bar, const QStyle& style,
                   const QWidget* widget);

} // namespace cellora
