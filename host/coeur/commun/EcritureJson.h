// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <QString>

#include <string>

namespace hote {

/// Writes JSON on one line, members in the order in which they are given.
///
/// Qt's own writer sorts members and turns half of a surrogate pair into "?". Here such a unit
/// comes out as its \u escape, so every text of 16-bit units reads back as it was. Control
/// characters and the other characters that some readers take for a line's end are escaped as well.
/// The caller keeps the grammar: a key before each value of an object, as many ends as beginnings.
class EcritureJson {
  public:
    EcritureJson& OuvreObjet() { return Ouvre('{'); }
    EcritureJson& FermeObjet() { return Ferme('}'); }
    EcritureJson& OuvreTableau() { return Ouvre('['); }
    EcritureJson& FermeTableau() { return Ferme(']'); }

    /// A member's name: plain ASCII, nothing to escape.
    EcritureJson& EcrisCle(char const* nom);

    EcritureJson& EcrisTexte(QString const& texte);
    EcritureJson& EcrisEntier(long long valeur);
    EcritureJson& EcrisBooleen(bool valeur);
    EcritureJson& EcrisNul();

    /// What has been written, UTF-8, no line feed.
    std::string const& DonneJson() const noexcept { return json_; }

  private:
    EcritureJson& Ouvre(char signe);
    EcritureJson& Ferme(char signe);
    EcritureJson& EcrisBrut(std::string const& json);
    void EcrisVirgule();

    std::string json_;
    bool virgule_ = false;
};

} // namespace hote
