#!/usr/bin/python3
# SPDX-License-Identifier: MPL-2.0
"""Runs test modules against a real LibreOffice, as an ordinary user.

usage: lance.py [--hote BUILD] OXT MODULE...

  --hote BUILD   also installs the host and the plug-in of this build folder, in "prefixe"

An office refuses to keep a profile, and its package manager to work, for the superuser: a run as
root goes on as the user "vocalyne-essai", made when missing. Everything the run makes stands in one
folder of its own, which goes with it.
"""

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


def main():
    arguments, construction = sys.argv[1:], None
    if arguments[:1] == ["--hote"]:
        construction, arguments = arguments[1:2], arguments[2:]
    if len(arguments) < 2 or arguments[0] in ("-h", "--help"):
        print(__doc__, file=sys.stdout if "--help" in sys.argv else sys.stderr)
        return 0 if "--help" in sys.argv else 2
    oxt, modules = pathlib.Path(arguments[0]), arguments[1:]
    if not oxt.is_file():
        print(f"{oxt}: no such package; build the target vocalyne_oxt first", file=sys.stderr)
        return 1
    ici = pathlib.Path(__file__).resolve().parent
    with tempfile.TemporaryDirectory(prefix="vocalyne-bureau-") as dossier:
        travail = pathlib.Path(dossier)
        for source in ici.glob("*.py"):
            shutil.copy(source, travail)
        shutil.copy(oxt, travail / "vocalyne-libreoffice.oxt")
        if construction:
            # Where the office's user can run them, whoever the build belongs to.
            subprocess.run(["cmake", "--install", *construction, "--component", "runtime",
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
        commande = [sys.executable, "-m", "unittest", "-v", *modules]
        return subprocess.run(commande, cwd=dossier, env=environnement, check=False,
                              **qui).returncode


if __name__ == "__main__":
    sys.exit(main())
