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

Faute Decale(Faute faute, int decalage) {
    faute.debut += decalage;
    faute.fin += decalage;
    return faute;
}

} // namespace

Correcteur::Correcteur(Document& document, Orthographe const& orthographe,
                       Interlocuteur& interlocuteur, bool automatique)
    : document_(document)
    , orthographe_(orthographe)
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
    CompteLeReste(curseur);
    bilan_.zones = document_.DonneNombre();
    if (envois_.EstVide()) {
        return;
    }
    auto const anciens = document_.DonneTextes();
    document_.Lis();
    auto const& nouveaux = document_.DonneTextes();
    envois_.Verifie(Recalage(anciens, nouveaux), anciens, nouveaux, bilan_);
}

Correcteur::Curseur Correcteur::TraiteZone(Curseur depart) {
    int const zone = depart.zone;
    auto const fautes =
        orthographe_.Cherche(document_.DonneTextes()[zone], document_.DonnePlages(zone));
    bool const apostropheCourbe = Orthographe::AUneApostropheCourbe(document_.DonneTextes()[zone]);
    int decalage = 0; // of what lies behind the corrections made here
    for (Faute const& faute : fautes) {
        if (faute.debut < depart.position) {
            continue;
        }
        Faute const place = Decale(faute, decalage);
        std::size_t const rang = Note(zone, faute, place);
        if (ignores_.contains(DonneForme(faute.mot))) {
            continue;
        }
        bilan_.fautes[rang].suggestions = orthographe_.Suggere(place, apostropheCourbe);
        AnnonceProgres(zone);
        Decision const decision =
            interlocuteur_.Decide({zone, document_.DonneNombre(), document_.DonneTextes()[zone],
                                   place, bilan_.fautes[rang].suggestions});
        if (decision.genre == Decision::Genre::Quitte) {
            bilan_.interrompu = true;
            return {zone, place.fin};
        }
        if (decision.genre == Decision::Genre::LaisseTout) {
            ignores_.insert(DonneForme(faute.mot));
        }
        if (decision.genre != Decision::Genre::Corrige) {
            continue;
        }
        Issue const issue = Applique(rang, zone, place, decision.remplacement);
        interlocuteur_.ApprendsIssue(bilan_.fautes[rang], issue.envoyee);
        if (issue.suite) {
            return *issue.suite;
        }
        if (issue.envoyee) {
            decalage += decision.remplacement.size() - (place.fin - place.debut);
        }
    }
    return {zone + 1, 0};
}

void Correcteur::CompteLeReste(Curseur depart) {
    for (; depart.zone < document_.DonneNombre(); depart = {depart.zone + 1, 0}) {
        AnnonceProgres(depart.zone);
        QString const& texte = document_.DonneTextes()[depart.zone];
        for (Faute const& faute : orthographe_.Cherche(texte, document_.DonnePlages(depart.zone))) {
            if (faute.debut >= depart.position) {
                Note(depart.zone, faute, faute);
            }
        }
    }
}

void Correcteur::AnnonceProgres(int zone) {
    interlocuteur_.ApprendsProgres(zone, document_.DonneNombre(),
                                   static_cast<int>(bilan_.fautes.size()));
}

std::size_t Correcteur::Note(int zone, Faute const& faute, Faute const& place) {
    Contexte const contexte =
        DonneContexte(document_.DonneTextes()[zone], place.debut, place.fin, kLargeurContexte);
    bilan_.fautes.push_back(
        {zone, faute, contexte.avant + faute.mot + contexte.apres, {}, {}, EtatFaute::Laissee});
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
