#include "store/program_folder.h"

#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>

namespace cellora {
namespace {

TEST(ProgramFolder, IsTheExecutablesWhereAFileCanBeCreated) {
    const TemporaryFolder folder;
    const std::string strProgram = folder.MakeFolder("program");
    EXPECT_EQ(GetProgramFolder(strProgram, folder.Path("data")), strProgram);
    EXPECT_EQ(GetProgramFolder(strProgram + "/", folder.Path("data")), strProgram);
    EXPECT_EQ(folder.Count(), 1) << "the user's folder is made only when it is needed";
    EXPECT_TRUE(std::filesystem::is_empty(strProgram));
}

TEST(ProgramFolder, IsTheUsersElsewhere) {
    const TemporaryFolder folder;
    const std::string strBelowFile = folder.WriteBytes("plain", "") + "/program";
    const std::string strData = folder.Path("some/new/data");
    EXPECT_EQ(GetProgramFolder(strBelowFile, strData + "/"), strData);
    EXPECT_TRUE(std::filesystem::is_directory(strData));
    EXPECT_EQ(GetProgramFolder(folder.Path("missing"), strData), strData);
    EXPECT_EQ(GetProgramFolder("", strData), strData);
    EXPECT_EQ(GetProgramFolder(strBelowFile, ""), strBelowFile);
}

TEST(ProgramFolder, ShippedFilesFillOnlyGaps) {
    const TemporaryFolder folder;
    const ShippedFile files[] = {{"cl.ini", "[general]\r\n"}, {"hof.clh", "1\r\n"}};
    folder.WriteBytes("cl.ini", "mine");
    PlaceShippedFiles(folder.Path(), files);
    EXPECT_EQ(folder.ReadBytes("cl.ini"), "mine");
    EXPECT_EQ(folder.ReadBytes("hof.clh"), "1\r\n");
    EXPECT_EQ(folder.Count(), 2) << "no lock file stays";

    folder.WriteBytes("hof.clh", "");
    PlaceShippedFiles(folder.Path(), files);
    EXPECT_EQ(folder.ReadBytes("hof.clh"), "") << "an empty file exists";
    PlaceShippedFiles(folder.Path("missing"), files);
    EXPECT_EQ(folder.Count(), 2);
}

#ifndef _WIN32

/// Sets a variable of the environment, or removes it, until the object goes.
class EnvironmentValue final {
public:
    EnvironmentValue(const char* strName, const char* strValue) : strName_(strName) {
        if (const char* strOld = std::getenv(strName)) {
            strOld_ = strOld;
        }
        Set(strValue);
    }
    ~EnvironmentValue() { Set(strOld_ ? strOld_->c_str() : nullptr); }
    EnvironmentValue(const EnvironmentValue&) = delete;
    EnvironmentValue& operator=(const EnvironmentValue&) = delete;

private:
    void Set(const char* strValue) {
        strValue ? setenv(strName_, strValue, 1) : unsetenv(strName_);
    }

    const char* strName_;
    std::optional<std::string> strOld_;
};

TEST(ProgramFolder, UserDataFollowsTheEnvironment) {
    const EnvironmentValue home("HOME", "/home/player");
    {
        const EnvironmentValue data("XDG_DATA_HOME", "/data");
        EXPECT_EQ(GetUserDataFolder(), "/data/cellora");
    }
    for (const char* strUnusable : {"", "relative", static_cast<const char*>(nullptr)}) {
        const EnvironmentValue data("XDG_DATA_HOME", strUnusable);
        EXPECT_EQ(GetUserDataFolder(), "/home/player/.local/share/cellora");
        const EnvironmentValue noHome("HOME", nullptr);
        EXPECT_EQ(GetUserDataFolder(), "");
    }
}

#endif

} // namespace
} // namespace cellora
