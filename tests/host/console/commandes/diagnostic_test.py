# SPDX-License-Identifier: MPL-2.0
"""`vocalyne-hote diagnostic`: what works is tried, and what does not has its remedy."""
import unittest

from hote import AvecGreffonFaux


class Diagnostic(AvecGreffonFaux):

    def dit(self, *options, statut=0) -> str:
        return self.hote("diagnostic", *options, statut=statut).stdout.decode()

    def test_what_is_there_is_ready(self):
        dit = self.dit("--bref")
        for ligne in ("greffon_faux.so, ready", "Dictionary, French: ready",
                      "Synonyms, English: ready", "hunspell"):
            self.assertIn(ligne, dit)
        self.assertTrue(dit.endswith("All is well.\n"), dit)

    def test_a_connector_that_does_not_load_is_not_well(self):
        dit = self.dit("--bref", "--greffon", "/absent.so", statut=4)
        self.assertIn("Connector: failing", dit)
        self.assertIn("What is wrong:\n- No connector found: /absent.so.", dit)
        self.assertNotIn("All is well", dit)

    def test_an_engine_that_cannot_start_is_told_only_where_it_is_started(self):
        moteur = self.dossier / "faux"
        moteur.mkdir()
        (moteur / "moteur.json").write_text(
            '{"contrat": 1, "nom": "faux", "langues": ["fr"], "commande": ["/bin/false"]}')
        self.env["VOCALYNE_MOTEURS"] = str(self.dossier)
        self.assertIn("faux (fr) : ready", self.dit("--bref"))
        self.env["DBUS_SESSION_BUS_ADDRESS"] = "unix:path=/absent"
        dit = self.dit(statut=3)
        self.assertIn("faux (fr) : failing", dit)
        self.assertIn("Documents within reach: failing", dit)


if __name__ == "__main__":
    unittest.main()
