// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "moteurs/Remarque.h"

#include <QPair>
#include <QSet>
#include <QString>

namespace hote {

/// What the person has decided for the whole document: words and passages to be left alone, rules
/// turned off.
class Decisions {
  public:
    /// Is a remark on the passage `extrait` settled by what was decided?
    bool Regle(Remarque const& remarque, QString const& extrait) const {
        return regles_.contains(qMakePair(remarque.moteur, remarque.regle)) ||
               passages_.contains(qMakePair(DonneCle(remarque), extrait));
    }

    void MetsPassage(Remarque const& remarque, QString const& extrait, bool ignore) {
        Mets(passages_, qMakePair(DonneCle(remarque), extrait), ignore);
    }
    void MetsRegle(Remarque const& remarque, bool eteinte) {
        Mets(regles_, qMakePair(remarque.moteur, remarque.regle), eteinte);
    }

  private:
    using Paire = QPair<QString, QString>;

    /// A word that is right is so whatever rule finds fault with its spelling.
    static QString DonneCle(Remarque const& remarque) {
        return remarque.genre == GenreDeRemarque::Orthographe
                   ? QString()
                   : remarque.moteur + QLatin1Char('/') + remarque.regle;
    }
    static void Mets(QSet<Paire>& ensemble, Paire const& paire, bool dedans) {
        if (dedans) {
            ensemble.insert(paire);
        } else {
            ensemble.remove(paire);
        }
    }

    QSet<Paire> passages_;
    QSet<Paire> regles_;
};

} // namespace hote
