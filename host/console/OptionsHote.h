// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "langue/Lexique.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <string>

namespace hote {

/// What the person asked for.
struct OptionsHote {
    enum class Commande {
        Aide,
        Version,
        Documents,
        Corrige,
        Diagnostic,
        Dictionnaire,
        Fenetre,
        Moteurs,
        Pilote,
        Relais, ///< what the window starts for itself
        Verifie
    };

    Commande commande = Commande::Aide;
    QString id;                   ///< of those that work on a document; empty when not given
    QString chemin;               ///< of `relais`: the document's file; may be empty
    std::optional<Langue> langue; ///< of the same; found out when not given
    QString page;                 ///< of `fenetre`; empty when not given
    bool bref = false;            ///< of `diagnostic`
    bool automatique = false;     ///< of `corrige`: what is sure is corrected
    bool tout = false;            ///< of `corrige`: all that has a suggestion is
    bool json = false;            ///< of all but `pilote`
    QStringList ordre;            ///< of `moteurs`: a verb and what it is about; empty: the list
    std::string greffon;          ///< of those on documents, and `pilote`; empty when not given
    QString epreuve;              ///< of `verifie`; empty for all of them
    int delaiMs = 0;              ///< of the same; 0 when not given
};

} // namespace hote
