#include "tests/soak/random_player.h"

#include <random>

#include "tests/soak/model.h"
#include "tests/support/running_program.h"
#include "tests/support/view_text.h"
#include "ui/board/board_scene.h"
#include "ui/desktop/qt_desktop.h"
#include "ui/dialogs/frmSplash.h"

namespace cellora {

namespace {

QImage GetImage(const QPixmap& pixmap) {
    return pixmap.toImage().convertToFormat(QImage::Format_RGB32);
}

QImage DrawBoard(QGraphicsScene& scene) {
    QImage image(449, 449, QImage::Format_RGB32);
    QPainter painter(&image);
    scene.render(&painter, image.rect(), scene.sceneRect());
    return image;
}

/// What a cell must be called.
QString GetCellName(const View& view, int intCell) {
    const CellView& cell = view.grid.cells[intCell];
    const bool blnGiven = cell.lblSolution.blnVisible;
    const std::string& strDigit = (blnGiven ? cell.lblSolution : cell.lblCell).strCaption;
    const QString strNotes = QString::fromStdString(cell.lblCandidate.strCaption).trimmed();
    const QString strPlace =
        QStringLiteral("Row %1, column %2: ").arg(GetRow(intCell) + 1).arg(GetColumn(intCell) + 1);
    if (view.grid.blnPaused)
        return strPlace + QStringLiteral("hidden");
    return strPlace + QLatin1String(blnGiven ? "given " : "") +
           QString::fromStdString(strDigit.empty() ? "empty" : strDigit) +
           QLatin1String(cell.shpWCell ? ", incorrect" : "") +
           (strNotes.isEmpty() ? QString() : QLatin1String(", notes ") + strNotes);
}

/// The elements that show something else than the view says.
QStringList FindDifferences(RunningProgram& run, const View& view) {
    QStringList differences;
    const auto Compare = [&](const QString& strWhat, const auto& shown, const auto& told) {
        if (shown != told)
            differences << strWhat;
    };
    const auto IsTold = [lines = Describe(view)](std::size_t intLine, const QString& strName) {
        return QString::fromStdString(lines[intLine]).split(u' ').contains(strName);
    };
    for (const QAction* const action : run.window().findChildren<QAction*>()) {
        const QString strName = action->objectName();
        if (strName.isEmpty() || action->isSeparator() || !action->isVisible())
            continue;
        Compare(strName + u'?', action->isEnabled(), !IsTold(1, strName));
        Compare(strName, action->isChecked(), IsTold(2, strName));
    }
    for (const auto& strPane :
         {QStringLiteral("picGrid"), QStringLiteral("picButtons"), QStringLiteral("picStatistics")})
        Compare(strPane, run.Get(strPane).isVisible(), IsTold(0, strPane));
    Compare(QStringLiteral("picGrid?"), run.grid().isEnabled(), view.picGrid.blnEnabled);
    const StatisticsView& texts = view.statistics;
    const std::string* const aTexts[] = {&texts.lblTime,         &texts.lblLevel,
                                         &texts.lblVisibleCells, &texts.lblSolvedByYou,
                                         &texts.lblCellsToSolve, &texts.lblIncorrectCells};
    const auto labels = QStringLiteral("lblTime lblLevel lblVisibleCells lblSolvedByYou "
                                       "lblCellsToSolve lblIncorrectCells")
                            .split(u' ');
    for (int i = 0; i < 6; ++i)
        Compare(labels[i], run.Get<QLabel>(labels[i]).text().toStdString(), *aTexts[i]);
    QAccessibleInterface* const grid = QAccessible::queryAccessibleInterface(&run.grid());
    for (int i = 1; i <= intCellCount; ++i)
        Compare(GetCellName(view, i), grid->child(i - 1)->text(QAccessible::Name),
                GetCellName(view, i));
    return differences;
}

/// A text file of the game's line by line.
model::Lines ReadLines(const std::string& strFile) {
    std::ifstream file(strFile, std::ios::binary);
    model::Lines lines;
    for (std::string strLine; std::getline(file, strLine, '\n'); lines.push_back(strLine))
        if (strLine.ends_with('\r'))
            strLine.pop_back();
    return lines;
}

void WriteLines(const std::string& strFile, const model::Lines& lines) {
    std::ofstream file(strFile, std::ios::binary);
    for (const std::string& strLine : lines)
        file << strLine << "\r\n";
}

/// Fails where the program's lines are not those of the model.
void ExpectLines(const model::Lines& shown, const model::Lines& told, const std::string& strWhere) {
    EXPECT_EQ(shown.size(), told.size()) << strWhere;
    for (std::size_t n = 0; n < std::min(shown.size(), told.size()); ++n)
        EXPECT_EQ(shown[n], told[n]) << strWhere << ", line " << n + 1;
}

class RandomPlayer final {
public:
    RandomPlayer(RunningProgram& run, std::uint64_t lngSeed) : run_(run), random_(lngSeed) {
        run_.WriteSettings();
        for (int intLevel = 1; intLevel <= 30; ++intLevel)
            for (int intScores = Draw(0, 10); intScores > 0; --intScores)
                model_.scores.Insert(intLevel, Draw(1, 400), DrawName());
        WriteLines(strScoresFile_, model_.scores.Write());
    }

    Played PlayGame(bool blnLeave) {
        if (run_.program == nullptr)
            Begin();
        PlayMoves();
        if (blnLeave && !testing::Test::HasFailure()) {
            ExpectSaveQuestion(QMessageBox::No);
            GoAway();
            run_.program.reset();
        }
        return played_;
    }

private:
    using Step = std::function<void(QWidget&)>;

    struct Move {
        const char* strName;
        int intWeight;
        void (RandomPlayer::*fnMake)();
    };

    void PlayMoves() {
        Make({"start a game", 0, &RandomPlayer::StartGame});
        // Some games are left behind.
        const int intMostMoves = Chance(15) ? Draw(5, 60) : 250;
        int intMove = 0;
        while (IsInPlay() && model_.GetEmptyCells().size() > 3 && intMove++ < intMostMoves)
            Make(DrawMove());
        if (intMostMoves < 250)
            return;
        while (IsInPlay() && model_.GetEmptyCells().size() > 1)
            Make({"fill a cell", 0, &RandomPlayer::TypeSolution});
        for (const bool blnCareful = Chance(70); blnCareful && IsInPlay() && FindWrongCell() != 0;)
            Make({"correct a cell", 0, &RandomPlayer::CorrectCell});
        if (IsInPlay())
            Make({"end the game", 0, &RandomPlayer::EndGame});
        for (int intTimes = Draw(0, 3); intTimes > 0; --intTimes)
            Make({"switch the view", 0, &RandomPlayer::SwitchSolutionView});
        if (model_.blnFinished)
            Make({"save the finished game", 0, &RandomPlayer::Save});
        CheckPaint(MakeView(run_.game()));
    }

    const Move& DrawMove() {
        static const std::vector<Move> moves = {
            {"type a right digit", 200, &RandomPlayer::TypeSolution},
            {"click a right digit", 200, &RandomPlayer::ClickSolution},
            {"type a wrong digit", 40, &RandomPlayer::TypeWrongDigit},
            {"click any cell", 40, &RandomPlayer::ClickAnyCell},
            {"press a key", 90, &RandomPlayer::PressKey},
            {"edit notes", 80, &RandomPlayer::EditNotes},
            {"use a number", 60, &RandomPlayer::UseNumber},
            {"pass time", 90, &RandomPlayer::PassTime},
            {"toggle the view", 48, &RandomPlayer::ToggleView},
            {"look at a window", 18, &RandomPlayer::LookAtWindow},
            {"solve one cell", 15, &RandomPlayer::SolveOneCell},
            {"save", 15, &RandomPlayer::Save},
            {"open", 9, &RandomPlayer::Open},
            {"leave the program", 4, &RandomPlayer::Leave},
            {"kill the program", 4, &RandomPlayer::Kill},
        };
        int intDrawn = Draw(1, 1000);
        for (const Move& move : moves) {
            intDrawn -= move.intWeight;
            if (intDrawn <= 0)
                return move;
        }
        return moves[0];
    }

    void Make(const Move& move) {
        if (testing::Test::HasFailure())
            return;
        strMove_ = Text("after move ", ++played_.intMoves, ", ", move.strName);
        (this->*move.fnMake)();
        QCoreApplication::processEvents();
        EXPECT_TRUE(steps_.empty()) << strMove_ << ": a window did not open";
        Compare();
        if (played_.intMoves % 25 == 0)
            CheckPaint(MakeView(run_.game()));
    }

    /// The program and its model must show the same.
    void Compare() {
        const View view = MakeView(run_.game());
        model::Lines lines = Describe(view);
        if (model_.blnPaused)
            lines.erase(lines.begin() + 14, lines.begin() + 16);
        ExpectLines(lines, model_.Describe(), strMove_);
        EXPECT_EQ(FindDifferences(run_, view), QStringList()) << strMove_;
        EXPECT_EQ(run_.program->desktop().IsTimerEnabled(Timer::tmr), model_.blnClockOn)
            << strMove_ << ": the clock";
    }

    /// What was drawn piece by piece must be what is drawn afresh.
    void CheckPaint(const View& view) {
        for (int intRound = 0; intRound < 3; ++intRound) // a painting may ask for another
            QCoreApplication::processEvents();
        QWidget& window = run_.window();
        // Wayland shows its screen to no program.
        if (QGuiApplication::platformName() != QLatin1String("wayland")) {
            EXPECT_EQ(GetImage(window.screen()->grabWindow(window.winId())),
                      GetImage(window.grab()))
                << "painted wrongly " << strMove_;
        }
        BoardScene fresh;
        fresh.Mirror(view.grid, view.picGrid.lngBackColor);
        EXPECT_EQ(DrawBoard(fresh), DrawBoard(*dynamic_cast<QGraphicsView&>(run_.grid()).scene()))
            << "the board is drawn wrongly " << strMove_;
    }

    int Draw(int intLow, int intHigh) {
        return std::uniform_int_distribution(intLow, intHigh)(random_);
    }
    bool Chance(int intPercent) { return Draw(1, 100) <= intPercent; }
    std::string DrawName() {
        constexpr const char* aNames[] = {"Ann", " Bo, jr. ", "(none)", " ", "Cleo", "Dee"};
        return aNames[Draw(0, 5)];
    }
    bool IsInPlay() { return !testing::Test::HasFailure() && model_.IsInPlay(); }
    const model::Cell& GetCell(int i) { return model_.game.cells[static_cast<std::size_t>(i)]; }
    int DrawEmptyCell() {
        const std::vector<int> cells = model_.GetEmptyCells();
        return cells[std::uniform_int_distribution<std::size_t>(0, cells.size() - 1)(random_)];
    }
    /// 0 for none.
    int FindWrongCell() {
        for (int i = 1; i <= 81; ++i)
            if (GetCell(i).IsWrong())
                return i;
        return 0;
    }

    /// Starts the program; the steps wait for the windows of the start.
    void Begin() {
        run_.Launch();
        QObject::connect(&run_.program->desktop(), &QtDesktop::tick, [this](Timer timer) {
            if (timer == Timer::tmr)
                model_.TickClock();
            if (timer == Timer::tmrCell)
                model_.ThinCursor();
        });
        frmSplash& splash = *run_.program->splash();
        run_.game().lngRandomState = random_();
        for (QTimer* const timer : {&splash.tmrSplash(), &splash.tmrSplash2()})
            QMetaObject::invokeMethod(timer, "timeout");
        run_.Activate();
    }

    /// What is done in the next modal window.
    void Then(Step fnStep) { steps_.push_back(std::move(fnStep)); }
    void ThenPress(const char* strTitle, QMessageBox::StandardButton button) {
        Then([strTitle, button](QWidget& window) {
            EXPECT_EQ(window.windowTitle().toStdString(), strTitle);
            if (auto* const box = qobject_cast<QMessageBox*>(&window))
                QTest::mouseClick(box->button(button), Qt::LeftButton);
        });
    }
    void ThenPickFile(const std::string& strFile) {
        Then([this, strFile](QWidget& dialog) {
            auto& edit = GetControl<QLineEdit>(dialog, QStringLiteral("fileNameEdit"));
            edit.setText(QString::fromStdString(strFile));
            QTest::keyClick(&edit, Qt::Key_Return);
            ++played_.intFileDialogs;
        });
    }
    /// Where the game has changes a question is asked, and asked only there.
    void ExpectSaveQuestion(QMessageBox::StandardButton button) {
        if (!model_.blnChanged)
            return;
        ThenPress("Save Game?", button);
        if (button == QMessageBox::Yes && model_.strFile.empty())
            ThenPickFile(DrawFile());
    }
    /// To be called once the answer has been given.
    void TakeAnswer(QMessageBox::StandardButton button) {
        if (model_.blnChanged && button == QMessageBox::Yes)
            TakeSaved();
    }
    std::string DrawFile() {
        return strPicked_ = run_.folder.Path(Text("game-", Draw(1, 4), ".clp"));
    }
    /// The game has just been written.
    void TakeSaved() {
        if (!strPicked_.empty())
            model_.strFile = strPicked_;
        strPicked_.clear();
        model_.blnChanged = false;
        saved_[model_.strFile] = model_.game;
        ExpectLines(ReadLines(model_.strFile), model_.game.Write(), strMove_ + ": saved game");
    }

    void Choose(const char* strEntry) { run_.Get<QAction>(QLatin1String(strEntry)).trigger(); }
    /// False where the row of numbers is hidden.
    bool ClickNumber(int intNumber, Qt::MouseButton button = Qt::LeftButton) {
        if (!model_.view.blnNumbers)
            return false;
        QTest::mouseClick(&run_.Get(QStringLiteral("picButton") + QString::number(intNumber)),
                          button);
        model_.SelectNumber(intNumber);
        return true;
    }
    void PressArrow(int intDown, int intRight) {
        QTest::keyClick(&run_.grid(), intDown < 0    ? Qt::Key_Up
                                      : intDown > 0  ? Qt::Key_Down
                                      : intRight < 0 ? Qt::Key_Left
                                                     : Qt::Key_Right);
        model_.Arrow(intDown, intRight);
    }
    /// By the arrows, now and then round the edge.
    void MoveTo(int intCell) {
        const int intDown = Chance(50) ? 1 : -1;
        const int intRight = Chance(50) ? 1 : -1;
        while ((model_.intCursor - 1) / 9 != (intCell - 1) / 9)
            PressArrow(intDown, 0);
        while (model_.intCursor != intCell)
            PressArrow(0, intRight);
    }
    void Type(int intCell, int intDigit) {
        MoveTo(intCell);
        QTest::keyClick(&run_.grid(), static_cast<Qt::Key>(Qt::Key_0 + intDigit),
                        Chance(50) ? Qt::KeypadModifier : Qt::NoModifier);
        if (model_.IsInPlay()) // else the window at its end has told the model
            model_.Type(intDigit);
    }

    void StartGame() {
        const auto answer = Chance(30) ? QMessageBox::Yes : QMessageBox::No;
        ExpectSaveQuestion(answer);
        Then([this, answer, intLevel = Draw(1, 30)](QWidget& dialog) {
            TakeAnswer(answer);
            GetControl<QComboBox>(dialog, QStringLiteral("cboDifficulty"))
                .setCurrentIndex(intLevel - 1);
            GetControl<QPushButton>(dialog, QStringLiteral("cmdOK")).click();
            TakePuzzle(intLevel);
        });
        Choose("mnuNew");
        run_.Activate();
    }
    /// Solution and clues are chance; a solution has each digit once wherever the rules say so.
    void TakePuzzle(int intLevel) {
        model::Cells cells;
        std::set<std::string> places;
        std::size_t intClues = 0;
        for (int i = 1; i <= 81; ++i) {
            model::Cell& cell = cells[static_cast<std::size_t>(i)];
            cell.intSolution = run_.GetSolution(i);
            cell.blnGiven = run_.game().cells[i].blnGiven;
            intClues += cell.blnGiven ? 1 : 0;
            const int intRow = (i - 1) / 9;
            const int intColumn = (i - 1) % 9;
            places.insert({Text("row ", intRow, ' ', cell.intSolution),
                           Text("column ", intColumn, ' ', cell.intSolution),
                           Text("region ", intRow / 3, intColumn / 3, ' ', cell.intSolution)});
        }
        EXPECT_EQ(places.size(), 3U * 81U) << "no solution";
        EXPECT_EQ(intClues, static_cast<std::size_t>(50 - intLevel));
        model_.Start(intLevel, cells);
    }

    void TypeSolution() {
        const int i = DrawEmptyCell();
        Type(i, GetCell(i).intSolution);
    }

    void TypeWrongDigit() {
        const int i = DrawEmptyCell();
        Type(i, GetCell(i).intSolution % 9 + 1);
    }

    void CorrectCell() {
        const int i = FindWrongCell();
        Type(i, GetCell(i).intSolution);
    }

    void ClickSolution() {
        const int i = DrawEmptyCell();
        if (ClickNumber(GetCell(i).intSolution))
            ClickCell(i, Qt::LeftButton);
    }

    void ClickAnyCell() { ClickCell(Draw(1, 81), Chance(80) ? Qt::LeftButton : Qt::MiddleButton); }
    void ClickCell(int intCell, Qt::MouseButton button) {
        run_.ClickCell(intCell, button);
        if (model_.IsInPlay())
            model_.Click(intCell);
    }

    void PressKey() {
        constexpr Qt::Key aKeys[] = {Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_Space, Qt::Key_A};
        const int intKey = Draw(0, 7);
        if (intKey > 3)
            return PressArrow(intKey < 6 ? intKey * 2 - 9 : 0, intKey < 6 ? 0 : intKey * 2 - 13);
        QTest::keyClick(&run_.grid(), aKeys[intKey]);
        intKey < 3 ? model_.Clear() : model_.PressOtherKey();
    }

    void EditNotes() {
        const int i = Draw(1, 81);
        run_.ClickCell(i, Qt::RightButton);
        model_.MoveTo(i);
        auto& menu = run_.Get<QMenu>(QStringLiteral("mnuRightClick"));
        EXPECT_EQ(menu.isVisible(), !GetCell(i).blnGiven) << strMove_;
        // Several at once, so that cells fill up.
        for (int intTimes = Draw(1, 3); menu.isVisible() && intTimes > 0; --intTimes) {
            EXPECT_EQ(GetEntries(menu), model_.GetPopup()) << strMove_;
            UsePopup(menu);
            if (intTimes > 1)
                run_.ClickCell(i, Qt::RightButton), model_.MoveTo(i);
        }
        menu.close();
    }
    void UsePopup(QMenu& menu) {
        if (Chance(80)) {
            const int intDigit = Draw(1, 9);
            QTest::keyClick(&menu, static_cast<Qt::Key>(Qt::Key_0 + intDigit));
            model_.Note(intDigit);
            menu.close();
            return;
        }
        QAction& entry = *menu.actions()[Draw(0, static_cast<int>(menu.actions().size()) - 1)];
        if (entry.isSeparator() || !entry.isVisible() || !entry.isEnabled())
            return menu.close(), void();
        const int intDigit = entry.text().front().digitValue();
        entry.trigger();
        menu.close();
        intDigit < 0 ? model_.RemoveNotes() : model_.Note(intDigit);
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

    void UseNumber() {
        const int intNumber = Draw(1, 10);
        const bool blnMenu = Chance(50);
        if (!ClickNumber(intNumber, blnMenu ? Qt::RightButton : Qt::LeftButton) || !blnMenu)
            return;
        auto& menu = run_.Get<QMenu>(QStringLiteral("mnuButton"));
        EXPECT_TRUE(menu.isVisible()) << strMove_;
        menu.actions().constFirst()->trigger();
        model_.ToggleHighlight();
        menu.close();
    }

    void PassTime() {
        const auto timer = static_cast<Timer>(Draw(0, 3));
        PassTime(timer, timer == Timer::tmr ? Draw(1, 70) : Draw(1, 5));
    }
    void PassTime(Timer timer, int intTicks) {
        for (; run_.program->desktop().IsTimerEnabled(timer) && intTicks > 0; --intTicks)
            emit run_.program->desktop().tick(timer);
    }

    void ToggleView() {
        struct Switch {
            const char* strEntry;
            void (*fnToggle)(model::Model&);
        };
        static constexpr Switch aSwitches[] = {
            {"mnuToolbar", [](model::Model& model) { model.view.blnToolbar ^= true; }},
            {"mnuStatusBar", [](model::Model& model) { model.view.blnStatusBar ^= true; }},
            {"mnuStatistics", [](model::Model& model) { model.view.blnStatistics ^= true; }},
            {"mnuNumberSelector", [](model::Model& model) { model.ToggleNumbers(); }},
            {"mnuCellErrors", [](model::Model& model) { model.ToggleErrors(); }},
            {"mnuFitWindow", [](model::Model& model) { model.blnFitted = true; }},
            {"mnuNormal", [](model::Model& model) { model.blnFitted = false; }},
        };
        const Switch& chosen = aSwitches[Draw(0, 6)];
        Choose(chosen.strEntry);
        chosen.fnToggle(model_);
    }

    void LookAtWindow() {
        constexpr const char* aEntries[] = {"mnuPause", "mnuTopTen", "mnuContents", "mnuAbout"};
        constexpr void (RandomPlayer::*aLooks[])(QWidget&) = {
            &RandomPlayer::LookAtPause, &RandomPlayer::LookAtTopTen, &RandomPlayer::Close,
            &RandomPlayer::Close};
        const int intWindow = Draw(0, 3);
        Then([this, fnLook = aLooks[intWindow]](QWidget& window) { (this->*fnLook)(window); });
        Choose(aEntries[intWindow]);
        if (model_.blnPaused)
            model_.Resume();
    }
    void Close(QWidget& window) { window.close(); }
    void LookAtPause(QWidget& window) {
        model_.Pause();
        Compare();
        window.close();
    }
    void LookAtTopTen(QWidget& window) {
        auto& cboLevel = GetControl<QComboBox>(window, QStringLiteral("cboLevel"));
        EXPECT_EQ(cboLevel.currentIndex() + 1, model_.scores.GetFirstLevel()) << strMove_;
        for (int intTimes = 0; intTimes < 3; cboLevel.setCurrentIndex(Draw(0, 29)), ++intTimes)
            ExpectLines(ListTopTen(window), model_.scores.List(cboLevel.currentIndex() + 1),
                        strMove_);
        if (Chance(5)) {
            ThenPress("Reset Scores?", QMessageBox::Yes);
            GetControl<QPushButton>(window, QStringLiteral("cmdReset")).click();
            model_.scores = {};
            ExpectLines(ListTopTen(window), {}, strMove_);
        }
        window.close();
        ExpectScores();
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
    void ExpectScores() {
        ExpectLines(ReadLines(strScoresFile_), model_.scores.Write(), strMove_ + ": best times");
    }

    void SolveOneCell() {
        const bool blnYes = Chance(70);
        ThenPress("Solve One Cell?", blnYes ? QMessageBox::Yes : QMessageBox::No);
        Choose("mnuSolveCell");
        if (blnYes && model_.IsInPlay())
            TakeSolvedCell();
    }
    /// Which of the empty cells it is, is chance.
    void TakeSolvedCell() {
        for (const int i : model_.GetEmptyCells())
            if (run_.game().cells[i].blnGiven)
                return model_.SolveCell(i);
        ADD_FAILURE() << strMove_ << ": no empty cell was solved";
    }

    void Save() {
        const bool blnAs = Chance(30);
        if (blnAs || model_.strFile.empty())
            ThenPickFile(DrawFile());
        Choose(blnAs ? "mnuSaveAs" : "mnuSave");
        TakeSaved();
    }

    void Open() {
        if (saved_.empty())
            return Save();
        const auto answer = Chance(30) ? QMessageBox::Yes : QMessageBox::No;
        ExpectSaveQuestion(answer);
        auto chosen = std::next(saved_.begin(), Draw(0, static_cast<int>(saved_.size()) - 1));
        Then([this, answer, chosen](QWidget& dialog) {
            TakeAnswer(answer);
            // Somebody else may have played it for just under an hour.
            if (Chance(30)) {
                chosen->second.intSeconds = 3600 * Draw(1, 101) - Draw(1, 99);
                WriteLines(chosen->first, chosen->second.Write());
            }
            ThenPickFile(chosen->first);
            steps_.back()(dialog);
            steps_.pop_back();
        });
        Choose("mnuOpen");
        model_.strFile = chosen->first;
        model_.Open(chosen->second);
    }

    void Leave() {
        constexpr QMessageBox::StandardButton aAnswers[] = {QMessageBox::Yes, QMessageBox::No,
                                                            QMessageBox::Cancel};
        const auto answer = aAnswers[Draw(0, 2)];
        const bool blnStay = model_.blnChanged && answer == QMessageBox::Cancel;
        ExpectSaveQuestion(answer);
        if (blnStay)
            return Choose("mnuExit");
        GoAway(answer);
        Begin();
    }
    void GoAway(QMessageBox::StandardButton answer = QMessageBox::No) {
        Choose("mnuExit");
        TakeAnswer(answer);
        EXPECT_FALSE(run_.window().isVisible()) << strMove_;
        model_.stored = model_.view;
        model_.Restart();
    }

    void Kill() {
        // A change is kept a second after it was made, the clock at every tenth second.
        PassTime(Timer::tmrRecovery, 1);
        model::Position kept = model_.game;
        const std::string strFile = model_.strFile;
        const bool blnRestore = Chance(80);
        ThenPress("Restore Game?", blnRestore ? QMessageBox::Yes : QMessageBox::No);
        model_.Restart();
        Begin();
        if (!blnRestore)
            return;
        const Game& game = run_.game();
        const int intNow = game.lngHours * 3600 + game.lngMinutes * 60 + game.lngSeconds;
        const int intLost = kept.intSeconds + model_.game.intSeconds - intNow;
        EXPECT_TRUE(intLost >= 0 && intLost < 10) << strMove_ << ": " << intLost << " s lost";
        kept.intSeconds = intNow;
        model_.Open(kept);
        model_.strFile = strFile;
        model_.blnChanged = true;
    }

    /// By the last cell, right or wrong, or by the computer.
    void EndGame() {
        if (Chance(10)) {
            ThenPress("Solve Puzzle?", QMessageBox::Yes);
            Choose("mnuSolve");
            return model_.SolveAll();
        }
        // As good as somebody else, now and then.
        const int intOther = model_.scores
                                 .levels[static_cast<std::size_t>(model_.game.intLevel)]
                                        [static_cast<std::size_t>(Draw(1, 10))]
                                 .GetTime();
        if (const int intTicks = intOther - model_.game.intSeconds; intTicks < 300 && Chance(50))
            PassTime(Timer::tmr, std::max(intTicks, 0));
        const int i = DrawEmptyCell();
        const int intDigit = Chance(80) ? GetCell(i).intSolution : GetCell(i).intSolution % 9 + 1;
        if (Chance(15)) {
            ThenPress("Solve One Cell?", QMessageBox::Yes);
            ThenEnd([this] { TakeSolvedCell(); });
            Choose("mnuSolveCell");
        } else if (model_.view.blnNumbers && Chance(50)) {
            ClickNumber(intDigit);
            ThenEnd([this, i] { model_.Click(i); });
            ClickCell(i, Qt::LeftButton);
        } else {
            MoveTo(i);
            ThenEnd([this, intDigit] { model_.Type(intDigit); });
            Type(i, intDigit);
        }
        ExpectScores();
    }

    /// The window at the end, once the model has made the last move as well.
    void ThenEnd(std::function<void()> fnMove) {
        Then([this, fnMove](QWidget& window) {
            fnMove();
            auto* const box = qobject_cast<QMessageBox*>(&window);
            auto* const txtName = window.findChild<QLineEdit*>(QStringLiteral("txtName"));
            const auto GetText = [&window](const char* strLabel) {
                return GetControl<QLabel>(window, QLatin1String(strLabel)).text();
            };
            const QString strText =
                box != nullptr ? box->text()
                               : GetText("lblCongratulations") + u'\n' + GetText("lblTime");
            const auto told = model_.ending.value_or(model::Ending{});
            EXPECT_EQ(window.windowTitle().toStdString(), told.strTitle) << strMove_;
            EXPECT_EQ(strText.toStdString(), told.strText) << strMove_;
            if (txtName != nullptr)
                EnterName(*txtName);
            QTest::keyClick(&window, Qt::Key_Return);
        });
    }
    void EnterName(QLineEdit& txtName) {
        if (Chance(10))
            return ThenPress("Enter your name?", QMessageBox::No);
        const std::string strName = DrawName();
        txtName.setText(QString::fromStdString(strName));
        model_.scores.Insert(model_.game.intLevel, model_.game.intSeconds, strName);
    }

    void SwitchSolutionView() {
        auto& cmdFinished = run_.Get(QStringLiteral("cmdFinished"));
        if (!model_.blnFinishButton || !cmdFinished.isVisible())
            return;
        QTest::mouseClick(&cmdFinished, Qt::LeftButton);
        model_.ToggleFinished();
    }

    RunningProgram& run_;
    std::mt19937_64 random_;
    model::Model model_;
    std::deque<Step> steps_;
    ModalWatch watch_{[this](QWidget& window) {
        const Step fnStep = steps_.empty() ? [](QWidget&) {} : std::move(steps_.front());
        if (!steps_.empty())
            steps_.pop_front();
        fnStep(window);
    }};
    std::map<std::string, model::Position> saved_; ///< by their files
    std::string strPicked_;                        ///< in the file dialog
    std::string strScoresFile_ = run_.folder.Path("hof.clh");
    std::string strMove_; ///< the last, in words
    Played played_;
};

} // namespace

std::function<Played(bool)> MakeRandomPlayer(RunningProgram& run, std::uint64_t lngSeed) {
    return [player = std::make_shared<RandomPlayer>(run, lngSeed)](bool blnLeave) {
        return player->PlayGame(blnLeave);
    };
}

} // namespace cellora
