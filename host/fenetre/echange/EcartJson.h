// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Lecture.h"

#include <QJsonObject>

#include <optional>

namespace hote {

/// A difference as JSON: {"debut": kept at the start, "fin": kept at the end, "zones": paragraphs}.
QJsonObject EnJson(Ecart const& ecart);

/// A paragraph, {"t": text, "l": [start, end, language, ...]}.
QJsonObject EnJson(ParagrapheDuDocument const& paragraphe);

/// Nothing when it is not such an object, or the runs of a paragraph do not cover its text in
/// order.
std::optional<ParagrapheDuDocument> LisParagraphe(QJsonObject const& objet);
std::optional<Ecart> LisEcart(QJsonObject const& objet);

} // namespace hote
