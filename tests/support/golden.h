#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

namespace cellora {

/// The parts one after the other, as they are written to a stream.
template <typename... Parts>
std::string Text(const Parts&... parts) {
    std::ostringstream text;
    (text << ... << parts);
    return text.str();
}

/// The place of a data file among the tests, "rules/expected/clock.txt".
inline std::filesystem::path GetTestFile(const std::string& strName) {
    return std::filesystem::path(CELLORA_TESTS) / strName;
}

inline std::string ReadTestFile(const std::string& strName) {
    std::ifstream file(GetTestFile(strName), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// Holds a text against a file beside the tests. With CELLORA_ACCEPT=1 in the environment the file
/// is rewritten instead, so that a deliberate change is one look at the difference.
inline void ExpectFile(const std::string& strName, const std::string& strActual) {
    if (std::getenv("CELLORA_ACCEPT") != nullptr) {
        std::ofstream(GetTestFile(strName), std::ios::binary) << strActual;
        return;
    }
    std::istringstream expected(ReadTestFile(strName));
    std::istringstream actual(strActual);
    std::string strThen;
    std::string strNow;
    for (int intLine = 1; expected || actual; ++intLine) {
        std::getline(expected, strThen);
        std::getline(actual, strNow);
        if (strThen != strNow || !expected != !actual) {
            ADD_FAILURE() << "tests/" << strName << ", line " << intLine << "\n  expected "
                          << strThen << "\n  now      " << strNow
                          << "\nCELLORA_ACCEPT=1 takes over what is now.";
            return;
        }
    }
}

/// Runs the commands of a script that lies beside the tests, the lines "> COMMAND", and holds what
/// they answer against the lines that stand below each. Lines with "#" and empty ones are kept.
inline void ExpectScript(const std::string& strName,
                         const std::function<std::string(const std::string&)>& fnRun) {
    std::istringstream script(ReadTestFile(strName));
    std::string strTranscript;
    for (std::string strLine; std::getline(script, strLine);) {
        if (strLine.empty() || strLine.starts_with('#'))
            strTranscript += strLine + '\n';
        if (strLine.starts_with("> "))
            strTranscript += strLine + '\n' + fnRun(strLine.substr(2));
    }
    ExpectFile(strName, strTranscript);
}

} // namespace cellora
