#include "ui/dialogs/help_pages.h"

#include <span>

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>

#include "ui/desktop/look.h"

namespace cellora {

namespace {

constexpr int intMargin = 12;
constexpr int intHeadingPoints = 12;

struct HelpRow {
    const char* strKey;
    const char* strText;
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
    {"Right click - ", "Used to select number notes to place into the desired cell."},
    {"Left click - ", "Used to place the number that's selected in the number row (located above "
                      "the game grid) into the desired cell."},
};

constexpr HelpRow aKeyboardRows[] = {
    {"Arrow Keys - ", "Moves the cell cursor around the game grid."},
    {"Delete,\nBackspace, \nSpace - ", "Deletes the contents of the selected cell."},
    {"Numbers 1-9 -", "Enters the number keyed by the user into the selected cell."},
};

constexpr HelpRow aMenuRows[] = {
    {"File -", "Allows you to Open, Save, Create and Print puzzles."},
    {"View -", "Shows or hides the toolbar, number selector, statistics, or any cell errors during "
               "game play."},
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
    "The puzzle itself is much younger. It adds the nine regions and leaves most cells empty for "
    "the solver. It was first printed in 1979, in an American puzzle magazine, as a \"number "
    "place\" puzzle.",
    "In 1984 it came to Japan, where it was given a new name and soon found a large following. "
    "From 2004 on newspapers carried it round the world, and it has had its daily place in many of "
    "them ever since.",
};

constexpr char strSource[] =
    "Source: retold for this program from commonly published accounts of the puzzle's history.";

QLabel* MakeText(const QString& strText) {
    auto* const label = new QLabel(strText);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    return label;
}

QLabel* MakeHeading(const QString& strText) {
    QLabel* const label = MakeText(strText);
    label->setFont(MakeFont(intHeadingPoints, Weight::Bold));
    return label;
}

QLabel* MakeKey(const QString& strText) {
    QLabel* const label = MakeText(strText);
    label->setWordWrap(false);
    label->setFont(MakeFont(8, Weight::Bold));
    return label;
}

QVBoxLayout* MakeColumn(QWidget* page) {
    auto* const column = new QVBoxLayout(page);
    column->setContentsMargins(intMargin, intMargin, intMargin, intMargin);
    column->setSpacing(intMargin);
    return column;
}

/// Key labels on the left, their explanations on the right, all rows in line.
void AddRows(QWidget* parent, std::span<const HelpRow> rows, int intSpacing) {
    auto* const grid = new QGridLayout(parent);
    grid->setHorizontalSpacing(intMargin);
    grid->setVerticalSpacing(intSpacing);
    grid->setColumnStretch(1, 1);
    for (const HelpRow& row : rows) {
        const int intRow = grid->rowCount();
        grid->addWidget(MakeKey(QLatin1String(row.strKey)), intRow, 0);
        grid->addWidget(MakeText(QLatin1String(row.strText)), intRow, 1);
    }
    grid->setRowStretch(grid->rowCount(), 1);
}

QGroupBox* MakeGroup(const QString& strTitle, std::span<const HelpRow> rows) {
    auto* const group = new QGroupBox(strTitle);
    AddRows(group, rows, 4);
    group->layout()->setContentsMargins(8, 4, 8, 4);
    return group;
}

} // namespace

QWidget* MakeInstructionsPage() {
    auto* const page = new QWidget;
    QVBoxLayout* const column = MakeColumn(page);
    column->addWidget(MakeHeading(QStringLiteral("How to Play")));
    column->addWidget(MakeText(QLatin1String(strAim)));
    column->addWidget(MakeText(QLatin1String(strFirstGame)));
    column->addStretch();
    return page;
}

QWidget* MakeControlsPage() {
    auto* const page = new QWidget;
    QVBoxLayout* const column = MakeColumn(page);
    column->setContentsMargins(8, 8, 8, 8);
    column->setSpacing(6);
    column->addWidget(MakeGroup(QStringLiteral("Mouse Controls"), aMouseRows));
    column->addWidget(MakeGroup(QStringLiteral("Keyboard Controls"), aKeyboardRows));
    column->addStretch();
    return page;
}

QWidget* MakeMenusPage() {
    auto* const page = new QWidget;
    AddRows(page, aMenuRows, 8);
    page->layout()->setContentsMargins(intMargin, intMargin, intMargin, intMargin);
    return page;
}

QWidget* MakeHistoryPage() {
    auto* const page = new QWidget;
    QVBoxLayout* const column = MakeColumn(page);
    column->addWidget(MakeHeading(QStringLiteral("History")));
    for (const char* const strParagraph : aHistory)
        column->addWidget(MakeText(QLatin1String(strParagraph)));
    column->addStretch();
    column->addWidget(MakeText(QLatin1String(strSource)));
    return page;
}

} // namespace cellora
