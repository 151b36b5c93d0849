// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <memory>
#include <string>

namespace extension {

/// A place in a document that a person has a name for: a note, a cell, a slide. The paragraphs of a
/// text share theirs.
struct Endroit {
    enum class Genre {
        Corps,
        EnTete,
        PiedDePage,
        Note,
        NoteDeFin,
        Commentaire,
        Cadre,
        Forme,
        Titre, ///< of a slide
        Tableau,
        CelluleDeTableau,
        Feuille, ///< of a spreadsheet
        Cellule, ///< of a sheet
        Diapo,
        Notes, ///< of a slide
        Page,
    };

    Genre genre = Genre::Corps;
    int numero = 0;                        ///< among its like, from 1; 0: it has none
    std::u16string nom;                    ///< as the document has it; may be empty
    std::shared_ptr<Endroit const> autour; ///< what it stands on, where a person would say so
};

/// Where a paragraph stands.
struct Lieu {
    std::shared_ptr<Endroit const> endroit; ///< empty: not known
    int rang = 0;                           ///< which of its text's paragraphs, from 1
};

/// As a person would say it, in the office's language, in UTF-8: "paragraph 12", "A4 (Sheet1)",
/// "slide 2, title, paragraph 3". Empty where it is not known. Any thread.
std::string DisLieu(Lieu const& lieu);

/// A column and a row, from 0, as a spreadsheet has them: "A1". Any thread.
std::u16string NomDeCellule(int colonne, int ligne);

} // namespace extension
