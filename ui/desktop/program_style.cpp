#include "ui/desktop/program_style.h"

#include <algorithm>
#include <iterator>

#include <QAbstractScrollArea>
#include <QApplication>
#include <QPainter>
#include <QStyleOption>
#include <QWidget>

#include "store/process.h"
#include "ui/desktop/faces.h"
#include "ui/desktop/look.h"
#include "ui/desktop/pictures.h"
#include "ui/desktop/snap.h"

namespace cellora {

namespace {

constexpr int intLongestAnimation = 150; ///< milliseconds
constexpr int intMessageIconSize = 32;
constexpr int intHoverEdge = 90; ///< of 255
constexpr int intDownEdge = 153;
constexpr int intRingInset = 2; ///< of a button, whose own edge tells something else
constexpr int intTabRingInset = 4;
constexpr int intViewFrame = 2; ///< the toolkit rounds what lies inside, which may take a pixel

bool HasKeyboard(const QStyleOption& option) {
    return option.state.testFlag(QStyle::State_HasFocus) &&
           option.state.testFlag(QStyle::State_KeyboardFocusChange);
}

void DrawRing(QPainter& painter, const QStyleOption& option, int intInset) {
    DrawFocusRing(painter, option.rect.adjusted(intInset, intInset, -intInset, -intInset),
                  option.palette.color(QPalette::Highlight));
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
void DrawMenuTick(QPainter& painter, const QStyleOptionMenuItem& item) {
    const int intColumn = std::max(item.maxIconWidth, 21);
    const QRect place = QStyle::alignedRect(item.direction, Qt::AlignLeft | Qt::AlignVCenter,
                                            {intColumn, item.rect.height()}, item.rect);
    const bool blnSelected = item.state.testFlag(QStyle::State_Selected);
    const QPalette::ColorGroup group =
        item.state.testFlag(QStyle::State_Enabled) ? QPalette::Active : QPalette::Disabled;
    DrawTick(painter, place,
             item.palette.color(group, blnSelected ? QPalette::HighlightedText : QPalette::Text));
}

/// Of what can be used, the toolkit asks for the panel of a raised or pressed button only.
void DrawToolButton(QPainter& painter, const QStyleOption& option) {
    if (!option.state.testFlag(QStyle::State_AutoRaise))
        return DrawButton(painter, option);
    QColor color = option.palette.color(QPalette::Highlight);
    const bool blnDown = IsDown(option);
    DrawTint(painter, option.rect, color, blnDown);
    color.setAlpha(blnDown ? intDownEdge : intHoverEdge);
    DrawFrame(painter, option.rect, color);
}

void DrawViewFrame(QPainter& painter, const QStyleOption& option) {
    DrawPlate(painter, option.rect, option.palette.base(),
              option.palette.color(HasKeyboard(option) ? QPalette::Highlight : QPalette::Mid), 0);
}

/// The toolkit's own line leaves a gap after each menu at most scales.
void DrawMenuBarEdge(QPainter& painter, const QStyleOption& option) {
    QRectF edge = option.rect;
    edge.setTop(SnapInside(painter, edge).bottom() - 2 * SnapWidth(painter, 1));
    painter.fillRect(edge, option.palette.window());
    DrawFoot(painter, option.rect, option.palette.color(QPalette::Midlight));
}

struct Face {
    QStyle::PrimitiveElement element;
    void (*fnDraw)(QPainter& painter, const QStyleOption& option);
};

constexpr Face aFaces[] = {
    {QStyle::PE_PanelButtonCommand, DrawButton},
    {QStyle::PE_PanelButtonTool, DrawToolButton},
    {QStyle::PE_IndicatorCheckBox, DrawCheckBox},
    {QStyle::PE_FrameLineEdit, DrawInputFrame},
    {QStyle::PE_Frame, DrawViewFrame},
    {QStyle::PE_FrameTabWidget, DrawTabPane},
};

} // namespace

ProgramStyle::ProgramStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

/// A theme without colours of its own takes these.
QPalette ProgramStyle::standardPalette() const {
    return MakePalette();
}

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
        return AsksForStillness() ? 0
                                  : std::min(QProxyStyle::styleHint(hint, option, widget, data),
                                             intLongestAnimation);
    default:
        return QProxyStyle::styleHint(hint, option, widget, data);
    }
}

int ProgramStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                              const QWidget* widget) const {
    switch (metric) {
    case PM_MessageBoxIconSize:
        return intMessageIconSize;
    case PM_DefaultFrameWidth:
        if (qobject_cast<const QAbstractScrollArea*>(widget) != nullptr)
            return intViewFrame;
        break;
    default:
        break;
    }
    return QProxyStyle::pixelMetric(metric, option, widget);
}

QIcon ProgramStyle::standardIcon(StandardPixmap which, const QStyleOption* option,
                                 const QWidget* widget) const {
    const QString strName = GetMessageIconName(which);
    return strName.isEmpty() ? QProxyStyle::standardIcon(which, option, widget) : MakeIcon(strName);
}

void ProgramStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                 QPainter* painter, const QWidget* widget) const {
    if (element == PE_FrameFocusRect) {
        if (option->state.testFlag(State_KeyboardFocusChange))
            DrawRing(*painter, *option, 0);
        return;
    }
    const auto* const face = std::ranges::find(aFaces, element, &Face::element);
    if (face != std::end(aFaces))
        face->fnDraw(*painter, *option);
    else
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    if (element == PE_FrameLineEdit && HasKeyboard(*option))
        DrawRing(*painter, *option, 0);
}

void ProgramStyle::DrawMenuItem(const QStyleOptionMenuItem& item, QPainter& painter,
                                const QWidget* widget) const {
    if (item.menuItemType == QStyleOptionMenuItem::Separator)
        return DrawMenuSeparator(painter, item);
    QStyleOptionMenuItem plain = item;
    if (item.checkType == QStyleOptionMenuItem::NonExclusive)
        plain.checkType = QStyleOptionMenuItem::NotCheckable;
    QProxyStyle::drawControl(CE_MenuItem, &plain, &painter, widget);
    if (item.checkType == QStyleOptionMenuItem::NonExclusive && item.checked)
        DrawMenuTick(painter, item);
}

void ProgramStyle::DrawTabLabel(const QStyleOptionTab& tab, QPainter& painter,
                                const QWidget* widget) const {
    QStyleOptionTab plain = tab;
    const QRect face = GetTabFace(tab);
    // As wide as before, which the text needs.
    plain.rect.translate(face.center().x() - tab.rect.center().x(), 0);
    plain.state.setFlag(State_HasFocus, false); // a tint beside the ring
    QProxyStyle::drawControl(CE_TabBarTabLabel, &plain, &painter, widget);
    if (!HasKeyboard(tab))
        return;
    plain.rect = face;
    DrawRing(painter, plain, intTabRingInset);
}

void ProgramStyle::drawControl(ControlElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const {
    const auto* const item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (element == CE_MenuItem && item != nullptr)
        return DrawMenuItem(*item, *painter, widget);
    const auto* const tab = qstyleoption_cast<const QStyleOptionTab*>(option);
    if (element == CE_TabBarTabLabel && tab != nullptr)
        return DrawTabLabel(*tab, *painter, widget);
    if (element == CE_TabBarTabShape && tab != nullptr && tab->shape == QTabBar::RoundedNorth)
        return DrawTab(*painter, *tab, *proxy());
    if (element == CE_HeaderSection || element == CE_HeaderEmptyArea)
        return DrawHeader(*painter, *option);
    QProxyStyle::drawControl(element, option, painter, widget);
    if (element == CE_PushButton && HasKeyboard(*option))
        DrawRing(*painter, *option, intRingInset);
    if ((element == CE_MenuBarItem || element == CE_MenuBarEmptyArea) &&
        !option->state.testFlag(State_Selected))
        DrawMenuBarEdge(*painter, *option);
}

void ProgramStyle::DrawGroupBox(const QStyleOptionGroupBox& group, QPainter& painter,
                                const QWidget* widget) const {
    DrawGroupFrame(painter, group, *proxy(), widget);
    QStyleOptionGroupBox plain = group;
    plain.subControls.setFlag(SC_GroupBoxFrame, false);
    QProxyStyle::drawComplexControl(CC_GroupBox, &plain, &painter, widget);
}

void ProgramStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const {
    const auto* const combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
    const auto* const spin = qstyleoption_cast<const QStyleOptionSpinBox*>(option);
    const auto* const group = qstyleoption_cast<const QStyleOptionGroupBox*>(option);
    const auto* const bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control == CC_ComboBox && combo != nullptr && !combo->editable && combo->frame)
        DrawComboBox(*painter, *combo, *proxy(), widget);
    else if (control == CC_SpinBox && spin != nullptr && spin->frame)
        DrawSpinBox(*painter, *spin, *proxy(), widget);
    else if (control == CC_ScrollBar && bar != nullptr)
        DrawScrollBar(*painter, *bar, *proxy(), widget);
    else if (control == CC_Slider && bar != nullptr && bar->orientation == Qt::Horizontal)
        DrawSlider(*painter, *bar, *proxy(), widget);
    else if (control == CC_GroupBox && group != nullptr)
        DrawGroupBox(*group, *painter, widget);
    else
        QProxyStyle::drawComplexControl(control, option, painter, widget);
    if ((control == CC_ComboBox || control == CC_SpinBox || control == CC_Slider) &&
        HasKeyboard(*option))
        DrawRing(*painter, *option, control == CC_ComboBox ? intRingInset : 0);
}

} // namespace cellora
