// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <cstddef>
#include <string_view>

/// Walks over JSON text from left to right and builds nothing: no memory, whatever the text.
///
/// Operations that look for something answer false where it does not stand; the walk may then be
/// anywhere behind its former place. What this finds right, the parser that documents are read with
/// takes and ends at the same place; what it cannot judge it leaves to that parser.
class ParcoursJson {
  public:
    enum class Verdict {
        Juste,    ///< right: the parser takes it
        Douteuse, ///< whole, but with something in it that only the parser can judge
        Perdue,   ///< where it ends cannot be told: a comment, nesting beyond 8, never closed
    };

    explicit ParcoursJson(std::string_view texte)
        : ici_(texte.data())
        , fin_(texte.data() + texte.size()) {}

    bool EstALaFin();
    /// Is this the next character but for white space? Then the walk goes on behind it.
    bool Prends(char attendu);
    /// The member's name that stands next, without its quotes, and the colon behind it. False for a
    /// name with an escape.
    bool PrendsCle(std::string_view& cle);
    /// The text that stands next, without its quotes. False for one with an escape.
    bool PrendsTexteSansEchappement(std::string_view& texte);
    /// The integer that stands next; false for one of more than nine digits, which may not fit.
    bool PrendsPetitEntier(int& entier);
    /// Passes over the value that stands next and tells where it stood. `valeurs` grows by the
    /// number of values in it, itself among them; by no less than half of it for a doubtful one.
    Verdict PrendsValeur(std::string_view& valeur, std::size_t& valeurs);

  private:
    std::size_t DonneReste() const { return static_cast<std::size_t>(fin_ - ici_); }
    void PasseBlancs();
    bool PasseJuste(int profondeur, std::size_t& valeurs);
    bool PasseMembres(char fermante, int profondeur, std::size_t& valeurs);
    bool PasseTexteSimple();
    bool PasseMot(std::string_view mot);
    bool PasseEntier();
    bool FinitUnMot() const;
    bool PasseCorps(std::size_t& valeurs);
    bool PasseFinDeTexte();

    char const* ici_;
    char const* fin_;
};
