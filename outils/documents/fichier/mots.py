# SPDX-License-Identifier: MPL-2.0
"""The words of a saved document: those that are there to be corrected, and the others with the reason.

Read from the XML alone, without anything of the extension's, whose own reading is judged by it.
"""

from collections import Counter

from . import caches
from .feuilles import Feuilles
from .sauvegarde import Sauvegarde, attributs, nom_court

HORS_LIGNE = "\x07"  # parts words, as in a zone
SANS_LETTRES = str.maketrans("", "", "\xad\ufeff\u200b\u2060")  # marks that part nothing

PARAGRAPHES = {"text:p", "text:h"}
EN_LIGNE = {"text:span", "text:a", "text:meta", "text:ruby", "text:ruby-base", "text:text-input",
            "loext:content-control"}
REPERES = ("text:bookmark", "text:reference-mark", "text:change", "text:soft-page-break",
           "text:alphabetical-index-mark", "text:toc-mark", "text:user-index-mark",
           "office:annotation-end", "text:hidden-paragraph")
INDEX = {"text:table-of-content", "text:illustration-index", "text:table-index",
         "text:object-index", "text:user-index", "text:alphabetical-index", "text:bibliography"}
ELEMENTS_ECARTES = {
    "text:tracked-changes": "deleted", "table:tracked-changes": "deleted",
    "text:note-citation": "note number", "text:ruby-text": "ruby", "svg:title": "title",
    "svg:desc": "title", "table:content-validations": "validity", "table:dde-links": "link",
    "office:forms": "form", "draw:object": "embedded", "math:math": "embedded",
    "table:title": "title", "table:desc": "title", "office:event-listeners": "macro",
    "presentation:header-decl": "field", "presentation:footer-decl": "field",
    "presentation:date-time-decl": "field", "table:table-source": "link",
    **{index: "index" for index in INDEX},
}


def mots(texte: str) -> list[str]:
    net = "".join(" " if c < " " else c for c in texte.translate(SANS_LETTRES))
    return net.split()


def _a_des_lignes(element, genre: str) -> bool:
    """An input field with line ends in it stands as one thing: the office cannot edit inside it."""
    return genre == "text:text-input" and "\r" in "".join(element.itertext())


class Lecture:
    """`lus`: words that a reader of the document may correct. `ecartes`: by reason, words that are
    in the file and not for correcting. `douteux`: may count as either."""

    def __init__(self, sauvegarde: Sauvegarde):
        self.lus: Counter = Counter()
        self.ecartes: dict[str, Counter] = {}
        self.douteux: Counter = Counter()
        self.ou: dict[str, str] = {}  # where a word that was read stands first
        self._chemin: list[str] = []
        self._caches = caches.Caches(sauvegarde)
        corps = Sauvegarde.partie(sauvegarde.contenu, "office:body")
        for genre in corps:
            self._feuilles = Feuilles(genre, self._caches)
            self._enfants(genre, None, 1)
        for maitre in Sauvegarde.partie(sauvegarde.styles, "office:master-styles"):
            if nom_court(maitre.tag) == "style:master-page":
                self._page_maitresse(maitre, nom_court(corps[0].tag) if corps else "")

    def _compte(self, texte: str, raison: str | None, fois: int) -> None:
        ou = self.lus if raison is None else (
            self.douteux if raison == "?" else self.ecartes.setdefault(raison, Counter()))
        for mot in mots(texte):
            ou[mot] += fois
            if raison is None and mot not in self.ou:
                self.ou[mot] = f"{'/'.join(self._chemin)}: {texte[:60]!r}"

    def _page_maitresse(self, maitre, genre: str) -> None:
        raison = "master page"
        if genre == "office:text":
            nom = attributs(maitre).get("style:name", "")
            raison = self._caches.raison_de_la_page(nom)
        elif genre == "office:spreadsheet":
            raison = "sheet header"
        for entete in maitre:
            siens = attributs(entete)
            # Of one that is switched off the words are kept in the file.
            self._element(entete, "not shown" if siens.get("style:display") == "false" and not raison
                          else raison, 1)

    def _enfants(self, element, raison: str | None, fois: int) -> None:
        for enfant in element:
            self._element(enfant, raison, fois)

    def _element(self, element, raison: str | None, fois: int) -> None:
        genre = nom_court(element.tag)
        if genre in PARAGRAPHES:
            self._paragraphe(element, raison, fois)
            return
        raison = raison or ELEMENTS_ECARTES.get(genre) or self._caches.raison(element, genre)
        if raison and element.text:
            self._compte(element.text, raison, fois)
        self._chemin.append(genre.split(":")[1])
        if genre == "table:table":
            self._feuilles.parcours(element, raison, self._case)
        else:
            self._enfants(element, raison, fois)
        self._chemin.pop()

    def _case(self, cellule, raison: str | None, raison_du_texte: str | None, fois: int) -> None:
        """A cell: its own words may be a number's, while its comment and shapes are to be read."""
        for enfant in cellule:
            siens = nom_court(enfant.tag) in PARAGRAPHES
            self._element(enfant, raison or (raison_du_texte if siens else None), fois)

    def _paragraphe(self, paragraphe, raison: str | None, fois: int) -> None:
        raison = raison or self._caches.raison_du_paragraphe(paragraphe)
        morceaux: list[str] = []
        self._ligne(paragraphe, raison, fois, morceaux)
        self._compte("".join(morceaux), raison, fois)

    def _ligne(self, element, raison: str | None, fois: int, morceaux: list[str]) -> None:
        morceaux.append(element.text or "")
        for enfant in element:
            genre = nom_court(enfant.tag)
            if genre in ("text:s", "text:tab", "text:line-break"):
                morceaux.append(" ")
            elif genre in EN_LIGNE and not _a_des_lignes(enfant, genre):
                self._porteur(enfant, genre, raison, fois, morceaux)
            elif genre == "text:change" and self._caches.joint_des_paragraphes(enfant):
                morceaux.append(HORS_LIGNE)
            elif not genre.startswith(REPERES):
                self._chose(enfant, genre, raison, fois, morceaux)
            morceaux.append(enfant.tail or "")

    def _porteur(self, element, genre: str, raison: str | None, fois: int,
                 morceaux: list[str]) -> None:
        sienne = self._caches.raison_des_lettres(element, genre)
        if raison is None and sienne:
            siens: list[str] = []
            self._ligne(element, sienne, fois, siens)
            self._compte("".join(siens), sienne, fois)
            if sienne != "hidden":
                morceaux.append(HORS_LIGNE)
        else:
            self._ligne(element, raison, fois, morceaux)

    def _chose(self, element, genre: str, raison: str | None, fois: int,
               morceaux: list[str]) -> None:
        """What stands in the line, or hangs on it, and is no letter: a field, a note, a frame…"""
        if genre in ELEMENTS_ECARTES:
            self._compte(HORS_LIGNE.join(element.itertext()), ELEMENTS_ECARTES[genre], fois)
            if genre != "text:ruby-text":
                morceaux.append(HORS_LIGNE)
            return
        if genre == "text:note" or genre.startswith(("draw:", "office:annotation", "dr3d:")):
            if genre == "text:note" or attributs(element).get("text:anchor-type") == "as-char":
                morceaux.append(HORS_LIGNE)
            self._element(element, raison, fois)
            return
        morceaux.append(HORS_LIGNE)
        self._compte(HORS_LIGNE.join(element.itertext()), raison or "field", fois)
