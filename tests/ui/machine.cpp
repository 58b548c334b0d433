#include "tests/ui/machine.h"

#include <ctime>

#include <sys/syscall.h>
#include <sys/time.h>
#include <unistd.h>

#include <QPrinter>
#include <QPrinterInfo>
#include <QtWidgets>

#include "tests/ui/window_text.h"

namespace {

constexpr long lngMillion = 1'000'000;
constexpr long lngMorning = 1'709'200'800'000; ///< 10:00 on a day of 2024, in milliseconds
long lngNow = 1'000'000;                       ///< milliseconds since the machine was started
long lngTimeSet = 0;                           ///< when it was 10:00 last

long GetWallTime() {
    return lngMorning + lngNow - lngTimeSet;
}

} // namespace

using cellora::machine::heard;

// What the toolkit offers and takes from the system, replaced for the whole test program.
extern "C" int clock_gettime(clockid_t clock, timespec* time) noexcept {
    if (clock == CLOCK_PROCESS_CPUTIME_ID || clock == CLOCK_THREAD_CPUTIME_ID)
        return static_cast<int>(syscall(SYS_clock_gettime, clock, time));
    const long lngTime = clock == CLOCK_REALTIME ? GetWallTime() : lngNow;
    *time = {lngTime / 1000, lngTime % 1000 * lngMillion};
    return 0;
}

extern "C" int gettimeofday(timeval* time, void*) noexcept {
    *time = {GetWallTime() / 1000, GetWallTime() % 1000 * 1000};
    return 0;
}

bool QAccessible::isActive() {
    return true;
}

/// What assistive technology is told of the grid's cells.
void QAccessible::updateAccessibility(QAccessibleEvent* event) {
    if (event->child() < 0 || event->object()->objectName() != QLatin1String("picGrid"))
        return;
    const QString strTold =
        QStringLiteral("told of %1: cell")
            .arg(
                QLatin1String(QMetaEnum::fromType<QAccessible::Event>().valueToKey(event->type())));
    if (heard.isEmpty() || !heard.last().startsWith(strTold))
        heard << strTold;
    heard.last() += u' ' + QString::number(event->child() + 1);
}

void QGuiApplication::setOverrideCursor(const QCursor& cursor) {
    heard << cellora::Join("the pointer becomes ", QVariant::fromValue(cursor.shape()).toString());
}

void QGuiApplication::restoreOverrideCursor() {
    heard << QStringLiteral("the pointer is itself again");
}

void QApplication::beep() {
    heard << QStringLiteral("a beep");
}

void QCoreApplication::exit(int intCode) {
    heard << QStringLiteral("the program ends with %1").arg(intCode);
}

bool QDesktopServices::openUrl(const QUrl& url) {
    heard << QStringLiteral("the browser opens ") + url.toString();
    return true;
}

bool QProcess::startDetached(const QString& strProgram, const QStringList&, const QString&,
                             qint64*) {
    heard << strProgram.section(u'/', -1) + QStringLiteral(" is started");
    return !strProgram.endsWith(QLatin1String("kinfocenter"));
}

/// Where the desktop tells which key of the keyboard was pressed.
QString QGuiApplication::platformName() {
    return QStringLiteral("xcb");
}

QRect QScreen::availableGeometry() const {
    const QSize sizeLeft = cellora::machine::sizeScreen;
    return {geometry().topLeft(), sizeLeft.isEmpty() ? geometry().size() : sizeLeft};
}

bool QSessionManager::allowsInteraction() {
    return cellora::machine::blnSessionAsks;
}

void QSessionManager::cancel() {
    heard << QStringLiteral("the session goes on");
}

QStringList QPrinterInfo::availablePrinterNames() {
    return cellora::machine::blnPrinterInstalled ? QStringList(QStringLiteral("One"))
                                                 : QStringList();
}

/// Asked once for each document.
QPrinter::PrinterState QPrinter::printerState() const {
    const QRect sheet = pageLayout().fullRectPixels(resolution());
    heard << cellora::Join(copyCount(), " document is printed on ", sheet.width(), 'x',
                           sheet.height(), fullPage() ? " without" : " within", " margins");
    return cellora::machine::blnPrinterBroken ? QPrinter::Error : QPrinter::Idle;
}

/// The print service, as far as it is asked how it took a document.
QFunctionPointer QLibrary::resolve(const QString& strFile, int intVersion, const char* strRoutine) {
    using cellora::machine::blnServiceRefuses;
    if (strFile != QLatin1String("cups"))
        return QLibrary(strFile, intVersion).resolve(strRoutine);
    if (QLatin1String(strRoutine) == QLatin1String("cupsLastError"))
        return reinterpret_cast<QFunctionPointer>(+[] { return blnServiceRefuses ? 0x502 : 1; });
    return reinterpret_cast<QFunctionPointer>(+[] { return "The printer is on holiday."; });
}

namespace cellora::machine {

bool IsOffscreen() {
    return qgetenv("QT_QPA_PLATFORM").startsWith("offscreen");
}

bool IsExact() {
    return IsOffscreen() && qApp->devicePixelRatio() == 1;
}

void Settle() {
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        for (auto* const animation : window->findChildren<QAbstractAnimation*>())
            animation->setCurrentTime(animation->duration());
    }
    // A window manager takes its time to hand the keyboard on.
    const auto IsWaiting = [] {
        return !IsOffscreen() && !QApplication::topLevelWidgets().isEmpty() &&
               QApplication::activeWindow() == nullptr;
    };
    for (int i = IsOffscreen() ? 4 : 12; i > 0 || (i > -200 && IsWaiting()); --i) {
        QCoreApplication::processEvents();
        if (!IsOffscreen())
            usleep(2000);
    }
}

void Begin() {
    lngTimeSet = lngNow;
    heard.clear();
    blnSessionAsks = true;
    blnPrinterInstalled = blnPrinterBroken = blnServiceRefuses = false;
}

void Pass(int intMilliseconds) {
    for (; intMilliseconds > 0; --intMilliseconds) {
        ++lngNow;
        QCoreApplication::processEvents();
    }
    Settle();
}

} // namespace cellora::machine
