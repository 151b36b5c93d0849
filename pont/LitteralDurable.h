// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QString>

// Qt's QStringLiteral makes strings whose characters stand in the library's own read-only data. Qt
// keeps such strings beyond the library's life (the member name of a call that nobody answered, the
// application's name), and touching them once the library is unloaded crashes the host. Here the
// text is copied to the heap, once per place, and shared from there. Every unit of the plug-in is
// compiled with this header in front, generated ones too.
#undef QStringLiteral
#define QStringLiteral(texte)                                                                      \
    ([]() -> QString const& {                                                                      \
        static QString const copie = QString::fromUtf16(u"" texte);                                \
        return copie;                                                                              \
    }())
