#include "store/background_writer.h"

#include <latch>
#include <string>

#include <gtest/gtest.h>

namespace cellora {
namespace {

using std::chrono::minutes;

TEST(BackgroundWriter, GoesOnWithTheNewestBehindAWriteThatHangs) {
    std::latch begun(1);
    std::latch disk(1);
    std::string strWritten;
    BackgroundWriter writer;
    EXPECT_TRUE(writer.Wait(minutes(1))) << "nothing was written yet";
    writer.Do([&] {
        begun.count_down();
        disk.wait();
        strWritten += '1';
    });
    begun.wait();
    for (const char character : {'2', '3', '4'})
        writer.Do([&strWritten, character] { strWritten += character; });
    EXPECT_FALSE(writer.Wait({}));
    disk.count_down();
    EXPECT_TRUE(writer.Wait(minutes(1)));
    EXPECT_EQ(strWritten, "14");
    writer.Do([&] { strWritten += '5'; });
    EXPECT_TRUE(writer.Wait(minutes(1)));
    EXPECT_EQ(strWritten, "145");
}

} // namespace
} // namespace cellora
