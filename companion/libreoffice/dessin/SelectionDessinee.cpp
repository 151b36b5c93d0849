// SPDX-License-Identifier: MPL-2.0
#include "SelectionDessinee.h"

#include "ParagrapheDessine.h"
#include "commun/Objets.h"

#include <com/sun/star/drawing/XShapes.hpp>

using namespace com::sun::star;
using compagnon::Intervalle;

namespace extension {

namespace {

class Formes : public SelectionVue {
  public:
    explicit Formes(uno::Reference<drawing::XShapes> const& formes) { Ajoute(formes); }

    std::optional<Intervalle> Dans(ZoneOuverte& zone, TexteDeZone const& texte) override {
        if (!Contient(zone)) {
            return std::nullopt;
        }
        return Tout(texte);
    }

    std::shared_ptr<ZoneOuverte> Premiere(CarnetDeZones& carnet) override {
        // Of several shapes, or of a table's cells, only a walk knows which comes first.
        std::shared_ptr<TexteDessine> const texte =
            formes_.Nombre() == 1 ? carnet.Retrouve<TexteDessine>(formes_.Seul()) : nullptr;
        if (!texte || texte->DonneZones().empty()) {
            return nullptr;
        }
        deborde_ = texte->DonneZones().size() > 1;
        return texte->DonneZones().front();
    }

    bool Deborde() override { return deborde_; }

    bool EstEntier(ZoneOuverte& zone) override { return formes_.Nombre() == 1 && Contient(zone); }

  private:
    void Ajoute(uno::Reference<drawing::XShapes> const& formes) {
        for (sal_Int32 i = 0; i < formes->getCount(); ++i) {
            uno::Reference<uno::XInterface> const forme(formes->getByIndex(i), uno::UNO_QUERY);
            uno::Reference<drawing::XShapes> const groupe(forme, uno::UNO_QUERY);
            if (groupe.is()) {
                Ajoute(groupe);
            } else {
                formes_.Ajoute(forme);
            }
        }
    }

    bool Contient(ZoneOuverte& zone) const {
        std::shared_ptr<TexteDessine> const texte = TexteDe(zone);
        return texte && formes_.Contient(texte->DonnePorteur());
    }

    Objets formes_;
    bool deborde_ = false;
};

class PlageDansUneForme : public SelectionVue {
  public:
    explicit PlageDansUneForme(uno::Reference<text::XTextRange> const& plage)
        : plage_(plage)
        , objet_(Identite(plage->getText())) {}

    std::optional<Intervalle> Dans(ZoneOuverte& zone, TexteDeZone const& /*texte*/) override {
        std::shared_ptr<TexteDessine> const texte = TexteDe(zone);
        if (!texte || Identite(texte->DonneObjet()) != objet_) {
            return std::nullopt;
        }
        auto const parts = texte->Partage(plage_);
        for (std::size_t i = 0; i < parts.size() && i < texte->DonneZones().size(); ++i) {
            if (texte->DonneZones()[i].get() == &zone) {
                return parts[i];
            }
        }
        return std::nullopt;
    }

    std::shared_ptr<ZoneOuverte> Premiere(CarnetDeZones& carnet) override {
        std::shared_ptr<TexteDessine> const texte = carnet.Retrouve<TexteDessine>(objet_);
        if (!texte) {
            return nullptr;
        }
        texte->Relis(carnet);
        std::shared_ptr<ZoneOuverte> premiere;
        auto const parts = texte->Partage(plage_);
        for (std::size_t i = 0; i < parts.size(); ++i) {
            deborde_ = deborde_ || (parts[i] && premiere);
            if (parts[i] && !premiere) {
                premiere = texte->DonneZones()[i];
            }
        }
        return premiere;
    }

    bool Deborde() override { return deborde_; }

  private:
    uno::Reference<text::XTextRange> plage_;
    uno::Reference<uno::XInterface> objet_;
    bool deborde_ = false;
};

} // namespace

std::unique_ptr<SelectionVue> SelectionDeFormes(uno::Reference<uno::XInterface> const& selection) {
    uno::Reference<drawing::XShapes> const formes(selection, uno::UNO_QUERY);
    return formes.is() ? std::make_unique<Formes>(formes) : nullptr;
}

std::unique_ptr<SelectionVue> SelectionDansUneForme(uno::Reference<text::XTextRange> const& plage) {
    return std::make_unique<PlageDansUneForme>(plage);
}

} // namespace extension
