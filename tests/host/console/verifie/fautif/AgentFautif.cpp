// SPDX-License-Identifier: MPL-2.0
#include "AgentFautif.h"

#include "ZoneFautive.h"

#include <csignal>
#include <cstdlib>
#include <memory>

namespace {

/// How many agents there are, for those that cannot bear another.
int lesAgents = 0;

} // namespace

AgentFautif::AgentFautif(UniChaine const& identificateur)
    : InterfaceTexteur(Faute("identifiant-perdu") ? UniChaine() : identificateur)
    , texte_(QStringLiteral(
          "Les chats dorment au soleil.\nUn chien passe devant eux.\nLe troisieme dort encore."))
    , debutSelection_(4)
    , finSelection_(9) {
    ++lesAgents;
}

AgentFautif::~AgentFautif() {
    if (Faute("fin-qui-ferme-tout")) {
        lesAgents = -1000;
    }
    if (Faute("fin-qui-plante")) {
        std::raise(SIGSEGV);
    }
    --lesAgents;
}

InterfaceAgentTexteur* AgentFautif::DonneAgentTexteur() {
    static AgentFautif autre{UniChaine(QStringLiteral("autre"))};
    return Faute("autre-agent") ? &autre : static_cast<InterfaceAgentTexteur*>(this);
}

bool AgentFautif::DocEstMort() {
    return Faute("toujours-mort") || lesAgents < 0;
}

UniChaine AgentFautif::DonneCheminDocument() {
    while (Faute("boucle")) {
        ++appels_;
    }
    return {};
}

UniChaine AgentFautif::DonneTitreDocument() {
    if (Faute("titre-leve")) {
        throw 7;
    }
    return DonneIdentificateur();
}

void AgentFautif::InitialisePour(int /*mode*/) {
    if (Faute("fuite")) {
        // Kept reachable by nobody, and written to, so that no compiler leaves it out.
        auto* const perdu = static_cast<char volatile*>(std::malloc(4096));
        perdu[0] = 1;
    }
    if (Faute("acces-fautif")) {
        auto const taille = static_cast<std::size_t>(texte_.Longueur());
        auto* const octets = static_cast<char volatile*>(std::malloc(taille));
        auto const volatile place = taille;
        octets[place] = 1;
        std::free(const_cast<char*>(octets));
    }
}

void AgentFautif::RompsLienCorrecteur() {
    if (Faute("fin-du-programme")) {
        std::_Exit(0);
    }
}

void AgentFautif::Suspends() {
    suspendu_ = true;
}

bool AgentFautif::SynchronisePositions(CollectionZonesDeTexte& zones) {
    if (suspendu_ && Faute("suspendu-plante")) {
        std::abort();
    }
    if (Faute("lecture-leve")) {
        throw 7;
    }
    if (Faute("lecture-refusee")) {
        return false;
    }
    if (Faute("collection-videe")) {
        zones.Vide();
    }
    if (!Faute("zones-en-double") && !ZoneFautive::EstVoulue()) {
        return ImplAgentTexteur::SynchronisePositions(zones);
    }
    if (Faute("zones-en-double")) {
        bool const lu = ImplAgentTexteur::SynchronisePositions(zones);
        zones.AjouteEmpruntee(*zones.DonneZone(zones.DonneNombre() - 1), this);
        return lu;
    }
    for (int i = 0; i < 2; ++i) {
        zones.AjoutePossedee(std::make_unique<ZoneFautive>());
    }
    return true;
}

UniChaine AgentFautif::DonneContexte(int* debut, int* fin) {
    if (Faute("contexte-ecrit")) {
        texte_.Ajoute(UniChaine(QStringLiteral("!")));
    }
    return ImplAgentTexteur::DonneContexte(debut, fin);
}

void AgentFautif::PrepareLecture() {
    if (Faute("texte-changeant")) {
        texte_.Ajoute(UniChaine(QStringLiteral(".")));
    }
    bornes_.clear();
    decalage_ = 0;
    for (int i = 0; i < texte_.Longueur(); ++i) {
        if (texte_.VersQString().at(i) == QLatin1Char('\n')) {
            bornes_.push_back(i + 1);
        }
    }
    bornes_.push_back(texte_.Longueur());
}

int AgentFautif::SelectionneDansTexteur(int debut, int fin) {
    int const ecart = Faute("selection-ailleurs") ? 1 : 0;
    debutSelection_ = debut + ecart;
    finSelection_ = fin;
    return 1;
}

bool AgentFautif::PeutCorrigerZone(int debut, int fin, UniChaine const& texte) {
    return Faute("corrige-tout") || texte_.Extrais(debut, fin - debut) == texte;
}

void AgentFautif::AjusteIntervalleZone(int /*debut*/, int /*fin*/, int /*finZone*/,
                                       int& /*debutAjuste*/, int& finAjustee, bool /*drapeau*/) {
    if (Faute("ajuste-dehors")) {
        finAjustee += 1000;
    }
}

TexteAvecAttributs AgentFautif::DonneTexteAvecAttributs(int debut, int fin) {
    if (debut >= 16 && Faute("blocs-courts")) {
        return {};
    }
    return TexteAvecAttributs(sdd::T(texte_.Extrais(debut, fin - debut)));
}

void AgentFautif::RemplaceDansTexteur(int debut, int fin, int /*finZone*/, UniChaine const& texte,
                                      bool /*drapeau*/) {
    if (Faute("corrige-a-cote")) {
        ++debut;
    }
    if (Faute("corrige-sans-raccourcir") && texte.Longueur() < fin - debut) {
        return;
    }
    // As if the zones behind earlier corrections had stayed where they were read.
    int const recul = Faute("decalage-oublie") ? decalage_ : 0;
    decalage_ += texte.Longueur() - (fin - debut);
    texte_.Remplace(debut - recul, fin - debut, texte);
}
