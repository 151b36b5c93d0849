# SPDX-License-Identifier: MPL-2.0
"""Offices at work side by side, each in a run of tests/extension/lance.py."""

import contextlib
import json
import pathlib
import queue
import shutil
import subprocess
import sys
import tempfile
import threading

from .constats import FAUTE, Bilan

DEPOT = pathlib.Path(__file__).resolve().parents[2]
LANCE = DEPOT / "tests/extension/lance.py"


class Reglages:
    """What all places are told."""

    def __init__(self, oxt: pathlib.Path, graine: int, corrections: int, patience: float,
                 par_bureau: int):
        self.oxt, self.graine, self.corrections = oxt, graine, corrections
        self.patience, self.par_bureau = patience, par_bureau


class Equipe:
    """Tries documents, given as their name and their file."""

    def __init__(self, reglages: Reglages, documents: list[tuple[str, pathlib.Path]]):
        self._reglages = reglages
        self._restants: queue.Queue = queue.Queue()
        for document in documents:
            self._restants.put(document)
        self._resultats: queue.Queue = queue.Queue()
        self._processus: list[subprocess.Popen] = []
        self._arret = False

    def deroule(self, places: int, commence):
        """Each document's findings, as they come; `commence` hears a document's name."""
        with tempfile.TemporaryDirectory(prefix="vocalyne-documents-") as dossier:
            depose = pathlib.Path(dossier)
            depose.chmod(0o755)  # the office's user is another
            fils = [threading.Thread(target=self._place, args=(depose, numero, commence))
                    for numero in range(places)]
            attendus = self._restants.qsize()
            for fil in fils:
                fil.start()
            try:
                for _ in range(attendus):
                    resultat = self._resultats.get()
                    if isinstance(resultat, BaseException):
                        raise resultat
                    yield resultat
            finally:
                self._arret = True
                for processus in self._processus:
                    with contextlib.suppress(BrokenPipeError):
                        processus.stdin.close()  # which ends an office in the middle of a document
                for fil in fils:
                    fil.join()

    def _lance(self) -> subprocess.Popen:
        r = self._reglages
        processus = subprocess.Popen(
            [sys.executable, str(LANCE), "--programme", "--avec", str(DEPOT / "outils/documents"),
             str(r.oxt), "-m", "documents.place", str(r.patience), str(r.par_bureau)],
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True, start_new_session=True)
        self._processus.append(processus)
        return processus

    def _place(self, depose: pathlib.Path, numero: int, commence) -> None:
        try:
            processus = self._lance()
            while not self._arret:
                try:
                    document, fichier = self._restants.get_nowait()
                except queue.Empty:
                    break
                commence(document)
                bilan = self._essaie(processus, depose / f"{numero}", document, fichier)
                if bilan is None and not self._arret:
                    processus = self._lance()
                    bilan = self._perdu(document)
                self._resultats.put(bilan)
            processus.stdin.close()
            processus.wait()
        except Exception as erreur:  # for the thread that waits, whatever it is
            self._resultats.put(erreur)

    def _essaie(self, processus, ici: pathlib.Path, document: str, fichier: pathlib.Path):
        ici.mkdir(mode=0o755, exist_ok=True)
        copie = ici / fichier.name
        shutil.copyfile(fichier, copie)
        copie.chmod(0o644)
        try:
            print(json.dumps({"fichier": str(copie), "document": document,
                              "graine": self._reglages.graine,
                              "corrections": self._reglages.corrections}),
                  file=processus.stdin, flush=True)
            ligne = processus.stdout.readline()
        except (BrokenPipeError, ValueError):
            ligne = ""
        finally:
            copie.unlink()
        return json.loads(ligne) if ligne else None

    def _perdu(self, document: str) -> dict:
        bilan = Bilan(document, self._reglages.graine)
        bilan.note("essai", FAUTE, ["the program that drives the office ended"])
        return bilan.donne()
