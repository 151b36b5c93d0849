# SPDX-License-Identifier: MPL-2.0
"""A run: each rule in turn, the document put back after each."""

from collections.abc import Callable, Iterable
from dataclasses import dataclass, field

from .essai import Arret, Essai, Options
from .hote import Cible, Perdu
from .langue import Bilingue
from .registre import NonEssayee, Regle
from .remise import Remise

TENUE, VIOLEE, NON_ESSAYEE = "tenue", "violee", "non-essayee"
PERDU = Bilingue("le compagnon a quitté le bus ou ne répond plus",
                 "the companion has left the bus, or answers no more")


@dataclass
class Resultat:
    regle: Regle
    statut: str
    constats: list[Bilingue] = field(default_factory=list)


@dataclass
class Bilan:
    resultats: list[Resultat] = field(default_factory=list)
    ecarts: list[Bilingue] = field(default_factory=list)  # what is not as it was before

    def de_statut(self, statut: str) -> list[Resultat]:
        return [r for r in self.resultats if r.statut == statut]


def deroule(cible: Cible, options: Options, regles: Iterable[Regle],
            annonce: Callable[[Resultat], None], commence: Callable[[Regle], None]) -> Bilan:
    """Tries the rules; whatever happens, the documents are put back. ValueError when a document
    cannot be read to begin with."""
    identifiants = [i for i in (options.document, options.autre, options.lecture_seule) if i]
    remise = Remise(cible, identifiants)
    bilan = Bilan()
    try:
        for regle in regles:
            commence(regle)
            resultat = _essaie(cible, options, regle)
            bilan.resultats.append(resultat)
            annonce(resultat)
            if not cible.perdu:
                remise.remets()
    finally:
        bilan.ecarts = remise.remets()
        if not bilan.ecarts:
            remise.reselectionne()
    return bilan


def _essaie(cible: Cible, options: Options, regle: Regle) -> Resultat:
    etait_perdu = cible.perdu
    essai = Essai(cible, options)
    try:
        regle.essaie(essai)
    except NonEssayee as raison:
        if not essai.constats:
            return Resultat(regle, NON_ESSAYEE, [raison.raison])
    except Arret:
        pass
    except Perdu as appel:
        if etait_perdu and not essai.constats:
            return Resultat(regle, NON_ESSAYEE, [PERDU])
        essai.constate(f"{appel} : {PERDU.francais}", f"{appel}: {PERDU.anglais}")
    finally:
        essai.ferme()
    return Resultat(regle, VIOLEE if essai.constats else TENUE, essai.constats)
