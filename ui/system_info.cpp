#include "ui/system_info.h"

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
    // NOLINTNEXTLINE(readability-use-anyofallof): starting a program is more than a question
    for (const char* const strTool : aTools) {
        const QString strPath = QStandardPaths::findExecutable(QLatin1String(strTool));
        if (!strPath.isEmpty() && QProcess::startDetached(strPath, {}))
            return true;
    }
    return false;
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
