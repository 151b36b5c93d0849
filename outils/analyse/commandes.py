# SPDX-License-Identifier: MPL-2.0
"""How the tree's own sources are compiled."""
import dataclasses
import json
import pathlib
import shlex


@dataclasses.dataclass(frozen=True)
class Commande:
    """One source and the flags that it is compiled with, without compiler, source and result."""
    fichier: pathlib.Path
    dossier: pathlib.Path
    drapeaux: tuple[str, ...]
    resultat: str


def lis(entree: dict, fichier: pathlib.Path) -> Commande:
    mots = shlex.split(entree["command"])
    resultat = mots[mots.index("-o") + 1] if "-o" in mots else ""
    mots = [m for m in mots[1:] if m not in ("-c", "-o", entree["file"], resultat)]
    # A launcher in front of the compiler is no flag.
    while mots and not mots[0].startswith("-"):
        del mots[0]
    return Commande(fichier, pathlib.Path(entree["directory"]), tuple(mots), resultat)


def commandes_de(construction: pathlib.Path, arbre: pathlib.Path) -> list[Commande]:
    """Those of the tree's own files: nothing generated, each file once."""
    vues: dict[pathlib.Path, Commande] = {}
    for entree in json.loads((construction / "compile_commands.json").read_text()):
        fichier = pathlib.Path(entree["directory"], entree["file"]).resolve()
        if fichier.is_relative_to(arbre) and not fichier.is_relative_to(arbre / "build") \
                and not fichier.is_relative_to(construction):
            vues.setdefault(fichier, lis(entree, fichier))
    return [vues[fichier] for fichier in sorted(vues)]
