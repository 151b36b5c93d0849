# SPDX-License-Identifier: MPL-2.0
"""outils/tidy: faults are found in batches as they are alone, and only what is unchanged is skipped."""
import json
import pathlib
import subprocess
import unittest

from arbre_essai import OUTILS, ArbreEssai

# Of each family of .clang-tidy, and of what looks at the main file only: its name, and a fault.
FAUTES = {
    "bugprone-use-after-move": "#include <string>\n#include <utility>\nvoid Prend(std::string);\n"
                               "std::size_t Perd(std::string texte) {\n    Prend(std::move(texte));\n"
                               "    return texte.size();\n}\n",
    "clang-analyzer-core.NullDereference": "int Lit(int const* place) {\n    if (!place) {\n"
                                           "        return *place;\n    }\n    return 0;\n}\n",
    "clang-analyzer-cplusplus.NewDeleteLeaks": "int Fuit() {\n    int* perdu = new int(3);\n"
                                               "    return *perdu;\n}\n",
    "performance-for-range-copy": "#include <string>\n#include <vector>\nstd::size_t Compte(std::vector<std::string> "
                                  "const& mots) {\n    std::size_t n = 0;\n    for (auto mot : mots) {\n"
                                  "        n += mot.size();\n    }\n    return n;\n}\n",
    "misc-unused-using-decls": "namespace dd {\nclass Chose;\n}\nusing dd::Chose;\n",
    "misc-unused-alias-decls": "namespace aa { namespace bb {} }\nnamespace cc = aa::bb;\nint Vide() {\n"
                               "    return 0;\n}\n",
    "misc-unused-parameters": "namespace {\nint Ignore(int recu) {\n    return 1;\n}\n}\nint Appelle() {\n"
                              "    return Ignore(2);\n}\n",
    "modernize-use-nullptr": "int* Nul() {\n    return 0;\n}\n",
    "modernize-use-override": "struct Socle {\n    virtual ~Socle() = default;\n    virtual void Va();\n};\n"
                              "struct Etage : Socle {\n    virtual void Va();\n};\n",
    "cppcoreguidelines-slicing": "struct Grand {\n    int a = 0;\n    virtual int Mesure() {\n        return a;\n    }\n};\n"
                                 "struct PlusGrand : Grand {\n    int b = 0;\n    int Mesure() override {\n"
                                 "        return b;\n    }\n};\nint Coupe(PlusGrand& g) {\n    Grand petit = g;\n"
                                 "    return petit.a;\n}\n",
    "google-explicit-constructor": "struct Converti {\n    Converti(int valeur) : n(valeur) {}\n    int n;\n};\n",
    "readability-braces-around-statements": "int Signe(int n) {\n    if (n < 0)\n        return -1;\n    return 1;\n}\n",
    "readability-identifier-naming": "int Ajoute(int n) {\n    int Mauvais_Nom = n + 1;\n    return Mauvais_Nom;\n}\n",
}
ENTETE = "#pragma once\ninline int Double(int n) {\n    return 2 * n;\n}\n"
DRAPEAUX = "-std=c++17 -Wall -Wextra -Werror"
# What depends on where a file's text stands: in the main file, or in one that it includes.
SELON_LE_LIEU = ("clang-analyzer-core.NullDereference", "misc-unused-using-decls", "misc-unused-alias-decls",
                 "misc-unused-parameters")


def saine(nom: str) -> str:
    return f'#include "cave/Double.h"\n#include <vector>\nint {nom}(int n) {{\n    return Double(n);\n}}\n'


class Tidy(ArbreEssai):
    def setUp(self):
        super().setUp()
        self.construction = self.racine / "build" / "x"
        self.ecris({"cave/Double.h": ENTETE, ".clang-tidy": (OUTILS.parent / ".clang-tidy").read_text(),
                    **{f"cave/{nom}.cpp": saine(nom) for nom in ("Un", "Deux", "Trois")}})

    def note_les_commandes(self) -> None:
        """As CMake writes them, for a build that was not made."""
        self.construction.mkdir(parents=True, exist_ok=True)
        commandes = [{"directory": str(self.construction), "file": str(fichier),
                      "command": f"/usr/bin/c++ {DRAPEAUX} -I{self.racine} -o {fichier.name}.o -c {fichier}"}
                     for fichier in sorted(self.racine.glob("cave/*.cpp"))]
        (self.construction / "compile_commands.json").write_text(json.dumps(commandes), encoding="utf-8")

    def tidy(self, *arguments) -> tuple[int, str]:
        return self.lance("tidy", str(self.construction), *arguments)

    def dit(self, statut: int, *attendus: str) -> None:
        vu, texte = self.tidy()
        self.assertEqual(vu, statut, texte)
        for attendu in attendus:
            self.assertIn(attendu, texte)

    def test_a_fault_of_each_family_is_found_among_sound_neighbours_by_its_name(self):
        self.ecris({f"cave/Faute{rang}.cpp": texte for rang, texte in enumerate(FAUTES.values())})
        self.note_les_commandes()
        statut, en_lots = self.tidy()
        self.assertEqual(statut, 1, en_lots)
        for rang, faute in enumerate(FAUTES):
            with self.subTest(faute):
                # In its own file, whatever neighbours it was looked at with.
                self.assertRegex(en_lots, rf"cave/Faute{rang}\.cpp:\d+:\d+: error: .*\[.*{faute}")
        self.assertIn(f"{len(FAUTES)} with findings", en_lots)

    def test_one_text_of_several_files_shows_what_each_shows(self):
        self.note_les_commandes()
        self.assertEqual(self.vu_en_lot(), "")
        for faute in SELON_LE_LIEU:
            with self.subTest(faute):
                self.ecris({"cave/Faute.cpp": FAUTES[faute]})
                self.note_les_commandes()
                self.assertIn(faute, self.vu_en_lot())

    def vu_en_lot(self) -> str:
        """What the tool itself says of all files as one text, with nothing looked at again."""
        texte = "import sys\nsys.path.insert(0, sys.argv[1])\nsys.dont_write_bytecode = True\n" \
            "import pathlib\nfrom analyse import commandes, lots\n" \
            "c = commandes.commandes_de(pathlib.Path(sys.argv[2]), pathlib.Path(sys.argv[3]))\n" \
            "sys.stdout.write(lots.texte(c))\n"
        unite = self.racine / "unite.cpp"
        vu = subprocess.run(["python3", "-c", texte, OUTILS, self.construction, self.racine],
                            stdout=subprocess.PIPE, text=True, check=True)
        unite.write_text(vu.stdout, encoding="utf-8")
        essai = subprocess.run(["clang-tidy-14", "--quiet", unite, "--", *DRAPEAUX.split(), f"-I{self.racine}"],
                               stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True, check=False)
        return essai.stdout

    def test_a_fault_of_a_header_is_told_once(self):
        self.ecris({"cave/Double.h": ENTETE + "inline int* Nul() {\n    return 0;\n}\n"})
        self.note_les_commandes()
        statut, dit = self.tidy()
        self.assertEqual(statut, 1, dit)
        self.assertEqual(dit.count("Double.h:6:12: error"), 1, dit)

    def test_one_name_for_two_things_in_two_files_is_no_fault(self):
        self.ecris({"cave/Un.cpp": "static int Aide() {\n    return 1;\n}\nint Un() {\n    return Aide();\n}\n",
                    "cave/Deux.cpp": "static int Aide() {\n    return 2;\n}\nint Deux() {\n    return Aide();\n}\n"})
        self.note_les_commandes()
        self.dit(0, "3 files, 0 known clean, 0 with findings")

    def test_what_is_clean_is_skipped_until_it_or_its_header_or_the_rules_change(self):
        self.note_les_commandes()
        self.dit(0, "3 files, 0 known clean")
        self.dit(0, "3 files, 3 known clean")
        self.ecris({"cave/Un.cpp": saine("Un") + "// more\n"})
        self.dit(0, "3 files, 2 known clean")
        self.ecris({"cave/Double.h": ENTETE + "inline int* Nul() {\n    return 0;\n}\n"})
        self.dit(1, "3 files, 0 known clean, 3 with findings")
        self.ecris({"cave/Double.h": ENTETE})
        self.dit(0, "3 files, 3 known clean")
        self.ecris({".clang-tidy": "Checks: '-*,modernize-use-nullptr'\n"})
        self.dit(0, "3 files, 0 known clean")

    def test_in_a_build_the_compilers_own_list_of_headers_is_taken(self):
        self.ecris({"CMakeLists.txt": "cmake_minimum_required(VERSION 3.25)\nproject(essai LANGUAGES CXX)\n"
                                      "set(CMAKE_EXPORT_COMPILE_COMMANDS ON)\nadd_library(essai cave/Un.cpp "
                                      "cave/Deux.cpp cave/Trois.cpp)\n"
                                      "target_include_directories(essai PRIVATE ${PROJECT_SOURCE_DIR})\n"})
        self.construis()
        self.dit(0, "3 files, 0 known clean")
        self.dit(0, "3 files, 3 known clean")
        # Not built since: what the compiler said then counts no more.
        self.ecris({"cave/Double.h": ENTETE + "inline int* Nul() {\n    return 0;\n}\n"})
        self.dit(1, "3 with findings")
        self.construis()
        self.dit(1, "3 with findings")
        # As it was, and built: known again.
        self.ecris({"cave/Double.h": ENTETE})
        self.construis()
        self.dit(0, "3 files, 3 known clean")

    def construis(self) -> None:
        for commande in (["cmake", "-G", "Ninja", "-S", self.racine, "-B", self.construction],
                         ["cmake", "--build", self.construction]):
            subprocess.run(commande, check=True, stdout=subprocess.DEVNULL)

    def test_a_folder_without_compile_commands_is_refused_with_exit_status_2(self):
        self.construction = pathlib.Path(self.racine / "vide")
        self.dit(2, "no compile_commands.json")


if __name__ == "__main__":
    unittest.main()
