// SPDX-License-Identifier: MPL-2.0
#include "Programme.h"

#include "ChainesQt.h"
#include "Montrable.h"
#include "ObjetBureau.h"
#include "Publication.h"
#include "Signaux.h"
#include "VeilleAppelants.h"
#include "coeur/Bureau.h"
#include "coeur/MessagesTexte.h"
#include "coeur/OptionsBureau.h"
#include "coeur/Voisins.h"
#include "documentsadaptor.h"
#include "proxyadaptor.h"

#include <QCoreApplication>

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <random>

namespace compagnon {

namespace {

enum Code { kTout = 0, kFichier = 1, kOption = 2, kBus = 3, kEnregistrement = 4 };

void Avertis(std::string const& message) {
    std::cerr << "vocalyne-bureau-texte: " << Montrable(message) << std::endl;
}

/// Nobody else's, nor one of our own of another day: a process number comes back.
std::string InstanceNouvelle() {
    static constexpr char kLettres[] = "abcdefghijklmnopqrstuvwxyz";
    std::random_device source;
    std::string instance = "texte_" + std::to_string(::getpid()) + "_";
    for (int i = 0; i < 6; ++i) {
        instance += kLettres[source() % 26];
    }
    return instance;
}

/// All files or none: a person who mistypes one name is told before anything is served.
bool OuvreTous(Bureau& bureau, OptionsBureau const& options) {
    bool tous = true;
    std::vector<LectureFichier> lues;
    for (std::string const& chemin : options.fichiers) {
        LectureFichier lecture = LisFichier(chemin);
        std::error_code sansErreur;
        std::string const absolu = std::filesystem::absolute(chemin, sansErreur).string();
        auto const memeFichier = [&](LectureFichier const& autre) {
            return autre.peripherique == lecture.peripherique && autre.numero == lecture.numero;
        };
        if (lecture.probleme != ProblemeFichier::Aucun) {
            Avertis(DisProbleme(lecture, chemin));
            tous = false;
        } else if (std::any_of(lues.begin(), lues.end(), memeFichier)) {
            Avertis(Dis({"{1} : donné deux fois", "{1}: given twice"}, {chemin}));
            tous = false;
        } else {
            LectureFichier identite;
            identite.peripherique = lecture.peripherique;
            identite.numero = lecture.numero;
            lues.push_back(identite);
            if (!lecture.inscriptible) {
                Avertis(Dis({"{1} : en lecture seule, rien n'y sera corrigé",
                             "{1}: read-only, nothing will be corrected in it"},
                            {chemin}));
            }
            if (!options.sansEnregistrer) {
                for (std::string const& copie : RangeLesRestes(lecture.cheminReel)) {
                    Avertis(Dis({"{1} : un texte dont l'enregistrement fut interrompu est dans {2}",
                                 "{1}: a text that was being saved when all ended is in {2}"},
                                {chemin, copie}));
                }
            }
            bureau.Ouvre(absolu, std::move(lecture));
        }
    }
    return tous;
}

/// Saves and says so; does it stand in its place?
bool Enregistre(DocumentTexte& document) {
    std::optional<Ecriture> const ecriture = document.Enregistre();
    if (!ecriture) {
        return true;
    }
    bool const enPlace = ecriture->issue == IssueEcriture::Faite;
    Avertis(enPlace ? Dis({"{1} : enregistré", "{1}: saved"}, {document.DonneChemin()})
                    : DisEcriture(*ecriture, document.DonneChemin()));
    return enPlace;
}

int Sers(OptionsBureau const& options, Bureau& bureau, FabriqueDObjet const& fabrique) {
    std::unique_ptr<ObjetBureau> objet; // goes after its publication
    Publication publication(bureau.DonneInstance());
    std::string erreur = publication.Connecte();
    if (!erreur.empty()) {
        Avertis(erreur);
        return kBus;
    }
    objet = fabrique(bureau, !options.sansEnregistrer, publication);
    new ProxyAdaptor(objet.get()); // owned by the object, as all adaptors are
    new DocumentsAdaptor(objet.get());
    VeilleAppelants veille(publication.DonneConnexion(), bureau.DonneAppelants());
    Signaux signaux;
    QObject::connect(objet.get(), &ObjetBureau::AppelantVu, &veille, &VeilleAppelants::Surveille);
    bool toutEnPlace = true;
    if (!options.sansEnregistrer) {
        QObject::connect(objet.get(), &ObjetBureau::TravailFini, [&](QString const& cle) {
            if (DocumentTexte* const document = bureau.Cherche(VersUtf8(cle))) {
                toutEnPlace = Enregistre(*document) && toutEnPlace;
            }
        });
    }
    QObject::connect(&signaux, &Signaux::FinDemandee, [] { QCoreApplication::exit(kTout); });
    QObject::connect(&publication, &Publication::BusPerdu, [] {
        Avertis(Dis({"Le bus de session a disparu", "The session bus is gone"}));
        QCoreApplication::exit(kBus);
    });
    if (options.finAvecHote) {
        QObject::connect(&veille, &VeilleAppelants::DernierParti,
                         [] { QCoreApplication::exit(kTout); });
    }
    erreur = publication.Publie(objet.get());
    if (!erreur.empty()) {
        Avertis(erreur);
        return kBus;
    }
    for (DocumentTexte const& document : bureau.DonneDocuments()) {
        std::cout << bureau.DonneIdentifiant(document) << '\n';
    }
    std::cout.flush();

    int const code = QCoreApplication::exec();
    if (!options.sansEnregistrer) {
        for (DocumentTexte& document : bureau.DonneDocuments()) {
            toutEnPlace = Enregistre(document) && toutEnPlace;
        }
    }
    return toutEnPlace ? code : kEnregistrement;
}

} // namespace

int Programme(int argc, char* argv[], FabriqueDObjet const& fabrique) {
    OptionsBureau const options = LisOptions(argc, argv);
    switch (options.action) {
    case Action::Aide:
        std::cout << DonneAide();
        return kTout;
    case Action::Version:
        std::cout << "vocalyne-bureau-texte " VOCALYNE_VERSION "\n";
        return kTout;
    case Action::Mauvaise:
        Avertis(options.erreur);
        std::cerr << DonneAide();
        return kOption;
    case Action::Sers:
        break;
    }
    Signaux::Bloque();
    Bureau bureau(options.instance.empty() ? InstanceNouvelle() : options.instance);
    if (!OuvreTous(bureau, options)) {
        return kFichier;
    }
    QCoreApplication application(argc, argv);
    return Sers(options, bureau, fabrique);
}

} // namespace compagnon
