# SPDX-License-Identifier: MPL-2.0
"""What the tests of commands share: a private bus, an office on it, a host; each ended by its pid."""
import contextlib
import json
import os
import pathlib
import queue
import subprocess
import tempfile
import threading

# Far above what any wait takes: reached only when something is broken.
PATIENCE = 60


def environnement(dossier: pathlib.Path, **autres: str) -> dict[str, str]:
    """A person's environment with a home of its own, no session, no display, English messages."""
    env = {nom: valeur for nom, valeur in os.environ.items()
           if not nom.startswith(("DBUS_", "VOCALYNE_", "XDG_", "LC_", "LANG"))
           and nom not in ("DISPLAY", "WAYLAND_DISPLAY", "PYTHONPATH", "DESTDIR", "LD_LIBRARY_PATH")}
    return env | {"HOME": str(dossier), "LANG": "C.UTF-8", "NO_COLOR": "1"} | autres


def lance(*commande, env: dict[str, str], entree: str = "", statut: int | None = 0,
          dossier: pathlib.Path | None = None) -> subprocess.CompletedProcess:
    """Runs a command to its end; any other exit status than `statut` fails with what it said."""
    fini = subprocess.run([str(c) for c in commande], env=env, input=entree, capture_output=True,
                          text=True, timeout=PATIENCE * 4, cwd=dossier, check=False)
    if statut is not None and fini.returncode != statut:
        raise AssertionError(f"{commande} -> {fini.returncode}\n{fini.stdout}\n{fini.stderr}")
    return fini


@contextlib.contextmanager
def processus(*commande, env: dict[str, str]):
    """A process with its output as lines; ended, and waited for, when the block is left."""
    tenu = subprocess.Popen([str(c) for c in commande], env=env, stdin=subprocess.DEVNULL,
                            stdout=subprocess.PIPE, text=True)
    try:
        yield Lignes(tenu)
    finally:
        tenu.terminate()
        try:
            tenu.wait(PATIENCE)
        except subprocess.TimeoutExpired:
            tenu.kill()
            tenu.wait()
            raise
        finally:
            tenu.stdout.close()


class Lignes:
    """The lines that a process prints, waited for one by one."""

    def __init__(self, tenu: subprocess.Popen):
        self.processus = tenu
        self.lignes = queue.Queue()
        threading.Thread(target=self._lis, daemon=True).start()

    def _lis(self):
        with contextlib.suppress(ValueError):
            for ligne in self.processus.stdout:
                self.lignes.put(ligne.rstrip("\n"))
        self.lignes.put(None)

    def suivante(self) -> str:
        ligne = self.lignes.get(timeout=PATIENCE)
        if ligne is None:
            raise AssertionError(f"{self.processus.args} ended before it said what was waited for")
        return ligne


@contextlib.contextmanager
def bus_prive(env: dict[str, str]):
    """A session bus of one's own: the environment with its address. An abstract address is reached
    from inside another root too."""
    with processus("dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address=1",
                   "--address=unix:abstract=vocalyne-" + os.urandom(12).hex(), env=env) as bus:
        yield env | {"DBUS_SESSION_BUS_ADDRESS": bus.suivante()}


@contextlib.contextmanager
def bureau(programme: pathlib.Path, fichiers: list[pathlib.Path], env: dict[str, str]):
    """An office on these files: their documents' identifiers, once they can be called. Left, the
    office saves and ends."""
    with processus(programme, *fichiers, env=env) as tenu:
        yield [tenu.suivante().split()[0] for _ in fichiers]


def dialogue(hote: pathlib.Path, requetes: list[dict], env: dict[str, str], *options) -> list[dict]:
    """The answers of `vocalyne-hote pilote` to requests, one each."""
    entree = "".join(json.dumps(r) + "\n" for r in requetes)
    reponses = [json.loads(l) for l in lance(hote, "pilote", *options, env=env, entree=entree).stdout.splitlines()]
    assert len(reponses) == len(requetes), reponses
    return reponses


def dossier_neuf() -> tempfile.TemporaryDirectory:
    return tempfile.TemporaryDirectory(prefix="vocalyne.")
