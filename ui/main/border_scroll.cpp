#include "ui/main/border_scroll.h"

#include <QCoreApplication>
#include <QScrollBar>
#include <QWheelEvent>

#include "ui/desktop/twips.h"
#include "ui/main/layout_pass.h"

namespace cellora {

namespace {

constexpr int intScrollStep = 24;

void SetRange(QScrollBar& bar, const ScrollRange& range, int intSeen) {
    // The layout that sets the range places the panes itself.
    const QSignalBlocker blocker(bar);
    bar.setRange(ToPixels(range.dblFirst), ToPixels(range.dblLast));
    bar.setPageStep(intSeen);
    bar.setVisible(range.dblFirst < range.dblLast);
}

/// What moves the extent from `intFirst` on into the seen one; its beginning where it is larger.
int GetMove(int intFirst, int intLast, int intFirstSeen, int intLastSeen) {
    if (intFirst < intFirstSeen)
        return intFirst - intFirstSeen;
    return std::max(0, std::min(intLast - intLastSeen, intFirst - intFirstSeen));
}

} // namespace

BorderScroll::BorderScroll(QWidget& picBorder, const std::function<void()>& fnScrolled)
    : picBorder_(picBorder), scrAcross_(MakeBar(Qt::Horizontal, QStringLiteral("scrAcross"))),
      scrDown_(MakeBar(Qt::Vertical, QStringLiteral("scrDown"))) {
    for (QScrollBar* const bar : {scrAcross_, scrDown_})
        QObject::connect(bar, &QScrollBar::valueChanged, &picBorder, fnScrolled);
}

QScrollBar* BorderScroll::MakeBar(Qt::Orientation orientation, const QString& strName) {
    auto* const bar = new QScrollBar(orientation, &picBorder_);
    bar->setObjectName(strName);
    bar->setFocusPolicy(Qt::NoFocus);
    bar->setSingleStep(intScrollStep);
    bar->hide();
    return bar;
}

QRect BorderScroll::GetSeen() const {
    const int intBar = ToPixels(dblScrollBarWidth);
    return picBorder_.rect().adjusted(0, 0, scrDown_->isHidden() ? 0 : -intBar,
                                      scrAcross_->isHidden() ? 0 : -intBar);
}

void BorderScroll::SetRanges(const ScrollRange& across, const ScrollRange& down) {
    SetRange(*scrAcross_, across, picBorder_.width());
    SetRange(*scrDown_, down, picBorder_.height());
    const QRect rectSeen = GetSeen();
    const int intBar = ToPixels(dblScrollBarWidth);
    scrAcross_->setGeometry(0, rectSeen.height(), rectSeen.width(), intBar);
    // The corner between the bars, where panes would show, belongs to this one.
    scrDown_->setGeometry(rectSeen.width(), 0, intBar, picBorder_.height());
}

QPoint BorderScroll::GetOffset() const {
    return {scrAcross_->value(), scrDown_->value()};
}

void BorderScroll::Reveal(const QRect& rect) {
    const QRect rectSeen = GetSeen();
    scrAcross_->setValue(scrAcross_->value() +
                         GetMove(rect.left(), rect.right(), rectSeen.left(), rectSeen.right()));
    scrDown_->setValue(scrDown_->value() +
                       GetMove(rect.top(), rect.bottom(), rectSeen.top(), rectSeen.bottom()));
}

bool BorderScroll::Wheel(QWheelEvent& event) {
    const bool blnSideways = std::abs(event.angleDelta().x()) > std::abs(event.angleDelta().y());
    QScrollBar* const bar = blnSideways || scrDown_->isHidden() ? scrAcross_ : scrDown_;
    if (bar->isHidden())
        return false;
    QCoreApplication::sendEvent(bar, &event);
    return true;
}

} // namespace cellora
