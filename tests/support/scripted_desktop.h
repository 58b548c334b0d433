#pragma once

#include <deque>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "core/desktop.h"

namespace cellora {

/// A desktop whose answers are scripted, which records what it was asked and whose clock is turned
/// by hand. A box nobody scripted an answer for fails the test.
class ScriptedDesktop final : public Desktop {
public:
    std::deque<Answer> answers;                            ///< for the boxes to come
    std::deque<std::optional<std::string>> files;          ///< for the file dialogs to come
    std::function<void(const MessageBox&)> fnDuringBox;    ///< runs while a box is open
    std::map<ModalWindow, std::function<void()>> fnDuring; ///< runs while a window is shown
    std::int32_t lngTimeOfDay = 12 * 3600;

    std::vector<MessageBox> boxes;
    std::vector<ModalWindow> windows;
    std::vector<ModalWindow> unloaded;
    std::vector<PopupMenu> popups;
    std::vector<FileRequest> requests;
    std::vector<std::string> log; ///< everything in its order: "beep", "box TITLE", "tmr on" ...
    int intBeeps = 0;
    MousePointer pointer = MousePointer::Default;
    std::set<Timer> running;
    std::map<Timer, int> restarts; ///< how often a stopped timer was started

    Answer ShowMessageBox(const MessageBox& box) override {
        boxes.push_back(box);
        log.push_back("box " + box.strTitle);
        if (fnDuringBox)
            fnDuringBox(box);
        if (box.buttons == MessageButtons::Ok)
            return Answer::Ok;
        if (answers.empty()) {
            ADD_FAILURE() << "no answer scripted for the box: " << box.strText;
            return Answer::No;
        }
        const Answer answer = answers.front();
        answers.pop_front();
        return answer;
    }

    void Beep() override {
        ++intBeeps;
        log.emplace_back("beep");
    }

    void SetMousePointer(MousePointer newPointer) override {
        pointer = newPointer;
        log.emplace_back(pointer == MousePointer::Hourglass ? "hourglass" : "arrow");
    }

    void EnableTimer(Timer timer, bool blnEnabled) override {
        static const std::map<Timer, std::string> names = {{Timer::tmr, "tmr"},
                                                           {Timer::tmrCellWait, "tmrCellWait"},
                                                           {Timer::tmrCell, "tmrCell"},
                                                           {Timer::tmrRecovery, "tmrRecovery"}};
        log.push_back(names.at(timer) + (blnEnabled ? " on" : " off"));
        if (!blnEnabled)
            running.erase(timer);
        else if (running.insert(timer).second)
            ++restarts[timer];
    }

    void ShowModal(ModalWindow window) override {
        windows.push_back(window);
        log.push_back("window " + std::to_string(static_cast<int>(window)));
        if (const auto it = fnDuring.find(window); it != fnDuring.end())
            it->second();
    }

    void UnloadWindow(ModalWindow window) override {
        unloaded.push_back(window);
        log.push_back("unload " + std::to_string(static_cast<int>(window)));
    }

    void ShowPopup(PopupMenu menu) override { popups.push_back(menu); }

    std::optional<std::string> PickFile(const FileRequest& request) override {
        requests.push_back(request);
        if (files.empty()) {
            ADD_FAILURE() << "no file scripted";
            return std::nullopt;
        }
        const auto file = files.front();
        files.pop_front();
        return file;
    }

    std::int32_t GetTimeOfDay() override { return lngTimeOfDay; }

    bool IsRunning(Timer timer) const { return running.contains(timer); }
};

} // namespace cellora
