# SPDX-License-Identifier: MPL-2.0
"""An installed prefix for each test, moved away from where it was installed."""
import os
import pathlib
import shutil
import subprocess
import unittest

from commun import dossier_neuf, environnement, lance

SOURCES = pathlib.Path(os.environ["VOCALYNE_SOURCES"])
CONSTRUCTION = pathlib.Path(os.environ["VOCALYNE_CONSTRUCTION"])
CMAKE = os.environ["CMAKE_COMMAND"]


def cache_de_compilation(dossier: pathlib.Path) -> dict[str, str]:
    """Lets a build below the folder, another one each time, find what the last one compiled: in the
    compiler cache of whoever runs the tests, whose home it is not, by paths from the folder."""
    if not shutil.which("ccache"):
        return {}
    lieu = subprocess.run(["ccache", "--get-config", "cache_dir"], stdout=subprocess.PIPE, text=True,
                          check=True).stdout.strip()
    return {"CCACHE_DIR": lieu, "CCACHE_BASEDIR": str(dossier), "CCACHE_NOHASHDIR": "1"}


class PrefixeInstalle(unittest.TestCase):
    """Each test has a prefix of its own, installed at one place and moved to another."""

    composants: tuple[str, ...] = ("runtime", "sdk")

    def setUp(self):
        dossier = dossier_neuf()
        self.addCleanup(dossier.cleanup)
        self.dossier = pathlib.Path(dossier.name)
        self.env = environnement(self.dossier, **cache_de_compilation(self.dossier))
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
