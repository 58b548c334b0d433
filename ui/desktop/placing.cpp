#include "ui/desktop/placing.h"

#include <algorithm>

#include <QScreen>
#include <QWidget>

namespace cellora {

void CenterOnScreen(QWidget& window) {
    const QRect rectScreen = window.screen()->geometry();
    const QSize sizeFree = rectScreen.size() - window.frameGeometry().size();
    const QPoint middle =
        rectScreen.topLeft() + QPoint(sizeFree.width() / 2, sizeFree.height() / 2);
    const QRect rectAvailable = window.screen()->availableGeometry();
    window.move(std::max(middle.x(), rectAvailable.left()),
                std::max(middle.y(), rectAvailable.top()));
}

} // namespace cellora
