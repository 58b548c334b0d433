#include "tests/rules/player.h"

#include <filesystem>

#include "tests/support/golden.h"

namespace cellora {
namespace {

std::vector<std::string> ListScripts() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(GetTestFile("rules/expected")))
        names.push_back(entry.path().stem().string());
    return names;
}

class Script : public testing::TestWithParam<std::string> {};

TEST_P(Script, GoesAsWrittenDown) {
    Player player;
    ExpectScript("rules/expected/" + GetParam() + ".txt",
                 [&player](const std::string& strCommand) { return player.Play(strCommand); });
    EXPECT_TRUE(player.desktop.answers.empty() && player.desktop.files.empty() &&
                player.during.empty());
}

INSTANTIATE_TEST_SUITE_P(, Script, testing::ValuesIn(ListScripts()),
                         [](const auto& param) { return param.param; });

} // namespace
} // namespace cellora
