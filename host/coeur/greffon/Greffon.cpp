// SPDX-License-Identifier: MPL-2.0
#include "Greffon.h"

#include "InfosApplication.h"
#include "InterfaceAgentTexteur.h"
#include "commun/ErreurHote.h"
#include "commun/MessagesHote.h"

#include <dlfcn.h>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <utility>

namespace hote {

struct Greffon::Exports {
    void (*donneNomsTexteurs)(UniChaine*);
    InterfaceTexteur* (*creeTexteur)();
    InterfaceTexteur* (*creeTexteurPalette)();
    // Read as a byte: a plug-in in C may answer "true" by another value than C++'s own.
    unsigned char (*donneIdentificateurDocumentCourant)(InfosApplication const*, UniChaine*);
    InterfaceAgentTexteur* (*creeAgentTexteur)(InfosApplication const*, UniChaine const*);
};

namespace {

/// What the loader last complained about.
std::string DonneErreurChargeur() {
    char const* const message = dlerror();
    return message != nullptr ? message : "?";
}

template <class Fonction>
void Trouve(void* bibliotheque, std::string const& fichier, char const* nom, Fonction& fonction) {
    void* const adresse = dlsym(bibliotheque, nom);
    if (adresse == nullptr) {
        throw ErreurHote(
            kSortieGreffon,
            Tr("{1} n’est pas un connecteur : la fonction {2} n’est pas exportée.", fichier, nom));
    }
    fonction = reinterpret_cast<Fonction>(adresse);
}

/// While a library is loaded: an exception of its static initialisers cannot cross the loader, and
/// ends the process. At least it says why, and as an error.
class GardeChargement {
  public:
    explicit GardeChargement(std::string const& fichier)
        : precedent_(std::set_terminate(&Finis)) {
        fichierCharge = &fichier;
    }
    ~GardeChargement() { std::set_terminate(precedent_); }
    GardeChargement(GardeChargement const&) = delete;
    GardeChargement& operator=(GardeChargement const&) = delete;

  private:
    [[noreturn]] static void Finis() {
        std::string raison = "?";
        try {
            if (auto const exception = std::current_exception()) {
                std::rethrow_exception(exception);
            }
        } catch (std::exception const& erreur) {
            raison = erreur.what();
        } catch (...) {
            raison = "exception";
        }
        std::fprintf(
            stderr, "vocalyne-hote : %s\n",
            Tr("Le connecteur {1} ne se charge pas : {2}", *fichierCharge, raison).c_str());
        std::_Exit(kSortieGreffon);
    }

    static std::string const* fichierCharge;
    std::terminate_handler precedent_;
};

std::string const* GardeChargement::fichierCharge = nullptr;

void* Ouvre(std::string const& fichier) {
    GardeChargement const garde(fichier);
    // Without a slash the loader would search the system's folders instead of this one.
    std::string const chemin = fichier.find('/') == std::string::npos ? "./" + fichier : fichier;
    // Everything resolved now: a library that lacks something fails here, not midway.
    return dlopen(chemin.c_str(), RTLD_NOW | RTLD_LOCAL);
}

} // namespace

std::unique_ptr<Greffon> Greffon::Charge(std::string const& fichier) {
    void* const bibliotheque = Ouvre(fichier);
    if (bibliotheque == nullptr) {
        throw ErreurHote(kSortieGreffon, Tr("Le connecteur {1} ne se charge pas : {2}", fichier,
                                            DonneErreurChargeur()));
    }
    auto exports = std::make_unique<Exports>();
    // Made first, so that a missing function unloads the library again.
    std::unique_ptr<Greffon> greffon(new Greffon(bibliotheque, std::move(exports)));
    Exports& e = *greffon->exports_;
    Trouve(bibliotheque, fichier, "DonneNomsTexteurs", e.donneNomsTexteurs);
    Trouve(bibliotheque, fichier, "CreeTexteur", e.creeTexteur);
    Trouve(bibliotheque, fichier, "CreeTexteurPalette", e.creeTexteurPalette);
    Trouve(bibliotheque, fichier, "CreeAgentTexteur", e.creeAgentTexteur);
    Trouve(bibliotheque, fichier, "DonneIdentificateurDocumentCourant",
           e.donneIdentificateurDocumentCourant);
    return greffon;
}

Greffon::Greffon(void* bibliotheque, std::unique_ptr<Exports> exports)
    : bibliotheque_(bibliotheque)
    , exports_(std::move(exports)) {}

Greffon::~Greffon() {
    dlclose(bibliotheque_);
}

void Greffon::DonneNomsTexteurs(UniChaine& noms) const {
    exports_->donneNomsTexteurs(&noms);
}

InterfaceTexteur* Greffon::CreeTexteur() const {
    return exports_->creeTexteur();
}

InterfaceTexteur* Greffon::CreeTexteurPalette() const {
    return exports_->creeTexteurPalette();
}

bool Greffon::DonneIdentificateurDocumentCourant(InfosApplication const& infos,
                                                 UniChaine& idDocument) const {
    return exports_->donneIdentificateurDocumentCourant(&infos, &idDocument) != 0;
}

std::unique_ptr<InterfaceAgentTexteur>
Greffon::CreeAgentTexteur(InfosApplication const& infos, UniChaine const& idDocument) const {
    return std::unique_ptr<InterfaceAgentTexteur>(exports_->creeAgentTexteur(&infos, &idDocument));
}

} // namespace hote
