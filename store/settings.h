#pragma once

#include <cstdint>
#include <string>

/// The values of the settings file, each read from and written to the file at the moment of
/// the call. `strPath` is the full path of the file. A value that is missing or damaged reads as
/// its default; a write that fails is ignored.
namespace cellora {

/// In the order in which the Options dialog writes them.
enum class ColorKey {
    ScreenBackground,
    GridBackground,
    GridLines,
    GridX,
    GridCursor,
    FontUser,
    FontComputer,
    GridIncorrectCell,
};

/// In the order in which they are read and written.
enum class ViewFlag { StatusBar, Toolbar, NumberSelector, Statistics, CellErrors };

/// A colour has red in its lowest byte, green in the next and blue in the third.
std::int32_t ReadColor(ColorKey key, const std::string& strPath);
void WriteColor(ColorKey key, std::int32_t lngColor, const std::string& strPath);

/// The words True and False in any letter case, or a number, of which only 0 is false. Default
/// true.
bool ReadViewFlag(ViewFlag flag, const std::string& strPath);
void WriteViewFlag(ViewFlag flag, bool blnShown, const std::string& strPath);

/// The disappearing cursor: 1 on, 0 off (default). A file edited by hand may hold any other number.
std::int16_t ReadCursorOption(const std::string& strPath);
void WriteCursorOption(std::int16_t intOption, const std::string& strPath);

/// Whether the Instructions window opens by itself: the number at the start of the text is
/// exactly 1. A text without one, or none, counts as 0.
bool OpensAtStartup(const std::string& strPath);
/// The same number rounded (halves to the even neighbour), as the "Show at startup" box takes it.
std::int32_t ReadStartup(const std::string& strPath);
void WriteStartup(bool blnShow, const std::string& strPath);

/// The initial folder of the file dialogs, empty by default; whether it exists is not checked.
std::string ReadGamePath(const std::string& strPath);
void WriteGamePath(const std::string& strFolder, const std::string& strPath);

} // namespace cellora
