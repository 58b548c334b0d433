#pragma once

#include <deque>
#include <random>

#include "tests/soak/model.h"
#include "tests/support/running_program.h"
#include "tests/support/view_text.h"
#include "ui/board/board_scene.h"
#include "ui/desktop/qt_desktop.h"
#include "ui/dialogs/frmSplash.h"

namespace cellora {

inline constexpr const char* strColors =
    "colours: 16777215 14674156 16777215 14674156 14545143 3944482 0 0 0; "
    "3154975 given, 10702622 entered, 10702622 noted";

inline const char* If(bool blnHolds, const char* strNames) {
    return blnHolds ? strNames : "";
}

inline std::string Digit(int intDigit) {
    return intDigit == 0 ? "" : std::to_string(intDigit);
}

inline std::string DescribeCell(const model::Model& model, const model::Cell& cell) {
    const bool blnPaused = model.phase == model::Phase::Paused;
    const std::string strEntry = Digit(cell.intEntry);
    const bool blnLit = model.intHighlight != 0 && cell.GetShown() == model.intHighlight;
    return Text(' ', Digit(cell.intSolution), cell.blnGiven ? '!' : ':',
                cell.blnEntryShown ? strEntry : '(' + strEntry + ')',
                cell.strNotes.empty() ? "" : '{' + cell.strNotes + '}',
                If(model.IsMarked(cell) && !blnPaused, "x12568313/0"),
                If(blnLit && !blnPaused, "*"));
}

/// All that is seen, in the lines of tests/support/view_text.h; but for outlines and colours while
/// the game is paused.
inline model::Lines Describe(const model::Model& model) {
    const bool blnGame = model.phase != model::Phase::None;
    const bool blnPaused = model.phase == model::Phase::Paused;
    const bool blnDigit = model.IsDigitSelected();
    const model::Switches& view = model.view;
    model::Lines lines = {
        Text("shown:", If(blnGame, " picGrid"),
             If(view.blnNumbers && blnGame && !blnPaused, " picButtons"),
             If(view.blnStatistics && blnGame, " picStatistics"), If(view.blnToolbar, " toolbar"),
             " statusbar", If(!model.strFinishButton.empty(), " cmdFinished"),
             If(blnPaused, " paused")),
        Text("disabled:", If(model.phase == model::Phase::Finished, " picGrid picButtons"),
             If(blnPaused, " toolbar"),
             If(!blnGame, " mnuPrint mnuSave mnuSaveAs mnuNormal mnuFitWindow mnuStatistics"),
             If(!model.IsInPlay(), " mnuSolveCell mnuCellErrors"),
             If(!blnGame, " mnuNumberSelector"), If(!model.IsInPlay(), " mnuSolve mnuPause"),
             If(!blnDigit, " mnuHighlight")),
        Text("ticked:", model.blnFitted ? " mnuFitWindow" : " mnuNormal",
             If(view.blnToolbar, " mnuToolbar"), " mnuStatusBar",
             If(view.blnStatistics, " mnuStatistics"), If(view.blnErrors, " mnuCellErrors"),
             If(view.blnNumbers, " mnuNumberSelector"),
             If(blnDigit && model.intHighlight == model.intSelected, " mnuHighlight")),
        "cmdFinished: " + (model.strFinishButton.empty() ? "View Mistakes" : model.strFinishButton),
        Text("statistics: ", model.game.GetTime(), " | ", model.game.GetLevelName(), " | ",
             model.game.intPreSolved, " given | ", model.game.intSolvedByYou, " by you | ",
             model.game.intRemaining, " to solve | ", model.game.strIncorrect, " wrong")};
    int intTakingClicks = 0;
    for (int i = 1; i <= 81; ++i) {
        const model::Cell cell = blnGame ? model.game.cells.at(i) : model::Cell();
        if (i % 9 == 1)
            lines.push_back(Text("row ", i / 9 + 1, ':'));
        lines.back() += DescribeCell(model, cell);
        intTakingClicks +=
            model.phase == model::Phase::Playing && view.blnNumbers && !cell.blnGiven ? 1 : 0;
    }
    if (!blnPaused) {
        const bool blnOutlined =
            model.intOutlined != 0 && (model.intWidth != 1 || model.blnCursorColor);
        lines.push_back(Text("outlines:",
                             blnOutlined ? Text(' ', model.intOutlined, '/', model.intWidth, '/',
                                                model.blnCursorColor ? 7239183 : 3944482)
                                         : "",
                             ", top ", model.intOutlined, ", cursor ", model.intCursor,
                             ", pointer ", model.intPointer));
        lines.emplace_back(strColors);
    }
    lines.push_back(Text("cells that take a click: ", intTakingClicks));
    lines.emplace_back("buttons:");
    for (int n = 1; n <= 10; ++n)
        lines.back() += Text(' ', n, If(model.framed.contains(n), "[]"),
                             If(model.shaded.contains(n), "#"), If(n == model.intSelected, "<"));
    lines.push_back("popup: " + model.GetPopup());
    return lines;
}

/// What assistive technology must call a cell.
inline std::string GetCellName(const model::Model& model, int intCell) {
    const model::Cell& cell = model.game.cells.at(intCell);
    const std::string strPlace =
        Text("Row ", (intCell - 1) / 9 + 1, ", column ", (intCell - 1) % 9 + 1, ": ");
    if (model.phase == model::Phase::Paused)
        return strPlace + "hidden";
    return strPlace + If(cell.blnGiven, "given ") +
           (cell.GetShown() == 0 ? "empty" : Digit(cell.GetShown())) +
           If(model.IsMarked(cell), ", incorrect") +
           (cell.strNotes.empty() ? ""
                                  : ", notes " + cell.strNotes.substr(0, cell.strNotes.size() - 1));
}

inline QImage DrawBoard(QGraphicsScene& scene) {
    QImage image(449, 449, QImage::Format_RGB32);
    QPainter painter(&image);
    scene.render(&painter, image.rect(), scene.sceneRect());
    return image;
}

/// A text file of the game's line by line.
inline model::Lines ReadLines(const std::string& strFile) {
    std::ifstream file(strFile, std::ios::binary);
    model::Lines lines;
    for (std::string strLine; std::getline(file, strLine); lines.push_back(strLine))
        if (strLine.ends_with('\r'))
            strLine.pop_back();
    return lines;
}

inline void WriteLines(const std::string& strFile, const model::Lines& lines) {
    std::ofstream file(strFile, std::ios::binary);
    for (const std::string& strLine : lines)
        file << strLine << "\r\n";
}

/// Time passes only as the player has it: what the desktop's timers tell by themselves is dropped.
class StoppedTime final : public QObject {
public:
    StoppedTime() { qApp->installEventFilter(this); }

private:
    bool eventFilter(QObject* watched, QEvent* event) override {
        const auto* const timer = qobject_cast<QTimer*>(watched);
        return event->type() == QEvent::Timer && timer != nullptr &&
               timer->timerType() == Qt::PreciseTimer;
    }
};

/// The program and the model of its rules side by side: chance, commands, time and what is done in
/// the windows that open, and the comparison. What differs fails the test.
class Match {
protected:
    using Step = std::function<void(QWidget&)>;

    Match(RunningProgram& run, std::uint64_t lngSeed) : run_(run), random_(lngSeed) {
        run_.WriteSettings({QStringLiteral("cursor=1")});
        run_.folder.MakeFolder("games");
        FillScores();
    }

    /// Half of the lists are full.
    void FillScores() {
        for (int intLevel = 1; intLevel <= 30; ++intLevel)
            for (int intScores = std::min(Draw(1, 20), 10); intScores > 0; --intScores)
                model_.scores.Insert(
                    {.cells = {}, .intSeconds = Draw(1, 400), .intLevel = intLevel}, DrawName());
        WriteLines(strScoresFile_, model_.scores.Write());
    }

    /// Starts the program; the steps wait for the windows of the start.
    void Begin() {
        run_.Launch();
        QObject::connect(&run_.program->desktop(), &QtDesktop::tick, [this](Timer timer) {
            if (timer == Timer::tmr)
                model_.TickClock();
            if (timer == Timer::tmrCellWait)
                model_.TickIdle();
            if (timer == Timer::tmrCell)
                model_.TickThinning();
        });
        frmSplash& splash = *run_.program->splash();
        run_.game().lngRandomState = random_();
        for (QTimer* const timer : {&splash.tmrSplash(), &splash.tmrSplash2()})
            QMetaObject::invokeMethod(timer, "timeout");
        run_.Activate();
    }

    void ExpectScores() {
        ExpectLines(ReadLines(strScoresFile_), model_.scores.Write(), "hof.clh");
    }

    int Draw(int intLow, int intHigh) {
        return std::uniform_int_distribution(intLow, intHigh)(random_);
    }
    bool Chance(int intPercent) { return Draw(1, 100) <= intPercent; }
    std::string DrawName() {
        constexpr const char* aNames[] = {"Ann", " Bo, jr. ", "(none)", " (none)", " ", "Cleo"};
        return aNames[Draw(0, 5)];
    }
    const model::Cell& GetCell(int intCell) { return model_.game.cells[intCell]; }
    /// One of the cells that pass the test, of which there are some.
    int DrawCell(bool (model::Cell::*fnTest)() const) {
        std::vector<int> found;
        for (const auto& [i, cell] : model_.game.cells)
            if ((cell.*fnTest)())
                found.push_back(i);
        return found[std::uniform_int_distribution<std::size_t>(0, found.size() - 1)(random_)];
    }

    void Choose(const char* strEntry) { run_.Get<QAction>(QLatin1String(strEntry)).trigger(); }
    void PassTime(Timer timer, int intTicks) {
        for (; run_.program->desktop().IsTimerEnabled(timer) && intTicks > 0; --intTicks)
            emit run_.program->desktop().tick(timer);
    }

    /// What is done in the next modal window, which is compared before.
    void Then(const Step& fnStep) {
        ThenAtOnce([this, fnStep](QWidget& window) {
            Compare();
            fnStep(window);
        });
    }
    /// The same without a comparison.
    void ThenAtOnce(Step fnStep) { steps_.push_back(std::move(fnStep)); }
    void ThenPress(const char* strTitle, QMessageBox::StandardButton button) {
        Then([strTitle, button](QWidget& window) {
            EXPECT_EQ(window.windowTitle().toStdString(), strTitle);
            if (auto* const box = qobject_cast<QMessageBox*>(&window))
                QTest::mouseClick(box->button(button), Qt::LeftButton);
        });
    }
    void ThenPickFile(const std::string& strFile) {
        Then([this, strFile](QWidget& dialog) { PickFile(dialog, strFile); });
    }
    /// An empty name cancels.
    void PickFile(QWidget& dialog, const std::string& strFile) {
        EXPECT_EQ(dynamic_cast<QFileDialog&>(dialog).directory().path().toStdString(), strFolder_)
            << strMove_;
        auto& edit = GetControl<QLineEdit>(dialog, QStringLiteral("fileNameEdit"));
        edit.setText(QString::fromStdString(strFile));
        QTest::keyClick(&edit, strFile.empty() ? Qt::Key_Escape : Qt::Key_Return);
    }

    void ExpectLines(const model::Lines& shown, const model::Lines& told, const char* strWhat) {
        EXPECT_EQ(shown.size(), told.size()) << strMove_ << ": " << strWhat;
        for (std::size_t n = 0; n < std::min(shown.size(), told.size()); ++n)
            EXPECT_EQ(shown[n], told[n]) << strMove_ << ": " << strWhat << ", line " << n + 1;
    }

    void Compare() {
        model::Lines lines = cellora::Describe(MakeView(run_.game()));
        if (model_.phase == model::Phase::Paused)
            lines.erase(lines.begin() + 14, lines.begin() + 16);
        ExpectLines(lines, Describe(model_), "the view");
        CompareWindow(Describe(model_));
        const auto& desktop = run_.program->desktop();
        const auto IsOn = [&desktop](Timer timer) { return desktop.IsTimerEnabled(timer); };
        EXPECT_EQ(Text(IsOn(Timer::tmr), IsOn(Timer::tmrCellWait), IsOn(Timer::tmrCell)),
                  Text(model_.blnClock, model_.blnIdle, model_.blnThinning))
            << strMove_ << ": the clock, the wait and the thinning";
    }

    /// The window's own elements, which copy the view.
    void CompareWindow(const model::Lines& told) {
        const auto IsTold = [&told](std::size_t intLine, const QString& strName) {
            return QString::fromStdString(told[intLine]).split(u' ').contains(strName);
        };
        const auto Expect = [this](const QString& strWhat, const auto& shown,
                                   const auto& expected) {
            EXPECT_EQ(shown, expected) << strMove_ << ": " << strWhat.toStdString();
        };
        for (const QAction* const action : run_.window().findChildren<QAction*>()) {
            const QString strName = action->objectName();
            if (!strName.startsWith(u"mnu") || action->isSeparator() || !action->isVisible())
                continue;
            Expect(strName, action->isEnabled(), !IsTold(1, strName));
            Expect(strName + u'?', action->isChecked(), IsTold(2, strName));
        }
        for (const auto& strName :
             {QStringLiteral("picGrid"), QStringLiteral("picButtons"),
              QStringLiteral("picStatistics"), QStringLiteral("cmdFinished")}) {
            Expect(strName, run_.Get(strName).isVisible(), IsTold(0, strName));
            Expect(strName, run_.Get(strName).isEnabled(), !IsTold(1, strName));
        }
        const auto GetText = [this](const char* strLabel) {
            return run_.Get<QLabel>(QLatin1String(strLabel)).text().toStdString();
        };
        EXPECT_EQ(Text("statistics: ", GetText("lblTime"), " | ", GetText("lblLevel"), " | ",
                       GetText("lblVisibleCells"), " given | ", GetText("lblSolvedByYou"),
                       " by you | ", GetText("lblCellsToSolve"), " to solve | ",
                       GetText("lblIncorrectCells"), " wrong"),
                  told[4])
            << strMove_;
        QAccessibleInterface* const grid = QAccessible::queryAccessibleInterface(&run_.grid());
        for (const auto& [i, cell] : model_.game.cells)
            EXPECT_EQ(grid->child(i - 1)->text(QAccessible::Name).toStdString(),
                      GetCellName(model_, i))
                << strMove_;
    }

    /// What was drawn piece by piece must be what is drawn afresh.
    void CheckPaint() {
        for (int intRound = 0; intRound < 3; ++intRound) // a painting may ask for another
            QCoreApplication::processEvents();
        QWidget& window = run_.window();
        // Wayland shows its screen to no program.
        if (QGuiApplication::platformName() != QLatin1String("wayland")) {
            EXPECT_EQ(window.screen()
                          ->grabWindow(window.winId())
                          .toImage()
                          .convertToFormat(QImage::Format_RGB32),
                      window.grab().toImage().convertToFormat(QImage::Format_RGB32))
                << "painted wrongly " << strMove_;
        }
        const View view = MakeView(run_.game());
        BoardScene fresh;
        fresh.Mirror(view.grid, view.picGrid.lngBackColor);
        EXPECT_EQ(DrawBoard(fresh), DrawBoard(*dynamic_cast<QGraphicsView&>(run_.grid()).scene()))
            << "the board is drawn wrongly " << strMove_;
    }

    RunningProgram& run_;
    std::mt19937_64 random_;
    model::Model model_;
    std::string strMove_;                          ///< the last, in words
    std::map<std::string, model::Position> saved_; ///< by their files
    std::string strFolder_ = run_.folder.Path();   ///< where the file dialogs begin
    std::string strScoresFile_ = run_.folder.Path("hof.clh");
    std::deque<Step> steps_;

private:
    ModalWatch watch_{[this](QWidget& window) {
        const Step fnStep = steps_.empty() ? [](QWidget&) {} : std::move(steps_.front());
        if (!steps_.empty())
            steps_.pop_front();
        fnStep(window);
    }};
    StoppedTime stoppedTime_;
};

} // namespace cellora
