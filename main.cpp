#include <cstdint>
#include <random>

#include <QApplication>

#include "store/process.h"
#include "store/program_folder.h"
#include "store/system_files.h"
#include "ui/desktop/look.h"
#include "ui/desktop/text.h"
#include "ui/desktop/version_info.h"
#include "ui/main/start.h"

namespace {

/// Two starts differ, also in the same second of two days.
std::uint64_t DrawRandomState() {
    std::random_device device;
    return (static_cast<std::uint64_t>(device()) << 32U) | device();
}

} // namespace

int main(int argc, char** argv) {
    cellora::IgnoreFileSizeSignal();
    QApplication application(argc, argv);
    QApplication::setApplicationName(cellora::GetProductName());
    QApplication::setQuitOnLastWindowClosed(false);
    cellora::ApplyLook();
    const std::string strExecutableFolder = cellora::ToPath(QApplication::applicationDirPath());
    cellora::Program program(
        [strExecutableFolder] {
            cellora::SystemFiles files;
            return cellora::GetProgramFolder(files, strExecutableFolder,
                                             cellora::GetUserDataFolder());
        },
        DrawRandomState());
    program.Main();
    return QApplication::exec();
}
