# SPDX-License-Identifier: MPL-2.0
"""A name of the product stands once: headers, and classes outside functions and classes."""
import collections
import pathlib
import re

from . import pieces
from .arbre import SOURCES, Arbre, code_seul

ACCOLADES = re.compile(r"[{}]")
# What stands before a brace that opens a class, with the attributes and macros that may stand in it.
CLASSE = re.compile(r"^(?:template\s*<.*>\s*)?(?:class|struct)\s+(?:\[\[.*?\]\]\s*|alignas\(.*?\)\s*|__attribute__\(\(.*?\)\)\s*|[A-Z][A-Z0-9_]+\s+)*"
                    r"(\w+)\s*(?:final\s*)?(?::[^:].*)?$", re.S)
ESPACE = re.compile(r'^(?:inline\s+)?namespace\b|^extern\s*$', re.S)


def classes(texte: str) -> list[str]:
    """The classes that the text defines at namespace level."""
    texte = re.sub(r"^[ \t]*#(?:.*\\\n)*.*", "", code_seul(texte), flags=re.M)
    trouvees, pile, debut = [], [], 0
    for accolade in ACCOLADES.finditer(texte):
        if accolade.group() == "}":
            if pile:
                pile.pop()
        else:
            avant = re.split(r"[;{}]", texte[debut:accolade.start()])[-1].strip()
            en_espace = all(pile)
            if en_espace and (trouve := CLASSE.match(avant)):
                trouvees.append(trouve.group(1))
            pile.append(bool(ESPACE.match(avant)))
        debut = accolade.end()
    return trouvees


def examine(arbre: Arbre) -> str:
    plan = pieces.lis_plan(arbre.texte(pieces.LISTE)) if pieces.LISTE in arbre.noms else pieces.Plan()
    lieux: dict[str, list[pathlib.PurePosixPath]] = collections.defaultdict(list)
    entetes: dict[str, list[pathlib.PurePosixPath]] = collections.defaultdict(list)
    for nom in arbre.noms:
        if nom.suffix not in SOURCES or pieces.en_dessous(nom, plan.libres):
            continue
        if nom.suffix == ".h":
            entetes[nom.name].append(nom)
        for classe in classes(arbre.texte(nom)):
            lieux[classe].append(nom)
    fautes = [f"{nom} stands {len(ou)} times: {', '.join(map(str, ou))}"
              for nom, ou in entetes.items() if len(ou) > 1]
    fautes += [f"class {classe} stands {len(ou)} times: {', '.join(map(str, ou))}"
               for classe, ou in lieux.items() if len(ou) > 1]
    for classe, ou in lieux.items():
        sien = entetes.get(f"{classe}.h", [])
        if len(sien) == 1 and len(ou) == 1 and ou[0] != sien[0]:
            fautes.append(f"class {classe} stands in {ou[0]}, not in {sien[0]}")
    return "\n".join(fautes)
