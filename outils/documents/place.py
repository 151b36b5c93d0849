# SPDX-License-Identifier: MPL-2.0
"""One office at work, as an ordinary user: documents come in as lines, findings go out as lines.

When nobody sends any more while a document is being tried, whoever asked is gone: the office is
ended, and so is this program.
"""

import contextlib
import json
import os
import pathlib
import queue
import re
import sys
import threading
import time
import traceback

import banc

from .constats import BUREAU, FAUTE, Bilan
from .epreuve import Epreuve
from .ouvert import PasOuvert

PATIENCE_DE_FIN = 5  # seconds for an office that crashes to be gone
CONSEQUENCES = ("reponse", "correction.echec")  # of an office that goes away
GRACE = 60  # seconds for what is left to end once the office was ended


def _pile(journal: str) -> str:
    """Where the office fell, innermost first, of what it wrote."""
    fonctions = re.findall(r"/(lib\w+\.so)\(([^)+]*)", journal[journal.find("Application Error"):])
    return " < ".join(f"{ou}:{nom}" for ou, nom in fonctions if nom)[:380] or journal[-300:]


class Veille:
    """Ends the office when a document takes too long; and everything, where that does not help."""

    def __init__(self, bureau: banc.Bureau, secondes: float, abandonne):
        self.passee = False
        self._bureau = bureau
        self._minuterie = threading.Timer(secondes, self._tue)
        self._dernier_recours = threading.Timer(secondes + GRACE, abandonne)
        self._minuterie.daemon = self._dernier_recours.daemon = True

    def _tue(self) -> None:
        self.passee = True
        self._bureau.tue()

    def __enter__(self):
        self._minuterie.start()
        self._dernier_recours.start()
        return self

    def __exit__(self, *_):
        self._minuterie.cancel()
        self._dernier_recours.cancel()


class Place:
    def __init__(self, patience: float, par_bureau: int, client=banc.Client):
        self._patience, self._par_bureau, self._fais_client = patience, par_bureau, client
        self._bus = banc.Bus()
        self.bureau: banc.Bureau | None = None
        self._faits = 0

    def _donne_bureau(self) -> banc.Bureau:
        if self.bureau is None or self._faits >= self._par_bureau:
            self._ferme_bureau()
            self.bureau, self._faits = banc.Bureau(self._bus.adresse), 0
        self._faits += 1
        return self.bureau

    def _ferme_bureau(self) -> None:
        bureau, self.bureau = self.bureau, None
        if bureau is not None:
            try:
                bureau.ferme()
            except Exception:  # it is to end, whatever state it is in
                with contextlib.suppress(ProcessLookupError):
                    bureau.tue()

    def essaie(self, fichier: pathlib.Path, document: str, graine: int, corrections: int) -> Bilan:
        bilan = Bilan(document, graine)
        debut = time.monotonic()
        bureau = self._donne_bureau()
        erreur: Exception | None = None
        with Veille(bureau, self._patience, self.abandonne) as veille:
            epreuve = Epreuve(bureau, self._fais_client, self._bus, fichier, bilan, corrections)
            try:
                epreuve.deroule()
            except PasOuvert as raison:
                bilan.note("ouverture", BUREAU, [str(raison)])
            except Exception as vue:  # whatever it is, the next document is to be tried
                erreur = vue
        if erreur or veille.passee or any(c.nature in CONSEQUENCES for c in bilan.constats):
            self._explique(erreur, veille, epreuve, bureau, bilan)
        bilan.secondes = time.monotonic() - debut
        return bilan

    def _explique(self, erreur: Exception | None, veille: Veille, epreuve: Epreuve,
                  bureau: banc.Bureau, bilan: Bilan) -> None:
        """The office went away: ended for being slow, or by itself; or the trial itself failed."""
        if not veille.passee:
            with contextlib.suppress(AssertionError):
                banc.attends(lambda: bureau.processus.poll() is not None, "its end", PATIENCE_DE_FIN)
        sans_nous = BUREAU if epreuve.etape in Epreuve.SANS_EXTENSION else FAUTE
        if veille.passee or bureau.processus.poll() is not None:
            bilan.constats = [c for c in bilan.constats if c.nature not in CONSEQUENCES]
        if veille.passee:
            bilan.note("bloque", sans_nous, [f"{epreuve.etape}: {self._patience:g} s"])
        elif bureau.processus.poll() is not None:
            bilan.note("mort", sans_nous, [f"{epreuve.etape}: {_pile(bureau.dit())}"])
        elif erreur:
            premiere = erreur
            while premiere.__context__ is not None:  # what went wrong while that was cleared up
                premiere = premiere.__context__
            trace = "".join(traceback.format_exception(premiere)[-3:])
            bilan.note("essai", FAUTE, [f"{epreuve.etape}: {premiere!r} {trace}"])
        else:
            return
        self._ferme_bureau()

    def ferme(self) -> None:
        self._ferme_bureau()
        self._bus.ferme()

    def abandonne(self) -> None:
        """At once, from any thread: nothing that was started stays."""
        with contextlib.suppress(ProcessLookupError, AttributeError):
            self.bureau.tue()
        self._bus.processus.kill()
        os._exit(3)


def main() -> int:
    patience, par_bureau = float(sys.argv[1]), int(sys.argv[2])
    place = Place(patience, par_bureau)
    taches: queue.Queue = queue.Queue()
    en_cours = threading.Event()

    def ecoute() -> None:
        for ligne in sys.stdin:
            taches.put(json.loads(ligne))
        if en_cours.is_set():
            place.abandonne()
        taches.put(None)

    threading.Thread(target=ecoute, daemon=True).start()
    try:
        while tache := taches.get():
            en_cours.set()
            bilan = place.essaie(pathlib.Path(tache["fichier"]), tache["document"],
                                 tache["graine"], tache["corrections"])
            print(json.dumps(bilan.donne()), flush=True)
            en_cours.clear()
    finally:
        place.ferme()
    return 0


if __name__ == "__main__":
    sys.exit(main())
