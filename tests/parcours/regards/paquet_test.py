# SPDX-License-Identifier: MPL-2.0
"""outils/lint package: the Debian package says what the rest of the tree says."""
import unittest

from arbre_essai import ArbreEssai

SAIN = {
    "CMakeLists.txt": "project(Arbre VERSION 1.2.0 LANGUAGES CXX\n  DESCRIPTION \"A tree\")\n",
    "CHANGELOG.md": "# Changelog\n\n## [Unreleased]\n\n## [1.1.0] - 2020-01-02\n",
    "outils/paquets.liste": "[construction]\ng++\ncmake\n\n# Comment\n[paquets-extension]\nbureau-dev\n",
    "debian/changelog": "arbre (1.2.0) UNRELEASED; urgency=medium\n",
    "debian/control": "Source: arbre\nBuild-Depends:\n debhelper-compat (= 13),\n bureau-dev [amd64],\n"
                      " cmake (>= 3.25),\nStandards-Version: 4\n",
}


class Paquet(ArbreEssai):
    def setUp(self):
        super().setUp()
        self.ecris(SAIN)

    def remplace(self, nom: str, ancien: str, nouveau: str) -> None:
        self.assertIn(ancien, SAIN[nom])
        self.ecris({nom: SAIN[nom].replace(ancien, nouveau)})

    def trouve(self, attendu: str) -> None:
        statut, dit = self.lance("lint", "package")
        self.assertEqual(statut, 1, dit)
        self.assertIn(attendu, dit)

    def passe(self) -> None:
        statut, dit = self.lance("lint", "package")
        self.assertEqual(statut, 0, dit)

    def test_a_tree_that_agrees_with_itself_passes(self):
        self.passe()

    def test_the_package_s_version_is_the_project_s(self):
        self.remplace("debian/changelog", "1.2.0", "1.2.1")
        self.trouve("1.2.1 is not the version of CMakeLists.txt, 1.2.0")

    def test_a_version_is_unreleased_until_the_changelog_has_its_section(self):
        self.remplace("debian/changelog", "UNRELEASED", "unstable")
        self.trouve("CHANGELOG.md has no section [1.2.0]")
        self.remplace("CHANGELOG.md", "[1.1.0]", "[1.2.0]")
        self.passe()
        self.ecris({"debian/changelog": SAIN["debian/changelog"]})
        self.trouve("CHANGELOG.md has a section [1.2.0]")

    def test_what_the_build_takes_is_asked_for_by_the_package(self):
        self.remplace("outils/paquets.liste", "cmake\n", "cmake\ngettext\n")
        self.trouve("debian/control: no gettext")

    def test_the_package_asks_for_nothing_that_the_list_has_not(self):
        self.remplace("debian/control", " cmake", " ninja-build,\n cmake")
        self.trouve("debian/control: ninja-build, which outils/paquets.liste has not in [construction]")

    def test_the_extension_s_own_are_asked_for_on_its_architecture_alone(self):
        self.remplace("debian/control", " [amd64]", "")
        self.trouve("debian/control: no bureau-dev, which outils/paquets.liste has in [paquets-extension]")


if __name__ == "__main__":
    unittest.main()
