#include "ui/desktop/faces.h"

#include <QLinearGradient>
#include <QPainter>
#include <QStyleOption>

#include "ui/desktop/snap.h"

namespace cellora {

namespace {

constexpr double dblFaceRadius = 2;
constexpr double dblTickWidth = 1.75;
constexpr int intTabStep = 2; ///< by which the selected tab is taller
constexpr int intTabGap = 3;  ///< of which the next tab takes one back
constexpr int intGroupInset = 3;
constexpr int intDividerInset = 4;
constexpr int intSliderInset = 3;
constexpr int intGrooveHeight = 5;
constexpr int intSeparatorInset = 4;

bool IsEnabled(const QStyleOption& option) {
    return option.state.testFlag(QStyle::State_Enabled);
}

QColor GetEdge(const QStyleOption& option) {
    return option.palette.color(IsEnabled(option) ? QPalette::Dark : QPalette::Mid);
}

/// Over what the pointer is on, or what it holds down.
void AnswerPointer(QPainter& painter, const QStyleOption& option, const QRect& rect, bool blnDown) {
    if (IsEnabled(option) && (blnDown || option.state.testFlag(QStyle::State_MouseOver)))
        DrawTint(painter, rect, option.palette.color(QPalette::Highlight), blnDown, dblFaceRadius);
}

void DrawRaised(QPainter& painter, const QStyleOption& option, const QColor& colorEdge) {
    QLinearGradient fill(0, 0, 0, 1);
    fill.setCoordinateMode(QGradient::ObjectMode);
    fill.setColorAt(0,
                    option.palette.color(IsEnabled(option) ? QPalette::Light : QPalette::Button));
    fill.setColorAt(1, option.palette.color(QPalette::Button));
    DrawPlate(painter, option.rect, fill, colorEdge, dblFaceRadius);
}

/// A part of a control with an arrow in it, greyed where a click does nothing.
void DrawArrow(QPainter& painter, const QStyleOptionComplex& control, QStyle::SubControl part,
               QStyle::PrimitiveElement arrow, const QRect& rect, bool blnWorks,
               const QStyle& style) {
    QStyleOption option(control);
    option.rect = rect;
    option.state.setFlag(QStyle::State_Enabled, IsEnabled(control) && blnWorks);
    option.state.setFlag(QStyle::State_MouseOver, control.state.testFlag(QStyle::State_MouseOver) &&
                                                      control.activeSubControls == part);
    const bool blnDown =
        control.state.testFlag(QStyle::State_Sunken) && control.activeSubControls == part;
    AnswerPointer(painter, option, rect, blnDown);
    style.drawPrimitive(arrow, &option, &painter);
}

} // namespace

bool IsDown(const QStyleOption& option) {
    return (option.state & (QStyle::State_Sunken | QStyle::State_On)) != 0;
}

void DrawButton(QPainter& painter, const QStyleOption& option) {
    const auto* const button = qstyleoption_cast<const QStyleOptionButton*>(&option);
    const QStyleOptionButton::ButtonFeatures features =
        button != nullptr ? button->features : QStyleOptionButton::None;
    const bool blnDown = IsDown(option);
    if (features.testFlag(QStyleOptionButton::Flat) && !blnDown)
        return;
    const bool blnDefault =
        features.testFlag(QStyleOptionButton::DefaultButton) && IsEnabled(option);
    DrawRaised(painter, option,
               blnDefault ? option.palette.color(QPalette::Highlight) : GetEdge(option));
    AnswerPointer(painter, option, option.rect, blnDown);
}

void DrawCheckBox(QPainter& painter, const QStyleOption& option) {
    DrawPlate(painter, option.rect, option.palette.base(), GetEdge(option), dblFaceRadius);
    AnswerPointer(painter, option, option.rect, option.state.testFlag(QStyle::State_Sunken));
    const QColor color = option.palette.color(QPalette::Text);
    if (option.state.testFlag(QStyle::State_On))
        DrawTick(painter, option.rect, color);
    else if (option.state.testFlag(QStyle::State_NoChange))
        painter.fillRect(SnapInside(painter, QRectF(option.rect).adjusted(3, 5, -3, -5)), color);
}

void DrawInputFrame(QPainter& painter, const QStyleOption& option) {
    DrawFrame(painter, option.rect, GetEdge(option), 1, dblFaceRadius);
}

void DrawTabPane(QPainter& painter, const QStyleOption& option) {
    DrawPlate(painter, option.rect, option.palette.base(), option.palette.color(QPalette::Mid), 0);
}

QRect GetTabFace(const QStyleOptionTab& tab) {
    const bool blnSelected = tab.state.testFlag(QStyle::State_Selected);
    return tab.rect.adjusted(0, blnSelected ? 0 : intTabStep, -intTabGap, 0);
}

void DrawTab(QPainter& painter, const QStyleOptionTab& tab, const QStyle& style) {
    const bool blnSelected = tab.state.testFlag(QStyle::State_Selected);
    // The pane's line lies behind the lower end; only the selected tab opens into the pane.
    QRectF rect = tab.rect;
    rect.setTop(rect.bottom() - style.pixelMetric(QStyle::PM_TabBarBaseOverlap));
    const double dblPane = SnapInside(painter, rect).top();
    rect = SnapInside(painter, GetTabFace(tab));
    rect.setBottom(blnSelected ? dblPane + SnapWidth(painter, 1) : dblPane);
    painter.save();
    painter.setClipRect(rect, Qt::IntersectClip);
    rect.setBottom(rect.bottom() + rect.height());
    const QColor colorFill = tab.palette.color(blnSelected ? QPalette::Base : QPalette::Midlight);
    DrawPlate(painter, rect, colorFill, blnSelected ? tab.palette.color(QPalette::Mid) : colorFill,
              dblFaceRadius);
    if (!blnSelected)
        AnswerPointer(painter, tab, rect.toRect(), tab.state.testFlag(QStyle::State_Sunken));
    painter.restore();
}

void DrawFoot(QPainter& painter, const QRect& rect, const QColor& color) {
    QRectF line = rect;
    line.setBottom(SnapInside(painter, line).bottom());
    line.setTop(line.bottom() - SnapWidth(painter, 1));
    painter.fillRect(line, color);
}

void DrawHeader(QPainter& painter, const QStyleOption& option) {
    const QColor colorLine = option.palette.color(QPalette::Mid);
    painter.fillRect(option.rect, option.palette.button());
    DrawFoot(painter, option.rect, colorLine);
    const auto* const header = qstyleoption_cast<const QStyleOptionHeader*>(&option);
    if (header == nullptr || header->position == QStyleOptionHeader::End ||
        header->position == QStyleOptionHeader::OnlyOneSection)
        return;
    QRectF line =
        SnapInside(painter, option.rect.adjusted(0, intDividerInset, 0, -intDividerInset));
    line.setLeft(line.right() - SnapWidth(painter, 1));
    painter.fillRect(line, colorLine);
}

void DrawMenuSeparator(QPainter& painter, const QStyleOption& option) {
    const int intMiddle = option.rect.center().y();
    DrawFoot(painter,
             {option.rect.x() + intSeparatorInset, intMiddle,
              option.rect.width() - 2 * intSeparatorInset, 1},
             option.palette.color(QPalette::Mid));
}

void DrawTick(QPainter& painter, const QRect& rect, const QColor& color) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(QRectF(rect).center());
    painter.setPen(QPen(color, dblTickWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    constexpr QPointF aTick[] = {{-3.5, 0.25}, {-1, 2.75}, {4, -3}};
    painter.drawPolyline(aTick, 3);
    painter.restore();
}

void DrawGroupFrame(QPainter& painter, const QStyleOptionGroupBox& group, const QStyle& style,
                    const QWidget* widget) {
    QRect rect = group.rect;
    rect.setTop(
        style.subControlRect(QStyle::CC_GroupBox, &group, QStyle::SC_GroupBoxContents, widget)
            .top() -
        intGroupInset);
    DrawFrame(painter, rect, group.palette.color(QPalette::Mid), 1, dblFaceRadius);
}

void DrawComboBox(QPainter& painter, const QStyleOptionComboBox& box, const QStyle& style,
                  const QWidget* widget) {
    DrawRaised(painter, box, GetEdge(box));
    AnswerPointer(painter, box, box.rect, IsDown(box));
    QStyleOption arrow(box);
    arrow.rect = style.subControlRect(QStyle::CC_ComboBox, &box, QStyle::SC_ComboBoxArrow, widget);
    style.drawPrimitive(QStyle::PE_IndicatorArrowDown, &arrow, &painter, widget);
}

void DrawSpinBox(QPainter& painter, const QStyleOptionSpinBox& box, const QStyle& style,
                 const QWidget* widget) {
    struct Part {
        QStyle::SubControl part;
        QStyle::PrimitiveElement arrow;
        QAbstractSpinBox::StepEnabledFlag step;
    };
    constexpr Part aParts[] = {
        {QStyle::SC_SpinBoxUp, QStyle::PE_IndicatorArrowUp, QAbstractSpinBox::StepUpEnabled},
        {QStyle::SC_SpinBoxDown, QStyle::PE_IndicatorArrowDown, QAbstractSpinBox::StepDownEnabled}};
    DrawPlate(painter, box.rect, box.palette.base(), GetEdge(box), dblFaceRadius);
    for (const auto& [part, arrow, step] : aParts)
        DrawArrow(painter, box, part, arrow,
                  style.subControlRect(QStyle::CC_SpinBox, &box, part, widget),
                  box.stepEnabled.testFlag(step), style);
}

void DrawSlider(QPainter& painter, const QStyleOptionSlider& slider, const QStyle& style,
                const QWidget* widget) {
    const QRect rectHandle =
        style.subControlRect(QStyle::CC_Slider, &slider, QStyle::SC_SliderHandle, widget);
    const QRect rectGroove = QStyle::alignedRect(
        slider.direction, Qt::AlignCenter,
        {slider.rect.width() - 2 * intSliderInset, intGrooveHeight}, slider.rect);
    QRect rectCovered = rectGroove;
    rectCovered.setRight(rectHandle.center().x());
    const QColor colorCovered = slider.palette.color(QPalette::Highlight);
    DrawPlate(painter, rectGroove, slider.palette.midlight(), GetEdge(slider), dblFaceRadius);
    DrawPlate(painter, rectCovered, colorCovered, colorCovered, dblFaceRadius);
    QStyleOption handle(slider);
    handle.rect = rectHandle;
    DrawRaised(painter, handle, GetEdge(slider));
    const bool blnTouched = slider.activeSubControls == QStyle::SC_SliderHandle;
    handle.state.setFlag(QStyle::State_MouseOver,
                         blnTouched && slider.state.testFlag(QStyle::State_MouseOver));
    AnswerPointer(painter, handle, rectHandle,
                  blnTouched && slider.state.testFlag(QStyle::State_Sunken));
}

void DrawScrollBar(QPainter& painter, const QStyleOptionSlider& bar, const QStyle& style,
                   const QWidget* widget) {
    const bool blnAcross = bar.orientation == Qt::Horizontal;
    const auto GetPart = [&](QStyle::SubControl part) {
        return style.subControlRect(QStyle::CC_ScrollBar, &bar, part, widget);
    };
    painter.fillRect(bar.rect, bar.palette.window());
    DrawArrow(painter, bar, QStyle::SC_ScrollBarSubLine,
              blnAcross ? QStyle::PE_IndicatorArrowLeft : QStyle::PE_IndicatorArrowUp,
              GetPart(QStyle::SC_ScrollBarSubLine), bar.sliderValue > bar.minimum, style);
    DrawArrow(painter, bar, QStyle::SC_ScrollBarAddLine,
              blnAcross ? QStyle::PE_IndicatorArrowRight : QStyle::PE_IndicatorArrowDown,
              GetPart(QStyle::SC_ScrollBarAddLine), bar.sliderValue < bar.maximum, style);
    if (bar.maximum <= bar.minimum)
        return;
    const bool blnTouched = bar.activeSubControls == QStyle::SC_ScrollBarSlider &&
                            (bar.state & (QStyle::State_MouseOver | QStyle::State_Sunken)) != 0;
    const QColor color = bar.palette.color(blnTouched ? QPalette::Shadow : QPalette::Dark);
    const int intAcross = blnAcross ? 0 : intSliderInset;
    const int intDown = blnAcross ? intSliderInset : 0;
    DrawPlate(
        painter,
        GetPart(QStyle::SC_ScrollBarSlider).adjusted(intAcross, intDown, -intAcross, -intDown),
        color, color, dblFaceRadius);
}

} // namespace cellora
