// SPDX-License-Identifier: MPL-2.0
#include "AlertesConsole.h"
#include "ArticlesJson.h"
#include "ChoixDocument.h"
#include "ChoixLangue.h"
#include "Commandes.h"
#include "DemandeLigne.h"
#include "ExecuteSurGreffon.h"
#include "PresentationArticles.h"
#include "Sortie.h"
#include "commun/MessagesHote.h"
#include "greffon/LocaliseGreffon.h"
#include "greffon/SelectionTenue.h"
#include "langue/Contexte.h"
#include "langue/DictionnaireHunspell.h"
#include "langue/ThesaurusMyThes.h"

#include <unistd.h>

#include <iostream>
#include <optional>
#include <utility>

namespace hote {

namespace {

/// The number that the person types, or nothing to leave all as it is.
std::optional<int> DemandeNumero(Sortie& sortie, int nombre) {
    for (;;) {
        auto const ligne = DemandeLigne(std::cin, sortie, Tr("1-{1} choisir, q quitter", nombre));
        if (!ligne) {
            return std::nullopt;
        }
        QString const reponse = ligne->trimmed();
        if (reponse == QLatin1String("q")) {
            return std::nullopt;
        }
        int const numero = reponse.toInt();
        if (numero >= 1 && numero <= nombre) {
            return numero;
        }
    }
}

eCodeSortie Choisis(ArticlesTrouves const& recherche, SelectionTenue::Etat const& etat,
                    SelectionTenue& selection, Sortie& sortie) {
    auto const numero = DemandeNumero(sortie, CompteSynonymes(recherche));
    if (!numero) {
        return kSortieReussie;
    }
    auto const& [debut, fin] = recherche.mot;
    QString const texte =
        DonneCasse(TrouveSynonyme(recherche, *numero)->mot, etat.texte.mid(debut, fin - debut));
    bool const fait = selection.Remplace(etat, debut, fin, texte);
    std::string const montre = DonnePourTerminal(texte).toStdString();
    sortie.Ecris((fait ? "→ " + montre : Tr("refusée : {1}", montre)) + '\n');
    return fait ? kSortieReussie : kSortiePartielle;
}

eCodeSortie Cherche(OptionsHote const& options, ChoixLangue choix, Greffon const& greffon) {
    QString const id = options.id.isEmpty() ? ChoisisDocument() : options.id;
    SelectionTenue selection(greffon, id);
    auto const etat = selection.Lis();
    if (!choix.lexique) {
        choix = ChoisisLangue({etat.texte});
    }
    Langue const langue = choix.lexique->DonneLangue();
    auto const thesaurus = OuvreThesaurus(langue);
    ArticlesTrouves const recherche =
        ChercheArticles(etat.texte, etat.debut, etat.fin, *thesaurus, *choix.lexique);
    auto const& [debut, fin] = recherche.mot;
    if (debut == fin) {
        throw ErreurHote(kSortieDocument,
                         Tr("Aucun mot n’est sélectionné dans le document {1}.", id));
    }
    QString const mot = etat.texte.mid(debut, fin - debut);
    Sortie sortie(STDOUT_FILENO);
    eCodeSortie code = kSortieReussie;
    if (options.json) {
        sortie.Ecris(
            DonneArticlesJson({id, selection.DonneTitre(), langue, choix.trouvee}, mot, recherche));
    } else if (recherche.articles.empty()) {
        sortie.Ecris(
            Tr("« {1} » : pas de synonyme ({2}).", DonnePourTerminal(mot), DonneNomLangue(langue)) +
            '\n');
    } else {
        bool const demande = isatty(STDIN_FILENO) == 1 && isatty(STDOUT_FILENO) == 1;
        sortie.Ecris(
            Tr("Synonymes de « {1} » ({2})", DonnePourTerminal(mot), DonneNomLangue(langue)) +
            '\n' + DonneArticlesTexte(recherche, Couleurs(STDOUT_FILENO), demande));
        if (demande) {
            code = Choisis(recherche, etat, selection, sortie);
        }
    }
    sortie.Verifie();
    return sortie.EstRompue() ? kSortieInterne : code;
}

} // namespace

eCodeSortie ExecuteDictionnaire(OptionsHote const& options) {
    // What is missing is said before anything is touched.
    auto lexique = options.langue ? OuvreDictionnaire(*options.langue) : nullptr;
    AlertesConsole alertes;
    auto const greffon = Greffon::Charge(LocaliseGreffon(options.greffon));
    return ExecuteSurGreffon([&] {
        return Cherche(options, {std::move(lexique), false}, *greffon);
    });
}

} // namespace hote
