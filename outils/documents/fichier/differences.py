# SPDX-License-Identifier: MPL-2.0
"""What differs between the lines of two saves."""

import difflib
import re
from collections import Counter
from typing import NamedTuple

from .ossature import Ligne

TROP = 4000  # lines: past that a comparison in order would take minutes


class Difference(NamedTuple):
    lieu: str
    perdu: tuple[str, ...]
    gagne: tuple[str, ...]


def differences(avant: list[Ligne], apres: list[Ligne]) -> list[Difference]:
    debut = 0
    plus_court = min(len(avant), len(apres))
    while debut < plus_court and avant[debut].dit == apres[debut].dit:
        debut += 1
    fin = 0
    while fin < plus_court - debut and avant[-1 - fin].dit == apres[-1 - fin].dit:
        fin += 1
    avant, apres = avant[debut:len(avant) - fin], apres[debut:len(apres) - fin]
    if len(avant) == len(apres) and [a.lieu for a in avant] == [a.lieu for a in apres]:
        return [Difference(a.lieu, (a.dit,), (b.dit,)) for a, b in zip(avant, apres)
                if a.dit != b.dit]
    if max(len(avant), len(apres)) > TROP:
        return _en_vrac(avant, apres)
    return _en_ordre(avant, apres)


def _en_ordre(avant: list[Ligne], apres: list[Ligne]) -> list[Difference]:
    comparaison = difflib.SequenceMatcher(None, [a.dit for a in avant], [a.dit for a in apres],
                                          autojunk=False)
    return [Difference((avant[a1] if a2 > a1 else apres[b1]).lieu,
                       tuple(ligne.dit for ligne in avant[a1:a2]),
                       tuple(ligne.dit for ligne in apres[b1:b2]))
            for quoi, a1, a2, b1, b2 in comparaison.get_opcodes() if quoi != "equal"]


def _en_vrac(avant: list[Ligne], apres: list[Ligne]) -> list[Difference]:
    """Lines that the other save has not, wherever they stand."""
    perdues, gagnees = Counter(a.dit for a in avant), Counter(a.dit for a in apres)
    restes = []
    for lignes, autres, perdu in ((avant, gagnees, True), (apres, perdues, False)):
        reste = Counter(autres)
        for ligne in lignes:
            if reste[ligne.dit] > 0:
                reste[ligne.dit] -= 1
            else:
                restes.append(Difference(ligne.lieu, (ligne.dit,) if perdu else (),
                                         () if perdu else (ligne.dit,)))
    return restes


# What follows from the letters wherever the office lays a document out anew.
MESURES = re.compile(r"((?:svg:(?:height|width|x|y|viewBox|d|points)|style:row-height|table:end-[xy]|"
                     r"draw:transform|draw:caption-point-[xy]|fo:min-height)=)[^] ]*")


LETTRES = re.compile(r"(?<=[s}]) (?:'.*'|\".*\")$", re.S)  # at the end of a line of letters


def mesures(difference: Difference) -> frozenset[str]:
    """The measures that differ, where nothing else does."""
    nues = [[MESURES.sub(r"\1", dit) for dit in cote] for cote in (difference.perdu, difference.gagne)]
    if nues[0] != nues[1]:
        return frozenset()
    vues = [[[m.group() for m in MESURES.finditer(dit)] for dit in cote]
            for cote in (difference.perdu, difference.gagne)]
    return frozenset(avant.split("=")[0] for lignes in zip(*vues) for avant, apres in zip(*lignes)
                     if avant != apres)


def _forme(difference: Difference) -> tuple | None:
    """What was lost and gained whatever its letters are: where a mark moves, other letters stand on
    its sides. Nothing where letters alone differ."""
    perdu, gagne = (tuple(LETTRES.sub("", dit) for dit in cote)
                    for cote in (difference.perdu, difference.gagne))
    return (perdu, gagne) if perdu != gagne else None


def partage(trouvees: list[Difference], du_bureau: list[Difference],
            passageres: list[Difference], libres: frozenset[str] = frozenset()
            ) -> tuple[list[Difference], list[Difference]]:
    """Those that are nobody's but ours, and those that the office makes as well: by itself in the
    same place between two saves, or anywhere in a document that was edited without us; of measures, the
    same kind will do, or one of those that are given; and of a mark that moves, the move."""
    lieux = {d.lieu for d in passageres}
    perdues = {ligne for d in du_bureau for ligne in d.perdu}
    gagnees = {ligne for d in du_bureau for ligne in d.gagne}
    libres = libres.union(*map(mesures, du_bureau))
    formes = set(filter(None, map(_forme, du_bureau)))
    notres, siennes = [], []
    deplacees = {d.lieu for d in trouvees if _forme(d) in formes}
    for difference in trouvees:
        siennes_ici = mesures(difference)
        connue = difference.lieu in lieux or difference.lieu in deplacees or (
            perdues.issuperset(difference.perdu) and gagnees.issuperset(difference.gagne)) or (
            siennes_ici and siennes_ici <= libres)
        (siennes if connue else notres).append(difference)
    return notres, siennes
