#pragma once

#include <QWidget>

namespace cellora {

/// One of the program's pictures, which fills its place sharp at every scale, with or without a
/// frame of one pixel.
class PictureBox final : public QWidget {
    Q_OBJECT

public:
    enum class Frame { None, Line };

    PictureBox(QString strPicture, Frame frame, QWidget* parent);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString strPicture_;
    Frame frame_;
};

} // namespace cellora
