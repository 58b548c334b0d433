#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "store/file_port.h"

/// Single values of a text file of sections, keys and values:
///
///     ; a comment
///     [section]
///     key=value
///
/// Section and key names match without regard to ASCII case; the first section of a name and the
/// first key of a name in it count. Blanks around names and values do not belong to them. Paths and
/// texts are UTF-8, with or without a byte order mark; lines end with CR LF, LF or CR. No copy of
/// the file stays in memory between calls.
namespace cellora {

/// A larger file cannot be read, and none grows beyond it.
inline constexpr std::size_t lngMaxINIBytes = std::size_t{16} << 20U;

/// The value without the pair of quotes (" or ') that may enclose it, cut to its first 254
/// characters. Empty text when the section or the key does not exist or the file cannot be read.
std::string ReadINI(FilePort& files, const std::string& strSection, const std::string& strKey,
                    const std::string& strPath);

/// The same value in the content of a file.
std::string FindINI(std::string_view strFile, std::string_view strSection, std::string_view strKey);

/// Stores the value and writes the file through to disk, whole, unless it already holds exactly
/// these bytes. An existing value is replaced in its line; a new key goes behind the last line of
/// its section that is not blank, a new section to the end of the file, both with the line ending
/// of the file's first line (CR LF when there is none). Every other byte of the file stays. A value
/// that reading would change (a blank at an end, a pair of quotes) is stored in double quotes.
/// Nothing happens, and nothing is reported, when the file cannot be written, when it exists but
/// cannot be read, when it would become too large, and when a text could not be read back: one with
/// a line break, an empty name, a section with "]", a key with "=", "[" or ";", a name with blanks
/// around it.
void WriteINI(FilePort& files, const std::string& strSection, const std::string& strKey,
              const std::string& strValue, const std::string& strPath);

struct INIValue {
    std::string strSection;
    std::string strKey;
    std::string strValue;
    bool blnSpared = false; ///< only replaces a value, and adds none
};

/// Stores several values, in their order, by one replacement of the file. A text that could not be
/// read back is left out.
void WriteINI(FilePort& files, std::span<const INIValue> values, const std::string& strPath);

} // namespace cellora
