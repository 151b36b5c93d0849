// SPDX-License-Identifier: MPL-2.0
#include "DocumentOuvert.h"

#include "Chaines.h"

#include <com/sun/star/awt/XTopWindow.hpp>
#include <com/sun/star/awt/XWindow.hpp>
#include <com/sun/star/frame/XController.hpp>
#include <com/sun/star/frame/XFrame.hpp>
#include <com/sun/star/frame/XStorable.hpp>
#include <com/sun/star/frame/XTitle.hpp>
#include <osl/file.hxx>

#include <utility>

using namespace com::sun::star;
using compagnon::Intervalle;

namespace bureau {

DocumentOuvert::DocumentOuvert(uno::Reference<frame::XModel> const& modele, std::string cle)
    : modele_(modele)
    , cle_(std::move(cle))
    , carnet_(cle_) {}

DocumentOuvert::~DocumentOuvert() = default;

std::u16string DocumentOuvert::DonneTitre() const {
    uno::Reference<frame::XTitle> const titre(modele_, uno::UNO_QUERY_THROW);
    return std::u16string(Vue(titre->getTitle()));
}

std::u16string DocumentOuvert::DonneChemin() const {
    uno::Reference<frame::XStorable> const fichier(modele_, uno::UNO_QUERY_THROW);
    if (!fichier->hasLocation()) {
        return {};
    }
    rtl::OUString const url = fichier->getLocation();
    rtl::OUString chemin;
    bool const local =
        osl::FileBase::getSystemPathFromFileURL(url, chemin) == osl::FileBase::E_None;
    return std::u16string(Vue(local ? chemin : url));
}

bool DocumentOuvert::EstEnLectureSeule() const {
    uno::Reference<frame::XStorable> const fichier(modele_, uno::UNO_QUERY_THROW);
    return fichier->isReadonly();
}

void DocumentOuvert::Active() const {
    uno::Reference<frame::XController> const controleur = modele_->getCurrentController();
    uno::Reference<frame::XFrame> const cadre =
        controleur.is() ? controleur->getFrame() : uno::Reference<frame::XFrame>();
    if (!cadre.is()) {
        return;
    }
    cadre->activate();
    uno::Reference<awt::XWindow> const fenetre = cadre->getContainerWindow();
    uno::Reference<awt::XTopWindow> const dessus(fenetre, uno::UNO_QUERY);
    if (dessus.is()) {
        dessus->toFront();
    }
    if (fenetre.is()) {
        fenetre->setFocus();
    }
}

void DocumentOuvert::Parcours(Visiteur const& visiteur) {
    std::optional<Selection> const selection = LisSelection();
    bool commencee = false;
    bool finie = !selection;
    carnet_.Commence();
    ParcoursZones([&](std::shared_ptr<ZoneOuverte> const& zone, compagnon::PlanDePortions&& plan) {
        Intervalle choisi;
        if (!finie) {
            bool const debute = !commencee && zone->EstCelleDe(selection->objetDebut);
            bool const finit = (commencee || debute) && zone->EstCelleDe(selection->objetFin);
            commencee = commencee || debute;
            if (debute || finit) {
                zone->Lis(); // the ranges that a place is looked up in
            }
            if (commencee && (debute || finit || zone->EstVoisineDe(selection->objetDebut))) {
                std::size_t const fin = plan.DonneTexte().size();
                choisi.debut = static_cast<std::int32_t>(
                    debute ? plan.DonneDecalage(zone->PlaceDe(selection->debut)) : 0);
                choisi.fin = static_cast<std::int32_t>(
                    finit ? plan.DonneDecalage(zone->PlaceDe(selection->fin)) : fin);
            }
            finie = finit;
        }
        visiteur({zone, std::move(plan), choisi, false});
    });
    carnet_.Termine();
}

std::optional<ZoneLue> DocumentOuvert::DonneSelection() {
    std::optional<Selection> const selection = LisSelection();
    if (!selection) {
        return std::nullopt;
    }
    std::shared_ptr<ZoneOuverte> zone = carnet_.Retrouve(selection->objetDebut);
    if (!zone) {
        // Not met yet: only a walk knows what a paragraph stands in.
        Parcours([](ZoneLue const&) {});
        zone = carnet_.Retrouve(selection->objetDebut);
    }
    if (!zone) {
        return std::nullopt;
    }
    compagnon::PlanDePortions plan = zone->Lis();
    std::size_t const debut = plan.DonneDecalage(zone->PlaceDe(selection->debut));
    std::size_t const fin = selection->objetDebut == selection->objetFin
                                ? plan.DonneDecalage(zone->PlaceDe(selection->fin))
                                : plan.DonneTexte().size();
    Intervalle const choisi{static_cast<std::int32_t>(debut), static_cast<std::int32_t>(fin)};
    return ZoneLue{zone, std::move(plan), choisi, selection->objetDebut != selection->objetFin};
}

} // namespace bureau
