#include "ui/main/start_card.h"

#include <QAction>
#include <QKeyEvent>
#include <QPainter>
#include <QVBoxLayout>

#include "rules/contrast.h"
#include "rules/view.h"
#include "ui/desktop/look.h"
#include "ui/desktop/snap.h"

namespace cellora {

namespace {

constexpr int intCardMargin = 24;
constexpr int intMarkSize = 72;
constexpr int intButtonGap = 4;
constexpr QSize sizeStartButton(248, 40);
constexpr int intTextMargin = 16;
constexpr double dblCorner = 6;

/// How much of the card's colour is in its edge, of 1.
constexpr float dblEdge = 0.25F;

} // namespace

StartButton::StartButton(QAction& action, QWidget* parent)
    : QAbstractButton(parent), action_(action) {
    setObjectName(action.objectName() + QStringLiteral("Button"));
    // As the menu has it, without the marks of its access key and of the dialog that follows.
    setText(action.toolTip());
    setAccessibleName(text());
    setAccessibleDescription(action.shortcut().toString(QKeySequence::NativeText));
    // As everywhere in the window, the mouse leaves the keyboard where it is.
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
    connect(this, &QAbstractButton::clicked, &action, &QAction::trigger);
}

QSize StartButton::sizeHint() const {
    return sizeStartButton;
}

void StartButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QColor color = palette().color(QPalette::WindowText);
    if (isDown() || underMouse())
        DrawTint(painter, rect(), color, isDown(), dblCorner);
    painter.setPen(color);
    const QRect rectText = rect().adjusted(intTextMargin, 0, -intTextMargin, 0);
    painter.drawText(rectText, Qt::AlignLeft | Qt::AlignVCenter, text());
    painter.drawText(rectText, Qt::AlignRight | Qt::AlignVCenter, accessibleDescription());
    if (hasFocus())
        DrawFocusRing(painter, rect(), color);
}

void StartButton::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(event);
}

StartCard::StartCard(std::initializer_list<QAction*> commands, QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("startCard"));
    setAccessibleName(QStringLiteral("Start"));
    setFont(MakeFont(10));
    auto* const rows = new QVBoxLayout(this);
    rows->setContentsMargins(intCardMargin, intCardMargin, intCardMargin, intCardMargin);
    rows->setSpacing(intButtonGap);
    rows->addSpacing(intMarkSize + intCardMargin);
    for (QAction* const action : commands)
        rows->addWidget(new StartButton(*action, this));
}

void StartCard::Mirror(const View& view) {
    const QColor color = ToQColor(ChooseInk(view.lngBorderBackColor));
    if (palette().color(QPalette::WindowText) != color) {
        QPalette colors = palette();
        colors.setColor(QPalette::WindowText, color);
        setPalette(colors);
    }
    if (isVisibleTo(parentWidget()) == view.picGrid.blnVisible)
        setVisible(!view.picGrid.blnVisible);
}

void StartCard::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    DrawPicture(painter,
                QRect((width() - intMarkSize) / 2, intCardMargin, intMarkSize, intMarkSize),
                QStringLiteral("cellora"));
    QColor colorEdge = palette().color(QPalette::WindowText);
    colorEdge.setAlphaF(dblEdge);
    DrawFrame(painter, rect(), colorEdge, 1, dblCorner);
}

} // namespace cellora
