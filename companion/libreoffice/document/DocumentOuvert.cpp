// SPDX-License-Identifier: MPL-2.0
#include "DocumentOuvert.h"

#include "commun/ChainesUno.h"
#include "commun/Langue.h"
#include "commun/Proprietes.h"
#include "partage/ErreurDuService.h"

#include <com/sun/star/awt/XTopWindow.hpp>
#include <com/sun/star/awt/XWindow.hpp>
#include <com/sun/star/container/XNameAccess.hpp>
#include <com/sun/star/frame/XController.hpp>
#include <com/sun/star/frame/XFrame.hpp>
#include <com/sun/star/frame/XStorable.hpp>
#include <com/sun/star/frame/XTitle.hpp>
#include <com/sun/star/style/XStyleFamiliesSupplier.hpp>
#include <osl/file.hxx>

#include <utility>

using namespace com::sun::star;
using compagnon::Intervalle;

namespace extension {

namespace {

/// A range that a caller selected in something that the office has selected as a whole, for as long
/// as that stays so.
class SelectionRetenue : public SelectionVue {
  public:
    SelectionRetenue(std::shared_ptr<ZoneOuverte> zone, compagnon::Intervalle plage)
        : zone_(std::move(zone))
        , plage_(plage) {}

    std::optional<compagnon::Intervalle> Dans(ZoneOuverte& zone,
                                              TexteDeZone const& /*texte*/) override {
        return &zone == zone_.get() ? std::make_optional(plage_) : std::nullopt;
    }
    std::shared_ptr<ZoneOuverte> Premiere(CarnetDeZones& /*carnet*/) override { return zone_; }
    bool Deborde() override { return false; }

  private:
    std::shared_ptr<ZoneOuverte> zone_;
    compagnon::Intervalle plage_;
};

} // namespace

DocumentOuvert::DocumentOuvert(uno::Reference<frame::XModel> const& modele, std::string cle)
    : modele_(modele)
    , cle_(std::move(cle))
    , carnet_(cle_)
    , annulations_(modele) {}

DocumentOuvert::~DocumentOuvert() = default;

std::string DocumentOuvert::DonneLangue() const {
    uno::Reference<beans::XPropertySet> ordinaire(modele_, uno::UNO_QUERY);
    NomDeStyle const style = DonneStyleOrdinaire();
    uno::Reference<style::XStyleFamiliesSupplier> const familles(modele_, uno::UNO_QUERY);
    if (style.nom != nullptr && familles.is()) {
        uno::Reference<container::XNameAccess> const famille(
            familles->getStyleFamilies()->getByName(rtl::OUString::createFromAscii(style.famille)),
            uno::UNO_QUERY_THROW);
        ordinaire.set(famille->getByName(rtl::OUString::createFromAscii(style.nom)),
                      uno::UNO_QUERY_THROW);
    }
    lang::Locale langue;
    ValeurSiConnue(ordinaire, "CharLocale") >>= langue;
    return EtiquetteDeLangue(langue);
}

std::size_t DocumentOuvert::CompteProtegees() const {
    std::size_t nombre = 0;
    if (!PeutEtreProtege()) {
        return nombre;
    }
    for (std::shared_ptr<ZoneOuverte> const& zone : carnet_.DonneZones()) {
        try {
            bool const estLue = zone->DonneLieu().endroit != nullptr;
            nombre += estLue && zone->EstProtegee() ? 1 : 0;
        } catch (compagnon::ErreurDuService const&) {
            continue; // it left the document since
        }
    }
    return nombre;
}

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

std::unique_ptr<SelectionVue> DocumentOuvert::LisSelection() {
    std::unique_ptr<SelectionVue> selection = LisSelectionDuBureau();
    if (retenue_) {
        if (selection && EstEncore(*retenue_, *selection)) {
            return std::make_unique<SelectionRetenue>(carnet_.TrouveParCle(retenue_->cle),
                                                      retenue_->plage);
        }
        retenue_.reset();
    }
    return selection;
}

bool DocumentOuvert::EstEncore(Retenue const& retenue, SelectionVue& selection) const {
    std::shared_ptr<ZoneOuverte> const zone = carnet_.TrouveParCle(retenue.cle);
    try {
        return zone && selection.EstEntier(*zone) && zone->Lis().DonneTexte() == retenue.texte;
    } catch (compagnon::ErreurDuService const&) {
        return false; // it left the document
    }
}

void DocumentOuvert::Parcours(RecueilDeZones::Prends const& prends,
                              std::function<void()> const& souffle) {
    std::uint64_t const passage = carnet_.Commence();
    std::size_t nombre = 0;
    compagnon::NonLus nonLus;
    ParcoursZones(RecueilDeZones(
        [&](std::shared_ptr<ZoneOuverte> const& zone, compagnon::PlanDePortions&& plan) {
            ++nombre;
            nonLus.Ajoute(plan.DonneNonLus());
            prends(zone, std::move(plan));
        },
        nonLus, souffle));
    nombre_ = nombre;
    nonLus_ = nonLus;
    carnet_.Termine(passage);
}

std::vector<std::optional<Intervalle>>
DocumentOuvert::DonneSelections(std::vector<ZoneParcourue> const& zones) {
    std::vector<std::optional<Intervalle>> parts(zones.size());
    if (std::unique_ptr<SelectionVue> const selection = LisSelection()) {
        for (std::size_t i = 0; i < zones.size(); ++i) {
            parts[i] = selection->Dans(*zones[i].zone, {*zones[i].zone, zones[i].taille});
        }
    }
    return parts;
}

std::optional<ZoneLue> DocumentOuvert::DonneSelection() {
    std::unique_ptr<SelectionVue> selection = LisSelection();
    if (!selection) {
        return std::nullopt;
    }
    std::shared_ptr<ZoneOuverte> zone = selection->Premiere(carnet_);
    bool deborde = zone && selection->Deborde();
    if (!zone) {
        Parcours([&](std::shared_ptr<ZoneOuverte> const& lue, compagnon::PlanDePortions&& plan) {
            bool const choisie = selection->Dans(*lue, TexteDeZone(plan)).has_value();
            deborde = deborde || (zone && choisie);
            zone = zone || !choisie ? zone : lue;
        });
        selection = LisSelection();
    }
    if (!zone || !selection) {
        return std::nullopt;
    }
    compagnon::PlanDePortions plan = zone->Lis();
    auto const choisi = selection->Dans(*zone, TexteDeZone(plan));
    return ZoneLue{zone, std::move(plan), choisi.value_or(Intervalle()), deborde};
}

bool DocumentOuvert::Selectionne(ZoneOuverte& zone, compagnon::PlanDePortions const& plan,
                                 Intervalle plage) {
    retenue_.reset();
    zone.Selectionne(plan, plage.DonneDebut(), plage.DonneFin());
    std::unique_ptr<SelectionVue> const selection = LisSelectionDuBureau();
    if (!selection) {
        return false;
    }
    if (selection->EstEntier(zone)) {
        retenue_ = Retenue{zone.DonneCle(), plan.DonneTexte(), plage};
        return true;
    }
    return !selection->Deborde() && selection->Dans(zone, TexteDeZone(plan)) == plage;
}

} // namespace extension
