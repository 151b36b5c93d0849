# SPDX-License-Identifier: MPL-2.0
"""What was found in a document, as a program reads it."""

from typing import NamedTuple

FAUTE, BUREAU, EXPLIQUE = "faute", "bureau", "explique"
EXEMPLES_MAX = 12  # of one finding: the rest is a number
LONGUEUR_MAX = 400


class Constat(NamedTuple):
    nature: str
    genre: str
    nombre: int
    exemples: list


class Bilan:
    """Of one document."""

    def __init__(self, document: str, graine: int):
        self.document, self.graine = document, graine
        self.zones = self.faites = self.refusees = 0
        self.selections = self.selections_refusees = 0
        self.ecartes: dict[str, int] = {}
        self.refus: dict[str, int] = {}
        self.secondes = 0.0
        self.constats: list[Constat] = []

    def note(self, nature: str, genre: str, exemples) -> None:
        """A finding for each nature; nothing for no example."""
        exemples = list(exemples)
        if exemples:
            self.constats.append(Constat(nature, genre, len(exemples),
                                         [abrege(e) for e in exemples[:EXEMPLES_MAX]]))

    def donne(self) -> dict:
        return {"document": self.document, "graine": self.graine, "zones": self.zones,
                "corrections": {"faites": self.faites, "refusees": self.refusees,
                                "raisons": self.refus},
                "selections": {"justes": self.selections, "refusees": self.selections_refusees},
                "motsEcartes": self.ecartes, "secondes": round(self.secondes, 1),
                "constats": [c._asdict() for c in self.constats]}


def abrege(exemple) -> str:
    dit = exemple if isinstance(exemple, str) else repr(exemple)
    return dit if len(dit) <= LONGUEUR_MAX else dit[:LONGUEUR_MAX - 1] + "…"
