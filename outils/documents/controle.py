# SPDX-License-Identifier: MPL-2.0
"""Whose difference is it? The same is done again in a second copy, without the extension."""

import contextlib
import os

import banc
from .constats import BUREAU, FAUTE, Bilan
from .fichier.demandees import sans_demandees
from .fichier.deplacees import sans_deplacees
from .fichier.differences import Difference, differences, mesures, partage
from .fichier.ossature import Ligne, Ossature
from .ouvert import Ouvert, PasAnnule, PasEnregistre
from .temoin import Temoin


TABLEUR = "com.sun.star.sheet.SpreadsheetDocument"
# Its rows are as high as their letters from the first edit on, whoever makes it, and what stands below
# them moves.
RANGEES = frozenset({"style:row-height", "svg:y", "table:end-y", "svg:height", "draw:caption-point-y"})
AUTOUR = 40  # letters on both sides of what differs in a line


def _dis(difference: Difference) -> str:
    if len(difference.perdu) == len(difference.gagne) == 1:
        perdu, gagne = difference.perdu[0], difference.gagne[0]
        debut = len(os.path.commonprefix((perdu, gagne)))
        fin = min(len(os.path.commonprefix((perdu[::-1], gagne[::-1]))),
                  len(perdu) - debut, len(gagne) - debut)
        avant, apres = (dit[max(0, debut - AUTOUR):len(dit) - fin + AUTOUR if fin > AUTOUR else None]
                        for dit in (perdu, gagne))
        return f"{difference.lieu}: {avant!r} became {apres!r}"
    return f"{difference.lieu}: -{list(difference.perdu)} +{list(difference.gagne)}"


class Controle:
    """Gathers differences, then judges them all with one more copy, opened only if there are any."""

    def __init__(self, bureau: banc.Bureau, fichier, bilan: Bilan):
        self._bureau, self._fichier, self._bilan = bureau, fichier, bilan
        self._vues: dict[str, list[Difference]] = {}
        self.faits: list = []  # the corrections that were made
        self.autrement: list[str] = []  # zones that undo did not give back
        self._tableur = False
        self._annules: tuple[list[Ligne], list[Ligne]] = ([], [])
        self._temoin_annule: tuple[list[Ligne], list[Ligne]] | None = None

    def compare(self, nature: str, avant: Ossature, apres: Ossature) -> None:
        self._note(nature, avant.lignes, apres.lignes)

    def compare_corriges(self, avant: Ossature, apres: Ossature) -> None:
        """Their structure: of letters other ones were asked for."""
        self._note("structure", *sans_demandees(avant.lignes, apres.lignes))

    def compare_annules(self, avant: Ossature, apres: Ossature) -> None:
        self._annules = (avant.lignes, apres.lignes)
        self._note("annulation", *self._annules)

    def _note(self, nature: str, avant: list[Ligne], apres: list[Ligne]) -> None:
        if trouvees := differences(avant, apres):
            self._vues[nature] = trouvees

    def juge(self) -> None:
        if self._vues:
            self._juge_avec_temoin()
        self._bilan.note("annulation.texte", FAUTE, self.autrement)

    def _juge_avec_temoin(self) -> None:
        du_bureau, passageres, manques = self._rejoue()
        if "annulation" in self._vues and self._temoin_annule:
            avant, apres, dites = sans_deplacees(*self._annules, self._temoin_annule)
            self._vues["annulation"] = differences(avant, apres)
            self._bilan.note("annulation", BUREAU, dites)
        # What grew with the letters does not shrink again for their undoing.
        libres = frozenset().union(*map(mesures, du_bureau.get("structure", [])),
                                   RANGEES if self._tableur else ())
        for nature, vues in self._vues.items():
            notres, siennes = partage(vues, du_bureau.get(nature, []), passageres, libres)
            suite = [f"not done without the extension: {essai}" for essai in manques if notres]
            self._bilan.note(nature, FAUTE, list(map(_dis, notres)) + suite)
            self._bilan.note(nature, BUREAU, map(_dis, siennes))
            if nature == "annulation":
                self._bilan.note("annulation.texte", FAUTE if notres else BUREAU, self.autrement)
                self.autrement = []

    def _rejoue(self) -> tuple[dict[str, list[Difference]], list[Difference], list]:
        """The differences that the office makes, by their nature; those between two saves with
        nothing done in between; the corrections that found no place."""
        ouvert = Ouvert(self._bureau, self._fichier)
        try:
            self._tableur = ouvert.modele.supportsService(TABLEUR)
            premier, avant = ouvert.enregistre(), ouvert.enregistre()
            passageres = differences(Ossature(premier, True).lignes, Ossature(avant, True).lignes)
            pas = ouvert.etapes()
            temoin = Temoin(ouvert.modele)
            manques = [essai for essai in self.faits if not
                       self._bureau.sur_le_fil_principal(lambda e=essai: temoin.fais(e))]
            corrige = ouvert.enregistre()
            annulable = ouvert.etapes() > pas  # of what a cursor does to a shape there is no step
            with contextlib.suppress(PasAnnule):  # the office's own failing
                ouvert.annule(pas)
            annule = ouvert.enregistre()
        except PasEnregistre as erreur:
            self._bilan.note("enregistrement", BUREAU, [f"without the extension: {erreur}"])
            return {}, [], self.faits
        finally:
            if self._bureau.processus.poll() is None:
                ouvert.ferme()
        if annulable:
            self._temoin_annule = (Ossature(avant, True).lignes, Ossature(annule, True).lignes)
        return {"lecture.change": passageres,
                "structure": differences(Ossature(avant, False).lignes,
                                         Ossature(corrige, False).lignes),
                "annulation": differences(*self._temoin_annule) if annulable else []}, \
            passageres, manques
