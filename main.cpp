#include <random>

#include <QApplication>

#include "store/program_folder.h"
#include "ui/look.h"
#include "ui/start.h"
#include "ui/text.h"

namespace {

/// Two starts differ, also in the same second of two days.
std::uint64_t DrawRandomState() {
    std::random_device device;
    return (static_cast<std::uint64_t>(device()) << 32U) | device();
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(cellora::ToQString(cellora::strProductName));
    QApplication::setQuitOnLastWindowClosed(false);
    cellora::ApplyLook();
    const std::string strExecutableFolder =
        cellora::ToStdString(QApplication::applicationDirPath());
    cellora::Program program(
        [strExecutableFolder] {
            return cellora::GetProgramFolder(strExecutableFolder, cellora::GetUserDataFolder());
        },
        DrawRandomState());
    program.Main();
    return QApplication::exec();
}
