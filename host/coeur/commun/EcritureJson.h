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
    EcritureJson& Objet() { return Ouvre('{'); }
    EcritureJson& FinObjet() { return Ferme('}'); }
    EcritureJson& Tableau() { return Ouvre('['); }
    EcritureJson& FinTableau() { return Ferme(']'); }

    /// A member's name: plain ASCII, nothing to escape.
    EcritureJson& Cle(char const* nom);

    EcritureJson& Texte(QString const& texte);
    EcritureJson& Entier(long long valeur);
    EcritureJson& Booleen(bool valeur);
    EcritureJson& Nul();

    /// A value that is JSON already.
    EcritureJson& Brut(std::string const& json);

    /// What has been written, UTF-8, no line feed.
    std::string const& DonneJson() const noexcept { return json_; }

  private:
    EcritureJson& Ouvre(char signe);
    EcritureJson& Ferme(char signe);
    void Virgule();

    std::string json_;
    bool virgule_ = false;
};

} // namespace hote
