# SPDX-License-Identifier: MPL-2.0
"""A saved document line by line: its elements, formats, fields and anchors, with or without letters.

Two saves of the same document give the same lines, whatever the office calls its automatic styles
and however it cuts spans and repeated cells.
"""

import itertools
from typing import NamedTuple

from .formats import SANS_EFFET, Formats, designe_un_style
from .sauvegarde import Sauvegarde, attributs, nom_court

LETTRES = {"text:s", "text:tab", "text:line-break"}
PORTEURS = {"text:span", "text:a"}  # of letters; a span is nothing but its format
PARAGRAPHES = {"text:p", "text:h"}
# Layout, and what an office writes about itself.
IGNORES = {"text:soft-page-break", "office:forms", "office:scripts", "table:named-expressions"}
# Where something starts or ends: no letter, so its format is nobody's.
REPERES = ("text:bookmark", "text:reference-mark", "text:change", "office:annotation",
           "text:alphabetical-index-mark", "text:toc-mark", "text:user-index-mark")
# Names that the office makes up at each save, and times of the day.
PASSAGERS = {"xml:id", "draw:id", "text:id", "text:change-id", "text:continue-list",
             "text:continue-numbering", "draw:nav-order", "dc:date"}
RESULTATS = ("office:value", "office:string-value", "office:date-value", "office:time-value",
             "office:boolean-value", "office:value-type", "calcext:value-type", "office:currency")
CALCULES = {"text:page-number", "text:page-count", "text:word-count", "text:character-count",
            "text:paragraph-count", "text:modification-time", "text:editing-duration"}
REPETITIONS = {"table:table-row": "table:number-rows-repeated",
               "table:table-cell": "table:number-columns-repeated",
               "table:covered-table-cell": "table:number-columns-repeated"}
REPETITIONS_MAX = 2000


def _anime_rien(element) -> bool:
    """A slide gets an empty list of animations when it is first looked at."""
    return all(":animation:1.0}" in dedans.tag for dedans in element.iter()) and \
        all(dedans.tag.endswith(("}par", "}seq")) for dedans in element.iter())


class Ligne(NamedTuple):
    lieu: str
    dit: str
    lettres: str = ""  # of a run of letters, whether it says them or not


def _range_les_signets(lignes: list[Ligne]) -> None:
    """Several bookmarks that start or end in the same place are written in whatever order."""
    def genre(ligne: Ligne) -> str:
        return ligne.dit.split("[")[0] if ligne.dit.startswith("text:bookmark") else ""
    debut = 0
    for sorte, suite in itertools.groupby(lignes[:], genre):
        fin = debut + sum(1 for _ in suite)
        if sorte:
            dits = sorted(ligne.dit for ligne in lignes[debut:fin])
            lignes[debut:fin] = [ligne._replace(dit=dit) for ligne, dit in zip(lignes[debut:fin], dits)]
        debut = fin


class Ossature:
    def __init__(self, sauvegarde: Sauvegarde, avec_lettres: bool):
        self._lettres = avec_lettres
        self.lignes: list[Ligne] = []
        for racine, partie in ((sauvegarde.contenu, "office:body"),
                               (sauvegarde.styles, "office:master-styles")):
            self._formats = Formats(racine)
            self._enfants(Sauvegarde.partie(racine, partie), partie.split(":")[1])
        _range_les_signets(self.lignes)

    def _dis(self, lieu: str, dit: str, lettres: str = "") -> None:
        self.lignes.append(Ligne(lieu, dit, lettres))

    def _attributs(self, element, genre: str) -> str:
        tous = attributs(element)
        if any(nom_court(enfant.tag) == "table:table" for enfant in element):
            tous.pop("svg:height", None)  # a frame around a table is as high as its rows
        formule = "table:formula" in tous  # whose result may be another at each reckoning
        dits = []
        for nom, valeur in sorted(tous.items()):
            if nom in SANS_EFFET or nom in PASSAGERS or nom == REPETITIONS.get(genre):
                continue
            if nom.endswith(":value") and tous.get(nom[:-5] + "name", "").endswith("_CurrentDate"):
                continue  # of a date to choose: rewritten as soon as its page is drawn
            if nom == "office:string-value" or formule and nom in RESULTATS:
                continue
            dits.append(f"{nom}={self._formats.decrit(valeur) if designe_un_style(nom) else valeur}")
        return genre + "[" + " ".join(dits) + "]"

    def _enfants(self, elements, lieu: str) -> None:
        rangs: dict[str, int] = {}
        for element in elements:
            genre = nom_court(element.tag)
            for _ in range(self._fois(element, genre)):
                rangs[genre] = rangs.get(genre, 0) + 1
                self._element(element, genre, f"{lieu}/{genre.split(':')[1]}[{rangs[genre]}]")

    @staticmethod
    def _fois(element, genre: str) -> int:
        """A repeated cell or row with something in it stands for several: one that is changed stops
        being the same as its neighbours."""
        if genre not in REPETITIONS:
            return 1
        plein = len(element) > 0 if genre != "table:table-row" else any(len(c) for c in element)
        fois = int(attributs(element).get(REPETITIONS[genre], 1))
        return min(fois, REPETITIONS_MAX) if plein else 1

    def _element(self, element, genre: str, lieu: str) -> None:
        if genre in IGNORES or genre in PASSAGERS or _anime_rien(element):
            return
        if genre in REPETITIONS and not len(element):
            # How many empty cells are written in a row depends on those beside them.
            tous = attributs(element)
            if set(tous) <= {REPETITIONS[genre], "table:style-name"}:
                return
        self._dis(lieu, self._attributs(element, genre))
        if "table:formula" in attributs(element):
            return
        if genre in PARAGRAPHES:
            self._ligne_de_lettres(element, lieu)
            return
        if element.text and element.text.strip():
            if self._lettres and genre not in CALCULES:
                self._dis(lieu, repr(element.text))
        self._enfants(element, lieu)
        if len(element):
            self._dis(lieu, "/" + genre)

    def _ligne_de_lettres(self, paragraphe, lieu: str) -> None:
        courante = _Ligne(self, lieu)
        courante.parcours(paragraphe, ())
        courante.verse()

    def format(self, element) -> str:
        nom = attributs(element).get("text:style-name")
        return self._formats.decrit(nom) if nom else ""

    def passage(self, lieu: str, formats: tuple[str, ...], lettres: str) -> None:
        dit = "letters" + "".join(f"{{{f}}}" for f in formats)
        self._dis(lieu, f"{dit} {lettres!r}" if self._lettres else dit, lettres)

    def dans_la_ligne(self, element, genre: str, lieu: str, formats: tuple[str, ...]) -> None:
        if formats and not genre.startswith(REPERES):
            self._dis(lieu, "formats" + "".join(f"{{{f}}}" for f in formats))
        self._element(element, genre, lieu)


class _Ligne:
    """A paragraph's letters, gathered as far as their formats are the same."""

    def __init__(self, ossature: Ossature, lieu: str):
        self.ossature, self.lieu = ossature, lieu
        self.formats: tuple[str, ...] = ()
        self.lettres: list[str] = []
        self.rangs: dict[str, int] = {}

    def ajoute(self, lettres: str | None, formats: tuple[str, ...]) -> None:
        if not lettres:
            return
        if formats != self.formats:
            self.verse()
            self.formats = formats
        self.lettres.append(lettres)

    def verse(self) -> None:
        if self.lettres:
            self.ossature.passage(self.lieu, self.formats, "".join(self.lettres))
            self.lettres = []

    def parcours(self, element, formats: tuple[str, ...]) -> None:
        self.ajoute(element.text, formats)
        for enfant in element:
            genre = nom_court(enfant.tag)
            if genre in LETTRES:
                combien = int(attributs(enfant).get("text:c", 1))
                self.ajoute({"text:s": " ", "text:tab": "\t"}.get(genre, "\n") * combien, formats)
            elif genre in PORTEURS:
                sien = self.ossature.format(enfant)
                if genre == "text:a":
                    sien = "a " + attributs(enfant).get("xlink:href", "") + " " + sien
                self.parcours(enfant, (*formats, sien) if sien else formats)
            elif genre not in IGNORES:
                self.verse()
                self.rangs[genre] = self.rangs.get(genre, 0) + 1
                lieu = f"{self.lieu}/{genre.split(':')[1]}[{self.rangs[genre]}]"
                self.ossature.dans_la_ligne(enfant, genre, lieu, formats)
            self.ajoute(enfant.tail, formats)
