#pragma once

#include <cstdint>
#include <optional>
#include <string>

/// What the rules of the game want from the world outside: boxes, beeps, timers, windows, files to
/// pick and the time of day. All texts are UTF-8; lines of a message are separated by CR LF.
namespace cellora {

enum class MessageIcon { None, Question, Information, Exclamation };
enum class MessageButtons { Ok, YesNo, YesNoCancel };

/// A box closed without choosing a button answers No, or Cancel where there is one.
enum class Answer { Ok, Yes, No, Cancel };

struct MessageBox {
    std::string strTitle;
    std::string strText;
    MessageIcon icon = MessageIcon::None;
    MessageButtons buttons = MessageButtons::Ok;
};

enum class MousePointer { Default, Hourglass };

/// The main window's timers: the game clock (1000 ms), the cursor's idle time (1000 ms), the
/// thinning of the idle cursor (40 ms) and the wait before a changed game is kept for recovery
/// (1000 ms).
enum class Timer { tmr, tmrCellWait, tmrCell, tmrRecovery };

enum class ModalWindow { frmNew, frmPause, frmEnterName, frmTopTen, frmOptions, frmHelp, frmAbout };

enum class PopupMenu { mnuRightClick, mnuButton };

enum class FilePurpose { Open, Save };

struct FileRequest {
    FilePurpose purpose = FilePurpose::Open;
    std::string strFolder; ///< the folder shown first
};

class Desktop {
public:
    virtual ~Desktop() = default;

    /// Shows the box over the active window and returns once it is closed. Timers tick meanwhile.
    virtual Answer ShowMessageBox(const MessageBox& box) = 0;

    virtual void Beep() = 0;

    /// Sets the pointer of the whole program.
    virtual void SetMousePointer(MousePointer pointer) = 0;

    /// Enabling a timer that is enabled leaves its countdown running.
    virtual void EnableTimer(Timer timer, bool blnEnabled) = 0;

    /// Loads the window afresh, shows it modally and returns once it is closed.
    virtual void ShowModal(ModalWindow window) = 0;

    /// Closes a window that `ShowModal` is showing; nothing happens when it is not.
    virtual void UnloadWindow(ModalWindow window) = 0;

    /// Opens the menu where the player asked for it. It may return before a choice is made.
    virtual void ShowPopup(PopupMenu menu) = 0;

    /// The chosen file, or nothing when the player cancelled.
    virtual std::optional<std::string> PickFile(const FileRequest& request) = 0;

    /// Whole seconds since midnight, 0 to 86399.
    virtual std::int32_t GetTimeOfDay() = 0;

    /// Switches the timer off and on, so that a full interval runs from now.
    void RestartTimer(Timer timer);

    /// Beeps and asks a question that Yes and No answer. True for Yes.
    bool Confirm(std::string strTitle, std::string strText);

    /// Beeps and shows a message.
    void Announce(std::string strTitle, std::string strText, MessageIcon icon);
};

} // namespace cellora
