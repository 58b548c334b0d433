#include "ui/desktop/system_info.h"

#include <QProcess>
#include <QStringList>

#ifdef Q_OS_WIN
#include <iterator>

#include <QFileInfo>
#include <QSettings>

#include <windows.h>
#else
#include <QStandardPaths>
#endif

namespace cellora {

#ifdef Q_OS_WIN

namespace {

/// Windows stores paths with names of environment variables in them: "%ProgramFiles%".
QString ExpandVariables(const QString& strText) {
    wchar_t aExpanded[1024];
    const DWORD lngLength =
        ExpandEnvironmentStringsW(reinterpret_cast<const wchar_t*>(strText.utf16()), aExpanded,
                                  static_cast<DWORD>(std::size(aExpanded)));
    return lngLength == 0 || lngLength > std::size(aExpanded) ? strText
                                                              : QString::fromWCharArray(aExpanded);
}

/// A string or number stored under the local machine's root; false when there is none.
bool ReadRegistryString(const QString& strKey, const QString& strName, QString& strValue) {
    const QSettings registry(QStringLiteral("HKEY_LOCAL_MACHINE\\") + strKey,
                             QSettings::NativeFormat);
    strValue = ExpandVariables(registry.value(strName).toString());
    return registry.contains(strName);
}

} // namespace

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

bool StartSystemInfo() {
    constexpr const char* aTools[] = {"kinfocenter", "gnome-control-center", "hardinfo"};
    // NOLINTNEXTLINE(readability-use-anyofallof): starting a program is more than a question
    for (const char* const strTool : aTools) {
        const QString strPath = QStandardPaths::findExecutable(QLatin1String(strTool));
        if (!strPath.isEmpty() && QProcess::startDetached(strPath, {}))
            return true;
    }
    return false;
}

#endif

} // namespace cellora
