#include "tests/soak/random_player.h"

#include <random>

#include "store/saved_game.h"
#include "tests/support/running_program.h"
#include "tests/support/view_text.h"
#include "ui/board/board_scene.h"
#include "ui/desktop/qt_desktop.h"

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

class RandomPlayer final {
public:
    RandomPlayer(RunningProgram& run, std::uint64_t lngSeed) : run_(run), random_(lngSeed) {}

    int PlayGame() {
        Make({"start a game", 0, &RandomPlayer::StartGame});
        // Some games are left behind.
        const int intMostMoves = Chance(15) ? Draw(5, 60) : 250;
        int intMove = 0;
        while (IsInPlay() && GetEmptyCells().size() > 3 && intMove++ < intMostMoves)
            Make(DrawMove());
        if (intMostMoves < 250)
            return intMoves_;
        while (IsInPlay() && GetEmptyCells().size() > 1)
            Make({"fill a cell", 0, &RandomPlayer::TypeSolution});
        if (IsInPlay())
            Make({"end the game", 0, &RandomPlayer::EndGame});
        Make({"switch the view", 0, &RandomPlayer::SwitchSolutionView});
        Make({"save the finished game", 0, &RandomPlayer::Save});
        CheckPaint(MakeView(run_.game()));
        return intMoves_;
    }

private:
    using Step = std::function<void(QWidget&)>;

    struct Move {
        const char* strName;
        int intWeight;
        void (RandomPlayer::*fnMake)();
    };

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
            {"open", 7, &RandomPlayer::Open},
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
        (this->*move.fnMake)();
        QCoreApplication::processEvents();
        EXPECT_TRUE(steps_.empty()) << move.strName << ": a window did not open";
        const View view = MakeView(run_.game());
        EXPECT_EQ(FindDifferences(run_, view), QStringList())
            << "after move " << intMoves_ << ", " << move.strName;
        if (++intMoves_ % 25 == 0)
            CheckPaint(view);
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
                << "painted wrongly after move " << intMoves_;
        }
        BoardScene fresh;
        fresh.Mirror(view.grid, view.picGrid.lngBackColor);
        EXPECT_EQ(DrawBoard(fresh), DrawBoard(*dynamic_cast<QGraphicsView&>(run_.grid()).scene()))
            << "the board is drawn wrongly after move " << intMoves_;
    }

    int Draw(int intLow, int intHigh) {
        return std::uniform_int_distribution(intLow, intHigh)(random_);
    }
    bool Chance(int intPercent) { return Draw(1, 100) <= intPercent; }
    bool IsInPlay() { return !testing::Test::HasFailure() && run_.grid().isEnabled(); }
    std::vector<int> GetEmptyCells() {
        std::vector<int> cells;
        for (int i = 1; i <= intCellCount; ++i) {
            if (run_.game().cells[i].GetShownText().empty())
                cells.push_back(i);
        }
        return cells;
    }
    int DrawEmptyCell() {
        const std::vector<int> cells = GetEmptyCells();
        return cells[std::uniform_int_distribution<std::size_t>(0, cells.size() - 1)(random_)];
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
        Then([strFile](QWidget& dialog) {
            auto& edit = GetControl<QLineEdit>(dialog, QStringLiteral("fileNameEdit"));
            edit.setText(QString::fromStdString(strFile));
            QTest::keyClick(&edit, Qt::Key_Return);
        });
    }
    void ExpectSaveQuestion() {
        if (run_.game().blnGameChanged)
            ThenPress("Save Game?", QMessageBox::No);
    }

    void Choose(const char* strEntry) { run_.Get<QAction>(QLatin1String(strEntry)).trigger(); }
    /// False where the row of numbers is hidden.
    bool ClickNumber(int intNumber, Qt::MouseButton button = Qt::LeftButton) {
        auto& control = run_.Get(QStringLiteral("picButton") + QString::number(intNumber));
        if (control.isVisible())
            QTest::mouseClick(&control, button);
        return control.isVisible();
    }

    void StartGame() {
        ExpectSaveQuestion();
        Then([intLevel = Draw(0, 29)](QWidget& dialog) {
            GetControl<QComboBox>(dialog, QStringLiteral("cboDifficulty"))
                .setCurrentIndex(intLevel);
            GetControl<QPushButton>(dialog, QStringLiteral("cmdOK")).click();
        });
        Choose("mnuNew");
        run_.Activate();
    }

    void TypeSolution() {
        const int i = DrawEmptyCell();
        run_.Enter(i, run_.GetSolution(i), Chance(50) ? Qt::KeypadModifier : Qt::NoModifier);
        EXPECT_FALSE(run_.game().cells[i].IsIncorrect());
    }

    void TypeWrongDigit() {
        const int i = DrawEmptyCell();
        run_.Enter(i, run_.GetSolution(i) % 9 + 1);
    }

    void ClickSolution() {
        const int i = DrawEmptyCell();
        if (!ClickNumber(run_.GetSolution(i)))
            return;
        run_.ClickCell(i);
        EXPECT_EQ(run_.game().cells[i].strEntry, run_.game().cells[i].strSolution);
    }

    void ClickAnyCell() { run_.ClickCell(Draw(1, intCellCount)); }

    void PressKey() {
        constexpr Qt::Key aKeys[] = {Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_Space, Qt::Key_Left,
                                     Qt::Key_Up,     Qt::Key_Right,     Qt::Key_Down,  Qt::Key_A};
        QTest::keyClick(&run_.grid(), aKeys[Draw(0, 7)]);
    }

    void EditNotes() {
        run_.ClickCell(DrawEmptyCell(), Qt::RightButton);
        auto& menu = run_.Get<QMenu>(QStringLiteral("mnuRightClick"));
        EXPECT_TRUE(menu.isVisible());
        if (Chance(80))
            QTest::keyClick(&menu, static_cast<Qt::Key>(Qt::Key_0 + Draw(1, 9)));
        else
            menu.actions()[Draw(0, static_cast<int>(menu.actions().size()) - 1)]->trigger();
        menu.close();
    }

    void UseNumber() {
        ClickNumber(Draw(1, intEraser), Chance(50) ? Qt::RightButton : Qt::LeftButton);
        auto& menu = run_.Get<QMenu>(QStringLiteral("mnuButton"));
        if (menu.isVisible())
            menu.actions().constFirst()->trigger();
        menu.close();
    }

    void PassTime() {
        const auto timer = static_cast<Timer>(Draw(0, 3));
        for (int i = Draw(1, 5); run_.program->desktop().IsTimerEnabled(timer) && i > 0; --i)
            emit run_.program->desktop().tick(timer);
    }

    void ToggleView() {
        constexpr const char* aEntries[] = {"mnuToolbar",    "mnuNumberSelector", "mnuStatistics",
                                            "mnuCellErrors", "mnuFitWindow",      "mnuNormal"};
        Choose(aEntries[Draw(0, 5)]);
    }

    void LookAtWindow() {
        constexpr const char* aEntries[] = {"mnuPause", "mnuTopTen", "mnuContents", "mnuAbout"};
        Then([](QWidget& window) { window.close(); });
        Choose(aEntries[Draw(0, 3)]);
    }

    void SolveOneCell() {
        ThenPress("Solve One Cell?", Chance(70) ? QMessageBox::Yes : QMessageBox::No);
        Choose("mnuSolveCell");
    }

    void Save() {
        const bool blnPick = run_.game().strGameFile.empty() || Chance(30);
        if (blnPick)
            ThenPickFile(run_.folder.Path("game-" + std::to_string(Draw(1, 4)) + ".clp"));
        Choose(blnPick ? "mnuSaveAs" : "mnuSave");
        saved_[run_.game().strGameFile] = TakeGame(run_.game());
    }

    void Open() {
        if (saved_.empty())
            return Save();
        ExpectSaveQuestion();
        const auto chosen = std::next(saved_.begin(), Draw(0, static_cast<int>(saved_.size()) - 1));
        ThenPickFile(chosen->first);
        Choose("mnuOpen");
        EXPECT_EQ(run_.game().strGameFile, chosen->first);
        // A finished game opens with its mistakes in view.
        EXPECT_TRUE(!IsInPlay() || TakeGame(run_.game()).cells == chosen->second.cells);
    }

    /// By the last cell, right or wrong, or by the computer.
    void EndGame() {
        if (Chance(15)) {
            ThenPress("Solve Puzzle?", QMessageBox::Yes);
            return Choose("mnuSolve");
        }
        Then([](QWidget& window) {
            if (auto* const txtName = window.findChild<QLineEdit*>(QStringLiteral("txtName")))
                txtName->setText(QStringLiteral("Player"));
            QTest::keyClick(&window, Qt::Key_Return);
        });
        Chance(70) ? TypeSolution() : TypeWrongDigit();
    }

    void SwitchSolutionView() {
        if (auto& cmdFinished = run_.Get(QStringLiteral("cmdFinished")); cmdFinished.isVisible())
            QTest::mouseClick(&cmdFinished, Qt::LeftButton);
    }

    RunningProgram& run_;
    std::mt19937_64 random_;
    std::deque<Step> steps_;
    ModalWatch watch_{[this](QWidget& window) {
        const Step fnStep = steps_.empty() ? [](QWidget&) {} : std::move(steps_.front());
        if (!steps_.empty())
            steps_.pop_front();
        fnStep(window);
    }};
    std::map<std::string, SavedGame> saved_; ///< by their files
    int intMoves_ = 0;
};

} // namespace

std::function<int()> MakeRandomPlayer(RunningProgram& run, std::uint64_t lngSeed) {
    return [player = std::make_shared<RandomPlayer>(run, lngSeed)] { return player->PlayGame(); };
}

} // namespace cellora
