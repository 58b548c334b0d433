#include "store/modCommon_INI.h"

#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

#include <random>

namespace cellora {
namespace {

class ModCommonINI : public testing::Test {
protected:
    std::string Read(std::string_view strText, const char* strSection = "view",
                     const char* strKey = "toolbar") {
        return ReadINI(strSection, strKey, folder_.WriteBytes("cl.ini", strText));
    }

    /// The file's bytes after the write.
    std::string Write(std::string_view strText, const std::string& strValue,
                      const char* strSection = "view", const char* strKey = "toolbar") {
        WriteINI(strSection, strKey, strValue, folder_.WriteBytes("cl.ini", strText));
        return folder_.ReadBytes("cl.ini");
    }

    const TemporaryFolder folder_;
};

TEST_F(ModCommonINI, ReadsTheValueOutOfHandEditedText) {
    const char* const texts[] = {
        "[view]\r\ntoolbar=found\r\n",
        "[view]\ntoolbar=found",
        "[view]\rtoolbar=found\r",
        "\xEF\xBB\xBF[view]\ntoolbar=found",
        "[VIEW]\nToolBar=found\n",
        "  [ view ] ; the panes\n\t toolbar \t=  found\t \n",
        "[view]\ntoolbar=\"found\"\n",
        "[view]\ntoolbar = 'found' \n",
        "; [view]\n[other]\ntoolbar=no\n[view]\n;toolbar=no\ntoolbars=no\ntoolbar\ntoolbar=found\n",
        "[view]\ntoolbar=found\ntoolbar=no\n[view]\ntoolbar=no\n",
        "toolbar=no\n[view\ntoolbar=no\n[]\ntoolbar=no\n=no\n[view]x\n\n\ntoolbar=found",
    };
    for (const char* strText : texts) {
        EXPECT_EQ(Read(strText), "found") << strText;
    }
}

TEST_F(ModCommonINI, KeepsWhatBelongsToTheValue) {
    EXPECT_EQ(Read("[view]\ntoolbar=a=b;c [d]\n"), "a=b;c [d]");
    EXPECT_EQ(Read("[view]\ntoolbar=\"\"a\"\"\n"), "\"a\"") << "one pair of quotes";
    EXPECT_EQ(Read("[view]\ntoolbar=\" a \"\n"), " a ");
    EXPECT_EQ(Read("[view]\ntoolbar=\"a'\n"), "\"a'");
    EXPECT_EQ(Read("[view]\ntoolbar=\"\n"), "\"");
    EXPECT_EQ(Read("[view]\ntoolbar=\xC3\xA4\xFF\n"), "\xC3\xA4\xFF");
}

TEST_F(ModCommonINI, ReadsNothingWhereNothingIs) {
    for (const char* strText :
         {"", "\n\n", "\xEF\xBB\xBF", "[view]", "[view]\ntoolbar=", "[", "[view]\ntoolbar = \t\n",
          "[view]\ntoolbar=''\n", "[view]\n[other]\ntoolbar=1\n[view]\ntoolbar=1\n"}) {
        EXPECT_EQ(Read(strText), "") << strText;
    }
    EXPECT_EQ(ReadINI("view", "toolbar", folder_.Path("missing")), "");
    EXPECT_EQ(ReadINI("view", "toolbar", folder_.Path()), "");
}

TEST_F(ModCommonINI, CutsAValueTo254Characters) {
    const auto ReadValue = [this](const std::string& strValue) {
        return Read("[view]\ntoolbar=" + strValue + "\n");
    };
    const std::string strLimit(254, 'x');
    EXPECT_EQ(ReadValue(strLimit), strLimit);
    EXPECT_EQ(ReadValue(strLimit + "y"), strLimit);
    EXPECT_EQ(ReadValue("\"" + strLimit + "\""), strLimit) << "quotes do not count";
    std::string strWide;
    for (int n = 0; n < 127; ++n) {
        strWide += "\xC3\xA4\xF0\x9F\x8E\xB2";
    }
    EXPECT_EQ(ReadValue(strWide + "\xC3\xA4"), strWide);
    EXPECT_EQ(ReadValue(std::string(300, '\x80')), std::string(254, '\x80'));
    EXPECT_EQ(ReadValue(strLimit.substr(1) + "\xC3"), strLimit.substr(1) + "\xC3");

    EXPECT_EQ(Write("", std::string(300, 'x')),
              "[view]\r\ntoolbar=" + std::string(300, 'x') + "\r\n")
        << "stored whole";
}

TEST_F(ModCommonINI, ReplacesAValueInItsLineAndNothingElse) {
    const std::string strBefore =
        "\xEF\xBB\xBF; mine\n\r\n[Other]\rtoolbar=1\n\n[View]\r\n;toolbar=0\n"
        " ToolBar =  ";
    const std::string strAfter = "\n\n \ntoolbar=second\r\n[view]\ntoolbar=third\nbytes=\xFF\xFE\r";
    EXPECT_EQ(Write(strBefore + "True \t" + strAfter, "False"), strBefore + "False" + strAfter);
    EXPECT_EQ(Write(strBefore + strAfter, "False"), strBefore + "False" + strAfter);
    EXPECT_EQ(Write(strBefore + "x" + strAfter, ""), strBefore + strAfter);
    EXPECT_EQ(Write("[view]\ntoolbar=1", "0"), "[view]\ntoolbar=0") << "no line end to keep";
}

TEST_F(ModCommonINI, PutsANewKeyBehindTheLastLineOfItsSection) {
    EXPECT_EQ(Write("[view]\na=1\n;end\n\n \n[color]\r\nb=2\r\n", "0"),
              "[view]\na=1\n;end\ntoolbar=0\n\n \n[color]\r\nb=2\r\n");
    EXPECT_EQ(Write("[view]\r\n[color]\n", "0"), "[view]\r\ntoolbar=0\r\n[color]\n");
    EXPECT_EQ(Write("[color]\r\n[view]\na=1", "0"), "[color]\r\n[view]\na=1\r\ntoolbar=0\r\n");
    EXPECT_EQ(Write("[view]\ra=1\r\r", "0"), "[view]\ra=1\rtoolbar=0\r\r");
    EXPECT_EQ(Write("\xEF\xBB\xBF[view]", "0"), "\xEF\xBB\xBF[view]\r\ntoolbar=0\r\n");
}

TEST_F(ModCommonINI, PutsANewSectionAtTheEnd) {
    EXPECT_EQ(Write("", "0"), "[view]\r\ntoolbar=0\r\n");
    EXPECT_EQ(Write("\xEF\xBB\xBF", "0"), "\xEF\xBB\xBF[view]\r\ntoolbar=0\r\n");
    EXPECT_EQ(Write("[color]\na=1", "0"), "[color]\na=1\n[view]\ntoolbar=0\n");
    EXPECT_EQ(Write("[color]\n\n", "0"), "[color]\n\n[view]\ntoolbar=0\n");
    WriteINI("general", "path", "/games", folder_.Path("new.ini"));
    EXPECT_EQ(folder_.ReadBytes("new.ini"), "[general]\r\npath=/games\r\n");
}

TEST_F(ModCommonINI, ReadsBackEveryValueItWrites) {
    std::mt19937 random(20);
    constexpr std::string_view strAlphabet = "a \t\"'=;[]\xC3\xA4";
    for (int n = 0; n < 300; ++n) {
        std::string strValue(random() % 6, 'x');
        for (char& c : strValue) {
            c = strAlphabet[random() % strAlphabet.size()];
        }
        const std::string strText = Write("[view]\r\nlast=1\r\n", strValue);
        EXPECT_EQ(ReadINI("VIEW", "TOOLBAR", folder_.Path("cl.ini")), strValue) << strText;
        EXPECT_EQ(ReadINI("view", "last", folder_.Path("cl.ini")), "1") << strText;
    }
}

TEST_F(ModCommonINI, WritesNoTextThatCouldNotBeReadBack) {
    const std::string strText = "[view]\ntoolbar=1\n";
    EXPECT_EQ(Write(strText, "a\nb=c"), strText);
    EXPECT_EQ(Write(strText, "a\rb"), strText);
    for (const char* strName : {"", "a\nb", "a]", " a"}) {
        EXPECT_EQ(Write(strText, "x", strName), strText) << strName;
    }
    for (const char* strName : {"", "a\rb", "a=b", "[a", ";a", "a "}) {
        EXPECT_EQ(Write(strText, "x", "view", strName), strText) << strName;
    }
}

TEST_F(ModCommonINI, ChangesOneValueOfAVeryLargeFile) {
    std::string strBefore = "[view]\r\n";
    while (strBefore.size() < 4'000'000) {
        strBefore += "; a comment nobody reads\nkey" + std::to_string(strBefore.size()) + "=x\r\n";
    }
    const std::string strAfter = "\n[color]\n" + std::string(4'000'000, 'y');
    EXPECT_EQ(Write(strBefore + "toolbar=1" + strAfter, "0"), strBefore + "toolbar=0" + strAfter);
    EXPECT_EQ(ReadINI("view", "toolbar", folder_.Path("cl.ini")), "0");
}

TEST_F(ModCommonINI, LeavesAFileOfMoreThan16MiBAlone) {
    const auto Fill = [](std::string strText, std::size_t lngSize) {
        return strText.append(lngSize - strText.size(), ';');
    };
    const std::string strLargest = Fill("[view]\ntoolbar=old\n", lngMaxINIBytes);
    EXPECT_EQ(Read(strLargest), "old");
    EXPECT_TRUE(Write(strLargest, "new") == Fill("[view]\ntoolbar=new\n", lngMaxINIBytes));
    EXPECT_TRUE(Write(strLargest, "newer") == strLargest) << "it could not be read again";
    EXPECT_EQ(Read(strLargest + ";"), "");
    EXPECT_TRUE(Write(strLargest + ";", "new") == strLargest + ";");
}

TEST_F(ModCommonINI, AWriteThatCannotSucceedChangesNothing) {
    const std::string strPlain = folder_.WriteBytes("plain", "x");
    folder_.MakeFolder("cl.ini.d");
    WriteINI("view", "toolbar", "0", strPlain + "/cl.ini");
    WriteINI("view", "toolbar", "0", folder_.Path("cl.ini.d"));
    WriteINI("view", "toolbar", "0", folder_.Path("missing/cl.ini"));
    EXPECT_EQ(folder_.ReadBytes("plain"), "x");
    EXPECT_EQ(folder_.Count(), 2);
    EXPECT_TRUE(std::filesystem::is_empty(folder_.Path("cl.ini.d")));
}

} // namespace
} // namespace cellora
