#pragma once

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/desktop.h"

namespace cellora {

/// A desktop whose answers are scripted, which records what it was asked and whose clock is turned
/// by hand. A box or a file dialog nobody scripted an answer for fails the test and answers No.
class ScriptedDesktop final : public Desktop {
public:
    std::deque<Answer> answers;                   ///< for the boxes to come
    std::deque<std::optional<std::string>> files; ///< for the file dialogs to come
    std::function<void()> fnWatch;                ///< runs after each event
    std::int32_t lngTimeOfDay = 12 * 3600;

    std::vector<std::string> log; ///< everything in its order: "beep", "box TITLE", "tmr on" ...
    std::vector<MessageBox> boxes;
    std::vector<ModalWindow> windows;
    std::vector<ModalWindow> unloaded;
    std::vector<FileRequest> requests;
    MousePointer pointer = MousePointer::Default;

    Answer ShowMessageBox(const MessageBox& box) override {
        boxes.push_back(box);
        Record("box " + box.strTitle);
        return box.buttons == MessageButtons::Ok ? Answer::Ok
                                                 : Take(answers, Answer::No, box.strText);
    }

    void Beep() override { Record("beep"); }

    void SetMousePointer(MousePointer newPointer) override {
        pointer = newPointer;
        Record(pointer == MousePointer::Hourglass ? "hourglass" : "arrow");
    }

    void EnableTimer(Timer timer, bool blnEnabled) override {
        constexpr const char* aNames[] = {"tmr", "tmrCellWait", "tmrCell", "tmrRecovery"};
        Record(GetName(aNames, timer) + (blnEnabled ? " on" : " off"));
    }

    void ShowModal(ModalWindow window) override {
        windows.push_back(window);
        Record("window " + GetName(aWindows, window));
    }

    void UnloadWindow(ModalWindow window) override {
        unloaded.push_back(window);
        Record("unload " + GetName(aWindows, window));
    }

    void ShowPopup(PopupMenu menu) override {
        Record(menu == PopupMenu::mnuButton ? "popup mnuButton" : "popup mnuRightClick");
    }

    std::optional<std::string> PickFile(const FileRequest& request) override {
        requests.push_back(request);
        Record(request.purpose == FilePurpose::Open ? "pick to open" : "pick to save");
        return Take(files, std::optional<std::string>(), "a file");
    }

    std::int32_t GetTimeOfDay() override { return lngTimeOfDay; }

private:
    static constexpr const char* aWindows[] = {
        "frmNew", "frmPause", "frmEnterName", "frmTopTen", "frmOptions", "frmHelp", "frmAbout"};

    static std::string GetName(const auto& aNames, auto number) {
        return aNames[static_cast<std::size_t>(number)];
    }

    void Record(std::string strEvent) {
        log.push_back(std::move(strEvent));
        if (fnWatch)
            fnWatch();
    }

    template <typename Item>
    static Item Take(std::deque<Item>& items, Item otherwise, const std::string& strAsked) {
        if (items.empty()) {
            ADD_FAILURE() << "nothing scripted for: " << strAsked;
            return otherwise;
        }
        Item item = std::move(items.front());
        items.pop_front();
        return item;
    }
};

} // namespace cellora
