// SPDX-License-Identifier: MPL-2.0
// The library itself and its five functions, through addresses as the loader gives them.
#include "Epreuves.h"
#include "InfosApplication.h"
#include "SymbolesExportes.h"
#include "commun/MessagesHote.h"

#include <dlfcn.h>

#include <algorithm>

namespace hote {

namespace {

constexpr char const* kExports[] = {"CreeAgentTexteur", "CreeTexteur", "CreeTexteurPalette",
                                    "DonneIdentificateurDocumentCourant", "DonneNomsTexteurs"};

struct Fonctions {
    void (*noms)(UniChaine*);
    unsigned char (*identifie)(InfosApplication const*, UniChaine*);
    InterfaceAgentTexteur* (*cree)(InfosApplication const*, UniChaine const*);
};

template <class Fonction>
void Trouve(void* bibliotheque, char const* nom, Fonction& fonction) {
    fonction = reinterpret_cast<Fonction>(dlsym(bibliotheque, nom));
}

bool RegardeSymboles(Chantier const& chantier, void* bibliotheque) {
    chantier.DonneRapporteur().Essaie("exports.cinq");
    bool tous = true;
    for (char const* nom : kExports) {
        tous = chantier.Exige(dlsym(bibliotheque, nom) != nullptr, "exports.cinq",
                              Tr("{1} n’est pas exportée.", nom)) &&
               tous;
    }
    chantier.DonneRapporteur().Essaie("exports.rien-d-autre");
    std::string autres;
    int nombre = 0;
    for (std::string const& nom : DonneSymbolesExportes(bibliotheque)) {
        bool const connu =
            std::find(std::begin(kExports), std::end(kExports), nom) != std::end(kExports);
        if (!connu && ++nombre <= 5) {
            autres += (autres.empty() ? "" : ", ") + nom;
        }
    }
    chantier.Exige(nombre == 0, "exports.rien-d-autre",
                   Tr("{1} autres symboles, dont : {2}", nombre, autres));
    return tous;
}

UniChaine RegardeNoms(Chantier const& chantier, Fonctions const& f) {
    chantier.DonneRapporteur().Essaie("exports.noms");
    UniChaine premier(QStringLiteral("?"));
    UniChaine second;
    chantier.Appelle("DonneNomsTexteurs", [&] { f.noms(&premier); });
    chantier.Appelle("DonneNomsTexteurs", [&] { f.noms(&second); });
    chantier.Exige(!second.EstVide(), "exports.noms", Tr("Le nom est vide."));
    chantier.Exige(premier == second, "exports.noms",
                   Tr("« {1} », puis « {2} »", premier.VersQString(), second.VersQString()));
    return second;
}

void RegardeNul(Chantier const& chantier, Fonctions const& f, InfosApplication const& infos) {
    chantier.DonneRapporteur().Essaie("exports.nul");
    UniChaine const avant(QStringLiteral("avant"));
    UniChaine id = avant;
    bool servi = false;
    InterfaceAgentTexteur* agent = nullptr;
    chantier.Appelle("DonneNomsTexteurs", [&] { f.noms(nullptr); });
    chantier.Appelle("DonneIdentificateurDocumentCourant", [&] {
        servi = f.identifie(nullptr, &id) != 0 || f.identifie(&infos, nullptr) != 0;
    });
    chantier.Exige(!servi && id == avant, "exports.nul",
                   Tr("DonneIdentificateurDocumentCourant l’a servie."));
    chantier.Appelle("CreeAgentTexteur", [&] {
        agent = f.cree(nullptr, &id);
        agent = agent != nullptr ? agent : f.cree(&infos, nullptr);
    });
    chantier.Exige(agent == nullptr, "exports.nul", Tr("CreeAgentTexteur a donné un agent."));
    chantier.Tiens(agent).reset();
}

bool Egales(InfosApplication const& a, InfosApplication const& b) {
    return a.Application == b.Application && a.Id == b.Id &&
           a.ClasseInitialisation == b.ClasseInitialisation && a.NoVersion == b.NoVersion &&
           a.Genre == b.Genre && a.Reserve == b.Reserve && a.Classe == b.Classe &&
           a.TexteFenetre == b.TexteFenetre && a.Titre == b.Titre;
}

void RegardeFenetres(Chantier const& chantier, Fonctions const& f, InfosApplication const& infos) {
    InfosApplication copie = infos;
    UniChaine const avant(QStringLiteral("avant"));
    UniChaine id = avant;
    bool servi = true;
    chantier.DonneRapporteur().Essaie("exports.refus");
    for (char const* classe : {"", "org.example.NobodysWindow"}) {
        copie.Classe = UniChaine(QLatin1String(classe));
        id = avant;
        chantier.Appelle("DonneIdentificateurDocumentCourant",
                         [&] { servi = f.identifie(&copie, &id) != 0; });
        chantier.Exige(servi || id == avant, "exports.refus",
                       Tr("Il est devenu « {1} ».", id.VersQString()));
    }
    chantier.DonneRapporteur().Essaie("exports.vide");
    copie = infos;
    UniChaine const vide;
    auto agent = chantier.Tiens(nullptr);
    chantier.Appelle("CreeAgentTexteur", [&] { agent.reset(f.cree(&copie, &vide)); });
    chantier.Exige(agent == nullptr, "exports.vide", Tr("Il en a donné un."));
    chantier.DonneRapporteur().Essaie("exports.lecture");
    chantier.Appelle("DonneIdentificateurDocumentCourant", [&] { f.identifie(&copie, &id); });
    UniChaine const donne = chantier.DonneId();
    chantier.Appelle("CreeAgentTexteur", [&] { agent.reset(f.cree(&copie, &donne)); });
    chantier.Exige(Egales(copie, infos) && donne == chantier.DonneId(), "exports.lecture",
                   Tr("Le relevé de la fenêtre, ou l’identificateur, a changé."));
}

} // namespace

void EprouveExports(Chantier const& chantier) {
    auto& rapporteur = chantier.DonneRapporteur();
    rapporteur.Essaie("exports.charge");
    rapporteur.Appelle("dlopen");
    void* const bibliotheque = dlopen(chantier.DonneFichier().c_str(), RTLD_NOW | RTLD_LOCAL);
    if (bibliotheque == nullptr) {
        char const* const raison = dlerror();
        rapporteur.Viole("exports.charge", raison != nullptr ? raison : "?");
        return;
    }
    if (RegardeSymboles(chantier, bibliotheque)) {
        Fonctions f{};
        Trouve(bibliotheque, "DonneNomsTexteurs", f.noms);
        Trouve(bibliotheque, "DonneIdentificateurDocumentCourant", f.identifie);
        Trouve(bibliotheque, "CreeAgentTexteur", f.cree);
        InfosApplication infos;
        infos.Classe = RegardeNoms(chantier, f);
        infos.ClasseInitialisation = infos.Classe;
        infos.Id = chantier.DonneId();
        infos.Genre = 1;
        RegardeNul(chantier, f, infos);
        RegardeFenetres(chantier, f, infos);
    }
    rapporteur.Essaie("exports.charge");
    rapporteur.Appelle("dlclose");
    dlclose(bibliotheque);
}

} // namespace hote
