#include "core/desktop.h"

#include <utility>

namespace cellora {

void Desktop::RestartTimer(Timer timer) {
    EnableTimer(timer, false);
    EnableTimer(timer, true);
}

bool Desktop::Confirm(std::string strTitle, std::string strText) {
    Beep();
    return ShowMessageBox({std::move(strTitle), std::move(strText), MessageIcon::Question,
                           MessageButtons::YesNo}) == Answer::Yes;
}

void Desktop::Announce(std::string strTitle, std::string strText, MessageIcon icon) {
    Beep();
    ShowMessageBox({std::move(strTitle), std::move(strText), icon, MessageButtons::Ok});
}

} // namespace cellora
