# SPDX-License-Identifier: MPL-2.0
"""A program's manual page, in roff."""
import re

from aide import Aide

TITRES = {"en": ("NAME", "SYNOPSIS", "DESCRIPTION", "EXIT STATUS"),
          "fr": ("NOM", "SYNOPSIS", "DESCRIPTION", "CODES DE SORTIE")}


def roff(texte: str) -> str:
    texte = texte.replace("\\", "\\e").replace("-", "\\-")
    return "\\&" + texte if texte[:1] in (".", "'") else texte


def gras(texte: str) -> str:
    """Words to type in bold, those to replace in italics."""
    texte = re.sub(r"\b([A-Z]{2,})\b", r"\\fI\1\\fR", roff(texte))
    return re.sub(r"((?:\\-){1,2}[a-z][a-z\\-]*|^[a-z0-9][a-z0-9\\-]*)", r"\\fB\1\\fR", texte)


def page(aide: Aide, langue: str, version: str) -> str:
    nom, synopsis, description, sortie = TITRES[langue]
    lignes = [f'.TH {aide.programme.upper()} 1 "" "Vocalyne {version}"', f".SH {nom}",
              f"{roff(aide.programme)} \\- {roff(aide.resume())}", f".SH {synopsis}"]
    for ligne in aide.synopsis:
        lignes += [gras(ligne), ".br"]
    lignes[-1] = f".SH {description}"
    # What stands behind the exit codes is of the description; they come last in a manual.
    fin = aide.corps.index(None)
    for element in aide.corps[:fin] + aide.corps[fin + 2:] + aide.corps[fin:fin + 2]:
        if element is None:
            lignes.append(f".SH {sortie}")
        elif isinstance(element, str):
            lignes += [".PP", roff(element)]
        else:
            for entree in element:
                lignes += [".TP", gras(entree.terme), roff(entree.texte)]
    # A paragraph mark right behind a heading is one too many.
    texte = re.sub(r"^(\.SH .*)\n\.PP\n", r"\1\n", "\n".join(lignes) + "\n", flags=re.M)
    return ".\\\" Made from what the program says with --help.\n" + texte
