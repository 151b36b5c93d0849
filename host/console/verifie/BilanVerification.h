// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Renvoi.h"

#include <QString>

#include <map>
#include <string>
#include <vector>

namespace hote {

/// What became of one rule.
struct SortDeRegle {
    enum class Etat { NonEssayee, Tenue, Violee };
    struct Constat {
        QString texte;
        QString operation; ///< what had been called last
        Renvoi renvoi;     ///< where to read
    };

    Etat etat = Etat::NonEssayee;
    QString raison; ///< why it was not tried
    std::vector<Constat> constats;
};

/// What all trials have found, rule by rule.
class BilanVerification {
  public:
    void Essaie(QString const& regle);
    void Passe(QString const& regle, QString const& raison);
    /// A breach that was seen when `operation` had been called last; `parOperation` when it is that
    /// operation's contract which is broken, not the rule's own. Of each rule, five are kept.
    void Viole(QString const& regle, QString const& texte, QString const& operation,
               bool parOperation);

    int Compte(SortDeRegle::Etat etat) const;
    /// The whole for people, and as one line of JSON.
    std::string EcrisTexte() const;
    std::string EcrisJson(std::string const& greffon, QString const& document) const;

  private:
    SortDeRegle DonneSort(char const* regle) const;

    std::map<QString, SortDeRegle> sorts_;
};

} // namespace hote
