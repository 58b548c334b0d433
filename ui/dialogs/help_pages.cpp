#include "ui/dialogs/help_pages.h"

#include <span>

#include <QGridLayout>
#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

#include "ui/desktop/look.h"
#include "ui/dialogs/help_pictures.h"
#include "ui/dialogs/key_label.h"

namespace cellora {

namespace {

constexpr int intMargin = 8;
constexpr int intRowGap = 2;
constexpr int intGroupGap = 6;
constexpr int intColumnGap = 8;
constexpr int intParagraphGap = 8;
constexpr int intPictureGap = 12;
constexpr double dblCellZoom = 0.9;
constexpr double dblTextPoints = 10;
constexpr double dblHeadingPoints = 12;
constexpr double dblSourcePoints = 8;

enum class Picture { None, Notes, SelectedNumber, WrongCell, CompleteNumber };

struct HelpRow {
    const char* strKey;
    const char* strText;
    Picture picture = Picture::None;
};

constexpr char strAim[] =
    "Fill the grid so that every row, every column and every 3 x 3 region of the 9 x 9 grid holds "
    "each digit from 1 to 9 exactly once. The digits shown at the start are clues: they stay where "
    "they are, and they allow only one way to complete the grid. No arithmetic is needed: any nine "
    "signs would do.";

constexpr char strFirstGame[] =
    "To start your first game, just close this dialog box and then select 'New Game' from the "
    "'File' menu...";

constexpr HelpRow aMouseRows[] = {
    {"Right click - ", "Used to select number notes to place into the desired cell.",
     Picture::Notes},
    {"Left click - ",
     "Used to place the number that's selected in the number row (located above "
     "the game grid) into the desired cell.",
     Picture::SelectedNumber},
};

constexpr HelpRow aKeyboardRows[] = {
    {"Arrow Keys - ", "Moves the cell cursor around the game grid."},
    {"Delete,\nBackspace, \nSpace - ", "Deletes the contents of the selected cell.",
     Picture::WrongCell},
    {"Numbers 1-9 -", "Enters the number keyed by the user into the selected cell."},
};

constexpr HelpRow aMenuRows[] = {
    {"File -", "Allows you to Open, Save, Create and Print puzzles."},
    {"View -",
     "Shows or hides the toolbar, number selector, statistics, or any cell errors during "
     "game play.",
     Picture::CompleteNumber},
    {"Puzzle -", "You can pause the game, or if you're stuck, get some help by letting the "
                 "computer solve one of the cells for you. If you're really stuck, it can solve "
                 "the whole puzzle!"},
    {"Scores -", "The 'Cellora' hall of fame."},
    {"Tools -", "Change the game color preferences."},
    {"Window -", "Changes the program window size."},
    {"Help -", "Contains the 'Help' screen (you're currently looking at it!) and the 'About' "
               "dialog box."},
};

constexpr const char* aHistory[] = {
    "The idea behind the puzzle is old. In the 18th century mathematicians studied Latin squares: "
    "grids filled so that no sign comes twice in any row or column.",
    "The puzzle itself is much younger. It adds the nine regions and leaves most cells empty. "
    "It was first printed in 1979, in an American puzzle magazine, as a \"number "
    "place\" puzzle.",
    "In 1984 it came to Japan, where it was given a new name and soon found a large following. "
    "From 2004 on newspapers carried it round the world, and it has had its daily place in many of "
    "them ever since.",
};

constexpr char strSource[] =
    "Source: retold from commonly published accounts of the puzzle's history.";

QLabel* MakeText(const QString& strText, const QFont& font = MakeFont(dblTextPoints)) {
    auto* const label = new QLabel(strText);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    label->setFont(font);
    return label;
}

QLabel* MakeHeading(const char* strText) {
    return MakeText(QLatin1String(strText), MakeFont(dblHeadingPoints, Weight::Bold));
}

QLabel* MakeBold(const char* strText) {
    QLabel* const label = MakeText(QLatin1String(strText), MakeFont(dblTextPoints, Weight::Bold));
    label->setWordWrap(false);
    return label;
}

QScrollArea* MakePage(const char* strName, QLayout* layout) {
    layout->setContentsMargins(intMargin, intMargin, intMargin, intMargin);
    auto* const page = new QWidget;
    page->setObjectName(QLatin1String(strName));
    page->setLayout(layout);
    auto* const area = new QScrollArea;
    area->setObjectName(QLatin1String(strName) + QStringLiteral("Area"));
    area->setWidget(page);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setFocusPolicy(Qt::NoFocus);
    // The face of the tab control is seen through it.
    area->viewport()->setAutoFillBackground(false);
    page->setAutoFillBackground(false);
    return area;
}

/// A gap between rows, which takes its part of the room that the texts leave.
void AddGap(QGridLayout& grid, int intLeast = intRowGap) {
    const int intRow = grid.rowCount();
    grid.setRowMinimumHeight(intRow, intLeast);
    grid.setRowStretch(intRow, 1);
}

QWidget* MakePicture(Game& game, Picture picture) {
    switch (picture) {
    case Picture::Notes:
        return new BoardPicture(game, BoardPicture::Part::Notes, dblCellZoom);
    case Picture::WrongCell:
        return new BoardPicture(game, BoardPicture::Part::WrongCell, dblCellZoom);
    case Picture::SelectedNumber:
        return new ButtonPicture(5, ButtonPicture::Look::Selected);
    default:
        return new ButtonPicture(9, ButtonPicture::Look::Complete);
    }
}

/// The key on the left, its explanation on the right. A picture stands behind the text and may
/// reach up beside rows above; that of the number button is narrow enough to stand below the key,
/// and leaves a long text its width.
void AddRow(QGridLayout& grid, Game& game, QLabel* lblKey, const HelpRow& row, int intAbove = 0) {
    const int intRow = grid.rowCount();
    const bool blnBelow = row.picture == Picture::SelectedNumber;
    const bool blnBehind = row.picture != Picture::None && !blnBelow;
    grid.addWidget(lblKey, intRow, 0, Qt::AlignTop);
    grid.addWidget(MakeText(QLatin1String(row.strText)), intRow, 1, 1, blnBehind ? 1 : 2);
    if (blnBelow)
        grid.addWidget(MakePicture(game, row.picture), intRow, 0,
                       Qt::AlignBottom | Qt::AlignHCenter);
    else if (blnBehind)
        grid.addWidget(MakePicture(game, row.picture), intRow - intAbove, 2, 1 + intAbove, 1,
                       Qt::AlignBottom);
}

/// The picture of the first row has its place beside the title as well.
void AddGroup(QGridLayout& grid, Game& game, const char* strTitle, KeyLabel::Device device,
              std::span<const HelpRow> rows) {
    grid.addWidget(MakeBold(strTitle), grid.rowCount(), 0, 1, 2);
    int intAbove = 2; // the title and the gap
    for (const HelpRow& row : rows) {
        AddGap(grid);
        AddRow(grid, game, new KeyLabel(QLatin1String(row.strKey), device), row, intAbove);
        intAbove = 0;
    }
}

QGridLayout* MakeGrid() {
    auto* const grid = new QGridLayout;
    grid->setHorizontalSpacing(intColumnGap);
    grid->setVerticalSpacing(0);
    grid->setColumnStretch(1, 1);
    return grid;
}

} // namespace

QScrollArea* MakeInstructionsPage(Game& game) {
    auto* const beside = new QHBoxLayout;
    beside->setSpacing(intPictureGap);
    beside->addWidget(MakeText(QLatin1String(strAim)), 1);
    beside->addWidget(new BoardPicture(game, BoardPicture::Part::Region, 1), 0, Qt::AlignTop);
    auto* const column = new QVBoxLayout;
    column->setSpacing(intParagraphGap);
    column->addWidget(MakeHeading("How to Play"));
    column->addLayout(beside);
    column->addWidget(MakeText(QLatin1String(strFirstGame)));
    column->addStretch();
    return MakePage("pageInstructions", column);
}

QScrollArea* MakeControlsPage(Game& game) {
    QGridLayout* const grid = MakeGrid();
    AddGroup(*grid, game, "Mouse Controls", KeyLabel::Device::Mouse, aMouseRows);
    AddGap(*grid, intGroupGap);
    AddGroup(*grid, game, "Keyboard Controls", KeyLabel::Device::Keyboard, aKeyboardRows);
    return MakePage("pageControls", grid);
}

QScrollArea* MakeMenusPage(Game& game) {
    QGridLayout* const grid = MakeGrid();
    for (const HelpRow& row : aMenuRows) {
        if (grid->count() > 0)
            AddGap(*grid);
        AddRow(*grid, game, MakeBold(row.strKey), row);
    }
    return MakePage("pageMenus", grid);
}

QScrollArea* MakeHistoryPage() {
    auto* const column = new QVBoxLayout;
    column->setSpacing(intParagraphGap);
    column->addWidget(MakeHeading("History"));
    for (const char* const strParagraph : aHistory)
        column->addWidget(MakeText(QLatin1String(strParagraph)));
    column->addStretch();
    column->addWidget(MakeText(QLatin1String(strSource), MakeFont(dblSourcePoints)));
    return MakePage("pageHistory", column);
}

} // namespace cellora
