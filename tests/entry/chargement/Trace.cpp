// SPDX-License-Identifier: MPL-2.0
// Stands before the real libraries in the loader program's search order: each call that the plug-in
// makes while it is loaded and unloaded is told on standard output, then goes where it was meant
// to. With VOCALYNE_LEVE_AU_CHARGEMENT in the environment one of them throws.
#include "ChaineN.h"
#include "InitialisationGenerale.h"
#include "PrefsGeneralesQt.h"
#include "StockageReponse.h"
#include "Traduction.h"

#include <QCoreApplication>

#include <dlfcn.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <stdexcept>

namespace {

void Dis(char const* appel, QString const& details = {}) {
    std::printf("%s%s\n", appel, qPrintable(details));
    std::fflush(stdout);
}

QString Entre(QString const& details) {
    return QLatin1Char('(') + details + QLatin1Char(')');
}

/// The next definition of a function in the search order: the real one.
template <class Fonction>
Fonction Suivante(char const* nom) {
    auto* const adresse = dlsym(RTLD_NEXT, nom);
    if (adresse == nullptr) {
        std::fprintf(stderr, "no %s to trace\n", nom);
        std::abort();
    }
    return reinterpret_cast<Fonction>(adresse);
}

bool VientDuGreffon(void const* retour) {
    Dl_info infos;
    return dladdr(retour, &infos) != 0 && std::strstr(infos.dli_fname, "TexteurOOo") != nullptr;
}

} // namespace

#define TRACE_PUBLIC extern "C" __attribute__((visibility("default")))

// By their mangled names, as the dynamic linker knows them.
#define NOM_PREFS                                                                                  \
    "_ZN16PrefsGeneralesQtC1E9UniChaine13ePrefsGenMode14ePrefsGenAccesN9QSettings6FormatE"
#define NOM_DONNE "_ZNK16PrefsGeneralesQt5DonneE9UniChaine8QVariantb"

// By value, as the functions that they stand in front of.
// NOLINTBEGIN(performance-unnecessary-value-param)
TRACE_PUBLIC void tracePrefs(PrefsGeneralesQt* objet, UniChaine chemin, ePrefsGenMode mode,
                             ePrefsGenAcces acces, QSettings::Format format) __asm__(NOM_PREFS);
void tracePrefs(PrefsGeneralesQt* objet, UniChaine chemin, ePrefsGenMode mode, ePrefsGenAcces acces,
                QSettings::Format format) {
    Dis("PrefsGeneralesQt",
        QString::fromLatin1("(%1, %2, %3, %4)")
            .arg(chemin.VersQString())
            .arg(mode)
            .arg(acces)
            .arg(format == QSettings::NativeFormat ? QString::fromLatin1("native")
                                                   : QString::fromLatin1("other")));
    Suivante<void (*)(PrefsGeneralesQt*, UniChaine, ePrefsGenMode, ePrefsGenAcces,
                      QSettings::Format)>(NOM_PREFS)(objet, chemin, mode, acces, format);
}

QVariant PrefsGeneralesQt::Donne(UniChaine cle, QVariant defaut, bool conserve) const {
    auto valeur = Suivante<QVariant (*)(PrefsGeneralesQt const*, UniChaine, QVariant, bool)>(
        NOM_DONNE)(this, cle, defaut, conserve);
    Dis("Donne", QString::fromLatin1("(%1, %2, %3)")
                     .arg(cle.VersQString(), defaut.toString(),
                          conserve ? QString::fromLatin1("true") : QString::fromLatin1("false")));
    return valeur;
}
// NOLINTEND(performance-unnecessary-value-param)

TRACE_PUBLIC void tracePrefsFin(PrefsGeneralesQt* objet) __asm__("_ZN16PrefsGeneralesQtD1Ev");
void tracePrefsFin(PrefsGeneralesQt* objet) {
    Dis("~PrefsGeneralesQt");
    Suivante<void (*)(PrefsGeneralesQt*)>("_ZN16PrefsGeneralesQtD1Ev")(objet);
}

__attribute__((visibility("default"))) eLangue
eLangueSelonELangueAffichage(eLangueAffichage affichage) {
    auto const langue = Suivante<eLangue (*)(eLangueAffichage)>(
        "_Z28eLangueSelonELangueAffichage16eLangueAffichage")(affichage);
    if (VientDuGreffon(__builtin_return_address(0))) { // the support library calls it too
        Dis("eLangueSelonELangueAffichage",
            QString::fromLatin1("(%1) = %2").arg(int(affichage)).arg(int(langue)));
    }
    return langue;
}

void InitialisationGenerale::InitLePlusTotPossible(eLangue langue) {
    Dis("InitLePlusTotPossible", Entre(QString::number(langue)));
    Suivante<void (*)(eLangue)>("_ZN22InitialisationGenerale21InitLePlusTotPossibleE7eLangue")(
        langue);
}

void InitialisationGenerale::InitApresQApp() {
    Dis("InitApresQApp");
    if (qEnvironmentVariableIsSet("VOCALYNE_LEVE_AU_CHARGEMENT")) {
        throw std::runtime_error("set-up");
    }
    Suivante<void (*)()>("_ZN22InitialisationGenerale13InitApresQAppEv")();
}

__attribute__((visibility("default"))) void InitQApplication() {
    bool const ilYEnAvait = QCoreApplication::instance() != nullptr;
    Dis("InitQApplication");
    Suivante<void (*)()>("_Z16InitQApplicationv")();
    if (!ilYEnAvait && QCoreApplication::instance() != nullptr) {
        qAddPostRoutine([] { Dis("~QApplication"); });
    }
}

void StockageReponse::Initialise(DDialogue::eTypStockeur type, UniChaine const& chemin,
                                 QSettings::Format format) {
    Dis("StockageReponse::Initialise",
        QString::fromLatin1("(%1, %2)").arg(int(type)).arg(chemin.VersQString()));
    Suivante<void (*)(DDialogue::eTypStockeur, UniChaine const&, QSettings::Format)>(
        "_ZN15StockageReponse10InitialiseEN9DDialogue12eTypStockeurERK9UniChaineN9QSettings6Format"
        "E")(type, chemin, format);
}

void QCoreApplication::setOrganizationDomain(QString const& domaine) {
    Dis("setOrganizationDomain");
    Suivante<void (*)(QString const&)>("_ZN16QCoreApplication21setOrganizationDomainERK7QString")(
        domaine);
}

void QCoreApplication::setOrganizationName(QString const& nom) {
    Dis("setOrganizationName", Entre(nom));
    Suivante<void (*)(QString const&)>("_ZN16QCoreApplication19setOrganizationNameERK7QString")(
        nom);
}

void QCoreApplication::setApplicationName(QString const& nom) {
    Dis("setApplicationName", Entre(nom));
    Suivante<void (*)(QString const&)>("_ZN16QCoreApplication18setApplicationNameERK7QString")(nom);
}

__attribute__((visibility("default"))) void
AjouterAuxDomainesDeTraduction(std::function<void()> chargeur) {
    Dis("AjouterAuxDomainesDeTraduction");
    Suivante<void (*)(std::function<void()>)>(
        "_Z30AjouterAuxDomainesDeTraductionSt8functionIFvvEE")(std::move(chargeur));
}

__attribute__((visibility("default"))) void InitLocaleAvecQRC(DomaineDeTraduction** domaine,
                                                              UniChaine const& chemin,
                                                              eLangue langue, bool force) {
    Dis("InitLocaleAvecQRC", QString::fromLatin1("(%1, %2, %3)")
                                 .arg(chemin.VersQString())
                                 .arg(int(langue))
                                 .arg(int(force)));
    Suivante<void (*)(DomaineDeTraduction**, UniChaine const&, eLangue, bool)>(
        "_Z17InitLocaleAvecQRCPPSt4pairIPSt6locale9UniChaineERKS2_7eLangueb")(domaine, chemin,
                                                                              langue, force);
}

using Registre = bool (*)(int, unsigned char const*, unsigned char const*, unsigned char const*);

#define NOM_ENREGISTRE "_Z21qRegisterResourceDataiPKhS0_S0_"
TRACE_PUBLIC bool traceEnregistre(int version, unsigned char const* arbre,
                                  unsigned char const* noms,
                                  unsigned char const* donnees) __asm__(NOM_ENREGISTRE);
bool traceEnregistre(int version, unsigned char const* arbre, unsigned char const* noms,
                     unsigned char const* donnees) {
    if (version == 1) { // Qt's own resources are of later layouts
        Dis("qRegisterResourceData", Entre(QString::number(version)));
    }
    return Suivante<Registre>(NOM_ENREGISTRE)(version, arbre, noms, donnees);
}

#define NOM_RETIRE "_Z23qUnregisterResourceDataiPKhS0_S0_"
TRACE_PUBLIC bool traceRetire(int version, unsigned char const* arbre, unsigned char const* noms,
                              unsigned char const* donnees) __asm__(NOM_RETIRE);
bool traceRetire(int version, unsigned char const* arbre, unsigned char const* noms,
                 unsigned char const* donnees) {
    if (version == 1) {
        Dis("qUnregisterResourceData", Entre(QString::number(version)));
    }
    return Suivante<Registre>(NOM_RETIRE)(version, arbre, noms, donnees);
}

void sdd::ChaineN::LibereConvertisseurPourCodage() {
    // The storers are released just before: by now the map must be empty.
    Dis(StockageReponse::laListeStockeurDefaut.empty() ? "(storers released)" : "(storers left)");
    Dis("LibereConvertisseurPourCodage");
    Suivante<void (*)()>("_ZN3sdd7ChaineN29LibereConvertisseurPourCodageEv")();
}
