#include "ui/dialogs/frmSplash.h"

#include <utility>

#include <QLabel>
#include <QPainter>

#include "ui/desktop/look.h"
#include "ui/desktop/pictures.h"
#include "ui/desktop/placing.h"
#include "ui/desktop/snap.h"
#include "ui/desktop/twips.h"
#include "ui/desktop/version_info.h"

namespace cellora {

namespace {

constexpr int intInterval = 1000;

} // namespace

frmSplash::frmSplash(Steps steps)
    : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint),
      steps_(std::move(steps)) {
    setObjectName(QStringLiteral("frmSplash"));
    setWindowTitle(GetProductName());
    setFixedSize(ToPixelSize(5655, 2970));
    CenterOnScreen(*this);
    AddLabel(QStringLiteral("lblCopyright"), QLatin1String(strLegalNotice),
             ToPixelRect(840, 2520, 1575, 255), Qt::AlignLeft);
    AddLabel(QStringLiteral("lblVersion"), QStringLiteral("Version: ") + GetVersionText(),
             ToPixelRect(2880, 2520, 2055, 255), Qt::AlignRight);
    for (QTimer* const timer : {&tmrSplash_, &tmrSplash2_}) {
        // Coarse timers may be late or early by a twentieth, and these two would add it up.
        timer->setTimerType(Qt::PreciseTimer);
        timer->setInterval(intInterval);
    }
    connect(&tmrSplash_, &QTimer::timeout, this, &frmSplash::tmrSplash_Timer);
    connect(&tmrSplash2_, &QTimer::timeout, this, &frmSplash::tmrSplash2_Timer);
    tmrSplash_.start();
}

void frmSplash::AddLabel(const QString& strName, const QString& strText, QRect rect,
                         Qt::Alignment alignment) {
    auto* const label = new QLabel(strText, this);
    label->setObjectName(strName);
    label->setAlignment(alignment | Qt::AlignTop);
    label->setGeometry(rect);
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, QColor(128, 128, 128));
    label->setPalette(palette);
    // Loading the first font takes longer than the picture; the labels follow its first frame.
    label->hide();
}

void frmSplash::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    painter.drawPixmap(0, 0, MakePixmap(QStringLiteral("splash"), {370, 190}, devicePixelRatioF()));
    // A window ends on whole pixels of the device, whatever its size times the scale is.
    const QSizeF sizeDevice = (QSizeF(size()) * devicePixelRatioF()).toSize();
    DrawFrame(painter, {QPointF(), sizeDevice / devicePixelRatioF()}, QColor(0x22, 0x30, 0x3C));
    QTimer::singleShot(0, this, &frmSplash::ShowLabels);
}

void frmSplash::ShowLabels() {
    for (QLabel* const label : findChildren<QLabel*>())
        label->show();
}

void frmSplash::tmrSplash_Timer() {
    if (!steps_.fnLoad()) {
        tmrSplash_.stop();
        close();
    } else if (!tmrSplash2_.isActive()) {
        tmrSplash2_.start();
    }
}

void frmSplash::tmrSplash2_Timer() {
    tmrSplash_.stop();
    tmrSplash2_.stop();
    steps_.fnEnable();
    close();
    steps_.fnStart();
}

} // namespace cellora
