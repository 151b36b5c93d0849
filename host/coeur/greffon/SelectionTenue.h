// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "AgentTenu.h"
#include "Greffon.h"
#include "SelectionParAgent.h"

#include <QString>

namespace hote {

/// The selection of a document, through an agent of its own, for the dictionary. Main thread.
class SelectionTenue {
  public:
    using Etat = SelectionParAgent::Etat;

    /// Attaches to the document `id`, as `OuvreAgent` says.
    SelectionTenue(Greffon const& greffon, QString const& id);
    ~SelectionTenue();
    SelectionTenue(SelectionTenue const&) = delete;
    SelectionTenue& operator=(SelectionTenue const&) = delete;

    QString DonneTitre();

    /// As `SelectionParAgent` says.
    Etat Lis() { return SelectionParAgent(*tenu_.DonneAgent()).Lis(); }
    bool Remplace(Etat const& attendu, int debut, int fin, QString const& texte) {
        return SelectionParAgent(*tenu_.DonneAgent()).Remplace(attendu, debut, fin, texte);
    }

  private:
    AgentTenu tenu_;
};

} // namespace hote
