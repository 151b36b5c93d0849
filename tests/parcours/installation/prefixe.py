# SPDX-License-Identifier: MPL-2.0
"""An installed prefix for each test, moved away from where it was installed."""
import os
import pathlib
import unittest

from commun import dossier_neuf, environnement, lance

SOURCES = pathlib.Path(os.environ["VOCALYNE_SOURCES"])
CONSTRUCTION = pathlib.Path(os.environ["VOCALYNE_CONSTRUCTION"])
CMAKE = os.environ["CMAKE_COMMAND"]


class PrefixeInstalle(unittest.TestCase):
    """Each test has a prefix of its own, installed at one place and moved to another."""

    composants: tuple[str, ...] = ("runtime", "sdk")

    def setUp(self):
        dossier = dossier_neuf()
        self.addCleanup(dossier.cleanup)
        self.dossier = pathlib.Path(dossier.name)
        self.env = environnement(self.dossier)
        provisoire = self.dossier / "provisoire"
        for composant in self.composants:
            lance(CMAKE, "--install", CONSTRUCTION, "--prefix", provisoire, "--component", composant,
                  env=self.env)
        self.prefixe = self.dossier / "ailleurs" / "vocalyne"
        self.prefixe.parent.mkdir()
        provisoire.rename(self.prefixe)

    def elfs(self) -> list[pathlib.Path]:
        return [c for c in self.prefixe.rglob("*")
                if c.is_file() and not c.is_symlink() and c.read_bytes()[:4] == b"\x7fELF"]
