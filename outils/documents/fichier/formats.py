# SPDX-License-Identifier: MPL-2.0
"""Automatic styles by what they say: their names are given anew at each save."""

from .sauvegarde import Sauvegarde, attributs, nom_court

# Which editing session wrote a letter: kept by the office for comparing documents, no format.
SANS_EFFET = {"officeooo:rsid", "officeooo:paragraph-rsid"}
# Written or not as the office happens to have laid the page out: it is what holds without it.
_PAR_DEFAUT = ("style:writing-mode", "lr-tb")
_DE_L_ELEMENT = {"style:name"}


def designe_un_style(attribut: str) -> bool:
    return attribut.endswith(("style-name", "page-layout-name", "class-names"))


class Formats:
    """The automatic styles of one tree."""

    def __init__(self, racine):
        self._elements: dict[str, list] = {}
        for element in Sauvegarde.partie(racine, "office:automatic-styles"):
            nom = attributs(element).get("style:name")
            if nom:
                self._elements.setdefault(nom, []).append(element)
        # The names of fonts are given anew, too.
        self._polices = {attributs(p).get("style:name"): attributs(p).get("svg:font-family", "")
                         for p in Sauvegarde.partie(racine, "office:font-face-decls")}
        self._dits: dict[str, str] = {}

    def decrit(self, nom: str) -> str:
        """What the style of that name says; the name itself where a person gave it; empty where the
        style changes nothing."""
        if nom not in self._elements:
            return nom
        if nom not in self._dits:
            self._dits[nom] = "…"  # for a style that names itself
            self._dits[nom] = "+".join(filter(None, map(self._dis, self._elements[nom])))
        return self._dits[nom]

    def _dis(self, element) -> str:
        tous = attributs(element)
        if tous.get("style:use-optimal-row-height") == "true":
            del tous["style:row-height"]  # follows from the letters
        dits = [f"{nom}={self._valeur(nom, valeur)}" for nom, valeur in sorted(tous.items())
                if nom not in SANS_EFFET and nom not in _DE_L_ELEMENT
                and (nom, valeur) != _PAR_DEFAUT]
        enfants = list(filter(None, map(self._dis, element)))
        texte = (element.text or "").strip()
        genre = nom_court(element.tag)
        if genre.endswith("-properties") and not dits and not enfants:
            return ""
        if genre == "style:style" and not enfants and set(tous) <= {"style:name", "style:family"}:
            return ""
        return genre + "[" + " ".join(dits) + "]" + texte + "".join(enfants)

    def _valeur(self, nom: str, valeur: str) -> str:
        if nom.startswith("style:font-name"):
            return self._polices.get(valeur, valeur)
        return self.decrit(valeur) if designe_un_style(nom) else valeur
