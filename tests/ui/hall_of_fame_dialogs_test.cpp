#include <functional>

#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTabWidget>
#include <QTest>
#include <QTreeWidget>

#include <gtest/gtest.h>

#include "flow/hall_of_fame.h"
#include "tests/support/clipping.h"
#include "tests/support/controls.h"
#include "tests/support/scripted_desktop.h"
#include "tests/support/temporary_folder.h"
#include "ui/frmEnterName.h"
#include "ui/frmTopTen.h"

namespace cellora {

namespace {

constexpr const char* strFile = "hof.clh";

using Log = std::vector<std::string>;

class HallOfFameDialogs : public testing::Test {
protected:
    HallOfFameDialogs() {
        game.strProgramFolder = folder.Path();
        folder.WriteBytes(strFile, FormatEmptyHallOfFame());
        FinishGame(12, {"", 0, 7, 5});
    }

    void FinishGame(int intLevel, const HallOfFameEntry& entry) {
        game.lblLevel = "Level " + std::to_string(intLevel);
        game.lngHours = entry.lngHours;
        game.lngMinutes = entry.lngMinutes;
        game.lngSeconds = entry.lngSeconds;
        game.lblTime = FormatEntryTime(entry);
    }

    void Record(int intLevel, const HallOfFameEntry& entry) {
        FinishGame(intLevel, entry);
        ASSERT_EQ(SaveHallOfFameEntry(game, entry.strName), std::nullopt);
    }

    std::string GetRecordedName(int intLevel, int intRank) {
        LevelEntries entries;
        ReadHallOfFame(game, intLevel, entries);
        return entries[intRank].strName;
    }

    TemporaryFolder folder;
    ScriptedDesktop desktop;
    Game game{desktop};
};

class EnterName : public HallOfFameDialogs {
protected:
    void Open() {
        dialog.emplace(game, nullptr);
        ShowActive(*dialog);
    }

    QLineEdit& NameBox() { return GetControl<QLineEdit>(*dialog, "txtName"); }

    void Paste(const QString& strText) {
        QGuiApplication::clipboard()->setText(strText);
        QTest::keyClick(&NameBox(), Qt::Key_V, Qt::ControlModifier);
    }

    std::vector<std::function<void()>> WaysToCancel() {
        return {[this] { ClickControl(*dialog, "cmdCancel"); },
                [this] { QTest::keyClick(&NameBox(), Qt::Key_Escape); },
                [this] { dialog->close(); }};
    }

    std::optional<frmEnterName> dialog;
};

TEST_F(EnterName, TellsWhatWasReached) {
    Record(12, {"Ada", 0, 5, 0});
    FinishGame(12, {"", 0, 7, 5});
    Open();
    EXPECT_EQ(desktop.log, (Log{"hourglass", "arrow", "beep", "arrow"}));
    EXPECT_EQ(dialog->windowTitle(), QLatin1String("Congratulations!"));
    EXPECT_EQ(GetControl<QLabel>(*dialog, "lblCongratulations").text(),
              QLatin1String("You have successfully completed a Level 12 game of the 'Cellora'."));
    EXPECT_EQ(GetControl<QLabel>(*dialog, "lblTime").text(),
              QLatin1String("Your time was 00:07:05."));
    EXPECT_EQ(GetControl<QLabel>(*dialog, "picMedal").accessibleName(),
              QLatin1String("Medal for rank 2"));
    EXPECT_EQ(NameBox().accessibleName(), QLatin1String("Enter your name into the 'Hall of Fame'"));
    EXPECT_EQ(DescribeClippedTexts(*dialog), "");
    EXPECT_EQ(WalkTabOrder(*dialog).join(QLatin1Char(' ')),
              QLatin1String("txtName cmdOK cmdCancel cmdHelp"));
    ClickControl(*dialog, "cmdHelp");
    EXPECT_EQ(desktop.windows, std::vector{ModalWindow::frmHelp});
    EXPECT_TRUE(dialog->isVisible());
}

TEST_F(EnterName, DropsWhatANameCannotHold) {
    Open();
    QTest::keyClicks(&NameBox(), QStringLiteral(" A\"d\"a, "));
    EXPECT_EQ(NameBox().text(), QLatin1String(" Ada, "));

    const QString strTens = QStringLiteral("1234567890").repeated(5);
    const QString strSmile = QString::fromUcs4(U"\U0001F600");
    struct {
        QString strBefore, strAfter, strPasted, strWanted;
    } const aCases[] = {
        {{}, {}, QStringLiteral("a\"b\r\nc\td\x7f\u0085\u2028e"), QStringLiteral("abcde")},
        {{}, {}, strTens, strTens.left(40)},
        {{}, {}, QStringLiteral("\"\"\"") + strTens, strTens.left(40)},
        {QStringLiteral("ab"), QStringLiteral("cd"), strTens,
         QStringLiteral("ab") + strTens.left(36) + QStringLiteral("cd")},
        {QStringLiteral("x"), strTens.left(39), QStringLiteral("new"),
         QStringLiteral("x") + strTens.left(39)},
        {{}, {}, strSmile.repeated(41), strSmile.repeated(40)},
    };
    for (const auto& item : aCases) {
        NameBox().setText(item.strBefore + item.strAfter);
        NameBox().setCursorPosition(static_cast<int>(item.strBefore.size()));
        Paste(item.strPasted);
        EXPECT_EQ(NameBox().text().toStdString(), item.strWanted.toStdString());
        EXPECT_EQ(NameBox().cursorPosition(), NameBox().text().size() - item.strAfter.size());
    }
    EXPECT_EQ(desktop.log, (Log{"beep", "arrow"}));
}

TEST_F(EnterName, StoresTheNameAsTyped) {
    Open();
    QTest::keyClicks(&NameBox(), QStringLiteral("  J, "));
    Paste(QStringLiteral("\u00fc "));
    QTest::keyClick(&NameBox(), Qt::Key_Return);
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_TRUE(desktop.boxes.empty());
    EXPECT_EQ(GetRecordedName(12, 1), "  J, \u00fc ");

    Open();
    QTest::keyClicks(&NameBox(), QStringLiteral(" "));
    ClickControl(*dialog, "cmdOK");
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_TRUE(desktop.boxes.empty());
    EXPECT_EQ(GetRecordedName(12, 1), " ");
}

TEST_F(EnterName, AsksBeforeEveryWayOutWithoutAName) {
    auto ways = WaysToCancel();
    ways.emplace_back([this] { ClickControl(*dialog, "cmdOK"); });
    for (const auto& fnClose : ways) {
        Open();
        desktop.log.clear();
        desktop.answers = {Answer::Yes, Answer::No};
        fnClose();
        EXPECT_TRUE(dialog->isVisible());
        EXPECT_TRUE(NameBox().hasFocus());
        EXPECT_EQ(desktop.log, (Log{"beep", "box Enter your name?"}));
        fnClose();
        EXPECT_FALSE(dialog->isVisible());
        EXPECT_TRUE(desktop.answers.empty());
    }
    EXPECT_EQ(desktop.boxes.back().strText,
              "You have not entered your name. If you don't enter a name then your achievement "
              "will not be included in the 'Hall of Fame'.\r\n\r\nDo you wish to enter your name?");
    EXPECT_EQ(desktop.boxes.back().icon, MessageIcon::Question);
    EXPECT_EQ(desktop.boxes.back().buttons, MessageButtons::YesNo);
    EXPECT_EQ(folder.ReadBytes(strFile), FormatEmptyHallOfFame());
}

TEST_F(EnterName, CancelWithANameStoresNothingAndAsksNothing) {
    for (const auto& fnCancel : WaysToCancel()) {
        Open();
        QTest::keyClicks(&NameBox(), QStringLiteral("Ada"));
        fnCancel();
        EXPECT_FALSE(dialog->isVisible());
    }
    EXPECT_TRUE(desktop.boxes.empty());
    EXPECT_EQ(folder.ReadBytes(strFile), FormatEmptyHallOfFame());
}

TEST_F(EnterName, StaysOpenWithTheNameWhenItCannotBeWritten) {
    Open();
    desktop.log.clear();
    game.strProgramFolder = folder.Path("missing");
    QTest::keyClicks(&NameBox(), QStringLiteral("Ada"));
    ClickControl(*dialog, "cmdOK");
    EXPECT_EQ(desktop.log, (Log{"hourglass", "arrow", "beep", "box Hall of Fame"}));
    EXPECT_EQ(desktop.boxes.back().icon, MessageIcon::Exclamation);
    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(NameBox().text(), QLatin1String("Ada"));

    game.strProgramFolder = folder.Path();
    ClickControl(*dialog, "cmdOK");
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_EQ(GetRecordedName(12, 1), "Ada");
}

class TopTen : public HallOfFameDialogs {
protected:
    void Open() {
        dialog.emplace(game, nullptr);
        ShowActive(*dialog);
    }

    QComboBox& LevelBox() { return GetControl<QComboBox>(*dialog, "cboLevel"); }
    QTreeWidget& List() { return GetControl<QTreeWidget>(*dialog, "lvwTopTen"); }

    /// One text for each row.
    Log GetRows() {
        Log rows;
        for (int i = 0; i < List().topLevelItemCount(); ++i) {
            const QTreeWidgetItem& item = *List().topLevelItem(i);
            rows.push_back(QStringList{item.text(0), item.text(1), item.text(2)}
                               .join(QLatin1Char('|'))
                               .toStdString());
        }
        return rows;
    }

    std::optional<frmTopTen> dialog;
};

TEST_F(TopTen, OpensOnTheHighestLevelWithATime) {
    Record(3, {"Ada", 0, 1, 2});
    Record(9, {"Li", 90, 5, 9});
    Record(9, {"Jo, the 1st", 0, 59, 59});
    FinishGame(3, {});
    std::string strBytes = folder.ReadBytes(strFile);
    folder.WriteBytes(strFile, strBytes.replace(strBytes.find("\n90\r"), 4, "\n103\r"));
    Open();
    EXPECT_EQ(dialog->windowTitle(), QLatin1String("Top Ten"));
    EXPECT_EQ(GetControl<QTabWidget>(*dialog, "tabTopTen").tabText(0),
              QLatin1String("Hall of Fame"));
    EXPECT_EQ(LevelBox().currentText(), QLatin1String("Level 9"));
    EXPECT_EQ(GetRows(), (Log{"1|Jo, the 1st|00:59:59", "2|Li|03:05:09"}));

    QTest::keyClick(&LevelBox(), Qt::Key_Down);
    EXPECT_EQ(LevelBox().currentText(), QLatin1String("Level 10"));
    EXPECT_EQ(GetRows(), Log{});
    QTest::keyClick(&LevelBox(), Qt::Key_Home);
    QTest::keyClick(&LevelBox(), Qt::Key_Down);
    QTest::keyClick(&LevelBox(), Qt::Key_Down);
    EXPECT_EQ(GetRows(), Log{"1|Ada|00:01:02"});
}

TEST_F(TopTen, ShowsTenLongNamesWithoutScrolling) {
    const std::string strLongName(40, 'W');
    for (int i = 0; i < 10; ++i)
        Record(30, {strLongName, 11, 11, i});
    Open();
    EXPECT_EQ(DescribeClippedTexts(*dialog), "");
    EXPECT_EQ(GetRows().size(), 10U);
    EXPECT_TRUE(List().topLevelItem(9)->toolTip(1).contains(ToQString(strLongName)));
    EXPECT_EQ(List().textElideMode(), Qt::ElideRight);
    EXPECT_FALSE(List().verticalScrollBar()->isVisible());
    EXPECT_FALSE(List().horizontalScrollBar()->isVisible());
    const QAbstractItemView& view = List();
    for (const int intColumn : {0, 2})
        EXPECT_GE(List().header()->sectionSize(intColumn), view.sizeHintForColumn(intColumn));
    EXPECT_EQ(WalkTabOrder(*dialog).join(QLatin1Char(' ')),
              QLatin1String("cboLevel lvwTopTen cmdOK cmdHelp cmdReset qt_tabwidget_tabbar"));
}

TEST_F(TopTen, ShowsHeadersOnlyForALevelWithoutEntries) {
    Open();
    EXPECT_EQ(LevelBox().currentText(), QLatin1String("Level 1"));
    EXPECT_EQ(LevelBox().count(), 30);
    EXPECT_EQ(LevelBox().accessibleName(), QLatin1String("Difficulty Level"));
    EXPECT_EQ(GetRows(), Log{});
    for (const auto& [intColumn, strTitle] : {std::pair{0, "Rank"}, {1, "Name"}, {2, "Time"}})
        EXPECT_EQ(List().headerItem()->text(intColumn), QLatin1String(strTitle));
    EXPECT_EQ(DescribeClippedTexts(*dialog), "");
}

TEST_F(TopTen, StopsAtAnEntryNamedNone) {
    Record(4, {"Ada", 0, 1, 0});
    Record(4, {"(none)", 0, 2, 0});
    Record(4, {"Li", 0, 3, 0});
    Record(5, {"(none)", 0, 1, 0});
    Record(5, {"Jo", 0, 2, 0});
    Open();
    EXPECT_EQ(LevelBox().currentText(), QLatin1String("Level 4"));
    EXPECT_EQ(GetRows(), Log{"1|Ada|00:01:00"});
}

TEST_F(TopTen, ShowsBlankRowsWithoutAFile) {
    game.strProgramFolder = folder.Path("missing");
    Open();
    EXPECT_EQ(LevelBox().currentText(), QLatin1String("Level 30"));
    ASSERT_EQ(GetRows().size(), 10U);
    EXPECT_EQ(GetRows().back(), "10||00:00:00");
    EXPECT_TRUE(desktop.boxes.empty());
}

TEST_F(TopTen, ResetsOnlyOnYes) {
    Record(9, {"Ada", 0, 1, 2});
    const std::string strBytes = folder.ReadBytes(strFile);
    Open();
    desktop.log.clear();
    desktop.answers = {Answer::No};
    ClickControl(*dialog, "cmdReset");
    EXPECT_EQ(desktop.log, (Log{"beep", "box Reset Scores?"}));
    EXPECT_EQ(desktop.boxes.back().strText,
              "WARNING: Resetting the Cellora 'Best Times' cannot be reversed.\r\n\r\n"
              "Are you sure you want to reset the scores?");
    EXPECT_EQ(desktop.boxes.back().icon, MessageIcon::Question);
    EXPECT_EQ(folder.ReadBytes(strFile), strBytes);
    EXPECT_EQ(GetRows().size(), 1U);

    desktop.answers = {Answer::Yes};
    ClickControl(*dialog, "cmdReset");
    EXPECT_EQ(folder.ReadBytes(strFile), FormatEmptyHallOfFame());
    EXPECT_EQ(GetRows(), Log{});
    EXPECT_EQ(LevelBox().currentText(), QLatin1String("Level 9"));
    EXPECT_EQ(desktop.boxes.size(), 2U);
}

TEST_F(TopTen, KeepsTheListWhenTheResetCannotBeWritten) {
    Record(9, {"Ada", 0, 1, 2});
    Open();
    desktop.log.clear();
    desktop.answers = {Answer::Yes};
    game.strProgramFolder = folder.Path("missing");
    ClickControl(*dialog, "cmdReset");
    EXPECT_EQ(desktop.log,
              (Log{"beep", "box Reset Scores?", "hourglass", "arrow", "beep", "box Hall of Fame"}));
    EXPECT_EQ(GetRows(), Log{"1|Ada|00:01:02"});
}

TEST_F(TopTen, HelpOpensOverItAndOkCloses) {
    Open();
    QTest::keyClick(&*dialog, Qt::Key_H, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !desktop.windows.empty(); }));
    EXPECT_EQ(desktop.windows, std::vector{ModalWindow::frmHelp});
    EXPECT_TRUE(dialog->isVisible());
    QTest::keyClick(&LevelBox(), Qt::Key_Return);
    EXPECT_FALSE(dialog->isVisible());
}

} // namespace

} // namespace cellora
