// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace compagnon {

inline QString VersQString(std::u16string_view texte) {
    return QString::fromUtf16(texte.data(), static_cast<int>(texte.size()));
}
/// Bytes that are not UTF-8 become U+FFFD.
inline QString VersQString(std::string_view octets) {
    return QString::fromUtf8(octets.data(), static_cast<int>(octets.size()));
}
inline std::u16string VersUtf16(QString const& texte) {
    return texte.toStdU16String();
}
inline std::string VersUtf8(QString const& texte) {
    return texte.toStdString();
}

} // namespace compagnon
