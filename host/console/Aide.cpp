// SPDX-License-Identifier: MPL-2.0
#include "Aide.h"

#include "commun/MessagesHote.h"

namespace hote {

std::string DonneUsage() {
    return Tr("Usage : vocalyne-hote documents [--sortie texte|json]\n"
              "        vocalyne-hote corrige [ID] [--langue fr|en] [--automatique | --tout]\n"
              "                              [--sortie texte|json] [--greffon FICHIER]\n"
              "        vocalyne-hote dictionnaire [ID] [--langue fr|en] [--sortie texte|json]\n"
              "                                   [--greffon FICHIER]\n"
              "        vocalyne-hote moteurs [installe|allume|eteins MOTEUR | adresse MOTEUR URL]\n"
              "                              [--sortie texte|json]\n"
              "        vocalyne-hote fenetre [ID] [--page correction|mots] [--greffon FICHIER]\n"
              "        vocalyne-hote diagnostic [--bref] [--greffon FICHIER]\n"
              "        vocalyne-hote pilote [--greffon FICHIER]\n"
              "        vocalyne-hote --help | --version\n") +
           Tr("        vocalyne-hote verifie GREFFON [ID] [--sortie texte|json] [--delai S]\n"
              "                              [--epreuve NOM]\n");
}

std::string DonneAide() {
    return DonneUsage() +
           Tr("\n"
              "Corrige les documents ouverts, par un connecteur.\n"
              "\n"
              "  documents     donne les documents à portée : identificateur, titre, chemin\n"
              "  corrige       cherche les fautes d’un document. Sur un terminal, demande que "
              "faire\n"
              "                de chacune ; avec --automatique, corrige ce qui est sûr ; sinon\n"
              "                (ou avec --sortie json) les montre sans rien changer.\n"
              "  dictionnaire  donne les synonymes du mot sélectionné dans un document. Sur un\n"
              "                terminal, met à sa place celui que l’on choisit.\n"
              "  moteurs       donne les moteurs qui cherchent les fautes et ce qui leur manque ;\n"
              "                en installe un, l’allume, l’éteint, dit où est son serveur\n"
              "  fenetre       ouvre une fenêtre à côté d’un document : ses fautes une à une, et "
              "ce\n"
              "                que l’on peut en faire\n"
              "  diagnostic    essaie le connecteur, les dictionnaires et les moteurs, et dit ce "
              "qui\n"
              "                manque ; avec --bref, sans démarrer les moteurs\n"
              "  pilote        conduit un connecteur par des lignes de JSON, une requête la ligne\n"
              "\n"
              "  ID                   le document ; par défaut, celui qui est à portée, ou celui\n"
              "                       de devant quand ils sont tous du même logiciel\n"
              "  --langue fr|en       la langue ; par défaut, d’après les mots du texte\n"
              "  --automatique        corrige sans rien demander ce dont un moteur est sûr\n"
              "  --tout               prend partout la première suggestion, sûre ou non\n"
              "  --sortie texte|json  la forme de ce qui est écrit ; par défaut, texte\n"
              "  --greffon FICHIER    le connecteur ; par défaut, celui de VOCALYNE_GREFFON, "
              "sinon\n"
              "                       libTexteurOOo.so installé avec ce programme\n"
              "  --help, -h           cette aide\n"
              "  --version            la version\n"
              "\n"
              "Les dictionnaires sont ceux de Hunspell, les synonymes ceux de MyThes, dans les\n"
              "dossiers de DICPATH et du système. NO_COLOR ôte les couleurs.\n"
              "\n"
              "Code de sortie :\n"
              "  0  fait\n"
              "  1  une correction ou un remplacement a été refusé\n"
              "  2  ligne de commande erronée\n"
              "  3  pas de tel document à portée, pas de mot sélectionné, ou pas de bus de "
              "session\n"
              "  4  connecteur absent ou inutilisable\n"
              "  5  dictionnaire absent\n"
              "  6  le document a disparu en cours de route\n"
              "  7  sortie impossible à écrire, ou panne du programme\n") +
           Tr("\n"
              "  verifie        tient un connecteur à son contrat, règle par règle, sur le "
              "document "
              "ID,\n"
              "                 qui est modifié puis remis comme il était. Le code de sortie est "
              "1\n"
              "                 quand une règle est violée.\n"
              "  GREFFON        le connecteur, un fichier\n"
              "  --delai S      le temps laissé à un appel, en secondes ; par défaut, celui du "
              "contrat\n"
              "  --epreuve NOM  une épreuve seule, dans ce processus : pour un débogueur\n");
}

} // namespace hote
