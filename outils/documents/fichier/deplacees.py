# SPDX-License-Identifier: MPL-2.0
"""Marks that undo leaves in another place among the same letters.

What was deleted where a bookmark, a reference or a commented range starts comes back before it: the
office's undo knows no better. How far such a mark moves depends on how the letters were taken out.
"""

import itertools
import re

from .demandees import paragraphes
from .ossature import REPERES, Ligne

NOM_PASSAGER = re.compile(r"(__Annotation__)\d+_\d+(?: Copy \d+)*")  # another one in each copy


def _signes(lieu: str, lignes: list[Ligne]) -> tuple[list[tuple[str, str]], list[tuple[str, int]]]:
    """The letters with their formats; the other things, each with how many letters stand before it."""
    def chose(ligne: Ligne) -> str:
        return ligne.lieu[len(lieu):].split("/")[1] if ligne.lieu != lieu else ""
    lettres: list[tuple[str, str]] = []
    choses: list[tuple[str, int]] = []
    for quoi, suite in itertools.groupby(lignes, chose):
        dites = list(suite)
        if quoi:
            dit = "\n".join(ligne.dit for ligne in dites)
            choses.append((NOM_PASSAGER.sub(r"\1", dit), len(lettres)))
            continue
        for ligne in dites:
            if ligne.lettres:
                format_ = ligne.dit[:len(ligne.dit) - len(repr(ligne.lettres))]
                lettres += [(lettre, format_) for lettre in ligne.lettres]
            else:
                choses.append((ligne.dit, len(lettres)))
    return lettres, choses


def deplacees(lieu: str, avant: list[Ligne], apres: list[Ligne]) -> set[str]:
    """The marks that moved; none where anything else is not as it was."""
    (lettres, choses), (autres_lettres, autres_choses) = _signes(lieu, avant), _signes(lieu, apres)
    if lettres != autres_lettres or \
            sorted(dit for dit, _ in choses) != sorted(dit for dit, _ in autres_choses):
        return set()
    bougees = {dit for dit, _ in set(choses) ^ set(autres_choses)}
    return bougees if all(dit.startswith(REPERES) for dit in bougees) else set()


def sans_deplacees(avant: list[Ligne], apres: list[Ligne], temoin: tuple[list[Ligne], list[Ligne]]
                   ) -> tuple[list[Ligne], list[Ligne], list[str]]:
    """The lines before corrections (with letters) and after undo, less those of paragraphs where only
    such marks moved that move in the witness, too; and what is to be said of these."""
    vus, faits = paragraphes(avant), paragraphes(apres)
    vus_temoin, faits_temoin = map(paragraphes, temoin)
    dites = {}
    for lieu, siennes in vus.items():
        if siennes == faits.get(lieu):
            continue
        bougees = deplacees(lieu, siennes, faits.get(lieu, []))
        if bougees and bougees <= deplacees(lieu, vus_temoin.get(lieu, []), faits_temoin.get(lieu, [])):
            dites[lieu] = f"{lieu}: moved {sorted(bougees)}"

    def restent(lignes: list[Ligne], siens: dict[str, list[Ligne]]) -> list[Ligne]:
        ecartees = {id(ligne) for lieu in dites for ligne in siens[lieu]}
        return [ligne for ligne in lignes if id(ligne) not in ecartees]
    return restent(avant, vus), restent(apres, faits), list(dites.values())
