// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QString>

/// The same text in memory of its own. The characters of a QStringLiteral stand in the library that
/// it was written in: whatever is kept here beyond the call, or given to Qt to keep, must not lie
/// in a connector that may be unloaded meanwhile. Any thread.
inline QString CopieDurable(QString const& texte) {
    return QString(texte.constData(), texte.size());
}
