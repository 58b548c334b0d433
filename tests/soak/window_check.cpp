#include "tests/soak/window_check.h"

#include <algorithm>
#include <set>
#include <utility>

#include <QAccessible>
#include <QMenuBar>
#include <QPainter>
#include <QScreen>
#include <QStatusBar>

#include "ui/look.h"
#include "ui/text.h"

namespace cellora {

namespace {

struct MenuName {
    const char* strName;
    MenuItem Game::*item;
};

constexpr MenuName aMenuNames[] = {
    {"mnuPrint", &Game::mnuPrint},
    {"mnuSave", &Game::mnuSave},
    {"mnuSaveAs", &Game::mnuSaveAs},
    {"mnuNormal", &Game::mnuNormal},
    {"mnuFitWindow", &Game::mnuFitWindow},
    {"mnuToolbar", &Game::mnuToolbar},
    {"mnuNumberSelector", &Game::mnuNumberSelector},
    {"mnuStatistics", &Game::mnuStatistics},
    {"mnuSolveCell", &Game::mnuSolveCell},
    {"mnuCellErrors", &Game::mnuCellErrors},
    {"mnuSolve", &Game::mnuSolve},
    {"mnuPause", &Game::mnuPause},
};

struct LabelName {
    const char* strName;
    const char* strTitle;
    std::string Game::*caption;
};

constexpr LabelName aLabelNames[] = {
    {"lblTime", "Game time: ", &Game::lblTime},
    {"lblLevel", "Difficulty: ", &Game::lblLevel},
    {"lblVisibleCells", "Pre-solved cells: ", &Game::lblVisibleCells},
    {"lblSolvedByYou", "Solved by you: ", &Game::lblSolvedByYou},
    {"lblCellsToSolve", "Cells remaining: ", &Game::lblCellsToSolve},
    {"lblIncorrectCells", "Incorrect cells: ", &Game::lblIncorrectCells},
};

/// The toolbar's places that hold buttons.
constexpr int aToolbarPlaces[] = {1, 2, 4, 6, 8, 10};

std::string DescribeCell(const Game& game, int i) {
    const Cell& cell = game.cells[i];
    std::string strName = "Row " + std::to_string(GetRow(i) + 1) + ", column " +
                          std::to_string(GetColumn(i) + 1) + ": ";
    if (game.blnPaused)
        return strName + "hidden";
    if (cell.blnGiven)
        strName += "given " + cell.strSolution;
    else
        strName += cell.strEntry.empty() ? "empty" : cell.strEntry;
    if (cell.wrongMark.blnOpaque)
        strName += ", incorrect";
    if (!cell.strNotes.empty())
        strName += ", notes " + cell.strNotes.substr(0, cell.strNotes.size() - 1);
    return strName;
}

std::string AsText(const QColor& color) {
    return color.isValid() ? color.name().toStdString() : "none";
}

std::string AsText(Color lngColor) {
    return AsText(ToQColor(lngColor));
}

QImage DrawBoard(BoardScene& scene) {
    QImage image(449, 449, QImage::Format_RGB32);
    QPainter painter(&image);
    scene.render(&painter, image.rect(), scene.sceneRect());
    return image;
}

/// Where two pictures of one size differ.
QRect GetDifference(const QImage& image, const QImage& other) {
    QRect rect;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) != other.pixel(x, y))
                rect |= QRect(x, y, 1, 1);
    return rect;
}

std::string AsText(const QRect& rect) {
    return std::to_string(rect.width()) + 'x' + std::to_string(rect.height()) + " at " +
           std::to_string(rect.left()) + ',' + std::to_string(rect.top());
}

} // namespace

WindowCheck::WindowCheck(RunningProgram& run)
    : run_(run), announcer_(run.grid(), [this](QAccessibleEvent* event) { Hear(*event); }) {}

void WindowCheck::Hear(const QAccessibleEvent& event) {
    QAccessibleInterface* const cell = event.accessibleInterface();
    if (event.type() == QAccessible::NameChanged)
        toldNames_[event.child() + 1] = cell->text(QAccessible::Name).toStdString();
}

template <typename Shown, typename Said>
void WindowCheck::Compare(const std::string& strWhat, const Shown& shown, const Said& said) {
    ++intChecks_;
    if (shown != said)
        differences_ << strWhat << " is " << shown << " instead of " << said << '\n';
}

std::string WindowCheck::FindDifferences() {
    announcer_.Announce();
    CheckBoard();
    for (int i = 1; i <= intCellCount; ++i) {
        CheckCell(i);
        CheckCellName(i);
    }
    for (int n = 1; n <= intEraser; ++n)
        CheckButton(n);
    CheckStatistics();
    CheckMenus();
    CheckToolbar();
    CheckPanes();
    // A full grid shows its mistakes, also to players who hide them.
    if (run_.game().picGrid.blnEnabled && run_.game().lblCellsToSolve != "0") {
        CheckCounts();
        CheckShading();
    }
    return std::exchange(differences_, {}).str();
}

void WindowCheck::CheckCell(int i) {
    BoardScene& scene = run_.scene();
    const Game& game = run_.game();
    const Cell& cell = game.cells[i];
    const std::string strCell = "cell " + std::to_string(i) + ": ";
    const std::string strUser =
        AsText(game.blnPaused ? lngColorInactiveCaptionText : game.colors.lngColorFontUser);
    const std::string strComputer =
        AsText(game.blnPaused ? lngColorInactiveCaptionText : game.colors.lngColorFontComputer);
    const bool blnMarked = cell.wrongMark.blnOpaque && !game.blnPaused;

    Compare(strCell + "solution", scene.lblSolution(i).text().toStdString(), cell.strSolution);
    Compare(strCell + "solution shown", scene.lblSolution(i).isVisible(), cell.blnGiven);
    Compare(strCell + "solution colour", AsText(scene.lblSolution(i).color()), strComputer);
    Compare(strCell + "entry", scene.lblCell(i).text().toStdString(), cell.strEntry);
    Compare(strCell + "entry shown", scene.lblCell(i).isVisible(), cell.blnEntryShown);
    Compare(strCell + "entry colour", AsText(scene.lblCell(i).color()), strUser);
    Compare(strCell + "notes", scene.lblCandidate(i).text().toStdString(), cell.strNotes);
    Compare(strCell + "notes colour", AsText(scene.lblCandidate(i).color()), strUser);
    Compare(strCell + "wrong fill", AsText(scene.shpWCell(i).fillColor()),
            blnMarked ? AsText(game.colors.lngColorIncorrectCell) : AsText(QColor()));
    Compare(strCell + "outline width", scene.shpCell(i).outlineWidth(), cell.outline.intWidth);
    Compare(strCell + "outline", AsText(scene.shpCell(i).outlineColor()),
            AsText(cell.outline.lngColor));
    const bool blnDigitShown = cell.GetShownText() == std::to_string(game.intHighlight);
    Compare(strCell + "ring", scene.shpHighlight(i).isVisible(),
            game.intHighlight != 0 && !game.blnPaused && blnDigitShown);
}

void WindowCheck::CheckCellName(int i) {
    const std::string strName = DescribeCell(run_.game(), i);
    QAccessibleInterface* const grid = QAccessible::queryAccessibleInterface(&run_.grid());
    QAccessibleInterface* const cell = grid->child(i - 1);
    const std::string strCell = "cell " + std::to_string(i) + ": ";
    Compare(strCell + "name", cell->text(QAccessible::Name).toStdString(), strName);
    if (run_.grid().isVisible())
        Compare(strCell + "name told", toldNames_[i], strName);
    Compare(strCell + "selected", cell->state().selected != 0, run_.game().intCursorCell == i);
}

void WindowCheck::CheckBoard() {
    const Game& game = run_.game();
    const std::string strLines =
        AsText(game.blnPaused ? lngColorInactiveCaptionText : game.colors.lngColorGridLines);
    for (int k = 0; k < 9; ++k)
        Compare("region line", AsText(run_.scene().shp9(k).outlineColor()), strLines);
    Compare("border", AsText(run_.scene().shpBorder().outlineColor()), strLines);
    Compare("grid enabled", run_.grid().isEnabled(), game.picGrid.blnEnabled);
}

void WindowCheck::CheckButton(int n) {
    const Game& game = run_.game();
    NumberSelectorButton& button = run_.button(n);
    const NumberButton& state = game.picButton[n];
    const std::string strButton = "button " + std::to_string(n) + ": ";
    Compare(strButton + "checked", button.isChecked(), game.intSelectedNumber == n);
    Compare(strButton + "complete", button.accessibleDescription().toStdString(),
            std::string(state.blnShaded ? "complete" : ""));
    if (!button.isVisible())
        return;
    const ButtonState key{n, state.blnFramed, state.blnShaded, button.hasFocus()};
    const QImage image = button.grab().toImage();
    const auto [place, blnNew] = pictures_.try_emplace(key, image);
    if (!blnNew) {
        Compare(strButton + "same picture", image == place->second, true);
        return;
    }
    for (const auto& [keyOther, other] : pictures_)
        if (keyOther != key)
            Compare(strButton + "another picture", image != other, true);
}

void WindowCheck::CheckStatistics() {
    const Game& game = run_.game();
    for (const LabelName& design : aLabelNames) {
        const QLabel& label = run_.Get<QLabel>(design.strName);
        const std::string& strCaption = game.*design.caption;
        Compare(design.strName, label.text().toStdString(), strCaption);
        Compare(design.strName + std::string(" name"), label.accessibleName().toStdString(),
                design.strTitle + strCaption);
        Compare(design.strName + std::string(" colour"),
                AsText(label.palette().color(QPalette::WindowText)),
                AsText(game.blnPaused ? lngColorInactiveCaptionText : lngColorButtonText));
    }
}

void WindowCheck::CheckMenus() {
    const Game& game = run_.game();
    for (const MenuName& design : aMenuNames) {
        const MenuItem& item = game.*design.item;
        const QAction& action = run_.Get<QAction>(design.strName);
        Compare(design.strName, action.isEnabled(), item.blnEnabled);
        if (action.isCheckable())
            Compare(design.strName + std::string(" ticked"), action.isChecked(), item.blnChecked);
    }
    const bool blnInPlay = game.blnGameActive && game.picGrid.blnEnabled;
    for (const char* const strName : {"mnuPause", "mnuSolveCell", "mnuSolve", "mnuCellErrors"})
        Compare(strName + std::string(" in play"), run_.IsEnabled(strName), blnInPlay);
    for (const char* const strName : {"mnuSave", "mnuSaveAs", "mnuPrint", "mnuStatistics"})
        Compare(strName + std::string(" with a game"), run_.IsEnabled(strName), game.blnGameActive);
}

void WindowCheck::CheckToolbar() {
    const Game& game = run_.game();
    const std::vector<bool> shown = run_.GetToolbarEnabling();
    for (std::size_t n = 0; n < shown.size(); ++n)
        Compare("toolbar button " + std::to_string(n + 1), bool{shown[n]},
                game.tbrMain.blnButtonEnabled[aToolbarPlaces[n]]);
    const auto& cmdFinished = run_.Get<QPushButton>("cmdFinished");
    Compare("cmdFinished", cmdFinished.text().toStdString(), game.cmdFinished.strCaption);
    Compare("cmdFinished shown", cmdFinished.isVisible(),
            game.cmdFinished.blnVisible && game.mnuToolbar.blnChecked);
    if (game.blnPaused)
        Compare("toolbar while paused", std::ranges::count(shown, true), 0);
}

void WindowCheck::CheckPanes() {
    const Game& game = run_.game();
    const bool blnSelector =
        game.blnGameActive && game.mnuNumberSelector.blnChecked && !game.blnPaused;
    Compare("picGrid shown", run_.IsShown("picGrid"), game.blnGameActive);
    Compare("picButtons shown", run_.IsShown("picButtons"), blnSelector);
    Compare("picStatistics shown", run_.IsShown("picStatistics"),
            game.blnGameActive && game.mnuStatistics.blnChecked);
    Compare("tbrMain shown", run_.IsShown("tbrMain"), game.mnuToolbar.blnChecked);
    Compare("sbrMain shown", run_.IsShown("sbrMain"), game.mnuStatusBar.blnChecked);
}

void WindowCheck::CheckCounts() {
    const Game& game = run_.game();
    int intSolved = 0;
    int intEmpty = 0;
    int intGiven = 0;
    int intWrong = 0;
    for (int i = 1; i <= intCellCount; ++i) {
        const Cell& cell = game.cells[i];
        const bool blnWrong =
            !cell.blnGiven && !cell.strEntry.empty() && cell.strEntry != cell.strSolution;
        intGiven += cell.blnGiven ? 1 : 0;
        intSolved += !cell.blnGiven && !cell.strEntry.empty() ? 1 : 0;
        intEmpty += !cell.blnGiven && cell.strEntry.empty() ? 1 : 0;
        intWrong += blnWrong ? 1 : 0;
        Compare("cell " + std::to_string(i) + ": marked", cell.wrongMark.blnOpaque,
                blnWrong && game.mnuCellErrors.blnChecked);
    }
    Compare("solved", game.lblSolvedByYou, std::to_string(intSolved));
    Compare("remaining", game.lblCellsToSolve, std::to_string(intEmpty));
    Compare("pre-solved", game.lblVisibleCells, std::to_string(intGiven));
    Compare("incorrect", game.lblIncorrectCells,
            game.mnuCellErrors.blnChecked ? std::to_string(intWrong) : "(hidden)");
}

void WindowCheck::CheckShading() {
    const Game& game = run_.game();
    for (int n = 1; n <= 9; ++n) {
        std::set<int> regions;
        for (int i = 1; i <= intCellCount; ++i)
            if (game.cells[i].GetShownText() == std::to_string(n))
                regions.insert(GetRegion(i));
        Compare("button " + std::to_string(n) + ": shaded", game.picButton[n].blnShaded,
                regions.size() == 9);
    }
}

std::string WindowCheck::FindPaintedDifferences() {
    frmMain& window = run_.window();
    for (int intRound = 0; intRound < 3; ++intRound) // a painting may ask for another
        QCoreApplication::processEvents();
    const QImage painted =
        window.screen()->grabWindow(window.winId()).toImage().convertToFormat(QImage::Format_RGB32);
    const QImage fresh = window.grab().toImage().convertToFormat(QImage::Format_RGB32);
    Compare("painted", AsText(painted.rect()), AsText(fresh.rect()));
    if (painted.size() == fresh.size())
        Compare("painted wrongly", AsText(GetDifference(painted, fresh)), AsText(QRect()));
    BoardScene board;
    board.Mirror(run_.game());
    Compare("board drawn wrongly", AsText(GetDifference(DrawBoard(run_.scene()), DrawBoard(board))),
            AsText(QRect()));
    return std::exchange(differences_, {}).str();
}

} // namespace cellora
