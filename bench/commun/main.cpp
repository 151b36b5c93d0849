// SPDX-License-Identifier: MPL-2.0
#include "Machine.h"
#include "Mesures.h"
#include "pont/BureauDuBanc.h"
#include "pont/Memoire.h"
#include "pont/Repondeur.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <algorithm>
#include <cstdio>
#include <exception>
#include <functional>
#include <vector>

namespace {

void Imprime(banc::LigneDeMesure const& ligne, bool essai) {
    std::printf("%-58s %10.2f %10.2f %-8s %7.2f %7.2f  %-6s %s\n", ligne.nom.c_str(), ligne.mesure,
                ligne.reference, ligne.unite.c_str(), ligne.Rapport(), ligne.limite,
                essai              ? "-"
                : ligne.EstTenue() ? "kept"
                                   : "MISSED",
                ligne.remarque.c_str());
    std::fflush(stdout);
}

struct Mesure {
    char const* nom;
    std::function<banc::LigneDeMesure(banc::Ampleur)> prends;
};

std::vector<Mesure> Mesures(QString const& greffon) {
    auto const dossier = QCoreApplication::applicationDirPath();
    return {{"attente", banc::MesureAttente},
            {"veille", banc::MesureVeille},
#ifdef VOCALYNE_REFERENCES
            {"attente-sdbus", banc::MesureAttenteSdBus},
            {"synchronisation", banc::MesureSynchronisation},
#endif
            {"oublies", banc::MesureOublies},
            {"lecture", banc::MesureLecture},
            {"croissance", banc::MesureCroissance},
            {"million", banc::MesureMillion},
            {"memoire", banc::MesureMemoire},
            {"attributs", banc::MesureAttributs},
            {"chargement", [greffon, dossier](banc::Ampleur ampleur) {
                 return banc::MesureChargement(ampleur, greffon,
                                               dossier + QStringLiteral("/libbanc_temoin.so"),
                                               dossier + QStringLiteral("/banc_chargeur"));
             }}};
}

/// Prints the table; the number of limits missed.
int PrendsToutes(std::vector<Mesure> const& mesures, banc::Ampleur ampleur) {
    std::printf("%s\n%-58s %10s %10s %-8s %7s %7s\n", banc::DecrisMachine().c_str(), "ratio",
                "measured", "reference", "unit", "ratio", "limit");
    int manquees = 0;
    for (auto const& mesure : mesures) {
        auto const ligne = mesure.prends(ampleur);
        Imprime(ligne, ampleur.essai);
        if (!ampleur.essai && !ligne.EstTenue()) {
            ++manquees;
        }
    }
#ifndef VOCALYNE_REFERENCES
    std::puts("\nwithout attente-sdbus and synchronisation: built without libsystemd and simdjson");
#endif
    if (manquees != 0) {
        std::printf("\n%d of %zu limits missed\n", manquees, mesures.size());
    }
    return manquees;
}

/// One line a curve: a JSON object. Names and numbers need no escape.
void ImprimeCourbe(banc::Courbe const& courbe) {
    std::printf(R"({"nom":"%s","mesure":"%s","reference":"%s","points":[)", courbe.nom.c_str(),
                courbe.mesure.c_str(), courbe.reference.c_str());
    char const* separation = "";
    for (auto const& point : courbe.points) {
        std::printf("%s[%d,%.2f,%.2f]", separation, point.taille, point.mesure, point.reference);
        separation = ",";
    }
    std::puts("]}");
    std::fflush(stdout);
}

void PrendsCourbes(banc::Ampleur ampleur) {
    ImprimeCourbe(banc::CourbeDeLecture(ampleur));
#ifdef VOCALYNE_REFERENCES
    ImprimeCourbe(banc::CourbeDeSynchronisation(ampleur));
#endif
}

int RefuseOptions(QCommandLineParser const& options, QString const& raison) {
    std::fprintf(stderr, "%s\n%s", qPrintable(raison), qPrintable(options.helpText()));
    return 2;
}

int Execute(QCoreApplication const& application) {
    QCommandLineParser options;
    options.setApplicationDescription(
        QStringLiteral("Measures the plug-in's costs as ratios. Run it by bench/lance, which gives "
                       "it a session bus of its own."));
    options.addHelpOption();
    QCommandLineOption const essai(QStringLiteral("essai"),
                                   QStringLiteral("Tiny sizes and no limits: does it all run?"));
    QCommandLineOption const greffon(
        QStringLiteral("greffon"), QStringLiteral("The plug-in to load."), QStringLiteral("FILE"));
    QCommandLineOption const seulement(
        QStringLiteral("seulement"),
        QStringLiteral(
            "Take this one: attente, veille, attente-sdbus, synchronisation, oublies, "
            "lecture, croissance, million, memoire, attributs, chargement. May be given again."),
        QStringLiteral("MEASURE"));
    QCommandLineOption const courbes(
        QStringLiteral("courbes"),
        QStringLiteral("In place of the table: what each size costs, a JSON object a line."));
    QCommandLineOption repondeur(QStringLiteral("repondeur"), {}, QStringLiteral("INSTANCE"));
    QCommandLineOption lecteur(QStringLiteral("lecteur"), {}, QStringLiteral("INSTANCE"));
    repondeur.setFlags(QCommandLineOption::HiddenFromHelp);
    QCommandLineOption bureau(QStringLiteral("bureau"), {}, QStringLiteral("ID"));
    bureau.setFlags(QCommandLineOption::HiddenFromHelp);
    lecteur.setFlags(QCommandLineOption::HiddenFromHelp);
    options.addOptions({essai, greffon, seulement, courbes, repondeur, lecteur, bureau});
    options.addPositionalArgument(QStringLiteral("zones"), {}, QString());
    if (!options.parse(application.arguments())) {
        return RefuseOptions(options, options.errorText());
    }
    if (options.isSet(QStringLiteral("help"))) {
        options.showHelp();
    }
    if (options.isSet(repondeur)) {
        return banc::Reponds(options.value(repondeur));
    }
    if (options.isSet(lecteur)) {
        return banc::LisEtDisMemoire(options.value(lecteur),
                                     options.positionalArguments().value(0).toInt());
    }
    if (options.isSet(bureau)) {
        return banc::ConduisBureau(options.value(bureau));
    }
    if (options.isSet(courbes)) {
        PrendsCourbes(banc::Ampleur{options.isSet(essai)});
        return 0;
    }
    auto mesures = Mesures(options.value(greffon));
    if (options.isSet(seulement)) {
        auto const voulues = options.values(seulement);
        auto const estDeTrop = [&voulues](Mesure const& mesure) {
            return !voulues.contains(QLatin1String(mesure.nom));
        };
        mesures.erase(std::remove_if(mesures.begin(), mesures.end(), estDeTrop), mesures.end());
        if (mesures.size() != static_cast<std::size_t>(voulues.size())) {
            return RefuseOptions(options, QStringLiteral("no such measure"));
        }
    }
    if (!options.isSet(greffon)) {
        return RefuseOptions(options, QStringLiteral("--greffon is missing"));
    }
    return PrendsToutes(mesures, banc::Ampleur{options.isSet(essai)}) == 0 ? 0 : 1;
}

} // namespace

int main(int nombre, char** arguments) {
    QCoreApplication const application(nombre, arguments);
    try {
        return Execute(application);
    } catch (std::exception const& erreur) {
        std::fprintf(stderr, "vocalyne-banc: %s\n", erreur.what());
        return 1;
    }
}
