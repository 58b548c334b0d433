#include "ui/main/font_check.h"

#include <QDialog>
#include <QLabel>
#include <QLayout>
#include <QPainterPath>

#include "ui/desktop/look.h"
#include "ui/desktop/pictures.h"
#include "ui/desktop/version_info.h"

namespace cellora {

namespace {

constexpr QSize sizePicture(495, 74);

} // namespace

bool HasScalableFont() {
    QPainterPath outline;
    outline.addText(0, 0, MakeFont(24), QStringLiteral("8"));
    // A frame of straight lines stands for what no font has.
    for (int i = 0; i < outline.elementCount(); ++i) {
        if (outline.elementAt(i).isCurveTo())
            return true;
    }
    return false;
}

void TellOfMissingFont() {
    // The picture says the same.
    const QString strText =
        QStringLiteral("Cellora needs a scalable font, such as Liberation Sans, and found none.\n"
                       "On Debian and Ubuntu it is in the package fonts-liberation2.");
    qCritical().noquote() << strText;
    QDialog window;
    window.setWindowTitle(GetProductName());
    SetProgramIcon(window);
    auto* const label = new QLabel;
    label->setAccessibleName(strText);
    label->setPixmap(
        MakePixmap(QStringLiteral("font_missing"), sizePicture, window.devicePixelRatioF()));
    auto* const layout = new QVBoxLayout(&window);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    layout->setContentsMargins({});
    layout->addWidget(label);
    window.exec();
}

} // namespace cellora
