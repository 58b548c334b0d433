#include <algorithm>

#include <QAccessible>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QTabWidget>

#include <gtest/gtest.h>

#include "tests/support/controls.h"
#include "tests/support/running_program.h"
#include "ui/modal_windows.h"

namespace cellora {

namespace {

/// What keeps a stranger who cannot see a window from using it, page by page.
class WindowWalk final {
public:
    explicit WindowWalk(QWidget& window) : window_(window) {
        const auto pages = window.findChildren<QTabWidget*>();
        if (pages.isEmpty())
            CheckPage();
        for (QTabWidget* const tab : pages) {
            for (int i = 0; i < tab->count(); ++i) {
                tab->setCurrentIndex(i);
                CheckPage();
            }
        }
    }

    std::string Found() const { return found_.join(QLatin1Char('\n')).toStdString(); }

private:
    static QString Describe(const QWidget* widget) {
        return QLatin1String(widget->metaObject()->className()) + u' ' + widget->objectName();
    }

    void Expect(bool blnGood, const QString& strFault) {
        if (!blnGood)
            found_ << strFault;
    }

    void CheckPage() {
        CheckNames();
        CheckAccessKeys();
        if (GetControls().isEmpty()) {
            Expect(false, QStringLiteral("nothing takes the keyboard"));
            return;
        }
        const QList<QWidget*> forward = Walk(Qt::Key_Tab);
        QList<QWidget*> back = Walk(Qt::Key_Backtab);
        std::reverse(back.begin() + 1, back.end());
        Expect(forward == back, QStringLiteral("Shift+Tab goes another way than Tab"));
        for (QWidget* const control : GetControls())
            Expect(forward.contains(control),
                   QStringLiteral("Tab does not reach ") + Describe(control));
    }

    /// Those that take the keyboard; none of them by a click alone.
    QList<QWidget*> GetControls() const {
        QList<QWidget*> controls;
        for (QWidget* const widget : window_.findChildren<QWidget*>()) {
            if (widget->isVisible() && widget->isEnabled() && widget->window() == &window_ &&
                widget->focusPolicy() != Qt::NoFocus && widget->focusProxy() == nullptr)
                controls << widget;
        }
        return controls;
    }

    void CheckNames() {
        for (QWidget* const widget : window_.findChildren<QWidget*>()) {
            const bool blnViewport = widget->focusProxy() == widget->parentWidget();
            if (!widget->isVisible() || widget->focusPolicy() == Qt::NoFocus || blnViewport)
                continue;
            QAccessibleInterface* const control = QAccessible::queryAccessibleInterface(widget);
            Expect(!control->text(QAccessible::Name).isEmpty(),
                   Describe(widget) + QStringLiteral(" has no name"));
            // Its own text is what such a control holds, not what it is for.
            if (qobject_cast<QComboBox*>(widget) || qobject_cast<QLineEdit*>(widget))
                Expect(!control->relations(QAccessible::Label).empty(),
                       Describe(widget) + QStringLiteral(" has no label"));
        }
    }

    void CheckAccessKeys() {
        QStringList texts;
        for (const QAbstractButton* const button : window_.findChildren<QAbstractButton*>()) {
            if (button->isVisible())
                texts << button->text();
        }
        for (const QLabel* const label : window_.findChildren<QLabel*>()) {
            if (label->isVisible() && label->buddy() != nullptr)
                texts << label->text();
        }
        CheckUnique(texts);
        for (const QMenuBar* const bar : window_.findChildren<QMenuBar*>()) {
            CheckUnique(GetTexts(bar->actions()));
            for (const QAction* const action : bar->actions())
                CheckUnique(GetTexts(action->menu()->actions()));
        }
    }

    static QStringList GetTexts(const QList<QAction*>& actions) {
        QStringList texts;
        for (const QAction* const action : actions)
            texts << action->text();
        return texts;
    }

    void CheckUnique(const QStringList& texts) {
        QMap<QString, QString> owners;
        for (const QString& strText : texts) {
            const QString strKey = QKeySequence::mnemonic(strText).toString();
            if (strKey.isEmpty())
                continue;
            Expect(!owners.contains(strKey), strKey + QStringLiteral(" is both ") +
                                                 owners.value(strKey) + QStringLiteral(" and ") +
                                                 strText);
            owners[strKey] = strText;
        }
    }

    QList<QWidget*> Walk(Qt::Key key) {
        constexpr int intMost = 40;
        QList<QWidget*> visited;
        for (QWidget* control = GetControls().constFirst(); visited.size() < intMost;) {
            control->setFocus(key == Qt::Key_Tab ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            visited << control;
            QTest::keyClick(control, key);
            control = window_.focusWidget();
            if (control == nullptr || control == visited.first())
                break;
        }
        return visited;
    }

    QWidget& window_;
    QStringList found_;
};

TEST(WindowWalk, EveryControlOfEveryWindowIsNamedAndReached) {
    RunningProgram run;
    run.StartGame();
    EXPECT_EQ(WindowWalk(run.window()).Found(), "");
    for (const ModalWindow which :
         {ModalWindow::frmNew, ModalWindow::frmPause, ModalWindow::frmEnterName,
          ModalWindow::frmTopTen, ModalWindow::frmOptions, ModalWindow::frmHelp,
          ModalWindow::frmAbout}) {
        const auto form = MakeModalWindow(which, run.game(), nullptr);
        ShowActive(*form);
        SCOPED_TRACE(form->windowTitle().toStdString());
        EXPECT_TRUE(form->testAttribute(Qt::WA_KeyboardFocusChange)) << "no mark of the focus";
        EXPECT_EQ(WindowWalk(*form).Found(), "");
        const auto buttons = form->findChildren<QPushButton*>();
        EXPECT_EQ(std::ranges::count_if(buttons, &QPushButton::isDefault), 1);
        if (which == ModalWindow::frmEnterName)
            run.modal.ThenPress("Enter your name?", QMessageBox::No);
        QTest::keyClick(form.get(), Qt::Key_Escape);
        EXPECT_FALSE(form->isVisible());
    }
}

} // namespace

} // namespace cellora
