// SPDX-License-Identifier: MPL-2.0
#include "ImplAgentTexteur.h"

#include "ImageCommune.h"
#include "Positions.h"
#include "RoutinesGeneralesQt.h"
#include "UniChemin.h"

#include <algorithm>

namespace {

/// The toolkit knows no application; a connector that knows one overrides the two operations that
/// start from this path.
UniChemin DonneCheminApplication() {
    return {};
}

} // namespace

// The virtual base is constructed by the most derived class; abstract classes only name it.
ImplAgentTexteur::ImplAgentTexteur()
    : InterfaceTexteur(UniChaine()) {}

ImplAgentTexteur::~ImplAgentTexteur() = default;

void ImplAgentTexteur::DonneImageApplication(ImageCommune& image) {
    auto const chemin = DonneCheminApplication();
    if (chemin.EstVide()) {
        return;
    }
    auto const icone = RoutinesGeneralesQt::DonneIconDeApplication(chemin);
    auto const tailles = icone.availableSizes();
    if (!tailles.isEmpty()) {
        image.Prends(icone.pixmap(tailles.first()));
    }
}

UniChaine ImplAgentTexteur::DonneNomApplication() {
    return DonneCheminApplication().DonneChemin();
}

bool ImplAgentTexteur::LisBornes(BornesDuTexte& bornes) {
    try {
        PrepareLecture();
        bornes.longueur = std::max(0, DonneLongueurTexte());
        bornes.debutSelection = std::clamp(DonneDebutSelectionTexte(), 0, bornes.longueur);
        bornes.finSelection =
            std::min(std::max(bornes.debutSelection, DonneFinSelectionTexte()), bornes.longueur);
        return true;
    } catch (...) {
        // A connector's failure must not reach the host.
        return false;
    }
}

bool ImplAgentTexteur::SynchronisePositions(CollectionZonesDeTexte& zones) {
    zones.RetireEmpruntees(this);
    zones_.Vide();
    BornesDuTexte bornes;
    if (!LisBornes(bornes)) {
        return false;
    }
    return zones_.Construis(*this, bornes, zones);
}

bool ImplAgentTexteur::DonneZones(CollectionZonesDeTexte& zones) {
    return SynchronisePositions(zones);
}

bool ImplAgentTexteur::InitialiseTexteur(UniChaine const& /*classe*/, UniChaine& /*message*/,
                                         int /*mode*/) {
    return true;
}

int ImplAgentTexteur::AjusteSelectionPourOutils(int debut, int fin) {
    if (!PeutModifier()) {
        return 0;
    }
    int const a = positions::Somme(debut, debutContexte_);
    int const b = positions::Somme(fin, finContexte_);
    return b <= a || a < 0 ? a : SelectionneDansTexteur(a, b);
}

UniChaine ImplAgentTexteur::DonneContexte(int* debut, int* fin) {
    debutContexte_ = 0;
    finContexte_ = 0;
    BornesDuTexte bornes;
    if (LisBornes(bornes)) {
        debutContexte_ = bornes.debutSelection;
        finContexte_ = bornes.finSelection;
    }
    UniChaine texte;
    DonneTexteContexte(debutContexte_, finContexte_, texte, *debut, *fin);
    return texte;
}

int ImplAgentTexteur::RemplaceEtReselectionne(UniChaine const& texte) {
    AvantRemplacement(texte);
    return ApresRemplacement(texte.Longueur());
}

void ImplAgentTexteur::RemplaceDansZones(int debut, int fin, int finZone, UniChaine const& texte,
                                         bool drapeau) {
    RemplaceDansTexteur(debut, fin, finZone, texte, drapeau);
    int const delta = positions::Difference(texte.Longueur(), positions::Difference(fin, debut));
    zones_.Decale(fin, finZone, delta);
}

void ImplAgentTexteur::NormaliseTexteLu(TexteAvecAttributs& texte) {
    if (RemplaceEspacesInsecables()) {
        constexpr char16_t kInsecable = 0x00A0;
        constexpr char16_t kEspace = 0x0020;
        int const longueur = texte.Longueur();
        for (int i = 0; i < longueur; ++i) {
            auto const& t = texte.DonneTexte();
            if (t[i] == kInsecable &&
                ((i > 0 && t[i - 1] == kEspace) || (i + 1 < longueur && t[i + 1] == kEspace))) {
                texte.MetsUnite(i, kEspace);
            }
        }
    }
    TraiteTexteLu(texte);
}
