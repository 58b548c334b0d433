#include "ui/system_info.h"

#include <algorithm>

#include <QProcess>
#include <QStringList>

#ifdef Q_OS_WIN
#include <QFileInfo>
#include <QSettings>
#else
#include <QStandardPaths>
#endif

namespace cellora {

namespace {

#ifdef Q_OS_WIN

/// A string or number stored under the local machine's root; false when there is none.
bool ReadRegistryString(const QString& strKey, const QString& strName, QString& strValue) {
    const QSettings registry(QStringLiteral("HKEY_LOCAL_MACHINE\\") + strKey,
                             QSettings::NativeFormat);
    strValue = registry.value(strName).toString();
    return registry.contains(strName);
}

bool StartSystemInfo() {
    QString strPath;
    if (!ReadRegistryString(QStringLiteral("SOFTWARE\\Microsoft\\Shared Tools\\MSINFO"),
                            QStringLiteral("PATH"), strPath)) {
        if (!ReadRegistryString(QStringLiteral("SOFTWARE\\Microsoft\\Shared Tools Location"),
                                QStringLiteral("MSINFO"), strPath))
            return false;
        strPath += QStringLiteral("\\MSINFO32.EXE");
        if (!QFileInfo(strPath).isFile())
            return false;
    }
    return QProcess::startDetached(strPath, {});
}

#else

constexpr const char* aTools[] = {"kinfocenter", "gnome-control-center", "hardinfo"};

bool StartSystemInfo() {
    return std::ranges::any_of(aTools, [](const char* strTool) {
        const QString strPath = QStandardPaths::findExecutable(QLatin1String(strTool));
        return !strPath.isEmpty() && QProcess::startDetached(strPath, {});
    });
}

#endif

} // namespace

void ShowSystemInfo(Game& game) {
    if (StartSystemInfo())
        return;
    game.desktop.ShowMessageBox({.strTitle = std::string(strProductName),
                                 .strText = "System Information Is Unavailable At This Time",
                                 .icon = MessageIcon::None,
                                 .buttons = MessageButtons::Ok});
}

} // namespace cellora
