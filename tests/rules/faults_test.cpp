#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <ostream>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "core/modCellora.h"
#include "rules/completion.h"
#include "rules/game_file.h"
#include "rules/hall_of_fame.h"
#include "rules/options.h"
#include "rules/recovery.h"
#include "rules/start_up.h"
#include "store/program_folder.h"
#include "tests/support/faulty_files.h"
#include "tests/support/idle_desktop.h"
#include "tests/support/temporary_folder.h"

namespace cellora {
namespace {

using Fault = FaultyFiles::Fault;

constexpr const char* strGame = "games/game.clp";
constexpr const char* strList = "home/hof.clh";

/// The files by their names, without what a kill may leave behind.
using Disk = std::map<std::string, std::string>;

Disk ReadDisk(const TemporaryFolder& folder) {
    Disk disk;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder.Path())) {
        const std::string strName = entry.path().lexically_relative(folder.Path()).generic_string();
        if (entry.is_regular_file() && entry.path().extension() != ".lock" &&
            !IsTemporaryName(entry.path().filename().string()))
            disk[strName] = folder.ReadBytes(strName);
    }
    return disk;
}

void WriteDisk(const TemporaryFolder& folder, const Disk& disk) {
    for (const auto& entry : std::filesystem::directory_iterator(folder.Path()))
        std::filesystem::remove_all(entry.path());
    for (const char* const strFolder : {"home/.recovery", "games"})
        folder.MakeFolder(strFolder);
    for (const auto& [strName, bytes] : disk)
        folder.WriteBytes(strName, bytes);
}

/// A game is known by the digit in its first cell. It is full without a mistake when that is 5.
SavedGame MakeGame(const char* strDigit) {
    SavedGame savedGame;
    savedGame.lngMinutes = 3;
    savedGame.statistics.lblLevel = "Level 3";
    for (SavedCell& cell : savedGame.cells)
        cell.strSolution = cell.strEntry = "5";
    savedGame.cells[1].strEntry = strDigit;
    return savedGame;
}

/// The files of a player who has changed his settings, saved two games and played for best times.
Disk MakeDisk(const TemporaryFolder& folder) {
    HallOfFame list = MakeEmptyHallOfFame();
    list[3].fill({"Player", 0, 5, 0});
    return {{"home/cl.ini", "[general]\r\npath=" + folder.Path("home") +
                                "\r\nstartup=0\r\n[color]\r\ngridx=1\r\n[view]\r\nstatusbar=False"
                                "\r\ntoolbar=False\r\nnumberselector=False\r\nstatistics=False\r\n"
                                "cellerrors=False\r\nzoom=150\r\n"},
            {strList, FormatHallOfFame(list)},
            {strGame, FormatSavedGame(MakeGame("1"))},
            {"games/other.clp", FormatSavedGame(MakeGame("9"))}};
}

/// One run of the program, up to an end without a goodbye. The player gives the same answer to each
/// question, saves elsewhere only where told, and has a name for the best times.
class Session final : public IdleDesktop {
public:
    /// The end while a name is asked for.
    struct Killed {};

    Session(const TemporaryFolder& folder, Answer answer) : folder_(folder), answer_(answer) {
        game.strProgramFolder = folder.Path("home");
    }

    Answer ShowMessageBox(const MessageBox& box) override {
        recovery.Observe(game);
        if (box.icon == MessageIcon::Exclamation)
            complaints.insert(box.strTitle);
        return box.buttons == MessageButtons::Ok ? Answer::Ok : answer_;
    }

    std::optional<std::string> PickFile(const FileRequest& request) override {
        recovery.Observe(game);
        return request.purpose == FilePurpose::Open ? folder_.Path("games/other.clp")
                                                    : strPickedFile;
    }

    void ShowModal(ModalWindow) override {
        NoteName(game, "Jane");
        recovery.Observe(game);
        if (SaveHallOfFameEntry(game, "Jane") && SaveHallOfFameEntry(game, "Jane"))
            throw Killed();
    }

    void Start() {
        const std::string strNoTimes = FormatHallOfFame(MakeEmptyHallOfFame());
        RemoveOldTemporaries(files, game.strProgramFolder);
        PlaceShippedFiles(files, game.strProgramFolder,
                          std::array{ShippedFile{"cl.ini", "[general]\r\npath=\r\n"},
                                     ShippedFile{"hof.clh", strNoTimes}});
        LoadMainWindow(game);
        recovery.OfferToRestore(game);
        Keep();
    }

    void Keep() {
        recovery.Observe(game);
        recovery.tmrRecovery_Timer(game);
        recovery.Wait();
    }

    void Play(const char* strDigit) {
        if (!game.blnGameActive())
            ShowSavedGame(game, MakeGame("1"));
        game.phase = Phase::Playing;
        game.strGameFile = folder_.Path(strGame);
        game.cells[1].strEntry = strDigit;
        game.blnGameChanged = true;
    }

    void Complain(const std::optional<std::string>& strReason) {
        if (strReason)
            ShowHallOfFameError(game, *strReason);
    }

    void End() {
        MayClose(game);
        recovery.Observe(game);
        UnloadMainWindow(game);
        recovery.End(game);
    }

private:
    const TemporaryFolder& folder_;
    Answer answer_;

public:
    FaultyFiles files;
    Game game{*this, files};
    Recovery recovery{files, folder_.Path("home")};
    std::set<std::string> complaints; ///< the titles
};

/// What is there when the run ends without a goodbye: the game, in a file of the player's or at the
/// next start, or the score.
enum class Promise { None, Game, Score };

struct Operation {
    const char* strName;
    const char* strFile;  ///< that the player asked for
    const char* strTitle; ///< of the complaint when it could not be written
    Promise promise;
    void (*fnPrepare)(Session& session);
    void (*fnRun)(Session& session);
    bool blnStarts = false; ///< what is prepared is an earlier run
    Answer answer = Answer::Yes;
    void (*fnArrange)(Disk& disk) = [](Disk&) {};
};

void PrintTo(const Operation& operation, std::ostream* stream) {
    *stream << operation.strName;
}

void Nothing(Session&) {}

void Play(Session& session) {
    session.Start();
    session.Play("2");
}

void PlayOn(Session& session) {
    Play(session);
    session.Keep();
}

void Win(Session& session) {
    session.Start();
    session.Play("5");
    session.game.phase = Phase::Finished;
    session.game.score.blnWaits = true;
    session.Keep();
}

void Start(Session& session) {
    session.Start();
}

void EnterName(Session& session) {
    session.Complain(SaveHallOfFameEntry(session.game, "Jane"));
}

void End(Session& session) {
    session.End();
}

const Operation aOperations[] = {
    {"Save", strGame, "Can't Save File", Promise::Game, PlayOn,
     [](Session& session) { SaveGame(session.game); }},
    {"SaveAs", "games/game.clp-as", nullptr, Promise::Game, PlayOn,
     [](Session& session) {
         session.strPickedFile = session.game.strGameFile + "-as";
         SaveGameAs(session.game);
     }},
    {"Open", strGame, "Can't Save File", Promise::Game, PlayOn,
     [](Session& session) {
         OpenGame(session.game);
         session.Keep();
     }},
    {"Options", nullptr, nullptr, Promise::Game, PlayOn,
     [](Session& session) { ApplyOptions(session.game, {}); }},
    {"EnterName", strList, "Hall of Fame", Promise::Game, PlayOn, EnterName},
    {"EnterNameInADamagedList", strList, "Hall of Fame", Promise::Game, PlayOn, EnterName, false,
     Answer::Yes, [](Disk& disk) { disk[strList].resize(5000); }},
    {"Reset", strList, "Hall of Fame", Promise::Game, PlayOn,
     [](Session& session) { session.Complain(ResetHallOfFame(session.game)); }},
    {"FirstCopy", nullptr, nullptr, Promise::None, Play, [](Session& session) { session.Keep(); }},
    {"NextCopy", nullptr, nullptr, Promise::Game, PlayOn,
     [](Session& session) {
         session.Play("3");
         session.Keep();
     }},
    {"FirstStart", nullptr, nullptr, Promise::None, Nothing, Start, true, Answer::Yes,
     [](Disk& disk) { disk.clear(); }},
    {"StartAndEnd", nullptr, nullptr, Promise::None, Nothing,
     [](Session& session) {
         session.Start();
         session.game.settings.blnToolbar = true;
         session.game.settings.intZoom = intPlainZoom;
         session.End();
     }},
    {"StartWithAGame", nullptr, nullptr, Promise::Game, PlayOn, Start, true},
    {"StartWithAScore", nullptr, nullptr, Promise::Score, Win, Start, true},
    {"StartWithAnOldCopy", nullptr, nullptr, Promise::Game, Nothing, Start, true, Answer::Yes,
     [](Disk& disk) {
         disk["home/recovery.clp"] = FormatSavedGame(MakeGame("2"));
         disk["home/recovery.clp.lock"] = "1";
     }},
    {"StartWithADamagedCopy", nullptr, nullptr, Promise::None, Nothing, Start, true, Answer::Yes,
     [](Disk& disk) { disk["home/.recovery/copy-1"] = "damaged"; }},
    {"EndWithYes", strGame, "Can't Save File", Promise::Game, PlayOn, End},
    {"EndWithNo", nullptr, nullptr, Promise::None, PlayOn, End, false, Answer::No},
};

class Faults : public testing::TestWithParam<Operation> {
protected:
    /// What an operation leaves behind.
    struct Outcome {
        Disk before;
        Disk disk;
        std::string strDigit; ///< of the game in memory
        std::set<std::string> complaints;
        bool blnUnsaved = false;
        int intCalls = 0;
    };

    static std::string Get(const Disk& disk, const std::string& strName) {
        const auto found = disk.find(strName);
        return found == disk.end() ? "missing" : found->second;
    }

    Outcome Do(Fault fault, int intCall, std::errc error, const std::function<void()>& fnRenamed) {
        Disk disk = MakeDisk(folder);
        operation.fnArrange(disk);
        WriteDisk(folder, disk);
        std::optional<Session> session(std::in_place, folder, operation.answer);
        operation.fnPrepare(*session);
        if (operation.blnStarts)
            session.emplace(folder, operation.answer);
        Outcome outcome;
        outcome.before = ReadDisk(folder);
        session->files.fnRenamed = fnRenamed;
        session->files.Break(fault, intCall, error);
        try {
            operation.fnRun(*session);
        } catch (const Session::Killed&) {
        }
        session->recovery.Wait();
        outcome.intCalls = session->files.calls();
        outcome.disk = ReadDisk(folder);
        outcome.strDigit = session->game.cells[1].strEntry;
        outcome.complaints = session->complaints;
        outcome.blnUnsaved = session->game.blnGameChanged;
        return outcome;
    }

    /// The contents that the files have one after the other when nothing fails.
    void Note(const Disk& disk) {
        for (const auto& [strName, bytes] : disk)
            contents[strName].insert(bytes);
    }

    void ExpectWhole(const Outcome& now) {
        for (const auto& [strName, bytes] : now.disk) {
            // A second place is as good as the first, which could not be examined.
            std::string strLike = strName;
            if (strName.ends_with("-2"))
                strLike.replace(strName.size() - 2, 2, strName.ends_with("copy-2") ? "-1" : "");
            EXPECT_TRUE(contents[strLike].contains(bytes))
                << strName << " has " << bytes.size() << " bytes";
        }
        const auto IsKept = [](const Disk& disk, const std::string& bytes) {
            return std::ranges::count(disk, bytes, &Disk::value_type::second) > 0;
        };
        for (const auto& [strName, bytes] : now.before) {
            EXPECT_TRUE(now.disk.contains(strName) || !after.disk.contains(strName)) << strName;
            EXPECT_TRUE(IsKept(now.disk, bytes) || !IsKept(after.disk, bytes)) << strName;
        }
    }

    void ExpectTold(const Outcome& now) {
        if (operation.strFile == nullptr)
            return;
        const bool blnNew = Get(now.disk, operation.strFile) == Get(after.disk, operation.strFile);
        const bool blnTold = operation.strTitle != nullptr
                                 ? now.complaints.contains(operation.strTitle)
                                 : now.blnUnsaved;
        EXPECT_EQ(blnTold, !blnNew);
    }

    void ExpectKept(const Outcome& now) {
        Session next(folder, Answer::Yes);
        next.Start();
        if (operation.promise == Promise::Score) {
            EXPECT_TRUE(Get(ReadDisk(folder), strList) == Get(after.disk, strList));
        }
        if (operation.promise != Promise::Game)
            return;
        const auto IsIt = [&](const std::string& strDigit) {
            return strDigit == "2" || strDigit == after.strDigit;
        };
        EXPECT_TRUE(operation.blnStarts || IsIt(now.strDigit)) << "in memory";
        const auto saved = ParseSavedGame(Get(now.disk, strGame));
        EXPECT_TRUE(IsIt(next.game.cells[1].strEntry) || (saved && IsIt(saved->cells[1].strEntry)));
    }

    const Operation& operation = GetParam();
    const TemporaryFolder folder{GetQuickDisk()};
    std::map<std::string, std::set<std::string>> contents;
    Outcome after; ///< without a fault
};

TEST_P(Faults, LoseNothing) {
    after = Do(Fault::Error, 0, {}, [this] { Note(ReadDisk(folder)); });
    Note(after.before);
    Note(after.disk);
    const auto Try = [this](Fault fault, int intCall, std::errc error) {
        SCOPED_TRACE("call " + std::to_string(intCall) + ", fault " +
                     std::to_string(static_cast<int>(fault)) + ", " +
                     std::make_error_code(error).message());
        const Outcome now = Do(fault, intCall, error, {});
        ExpectWhole(now);
        ExpectTold(now);
        ExpectKept(now);
    };
    for (int intCall = 1; intCall <= after.intCalls; ++intCall) {
        for (const std::errc error : {std::errc::no_space_on_device, std::errc::io_error,
#ifdef EDQUOT
                                      std::errc{EDQUOT},
#endif
                                      std::errc::read_only_file_system,
                                      std::errc::permission_denied, std::errc::not_supported})
            Try(Fault::Error, intCall, error);
        for (const Fault fault : {Fault::CutRead, Fault::Full, Fault::Kill})
            Try(fault, intCall, std::errc::io_error);
    }
    RecordProperty("calls", after.intCalls);
}

INSTANTIATE_TEST_SUITE_P(, Faults, testing::ValuesIn(aOperations),
                         [](const auto& param) { return param.param.strName; });

} // namespace
} // namespace cellora
