// SPDX-License-Identifier: MPL-2.0
#include "Traduction.h"

#include "CatalogueMo.h"
#include "ChargeursDeTraduction.h"
#include "CopieDurable.h"
#include "InitialisationGenerale.h"
#include "RechargeDomaines.h"

#include <boost/locale/message.hpp>

#include <algorithm>
#include <exception>
#include <map>
#include <memory>
#include <utility>

namespace {

/// A domain and the locale that its pair points to.
struct Domaine {
    std::locale locale = std::locale::classic();
    DomaineDeTraduction paire{&locale, UniChaine()};
};

/// What lives until the process ends: libraries may translate while they are being unloaded, after
/// the static objects of this one are gone, so none of this is ever destroyed.
struct Registre {
    ChargeursDeTraduction chargeurs;
    std::map<DomaineDeTraduction**, std::unique_ptr<Domaine>> domaines; ///< by their slot
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
    if (connu != domaines.end())
        return *connu->second;
    auto& domaine = domaines[emplacement];
    domaine = std::make_unique<Domaine>();
    *emplacement = &domaine->paire;
    return *domaine;
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
    if (domaine == nullptr)
        return;
    auto& cible = DonneDomaine(domaine);
    if (!quelleQueSoitLaLangue && langue != InitialisationGenerale::DonneLangue())
        return;
    auto const catalogue = CatalogueMo::DepuisRessource(chemin.VersUtf8());
    if (!catalogue.EstSain())
        return;
    try {
        cible.locale = catalogue.FaisLocale();
        cible.paire.second = UniChaine(CopieDurable(chemin.VersQString()));
    } catch (std::exception const&) {
        // Sound as a file, but in an encoding or with a plural rule that Boost does not know.
    }
}

// The name is the host library's own, reserved or not.
// NOLINTNEXTLINE(bugprone-reserved-identifier)
UniChaine _Tr(DomaineDeTraduction* domaine, char const* message, char const* contexte) {
    using Messages = boost::locale::message_format<char>;
    // The empty message is the key of the catalog's description of itself: not for showing.
    if (message == nullptr || *message == '\0')
        return {};
    char const* traduction = nullptr;
    if (domaine != nullptr && domaine->first != nullptr &&
        std::has_facet<Messages>(*domaine->first))
        traduction = std::use_facet<Messages>(*domaine->first).get(0, contexte, message);
    bool const estTraduit = traduction != nullptr && *traduction != '\0';
    return UniChaine(estTraduit ? traduction : message, UniChaine::kCodageUtf8);
}
