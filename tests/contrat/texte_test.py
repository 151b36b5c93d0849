#!/usr/bin/python3
# SPDX-License-Identifier: MPL-2.0
"""The embedded office held to the contract: every rule but those that plain text has nothing for."""

import json
import os
import pathlib
import unittest

import commun

BUREAU = os.environ["VOCALYNE_BUREAU_TEXTE"]
CONTRAT = pathlib.Path(__file__).resolve().parents[2] / "outils/contrat"
# No style, no field, and no zone that may be read but not corrected in a file that may be written.
SANS_OBJET = {"zones.styles", "refus.champ", "peut.interdit"}
TEXTES = {"un-essai.txt": "Les chats dorment ici.\nUn \U0001f600 la.\r\nTrois mots encore, sans fin",
          "autre-essai.txt": "Deux mots de plus.\n", "fige-essai.txt": "Ne touchez pas.\n"}
# A file is read-only to nobody who may do everything.
ASSUJETTI = ["setpriv", "--bounding-set", "-dac_override"] if os.geteuid() == 0 else []


class Bureau(unittest.TestCase):
    def setUp(self):
        temporaire = commun.dossier_neuf()
        self.addCleanup(temporaire.cleanup)
        self.dossier = pathlib.Path(temporaire.name)
        for nom, texte in TEXTES.items():
            (self.dossier / nom).write_bytes(texte.encode())
        (self.dossier / "fige-essai.txt").chmod(0o444)

    def test_the_embedded_office_holds_every_rule(self):
        with commun.bus_prive(commun.environnement(self.dossier)) as env:
            with commun.processus(*ASSUJETTI, BUREAU, *(self.dossier / nom for nom in TEXTES),
                                  env=env) as bureau:
                un, autre, fige = (bureau.suivante().split()[0] for _ in TEXTES)
                dit = commun.lance(CONTRAT, un.split("~")[0], un, "--autre", autre,
                                   "--lecture-seule", fige, "--enregistre",
                                   "--sortie", "json", env=env, statut=None)
        bilan = json.loads(dit.stdout)
        self.assertEqual({r["id"]: r["constats"] for r in bilan["regles"]
                          if r["statut"] == "violee"}, {})
        self.assertEqual({r["id"] for r in bilan["regles"] if r["statut"] == "non-essayee"},
                         SANS_OBJET)
        self.assertEqual(bilan["ecarts"], [])
        self.assertEqual(dit.returncode, 0)
        for nom, texte in TEXTES.items():
            self.assertEqual((self.dossier / nom).read_bytes(), texte.encode(), nom)


if __name__ == "__main__":
    unittest.main()
