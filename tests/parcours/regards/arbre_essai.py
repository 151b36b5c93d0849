# SPDX-License-Identifier: MPL-2.0
"""A small tree of sources that a test makes, and outils/ at work on it."""
import os
import pathlib
import subprocess
import tempfile
import unittest

OUTILS = pathlib.Path(os.environ["VOCALYNE_SOURCES"]) / "outils"


class ArbreEssai(unittest.TestCase):
    """A Git work tree, removed when the test ends; `self.ecris` puts files into it."""

    def setUp(self):
        dossier = tempfile.TemporaryDirectory(prefix="vocalyne-regards.")
        self.addCleanup(dossier.cleanup)
        self.racine = pathlib.Path(dossier.name).resolve()
        subprocess.run(["git", "init", "-q", self.racine], check=True)

    def ecris(self, fichiers: dict[str, str]) -> None:
        for nom, contenu in fichiers.items():
            chemin = self.racine / nom
            chemin.parent.mkdir(parents=True, exist_ok=True)
            chemin.write_text(contenu, encoding="utf-8")

    def lance(self, outil: str, *arguments) -> tuple[int, str]:
        """(exit status, all that was printed)"""
        essai = subprocess.run([OUTILS / outil, "--arbre", self.racine, *arguments], text=True, check=False,
                               stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                               env={**os.environ, "VOCALYNE_CACHE": str(self.racine / ".git" / "cache")})
        return essai.returncode, essai.stdout
