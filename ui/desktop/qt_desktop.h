#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include <QObject>
#include <QPointer>

#include "core/desktop.h"

class QDialog;
class QTimer;
class QWidget;

namespace cellora {

class Form;
struct Game;

/// The desktop of the running program. It owns the main window's timers and shows every box and
/// modal window over the active one.
class QtDesktop final : public QObject, public Desktop {
    Q_OBJECT

public:
    QtDesktop();
    ~QtDesktop() override;

    /// Where boxes and windows belong and what brings the main window up to date before one opens.
    /// Called by the main window when it is made; the window outlives its use.
    void Attach(Game& game, QWidget* window, std::function<void()> fnMirror);
    /// The main window is going: nothing is mirrored any more, and the timers stop.
    void Detach();

    Answer ShowMessageBox(const MessageBox& box) override;
    void Beep() override;
    void SetMousePointer(MousePointer pointer) override;
    void EnableTimer(Timer timer, bool blnEnabled) override;
    void ShowModal(ModalWindow window) override;
    void UnloadWindow(ModalWindow window) override;
    void ShowPopup(PopupMenu menu) override;
    std::optional<std::string> PickFile(const FileRequest& request) override;
    std::int32_t GetTimeOfDay() override;

    bool IsTimerEnabled(Timer timer) const;

    /// Shows the Instructions window on one of its tabs instead of the first.
    void ShowInstructions(int intTab);

signals:
    void tick(Timer timer);
    void popupWanted(PopupMenu menu);

private:
    struct OpenWindow {
        ModalWindow window;
        Form* dialog;
    };

    QWidget* GetOwner() const;
    QTimer& GetTimer(Timer timer) const;
    void Run(ModalWindow window, Form& dialog);
    int Execute(QDialog& dialog) const;
    /// After a modal window: where two close at once, a window manager may leave it with neither.
    void TakeKeyboardBack() const;

    Game* game_ = nullptr;
    QPointer<QWidget> window_;
    std::function<void()> fnMirror_ = [] {};
    std::vector<std::unique_ptr<QTimer>> timers_;
    std::vector<OpenWindow> open_;
    bool blnHourglass_ = false;
};

} // namespace cellora
