// SPDX-License-Identifier: MPL-2.0
#include "CommandesDuMenu.h"

#include "Avis.h"
#include "Constat.h"
#include "bus/BusDeSession.h"
#include "extension/Extension.h"
#include "menu/lancement/Ecran.h"
#include "menu/lancement/EnvironnementEnfant.h"
#include "menu/lancement/Lance.h"
#include "menu/lancement/LigneDeTerminal.h"
#include "partage/Messages.h"

#include <com/sun/star/frame/XController.hpp>
#include <com/sun/star/frame/XModel.hpp>

#include <string>
#include <vector>

using namespace com::sun::star;
using compagnon::Dis;

namespace extension {

namespace {

/// Several times what it takes on a slow machine.
constexpr int kPatienceDiagnosticMs = 10000;

Constat Constate(uno::Reference<frame::XFrame> const& cadre) {
    Constat constat;
    Reglages const reglages = ReglagesDeLEnvironnement();
    constat.hote = ChercheHote(reglages, VOCALYNE_DOSSIER_PROGRAMMES);
    constat.ecran = AUnEcran();
    constat.terminal = ChercheTerminal(reglages);
    Extension* const extension = Extension::Donne();
    if (extension == nullptr) {
        return constat;
    }
    constat.service = extension->DonneNomDuService();
    constat.bus = extension->DonneEtat();
    constat.documents = extension->NombreDeDocuments();
    uno::Reference<frame::XController> const vue =
        cadre.is() ? cadre->getController() : uno::Reference<frame::XController>();
    if (vue.is() && vue->getModel().is()) {
        constat.idDocument = extension->DonneIdentifiant(vue->getModel());
    }
    return constat;
}

/// The host's window; in an office that shows none, a terminal.
std::vector<std::string> LigneDeLHote(Constat const& constat, Commande commande) {
    bool const corrige = commande == Commande::Corrige;
    if (constat.ecran) {
        std::vector<std::string> ligne{constat.hote.chemin, "fenetre"};
        if (!corrige) {
            ligne.insert(ligne.end(), {"--page", "mots"});
        }
        ligne.push_back(constat.idDocument);
        return ligne;
    }
    std::string const invite =
        Dis({"Appuyez sur Entrée pour fermer cette fenêtre.", "Press Enter to close this window."});
    return LigneDeTerminal(constat.terminal.commande, invite, constat.hote.chemin,
                           {corrige ? "corrige" : "dictionnaire", constat.idDocument});
}

/// Empty when the host was started, else what failed.
std::string LanceHote(Constat const& constat, Commande commande) {
    std::string const panne = Lance(LigneDeLHote(constat, commande),
                                    EnvironnementEnfant(EnvironnementHerite(), AdresseDuBus()));
    return panne.empty()
               ? panne
               : Dis({"L’hôte n’a pas pu être lancé\u00a0: ", "The host could not be started: "}) +
                     panne;
}

std::string Joins(std::vector<std::string> const& phrases) {
    std::string texte;
    for (std::string const& phrase : phrases) {
        texte += (texte.empty() ? "" : "\n\n") + phrase;
    }
    return texte;
}

} // namespace

std::optional<Commande> CommandeDeNom(std::u16string_view nom) {
    if (nom == u"corrige") {
        return Commande::Corrige;
    }
    if (nom == u"dictionnaire") {
        return Commande::Dictionnaire;
    }
    if (nom == u"diagnostic") {
        return Commande::Diagnostic;
    }
    return std::nullopt;
}

void ExecuteCommande(Commande commande, uno::Reference<uno::XComponentContext> const& contexte,
                     uno::Reference<frame::XFrame> const& cadre) {
    Constat constat = Constate(cadre);
    if (commande == Commande::Diagnostic && !constat.hote.chemin.empty()) {
        // It asks nobody on the bus: this thread, which would have to answer, waits for it.
        constat.hoteDit = Interroge({constat.hote.chemin, "diagnostic", "--bref"},
                                    EnvironnementEnfant(EnvironnementHerite(), AdresseDuBus()),
                                    kPatienceDiagnosticMs);
    }
    std::vector<std::string> const manques = Manques(constat);
    if (commande == Commande::Diagnostic) {
        Avise(contexte, cadre, Rapport(constat), !manques.empty());
        return;
    }
    std::string ennui = Joins(manques);
    if (ennui.empty()) {
        ennui = LanceHote(constat, commande);
    }
    if (!ennui.empty()) {
        Avise(contexte, cadre, ennui, true);
    }
}

} // namespace extension
