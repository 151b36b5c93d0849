# SPDX-License-Identifier: MPL-2.0
"""outils/lint: each look passes a sound tree and finds the fault that is planted for it."""
import unittest

from arbre_essai import ArbreEssai

SPDX = "// SPDX-License-Identifier: MPL-2.0\n"
PIECES = """# SPDX-License-Identifier: MPL-2.0
public sol : 
room cave : sol
generated fait.h : cave
room etage : cave sol
free tests
"""
SAIN = {
    "outils/pieces.liste": PIECES,
    "README.md": "# A tree\n\n`sol/`, `cave/`, `etage/`, `tests/`, `outils/pieces.liste`\n",
    "sol/README.md": "# sol\n\n| file | what |\n|---|---|\n| `Dalle.h` | a slab |\n",
    "sol/Dalle.h": SPDX + "class Dalle {};\n",
    "cave/README.md": "# cave\n\n| file | what |\n|---|---|\n| `Tonneau` | both |\n",
    "cave/Tonneau.h": SPDX + '#include "Dalle.h"\n#include <vector>\nclass Tonneau {\n    class Cercle {};\n};\n',
    "cave/Tonneau.cpp": SPDX + '#include "Tonneau.h"\n',
    "etage/README.md": "# etage\n\n`*.cpp`\n",
    "etage/Table.cpp": SPDX + '#include "cave/Tonneau.h"\n#include "fait.h"\n'
                              "namespace a {\nstruct Table {\n    class Cercle {};\n};\n}\n",
    "tests/README.md": "# tests\n\n`TableTest`\n",
    "tests/TableTest.cpp": SPDX + '#include "cave/Tonneau.h"\nstruct Table {};\n',
}


class Lint(ArbreEssai):
    def setUp(self):
        super().setUp()
        self.ecris(SAIN)

    def trouve(self, regard: str, *attendus: str) -> None:
        """The look fails, and says each of these."""
        statut, dit = self.lance("lint", regard)
        self.assertEqual(statut, 1, dit)
        for attendu in attendus:
            self.assertIn(attendu, dit)

    def passe(self, *regards: str) -> None:
        statut, dit = self.lance("lint", *regards)
        self.assertEqual(statut, 0, dit)

    def remplace(self, nom: str, ancien: str, nouveau: str) -> None:
        self.assertIn(ancien, SAIN[nom])
        self.ecris({nom: SAIN[nom].replace(ancien, nouveau)})

    def test_a_sound_tree_passes(self):
        self.passe("rooms", "readmes", "names", "licences", "shell", "python", "contracts", "catalogs")

    def test_an_unknown_look_is_refused_with_exit_status_2(self):
        self.assertEqual(self.lance("lint", "inconnu")[0], 2)

    # Rooms.
    def test_an_include_of_a_room_above_is_found(self):
        self.ecris({"etage/Haut.h": SPDX})
        self.remplace("cave/Tonneau.cpp", '#include "Tonneau.h"', '#include "etage/Haut.h"')
        self.trouve("rooms", "cave/Tonneau.cpp: etage/Haut.h: cave may not include from etage")

    def test_an_include_across_rooms_must_name_the_room(self):
        self.remplace("etage/Table.cpp", "cave/Tonneau.h", "Tonneau.h")
        self.trouve("rooms", 'name the room: "cave/Tonneau.h"')

    def test_what_the_tests_hold_is_never_included(self):
        self.ecris({"tests/Outil.h": SPDX})
        self.remplace("etage/Table.cpp", "cave/Tonneau.h", "tests/Outil.h")
        self.trouve("rooms", "no room to include from")

    def test_an_include_that_leads_nowhere_is_found(self):
        self.remplace("etage/Table.cpp", "cave/Tonneau.h", "grenier/Malle.h")
        self.trouve("rooms", "grenier/Malle.h: unknown")

    def test_our_headers_between_angles_are_held_to_the_list_too(self):
        self.ecris({"etage/Haut.h": SPDX})
        self.remplace("cave/Tonneau.cpp", '#include "Tonneau.h"', "#include <etage/Haut.h>")
        self.trouve("rooms", "cave may not include from etage")

    def test_a_folder_of_sources_that_is_not_listed_is_found(self):
        self.ecris({"grenier/Malle.cpp": SPDX})
        self.trouve("rooms", "grenier/Malle.cpp: grenier is not in outils/pieces.liste")

    def test_a_circle_cannot_be_written(self):
        self.remplace("outils/pieces.liste", "room cave : sol", "room cave : sol etage")
        self.trouve("rooms", "etage is no room of a line above")

    def test_a_room_that_is_gone_may_not_stay_in_the_list(self):
        self.remplace("outils/pieces.liste", "free tests", "free tests\nroom grenier")
        self.trouve("rooms", "grenier is no folder")

    # READMEs.
    def test_a_file_that_no_readme_names_is_found(self):
        self.ecris({"cave/Bouteille.h": SPDX})
        self.trouve("readmes", "cave/README.md: does not name Bouteille.h")

    def test_a_source_is_not_named_by_its_header_s_whole_name(self):
        self.remplace("cave/README.md", "`Tonneau`", "`Tonneau.h`")
        self.trouve("readmes", "does not name Tonneau.cpp")

    def test_a_pattern_names_what_it_fits_and_nothing_else(self):
        self.ecris({"etage/Chaise.cpp": SPDX})
        self.passe("readmes")
        self.ecris({"etage/Chaise.py": ""})
        self.trouve("readmes", "etage/README.md: does not name Chaise.py")

    def test_a_listed_file_that_is_not_there_is_found(self):
        self.remplace("cave/README.md", "| `Tonneau` | both |", "| `Tonneau` | both |\n| `Fut` | gone |")
        self.trouve("readmes", "cave/README.md: lists `Fut`, which is not there")

    def test_a_source_named_in_a_sentence_must_be_somewhere(self):
        self.remplace("cave/README.md", "# cave", "# cave\n\nSee `cave/Fut.h`.")
        self.trouve("readmes", "names `cave/Fut.h`, which is nowhere")

    def test_a_folder_that_the_readme_above_does_not_name_is_found(self):
        self.ecris({"cave/fond/README.md": "# fond\n"})
        self.trouve("readmes", "cave/README.md: does not name fond/")

    def test_files_of_a_folder_without_a_readme_are_named_above(self):
        self.ecris({"cave/fond/Rat.h": SPDX})
        self.trouve("readmes", "cave/README.md: does not name fond/Rat.h")
        self.remplace("cave/README.md", "# cave", "# cave\n\n`fond/Rat.h`")
        self.passe("readmes")

    def test_a_link_that_leads_nowhere_is_found(self):
        self.remplace("cave/README.md", "# cave", "# cave\n\n[gone](../grenier/README.md)")
        self.trouve("readmes", "cave/README.md: links to ../grenier/README.md")

    # Names.
    def test_two_headers_of_one_name_are_found(self):
        self.ecris({"etage/Tonneau.h": SPDX})
        self.trouve("names", "Tonneau.h stands 2 times")

    def test_two_classes_of_one_name_are_found_but_not_nested_ones(self):
        self.remplace("etage/Table.cpp", "struct Table", "struct Dalle")
        self.trouve("names", "class Dalle stands 2 times")

    def test_a_class_that_stands_beside_the_file_of_its_name_is_found(self):
        self.remplace("sol/Dalle.h", "class Dalle", "class Tonneau")
        self.remplace("cave/Tonneau.h", "class Tonneau", "class Fut")
        self.trouve("names", "class Tonneau stands in sol/Dalle.h, not in cave/Tonneau.h")

    def test_words_in_comments_and_texts_are_no_classes(self):
        self.remplace("etage/Table.cpp", "namespace a", '// class Dalle {\nchar const* t = "class Dalle {";\nnamespace a')
        self.passe("names")

    # The older looks.
    def test_a_file_without_its_licence_line_is_found(self):
        self.ecris({"cave/Tonneau.cpp": '#include "Tonneau.h"\n'})
        self.trouve("licences", "cave/Tonneau.cpp")

    def test_a_script_that_is_none_is_found(self):
        self.ecris({"cave/a.py": "def\n", "cave/b.sh": "#!/bin/sh\nif\n"})
        self.trouve("python", "cave/a.py")
        self.trouve("shell", "b.sh")

    def test_a_document_that_does_not_parse_is_found(self):
        self.ecris({"cave/a.json": "{"})
        self.trouve("contracts", "cave/a.json")

    def test_a_message_that_one_language_lacks_is_found(self):
        tete = '# SPDX-License-Identifier: MPL-2.0\nmsgid ""\nmsgstr ""\n' \
            '"Content-Type: text/plain; charset=UTF-8\\n"\n'
        self.ecris({"cave/fr.po": tete + '\nmsgid "vin"\nmsgstr "vin"\n', "cave/en.po": tete})
        self.trouve("catalogs", "cave/en.po: missing", "vin")

    def test_a_misspelled_word_is_found_in_documents_and_comments(self):
        self.ecris({"cave/README.md": "# cave\n\nThis is teh cave.\n"})
        self.trouve("spelling", "cave/README.md")

    def test_a_format_that_is_not_ours_is_found(self):
        self.ecris({"cave/Tonneau.cpp": SPDX + "int   a ;\n"})
        self.trouve("format", "Tonneau.cpp")


if __name__ == "__main__":
    unittest.main()
