#pragma once

#include <QString>

/// What the program says of itself.
namespace cellora {

QString GetProductName();

/// The three numbers of the version without padding: "1.2.5".
QString GetVersionText();

/// In Latin-1.
inline constexpr char strLegalNotice[] = "\xA9 2026 Cellora";

/// The maker's web address.
inline constexpr char strCompanyName[] = "https://www.cellora.example/";

inline constexpr char strComments[] =
    "Cellora is freeware: play it as often as you like and give copies to your friends, free of "
    "charge.\n\n"
    "It was made with care, but it comes as it is, without a warranty of any kind. You use it at "
    "your own risk, and its makers are not liable for any loss or damage that may come of it.";

} // namespace cellora
