# SPDX-License-Identifier: MPL-2.0
"""The Debian packages say what the rest of the tree says: one version, one list of build packages.

CMakeLists.txt holds the version. debian/changelog begins with the same, for the distribution
UNRELEASED as long as CHANGELOG.md has no section for it. What building takes is named in
outils/paquets.liste; debian/control repeats it, since Debian reads nothing else.
"""
import pathlib
import re

from .arbre import Arbre

CMAKE = pathlib.PurePosixPath("CMakeLists.txt")
HISTOIRE = pathlib.PurePosixPath("CHANGELOG.md")
LISTE = pathlib.PurePosixPath("outils/paquets.liste")
CONTROLE = pathlib.PurePosixPath("debian/control")
JOURNAL = pathlib.PurePosixPath("debian/changelog")
# What every Debian build has, and what only a package's build takes.
TOUJOURS_LA, POUR_LE_PAQUET = {"g++"}, {"debhelper-compat"}


def versions(arbre: Arbre) -> list[str]:
    projet = re.search(r"^project\([^)]*?\bVERSION\s+([\d.]+)", arbre.texte(CMAKE), re.M)
    paquet = re.match(r"\S+ \(([^)]*)\) (\S+);", arbre.texte(JOURNAL))
    if not projet or not paquet:
        return [f"{CMAKE if not projet else JOURNAL}: no version"]
    version, fautes = projet.group(1), []
    if paquet.group(1) != version:
        fautes.append(f"{JOURNAL}: {paquet.group(1)} is not the version of {CMAKE}, {version}")
    sortie = re.search(rf"^## \[{re.escape(version)}\]", arbre.texte(HISTOIRE), re.M)
    if bool(sortie) == (paquet.group(2) == "UNRELEASED"):
        fautes.append(f"{JOURNAL}: {version} is for {paquet.group(2)}, and {HISTOIRE} has "
                      f"{'a' if sortie else 'no'} section [{version}]")
    return fautes


def usage(liste: str, nom: str) -> set[str]:
    section = re.search(rf"^\[{nom}\]\n((?:[^\[\n].*\n?)*)", liste, re.M)
    return set(re.findall(r"^[^#\s]\S*", section.group(1), re.M)) if section else set()


def demandes(controle: str) -> dict[bool, set[str]]:
    """The packages of Build-Depends, by whether they are asked for on some architectures alone."""
    champ = re.search(r"^Build-Depends:((?:.*\n[ \t]+\S)*.*)", controle, re.M)
    noms = {True: set(), False: set()}
    for un in champ.group(1).split(",") if champ else []:
        if trouve := re.match(r"\s*([\w.+-]+)", un):
            noms["[" in un].add(trouve.group(1))
    return noms


def constructions(arbre: Arbre) -> list[str]:
    liste, noms = arbre.texte(LISTE), demandes(arbre.texte(CONTROLE))
    fautes = []
    for nom, voulus, dits in (("construction", usage(liste, "construction") - TOUJOURS_LA,
                               noms[False] - POUR_LE_PAQUET),
                              ("paquets-extension", usage(liste, "paquets-extension"), noms[True])):
        fautes += [f"{CONTROLE}: no {p}, which {LISTE} has in [{nom}]" for p in sorted(voulus - dits)]
        fautes += [f"{CONTROLE}: {p}, which {LISTE} has not in [{nom}]" for p in sorted(dits - voulus)]
    return fautes


def examine(arbre: Arbre) -> str:
    if CONTROLE not in arbre.noms:
        return ""
    return "\n".join(versions(arbre) + constructions(arbre))
