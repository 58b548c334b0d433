#include "ui/desktop/pictures.h"

#include <utility>

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>
#include <QWidget>

#include "core/modCommon_Constants.h"

namespace cellora {

namespace {

constexpr int intPointerSize = 32;
constexpr int intPointerTip = 2;

/// Among the program's resources.
QString GetPicturePath(const QString& strName) {
    return QStringLiteral(":/assets/pictures/%1.svg").arg(strName);
}

class PictureEngine final : public QIconEngine {
public:
    explicit PictureEngine(QString strName) : strName_(std::move(strName)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        QSvgRenderer renderer(GetPicturePath(strName_));
        painter->save();
        if (mode == QIcon::Disabled)
            painter->setOpacity(painter->opacity() * 0.35);
        renderer.render(painter, rect);
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return picture;
    }

    QIconEngine* clone() const override { return new PictureEngine(strName_); }

private:
    QString strName_;
};

} // namespace

QPixmap MakePixmap(const QString& strName, QSize size, qreal dblDevicePixelRatio) {
    const QString strKey = QStringLiteral("%1 %2x%3 %4")
                               .arg(strName)
                               .arg(size.width())
                               .arg(size.height())
                               .arg(dblDevicePixelRatio);
    QPixmap picture;
    if (QPixmapCache::find(strKey, &picture))
        return picture;
    picture = QPixmap(size * dblDevicePixelRatio);
    picture.setDevicePixelRatio(dblDevicePixelRatio);
    picture.fill(Qt::transparent);
    QSvgRenderer renderer(GetPicturePath(strName));
    QPainter painter(&picture);
    renderer.render(&painter, QRectF(QPointF(), size));
    painter.end();
    QPixmapCache::insert(strKey, picture);
    return picture;
}

QString GetButtonPicture(int intNumber, bool blnShaded) {
    if (intNumber == intEraser)
        return QStringLiteral("button_eraser");
    return QStringLiteral("button_%1").arg(intNumber) +
           (blnShaded ? QStringLiteral("_shaded") : QString());
}

QIcon MakeIcon(const QString& strName) {
    return QIcon(new PictureEngine(strName));
}

void SetProgramIcon([[maybe_unused]] QWidget& window) {
#ifndef Q_OS_WIN
    window.setWindowIcon(MakeIcon(QStringLiteral("cellora")));
#endif
}

QCursor MakePointer(const QString& strName, qreal dblDevicePixelRatio) {
    // An X server counts both in its own pixels, and the toolkit hands them over as they are.
    const bool blnOfDevice = QGuiApplication::platformName() == QStringLiteral("xcb");
    const qreal dblScale = blnOfDevice ? dblDevicePixelRatio : 1;
    const int intSize = qRound(intPointerSize * dblScale);
    const int intTip = qRound(intPointerTip * dblScale);
    return QCursor(MakePixmap(strName, {intSize, intSize}, dblDevicePixelRatio / dblScale), intTip,
                   intTip);
}

} // namespace cellora
