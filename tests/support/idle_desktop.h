#pragma once

#include <string>

#include "core/desktop.h"

namespace cellora {

/// A desktop on which nothing happens. Its time stands still, and the file its player picks is
/// always the same.
class IdleDesktop : public Desktop {
public:
    Answer ShowMessageBox(const MessageBox&) override { return Answer::Ok; }
    void Beep() override {}
    void SetMousePointer(MousePointer) override {}
    void EnableTimer(Timer, bool) override {}
    void ShowModal(ModalWindow) override {}
    void UnloadWindow(ModalWindow) override {}
    void ShowPopup(PopupMenu) override {}
    std::optional<std::string> PickFile(const FileRequest&) override { return strPickedFile; }
    std::int32_t GetTimeOfDay() override { return 12 * 3600; }

    std::optional<std::string> strPickedFile;
};

} // namespace cellora
