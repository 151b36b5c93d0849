#!/usr/bin/python3
# SPDX-License-Identifier: MPL-2.0
"""Runs test modules, or a program, against a real LibreOffice, as an ordinary user.

An office refuses to keep a profile, and its package manager to work, for the superuser: a run as
root goes on as the user "vocalyne-essai", made when missing. Everything the run makes stands in one
folder of its own, which goes with it; so do the modules of this folder, copied there.
"""

import argparse
import os
import pathlib
import pwd
import shutil
import subprocess
import sys
import tempfile

UTILISATEUR = "vocalyne-essai"


def utilisateur_ordinaire():
    try:
        return pwd.getpwnam(UTILISATEUR)
    except KeyError:
        # Tests that start at the same time may all find it missing: only one makes it.
        subprocess.run(["useradd", "--create-home", "--shell", "/bin/sh", UTILISATEUR],
                       check=False, stderr=subprocess.DEVNULL)
        return pwd.getpwnam(UTILISATEUR)


def options():
    analyse = argparse.ArgumentParser(description=__doc__,
                                      formatter_class=argparse.RawDescriptionHelpFormatter)
    analyse.add_argument("--hote", metavar="BUILD",
                         help='also installs that build\'s host and plug-in, in "prefixe"')
    analyse.add_argument("--avec", metavar="PATH", action="append", default=[],
                         help="also copies this file or folder there; may be given again")
    analyse.add_argument("--programme", action="store_true",
                         help="MODULE is a Python program with its arguments, not a test module")
    analyse.add_argument("oxt", type=pathlib.Path, metavar="OXT")
    analyse.add_argument("modules", nargs=argparse.REMAINDER, metavar="MODULE")
    lues = analyse.parse_args()
    if not lues.modules:
        analyse.error("no MODULE")
    return lues


def main():
    voulu = options()
    if not voulu.oxt.is_file():
        print(f"{voulu.oxt}: no such package; build the target vocalyne_oxt first", file=sys.stderr)
        return 1
    ici = pathlib.Path(__file__).resolve().parent
    with tempfile.TemporaryDirectory(prefix="vocalyne-bureau-") as dossier:
        travail = pathlib.Path(dossier)
        for source in [*ici.rglob("*.py"), *map(pathlib.Path, voulu.avec)]:
            if source.is_dir():
                shutil.copytree(source, travail / source.name,
                                ignore=shutil.ignore_patterns("__pycache__"))
            else:
                shutil.copy(source, travail)
        shutil.copy(voulu.oxt, travail / "vocalyne-libreoffice.oxt")
        if voulu.hote:
            # Where the office's user can run them, whoever the build belongs to.
            subprocess.run(["cmake", "--install", voulu.hote, "--component", "runtime",
                            "--prefix", str(travail / "prefixe")],
                           check=True, stdout=subprocess.DEVNULL)
        environnement = {nom: valeur for nom, valeur in os.environ.items()
                         if nom in ("PATH", "LANG", "LC_ALL", "TERM", "VOCALYNE_IMAGES")}
        environnement.update(HOME=dossier, TMPDIR=dossier, XDG_RUNTIME_DIR=dossier,
                             PYTHONDONTWRITEBYTECODE="1")
        qui = {}
        if os.geteuid() == 0:
            compte = utilisateur_ordinaire()
            qui = {"user": compte.pw_uid, "group": compte.pw_gid, "extra_groups": []}
            for chemin in [travail, *travail.rglob("*")]:
                os.chown(chemin, compte.pw_uid, compte.pw_gid)
        manieres = [] if voulu.programme else ["-m", "unittest", "-v"]
        commande = [sys.executable, *manieres, *voulu.modules]
        return subprocess.run(commande, cwd=dossier, env=environnement, check=False,
                              **qui).returncode


if __name__ == "__main__":
    sys.exit(main())
