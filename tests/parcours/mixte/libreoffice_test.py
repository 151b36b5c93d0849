# SPDX-License-Identifier: MPL-2.0
"""32-bit host and plug-in inside the i386 root, a real LibreOffice with the 64-bit extension outside:
./demo as a person types it, with that host in the place of the system's own."""
import os
import pathlib
import shlex
import unittest

from commun import dossier_neuf, environnement, lance

SOURCES = pathlib.Path(os.environ["VOCALYNE_SOURCES"])
CONSTRUCTION_64 = pathlib.Path(os.environ["VOCALYNE_CONSTRUCTION"])
HOTE_32 = pathlib.Path(os.environ["VOCALYNE_CONSTRUCTION_I386"]) / "bin/vocalyne-hote"


class MixteLibreOffice(unittest.TestCase):

    def test_a_32_bit_host_corrects_a_writer_document(self):
        dossier = dossier_neuf()
        self.addCleanup(dossier.cleanup)
        ici = pathlib.Path(dossier.name)
        ici.chmod(0o755)  # run by the superuser, the office is somebody else
        (ici / "bin").mkdir()
        (ici / "share").symlink_to(CONSTRUCTION_64 / "share")
        # The root belongs to whoever runs the tests, not to the home that the host is given.
        cache = " ".join(f"{nom}={shlex.quote(os.environ[nom])}"
                         for nom in ("HOME", "XDG_CACHE_HOME", "VOCALYNE_CACHE") if nom in os.environ)
        hote = ici / "bin/vocalyne-hote"
        hote.write_text(f"#!/bin/sh\ncd {shlex.quote(str(SOURCES))}\n"
                        f"{cache} exec outils/racine-i386 -- {shlex.quote(str(HOTE_32))} \"$@\"\n")
        hote.chmod(0o755)
        lettre = ici / "lettre.fodt"
        originale = (SOURCES / "exemples/francais.fodt").read_text(encoding="utf-8")
        lettre.write_text(originale, encoding="utf-8")
        sortie = lance(SOURCES / "demo", "--bureau", "libreoffice", "--langue", "fr", "--automatique", lettre,
                       env=environnement(ici, VOCALYNE_DEMO_CONSTRUCTION=str(ici))).stdout
        self.assertRegex(sortie, r"Corrected: [1-9]\d*, refused: 0, left: \d+\.")
        corrigee = (ici / "lettre.corrige.fodt").read_text(encoding="utf-8")
        for faute, juste in (("acceuil", "accueil"), ("bibliotèque", "bibliothèque"), ("soufert", "souffert"),
                             ("septenbre", "septembre")):
            self.assertIn(faute, originale)
            self.assertNotIn(faute, corrigee)
            self.assertIn(juste, corrigee)


if __name__ == "__main__":
    unittest.main()
