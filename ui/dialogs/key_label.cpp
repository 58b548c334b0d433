#include "ui/dialogs/key_label.h"

#include <cmath>

#include <QPainter>
#include <QPainterPath>

#include "ui/desktop/look.h"
#include "ui/desktop/snap.h"

namespace cellora {

namespace {

constexpr int intLineTop = 1; ///< the names lie on the line of a text of 10 points beside them
constexpr int intLinePitch = 16;
constexpr double dblCapHeight = 15; ///< of a mouse as well
constexpr double dblBaseline = 11;
constexpr double dblCapPadding = 5;
constexpr double dblCapRadius = 3;
constexpr double dblCapDepth = 2; ///< of the darker edge below
constexpr double dblMouseWidth = 11;
constexpr double dblMouseRadius = 5;
constexpr double dblMouseGap = 5;
constexpr double dblMouseButton = 7;

/// One line: the name of a key or button, and what follows it.
struct Line {
    QString strName;
    QString strRest;
};

QList<Line> SplitLines(const QString& strText) {
    QList<Line> lines;
    for (const QString& strLine : strText.split(u'\n')) {
        QString strName = strLine;
        while (strName.endsWith(u' ') || strName.endsWith(u'-') || strName.endsWith(u','))
            strName.chop(1);
        lines.append({strName, strLine.mid(strName.size())});
    }
    return lines;
}

/// What stands before and behind the name.
struct Room {
    double dblBefore;
    double dblBehind;
};

Room GetRoom(KeyLabel::Device device) {
    return device == KeyLabel::Device::Keyboard ? Room{dblCapPadding, dblCapPadding}
                                                : Room{dblMouseWidth + dblMouseGap, 0};
}

/// Whole device pixels, as many for each line: the next line leaves room for what is rounded up.
QRectF Snap(const QPainter& painter, const QRectF& rect) {
    return {SnapInside(painter, rect).topLeft(),
            QSizeF(SnapWidth(painter, rect.width()), SnapWidth(painter, rect.height()))};
}

void DrawCap(QPainter& painter, const QRectF& rect, const QPalette& palette) {
    const QRectF face = rect.adjusted(0, 0, 0, -SnapWidth(painter, dblCapDepth));
    const QColor colorEdge = palette.color(QPalette::Dark);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colorEdge);
    painter.drawRoundedRect(rect, dblCapRadius, dblCapRadius);
    DrawPlate(painter, face, palette.color(QPalette::Window), colorEdge, dblCapRadius);
}

void DrawMouse(QPainter& painter, const QRectF& rect, bool blnLeft, const QPalette& palette) {
    QPainterPath mouse;
    mouse.addRoundedRect(rect, dblMouseRadius, dblMouseRadius);
    painter.fillPath(mouse, palette.color(QPalette::Window));
    QRectF button = rect;
    button.setHeight(SnapWidth(painter, dblMouseButton));
    const double dblHalf = SnapWidth(painter, dblMouseWidth / 2);
    blnLeft ? button.setWidth(dblHalf) : button.setLeft(button.right() - dblHalf);
    QPainterPath pressed;
    pressed.addRect(button);
    painter.fillPath(pressed & mouse, palette.color(QPalette::Highlight));
    DrawFrame(painter, rect, palette.color(QPalette::Shadow), 1, dblMouseRadius);
}

} // namespace

KeyLabel::KeyLabel(const QString& strText, Device device) : QLabel(strText), device_(device) {
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignLeft | Qt::AlignTop);
    setFont(MakeFont(9));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize KeyLabel::sizeHint() const {
    const QFontMetricsF metrics(font());
    const auto [dblBefore, dblBehind] = GetRoom(device_);
    const QList<Line> lines = SplitLines(text());
    double dblWidth = 0;
    for (const Line& line : lines)
        dblWidth = std::max(dblWidth, dblBefore + metrics.horizontalAdvance(line.strName) +
                                          dblBehind + metrics.horizontalAdvance(line.strRest));
    return {static_cast<int>(std::ceil(dblWidth)),
            intLineTop + intLinePitch * static_cast<int>(lines.size())};
}

void KeyLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QFontMetricsF metrics(font());
    const bool blnKeys = device_ == Device::Keyboard;
    QRectF rect(0, intLineTop, 0, dblCapHeight);
    for (const Line& line : SplitLines(text())) {
        const double dblName = metrics.horizontalAdvance(line.strName);
        rect.setWidth(blnKeys ? dblName + 2 * dblCapPadding : dblMouseWidth);
        const QRectF place = Snap(painter, rect);
        if (blnKeys)
            DrawCap(painter, place, palette());
        else
            DrawMouse(painter, place, line.strName.startsWith(u"Left"), palette());
        painter.setPen(palette().color(QPalette::WindowText));
        const QPointF start(GetRoom(device_).dblBefore, place.top() + dblBaseline);
        painter.drawText(start, line.strName);
        painter.drawText(start + QPointF(dblName + GetRoom(device_).dblBehind, 0), line.strRest);
        rect.translate(0, intLinePitch);
    }
}

} // namespace cellora
