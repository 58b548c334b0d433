#pragma once

#include "tests/soak/match.h"

namespace cellora {

/// What a player does on the board, beside it and in windows, in the program and in the model.
class BoardMoves : public Match {
protected:
    using Match::Match;

    /// False where the row of numbers is hidden.
    bool ClickNumber(int intNumber, Qt::MouseButton button = Qt::LeftButton) {
        if (!model_.view.blnNumbers)
            return false;
        QTest::mouseClick(&run_.Get(QStringLiteral("picButton%1").arg(intNumber)), button);
        model_.SelectNumber(intNumber);
        return true;
    }

    struct Arrow {
        Qt::Key key;
        int intDown;
        int intRight;
    };

    static constexpr Arrow aArrows[] = {
        {Qt::Key_Up, -1, 0}, {Qt::Key_Down, 1, 0}, {Qt::Key_Left, 0, -1}, {Qt::Key_Right, 0, 1}};

    void PressArrow(const Arrow& arrow) {
        QTest::keyClick(&run_.grid(), arrow.key);
        model_.Arrow(arrow.intDown, arrow.intRight);
    }

    /// By the arrows, now and then round the edge.
    void MoveTo(int intCell) {
        const Arrow& vertical = aArrows[Draw(0, 1)];
        const Arrow& level = aArrows[Draw(2, 3)];
        while ((model_.intCursor - 1) / 9 != (intCell - 1) / 9)
            PressArrow(vertical);
        while (model_.intCursor != intCell)
            PressArrow(level);
    }

    void PressDigit(int intDigit) {
        QTest::keyClick(&run_.grid(), static_cast<Qt::Key>(Qt::Key_0 + intDigit),
                        Chance(50) ? Qt::KeypadModifier : Qt::NoModifier);
    }

    void Type(int intCell, int intDigit) {
        MoveTo(intCell);
        model_.Type(intDigit); // first, because the key may open the window at the end
        PressDigit(intDigit);
    }

    static std::string GetEntries(const QMenu& menu) {
        QStringList entries;
        for (const QAction* const action : menu.actions().first(menu.actions().size() - 2))
            if (action->isVisible())
                entries << (action->isSeparator() ? QStringLiteral("--") : action->text());
        const QAction& last = *menu.actions().constLast();
        entries << (last.isEnabled() ? last.text() : u'(' + last.text() + u')');
        return entries.join(u'|').toStdString();
    }

    void UsePopup(QMenu& menu) {
        if (Chance(80)) {
            // Rather one more than one less, so that cells fill up.
            int intDigit = Draw(1, 9);
            for (int n = 0; n < 3 && GetCell(model_.intCursor).HasNote(intDigit); ++n)
                intDigit = Draw(1, 9);
            QTest::keyClick(&menu, static_cast<Qt::Key>(Qt::Key_0 + intDigit));
            return model_.Note(intDigit);
        }
        QAction& entry = *menu.actions()[Draw(0, static_cast<int>(menu.actions().size()) - 1)];
        if (entry.isSeparator() || !entry.isVisible() || !entry.isEnabled())
            return;
        const int intDigit = entry.text().front().digitValue();
        entry.trigger();
        model_.Note(std::max(intDigit, 0));
    }

    void Solve(int intCell) { Type(intCell, GetCell(intCell).intSolution); }
    void Spoil(int intCell) { Type(intCell, GetCell(intCell).intSolution % 9 + 1); }
    void TypeSolution() { Solve(DrawCell(&model::Cell::IsEmpty)); }
    void TypeWrongDigit() { Spoil(DrawCell(&model::Cell::IsEmpty)); }
    void CorrectCell() { Solve(DrawCell(&model::Cell::IsWrong)); }
    void SpoilCell() { Spoil(DrawCell(&model::Cell::HasEntry)); }
    void TypeAnywhere() {
        const int i = Draw(1, 81);
        Type(i, GetCell(i).HasEntry() && Chance(50) ? GetCell(i).intEntry : Draw(1, 9));
    }

    void ClickSolution() {
        const int i = DrawCell(&model::Cell::IsEmpty);
        if (!ClickNumber(GetCell(i).intSolution))
            return;
        run_.ClickCell(i);
        model_.Click(i);
    }

    void ClickAnywhere() {
        const int i = Draw(1, 81);
        run_.ClickCell(i, Chance(80) ? Qt::LeftButton : Qt::MiddleButton);
        model_.Click(i);
    }

    void PressKey() {
        constexpr Qt::Key aKeys[] = {Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_Space, Qt::Key_A,
                                     Qt::Key_0};
        if (Chance(45))
            return PressArrow(aArrows[Draw(0, 3)]);
        const int intKey = Draw(0, 4);
        QTest::keyClick(&run_.grid(), aKeys[intKey]);
        intKey < 3 ? model_.Clear() : model_.PressOtherKey();
    }

    void EditNotes() {
        const int i = Chance(80) ? DrawCell(&model::Cell::IsEmpty) : Draw(1, 81);
        auto& menu = run_.Get<QMenu>(QStringLiteral("mnuRightClick"));
        for (int intTimes = Draw(1, 8); intTimes > 0; --intTimes) {
            run_.ClickCell(i, Qt::RightButton);
            model_.ClickRight(i);
            EXPECT_EQ(menu.isVisible(), !GetCell(i).blnGiven) << strMove_;
            if (!menu.isVisible())
                return;
            EXPECT_EQ(GetEntries(menu), model_.GetPopup()) << strMove_;
            UsePopup(menu);
            menu.close();
        }
        Compare();
    }

    void UseNumber() {
        const bool blnMenu = Chance(50);
        if (!ClickNumber(Draw(1, 10), blnMenu ? Qt::RightButton : Qt::LeftButton) || !blnMenu)
            return;
        auto& menu = run_.Get<QMenu>(QStringLiteral("mnuButton"));
        menu.actions().constFirst()->trigger();
        model_.ToggleHighlight();
        menu.close();
    }

    void PassTimeAtRandom() { PassTime(static_cast<Timer>(Draw(0, 3)), Draw(1, 70)); }

    void ToggleView() {
        struct Switch {
            const char* strEntry;
            void (*fnToggle)(model::Model&);
        };
        static constexpr Switch aSwitches[] = {
            {"mnuToolbar", [](model::Model& model) { model.view.blnToolbar ^= true; }},
            {"mnuStatistics", [](model::Model& model) { model.view.blnStatistics ^= true; }},
            {"mnuNumberSelector", [](model::Model& model) { model.ToggleNumbers(); }},
            {"mnuCellErrors", [](model::Model& model) { model.ToggleErrors(); }},
            {"mnuFitWindow", [](model::Model& model) { model.blnFitted = true; }},
            {"mnuNormal", [](model::Model& model) { model.blnFitted = false; }},
        };
        const Switch& chosen = aSwitches[Draw(0, 5)];
        Choose(chosen.strEntry);
        chosen.fnToggle(model_);
    }

    void TryFinishedBoard() {
        PressDigit(Draw(1, 9));
        run_.ClickCell(Draw(1, 81), Chance(50) ? Qt::LeftButton : Qt::RightButton);
        QTest::mouseClick(&run_.Get(QStringLiteral("picButton3")), Qt::LeftButton);
        for (const Timer timer : {Timer::tmr, Timer::tmrCellWait, Timer::tmrCell})
            PassTime(timer, 2);
    }

    void SwitchSolutionView() {
        if (model_.strFinishButton.empty())
            return;
        QTest::mouseClick(&run_.Get(QStringLiteral("cmdFinished")), Qt::LeftButton);
        model_.ShowMistakes(model_.strFinishButton == "View Mistakes");
    }

    static model::Lines ListTopTen(const QWidget& window) {
        const auto& list = GetControl<QTreeWidget>(window, QStringLiteral("lvwTopTen"));
        model::Lines lines;
        for (int n = 0; n < list.topLevelItemCount(); ++n) {
            const QTreeWidgetItem& row = *list.topLevelItem(n);
            lines.push_back((row.text(0) + u' ' + row.text(1) + u' ' + row.text(2)).toStdString());
        }
        return lines;
    }

    void LookAtTopTen(QWidget& window) {
        model::Scores& scores = model_.scores;
        auto& cboLevel = GetControl<QComboBox>(window, QStringLiteral("cboLevel"));
        EXPECT_EQ(cboLevel.currentIndex() + 1, scores.GetFirstLevel()) << strMove_;
        for (int intTimes = 0; intTimes < 3; cboLevel.setCurrentIndex(Draw(0, 29)), ++intTimes)
            ExpectLines(ListTopTen(window), scores.List(cboLevel.currentIndex() + 1), "Top Ten");
        if (Chance(3)) {
            ThenPress("Reset Scores?", QMessageBox::Yes);
            GetControl<QPushButton>(window, QStringLiteral("cmdReset")).click();
            scores = {};
            ExpectLines(ListTopTen(window), {}, "Top Ten");
        }
        ExpectScores();
        if (scores.levels.at(1).front().strName == "(none)")
            FillScores();
    }

    /// Which of the empty cells it is, is chance.
    void TakeSolvedCell() {
        const Game& game = run_.game();
        for (const auto& [i, cell] : model_.game.cells)
            if (cell.GetShown() == 0 && game.cells[i].blnGiven)
                return model_.SolveCell(i);
        ADD_FAILURE() << strMove_ << ": no empty cell was solved";
    }

    void EnterName(QWidget& window, QLineEdit& txtName) {
        if (Chance(20)) {
            const bool blnLate = Chance(50);
            ThenPress("Enter your name?", blnLate ? QMessageBox::Yes : QMessageBox::No);
            QTest::keyClick(&window, Qt::Key_Return);
            if (!blnLate)
                return;
        }
        const std::string strName = DrawName();
        txtName.setText(QString::fromStdString(strName));
        if (Chance(10))
            return GetControl<QPushButton>(window, QStringLiteral("cmdCancel")).click();
        model_.scores.Insert(model_.game, strName);
        QTest::keyClick(&window, Qt::Key_Return);
    }

    /// Then comes the window at the end. The model makes its last move before or by the routine.
    void ThenEnd(const std::function<void()>& fnMove = [] {}) {
        ThenAtOnce([this, fnMove](QWidget& window) {
            fnMove();
            Compare();
            auto* const box = qobject_cast<QMessageBox*>(&window);
            auto* const txtName = window.findChild<QLineEdit*>(QStringLiteral("txtName"));
            const auto GetText = [&window](const char* strLabel) {
                return GetControl<QLabel>(window, QLatin1String(strLabel)).text();
            };
            const QString strText =
                box != nullptr ? box->text()
                               : GetText("lblCongratulations") + u'\n' + GetText("lblTime");
            EXPECT_EQ((window.windowTitle() + u'\n' + strText).toStdString(), model_.strEnding)
                << strMove_;
            if (txtName == nullptr)
                QTest::keyClick(&window, Qt::Key_Return);
            else
                EnterName(window, *txtName);
            ExpectScores();
            model_.Lock();
        });
    }

    /// To the second that just takes a place among the best times, or the one after the last of
    /// them.
    void AimAtScore() {
        const auto& level = model_.scores.levels.at(model_.game.intLevel);
        const bool blnLast = Chance(60);
        const int intPlace = blnLast ? 9 : Draw(0, 9);
        const int intTime = level.at(static_cast<std::size_t>(intPlace)).intTime;
        const int intTicks = intTime - model_.game.intSeconds + (blnLast && Chance(30) ? 1 : 0);
        if (intTicks < 400)
            PassTime(Timer::tmr, intTicks);
    }

    void LookAtWindow() {
        const bool blnPause = Chance(40);
        Then([this, blnPause](QWidget& window) {
            if (!blnPause)
                LookAtTopTen(window);
            window.close();
        });
        if (!blnPause)
            return Choose("mnuTopTen");
        model_.Pause();
        Choose("mnuPause");
        model_.Resume();
    }

    void SolveOneCell() {
        const bool blnYes = Chance(70);
        ThenPress("Solve One Cell?", blnYes ? QMessageBox::Yes : QMessageBox::No);
        Choose("mnuSolveCell");
        if (blnYes)
            TakeSolvedCell();
    }

    void EndGame() {
        if (Chance(15)) {
            ThenPress("Solve Puzzle?", QMessageBox::Yes);
            Choose("mnuSolve");
            return model_.SolveAll();
        }
        if (Chance(70))
            AimAtScore();
        const int i = DrawCell(&model::Cell::IsEmpty);
        const int intDigit = (GetCell(i).intSolution + (Chance(90) ? 8 : 0)) % 9 + 1;
        if (Chance(40) && ClickNumber(intDigit)) {
            ThenEnd();
            model_.Click(i);
            return run_.ClickCell(i);
        }
        if (Chance(60)) {
            ThenEnd();
            return Type(i, intDigit);
        }
        ThenPress("Solve One Cell?", QMessageBox::Yes);
        ThenEnd([this] { TakeSolvedCell(); });
        Choose("mnuSolveCell");
    }
};

} // namespace cellora
