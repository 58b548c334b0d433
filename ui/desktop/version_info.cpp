#include "ui/desktop/version_info.h"

#include "core/modCommon_Constants.h"
#include "ui/desktop/text.h"

namespace cellora {

QString GetProductName() {
    return ToQString(strProductName);
}

QString GetVersionText() {
    return QStringLiteral(CELLORA_VERSION);
}

} // namespace cellora
