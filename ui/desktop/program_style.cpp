#include "ui/desktop/program_style.h"

#include <algorithm>

#include <QApplication>
#include <QPainter>
#include <QStyleOption>
#include <QWidget>

#include "ui/desktop/look.h"
#include "ui/desktop/pictures.h"
#include "ui/desktop/snap.h"

namespace cellora {

namespace {

constexpr int intLongestAnimation = 150; ///< milliseconds
constexpr int intMessageIconSize = 32;
constexpr int intHoverTint = 31; ///< of 255
constexpr int intHoverEdge = 90;
constexpr int intDownTint = 72;
constexpr int intDownEdge = 153;
constexpr int intRingInset = 2; ///< of a button, whose own edge tells something else
constexpr int intTabRingInset = 4;
constexpr double dblViewEdge = 0.8; ///< no more device pixels than the view inside leaves free

bool HasKeyboard(const QStyleOption& option) {
    return option.state.testFlag(QStyle::State_HasFocus) &&
           option.state.testFlag(QStyle::State_KeyboardFocusChange);
}

void DrawRing(QPainter& painter, const QStyleOption& option, int intInset) {
    DrawFocusRing(painter, option.rect.adjusted(intInset, intInset, -intInset, -intInset),
                  option.palette.color(QPalette::Highlight));
}

/// The toolkit's own line leaves a gap after each menu at most scales.
void DrawMenuBarEdge(QPainter& painter, const QStyleOption& option) {
    const double dblLine = SnapWidth(painter, 1);
    QRectF edge = option.rect;
    edge.setBottom(SnapInside(painter, edge).bottom());
    edge.setTop(edge.bottom() - 2 * dblLine);
    painter.fillRect(edge, option.palette.window());
    edge.setTop(edge.bottom() - dblLine);
    painter.fillRect(edge, option.palette.color(QPalette::Midlight));
}

/// Under a picture of the toolbar: a tint of the colour that marks things elsewhere, deeper while
/// the button is down.
void DrawToolButton(QPainter& painter, const QStyleOption& option) {
    QColor color = option.palette.color(QPalette::Highlight);
    const bool blnDown = option.state.testFlag(QStyle::State_Sunken);
    color.setAlpha(blnDown ? intDownTint : intHoverTint);
    painter.fillRect(SnapInside(painter, option.rect), color);
    color.setAlpha(blnDown ? intDownEdge : intHoverEdge);
    DrawFrame(painter, option.rect, color);
}

QString GetMessageIconName(QStyle::StandardPixmap which) {
    switch (which) {
    case QStyle::SP_MessageBoxQuestion:
        return QStringLiteral("msg_question");
    case QStyle::SP_MessageBoxInformation:
        return QStringLiteral("msg_information");
    case QStyle::SP_MessageBoxWarning:
    case QStyle::SP_MessageBoxCritical:
        return QStringLiteral("msg_exclamation");
    default:
        return {};
    }
}

/// In the column that the toolkit leaves for its own mark.
void DrawTick(QPainter& painter, const QStyleOptionMenuItem& item) {
    const int intColumn = std::max(item.maxIconWidth, 21);
    const QRect place = QStyle::alignedRect(item.direction, Qt::AlignLeft | Qt::AlignVCenter,
                                            {intColumn, item.rect.height()}, item.rect);
    const bool blnSelected = item.state.testFlag(QStyle::State_Selected);
    const QPalette::ColorGroup group =
        item.state.testFlag(QStyle::State_Enabled) ? QPalette::Active : QPalette::Disabled;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(QRectF(place).center());
    painter.setPen(
        QPen(item.palette.color(group, blnSelected ? QPalette::HighlightedText : QPalette::Text),
             1.75, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    constexpr QPointF aTick[] = {{-3.5, 0.25}, {-1, 2.75}, {4, -3}};
    painter.drawPolyline(aTick, 3);
    painter.restore();
}

bool IsTicked(const QStyleOptionMenuItem& item) {
    return item.checkType == QStyleOptionMenuItem::NonExclusive && item.checked;
}

} // namespace

ProgramStyle::ProgramStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

/// Called with the colours of the desktop's theme.
void ProgramStyle::polish(QPalette& palette) {
    palette = MakePalette();
}

void ProgramStyle::polish(QWidget* widget) {
    // A theme that changes brings its fonts for menus, boxes and tips back, and nobody is told.
    if (!QApplication::font(widget).isCopyOf(QApplication::font()))
        QApplication::setFont(MakeFont(8));
    if (widget->inherits("QTipLabel"))
        widget->setPalette(MakePalette());
    QProxyStyle::polish(widget);
}

int ProgramStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* data) const {
    switch (hint) {
    case SH_DialogButtonBox_ButtonsHaveIcons: // plain buttons, as in every other window
    case SH_ComboBox_Popup:                   // a list that scrolls, not a menu of all its rows
        return 0;
    case SH_Widget_Animation_Duration: // none where the desktop wants none
        return std::min(QProxyStyle::styleHint(hint, option, widget, data), intLongestAnimation);
    default:
        return QProxyStyle::styleHint(hint, option, widget, data);
    }
}

int ProgramStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                              const QWidget* widget) const {
    return metric == PM_MessageBoxIconSize ? intMessageIconSize
                                           : QProxyStyle::pixelMetric(metric, option, widget);
}

QIcon ProgramStyle::standardIcon(StandardPixmap which, const QStyleOption* option,
                                 const QWidget* widget) const {
    const QString strName = GetMessageIconName(which);
    return strName.isEmpty() ? QProxyStyle::standardIcon(which, option, widget) : MakeIcon(strName);
}

void ProgramStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                 QPainter* painter, const QWidget* widget) const {
    switch (element) {
    case PE_FrameFocusRect:
        if (option->state.testFlag(State_KeyboardFocusChange))
            DrawRing(*painter, *option, 0);
        break;
    case PE_Frame:
        DrawFrame(*painter, option->rect, option->palette.color(QPalette::Mid), dblViewEdge);
        if (HasKeyboard(*option))
            DrawRing(*painter, *option, 0);
        break;
    case PE_PanelButtonTool:
        if (option->state.testFlag(State_AutoRaise))
            DrawToolButton(*painter, *option);
        else
            QProxyStyle::drawPrimitive(element, option, painter, widget);
        break;
    case PE_FrameLineEdit:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        if (HasKeyboard(*option))
            DrawRing(*painter, *option, 0);
        break;
    default:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void ProgramStyle::drawControl(ControlElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const {
    if (const auto* const item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
        item != nullptr && element == CE_MenuItem &&
        item->checkType == QStyleOptionMenuItem::NonExclusive) {
        QStyleOptionMenuItem plain = *item;
        plain.checkType = QStyleOptionMenuItem::NotCheckable;
        QProxyStyle::drawControl(element, &plain, painter, widget);
        if (IsTicked(*item))
            DrawTick(*painter, *item);
        return;
    }
    if (const auto* const tab = qstyleoption_cast<const QStyleOptionTab*>(option);
        tab != nullptr && element == CE_TabBarTabLabel) {
        QStyleOptionTab plain = *tab;
        plain.state.setFlag(State_HasFocus, false); // a tint beside the ring
        QProxyStyle::drawControl(element, &plain, painter, widget);
        if (HasKeyboard(*tab))
            DrawRing(*painter, *tab, intTabRingInset);
        return;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
    if (element == CE_PushButton && HasKeyboard(*option))
        DrawRing(*painter, *option, intRingInset);
    if ((element == CE_MenuBarItem || element == CE_MenuBarEmptyArea) &&
        !option->state.testFlag(State_Selected))
        DrawMenuBarEdge(*painter, *option);
}

void ProgramStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if ((control == CC_ComboBox || control == CC_SpinBox) && HasKeyboard(*option))
        DrawRing(*painter, *option, control == CC_ComboBox ? intRingInset : 0);
}

} // namespace cellora
