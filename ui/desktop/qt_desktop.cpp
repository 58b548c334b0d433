#include "ui/desktop/qt_desktop.h"

#include <algorithm>
#include <iterator>

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QHeaderView>
#include <QMessageBox>
#include <QTime>
#include <QTimer>
#include <QTreeView>

#include "ui/desktop/dialog_traces.h"
#include "ui/desktop/placing.h"
#include "ui/desktop/text.h"
#include "ui/dialogs/form.h"
#include "ui/dialogs/modal_windows.h"

namespace cellora {

namespace {

// In the order of `Timer`, `MessageIcon` and `MessageButtons`.
constexpr int aTimerMilliseconds[] = {1000, 1000, 40, 1000};
constexpr QMessageBox::Icon aIcons[] = {QMessageBox::NoIcon, QMessageBox::Question,
                                        QMessageBox::Information, QMessageBox::Warning};
constexpr QMessageBox::StandardButtons aButtons[] = {
    QMessageBox::Ok, QMessageBox::Yes | QMessageBox::No,
    QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel};
static_assert(std::size(aTimerMilliseconds) == static_cast<std::size_t>(Timer::tmrRecovery) + 1 &&
                  std::size(aIcons) == static_cast<std::size_t>(MessageIcon::Exclamation) + 1 &&
                  std::size(aButtons) == static_cast<std::size_t>(MessageButtons::YesNoCancel) + 1,
              "each is found by its place");

/// The last brackets hold the pattern and are not shown.
constexpr const char* strFilter = "Sudoku Files (*.clp) (*.clp);;All Files (*.*) (*)";

/// The size of the file dialogs where the screen holds it.
constexpr QSize sizeFileDialog(700, 460);

/// Enough for the title of every box beside the buttons of a title bar.
constexpr int intMessageWidth = 280;

/// The toolkit gives a box the size of its text.
void WidenForTitle(const QMessageBox& messageBox) {
    auto* const grid = qobject_cast<QGridLayout*>(messageBox.layout());
    grid->addItem(new QSpacerItem(intMessageWidth, 0), grid->rowCount(), 0, 1, grid->columnCount());
}

/// Names take the room that the other columns leave, so nothing is cut beside empty space.
void ArrangeColumns(const QFileDialog& dialog) {
    auto* const list = dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
    if (list == nullptr)
        return; // the system's own dialog
    list->header()->setStretchLastSection(false);
    list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
}

/// A folder that could not be made, as on a disk that takes nothing, would count as a file's name.
QString GetFolderToShow(const QString& strFolder) {
    return QFileInfo(strFolder).isDir() ? strFolder : QDir::homePath();
}

/// The file may be missing, but the folder of a typed name must exist.
class GameFileDialog final : public QFileDialog {
public:
    using QFileDialog::QFileDialog;

    void accept() override {
        const QStringList files = selectedFiles();
        if (!files.isEmpty() && !QFileInfo(files.constFirst()).absoluteDir().exists())
            QMessageBox::warning(
                this, windowTitle(),
                QStringLiteral("The folder of \"%1\" does not exist.\n\nPlease choose another one.")
                    .arg(QDir::toNativeSeparators(files.constFirst())));
        else
            QFileDialog::accept();
    }
};

Answer GetAnswer(int intButton) {
    switch (intButton) {
    case QMessageBox::Yes:
        return Answer::Yes;
    case QMessageBox::No:
        return Answer::No;
    case QMessageBox::Cancel:
        return Answer::Cancel;
    default:
        return Answer::Ok;
    }
}

} // namespace

QtDesktop::QtDesktop() {
    for (const int intMilliseconds : aTimerMilliseconds) {
        auto timer = std::make_unique<QTimer>();
        // The clock's ticks are the only record of the time played, so none may come late.
        timer->setTimerType(Qt::PreciseTimer);
        timer->setInterval(intMilliseconds);
        connect(timer.get(), &QTimer::timeout, this,
                [this, which = static_cast<Timer>(timers_.size())] { emit tick(which); });
        timers_.push_back(std::move(timer));
    }
}

QtDesktop::~QtDesktop() = default;

void QtDesktop::Attach(Game& game, QWidget* window, std::function<void()> fnMirror) {
    game_ = &game;
    window_ = window;
    fnMirror_ = std::move(fnMirror);
}

void QtDesktop::Detach() {
    fnMirror_ = [] {};
    for (const auto& timer : timers_)
        timer->stop();
}

Answer QtDesktop::ShowMessageBox(const MessageBox& box) {
    fnMirror_();
    QMessageBox messageBox(aIcons[static_cast<std::size_t>(box.icon)], ToQString(box.strTitle),
                           ToMessageText(box.strText),
                           aButtons[static_cast<std::size_t>(box.buttons)], GetOwner());
    messageBox.setTextFormat(Qt::PlainText);
    WidenForTitle(messageBox);
    // The toolkit would take the leftmost button, which differs from desktop to desktop.
    if (messageBox.button(QMessageBox::Yes) != nullptr)
        messageBox.setDefaultButton(QMessageBox::Yes);
    return GetAnswer(Execute(messageBox));
}

int QtDesktop::Execute(QDialog& dialog) const {
    // The hourglass belongs to the main window, not to what is shown over it.
    if (blnHourglass_)
        QApplication::restoreOverrideCursor();
    const int intResult = dialog.exec();
    TakeKeyboardBack();
    if (blnHourglass_)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    return intResult;
}

void QtDesktop::Beep() {
    QApplication::beep();
}

void QtDesktop::SetMousePointer(MousePointer pointer) {
    const bool blnHourglass = pointer == MousePointer::Hourglass;
    if (blnHourglass == blnHourglass_)
        return;
    blnHourglass_ = blnHourglass;
    if (blnHourglass)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

void QtDesktop::EnableTimer(Timer timer, bool blnEnabled) {
    QTimer& which = GetTimer(timer);
    if (!blnEnabled)
        which.stop();
    else if (!which.isActive())
        which.start();
}

bool QtDesktop::IsTimerEnabled(Timer timer) const {
    return GetTimer(timer).isActive();
}

QTimer& QtDesktop::GetTimer(Timer timer) const {
    return *timers_[static_cast<std::size_t>(timer)];
}

void QtDesktop::ShowModal(ModalWindow window) {
    const auto dialog = MakeModalWindow(window, *game_, GetOwner());
    Run(window, *dialog);
}

void QtDesktop::ShowInstructions(int intTab) {
    const auto dialog = MakeInstructions(*game_, GetOwner(), intTab);
    Run(ModalWindow::frmHelp, *dialog);
}

void QtDesktop::Run(ModalWindow window, Form& dialog) {
    fnMirror_();
    connect(&dialog, &Form::gameChanged, this, [this] { fnMirror_(); });
    open_.push_back({window, &dialog});
    dialog.exec();
    open_.pop_back();
    TakeKeyboardBack();
}

void QtDesktop::TakeKeyboardBack() const {
    if (QWidget* const owner = GetOwner())
        owner->activateWindow();
}

void QtDesktop::UnloadWindow(ModalWindow window) {
    const auto found = std::ranges::find(open_, window, &OpenWindow::window);
    if (found != open_.end())
        found->dialog->close();
}

void QtDesktop::ShowPopup(PopupMenu menu) {
    emit popupWanted(menu);
}

std::optional<std::string> QtDesktop::PickFile(const FileRequest& request) {
    fnMirror_();
    const bool blnSave = request.purpose == FilePurpose::Save;
    const DialogTraces traces;
    GameFileDialog dialog(GetOwner(), blnSave ? QStringLiteral("Save As") : QStringLiteral("Open"),
                          GetFolderToShow(ToQString(request.strFolder)), QLatin1String(strFilter));
    dialog.setAcceptMode(blnSave ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setOption(QFileDialog::DontConfirmOverwrite);
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    ArrangeColumns(dialog);
    dialog.resize(sizeFileDialog.boundedTo(GetLargestSize(dialog)));
    CenterOnScreen(dialog);
    if (Execute(dialog) != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return ToPath(dialog.selectedFiles().constFirst());
}

std::int32_t QtDesktop::GetTimeOfDay() {
    return QTime::currentTime().msecsSinceStartOfDay() / 1000;
}

QWidget* QtDesktop::GetOwner() const {
    if (!open_.empty())
        return open_.back().dialog;
    return window_;
}

} // namespace cellora
