#include <QApplication>

#include <gtest/gtest.h>

#include "ui/desktop/look.h"

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    qputenv("TZ", "UTC");
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication application(argc, argv);
    cellora::ApplyLook();
    return RUN_ALL_TESTS();
}
