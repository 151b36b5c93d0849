# SPDX-License-Identifier: MPL-2.0
"""Which corrections are tried: at random, but the same for the same seed, and the hard ones first."""

import random
from array import array
from typing import NamedTuple

REMPLISSAGE = "\x07"
MOTS = ("mot", "été", "naïveté", "x", "deux mots", "l’œuvre", "Ωmega", "𝄞a", "12", "=A1", " ")
AUTOUR = 4  # zones on each side by which one that reads like others is known
ZONES_VUES = 4000  # of a huge document, enough to find a border and a field


def en_unites(texte: str) -> str:
    """One character for each UTF-16 unit: offsets of the wire count them."""
    return "".join(map(chr, array("H", texte.encode("utf-16-le", "surrogatepass"))))


def en_texte(unites: str) -> str:
    return array("H", map(ord, unites)).tobytes().decode("utf-16-le", "surrogatepass")


def coupe_une_paire(unites: str, ou: int) -> bool:
    return (0 < ou < len(unites) and 0xD800 <= ord(unites[ou - 1]) < 0xDC00
            and 0xDC00 <= ord(unites[ou]) < 0xE000)


def _autour(textes: list[str], rang: int) -> tuple[str, ...]:
    avant = textes[max(0, rang - AUTOUR):rang]
    return (*[""] * (AUTOUR - len(avant)), *avant, *textes[rang + 1:rang + AUTOUR + 1])


def semblance(essai, textes: list[str], rang: int) -> int:
    """How many of the texts around that one stand around what was corrected."""
    return sum(vu == voulu for vu, voulu in zip(_autour(textes, rang), essai.autour))


class Essai(NamedTuple):
    """A correction to try; offsets in UTF-16 units of the zone's text `avant`."""

    zone: int
    avant: str
    debut: int
    fin: int
    ajout: str
    genre: str
    pareilles: int  # zones before it that read the same
    autour: tuple[str, ...] = ()  # what the zones beside it read: those before it, those after

    @property
    def original(self) -> str:
        return en_texte(en_unites(self.avant)[self.debut:self.fin])

    @property
    def apres(self) -> str:
        unites = en_unites(self.avant)
        return en_texte(unites[:self.debut] + en_unites(self.ajout) + unites[self.fin:])


class Choix:
    def __init__(self, graine: str, nombre: int):
        self._hasard = random.Random(graine)
        self._nombre, self._faits = nombre, 0

    def suivant(self, zones) -> Essai | None:
        """The next one, in the zones as they are now; nothing when there were enough."""
        if self._faits >= self._nombre or not zones:
            return None
        self._faits += 1
        genres = ["dedans", "debut", "fin", "remplace", "supprime"]
        # A third at the borders of formats, a third beside fields, where there are any.
        premier = {0: "bord", 1: "champ"}.get(self._faits % 3)
        self._hasard.shuffle(genres)
        for genre in ([premier] if premier else []) + genres:
            essai = self._un(genre, zones)
            if essai:
                return essai
        return None

    def _un(self, genre: str, zones) -> Essai | None:
        rangs = self._hasard.sample(range(len(zones)), min(len(zones), ZONES_VUES))
        if genre not in ("bord", "champ"):
            rangs = rangs[:20]
        for rang in rangs:
            plage = self._plage(genre, zones[rang])
            if plage:
                debut, fin = plage
                unites = en_unites(zones[rang].texte)
                if coupe_une_paire(unites, debut) or coupe_une_paire(unites, fin):
                    continue
                ajout = "" if genre == "supprime" else self._hasard.choice(MOTS)
                if (genre == "supprime" and len(unites) == fin - debut) or \
                        ajout == en_texte(unites[debut:fin]):
                    continue
                return Essai(rang, zones[rang].texte, debut, fin, ajout, genre,
                             sum(z.texte == zones[rang].texte for z in zones[:rang]),
                             _autour([z.texte for z in zones], rang))
        return None

    def _plage(self, genre: str, zone) -> tuple[int, int] | None:
        unites = en_unites(zone.texte)
        longueur, hasard = len(unites), self._hasard
        if genre == "debut":
            return 0, 0
        if genre == "fin":
            return longueur, longueur
        if not longueur:
            return None
        if genre == "dedans":
            ou = hasard.randint(0, longueur)
            return ou, ou
        if genre == "bord":
            bords = [b for debut, fin, _ in zone.styles for b in (debut, fin) if 0 < b < longueur]
            return self._autour(hasard.choice(bords), longueur) if bords else None
        if genre == "champ":
            champs = [i for i, c in enumerate(unites) if c == REMPLISSAGE]
            if not champs:
                return None
            ou = hasard.choice(champs) + hasard.randint(0, 1)
            return ou, ou
        return self._mot(unites)

    def _autour(self, ou: int, longueur: int) -> tuple[int, int]:
        avant, apres = self._hasard.choice(((0, 0), (1, 0), (0, 1), (1, 1), (2, 2)))
        return max(0, ou - avant), min(longueur, ou + apres)

    def _mot(self, unites: str) -> tuple[int, int] | None:
        debuts = [i for i, c in enumerate(unites)
                  if c.isalnum() and (i == 0 or not unites[i - 1].isalnum())]
        if not debuts:
            return None
        debut = fin = self._hasard.choice(debuts)
        while fin < len(unites) and unites[fin].isalnum():
            fin += 1
        return debut, fin

    def selection(self, zones) -> tuple[int, int, int] | None:
        """A range to select: the zone's rank and two offsets."""
        pleines = [i for i, zone in enumerate(zones[:ZONES_VUES]) if zone.texte]
        if not pleines:
            return None
        rang = self._hasard.choice(pleines)
        unites = en_unites(zones[rang].texte)
        plage = self._mot(unites) or (0, len(unites))
        if coupe_une_paire(unites, plage[0]) or coupe_une_paire(unites, plage[1]):
            return None
        return rang, *plage
