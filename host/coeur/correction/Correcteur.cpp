// SPDX-License-Identifier: MPL-2.0
#include "Correcteur.h"

#include "Alignement.h"
#include "Recalage.h"
#include "commun/MessagesHote.h"
#include "langue/Contexte.h"
#include "langue/Decoupeur.h"

#include <algorithm>

namespace hote {

namespace {

constexpr int kLargeurContexte = 30;
// Engines work on these while the person thinks about the first.
constexpr int kZonesPrevues = 24;

/// What is wrong in the same way.
QString DonneCle(Faute const& faute) {
    bool const mot = faute.genre == GenreDeRemarque::Orthographe;
    return DonneForme(faute.mot) + QLatin1Char('\n') + (mot ? QString() : faute.regle);
}

Faute Decale(Faute faute, int decalage) {
    faute.debut += decalage;
    faute.fin += decalage;
    return faute;
}

} // namespace

Correcteur::Correcteur(Document& document, Examen& examen, Interlocuteur& interlocuteur,
                       bool automatique)
    : document_(document)
    , examen_(examen)
    , interlocuteur_(interlocuteur)
    , automatique_(automatique) {}

Bilan Correcteur::Execute() {
    try {
        Parcours();
    } catch (ErreurHote const& erreur) {
        bilan_.erreur = erreur;
    } catch (std::exception const& erreur) {
        bilan_.erreur =
            ErreurHote(kSortieGreffon, Tr("Le connecteur a échoué : {1}", erreur.what()));
    } catch (...) {
        bilan_.erreur = ErreurHote(kSortieGreffon, Tr("Le connecteur a échoué : {1}", "exception"));
    }
    envois_.Abandonne(bilan_);
    return std::move(bilan_);
}

void Correcteur::Parcours() {
    Curseur curseur{0, 0};
    bilan_.zones = document_.DonneNombre();
    while (!bilan_.interrompu && curseur.zone < document_.DonneNombre()) {
        AnnonceProgres(curseur.zone);
        curseur = TraiteZone(curseur);
    }
    bilan_.zones = document_.DonneNombre();
    if (envois_.EstVide()) {
        return;
    }
    Relis();
}

void Correcteur::Relis() {
    auto const anciens = document_.DonneTextes();
    document_.Lis();
    auto const& nouveaux = document_.DonneTextes();
    envois_.Verifie(Recalage(anciens, nouveaux), anciens, nouveaux, bilan_);
}

void Correcteur::PrevoisLaSuite(int zone) {
    int const fin = std::min(zone + kZonesPrevues, document_.DonneNombre());
    for (; zone < fin; ++zone) {
        examen_.Prevois(document_.DonneTextes()[zone], document_.DonnePlages(zone));
    }
}

Correcteur::Curseur Correcteur::TraiteZone(Curseur depart) {
    int const zone = depart.zone;
    PrevoisLaSuite(zone);
    auto const fautes = examen_.Cherche(document_.DonneTextes()[zone], document_.DonnePlages(zone));
    int decalage = 0; // of what lies behind the corrections made here
    for (Faute const& faute : fautes) {
        if (faute.debut < depart.position) {
            continue;
        }
        Faute const place = Decale(faute, decalage);
        QString const cle = DonneCle(faute);
        if (ignores_.contains(cle)) {
            continue;
        }
        std::size_t const rang = Note(zone, faute, place);
        AnnonceProgres(zone);
        Decision const decision = Demande(zone, place);
        if (decision.genre == Decision::Genre::Quitte) {
            bilan_.interrompu = true;
            return {zone, place.fin};
        }
        if (decision.genre == Decision::Genre::Retour) {
            return Reviens(rang);
        }
        bool const estNom = faute.regle == QLatin1String(kRegleNom);
        if (decision.genre == Decision::Genre::LaisseTout ||
            (estNom && decision.genre == Decision::Genre::Laisse)) {
            ignores_.insert(cle); // who leaves a name has answered for all its places
        }
        bool const corrige = decision.genre == Decision::Genre::Corrige ||
                             decision.genre == Decision::Genre::CorrigeTout;
        if (decision.genre == Decision::Genre::CorrigeTout) {
            remplacements_.insert(cle, decision.remplacement);
        }
        passages_.push_back({rang, zone, place.debut, place.mot, QString(), cle});
        if (!corrige) {
            continue;
        }
        Issue const issue = Applique(rang, zone, place, decision.remplacement);
        interlocuteur_.ApprendsIssue(bilan_.fautes[rang], issue.envoyee);
        if (issue.envoyee && !issue.suite) {
            passages_.back().remplacement = decision.remplacement;
        }
        if (issue.suite) {
            passages_.clear(); // the document is another one: what was decided before stands
            return *issue.suite;
        }
        if (issue.envoyee) {
            decalage += decision.remplacement.size() - (place.fin - place.debut);
        }
    }
    return {zone + 1, 0};
}

Decision Correcteur::Demande(int zone, Faute const& place) {
    auto const connu = remplacements_.constFind(DonneCle(place));
    if (connu != remplacements_.constEnd()) {
        return {Decision::Genre::Corrige, *connu};
    }
    for (;;) {
        Decision decision = interlocuteur_.Decide(
            {zone, document_.DonneNombre(), document_.DonneTextes()[zone], place});
        if (decision.genre != Decision::Genre::Retour || !passages_.empty()) {
            return decision;
        }
    }
}

/// Takes the last decision back: the document has its old text again, and the work goes on there.
Correcteur::Curseur Correcteur::Reviens(std::size_t rang) {
    Passage const passage = passages_.back();
    Curseur const ici{bilan_.fautes[rang].zone, bilan_.fautes[rang].faute.debut};
    bilan_.fautes.resize(rang);
    passages_.pop_back();
    if (!passage.remplacement.isNull()) {
        Relis();
        int const fin = passage.debut + passage.remplacement.size();
        if (passage.zone >= document_.DonneNombre() ||
            !document_.PeutCorriger(passage.zone, passage.debut, fin, passage.remplacement)) {
            return ici; // it is not there any more: nothing is guessed
        }
        document_.Corrige(passage.zone, passage.debut, fin, passage.mot, automatique_);
        Relis();
    }
    ignores_.remove(passage.cle);
    remplacements_.remove(passage.cle);
    bilan_.fautes.resize(passage.rang);
    return Curseur{passage.zone, passage.debut};
}

void Correcteur::AnnonceProgres(int zone) {
    interlocuteur_.ApprendsProgres(zone, document_.DonneNombre(),
                                   static_cast<int>(bilan_.fautes.size()));
}

std::size_t Correcteur::Note(int zone, Faute const& faute, Faute const& place) {
    Contexte const contexte =
        DonneContexte(document_.DonneTextes()[zone], place.debut, place.fin, kLargeurContexte);
    bilan_.fautes.push_back(
        {zone, faute, contexte.avant + faute.mot + contexte.apres, {}, EtatFaute::Laissee});
    return bilan_.fautes.size() - 1;
}

Correcteur::Issue Correcteur::Applique(std::size_t rang, int zone, Faute const& place,
                                       QString const& remplacement) {
    bilan_.fautes[rang].remplacement = remplacement;
    bilan_.fautes[rang].etat = EtatFaute::Refusee;
    if (Envoie(rang, zone, place, remplacement)) {
        return {true, std::nullopt};
    }
    document_.VerifieVivant();
    if (!relectures_.Demande()) {
        return {false, std::nullopt};
    }
    auto const anciens = document_.DonneTextes();
    document_.Lis();
    auto const& nouveaux = document_.DonneTextes();
    Recalage const recalage(anciens, nouveaux);
    envois_.Verifie(recalage, anciens, nouveaux, bilan_);
    relectures_.Apprends(!recalage.EstInchange());
    // It reads as we believed: the refusal is the word processor's last word.
    if (recalage.EstInchange()) {
        return {false, std::nullopt};
    }
    return AppliqueAilleurs(rang, zone, place, remplacement, anciens, recalage);
}

Correcteur::Issue Correcteur::AppliqueAilleurs(std::size_t rang, int zone, Faute const& place,
                                               QString const& remplacement,
                                               std::vector<QString> const& anciens,
                                               Recalage const& recalage) {
    auto const nouvelle = recalage.Retrouve(zone);
    if (!nouvelle) {
        return {false, TrouveZoneSuivante(zone + 1, static_cast<int>(anciens.size()), recalage)};
    }
    Alignement const alignement(anciens[zone], document_.DonneTextes()[*nouvelle]);
    auto const debut = alignement.Retrouve(place.debut, place.fin);
    if (!debut) {
        return {false, Curseur{*nouvelle, alignement.RetrouveAvant(place.debut)}};
    }
    bilan_.fautes[rang].zone = *nouvelle;
    bilan_.fautes[rang].faute = Decale(place, *debut - place.debut);
    Faute const& ici = bilan_.fautes[rang].faute;
    if (!Envoie(rang, *nouvelle, ici, remplacement)) {
        return {false, Curseur{*nouvelle, ici.fin}};
    }
    return {true, Curseur{*nouvelle, ici.debut + remplacement.size()}};
}

bool Correcteur::Envoie(std::size_t rang, int zone, Faute const& place,
                        QString const& remplacement) {
    if (!document_.PeutCorriger(zone, place.debut, place.fin, place.mot)) {
        return false;
    }
    document_.Corrige(zone, place.debut, place.fin, remplacement, automatique_);
    envois_.Ajoute(rang, zone, {place.debut, place.debut + remplacement.size(), place.mot});
    relectures_.ApprendsSucces();
    return true;
}

Correcteur::Curseur Correcteur::TrouveZoneSuivante(int zone, int nombreAncien,
                                                   Recalage const& recalage) const {
    for (; zone < nombreAncien; ++zone) {
        if (auto const nouvelle = recalage.Retrouve(zone)) {
            return {*nouvelle, 0};
        }
    }
    return {document_.DonneNombre(), 0};
}

} // namespace hote
