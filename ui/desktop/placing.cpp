#include "ui/desktop/placing.h"

#include <QScreen>
#include <QWidget>

namespace cellora {

void CenterOnScreen(QWidget& window) {
    const QRect rectScreen = window.screen()->geometry();
    const QSize sizeFree = rectScreen.size() - window.frameGeometry().size();
    window.move(rectScreen.topLeft() + QPoint(sizeFree.width() / 2, sizeFree.height() / 2));
}

} // namespace cellora
