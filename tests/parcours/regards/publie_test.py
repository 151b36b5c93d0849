# SPDX-License-Identifier: MPL-2.0
"""outils/publie: a release is what its tag holds, and says the same version everywhere."""
import hashlib
import os
import shutil
import subprocess
import tarfile
import unittest

from arbre_essai import OUTILS, ArbreEssai

SITE = "companion/libreoffice/oxt/site"
SAIN = {
    ".gitignore": "__pycache__\n",
    "CMakeLists.txt": "project(Arbre VERSION 1.2.0 LANGUAGES CXX)\n",
    "CHANGELOG.md": "# Changelog\n\n## [Unreleased]\n\n## [1.2.0] - 2020-01-02\n\n- What is new.\n\n## [1.1.0]\n\n- Old.\n",
    "outils/paquets.liste": "[construction]\ncmake\n",
    "debian/changelog": "arbre (1.2.0) bookworm; urgency=medium\n",
    "debian/control": "Source: arbre\nBuild-Depends: debhelper-compat (= 13), cmake\n",
    f"{SITE}/notes.fr.txt": "Arbre 1.2.0\n",
    f"{SITE}/notes.en.txt": "Arbre 1.2.0\n",
}


class Publie(ArbreEssai):
    def setUp(self):
        super().setUp()
        self.ecris(SAIN)
        shutil.copytree(OUTILS / "examens", self.racine / "outils/examens",
                        ignore=shutil.ignore_patterns("__pycache__"))
        for nom in ("commun.sh", "lint", "publie"):
            shutil.copy(OUTILS / nom, self.racine / "outils")
        self.range()
        self.git("tag", "v1.2.0")
        self.sortie = self.racine.parent / (self.racine.name + ".sortie")
        self.addCleanup(shutil.rmtree, self.sortie, ignore_errors=True)

    def git(self, *arguments: str) -> None:
        subprocess.run(["git", "-c", "user.name=essai", "-c", "user.email=essai@example.org", *arguments],
                       cwd=self.racine, check=True, stdout=subprocess.DEVNULL)

    def range(self) -> None:
        self.git("add", "-A")
        self.git("commit", "-q", "-m", "essai")

    def publie(self, version: str = "1.2.0") -> tuple[int, str]:
        essai = subprocess.run([self.racine / "outils/publie", "--sans-paquets", version, self.sortie], text=True,
                               stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False,
                               env={**os.environ, "LC_ALL": "C.UTF-8"})
        return essai.returncode, essai.stdout

    def refuse(self, attendu: str, version: str = "1.2.0") -> None:
        statut, dit = self.publie(version)
        self.assertEqual(statut, 1, dit)
        self.assertIn(attendu, dit)
        self.assertFalse((self.sortie / f"vocalyne-{version}").exists())

    def deplace_etiquette(self, nom: str, ancien: str, nouveau: str) -> None:
        self.assertIn(ancien, SAIN[nom])
        self.ecris({nom: SAIN[nom].replace(ancien, nouveau)})
        self.range()
        self.git("tag", "--force", "v1.2.0")

    def test_it_holds_the_sources_the_version_s_notes_and_the_sums(self):
        statut, dit = self.publie()
        self.assertEqual(statut, 0, dit)
        dossier = self.sortie / "vocalyne-1.2.0"
        self.assertEqual((dossier / "NOTES.md").read_text().strip(), "- What is new.")
        archive = dossier / "vocalyne-connecteur-1.2.0.tar.gz"
        with tarfile.open(archive) as sources:
            self.assertIn("vocalyne-connecteur-1.2.0/CHANGELOG.md", sources.getnames())
        sommes = dict(reversed(ligne.split()) for ligne in (dossier / "SHA256SUMS").read_text().splitlines())
        self.assertEqual(sorted(sommes), ["NOTES.md", archive.name])
        self.assertEqual(sommes[archive.name], hashlib.sha256(archive.read_bytes()).hexdigest())

    def test_a_version_without_a_tag_is_refused(self):
        self.refuse("There is no tag v1.3.0", "1.3.0")

    def test_a_tree_that_is_elsewhere_is_refused(self):
        self.ecris({"neuf.txt": ""})
        self.range()
        self.refuse("The tree is not at v1.2.0")

    def test_a_tree_with_changes_is_refused(self):
        self.ecris({"CHANGELOG.md": ""})
        self.refuse("The tree is not as v1.2.0 holds it")

    def test_a_tag_of_another_version_than_the_project_s_is_refused(self):
        self.deplace_etiquette("CMakeLists.txt", "1.2.0", "1.2.1")
        self.refuse("CMakeLists.txt names another version")

    def test_a_version_whose_changes_are_not_told_is_refused(self):
        self.deplace_etiquette("CHANGELOG.md", "[1.2.0]", "[1.2.9]")
        self.refuse("CHANGELOG.md has no section [1.2.0]")

    def test_packages_of_an_unreleased_version_are_refused(self):
        self.deplace_etiquette("debian/changelog", "bookworm", "UNRELEASED")
        self.refuse("1.2.0 is for UNRELEASED")

    def test_notes_of_another_version_are_refused(self):
        self.deplace_etiquette(f"{SITE}/notes.fr.txt", "1.2.0", "1.1.0")
        self.refuse("notes.fr.txt does not speak of 1.2.0")

    def test_a_release_that_is_there_is_left_alone(self):
        self.assertEqual(self.publie()[0], 0)
        temoin = self.sortie / "vocalyne-1.2.0" / "NOTES.md"
        temoin.write_text("mine")
        self.assertEqual(self.publie()[0], 1)
        self.assertEqual(temoin.read_text(), "mine")


if __name__ == "__main__":
    unittest.main()
