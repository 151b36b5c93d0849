# SPDX-License-Identifier: MPL-2.0
"""The documents as they were before the suite: remembered, and put back."""

from . import textes
from .hote import Cible, Hote, Perdu
from .langue import Bilingue
from .lecture import Lecture


class Remise:
    """Zones, styles and selection of each document when the run began."""

    def __init__(self, cible: Cible, identifiants: list[str]):
        self.cible = cible
        self.avant: dict[str, Lecture] = {}
        for identifiant in identifiants:
            hote = Hote(cible)
            lue = hote.zones(identifiant)
            hote.ferme()
            if not isinstance(lue, Lecture):
                raise ValueError(f"{identifiant}: {lue}")
            self.avant[identifiant] = lue

    def remets(self) -> list[Bilingue]:
        """Puts the texts back; what could not be is answered."""
        ecarts = []
        for identifiant, avant in self.avant.items():
            try:
                ecarts += self._remets(identifiant, avant)
            except Perdu:
                ecarts.append(Bilingue(f"{identifiant} : le compagnon ne répond plus",
                                       f"{identifiant}: the companion answers no more"))
        return ecarts

    def reselectionne(self) -> None:
        """The selection, as far as the zones tell where it was."""
        for identifiant, avant in self.avant.items():
            hote = Hote(self.cible)
            hote.zones(identifiant)
            for zone in avant.zones:
                if zone.selection != (0, 0):
                    hote.appelle("SelectionneIntervalle", zone.nom, *zone.selection)
                    break
            else:
                if avant.zones:
                    hote.appelle("SelectionneIntervalle", avant.zones[0].nom, 0, 0)
            hote.ferme()

    def _remets(self, identifiant: str, avant: Lecture) -> list[Bilingue]:
        hote = Hote(self.cible)
        try:
            maintenant = hote.zones(identifiant)
            if self._ecarts(identifiant, avant, maintenant) and isinstance(maintenant, Lecture):
                presentes = {zone.nom: zone.texte for zone in maintenant.zones}
                for zone in avant.zones:
                    texte = presentes.get(zone.nom, zone.texte)
                    if texte != zone.texte:
                        debut, fin, mot = textes.edition(texte, zone.texte)
                        hote.appelle("CorrigeDansTexteur", zone.nom, debut, fin, mot, False)
                maintenant = hote.zones(identifiant)
            return self._ecarts(identifiant, avant, maintenant)
        finally:
            hote.ferme()

    @staticmethod
    def _ecarts(identifiant: str, avant: Lecture, maintenant) -> list[Bilingue]:
        if not isinstance(maintenant, Lecture):
            return [Bilingue(f"{identifiant} : {maintenant}", f"{identifiant}: {maintenant}")]
        if [z.nom for z in avant.zones] != [z.nom for z in maintenant.zones]:
            return [Bilingue(f"{identifiant} : ce ne sont plus les mêmes zones",
                             f"{identifiant}: the zones are not the same any more")]
        ecarts = []
        for ancienne, zone in zip(avant.zones, maintenant.zones):
            if ancienne.texte != zone.texte:
                ecarts.append(Bilingue(f"{identifiant} : le texte de la zone {zone.nom}",
                                       f"{identifiant}: the text of the zone {zone.nom}"))
            elif ancienne.styles != zone.styles:
                ecarts.append(Bilingue(f"{identifiant} : les styles de la zone {zone.nom}",
                                       f"{identifiant}: the styles of the zone {zone.nom}"))
        return ecarts
