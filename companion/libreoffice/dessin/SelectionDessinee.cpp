// SPDX-License-Identifier: MPL-2.0
#include "SelectionDessinee.h"

#include "TexteDessine.h"
#include "commun/ErreurDuService.h"

#include <com/sun/star/drawing/XShapes.hpp>

#include <map>
#include <vector>

using namespace com::sun::star;
using compagnon::Intervalle;

namespace extension {

namespace {

uno::Reference<uno::XInterface> Identite(uno::Reference<uno::XInterface> const& objet) {
    return uno::Reference<uno::XInterface>(objet, uno::UNO_QUERY);
}

/// The text that the zone is a paragraph of; null for another kind of zone.
std::shared_ptr<TexteDessine> TexteDe(ZoneOuverte& zone) {
    auto* const paragraphe = dynamic_cast<ParagrapheDessine*>(&zone);
    return paragraphe == nullptr ? nullptr : paragraphe->DonneTexte();
}

class Formes : public SelectionVue {
  public:
    explicit Formes(uno::Reference<drawing::XShapes> const& formes) { Ajoute(formes); }

    std::optional<Intervalle> Dans(ZoneOuverte& zone,
                                   compagnon::PlanDePortions const& plan) override {
        if (!Contient(zone)) {
            return std::nullopt;
        }
        return Intervalle{0, static_cast<std::int32_t>(plan.DonneTexte().size())};
    }

    std::shared_ptr<ZoneOuverte> Premiere(CarnetDeZones& carnet) override {
        // Of several shapes, or of a table's cells, only a walk knows which comes first.
        std::shared_ptr<TexteDessine> const texte =
            formes_.size() == 1 ? carnet.RetrouveTexte(formes_.begin()->second) : nullptr;
        if (!texte || texte->DonneZones().empty()) {
            return nullptr;
        }
        deborde_ = texte->DonneZones().size() > 1;
        return texte->DonneZones().front();
    }

    bool Deborde() override { return deborde_; }

    bool EstEntier(ZoneOuverte& zone) override { return formes_.size() == 1 && Contient(zone); }

  private:
    void Ajoute(uno::Reference<drawing::XShapes> const& formes) {
        for (sal_Int32 i = 0; i < formes->getCount(); ++i) {
            auto const forme =
                Identite(uno::Reference<uno::XInterface>(formes->getByIndex(i), uno::UNO_QUERY));
            uno::Reference<drawing::XShapes> const groupe(forme, uno::UNO_QUERY);
            if (groupe.is()) {
                Ajoute(groupe);
            } else {
                formes_.emplace(forme.get(), forme);
            }
        }
    }

    bool Contient(ZoneOuverte& zone) const {
        std::shared_ptr<TexteDessine> const texte = TexteDe(zone);
        return texte && formes_.count(Identite(texte->DonnePorteur()).get()) > 0;
    }

    std::map<uno::XInterface*, uno::Reference<uno::XInterface>> formes_;
    bool deborde_ = false;
};

class PlageDansUneForme : public SelectionVue {
  public:
    explicit PlageDansUneForme(uno::Reference<text::XTextRange> const& plage)
        : plage_(plage)
        , objet_(Identite(plage->getText())) {}

    std::optional<Intervalle> Dans(ZoneOuverte& zone,
                                   compagnon::PlanDePortions const& /*plan*/) override {
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
        std::shared_ptr<TexteDessine> const texte = carnet.RetrouveTexte(objet_);
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

std::unique_ptr<SelectionVue> ChoixDeFormes(uno::Reference<uno::XInterface> const& selection) {
    uno::Reference<drawing::XShapes> const formes(selection, uno::UNO_QUERY);
    return formes.is() ? std::make_unique<Formes>(formes) : nullptr;
}

std::unique_ptr<SelectionVue> ChoixDansUneForme(uno::Reference<text::XTextRange> const& plage) {
    return std::make_unique<PlageDansUneForme>(plage);
}

} // namespace extension
