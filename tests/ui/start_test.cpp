#include "ui/start.h"

#include <QLabel>
#include <QSignalSpy>
#include <QThread>

#include <gtest/gtest.h>

#include "tests/support/running_program.h"

namespace cellora {

namespace {

TEST(Splash, ShowsVersionAndLegalNoticeInThePicturesSize) {
    frmSplash splash({.fnLoad = [] {}, .fnEnable = [] {}, .fnStart = [] {}});
    splash.show();
    EXPECT_EQ(splash.size(), QSize(377, 198));
    const auto& lblVersion = GetControl<QLabel>(splash, "lblVersion");
    const auto& lblCopyright = GetControl<QLabel>(splash, "lblCopyright");
    EXPECT_EQ(lblVersion.text(), QLatin1String("Version: 1.2.5"));
    EXPECT_EQ(lblVersion.geometry(), QRect(192, 168, 137, 17));
    EXPECT_TRUE(lblVersion.alignment() & Qt::AlignRight);
    EXPECT_TRUE(lblCopyright.text().startsWith(QChar(0xA9)));
    EXPECT_EQ(lblCopyright.geometry(), QRect(56, 168, 105, 17));
    for (const QLabel* const label : {&lblVersion, &lblCopyright})
        EXPECT_EQ(label->palette().color(QPalette::WindowText), QColor(128, 128, 128));
    EXPECT_TRUE(splash.windowFlags() & Qt::WindowStaysOnTopHint);
}

TEST(Splash, TheSecondTimerWaitsForTheMainWindow) {
    std::vector<std::string> log;
    frmSplash* shown = nullptr;
    frmSplash splash({.fnLoad =
                          [&] {
                              log.push_back("load");
                              EXPECT_EQ(shown->tmrSplash2().isActive(), log.size() > 1);
                          },
                      .fnEnable =
                          [&] {
                              EXPECT_TRUE(shown->isVisible());
                              log.push_back("enable");
                          },
                      .fnStart =
                          [&] {
                              EXPECT_FALSE(shown->isVisible());
                              log.push_back("start");
                          }});
    shown = &splash;
    splash.show();
    EXPECT_TRUE(splash.tmrSplash().isActive());
    EXPECT_EQ(splash.tmrSplash().interval(), 1000);
    EXPECT_EQ(splash.tmrSplash2().interval(), 1000);

    Tick(splash.tmrSplash());
    EXPECT_TRUE(splash.isVisible());
    Tick(splash.tmrSplash());
    EXPECT_TRUE(splash.isVisible());
    Tick(splash.tmrSplash2());
    EXPECT_EQ(log, (std::vector<std::string>{"load", "load", "enable", "start"}));
    EXPECT_FALSE(splash.tmrSplash().isActive());
    EXPECT_FALSE(splash.tmrSplash2().isActive());
}

TEST(Splash, SlowLoadingAndLateTicksDoNotMoveTheEnd) {
    constexpr int intInterval = 200;
    int intLoads = 0;
    bool blnStarted = false;
    QElapsedTimer sinceShown;
    frmSplash splash({.fnLoad =
                          [&] {
                              if (++intLoads > 1)
                                  return;
                              QThread::msleep(2 * intInterval);
                              sinceShown.start();
                          },
                      .fnEnable = [] {},
                      .fnStart =
                          [&] {
                              blnStarted = true;
                              EXPECT_GE(sinceShown.elapsed(), intInterval * 9 / 10);
                          }});
    // The first timer ticks more often than the second: were the countdown begun anew each time,
    // it would never end.
    splash.tmrSplash().setInterval(intInterval / 4);
    splash.tmrSplash2().setInterval(intInterval);
    splash.show();
    EXPECT_TRUE(WaitFor([&] { return blnStarted; }));
    EXPECT_GT(intLoads, 1);
}

TEST(Start, TheMainWindowWaitsDisabledUnderTheSplash) {
    RunningProgram run;
    run.program.Main();
    EXPECT_TRUE(run.program.splash()->isVisible());
    EXPECT_EQ(run.program.mainWindow(), nullptr);

    Tick(run.program.splash()->tmrSplash());
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&run.window()));
    EXPECT_FALSE(run.window().isEnabled());
    EXPECT_TRUE(run.program.splash()->isVisible());
    const QSignalSpy spyNew(&run.Get<QAction>("mnuNew"), &QAction::triggered);
    QTest::keyClick(run.window().windowHandle(), Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(spyNew.count(), 0);

    const frmMain* const first = &run.window();
    Tick(run.program.splash()->tmrSplash());
    EXPECT_EQ(&run.window(), first);
    EXPECT_FALSE(run.window().isEnabled());

    Tick(run.program.splash()->tmrSplash2());
    EXPECT_TRUE(run.window().isEnabled());
    EXPECT_FALSE(run.program.splash()->isVisible());
}

TEST(Start, ThereIsNoGameAtFirst) {
    RunningProgram run;
    run.Start();
    EXPECT_EQ(run.window().windowTitle(), QLatin1String("Cellora"));
    for (const char* const strPane : {"picGrid", "picButtons", "picStatistics", "cmdFinished"})
        EXPECT_FALSE(run.Get<QWidget>(strPane).isVisible()) << strPane;
    EXPECT_TRUE(run.Get<QAction>("mnuNormal").isChecked());
    EXPECT_FALSE(run.Get<QAction>("mnuFitWindow").isChecked());
    // Keys for a board that is not there do nothing.
    run.window().activateWindow();
    QTest::keyClick(&run.Get<QWidget>("picBorder"), Qt::Key_5);
    QTest::keyClick(&run.Get<QWidget>("picBorder"), Qt::Key_Delete);
    EXPECT_FALSE(run.game().blnGameChanged);
    EXPECT_EQ(run.game().intSelectedNumber, 1);
}

TEST(Start, TheInstructionsOpenOnlyWhenTheSettingIsOne) {
    for (const auto& [strStartup, blnOpens] :
         {std::pair{"0", false}, {"", false}, {"yes", false}, {"2", false}, {"1", true}}) {
        RunningProgram run(GetShippedSettings(strStartup));
        bool blnOpened = false;
        if (blnOpens)
            run.modal.Then([&](QWidget& dialog) {
                blnOpened = true;
                EXPECT_EQ(dialog.objectName(), QLatin1String("frmHelp"));
                EXPECT_FALSE(run.program.splash()->isVisible());
                EXPECT_TRUE(run.window().isEnabled());
                dialog.close();
            });
        run.Start();
        EXPECT_EQ(blnOpened, blnOpens) << strStartup;
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << strStartup;
    }
}

#ifdef Q_OS_LINUX
TEST(Start, WhatFileDialogsRememberStaysInTheProgramsFolder) {
    RunningProgram run;
    run.StartGame();
    run.modal.Then([](QWidget& dialog) { dialog.close(); });
    run.Choose("mnuSaveAs");
    EXPECT_TRUE(run.modal.IsDone());
    EXPECT_NE(run.folder.ReadBytes("QtProject.conf").find("[FileDialog]"), std::string::npos);
}
#endif

TEST(Start, AFolderWithoutFilesGetsTheShippedOnes) {
    RunningProgram run;
    std::filesystem::remove(run.folder.Path("cl.ini"));
    run.modal.Then([](QWidget& dialog) { dialog.close(); });
    run.Start();
    EXPECT_NE(run.folder.ReadBytes("cl.ini").find("gridx=12648447"), std::string::npos);
    EXPECT_FALSE(run.folder.ReadBytes("hof.clh").empty());
}

} // namespace

} // namespace cellora
