// SPDX-License-Identifier: MPL-2.0
#include "DecodageUtf8.h"

#include <cstring>
#include <limits>
#include <new>

QString DecodeUtf8(char const* octets, std::size_t taille) {
    if (taille > static_cast<std::size_t>(std::numeric_limits<int>::max())) {
        throw std::bad_alloc();
    }
    // Qt takes a leading byte order mark away, and offsets into the text would then be one short.
    constexpr char kMarque[] = "\xEF\xBB\xBF";
    constexpr std::size_t kTailleMarque = 3;
    if (taille >= kTailleMarque && std::memcmp(octets, kMarque, kTailleMarque) == 0) {
        return QChar(QChar::ByteOrderMark) +
               DecodeUtf8(octets + kTailleMarque, taille - kTailleMarque);
    }
    return QString::fromUtf8(octets, static_cast<int>(taille));
}
