# SPDX-License-Identifier: MPL-2.0
"""Batches of files that are looked at as one text.

One after the other they are the main file, all of it: what a tool looks at there alone (unused
`using`, functions that nobody calls) is looked at here too, as it would not be in included files.
"""
import functools
import itertools
import pathlib
import re

from examens.arbre import code_seul

from .commandes import Commande

ANONYME = re.compile(r"\bnamespace\s*\{")
# What may be a name that is declared: after what introduces a type, or in front of what follows one.
DECLARE = re.compile(r"\b(?:class|struct|union|enum|using)\s+(\w+)|(?<![:.>\w])([A-Za-z_]\w*)\s*(?=[(=;\[])")
COURANTS = {"", "TEST", "TEST_F", "TEST_P", "INSTANTIATE_TEST_SUITE_P", "MATCHER", "MATCHER_P", "class",
            "namespace", "override", "const", "noexcept", "nullptr", "void", "string_literals"}
INCLUSION = re.compile(r'^([ \t]*#[ \t]*include[ \t]*)"([^"\n]+)"', re.M)


def macros(commande: Commande) -> dict[str, str]:
    """Those of the command line that a text could depend on; NAME_EXPORTS only says who exports."""
    paires = (d[2:].partition("=") for d in commande.drapeaux if d.startswith("-D"))
    return {nom: valeur for nom, _, valeur in paires if not nom.endswith("_EXPORTS")}


def allures(commande: Commande, arbre: pathlib.Path) -> tuple:
    """Files that differ in this are not put together: what they are, by where, and the libraries."""
    ici = commande.fichier.relative_to(arbre).parts
    libres = {nom for nom, valeur in macros(commande).items() if not valeur and nom.startswith("VOCALYNE")}
    paires = zip(commande.drapeaux, commande.drapeaux[1:])
    dossiers = {dossier for drapeau, dossier in paires if drapeau == "-isystem"}
    return ici[0], tuple(sorted(dossiers)), tuple(sorted(libres)), str(configuration(commande, arbre))


def configuration(commande: Commande, arbre: pathlib.Path) -> pathlib.Path:
    """The folder of the nearest .clang-tidy that holds for the file."""
    return next((d for d in commande.fichier.parents if (d / ".clang-tidy").exists()), arbre)


@functools.cache
def noms_a_part(fichier: pathlib.Path) -> frozenset[str]:
    """What the file seems to declare for itself alone; a second one would clash in one text."""
    texte = code_seul(fichier.read_text(encoding="utf-8", errors="replace"))
    noms: set[str] = set()
    for ouverture in ANONYME.finditer(texte):
        profondeur, dehors = 1, []
        for signe in texte[ouverture.end():]:
            # The brace itself stays: it may follow a name.
            if profondeur == 1:
                dehors.append(signe)
            profondeur += (signe == "{") - (signe == "}")
            if profondeur == 0:
                break
        noms.update(*DECLARE.findall("".join(dehors)))
    return frozenset(noms - COURANTS)


class Lot:
    """Files that get on together."""

    def __init__(self):
        self.commandes: list[Commande] = []
        self.macros: dict[str, str] = {}
        self.noms: set[str] = set()

    def accepte(self, commande: Commande) -> bool:
        return self.noms.isdisjoint(noms_a_part(commande.fichier)) and \
            all(self.macros.get(nom, valeur) == valeur for nom, valeur in macros(commande).items())

    def prends(self, commande: Commande) -> None:
        self.commandes.append(commande)
        self.macros.update(macros(commande))
        self.noms |= noms_a_part(commande.fichier)


def en_lots(commandes: list[Commande], arbre: pathlib.Path, taille: int, equipe: int) -> list[list[Commande]]:
    """Batches of at most that size, the largest first, and some for everyone of the team."""
    taille = max(1, min(taille, -(-len(commandes) // max(1, equipe))))
    faits = []
    rangees = sorted(commandes, key=lambda c: (allures(c, arbre), c.fichier))
    for _, voisines in itertools.groupby(rangees, lambda c: allures(c, arbre)):
        ouverts: list[Lot] = []
        for commande in voisines:
            libre = next((o for o in ouverts if len(o.commandes) < taille and o.accepte(commande)), None)
            if libre is None:
                libre = Lot()
                ouverts.append(libre)
            libre.prends(commande)
        faits += [lot.commandes for lot in ouverts]
    return sorted(faits, key=len, reverse=True)


def drapeaux(commandes: list[Commande]) -> list[str]:
    """What all of them are compiled with, each flag once; `-isystem DIR` stays together."""
    vus: dict[tuple[str, ...], None] = {}
    for commande in commandes:
        mots = iter(commande.drapeaux)
        for mot in mots:
            vus.setdefault((mot, next(mots)) if mot in ("-isystem", "-include") else (mot,))
    return [mot for paire in vus for mot in paire]


def texte(commandes: list[Commande]) -> str:
    """The files one after the other; what they include from beside them, by its whole path."""
    def a_cote(dossier: pathlib.Path):
        def place(trouve: re.Match) -> str:
            voisin = dossier / trouve.group(2)
            return f'{trouve.group(1)}"{voisin}"' if voisin.exists() else trouve.group()
        return place
    return "\n".join(INCLUSION.sub(a_cote(c.fichier.parent), c.fichier.read_text(encoding="utf-8"))
                     for c in commandes)
