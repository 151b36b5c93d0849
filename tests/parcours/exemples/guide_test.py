# SPDX-License-Identifier: MPL-2.0
"""The guide for authors of connectors does what it says, as it stands in the installed page."""
import json
import re
import unittest

from commun import dialogue, lance
from prefixe import CMAKE, PrefixeInstalle

BLOC = re.compile(r"^<!-- (\S+) -->\n```\w+\n(.*?)^```$", re.S | re.M)
LIEN = re.compile(r"\]\(([^):#]+)\)")


class Guide(PrefixeInstalle):

    def setUp(self):
        super().setUp()
        self.documents = self.prefixe / "share/doc/VocalyneConnecteur"
        self.page = (self.documents / "docs/connecteur.md").read_text(encoding="utf-8")
        self.hote = self.prefixe / "bin/vocalyne-hote"

    def blocs(self, nom: str) -> str:
        return "".join(texte for fichier, texte in BLOC.findall(self.page) if fichier == nom)

    def test_the_code_of_the_page_is_a_connector_that_keeps_the_contract(self):
        sources = self.dossier / "mien"
        sources.mkdir()
        for nom in ("CMakeLists.txt", "MonConnecteur.cpp"):
            (sources / nom).write_text(self.blocs(nom), encoding="utf-8")
        lance(CMAKE, "-G", "Ninja", "-S", sources, "-B", sources / "build",
              f"-DCMAKE_PREFIX_PATH={self.prefixe}", env=self.env)
        lance(CMAKE, "--build", sources / "build", env=self.env)
        connecteur = sources / "build/libMonConnecteur.so"
        self.essaie_le_dialogue(connecteur)
        bilan = json.loads(lance(self.hote, "verifie", connecteur, "essai", "--sortie", "json", env=self.env,
                                 statut=None).stdout)
        self.assertEqual({r["nom"]: r["constats"] for r in bilan["regles"] if r["etat"] == "violee"}, {})
        self.assertEqual({r["nom"] for r in bilan["regles"] if r["etat"] == "nonEssayee"} - {"memoire.valgrind"},
                         set())
        corrige = lance(self.hote, "corrige", "essai", "--langue", "fr", "--automatique", "--sortie", "json",
                        "--greffon", connecteur, env=self.env)
        self.assertEqual([f["remplacement"] for f in json.loads(corrige.stdout)["fautes"]], ["accueil"])

    def essaie_le_dialogue(self, connecteur):
        """Each request of the page gets the answer that the page shows behind it."""
        lignes = [json.loads(ligne) for ligne in self.blocs("pilote").splitlines()]
        demandes = [ligne for ligne in lignes if "resultat" not in ligne]
        reponses = dialogue(self.hote, demandes, self.env, "--greffon", connecteur)
        obtenues = iter(reponses)
        montrees = 0
        for ligne in lignes:
            if "resultat" not in ligne:
                reponse = next(obtenues)
            else:
                self.assertEqual(reponse, ligne)
                montrees += 1
        self.assertGreater(montrees, 2)

    def test_the_sixteen_operations_of_the_page_are_those_left_pure(self):
        table = self.page[self.page.index("| operation |"):self.page.index("bool Capacite1()")]
        nommees = set(re.findall(r"`(\w+)`", table)) | {f"Capacite{n}" for n in range(1, 8)}
        entetes = self.prefixe / "include/vocalyne"
        pures = {nom for entete in ("InterfaceTexteur.h", "InterfaceAgentTexteur.h")
                 for nom in re.findall(r"virtual [\w ]+?[&*]? ?(\w+)\([^;{]*\) = 0;", (entetes / entete).read_text())}
        definies = set(re.findall(r"(\w+)\([^;{]*\)\s*override", (entetes / "ImplAgentTexteur.h").read_text()))
        self.assertEqual(nommees, pures - definies)
        self.assertEqual(len(nommees), 16)

    def test_the_installed_pages_link_to_pages_that_are_installed(self):
        pages = list(self.documents.rglob("*.md"))
        self.assertGreater(len(pages), 4)
        for page in pages:
            for lien in LIEN.findall(page.read_text(encoding="utf-8")):
                with self.subTest(f"{page.name}: {lien}"):
                    self.assertTrue((page.parent / lien).exists())


if __name__ == "__main__":
    unittest.main()
