# SPDX-License-Identifier: MPL-2.0
"""The host against the scripted plug-in: what the tests of this folder share."""
import json
import os
import pathlib
import subprocess
import unittest

from commun import PATIENCE, dossier_neuf, environnement

HOTE = os.environ["VOCALYNE_HOTE"]
GREFFONS = pathlib.Path(os.environ["VOCALYNE_FAUX"])
FAUX = GREFFONS / "greffon_faux.so"


class AvecGreffonFaux(unittest.TestCase):

    def setUp(self):
        dossier = dossier_neuf()
        self.addCleanup(dossier.cleanup)
        self.dossier = pathlib.Path(dossier.name)
        # No engine outside the host: what they find is not the matter here.
        self.env = environnement(self.dossier, VOCALYNE_GREFFON=str(FAUX), VOCALYNE_MOTEURS="")

    def joue(self, zones: list, evenements: list[dict] | None = None, titre: str = "Essai"):
        """The script that the plug-in will play; a zone is its text, or a dictionary."""
        script = self.dossier / "scenario.json"
        self.journal = self.dossier / "journal.json"
        script.write_text(json.dumps({
            "titre": titre, "journal": str(self.journal), "evenements": evenements or [],
            "zones": [{"texte": z} if isinstance(z, str) else z for z in zones]}))
        self.env["VOCALYNE_GREFFON_FAUX"] = str(script)

    def lis_journal(self) -> dict:
        return json.loads(self.journal.read_text())

    def appels(self) -> list[str]:
        return self.lis_journal()["appels"]

    def hote(self, *arguments, entree: bytes = b"", statut: int = 0) -> subprocess.CompletedProcess:
        fini = subprocess.run([HOTE, *map(str, arguments)], env=self.env, input=entree,
                              capture_output=True, timeout=PATIENCE, check=False)
        self.assertEqual(fini.returncode, statut, fini.stdout + fini.stderr)
        return fini
