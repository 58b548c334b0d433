#include <filesystem>

#include <gtest/gtest.h>

#include "tests/support/running_program.h"

namespace cellora {

namespace {

/// A game that was begun and never said goodbye, as its file tells.
struct LeftBehind {
    LeftBehind() {
        RunningProgram run;
        run.StartGame(10);
        run.MoveTo(run.FindEmptyCell());
        intCell = run.game().intCursorCell;
        intDigit = run.GetSolution(intCell);
        run.Type(intDigit);
        const std::string strFile = run.folder.Path("recovery.clp");
        EXPECT_TRUE(WaitFor([&] { return std::filesystem::exists(strFile); }));
        strBytes = run.folder.ReadBytes("recovery.clp");
    }

    std::string strBytes;
    int intCell = 0;
    int intDigit = 0;
};

TEST(Recovery, AGameLeftBehindIsOfferedAfterTheInstructionsAndGoesOn) {
    const LeftBehind left;
    RunningProgram run(GetShippedSettings("1"));
    run.folder.WriteBytes("recovery.clp", left.strBytes);
    run.modal.Then([&](QWidget& dialog) {
        EXPECT_EQ(dialog.objectName(), QLatin1String("frmHelp"));
        EXPECT_FALSE(run.program.splash()->isVisible());
        dialog.close();
    });
    run.modal.Then([&](QWidget& window) {
        auto* const box = qobject_cast<QMessageBox*>(&window);
        ASSERT_TRUE(box);
        EXPECT_EQ(box->windowTitle(), QLatin1String("Restore Game?"));
        EXPECT_EQ(box->icon(), QMessageBox::Question);
        EXPECT_EQ(box->standardButtons(), QMessageBox::Yes | QMessageBox::No);
        EXPECT_FALSE(run.IsShown("picGrid"));
        QTest::mouseClick(box->button(QMessageBox::Yes), Qt::LeftButton);
    });
    run.Start();
    EXPECT_TRUE(run.IsShown("picGrid"));
    EXPECT_EQ(run.GetValue("lblLevel"), QLatin1String("Level 10"));
    EXPECT_EQ(run.game().cells[left.intCell].strEntry, std::to_string(left.intDigit));
    EXPECT_TRUE(run.game().blnGameChanged);
    EXPECT_TRUE(run.game().strGameFile.empty());

    // The clock and the keyboard go on with it.
    const QString strTime = run.GetValue("lblTime");
    EXPECT_TRUE(WaitFor([&] { return run.GetValue("lblTime") != strTime; }));
    run.MoveTo(run.FindEmptyCell());
    run.Type(run.GetSolution(run.game().intCursorCell));
    EXPECT_EQ(run.GetValue("lblSolvedByYou"), QLatin1String("2"));
    run.modal.ThenPress("Save Game?", QMessageBox::No);
    EXPECT_EQ(run.RunLoop([&] { run.window().close(); }), 0);
    EXPECT_FALSE(std::filesystem::exists(run.folder.Path("recovery.clp")));
}

TEST(Recovery, TheAnswerNoRemovesTheGameAndADamagedOneIsNotOffered) {
    const LeftBehind left;
    RunningProgram run;
    run.folder.WriteBytes("recovery.clp", left.strBytes);
    run.modal.ThenPress("Restore Game?", QMessageBox::No);
    run.Start();
    EXPECT_FALSE(run.IsShown("picGrid"));
    EXPECT_FALSE(run.game().blnGameActive);
    EXPECT_FALSE(std::filesystem::exists(run.folder.Path("recovery.clp")));

    RunningProgram damaged;
    damaged.folder.WriteBytes("recovery.clp", left.strBytes.substr(0, left.strBytes.size() / 2));
    damaged.Start();
    EXPECT_FALSE(damaged.IsShown("picGrid"));
    EXPECT_TRUE(std::filesystem::exists(damaged.folder.Path("recovery.clp.damaged")));
}

} // namespace

} // namespace cellora
