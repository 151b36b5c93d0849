# SPDX-License-Identifier: MPL-2.0
"""Which runs of letters are others only because other letters were asked for.

Where all letters of a format are replaced by those of another one, or an empty paragraph gets its first
ones, the runs of a paragraph change, and nothing was harmed: every letter that was there before has its
format, and the new ones have that of what they replace, or of a neighbour where they replace nothing.
"""

import difflib
import re
from typing import NamedTuple

from .ossature import Ligne

PARAGRAPHE = re.compile(r".*/[ph]\[\d+\](?=/|$)")
TROP = 3000  # letters in a paragraph: past that, lining them up would take minutes
SANS_FORMAT = "letters"


class Lettre(NamedTuple):
    lettre: str
    format: str
    apres: int  # how many things that are no letters stand before it in the line


def paragraphes(lignes: list[Ligne]) -> dict[str, list[Ligne]]:
    """What stands in each paragraph itself: not in a note or frame of it."""
    siens: dict[str, list[Ligne]] = {}
    for ligne in lignes:
        if paragraphe := PARAGRAPHE.match(ligne.lieu):
            siens.setdefault(paragraphe.group(), []).append(ligne)
    return siens


def _choses(lignes: list[Ligne]) -> list[str]:
    return [ligne.dit for ligne in lignes if not ligne.lettres]


def _lettres(lignes: list[Ligne]) -> list[Lettre]:
    lettres, choses = [], 0
    for ligne in lignes:
        lettres += [Lettre(lettre, ligne.dit, choses) for lettre in ligne.lettres]
        choses += not ligne.lettres
    return lettres


def _voisins(lettres: list[Lettre], debut: int, fin: int) -> set[str]:
    """The formats of the letters on both sides."""
    return {voisine.format for voisine in lettres[max(0, debut - 1):debut] + lettres[fin:fin + 1]}


def _de_naissance(choses: list[str]) -> set[str]:
    """The formats that the first letters of a paragraph may have: that of a field in it, or none."""
    return {chose.replace("formats", "letters", 1) for chose in choses if chose.startswith("formats")} \
        or {SANS_FORMAT}


def _est_demandee(avant: list[Ligne], apres: list[Ligne]) -> bool:
    if _choses(avant) != _choses(apres):
        return False
    vues, faites = _lettres(avant), _lettres(apres)
    if max(len(vues), len(faites)) > TROP:
        return False
    for quoi, a1, a2, b1, b2 in difflib.SequenceMatcher(
            None, [v.lettre for v in vues], [f.lettre for f in faites], autojunk=False).get_opcodes():
        if quoi == "equal":
            if [v[1:] for v in vues[a1:a2]] != [f[1:] for f in faites[b1:b2]]:
                return False
        else:
            permis = {v.format for v in vues[a1:a2]} or _voisins(vues, a1, a2) or \
                _de_naissance(_choses(avant))
            if not permis.issuperset(f.format for f in faites[b1:b2]):
                return False
    return True


def sans_demandees(avant: list[Ligne], apres: list[Ligne]) -> tuple[list[Ligne], list[Ligne]]:
    """The lines of two saves (of structure: runs without what they read), less those of letters in
    paragraphs where nothing is wrong with them."""
    vus, faits = paragraphes(avant), paragraphes(apres)
    justes = {lieu for lieu, siennes in vus.items()
              if [ligne.dit for ligne in siennes] != [ligne.dit for ligne in faits.get(lieu, [])]
              and _est_demandee(siennes, faits.get(lieu, []))}

    def restent(lignes: list[Ligne]) -> list[Ligne]:
        return [ligne for ligne in lignes if not (ligne.lettres and ligne.lieu in justes)]
    return restent(avant), restent(apres)
