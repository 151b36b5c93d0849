# SPDX-License-Identifier: MPL-2.0
"""The list of rules. A rule is a sentence, where it is written, and how it is tried."""

from collections.abc import Callable
from dataclasses import dataclass

from .langue import Bilingue

# Titles in protocol/README.md.
CONTRAT = "protocol: the wire contract"
NOMS = "Names"
ZONES = "The zone document"
STYLES = "Style bits"
ERREURS = "Errors"
ACCORD = "What every companion does alike"
RECIT = "What it says of a document"


class NonEssayee(Exception):
    """The rule cannot be tried here, for that reason: it was neither held nor broken."""

    def __init__(self, francais: str, anglais: str):
        super().__init__(anglais)
        self.raison = Bilingue(francais, anglais)


@dataclass(frozen=True)
class Regle:
    identifiant: str
    section: str
    phrase: Bilingue
    essaie: Callable


REGLES: dict[str, Regle] = {}


def regle(identifiant: str, section: str, francais: str, anglais: str):
    """Declares the function below as the trial of a rule. It is given an `Essai`."""
    def inscris(essaie: Callable) -> Callable:
        assert identifiant not in REGLES, identifiant
        REGLES[identifiant] = Regle(identifiant, section, Bilingue(francais, anglais), essaie)
        return essaie
    return inscris
