// SPDX-License-Identifier: MPL-2.0
#include "Recherche.h"

#include <glib.h>

#include <algorithm>

namespace extension {

namespace {

constexpr char kNomHote[] = "vocalyne-hote";

/// Terminals and the option after which they take a command word by word, best first.
struct TerminalConnu {
    char const* nom;
    char const* option;
};
constexpr TerminalConnu kTerminaux[] = {
    {"x-terminal-emulator", "-e"},
    {"gnome-terminal", "--"},
    {"konsole", "-e"},
    {"xfce4-terminal", "-x"},
    {"mate-terminal", "-x"},
    {"ptyxis", "--"},
    {"kgx", "--"},
    {"terminator", "-x"},
    {"qterminal", "-e"},
    {"kitty", "-e"},
    {"alacritty", "-e"},
    {"foot", "-e"},
    {"urxvt", "-e"},
    {"xterm", "-e"},
};

void AjouteDossier(std::vector<std::string>& dossiers, std::string const& dossier) {
    // What is relative would mean another program in each working folder.
    if (!dossier.empty() && dossier.front() == '/' &&
        std::find(dossiers.begin(), dossiers.end(), dossier) == dossiers.end()) {
        dossiers.push_back(dossier);
    }
}

std::vector<std::string> DonneDossiers(Reglages const& reglages, std::string const& installation) {
    std::vector<std::string> dossiers;
    AjouteDossier(dossiers, installation);
    for (std::size_t debut = 0; debut <= reglages.chemins.size();) {
        std::size_t const fin =
            std::min(reglages.chemins.find(':', debut), reglages.chemins.size());
        AjouteDossier(dossiers, reglages.chemins.substr(debut, fin - debut));
        debut = fin + 1;
    }
    AjouteDossier(dossiers, "/usr/bin");
    AjouteDossier(dossiers, "/usr/local/bin");
    if (!reglages.maison.empty()) {
        AjouteDossier(dossiers, reglages.maison + "/.local/bin");
    }
    AjouteDossier(dossiers, "/opt/vocalyne/bin");
    return dossiers;
}

bool EstProgramme(std::string const& chemin) {
    return g_file_test(chemin.c_str(), G_FILE_TEST_IS_REGULAR) != FALSE &&
           g_file_test(chemin.c_str(), G_FILE_TEST_IS_EXECUTABLE) != FALSE;
}

/// The whole path of a program that is named by its path, or by its name in one of the folders.
std::string Localise(std::string const& nom, std::vector<std::string> const& dossiers) {
    if (nom.find('/') != std::string::npos) {
        return nom.front() == '/' && EstProgramme(nom) ? nom : std::string();
    }
    for (std::string const& dossier : dossiers) {
        std::string chemin = dossier;
        chemin += '/';
        chemin += nom;
        if (EstProgramme(chemin)) {
            return chemin;
        }
    }
    return {};
}

std::string DonneOption(std::string const& programme) {
    std::string const nom = programme.substr(programme.rfind('/') + 1);
    for (TerminalConnu const& connu : kTerminaux) {
        if (nom == connu.nom) {
            return connu.option;
        }
    }
    return "-e"; // what nearly all take
}

TerminalTrouve LisTerminalVoulu(std::string const& voulu,
                                std::vector<std::string> const& dossiers) {
    char** mots = nullptr;
    if (g_shell_parse_argv(voulu.c_str(), nullptr, &mots, nullptr) == FALSE) {
        return {{}, voulu};
    }
    std::vector<std::string> commande;
    for (char** mot = mots; *mot != nullptr; ++mot) {
        commande.emplace_back(*mot);
    }
    g_strfreev(mots);
    commande.front() = Localise(commande.front(), dossiers);
    if (commande.front().empty()) {
        return {{}, voulu};
    }
    commande.push_back(DonneOption(commande.front()));
    return {commande, {}};
}

} // namespace

HoteTrouve ChercheHote(Reglages const& reglages, std::string const& installation) {
    std::vector<std::string> dossiers = DonneDossiers(reglages, installation);
    if (!reglages.hote.empty()) {
        std::string const chemin = Localise(reglages.hote, dossiers);
        return {chemin, chemin.empty() ? reglages.hote : std::string(), {}};
    }
    std::string const chemin = Localise(kNomHote, dossiers);
    return {chemin, {}, std::move(dossiers)};
}

TerminalTrouve ChercheTerminal(Reglages const& reglages) {
    std::vector<std::string> const dossiers = DonneDossiers(reglages, {});
    if (!reglages.terminal.empty()) {
        return LisTerminalVoulu(reglages.terminal, dossiers);
    }
    for (TerminalConnu const& connu : kTerminaux) {
        std::string const chemin = Localise(connu.nom, dossiers);
        if (!chemin.empty()) {
            return {{chemin, connu.option}, {}};
        }
    }
    return {};
}

} // namespace extension
