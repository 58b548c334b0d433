#include <array>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <memory>
#include <thread>

#include <gtest/gtest.h>

#include "store/modCommon_File.h"
#include "store/process.h"
#include "store/program_folder.h"
#include "store/replace_file.h"
#include "store/system_files.h"
#include "tests/support/child_process.h"
#include "tests/support/faulty_files.h"
#include "tests/support/temporary_folder.h"

namespace cellora {
namespace {

class Files : public testing::Test {
protected:
    std::string Read(const std::string& strPath, std::size_t lngMaxBytes) {
        const ReadResult file = ReadWholeFile(files, strPath, lngMaxBytes);
        return file ? file.bytes : file.strReason.empty() ? "missing" : file.strReason;
    }

    SystemFiles files;
    const TemporaryFolder folder;
    const std::string strFile = folder.WriteBytes("Spiel \xC3\xA4.clp", "12345");
};

TEST_F(Files, AreToldFromFoldersAndNothing) {
    EXPECT_TRUE(FileExists(files, strFile) && PathExists(files, strFile));
    EXPECT_TRUE(!FileExists(files, folder.Path()) && PathExists(files, folder.Path()));
    for (const std::string& strPath :
         {std::string(), folder.Path("missing"), strFile + "/below", strFile + std::string(1, '\0'),
          folder.Path(std::string(5000, 'x')), folder.Path("\xFF\xFE")})
        EXPECT_FALSE(FileExists(files, strPath) || PathExists(files, strPath)) << strPath;
}

TEST_F(Files, ThatCannotBeExaminedAreNotMissing) {
    EXPECT_TRUE(IsMissing(files, folder.Path("missing")) && !IsMissing(files, strFile));
    FaultyFiles faulty;
    faulty.Break(FaultyFiles::Fault::Error, 1, std::errc::io_error);
    EXPECT_FALSE(IsMissing(faulty, folder.Path("missing")));
}

TEST_F(Files, LieInTheFolderBeforeTheLastSeparator) {
    constexpr bool blnWindows = std::filesystem::path::preferred_separator == '\\';
    constexpr std::pair<const char*, const char*> aCases[] = {
        {"C:\\Games\\puzzle.clp", "C:\\Games\\"},
        {"puzzle.clp", ""},
        {"", ""},
        {"/", "/"},
        {"/home/odd\\name.clp", blnWindows ? "/home/odd\\" : "/home/"},
        {"C:\\", "C:\\"},
    };
    for (const auto& [strPath, strFolder] : aCases)
        EXPECT_EQ(GetFolderFromPath(strPath), strFolder) << strPath;
    EXPECT_EQ(JoinPath("/games", "cl.ini"), blnWindows ? "/games\\cl.ini" : "/games/cl.ini");
    EXPECT_EQ(JoinPath("/games/", "cl.ini"), "/games/cl.ini");
    EXPECT_EQ(JoinPath("/odd\\", "cl.ini"), blnWindows ? "/odd\\cl.ini" : "/odd\\/cl.ini");
    EXPECT_EQ(JoinPath("C:\\Games\\", "cl.ini"), "C:\\Games\\cl.ini");
    EXPECT_EQ(JoinPath("", "cl.ini"), "cl.ini");
}

TEST_F(Files, AreReplacedByExactlyTheBytesAndNothingBeside) {
    const std::string bytes("a\r\nb\n\0\xFF", 7);
    EXPECT_EQ(ReplaceFile(files, strFile, bytes), std::nullopt);
    EXPECT_EQ(Read(strFile, bytes.size()), bytes);
    EXPECT_EQ(ReplaceFile(files, folder.Path("new"), ""), std::nullopt);
    EXPECT_EQ(Read(folder.Path("new"), 0), "");
    EXPECT_EQ(folder.Count(), 2);
}

TEST_F(Files, ThatAreMissingAreToldFromThoseThatCannotBeRead) {
    const auto Fail = [](const std::string& strPath, const char* strReason) {
        return "\"" + strPath + "\" could not be read: " + strReason + ".";
    };
    EXPECT_EQ(Read(strFile, 4), Fail(strFile, "File too large"));
    EXPECT_EQ(Read(folder.Path(), 100), Fail(folder.Path(), "It is no regular file"));
    for (const std::string& strPath : {folder.Path("missing"), strFile + "/below", std::string()})
        EXPECT_EQ(Read(strPath, 100), "missing") << strPath;
}

TEST_F(Files, ThatCannotBeReplacedAreNamedInOneSentence) {
    for (const std::string& strPath :
         {strFile + "/below", folder.Path("missing/file"), folder.MakeFolder("folder")}) {
        const std::string strReason = ReplaceFile(files, strPath, "new").value_or("");
        EXPECT_TRUE(strReason.starts_with("\"" + strPath + "\" could not be written: "));
        EXPECT_TRUE(strReason.ends_with(".") && !strReason.ends_with(": .")) << strReason;
    }
    EXPECT_EQ(Read(strFile, 5), "12345");
    EXPECT_EQ(folder.Count(), 2);
}

TEST_F(Files, AreLockedByOneAtATime) {
    auto first = std::make_unique<FileLock>(files, strFile);
    FileLock second(files, strFile);
    EXPECT_EQ(first->TryLock(0), LockOutcome::Locked);
    EXPECT_EQ(second.TryLock(30), LockOutcome::HeldElsewhere);
    EXPECT_EQ(FileLock(files, folder.Path("other")).TryLock(0), LockOutcome::Locked);
    std::thread release([&first] {
        std::this_thread::sleep_for(std::chrono::milliseconds(60));
        first.reset();
    });
    EXPECT_EQ(second.TryLock(10'000), LockOutcome::Locked) << "it waits for the holder";
    release.join();

    FileLock nowhere(files, folder.Path("missing/file"));
    const auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(nowhere.TryLock(60'000), LockOutcome::Failed);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
}

TEST_F(Files, LockedByACopyThatIsGoneAreLockedAnew) {
    for (const char* const strContent : {"", "1\ncellora\nanother computer\n"}) {
        folder.WriteBytes("file.lock", strContent);
        EXPECT_EQ(FileLock(files, folder.Path("file")).TryLock(0), LockOutcome::Locked);
        EXPECT_EQ(folder.Count(), 1) << "no lock file stays";
    }
}

TEST_F(Files, OfTheProgramLieBesideItOrInTheUsersFolder) {
    const std::string strProgram = folder.MakeFolder("program");
    const std::string strData = folder.Path("some/new/data");
    EXPECT_EQ(GetProgramFolder(files, strProgram, strData), strProgram);
    EXPECT_FALSE(PathExists(files, strData)) << "it is made only when it is needed";
    EXPECT_TRUE(std::filesystem::is_empty(strProgram));
    for (const std::string& strUnusable : {strFile + "/program", folder.Path("missing")})
        EXPECT_EQ(GetProgramFolder(files, strUnusable, strData), strData);
    EXPECT_TRUE(std::filesystem::is_directory(strData));
}

/// Disks on which nothing can be created in some folders, for a reason each.
class UnwritableFiles final : public SystemFiles {
public:
    std::error_code Create(const std::string& strPath, const std::string& strLike,
                           FileHandle& file) override {
        for (const auto& [strFolder, error] : errors)
            if (strPath.starts_with(strFolder))
                return std::make_error_code(error);
        return SystemFiles::Create(strPath, strLike, file);
    }

    std::map<std::string, std::errc> errors;
};

TEST_F(Files, OfTheProgramStayWhereTheyCanBeReadOrTheDiskIsFull) {
    constexpr auto refused = std::errc::permission_denied;
    UnwritableFiles unwritable;
    const std::string strProgram = folder.MakeFolder("program");
    const std::string strData = folder.MakeFolder("data");
    const auto Find = [&](std::map<std::string, std::errc> errors) {
        unwritable.errors = std::move(errors);
        return GetProgramFolder(unwritable, strProgram, strData);
    };
    EXPECT_EQ(Find({{strProgram, std::errc::no_space_on_device}}), strData) << "nothing is there";
    folder.WriteBytes("program/cl.ini", "");
    EXPECT_EQ(Find({{strProgram, std::errc::no_space_on_device}}), strProgram);
    EXPECT_EQ(Find({{strProgram, std::errc::read_only_file_system}}), strData);
    EXPECT_EQ(Find({{strProgram, refused}, {strData, refused}}), strProgram);
    folder.WriteBytes("data/hof.clh", "");
    EXPECT_EQ(Find({{strProgram, refused}, {strData, refused}}), strData);
}

TEST_F(Files, LeftByKilledWritesGoWhenTheyAreOld) {
    const std::string strOld = folder.MakeFolder("old");
    const auto Make = [&](const std::string& strName, int intHours) {
        std::filesystem::last_write_time(folder.WriteBytes("old/" + strName, "x"),
                                         std::filesystem::file_time_type::clock::now() -
                                             std::chrono::hours(intHours));
    };
    const auto aKept = std::to_array<std::string>(
        {"hof.clh.backup", "hof.clh.SaveIt", "hof.clh.BEFORE", "cl.ini.oldABC", "game.clp.aBCdEf",
         "hof.clh.damaged", ".cellora-0123456789aX.tmp", ".cellora-0123456789ab.tmp.bak"});
    for (const std::string& strName : aKept)
        Make(strName, 1000);
    for (const char* const strName :
         {".cellora-0123456789ab.tmp", "hof.clh.aBCdEf", "cl.ini.qRsTUv", "QtProject.conf.gErtbG"})
        Make(strName, 2);
    const std::string strNew = MakeTemporaryName();
    Make(strNew, 0);
    RemoveOldTemporaries(files, strOld);
    RemoveOldTemporaries(files, folder.Path("missing"));
    std::vector<std::string> names;
    EXPECT_FALSE(files.ListFolder(strOld, names));
    EXPECT_EQ(names.size(), aKept.size() + 1);
    for (const std::string& strName : aKept)
        EXPECT_TRUE(FileExists(files, strOld + "/" + strName)) << strName;
    EXPECT_TRUE(FileExists(files, strOld + "/" + strNew));
}

TEST_F(Files, AsShippedFillOnlyGaps) {
    constexpr std::array aFiles = {ShippedFile{"cl.ini", "[general]\r\n"},
                                   ShippedFile{"hof.clh", "1\r\n"}, ShippedFile{"third", "3"}};
    folder.WriteBytes("cl.ini", "");
    PlaceShippedFiles(files, folder.Path(), aFiles);
    PlaceShippedFiles(files, folder.Path("missing"), aFiles);
    EXPECT_EQ(folder.ReadBytes("cl.ini"), "") << "an empty file exists";
    EXPECT_EQ(folder.ReadBytes("hof.clh") + folder.ReadBytes("third"), "1\r\n3");
    EXPECT_EQ(folder.Count(), 4) << "no lock file stays";
}

#ifndef _WIN32

TEST_F(Files, BehindALinkAreReplacedWithTheirMode) {
    using std::filesystem::perms;
    std::filesystem::permissions(strFile, perms::owner_read | perms::owner_write);
    std::filesystem::create_symlink(strFile, folder.Path("link"));
    EXPECT_EQ(ReplaceFile(files, folder.Path("link"), "new"), std::nullopt);
    EXPECT_TRUE(std::filesystem::is_symlink(folder.Path("link")));
    EXPECT_EQ(Read(strFile, 5), "new");
    EXPECT_EQ(std::filesystem::status(strFile).permissions(),
              perms::owner_read | perms::owner_write);
}

TEST_F(Files, ThatMayNotGrowAreWritesThatFail) {
    ChildProcess program([this](const auto&) {
        const rlimit limit{100, 100};
        IgnoreFileSizeSignal();
        return setrlimit(RLIMIT_FSIZE, &limit) == 0 &&
               ReplaceFile(files, strFile, std::string(5000, 'n'));
    });
    EXPECT_EQ(program.End(0), 0);
    EXPECT_EQ(Read(strFile, 5), "12345");
    EXPECT_EQ(folder.Count(), 1);
}

TEST_F(Files, LockedByACopyThatIsKilledAreFree) {
    ChildProcess program([this](const auto& fnTell) {
        FileLock lock(files, strFile);
        while (lock.TryLock(0) == LockOutcome::Locked)
            fnTell();
        return pause() == 0;
    });
    ASSERT_TRUE(program.TakeStep());
    EXPECT_EQ(FileLock(files, strFile).TryLock(0), LockOutcome::HeldElsewhere);
    EXPECT_EQ(program.End(SIGKILL), -SIGKILL);
    EXPECT_EQ(FileLock(files, strFile).TryLock(0), LockOutcome::Locked);
}

TEST_F(Files, OfTheUserFollowTheEnvironment) {
    setenv("HOME", "/home/player", 1);
    setenv("XDG_DATA_HOME", "/data", 1);
    EXPECT_EQ(GetUserDataFolder(), "/data/cellora");
    for (const char* const strUnusable : {"", "relative"}) {
        setenv("XDG_DATA_HOME", strUnusable, 1);
        EXPECT_EQ(GetUserDataFolder(), "/home/player/.local/share/cellora");
    }
}

#endif

} // namespace
} // namespace cellora
