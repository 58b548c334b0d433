#include "store/modCommon_File.h"

#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

namespace cellora {
namespace {

TEST(ModCommonFile, TellsFilesFoldersAndNothingApart) {
    const TemporaryFolder folder;
    const std::string strFile = folder.WriteBytes("Spiel \xC3\xA4.clp", "x");
    EXPECT_TRUE(FileExists(strFile));
    EXPECT_TRUE(PathExists(strFile));
    EXPECT_FALSE(FileExists(folder.Path()));
    EXPECT_TRUE(PathExists(folder.Path()));
    const std::string missing[] = {
        "",
        folder.Path("missing"),
        strFile + "/below",
        strFile + std::string(1, '\0'),
        folder.Path(std::string(5000, 'x')),
        folder.Path("\xFF\xFE"),
    };
    for (const std::string& strPath : missing) {
        EXPECT_FALSE(FileExists(strPath)) << strPath;
        EXPECT_FALSE(PathExists(strPath)) << strPath;
    }
}

TEST(ModCommonFile, FolderEndsAtTheLastSeparator) {
    const char* const cases[][2] = {
        {"C:\\Games\\puzzle.clp", "C:\\Games\\"},
        {"C:\\", "C:\\"},
        {"puzzle.clp", ""},
        {"", ""},
        {"/home/player/puzzle.clp", "/home/player/"},
        {"/", "/"},
        {"/home/odd\\name.clp", "/home/"},
        {"C:/Games/a\\b", "C:/Games/"},
    };
    for (const auto& [strPath, strFolder] : cases) {
        EXPECT_EQ(GetFolderFromPath(strPath), strFolder) << strPath;
    }
}

TEST(ModCommonFile, JoiningAddsASeparatorOnlyWhereNoneIs) {
    EXPECT_EQ(JoinPath("/games", "cl.ini"), "/games/cl.ini");
    EXPECT_EQ(JoinPath("/games/", "cl.ini"), "/games/cl.ini");
    EXPECT_EQ(JoinPath("/odd\\", "cl.ini"), "/odd\\/cl.ini");
    EXPECT_EQ(JoinPath("C:\\Games\\", "cl.ini"), "C:\\Games\\cl.ini");
    EXPECT_EQ(JoinPath("", "cl.ini"), "cl.ini");
}

} // namespace
} // namespace cellora
