// SPDX-License-Identifier: MPL-2.0
#pragma once

#include <string>

namespace hote {

class Sortie;

/// What a trial tells of itself while it runs: a line of JSON for each step, written at once, so
/// that the reader knows where it stood when the connector took the process down.
class Rapporteur {
  public:
    /// `sortie` must outlive the object.
    explicit Rapporteur(Sortie& sortie)
        : sortie_(sortie) {}

    /// The rule is being tried: it is held, unless a breach is told.
    void Essaie(char const* regle) { Ecris("essai", regle, {}); }
    /// An operation (or another step) of the connector is about to be called.
    void Appelle(char const* operation) { Ecris("appel", operation, {}); }
    /// A breach of the rule; `constat` is for people. The operation called last is told with it.
    void Viole(char const* regle, std::string const& constat) { Ecris("faute", regle, constat); }
    /// The rule cannot be tried here.
    void Passe(char const* regle, std::string const& raison) { Ecris("passe", regle, raison); }
    /// The trial has come to its end.
    void Finis() { Ecris("fin", "", {}); }

  private:
    void Ecris(char const* fait, char const* sujet, std::string const& texte);

    Sortie& sortie_;
};

} // namespace hote
