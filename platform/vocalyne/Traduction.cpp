// SPDX-License-Identifier: MPL-2.0
#include "Traduction.h"

#include "CatalogueMo.h"
#include "ChargeursDeTraduction.h"
#include "CopieDurable.h"
#include "InitialisationGenerale.h"
#include "MoteurTraduction.h"
#include "RechargeDomaines.h"

#include <algorithm>
#include <map>
#include <memory>
#include <mutex>
#include <utility>

namespace {

/// A domain and the locale that its pair points to. A catalog that was taken waits here until the
/// first message is asked for.
struct Domaine {
    std::locale locale = std::locale::classic();
    DomaineDeTraduction paire{&locale, UniChaine()};
    CatalogueMo enAttente;
    UniChaine cheminPrecedent; ///< of the catalog that serves until then
};

/// What lives until the process ends: libraries may translate while they are being unloaded, after
/// the static objects of this one are gone, so none of this is ever destroyed.
struct Registre {
    ChargeursDeTraduction chargeurs;
    std::map<DomaineDeTraduction**, std::unique_ptr<Domaine>> domaines; ///< by their slot
    std::mutex verrou; ///< messages may be asked for on any thread, and the first one builds
};

Registre& DonneRegistre() {
    static auto* const registre = new Registre;
    return *registre;
}

/// The domain that the slot points to, made where the slot is empty.
Domaine& DonneDomaine(DomaineDeTraduction** emplacement) {
    auto& domaines = DonneRegistre().domaines;
    auto const connu =
        std::find_if(domaines.begin(), domaines.end(), [emplacement](auto const& entree) {
            return *emplacement == &entree.second->paire;
        });
    if (connu != domaines.end()) {
        return *connu->second;
    }
    auto& domaine = domaines[emplacement];
    domaine = std::make_unique<Domaine>();
    *emplacement = &domaine->paire;
    return *domaine;
}

/// Puts the catalog that waits in the domain to use. One that turns out to be of no use leaves the
/// domain as it was.
void PrepareDomaine(DomaineDeTraduction const* paire) {
    auto& registre = DonneRegistre();
    std::lock_guard<std::mutex> const garde(registre.verrou);
    for (auto& [emplacement, domaine] : registre.domaines) {
        if (&domaine->paire != paire || domaine->enAttente.EstVide()) {
            continue;
        }
        if (!moteurTraduction::FaisLocale(domaine->enAttente, domaine->locale)) {
            domaine->paire.second = domaine->cheminPrecedent;
        }
        domaine->enAttente = CatalogueMo();
    }
}

} // namespace

void AjouterAuxDomainesDeTraduction(std::function<void()> chargeur) {
    DonneRegistre().chargeurs.Ajoute(std::move(chargeur));
}

void RechargeDomainesDeTraduction() {
    DonneRegistre().chargeurs.Execute();
}

void InitLocaleAvecQRC(DomaineDeTraduction** domaine, UniChaine const& chemin, eLangue langue,
                       bool quelleQueSoitLaLangue) {
    if (domaine == nullptr) {
        return;
    }
    auto& cible = DonneDomaine(domaine);
    if (!quelleQueSoitLaLangue && langue != InitialisationGenerale::DonneLangue()) {
        return;
    }
    auto catalogue = CatalogueMo::DepuisRessource(chemin.VersUtf8());
    if (catalogue.EstVide()) {
        return;
    }
    std::lock_guard<std::mutex> const garde(DonneRegistre().verrou);
    if (cible.enAttente.EstVide()) {
        cible.cheminPrecedent = cible.paire.second;
    }
    cible.enAttente = std::move(catalogue);
    cible.paire.second = UniChaine(CopieDurable(chemin.VersQString()));
}

// The name is the host library's own, reserved or not.
// NOLINTNEXTLINE(bugprone-reserved-identifier)
UniChaine _Tr(DomaineDeTraduction* domaine, char const* message, char const* contexte) {
    // The empty message is the key of the catalog's description of itself: not for showing.
    if (message == nullptr || *message == '\0') {
        return {};
    }
    char const* traduction = nullptr;
    if (domaine != nullptr && domaine->first != nullptr) {
        PrepareDomaine(domaine);
        traduction = moteurTraduction::Traduis(*domaine->first, contexte, message);
    }
    bool const estTraduit = traduction != nullptr && *traduction != '\0';
    return UniChaine(estTraduit ? traduction : message, UniChaine::kCodageUtf8);
}
