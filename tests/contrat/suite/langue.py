# SPDX-License-Identifier: MPL-2.0
"""What people read, in French or in English."""

import os
from typing import NamedTuple


class Bilingue(NamedTuple):
    francais: str
    anglais: str

    def __str__(self) -> str:
        return self.francais if parle_francais() else self.anglais


def parle_francais() -> bool:
    """The language of this process's messages, by the usual variables."""
    for nom in ("LC_ALL", "LC_MESSAGES", "LANG"):
        if valeur := os.environ.get(nom):
            return valeur == "fr" or valeur.startswith(("fr_", "fr.", "fr@"))
    return False


def abrege(valeur, maximum: int = 60) -> str:
    """A value as it stands in a message: on one line, the middle of a long one left out."""
    dit = repr(valeur)
    return dit if len(dit) <= maximum else f"{dit[:maximum // 2]}…{dit[-maximum // 3:]}"
