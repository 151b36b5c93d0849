# SPDX-License-Identifier: MPL-2.0
"""`moteurs`: the engines, what they lack, and the orders about them."""
import json
import pathlib
import sys
import unittest

from hote import AvecGreffonFaux

MOTEUR = """
import json, sys
print(json.dumps({"contrat": 1, "moteur": "essai", "version": "7.5"}), flush=True)
sys.stdin.read()
"""


class Moteurs(AvecGreffonFaux):

    def setUp(self):
        super().setUp()
        self.env["VOCALYNE_MOTEURS"] = str(self.dossier / "moteurs")

    def pose(self, nom: str, **membres) -> pathlib.Path:
        dossier = self.dossier / "moteurs" / nom
        dossier.mkdir(parents=True)
        (dossier / "essai.py").write_text(MOTEUR)
        (dossier / "moteur.json").write_text(json.dumps({
            "contrat": 1, "nom": nom, "langues": ["fr"],
            "commande": [sys.executable, "-B", "{dossier}/essai.py"], **membres}))
        return dossier

    def etats(self) -> dict[str, dict]:
        return {m["nom"]: m for m in json.loads(self.hote("moteurs", "--sortie", "json").stdout)}

    def test_an_engine_that_starts_is_ready_and_tells_its_version(self):
        self.pose("essai")
        self.assertEqual(self.etats()["essai"] | {"langues": ""},
                         {"nom": "essai", "etat": "pret", "version": "7.5", "langues": "", "message": ""})
        self.assertIn("essai 7.5 (fr) : ready\n", self.hote("moteurs").stdout.decode())

    def test_a_missing_engine_tells_the_command_that_installs_it(self):
        self.pose("unpaquet", fichiers=["/nulle/part"], paquet="python3-machin")
        self.pose("parnpm", fichiers=["{donnees}/x"], npm="machin.js")
        etats = self.etats()
        self.assertEqual(etats["unpaquet"]["etat"], "absent")
        self.assertIn("apt install python3-machin", etats["unpaquet"]["message"])
        self.assertIn("vocalyne-hote moteurs installe parnpm", etats["parnpm"]["message"])

    def test_installed_dictionaries_make_spelling_ready(self):
        self.assertEqual(self.etats()["hunspell"]["etat"], "pret")

    def test_an_engine_is_switched_off_and_on(self):
        self.pose("essai")
        self.hote("moteurs", "eteins", "essai")
        self.assertEqual(self.etats()["essai"]["etat"], "eteint")
        self.hote("moteurs", "allume", "essai")
        self.assertEqual(self.etats()["essai"]["etat"], "pret")

    def test_an_engine_that_needs_an_address_is_off_until_it_has_one(self):
        self.pose("essai", reglage="essai")
        self.assertEqual(self.etats()["essai"]["etat"], "eteint")
        self.hote("moteurs", "adresse", "essai", "http://localhost:1")
        self.assertEqual(self.etats()["essai"]["etat"], "pret")

    def test_npm_installs_an_engine_for_the_person_alone(self):
        self.pose("essai", fichiers=["{donnees}/node_modules/machin.js"], npm="machin.js")
        (self.dossier / "bin").mkdir()
        npm = self.dossier / "bin/npm"
        # Does what npm does: the package's folder under the prefix.
        npm.write_text("#!/bin/sh\nwhile [ $# -gt 1 ]; do [ \"$1\" = --prefix ] && d=$2; shift; done\n"
                       "mkdir -p \"$d/node_modules/$1\"\n")
        npm.chmod(0o755)
        self.env["PATH"] = f"{self.dossier}/bin:{self.env['PATH']}"
        self.assertEqual(self.etats()["essai"]["etat"], "absent")
        self.hote("moteurs", "installe", "essai")
        self.assertEqual(self.etats()["essai"]["etat"], "pret")
        self.assertTrue((self.dossier / ".local/share/vocalyne/npm/essai/node_modules/machin.js").is_dir())

    def test_npm_that_fails_is_a_failure(self):
        self.pose("essai", fichiers=["/x"], npm="machin.js")
        (self.dossier / "npm").write_text("#!/bin/sh\nexit 1\n")
        (self.dossier / "npm").chmod(0o755)
        self.env["PATH"] = f"{self.dossier}:{self.env['PATH']}"
        self.assertIn(b"machin.js", self.hote("moteurs", "installe", "essai", statut=7).stderr)

    def test_wrong_orders_are_refused(self):
        self.pose("essai")
        for ordre in (["installe", "inconnu"], ["peins", "essai"], ["eteins"], ["installe", "regles"],
                      ["installe", "essai"], ["eteins", "essai", "x", "y"]):
            with self.subTest(ordre):
                self.hote("moteurs", *ordre, statut=2)

    def test_a_description_that_is_none_is_told_and_passed_over(self):
        self.pose("essai")
        self.pose("mauvais", langues=[])
        fini = self.hote("moteurs", "--sortie", "json")
        self.assertIn(b"mauvais/moteur.json", fini.stderr)
        self.assertEqual(len(json.loads(fini.stdout)), 3)


if __name__ == "__main__":
    unittest.main()
