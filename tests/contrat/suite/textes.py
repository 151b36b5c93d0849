# SPDX-License-Identifier: MPL-2.0
"""Texts in UTF-16 code units, as the contract counts them."""

import re

BOUCHE_TROU = "\a"  # what stands for a field, an anchor, an image


def unites(texte: str) -> int:
    """Length in UTF-16 code units."""
    return len(texte.encode("utf-16-le", "surrogatepass")) // 2


def tranche(texte: str, debut: int, fin: int) -> str:
    """The units from debut to fin; half a pair comes out as a lone surrogate."""
    octets = texte.encode("utf-16-le", "surrogatepass")
    return octets[2 * debut:2 * fin].decode("utf-16-le", "surrogatepass")


def remplace(texte: str, debut: int, fin: int, par: str) -> str:
    return tranche(texte, 0, debut) + par + tranche(texte, fin, unites(texte))


def coupe_paire(texte: str, position: int) -> bool:
    """Does this position stand inside of a surrogate pair?"""
    avant = tranche(texte, position - 1, position) if position > 0 else ""
    apres = tranche(texte, position, position + 1)
    return "\ud800" <= avant <= "\udbff" and "\udc00" <= apres <= "\udfff"


def place_de(texte: str, cherche: str) -> tuple[int, int]:
    """Where the first occurrence stands, in units."""
    debut = unites(texte[:texte.index(cherche)])
    return debut, debut + unites(cherche)


def edition(avant: str, apres: str) -> tuple[int, int, str]:
    """The smallest replacement (start, end, new text) that makes one text of the other. It parts
    neither a pair nor a letter from the marks on it."""
    commun = 0
    while commun < min(len(avant), len(apres)) and avant[commun] == apres[commun]:
        commun += 1
    fin = 0
    while fin < min(len(avant), len(apres)) - commun and avant[-1 - fin] == apres[-1 - fin]:
        fin += 1
    return (unites(avant[:commun]), unites(avant[:len(avant) - fin]),
            apres[commun:len(apres) - fin])


def joint(texte: str) -> int | None:
    """A place, in units, where words can be put in without touching a letter that is there: behind
    the first word. None where there is no word of two letters."""
    trouve = re.search(r"[^\W\d_]{2,}(?=$|[ ,.;:!?\u00a0])", texte)
    return unites(texte[:trouve.end()]) if trouve else None
