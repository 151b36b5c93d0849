# SPDX-License-Identifier: MPL-2.0
"""What the tests of ./demo share: a folder each, and a look at what stays behind."""
import fcntl
import os
import pathlib
import pty
import select
import signal
import subprocess
import termios
import time
import unittest

from commun import PATIENCE, dossier_neuf, environnement

SOURCES = pathlib.Path(os.environ["VOCALYNE_SOURCES"])
CONSTRUCTION = os.environ["VOCALYNE_CONSTRUCTION"]
DEMO = SOURCES / "demo"


class Essai(unittest.TestCase):

    def setUp(self):
        dossier = dossier_neuf()
        self.addCleanup(dossier.cleanup)
        self.dossier = pathlib.Path(dossier.name)
        (self.dossier / "tmp").mkdir()
        self.env = environnement(self.dossier, VOCALYNE_DEMO_CONSTRUCTION=CONSTRUCTION,
                                 TMPDIR=str(self.dossier / "tmp"))

    def tearDown(self):
        self.assertEqual(list((self.dossier / "tmp").iterdir()), [], "temporary files stay behind")
        self.assertEqual(self.survivants(), [], "processes stay behind")

    def survivants(self) -> list[str]:
        """The command lines of processes that work in this test's folder."""
        trouves = []
        for proc in pathlib.Path("/proc").glob("[0-9]*/environ"):
            try:
                if f"TMPDIR={self.dossier}".encode() in proc.read_bytes():
                    trouves.append((proc.parent / "cmdline").read_text())
            except OSError:
                continue
        return trouves

    def fichier(self, nom: str, contenu: bytes | str) -> pathlib.Path:
        chemin = self.dossier / nom
        chemin.parent.mkdir(exist_ok=True)
        chemin.write_bytes(contenu.encode() if isinstance(contenu, str) else contenu)
        return chemin

    def interrompue(self, *commande, apres: bytes) -> int:
        """Runs it on a terminal of its own, types Ctrl-C once it has shown that; its exit status."""
        maitre, esclave = pty.openpty()
        tenu = subprocess.Popen([str(c) for c in commande], env=self.env, stdin=esclave, stdout=esclave,
                                stderr=esclave, start_new_session=True,
                                preexec_fn=lambda: fcntl.ioctl(0, termios.TIOCSCTTY, 0))
        os.close(esclave)
        lu, limite = b"", time.monotonic() + PATIENCE
        while apres not in lu:
            self.assertTrue(select.select([maitre], [], [], limite - time.monotonic())[0], lu)
            lu += os.read(maitre, 4096)
        os.killpg(tenu.pid, signal.SIGINT)
        try:
            return tenu.wait(PATIENCE)
        finally:
            os.close(maitre)
