# SPDX-License-Identifier: MPL-2.0
"""Every file is named by a README, and what a README names exists.

A file's README is the one of its folder, or of the nearest folder above that has one. It names the
file in backticks, by its name or its path, with or without the suffix, or by a pattern
(`*Test.cpp`); or links to it. A folder without a README is named too, as `folder/`.
CMakeLists.txt, README.md and the hidden files that tools look for speak for themselves.
"""
import fnmatch
import pathlib
import re

from .arbre import Arbre
from .pieces import LISTE, lis_plan

LISEZMOI = "README.md"
BLOC = re.compile(r"^```.*?^```", re.S | re.M)
CITE = re.compile(r"`([^`\n]+)`")
LIEN = re.compile(r"\[[^\]\n]*\]\(([^)\s#]+)(?:#[^)]*)?\)")
# A table whose first column says that it lists files or folders.
TABLEAU = re.compile(r"^\|\s*(?:file|folder|room)s?\b[^|\n]*\|.*\n\|[-| :]+\|\n((?:\|.*\n?)+)", re.M)
# What can be nothing else than a file of ours, wherever it is named.
SOURCE = re.compile(r"[\w./-]*\w\.(?:h|cpp|py|sh|cmake|po|liste)")


def parle_de_soi(nom: pathlib.PurePosixPath) -> bool:
    return nom.name in ("CMakeLists.txt", LISEZMOI) or nom.name.startswith(".")


def designe(mot: str, chemin: pathlib.PurePosixPath) -> bool:
    """Whether the word names the file of that path: by its end, and * holds no slash."""
    mots = mot.removeprefix("./").split("/")
    return any(len(mots) <= len(parts) and all(map(fnmatch.fnmatchcase, parts[-len(mots):], mots))
               for parts in (chemin.parts, chemin.with_suffix("").parts))


class Page:
    """What one README names."""

    def __init__(self, arbre: Arbre, nom: pathlib.PurePosixPath):
        self.nom, self.dossier = nom, nom.parent
        texte = BLOC.sub("", arbre.texte(nom))
        self.mots = set(CITE.findall(texte))
        self.liens = {lien for lien in LIEN.findall(texte) if ":" not in lien}
        self.listes = {mot for tableau in TABLEAU.findall(texte) for ligne in tableau.splitlines()
                       for mot in CITE.findall(ligne.split("|")[1])}

    def nomme(self, fichier: pathlib.PurePosixPath) -> bool:
        ici = fichier.relative_to(self.dossier)
        return any(designe(mot, ici) for mot in self.mots | self.liens)

    def nomme_dossier(self, dossier: pathlib.PurePosixPath) -> bool:
        """Whether a word is a path that begins with the folder's."""
        ici = dossier.relative_to(self.dossier).parts
        chemins = [mot.removeprefix("./").split("/") for mot in self.mots | self.liens if "/" in mot]
        return any(len(mots) >= len(ici) and all(map(fnmatch.fnmatchcase, ici, mots)) for mots in chemins)


def page_de(dossier: pathlib.PurePosixPath, pages: dict) -> pathlib.PurePosixPath | None:
    return next((d for d in (dossier, *dossier.parents) if d in pages), None)


def oublies(arbre: Arbre, pages: dict[pathlib.PurePosixPath, Page]) -> list[str]:
    """The files and folders that no README names."""
    fautes = []
    for nom in arbre.noms:
        sien = page_de(nom.parent, pages)
        if sien is None:
            fautes.append(f"{nom}: no {LISEZMOI} in its folder or above")
        elif not parle_de_soi(nom) and not pages[sien].nomme(nom):
            fautes.append(f"{pages[sien].nom}: does not name {nom.relative_to(sien)}")
    for dossier in sorted(arbre.dossiers - {pathlib.PurePosixPath(".")}):
        # A folder with a README of its own is named above all the same: that is how it is found.
        sien = page_de(dossier.parent, pages)
        if sien is not None and not pages[sien].nomme_dossier(dossier):
            fautes.append(f"{pages[sien].nom}: does not name {dossier.relative_to(sien)}/")
    return fautes


def existe(mot: str, page: Page, arbre: Arbre, pages: dict) -> bool:
    """Whether an entry of a README's list is a file or folder that the README stands for."""
    if mot.endswith("/"):
        return page.dossier / mot.rstrip("/") in arbre.dossiers
    return any(nom.is_relative_to(page.dossier) and designe(mot, nom.relative_to(page.dossier))
               for nom in arbre.noms) or page.dossier / mot in arbre.dossiers


def disparus(arbre: Arbre, pages: dict[pathlib.PurePosixPath, Page]) -> list[str]:
    """What READMEs name and what is not there."""
    genere = set(lis_plan(arbre.texte(LISTE)).genere) if LISTE in arbre.noms else set()
    fins = {"/".join(nom.parts[i:]) for nom in arbre.noms for i in range(len(nom.parts))}
    fautes = []
    for page in pages.values():
        fautes += [f"{page.nom}: lists `{mot}`, which is not there" for mot in sorted(page.listes)
                   if not existe(mot, page, arbre, pages)]
        fautes += [f"{page.nom}: names `{mot}`, which is nowhere" for mot in sorted(page.mots - page.listes)
                   if SOURCE.fullmatch(mot) and mot not in fins and mot not in genere]
    for nom in arbre.noms:
        if nom.suffix == ".md":
            liens = LIEN.findall(BLOC.sub("", arbre.texte(nom)))
            fautes += [f"{nom}: links to {lien}, which is not there" for lien in sorted(set(liens))
                       if ":" not in lien and not (arbre.racine / nom.parent / lien).exists()]
    return fautes


def examine(arbre: Arbre) -> str:
    pages = {nom.parent: Page(arbre, nom) for nom in arbre.noms if nom.name == LISEZMOI}
    return "\n".join(oublies(arbre, pages) + disparus(arbre, pages))
