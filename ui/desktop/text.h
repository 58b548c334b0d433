#pragma once

#include <string>
#include <string_view>

#include <QDir>
#include <QString>

/// The one place where the rules' UTF-8 texts meet the toolkit's.
namespace cellora {

inline QString ToQString(std::string_view strText) {
    return QString::fromUtf8(strText.data(), static_cast<qsizetype>(strText.size()));
}

inline std::string ToStdString(const QString& strText) {
    return strText.toStdString();
}

/// A path of the toolkit's in the system's own form, with backslashes on Windows.
inline std::string ToPath(const QString& strPath) {
    return QDir::toNativeSeparators(strPath).toStdString();
}

/// A message's text: its line breaks become the toolkit's.
inline QString ToMessageText(std::string_view strText) {
    return ToQString(strText).replace(QLatin1String("\r\n"), QLatin1String("\n"));
}

} // namespace cellora
