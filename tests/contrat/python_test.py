#!/usr/bin/python3
# SPDX-License-Identifier: MPL-2.0
"""The companion of the examples held to the contract, in its other language."""
import json
import os
import pathlib
import sys
import unittest

import commun

DEPOT = pathlib.Path(__file__).resolve().parents[2]
COMPAGNON = DEPOT / "exemples/compagnon-python/compagnon.py"
# No style, no field, nothing protected; names of zones and reports it does not offer.
SANS_OBJET = {"zones.styles", "refus.champ", "peut.interdit", "noms.zones", "rapport.forme"}
TEXTES = {"un-essai.txt": "Les chats dorment ici.\nUn \U0001f600 la.\nTrois mots encore, sans fin",
          "autre-essai.txt": "Deux mots de plus.\n", "fige-essai.txt": "Ne touchez pas.\n"}
# A file is read-only to nobody who may do everything.
ASSUJETTI = ["setpriv", "--bounding-set", "-dac_override"] if os.geteuid() == 0 else []


class Compagnon(unittest.TestCase):

    def test_the_python_companion_holds_every_rule(self):
        temporaire = commun.dossier_neuf()
        self.addCleanup(temporaire.cleanup)
        dossier = pathlib.Path(temporaire.name)
        for nom, texte in TEXTES.items():
            (dossier / nom).write_bytes(texte.encode())
        (dossier / "fige-essai.txt").chmod(0o444)
        with commun.bus_prive(commun.environnement(dossier)) as env:
            with commun.processus(*ASSUJETTI, sys.executable, COMPAGNON, *(dossier / nom for nom in TEXTES),
                                  env=env) as bureau:
                un, autre, fige = (bureau.suivante().split()[0] for _ in TEXTES)
                dit = commun.lance(DEPOT / "outils/contrat", un.split("~")[0], un, "--autre", autre,
                                   "--lecture-seule", fige, "--enregistre", "--sortie", "json", env=env, statut=None)
        bilan = json.loads(dit.stdout)
        self.assertEqual({r["id"]: r["constats"] for r in bilan["regles"] if r["statut"] == "violee"}, {})
        self.assertEqual({r["id"] for r in bilan["regles"] if r["statut"] == "non-essayee"}, SANS_OBJET)
        for nom, texte in TEXTES.items():
            self.assertEqual((dossier / nom).read_bytes(), texte.encode(), nom)


if __name__ == "__main__":
    unittest.main()
