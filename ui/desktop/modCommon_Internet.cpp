#include "ui/desktop/modCommon_Internet.h"

#include <QDesktopServices>
#include <QUrl>

namespace cellora {

bool OpenURL(const QString& strAddress, [[maybe_unused]] int intShowCode) {
    return QDesktopServices::openUrl(QUrl(strAddress));
}

} // namespace cellora
