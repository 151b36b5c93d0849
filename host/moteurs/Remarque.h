// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace hote {

/// What a remark is about.
enum class GenreDeRemarque { Orthographe, Accord, Confusion, Typographie, Repetition, Style };

/// A run of a paragraph in one language: [debut, fin) in UTF-16 units of the paragraph.
struct EtendueDeLangue {
    int debut;
    int fin;
    QString langue; ///< BCP 47: "fr", "fr-CA", "en-GB"…; empty: not to be judged

    friend bool operator==(EtendueDeLangue const& a, EtendueDeLangue const& b) {
        return a.debut == b.debut && a.fin == b.fin && a.langue == b.langue;
    }
};

/// A text to be examined, with the languages of its parts.
struct ParagrapheAExaminer {
    QString texte;                        ///< fillers (U+0007, U+0011) as they stand in the zone
    std::vector<EtendueDeLangue> langues; ///< in order, without gaps, from 0 to the text's end
};

/// What an engine says of a range of a paragraph.
struct Remarque {
    int debut; ///< UTF-16 units of the paragraph, never inside a surrogate pair
    int fin;   ///< exclusive, beyond `debut`
    GenreDeRemarque genre;
    QString moteur;          ///< the engine's name: "hunspell", "grammalecte"…
    QString regle;           ///< the engine's name for the rule, stable
    QString explication;     ///< a sentence for the person; may be empty
    QStringList suggestions; ///< best first, may be empty
    double surete = 0.5;     ///< 0 to 1: how sure it is that this is wrong and the first mends it
};

/// The rule of words that look like names: nobody knows them, so a person is asked about each of
/// them once a document (compare words), not at each place.
inline constexpr char const* kRegleNom = "nom";

} // namespace hote
