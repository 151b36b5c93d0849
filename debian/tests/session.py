# SPDX-License-Identifier: MPL-2.0
"""What the installed packages are tried in: an ordinary user's session, with a bus and a home of its own."""
import json
import os
import pathlib
import subprocess
import sys
import tempfile
import time

# Far above what any wait takes: reached only when something is broken.
PATIENCE = 120
FAUTE, MOT = "acceuil", "accueil"


def entre() -> None:
    """Goes on as an ordinary user, since an office keeps no profile for the superuser, and on a bus of
    one's own; in English, whose messages are looked at."""
    if os.geteuid() == 0:
        os.environ.pop("XDG_RUNTIME_DIR", None)  # is the superuser's
        avant = ["setpriv", "--reuid=nobody", "--regid=nogroup", "--clear-groups", "--"]
    elif "VOCALYNE_SESSION" in os.environ:
        return
    else:
        avant = ["dbus-run-session", "--"]
        os.environ["VOCALYNE_SESSION"] = "1"
    os.environ["LC_ALL"] = "C.UTF-8"
    os.execvp(avant[0], [*avant, sys.executable, "-B", *sys.argv])


def dossier() -> tempfile.TemporaryDirectory:
    """A folder for the test's own files, which is home too."""
    neuf = tempfile.TemporaryDirectory(prefix="vocalyne.", dir="/tmp", ignore_cleanup_errors=True)
    os.environ.update(HOME=neuf.name, XDG_RUNTIME_DIR=neuf.name, TMPDIR=neuf.name)
    for nom in ("XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"):
        os.environ.pop(nom, None)
    return neuf


def attends(question, quoi: str):
    """The first answer that is something."""
    fin = time.monotonic() + PATIENCE
    while time.monotonic() < fin:
        if (reponse := question()) is not None:
            return reponse
        time.sleep(0.2)
    raise SystemExit(f"{quoi}: not within {PATIENCE} s")


def identifiant_de(chemin: pathlib.Path) -> str:
    """The document's identifier, once an office shows that file on the bus."""
    def cherche():
        vu = subprocess.run(["vocalyne-hote", "documents", "--sortie", "json"], stdout=subprocess.PIPE,
                            text=True, check=False)
        documents = json.loads(vu.stdout) if vu.stdout.strip() else []
        return next((d["id"] for d in documents if d["chemin"] == str(chemin)), None)
    return attends(cherche, f"{chemin} on the bus")


def corrige(chemin: pathlib.Path) -> None:
    subprocess.run(["vocalyne-hote", "corrige", identifiant_de(chemin), "--langue", "fr", "--automatique"],
                   check=True, timeout=PATIENCE)


def verifie(texte: str) -> None:
    if MOT not in texte or FAUTE in texte:
        raise SystemExit(f"not corrected: {texte}")
    print(f"corrected: {MOT}")
