// SPDX-License-Identifier: MPL-2.0
#include "Document.h"

#include "OuvreAgent.h"
#include "commun/ErreurHote.h"
#include "commun/MessagesHote.h"

#include <utility>

namespace hote {

namespace {

ErreurHote DonneErreurMort() {
    return {kSortieDocumentMort, Tr("Le document a été fermé, ou ne répond plus.")};
}

} // namespace

Document::Document(Greffon const& greffon, QString const& id) {
    tenu_.Tiens(OuvreAgent(greffon, id, ModeAgent::Correcteur));
}

Document::~Document() {
    try {
        tenu_.DonneAgent()->RompsLienCorrecteur();
        tenu_.DonneAgent()->RompsLienTexteur();
    } catch (...) { // NOLINT(bugprone-empty-catch): the link ends anyway, with the agent
    }
}

QString Document::DonneTitre() {
    return tenu_.DonneAgent()->DonneTitreDocument().VersQString();
}

QString Document::DonneChemin() {
    return tenu_.DonneAgent()->DonneCheminDocument().VersQString();
}

void Document::Lis() {
    auto& zones = tenu_.DonneZones();
    zones.Vide();
    bool const ok = lu_ ? tenu_.DonneAgent()->SynchronisePositions(zones)
                        : tenu_.DonneAgent()->DonneZones(zones);
    std::vector<QString> textes;
    textes.reserve(static_cast<std::size_t>(zones.DonneNombre()));
    for (int i = 0; i < zones.DonneNombre(); ++i) {
        textes.push_back(DonneZone(i).DonneTexte().DonneTexte().VersQString());
    }
    // Not every agent that reaches nobody says so, nor calls its document dead.
    bool const disparu = !ok || (textes.empty() && !textes_.empty());
    bool const premiereFois = !lu_;
    textes_ = std::move(textes);
    lu_ = true;
    if (!ok && premiereFois) {
        throw ErreurHote(kSortieDocument, Tr("Le document ne se lit pas."));
    }
    if (disparu) {
        throw DonneErreurMort();
    }
    if (textes_.empty()) {
        VerifieVivant();
    }
}

std::vector<sdd::PlageAttribut> Document::DonnePlages(int zone) {
    return DonneZone(zone).DonneTexte().DonnePlages();
}

bool Document::PeutCorriger(int zone, int debut, int fin, QString const& attendu) {
    return DonneZone(zone).PeutCorriger(debut, fin, UniChaine(attendu));
}

void Document::Corrige(int zone, int debut, int fin, QString const& texte, bool automatique) {
    DonneZone(zone).CorrigeDansTexteur(debut, fin, UniChaine(texte), automatique);
    textes_[static_cast<std::size_t>(zone)].replace(debut, fin - debut, texte);
}

void Document::Selectionne(int zone, int debut, int fin) {
    DonneZone(zone).SelectionneIntervalle(debut, fin);
}

Document::Intervalle Document::DonneSelection(int zone) {
    InterfaceZoneDeTexte& lue = DonneZone(zone);
    return {lue.DonneDebutSelection(), lue.DonneFinSelection()};
}

void Document::VerifieVivant() {
    if (tenu_.DonneAgent()->DocEstMort()) {
        throw DonneErreurMort();
    }
}

InterfaceZoneDeTexte& Document::DonneZone(int zone) {
    return *tenu_.DonneZones().DonneZone(zone);
}

} // namespace hote
