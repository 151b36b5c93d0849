// SPDX-License-Identifier: MPL-2.0
#include "Document.h"

#include "ErreurHote.h"
#include "InfosApplication.h"
#include "Messages.h"

#include <utility>

namespace hote {

namespace {

constexpr int kModeCorrecteur = 0;
constexpr int kGenreCorrecteur = 1;

ErreurHote DonneErreurMort() {
    return {kSortieDocumentMort, Tr("Le document a été fermé, ou ne répond plus.")};
}

} // namespace

Document::Document(Greffon const& greffon, QString const& id) {
    InfosApplication infos;
    greffon.DonneNomsTexteurs(infos.Classe);
    infos.ClasseInitialisation = infos.Classe;
    infos.Id = UniChaine(id);
    infos.Genre = kGenreCorrecteur;
    UniChaine idDocument;
    if (!greffon.DonneIdentificateurDocumentCourant(infos, idDocument))
        throw ErreurHote(kSortieDocument, Tr("Le connecteur ne sert pas le document {1}.", id));
    auto agent = greffon.CreeAgentTexteur(infos, idDocument);
    if (!agent)
        throw ErreurHote(kSortieDocument,
                         Tr("Le document {1} n’est pas à portée : est-il ouvert, et son logiciel "
                            "a-t-il l’extension de Vocalyne ? « vocalyne-hote documents » donne "
                            "ceux qui le sont.",
                            id));
    tenu_.Tiens(std::move(agent));
    // Not ActivePour, which would take the keyboard from the terminal that the person looks at.
    tenu_.DonneAgent()->InitialisePour(kModeCorrecteur);
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

void Document::Lis() {
    auto& zones = tenu_.DonneZones();
    zones.Vide();
    bool const ok = lu_ ? tenu_.DonneAgent()->SynchronisePositions(zones)
                        : tenu_.DonneAgent()->DonneZones(zones);
    std::vector<QString> textes;
    textes.reserve(static_cast<std::size_t>(zones.DonneNombre()));
    for (int i = 0; i < zones.DonneNombre(); ++i)
        textes.push_back(DonneZone(i).DonneTexte().DonneTexte().VersQString());
    // Not every agent that reaches nobody says so, nor calls its document dead.
    bool const disparu = !ok || (textes.empty() && !textes_.empty());
    bool const premiereFois = !lu_;
    textes_ = std::move(textes);
    lu_ = true;
    if (!ok && premiereFois)
        throw ErreurHote(kSortieDocument, Tr("Le document ne se lit pas."));
    if (disparu)
        throw DonneErreurMort();
    if (textes_.empty())
        VerifieVivant();
}

Orthographe::Plages Document::DonnePlages(int zone) {
    return DonneZone(zone).DonneTexte().DonnePlages();
}

bool Document::PeutCorriger(int zone, int debut, int fin, QString const& attendu) {
    return DonneZone(zone).PeutCorriger(debut, fin, UniChaine(attendu));
}

void Document::Corrige(int zone, int debut, int fin, QString const& texte, bool automatique) {
    DonneZone(zone).CorrigeDansTexteur(debut, fin, UniChaine(texte), automatique);
    textes_[static_cast<std::size_t>(zone)].replace(debut, fin - debut, texte);
}

void Document::VerifieVivant() {
    if (tenu_.DonneAgent()->DocEstMort())
        throw DonneErreurMort();
}

InterfaceZoneDeTexte& Document::DonneZone(int zone) {
    return *tenu_.DonneZones().DonneZone(zone);
}

} // namespace hote
