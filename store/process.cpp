#include "store/process.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <algorithm>
#include <csignal>

#include <QSettings>
#include <QStandardPaths>
#endif

namespace cellora {

void IgnoreFileSizeSignal() {
#ifndef _WIN32
    std::signal(SIGXFSZ, SIG_IGN);
#endif
}

#ifdef _WIN32

bool AsksForStillness() {
    BOOL blnMoves = TRUE;
    return SystemParametersInfoW(SPI_GETCLIENTAREAANIMATION, 0, &blnMoves, 0) && !blnMoves;
}

#else

bool AsksForStillness() {
    struct Setting {
        const char* strFile;
        const char* strKey; ///< a share of the usual time, or whether to move at all
    };
    constexpr Setting aSettings[] = {{"kdeglobals", "KDE/AnimationDurationFactor"},
                                     {"gtk-4.0/settings.ini", "Settings/gtk-enable-animations"},
                                     {"gtk-3.0/settings.ini", "Settings/gtk-enable-animations"}};
    return std::ranges::any_of(aSettings, [](const Setting& setting) {
        const QString strFile = QStandardPaths::locate(QStandardPaths::GenericConfigLocation,
                                                       QLatin1String(setting.strFile));
        const QString strValue = QSettings(strFile, QSettings::IniFormat)
                                     .value(QLatin1String(setting.strKey), 1)
                                     .toString()
                                     .toLower();
        bool blnNumber = false;
        const bool blnZero = strValue.toDouble(&blnNumber) == 0;
        return blnNumber ? blnZero : strValue == QLatin1String("false");
    });
}

#endif

} // namespace cellora
