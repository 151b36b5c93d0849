# SPDX-License-Identifier: MPL-2.0
"""Tables: which cells of a spreadsheet are in view, and which hold words that a person typed."""

import re

from .caches import Caches
from .sauvegarde import attributs, nom_court

GROUPES = {"table:table-row-group", "table:table-header-rows", "table:table-rows",
           "table:table-column-group", "table:table-header-columns", "table:table-columns"}
CELLULES = {"table:table-cell", "table:covered-table-cell"}
ADRESSE = re.compile(r"^(?P<feuille>.*)\.\$?(?P<colonne>[A-Z]+)\$?(?P<ligne>\d+)$")


def _rang(colonne: str) -> int:
    rang = 0
    for lettre in colonne:
        rang = rang * 26 + ord(lettre) - ord("A") + 1
    return rang - 1


class Feuilles:
    """Of one `office:spreadsheet`, or of a text's or slide's tables, where every cell is text."""

    def __init__(self, corps, caches: Caches):
        self._tableur = nom_court(corps.tag) == "office:spreadsheet"
        self._caches = caches
        self._pivots = [p for p in map(self._pivot, corps.iter()) if p] if self._tableur else []

    @staticmethod
    def _pivot(element):
        if nom_court(element.tag) != "table:data-pilot-table":
            return None
        bouts = attributs(element).get("table:target-range-address", "").split(":")
        lus = [ADRESSE.match(bout) for bout in bouts]
        if len(lus) != 2 or not all(lus):
            return None
        nom = lus[0]["feuille"].strip("$'")
        return nom, *((_rang(lu["colonne"]), int(lu["ligne"]) - 1) for lu in lus)

    def parcours(self, table, raison: str | None, visite) -> None:
        """Calls `visite(cell, reason, reason of its own words, how often)` for each cell with
        something in it."""
        siens = attributs(table)
        self._nom = siens.get("table:name", "")
        style = self._caches.propriete("table", siens.get("table:style-name"), "table:display")
        if self._tableur and style == "false":
            raison = raison or "hidden sheet"
        protegee = self._tableur and siens.get("table:protected") == "true"
        colonnes: list[tuple[int, str, str | None]] = []
        rangees: list = []
        self._range(table, colonnes, rangees, visite, raison)
        ligne = 0
        for rangee in rangees:
            sienne = attributs(rangee)
            fois = int(sienne.get("table:number-rows-repeated", 1))
            cachee = sienne.get("table:visibility", "visible") != "visible"
            self._rangee(rangee, raison or ("hidden row" if cachee else None), ligne, fois,
                         colonnes, protegee, visite)
            ligne += fois

    def _range(self, element, colonnes: list, rangees: list, visite, raison) -> None:
        for enfant in element:
            genre = nom_court(enfant.tag)
            if genre in GROUPES:
                self._range(enfant, colonnes, rangees, visite, raison)
            elif genre == "table:table-column":
                siens = attributs(enfant)
                colonnes.append((int(siens.get("table:number-columns-repeated", 1)),
                                 siens.get("table:visibility", "visible"),
                                 siens.get("table:default-cell-style-name")))
            elif genre == "table:table-row":
                rangees.append(enfant)
            elif genre == "table:shapes":
                visite(enfant, raison, None, 1)

    def _rangee(self, rangee, raison, ligne: int, fois: int, colonnes, protegee: bool,
                visite) -> None:
        colonne = 0
        for cellule in rangee:
            genre = nom_court(cellule.tag)
            if genre not in CELLULES:
                continue
            siens = attributs(cellule)
            combien = int(siens.get("table:number-columns-repeated", 1))
            if len(cellule):
                for rang in range(colonne, colonne + min(combien, 1024)):
                    visibilite, style = self._colonne(colonnes, rang)
                    raison_ici = raison
                    if self._tableur and visibilite != "visible":
                        raison_ici = raison or "hidden column"
                    visite(cellule, raison_ici,
                           self._raison(cellule, genre, siens, style, protegee, rang, ligne), fois)
            colonne += combien

    @staticmethod
    def _colonne(colonnes, rang: int) -> tuple[str, str | None]:
        for combien, visibilite, style in colonnes:
            if rang < combien:
                return visibilite, style
            rang -= combien
        return "visible", None

    def _raison(self, cellule, genre: str, siens: dict, style, protegee: bool, colonne: int,
                ligne: int) -> str | None:
        """Why a cell's own words are not for correcting."""
        if genre == "table:covered-table-cell":
            return "covered cell"
        if not self._tableur:
            return None
        if "table:formula" in siens or siens.get("calcext:value-type") == "error":
            return "computed"
        if "office:string-value" in siens:
            # Of what an office cannot work out it writes the last result, and no formula; and the
            # same of typed text that looks like one.
            return "?"
        if siens.get("office:value-type") != "string":
            return "number"
        for nom, (c1, l1), (c2, l2) in self._pivots:
            if nom == self._nom and c1 <= colonne <= c2 and l1 <= ligne <= l2:
                return "pivot table"
        if self._caches.ajoute_des_mots(siens.get("table:style-name", style)):
            return "?"
        protection = self._caches.propriete(
            "table-cell", siens.get("table:style-name", style), "style:cell-protect") or ""
        if protegee and "hidden" in protection:
            return "hidden by protection"
        return None
