# SPDX-License-Identifier: MPL-2.0
"""What the person reads of a run, document by document, and the sum."""

import json
import sys
from collections import Counter

from suite.langue import Bilingue

from .constats import FAUTE
from .natures import NATURES

EXEMPLES = 3  # of a finding, for a person; --json has more


def est_propre(bilan: dict) -> bool:
    return not any(c["genre"] == FAUTE for c in bilan["constats"])


class Rapport:
    def __init__(self, nombre: int, json_dans=None):
        self._nombre, self._json = nombre, json_dans
        self._faits = self._propres = self._corrections = 0
        self._fautes: Counter = Counter()
        self._documents: Counter = Counter()
        self._montre = sys.stderr.isatty() and sys.stdout.isatty()
        print(Bilingue("    zones faites refus sélect.    s  document",
                       "    zones  made refus selected    s  document"))

    def commence(self, document: str) -> None:
        if self._montre:
            print(f"\r\033[K{self._faits + 1}/{self._nombre} {document}", end="", file=sys.stderr,
                  flush=True)

    def annonce(self, bilan: dict) -> None:
        if self._montre:
            print("\r\033[K", end="", file=sys.stderr, flush=True)
        if self._json:
            print(json.dumps(bilan, ensure_ascii=False), file=self._json, flush=True)
        self._faits += 1
        self._propres += est_propre(bilan)
        corrections, selections = bilan["corrections"], bilan["selections"]
        self._corrections += corrections["faites"]
        print(f"{' ' if est_propre(bilan) else '!'} {bilan['zones']:7} {corrections['faites']:5} "
              f"{corrections['refusees']:5} {selections['justes']:8} {bilan['secondes']:4.0f}  "
              f"{bilan['document']}")
        rangs = list(NATURES)
        for constat in sorted(bilan["constats"], key=lambda c: rangs.index(c["nature"])):
            self._dis(constat)
        sys.stdout.flush()

    def _dis(self, constat: dict) -> None:
        faute = constat["genre"] == FAUTE
        if faute:
            self._fautes[constat["nature"]] += constat["nombre"]
            self._documents[constat["nature"]] += 1
        genre = Bilingue("FAUTE", "FAULT") if faute else Bilingue("bureau", "office")
        print(f"      {genre} {constat['nature']} ({constat['nombre']}): {NATURES[constat['nature']]}")
        for exemple in constat["exemples"][:EXEMPLES if faute else 0]:
            print(f"          {exemple}")

    def conclus(self) -> None:
        print()
        for nature in NATURES:
            if self._fautes[nature]:
                print(f"{self._documents[nature]:5}  {self._fautes[nature]:6}  {nature}: "
                      f"{NATURES[nature]}")
        print(Bilingue(
            f"{self._faits} documents, {self._corrections} corrections : {self._propres} indemnes, "
            f"{self._faits - self._propres} avec une faute",
            f"{self._faits} documents, {self._corrections} corrections: {self._propres} unharmed, "
            f"{self._faits - self._propres} with a fault"))
