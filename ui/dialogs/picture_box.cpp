#include "ui/dialogs/picture_box.h"

#include <utility>

#include <QPainter>

#include "ui/desktop/snap.h"

namespace cellora {

PictureBox::PictureBox(QString strPicture, Frame frame, QWidget* parent)
    : QWidget(parent), strPicture_(std::move(strPicture)), frame_(frame) {}

void PictureBox::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    DrawPicture(painter, rect(), strPicture_);
    if (frame_ == Frame::Line)
        DrawFrame(painter, rect(), QColor(0x22, 0x30, 0x3C));
}

} // namespace cellora
