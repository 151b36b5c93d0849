// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QStringRef>

namespace hote {

/// Is a stretch of text without spaces something that no dictionary should judge: an address of the
/// web, of mail or of a file, a mention, a tag, an identifier of a program? Quotes, brackets and
/// punctuation around it do not matter.
bool EstTechnique(QStringRef const& morceau);

} // namespace hote
