#include "store/background_writer.h"

#include <fstream>
#include <future>
#include <string>

#include <gtest/gtest.h>

#include "tests/support/child_process.h"

namespace cellora {
namespace {

using std::chrono::minutes;

#ifdef __linux__

TEST(BackgroundWriter, WritesAtOnceWhereThereIsNoThread) {
    ChildProcess child([](const auto&) {
        rlim_t lngPages = 0;
        std::ifstream("/proc/self/statm") >> lngPages;
        const rlim_t lngTooLittleForAStack =
            lngPages * static_cast<rlim_t>(sysconf(_SC_PAGESIZE)) + (rlim_t{1} << 20U);
        const rlimit limit{lngTooLittleForAStack, lngTooLittleForAStack};
        setrlimit(RLIMIT_AS, &limit);
        bool blnWritten = false;
        BackgroundWriter writer;
        writer.Do("game", [&] { blnWritten = true; });
        return writer.Wait(minutes(1)) && blnWritten;
    });
    EXPECT_EQ(child.End(0), 0);
}

#endif

TEST(BackgroundWriter, GoesOnWithTheNewestBehindAWriteThatHangs) {
    std::promise<void> begun;
    std::promise<void> disk;
    std::string strWritten;
    BackgroundWriter writer;
    EXPECT_TRUE(writer.Wait(minutes(1))) << "nothing was written yet";
    writer.Do("game", [&] {
        begun.set_value();
        disk.get_future().wait();
        strWritten += '1';
    });
    begun.get_future().wait();
    for (const char character : {'2', 'A', '3', '4'})
        writer.Do(character == 'A' ? "other game" : "game",
                  [&strWritten, character] { strWritten += character; });
    EXPECT_FALSE(writer.Wait({}));
    disk.set_value();
    EXPECT_TRUE(writer.Wait(minutes(1)));
    EXPECT_EQ(strWritten, "1A4");
    writer.Do("game", [&] { strWritten += '5'; });
    EXPECT_TRUE(writer.Wait(minutes(1)));
    EXPECT_EQ(strWritten, "1A45");
}

} // namespace
} // namespace cellora
