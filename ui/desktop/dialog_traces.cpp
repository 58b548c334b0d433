#include "ui/desktop/dialog_traces.h"

#ifdef Q_OS_WIN
#include <QSettings>
#endif

namespace cellora {

#ifdef Q_OS_WIN

namespace {

/// Where programs of the player's keep their settings, and in it the toolkit's own.
constexpr char strSoftware[] = "HKEY_CURRENT_USER\\Software";
constexpr char strToolkit[] = "QtProject";

} // namespace

DialogTraces::DialogTraces() {
    QSettings registry(QLatin1String(strSoftware), QSettings::NativeFormat);
    registry.beginGroup(QLatin1String(strToolkit));
    for (const QString& strName : registry.allKeys())
        before_.insert(strName, registry.value(strName));
}

DialogTraces::~DialogTraces() {
    QSettings registry(QLatin1String(strSoftware), QSettings::NativeFormat);
    if (before_.isEmpty()) {
        registry.remove(QLatin1String(strToolkit));
        return;
    }
    registry.beginGroup(QLatin1String(strToolkit));
    for (const QString& strName : registry.allKeys()) {
        if (!before_.contains(strName))
            registry.remove(strName);
    }
    for (auto it = before_.cbegin(); it != before_.cend(); ++it)
        registry.setValue(it.key(), it.value());
}

#else

DialogTraces::DialogTraces() = default;
DialogTraces::~DialogTraces() = default;

#endif

} // namespace cellora
