# SPDX-License-Identifier: MPL-2.0
"""outils/site: the tree's pages as a site, whose links all lead somewhere."""
import os
import pathlib
import shutil
import subprocess
import unittest

from arbre_essai import OUTILS, ArbreEssai

SOURCES = pathlib.Path(os.environ["VOCALYNE_SOURCES"])
SAIN = {
    "README.md": "# Home\n\n[a room](cave/README.md)\n",
    "cave/README.md": "# Cave\n\n[home](../README.md)\n",
    "docs/site.yml": "site_name: Essai\ndocs_dir: pages\nuse_directory_urls: false\nnav:\n  - Home: README.md\n",
}


class Site(ArbreEssai):
    def fais(self, depot: pathlib.Path) -> subprocess.CompletedProcess:
        self.sortie = self.racine / "sortie"
        return subprocess.run([depot / "outils/site", self.sortie], text=True, check=False, stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT, env={**os.environ, "LC_ALL": "C.UTF-8"})

    def essai(self) -> subprocess.CompletedProcess:
        (self.racine / "outils").mkdir()
        for nom in ("commun.sh", "paquets", "paquets.liste", "site"):
            shutil.copy(OUTILS / nom, self.racine / "outils")
        return self.fais(self.racine)

    def test_pages_stand_where_they_stood_and_link_to_each_other(self):
        self.ecris(SAIN)
        fait = self.essai()
        self.assertEqual(fait.returncode, 0, fait.stdout)
        self.assertIn('href="cave/index.html"', (self.sortie / "index.html").read_text())
        self.assertTrue((self.sortie / "cave/index.html").is_file())

    def test_a_link_that_leads_nowhere_fails(self):
        self.ecris(SAIN | {"cave/README.md": "# Cave\n\n[gone](../grenier/README.md)\n"})
        fait = self.essai()
        self.assertNotEqual(fait.returncode, 0)
        self.assertIn("grenier/README.md", fait.stdout)

    def test_a_page_of_the_table_that_is_gone_fails(self):
        self.ecris(SAIN | {"docs/site.yml": SAIN["docs/site.yml"] + "  - Gone: docs/gone.md\n"})
        fait = self.essai()
        self.assertNotEqual(fait.returncode, 0)
        self.assertIn("docs/gone.md", fait.stdout)

    def test_this_tree_s_own_site_asks_nothing_of_the_network(self):
        fait = self.fais(SOURCES)
        self.assertEqual(fait.returncode, 0, fait.stdout)
        for page in self.sortie.rglob("*.html"):
            with self.subTest(page.name):
                self.assertNotRegex(page.read_text(), r'(?:<script[^>]*src|<link[^>]*stylesheet[^>]*href)="?https?:')


if __name__ == "__main__":
    unittest.main()
