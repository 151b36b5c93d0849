// SPDX-License-Identifier: MPL-2.0
// Runs a probe over files and over cases derived from them, where libFuzzer is not at hand.
#include "Mutations.h"
#include "Sonde.h"

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <unistd.h>
#include <vector>

// A sanitizer's own end of the process; absent from builds without one.
// NOLINTNEXTLINE(bugprone-reserved-identifier): the sanitizer's name.
extern "C" __attribute__((weak)) void __sanitizer_set_death_callback(void (*)());

namespace {

/// The case under way, for whoever is called when it ends the process.
char enCours[64] = "";

void DisLeCas() {
    auto const taille = std::char_traits<char>::length(enCours);
    static_cast<void>(write(STDERR_FILENO, enCours, taille) < 0);
}

void SurSignal(int signal) {
    DisLeCas();
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

void Essaie(std::string const& cas) {
    // A copy of exactly its size: a sanitizer sees whoever reads past it.
    std::vector<std::uint8_t> const octets(cas.begin(), cas.end());
    LLVMFuzzerTestOneInput(octets.data(), octets.size());
}

std::string Contenu(std::filesystem::path const& fichier) {
    std::ifstream entree(fichier, std::ios::binary);
    if (!entree) {
        std::fprintf(stderr, "%s: cannot be read\n", fichier.c_str());
        std::exit(2);
    }
    return {std::istreambuf_iterator<char>(entree), {}};
}

std::vector<std::filesystem::path> Fichiers(std::vector<std::string> const& chemins) {
    std::vector<std::filesystem::path> fichiers;
    for (auto const& chemin : chemins) {
        if (!std::filesystem::is_directory(chemin)) {
            fichiers.emplace_back(chemin);
            continue;
        }
        for (auto const& entree : std::filesystem::directory_iterator(chemin)) {
            fichiers.push_back(entree.path());
        }
    }
    // A folder has no order of its own; the cases must not depend on it.
    std::sort(fichiers.begin(), fichiers.end());
    return fichiers;
}

int Usage() {
    std::fputs("usage: sonde [--tours N] [--cas K] FILE-OR-FOLDER...\n"
               "  --tours N  derive N cases from the files\n"
               "  --cas K    run the derived case K alone, after writing it to standard output\n",
               stderr);
    return 2;
}

} // namespace

int main(int argc, char** argv) {
    std::uint64_t tours = 0;
    std::uint64_t seul = 0;
    std::vector<std::string> chemins;
    for (int i = 1; i < argc; ++i) {
        std::string const mot = argv[i];
        if ((mot == "--tours" || mot == "--cas") && i + 1 < argc) {
            (mot == "--cas" ? seul : tours) = std::strtoull(argv[++i], nullptr, 10);
        } else if (mot.rfind("--", 0) == 0) {
            return Usage();
        } else {
            chemins.push_back(mot);
        }
    }
    auto const fichiers = Fichiers(chemins);
    if (fichiers.empty()) {
        return Usage();
    }

    for (int const signal : {SIGABRT, SIGSEGV, SIGBUS, SIGFPE}) {
        std::signal(signal, SurSignal);
    }
    if (__sanitizer_set_death_callback) {
        __sanitizer_set_death_callback(DisLeCas);
    }

    std::vector<std::string> germes;
    for (auto const& fichier : fichiers) {
        std::snprintf(enCours, sizeof enCours, "in the seed %.40s\n", fichier.filename().c_str());
        germes.push_back(Contenu(fichier));
        if (seul == 0) {
            Essaie(germes.back());
        }
    }
    for (auto numero = seul ? seul : 1; numero <= (seul ? seul : tours); ++numero) {
        std::snprintf(enCours, sizeof enCours, "in the derived case %llu\n",
                      static_cast<unsigned long long>(numero));
        auto const cas = Derive(germes, numero);
        if (seul != 0) {
            std::fwrite(cas.data(), 1, cas.size(), stdout);
            std::fflush(stdout);
        }
        Essaie(cas);
    }
    std::printf("%zu seeds and %llu derived cases: every promise held\n", germes.size(),
                static_cast<unsigned long long>(seul ? 1 : tours));
}
