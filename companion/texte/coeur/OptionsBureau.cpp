// SPDX-License-Identifier: MPL-2.0
#include "OptionsBureau.h"

#include "Contrat.h"
#include "partage/Messages.h"

#include <algorithm>
#include <getopt.h>

namespace compagnon {

namespace {

OptionsBureau Mauvaise(std::string erreur) {
    OptionsBureau options;
    options.action = Action::Mauvaise;
    options.erreur = std::move(erreur);
    return options;
}

/// The option that getopt has just refused: a single letter, or the last word it looked at.
std::string OptionFautive(char* const argv[]) {
    bool const lettre = optopt > ' ' && optopt < 256;
    return lettre ? std::string("-") + static_cast<char>(optopt) : std::string(argv[optind - 1]);
}

} // namespace

OptionsBureau LisOptions(int argc, char* argv[]) {
    enum : int { Instance = 256, SansEnregistrer, FinAvecHote };
    static option const table[] = {{"help", no_argument, nullptr, 'h'},
                                   {"version", no_argument, nullptr, 'v'},
                                   {"instance", required_argument, nullptr, Instance},
                                   {"sans-enregistrer", no_argument, nullptr, SansEnregistrer},
                                   {"fin-avec-hote", no_argument, nullptr, FinAvecHote},
                                   {nullptr, 0, nullptr, 0}};
    OptionsBureau options;
    optind = 0; // from the start, whoever parsed before
    opterr = 0; // we say it in the person's language
    for (;;) {
        // NOLINTNEXTLINE(concurrency-mt-unsafe): before any thread
        int const lue = ::getopt_long(argc, argv, ":hv", table, nullptr);
        if (lue == -1) {
            break;
        }
        switch (lue) {
        case 'h':
            options.action = Action::Aide;
            return options;
        case 'v':
            options.action = Action::Version;
            return options;
        case Instance:
            options.instance = optarg;
            if (!contrat::EstInstanceValide(options.instance)) {
                return Mauvaise(Dis({"Instance « {1} » : lettres, chiffres et « _ » seulement, "
                                     "sans chiffre au début",
                                     "Instance \"{1}\": letters, digits and \"_\" only, no digit "
                                     "at the start"},
                                    {options.instance}));
            }
            break;
        case SansEnregistrer:
            options.sansEnregistrer = true;
            break;
        case FinAvecHote:
            options.finAvecHote = true;
            break;
        case ':':
            return Mauvaise(Dis({"L'option {1} demande une valeur", "Option {1} needs a value"},
                                {OptionFautive(argv)}));
        default:
            return Mauvaise(
                Dis({"Option inconnue : {1}", "Unknown option: {1}"}, {OptionFautive(argv)}));
        }
    }
    options.fichiers.assign(argv + optind, argv + argc);
    if (options.fichiers.empty()) {
        return Mauvaise(Dis({"Aucun fichier à servir", "No file to serve"}));
    }
    return options;
}

std::string DonneAide() {
    return Dis({R"(Usage : vocalyne-bureau-texte [OPTION]... FICHIER...
Sert des fichiers texte (UTF-8) au correcteur, un paragraphe par ligne, sur le bus de session.
Écrit l'identifiant de chaque document sur une ligne dès qu'il peut être appelé ; enregistre et
finit à Ctrl-C.

  --sans-enregistrer  ne change jamais les fichiers
  --fin-avec-hote     finit quand le dernier hôte a quitté le bus
  --instance NOM      première partie des identifiants (lettres, chiffres, « _ »)
  -h, --help          cette aide
  -v, --version       la version

Codes de sortie : 0 tout est enregistré, 1 un fichier ne peut pas être servi, 2 mauvaise option,
3 pas de bus de session, nom déjà pris ou bus perdu, 4 un texte n'a pas pu être enregistré en place.
)",
                R"(Usage: vocalyne-bureau-texte [OPTION]... FILE...
Serves text files (UTF-8) to the corrector, one paragraph a line, on the session bus. Prints the
identifier of each document on a line as soon as it can be called; saves and ends on Ctrl-C.

  --sans-enregistrer  never change the files
  --fin-avec-hote     end when the last host has left the bus
  --instance NAME     first part of the identifiers (letters, digits, "_")
  -h, --help          this help
  -v, --version       the version

Exit codes: 0 all is saved, 1 a file cannot be served, 2 wrong option, 3 no session bus, name taken
or bus lost, 4 a text could not be saved in its place.
)"});
}

} // namespace compagnon
