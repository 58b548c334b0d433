#include <filesystem>

#include <QtWidgets>

#include "tests/support/golden.h"
#include "tests/ui/machine.h"
#include "tests/ui/player.h"

namespace cellora {
namespace {

std::vector<std::string> ListScripts() {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(GetTestFile("ui/expected")))
        names.push_back(entry.path().stem().string());
    std::ranges::sort(names);
    return names;
}

/// What does not depend on the screen, a line each.
QStringList Trim(const std::string& strText) {
    static const QRegularExpression screen(QStringLiteral("(?m)^ *([-+] )?~.*\n|^    \\S.*:\n"));
    return QString::fromStdString(strText).remove(screen).split(u'\n');
}

class Script : public testing::TestWithParam<std::string> {};

TEST_P(Script, GoesAsWrittenDown) {
    if (GetParam() == "zoom" && !machine::IsExact())
        GTEST_SKIP() << "how far it goes is the screen's";
    const std::string strName = "ui/expected/" + GetParam() + ".txt";
    const std::string strScript = ReadTestFile(strName);
    const std::string strPlayed = PlayScript(QString::fromStdString(strScript)).toStdString();
    if (machine::IsExact())
        return ExpectFile(strName, strPlayed);
    const QStringList now = Trim(strPlayed);
    const QStringList written = Trim(strScript);
    for (qsizetype i = 0; i < std::max(now.size(), written.size()); ++i)
        ASSERT_EQ(now.value(i).toStdString(), written.value(i).toStdString()) << strName;
}

INSTANTIATE_TEST_SUITE_P(, Script, testing::ValuesIn(ListScripts()),
                         [](const auto& param) { return param.param; });

} // namespace
} // namespace cellora
