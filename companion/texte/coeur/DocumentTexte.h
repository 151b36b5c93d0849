// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "EcritureSure.h"
#include "LectureFichier.h"
#include "Paragraphes.h"
#include "modele/Intervalle.h"
#include "modele/TexteSuivi.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace compagnon {

/// Names a zone for as long as the process lives; never used twice.
using NumeroZone = std::uint64_t;

/// Most UTF-16 units a document may grow to.
inline constexpr std::size_t kUnitesMax = std::size_t{32} << 20;

/// Where the selection is: a range (or a caret) of one zone.
struct Selection {
    std::size_t zone = 0; ///< its index
    Intervalle plage;
};

/// One open text file: its paragraphs, each a zone with a key of its own, and its selection. Knows
/// nothing of who asks. Ranges given here are the document's own and must stand in the zone.
class DocumentTexte {
  public:
    struct Zone {
        NumeroZone numero = 0;
        Paragraphe paragraphe;
    };

    /// `chemin`: as the person gave it, made absolute. Takes zone numbers from `prochainNumero` on.
    DocumentTexte(std::string cle, std::string chemin, LectureFichier lecture,
                  NumeroZone& prochainNumero);

    std::string const& DonneCle() const noexcept { return cle_; }
    std::string const& DonneChemin() const noexcept { return chemin_; }
    /// The last part of the path.
    std::string DonneTitre() const;

    std::vector<Zone> const& DonneZones() const noexcept { return zones_; }
    std::optional<std::size_t> IndexDe(NumeroZone numero) const noexcept;
    TextePartage const& DonneTexte(std::size_t zone) const noexcept {
        return zones_[zone].paragraphe.texte;
    }

    Selection const& DonneSelection() const noexcept { return selection_; }
    /// False, and nothing changes, where the range is not one of the zone, or parts a surrogate
    /// pair.
    bool Selectionne(std::size_t zone, Intervalle plage) noexcept;

    // Changes throw `ErreurDuService`, and have changed nothing then: `LectureSeule`; `FinDeLigne`
    // for a text with a line end or what cannot travel; `TropGrand` for the document.

    bool EstInscriptible() const noexcept { return inscriptible_; }
    void VerifieInscriptible() const;
    /// Puts `texte` in the place of the range; the selection follows.
    void Remplace(std::size_t zone, Intervalle plage, std::u16string_view texte);

    /// A new paragraph of that number after this one, with the same line end.
    void InsereApres(std::size_t zone, std::u16string_view texte, NumeroZone numero);
    /// Takes a paragraph out with its line end; the last one left is only emptied.
    void Supprime(std::size_t zone);

    /// The file as it would be saved now.
    std::string DonneOctets() const;
    /// Saves. Nothing to answer where the file holds the text already. A text that could only be
    /// saved elsewhere is not saved once more until it changes: the answer is the same.
    std::optional<Ecriture> Enregistre();

  private:
    void VerifieRecevable(std::size_t retirees, std::u16string_view texte) const;

    std::string cle_;
    std::string chemin_;
    std::string cheminReel_;
    std::string octetsDuFichier_;
    std::string octetsMisAilleurs_;
    Ecriture miseAilleurs_;
    bool inscriptible_;
    bool marque_ = false;
    bool numerosCroissants_ = true; // until a paragraph is put in
    std::size_t unites_ = 0;
    std::vector<Zone> zones_;
    Selection selection_;
};

} // namespace compagnon
