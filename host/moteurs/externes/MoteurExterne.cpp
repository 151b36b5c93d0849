// SPDX-License-Identifier: MPL-2.0
#include "MoteurExterne.h"

#include "commun/MessagesHote.h"
#include "moteurs/FaisParagraphe.h"

#include <algorithm>

namespace hote {

namespace {

constexpr QChar kApostropheCourbe(0x2019);

/// The person does not wait for it any more.
struct ArretDemande {};

/// Letters of a part that the engine does not judge: words of its own language there would have it
/// see mistakes around them.
void Masque(QString& texte, EtendueDeLangue const& etendue) {
    for (int i = etendue.debut; i < etendue.fin; ++i) {
        if (texte.at(i).isLetter()) {
            texte[i] = texte.at(i).isUpper() ? QLatin1Char('X') : QLatin1Char('x');
        }
    }
}

Processus::Instant DonneEcheance(int ms) {
    return std::chrono::steady_clock::now() + std::chrono::milliseconds(ms);
}

} // namespace

std::string DonneInstallation(DescriptionMoteur const& description) {
    if (!description.npm.isEmpty()) {
        return Tr("{1} n’est pas installé : vocalyne-hote moteurs installe {1}", description.nom);
    }
    if (!description.paquet.isEmpty()) {
        return Tr("{1} n’est pas installé : sudo apt install {2}", description.nom,
                  description.paquet);
    }
    return Tr("{1} n’est pas installé.", description.nom);
}

std::vector<Remarque> MoteurExterne::Examine(ParagrapheAExaminer const& paragraphe,
                                             Arret const& arret) {
    std::vector<Remarque> remarques;
    auto const juge = [this](EtendueDeLangue const& etendue) { return Juge(etendue.langue); };
    try {
        for (TexteNu const& texte : FaisTextesNus(paragraphe)) {
            if (std::any_of(texte.langues.begin(), texte.langues.end(), juge)) {
                ExamineTexte(texte, arret, remarques);
            }
        }
    } catch (ArretDemande const&) {
        // What it still answers bears an old number.
    }
    return remarques;
}

void MoteurExterne::ExamineTexte(TexteNu const& texte, Arret const& arret,
                                 std::vector<Remarque>& remarques) {
    TexteNu masque = texte;
    for (EtendueDeLangue const& etendue : texte.langues) {
        if (!Juge(etendue.langue)) {
            Masque(masque.texte, etendue);
        }
    }
    bool const droites =
        texte.texte.contains(QLatin1Char('\'')) && !texte.texte.contains(kApostropheCourbe);
    for (Remarque& remarque : Demande(masque, arret).remarques) {
        if (droites) { // the writer's own apostrophe
            remarque.suggestions.replaceInStrings(QString(kApostropheCourbe), QStringLiteral("'"));
        }
        int const debut = texte.Retrouve(remarque.debut);
        int const fin = texte.Retrouve(remarque.fin - 1);
        if (debut >= 0 && fin >= 0) {
            remarque.debut = debut;
            remarque.fin = fin + 1;
            remarques.push_back(std::move(remarque));
        }
    }
}

Accueil const& MoteurExterne::Demarre(Arret const& arret) {
    if (processus_ && accueilli_) {
        return accueil_;
    }
    if (!processus_) {
        if (!description_.EstPresent()) {
            throw ErreurDeMoteur(true, DonneInstallation(description_));
        }
        accueilli_ = false;
        processus_ = std::make_unique<Processus>(description_.commande);
    }
    std::string ligne;
    Controle(processus_->LisLigne(ligne, DonneEcheance(description_.demarrageMs), arret));
    auto const accueil = LisAccueil(ligne);
    if (!accueil) {
        Abandonne(Tr("{1} ne parle pas comme un moteur.", description_.nom));
    }
    if (!accueil->absent.isEmpty()) {
        processus_.reset();
        throw ErreurDeMoteur(true, DonneInstallation(description_));
    }
    accueil_ = *accueil;
    accueilli_ = true;
    return accueil_;
}

ReponseDeMoteur MoteurExterne::Demande(TexteNu const& texte, Arret const& arret) {
    Demarre(arret);
    qint64 const id = ++dernier_;
    auto const echeance = DonneEcheance(description_.examenMs);
    auto const ecrite = processus_->Ecris(FaisDemande(id, texte), echeance, arret);
    if (ecrite == Processus::Issue::Arretee) {
        processus_.reset(); // half a question cannot be taken back
    }
    Controle(ecrite);
    for (;;) {
        std::string ligne;
        Controle(processus_->LisLigne(ligne, echeance, arret));
        auto reponse = LisReponse(ligne);
        if (!reponse) {
            Abandonne(Tr("{1} a répondu ce qui ne se lit pas.", description_.nom));
        }
        if (reponse->id != id) {
            continue; // to what was cancelled
        }
        if (!reponse->erreur.isEmpty()) {
            throw ErreurDeMoteur(false,
                                 Tr("{1} a échoué : {2}", description_.nom, reponse->erreur));
        }
        echecs_ = 0;
        return std::move(*reponse);
    }
}

void MoteurExterne::Controle(Processus::Issue issue) {
    switch (issue) {
    case Processus::Issue::Faite:
        return;
    case Processus::Issue::Arretee:
        throw ArretDemande();
    case Processus::Issue::EnRetard:
        Abandonne(Tr("{1} ne répond pas.", description_.nom));
    case Processus::Issue::TropLongue:
        Abandonne(Tr("{1} a répondu ce qui ne se lit pas.", description_.nom));
    case Processus::Issue::Finie:
        break;
    }
    std::string const plainte = processus_->DonneDerniereErreur();
    Abandonne(plainte.empty() ? Tr("{1} s’est arrêté.", description_.nom)
                              : Tr("{1} s’est arrêté : {2}", description_.nom, plainte));
}

void MoteurExterne::Abandonne(std::string const& raison) {
    processus_.reset();
    throw ErreurDeMoteur(++echecs_ >= kEchecsMax, raison);
}

} // namespace hote
