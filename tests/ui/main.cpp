#include <QApplication>

#include <gtest/gtest.h>

#include "ui/look.h"

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    cellora::ApplyLook();
    return RUN_ALL_TESTS();
}
