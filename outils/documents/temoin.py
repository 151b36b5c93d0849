# SPDX-License-Identifier: MPL-2.0
"""The same corrections in a second copy, by a text cursor alone: what the office does by itself.

The extension is asked for nothing here, and nothing of its way of finding places is used.
"""

import itertools
import os
from typing import NamedTuple

from .choix import REMPLISSAGE, Essai, en_texte, en_unites, semblance

PARAGRAPHE_ECRIT = "SwXParagraph"  # of a text document: the services of both kinds are the same
CHOSES = ("Footnote", "TextField", "ContentControl", "TextFieldStart", "TextFieldSeparator",
          "TextFieldEnd", "TextFieldStartEnd")  # in the line, and no letters
CESURE = "\xad"  # which a zone leaves out
POSSIBLES_MAX = 500  # paragraphs that are looked at portion by portion
EN_LETTRES = 4  # com.sun.star.sheet.CellFlags.STRING


def _suite(enumeration):
    while enumeration.hasMoreElements():
        yield enumeration.nextElement()


def _valeur(objet, nom: str):
    try:
        return getattr(objet, nom)
    except AttributeError:
        return None


def _est_ferme(controle) -> bool:
    """A content control that something is chosen in."""
    return bool(_valeur(controle, "ListItems")) or any(
        _valeur(controle, nom) for nom in ("Checkbox", "Picture", "Date"))


def _lettres_saisies(champ) -> str:
    """What stands in an input field as letters of the text; nothing of any other field."""
    if champ is None or not champ.supportsService("com.sun.star.text.TextField.Input"):
        return ""
    return champ.Content if all(c >= " " or c == "\t" for c in champ.Content) else ""


class Portion(NamedTuple):
    etendue: object
    lettres: str  # for what is no letter the filler, or nothing
    entiere: bool  # one thing, whatever it reads
    avant: int = 0  # steps of a cursor from its start to its letters


def _est_dans_la_ligne(portion) -> bool:
    contenus = portion.createContentEnumeration("com.sun.star.text.TextContent")
    return any(contenu.AnchorType.value == "AS_CHARACTER" for contenu in _suite(contenus))


def _differe(avant: str, apres: str) -> tuple[int, int]:
    """What of `avant` is to be replaced: a person would not type again what stays."""
    debut = len(os.path.commonprefix((avant, apres)))
    fin = len(os.path.commonprefix((avant[debut:][::-1], apres[debut:][::-1])))
    return debut, len(avant) - fin


class Paragraphe:
    """A paragraph of any text, with what plain UNO says of its portions."""

    def __init__(self, donne_texte, rang: int, etendue, champ=None):
        self._donne_texte, self.champ = donne_texte, champ
        self._rang, self._etendue = rang, etendue
        self.vu = etendue.getString()

    def _donne_etendue(self):
        """The paragraph as it is now: one of the drawing engine keeps to the letters that it had, and
        so does its text, as far as a spreadsheet's cell is concerned."""
        if not self._est_ecrit():
            texte = self._donne_texte()
            texte.getString()  # or the first enumeration after an edit ends where the text did
            suite = _suite(texte.createEnumeration())
            self._etendue = next(itertools.islice(suite, self._rang, None), self._etendue)
        return self._etendue

    def _est_ecrit(self) -> bool:
        return self._etendue.ImplementationName == PARAGRAPHE_ECRIT

    def _portions(self, porteur=None):
        supprimees = 0  # tracked deletions that are open
        for portion in _suite((porteur or self._donne_etendue()).createEnumeration()):
            genre = _valeur(portion, "TextPortionType")
            if genre == "Redline" and portion.RedlineType == "Delete" and not portion.IsCollapsed:
                supprimees = max(0, supprimees + (1 if portion.IsStart else -1))
            if supprimees:
                continue
            dedans = genre in ("ContentControl", "InContentMetadata") and _valeur(portion, genre)
            if dedans and not _est_ferme(dedans):
                yield from self._portions(dedans)
            elif genre == "Text" or genre is None:
                if not _valeur(portion, "CharHidden"):
                    yield Portion(portion, portion.getString(), False)
            elif genre == "LineBreak":
                yield Portion(portion, REMPLISSAGE, True)
            elif genre == "TextField" and not self._est_ecrit():  # a link, read as its words
                yield Portion(portion, portion.getString(), True)
            elif genre == "TextField" and _lettres_saisies(portion.TextField):
                yield Portion(portion, _lettres_saisies(portion.TextField), False, 1)
            elif genre in CHOSES or genre == "Frame" and _est_dans_la_ligne(portion):
                yield Portion(portion, REMPLISSAGE, True)

    def se_lit(self, texte: str) -> bool:
        return "".join(portion.lettres for portion in self._portions()).replace(CESURE, "") == texte

    def remplace(self, essai: Essai) -> bool:
        if self.champ is not None:  # of a comment in a text, only all of it at once
            self.champ.Content = self.champ.Content.replace(essai.avant, essai.apres, 1)
            self.vu = essai.apres
            return True
        if self._dans_un_lien(essai):
            return True
        avant, apres = _differe(essai.original, essai.ajout)
        debut, fin = (self._position(essai.debut + len(en_unites(essai.original[:avant]))),
                      self._position(essai.fin - len(en_unites(essai.original[apres:]))))
        if debut is None or fin is None:
            return False
        lettres = essai.ajout[avant:len(essai.ajout) - len(essai.original) + apres]
        if avant == apres:  # not through the cursor, which takes what is anchored there for replaced
            self._donne_texte().insertString(debut, lettres, False)
        else:
            debut.gotoRange(fin, True)
            debut.setString(lettres)
        self.vu = self._donne_etendue().getString()
        return True

    def _dans_un_lien(self, essai: Essai) -> bool:
        """Gives a link of the drawing engine other words, where all that is corrected stands in it."""
        passees = 0
        for portion in self._portions():
            debut, fin = passees, passees + len(en_unites(portion.lettres))
            passees = fin
            if portion.entiere and portion.lettres != REMPLISSAGE and debut < essai.fin <= fin and \
                    debut <= essai.debut and (essai.debut, essai.ajout) != (debut, ""):
                unites, champ = en_unites(portion.lettres), portion.etendue.TextField
                champ.Representation = en_texte(unites[:essai.debut - debut] + en_unites(essai.ajout)
                                                + unites[essai.fin - debut:])
                self._donne_texte().insertTextContent(self._curseur(portion.etendue), champ, True)
                self.vu = self._donne_etendue().getString()
                return True
        return False

    def _position(self, unite: int):
        """A cursor there; a place counts from the start of the letters that hold it."""
        passees, bout = 0, self._donne_etendue().getStart()
        for portion, lettres, entiere, avant in self._portions():
            if entiere:
                if unite == passees:
                    return self._curseur(portion.getStart())
                passees += len(en_unites(lettres))
            else:
                pas = _pas(lettres, unite - passees, self._est_ecrit())
                if pas is not None:
                    curseur = self._curseur(portion.getStart())
                    curseur.goRight(avant + pas, False)
                    return curseur
                passees += len(en_unites(lettres.replace(CESURE, "")))
            bout = portion.getEnd()
        return self._curseur(bout) if unite == passees else None

    def _curseur(self, etendue):
        return self._donne_texte().createTextCursorByRange(etendue)


def _pas(lettres: str, unites: int, par_lettre: bool) -> int | None:
    """How many steps of a cursor make so many units in a zone: it goes by letters in a text document,
    by units in the drawing engine."""
    pas = 0
    for lettre in lettres:
        if unites <= 0:
            break
        largeur = len(en_unites(lettre))
        pas += 1 if par_lettre else largeur
        unites -= 0 if lettre == CESURE else largeur
    return pas if unites == 0 else None


class Temoin:
    """All paragraphs of a document that could be the one that a zone shows."""

    def __init__(self, modele):
        self._paragraphes: list[Paragraphe] = []
        if modele.supportsService("com.sun.star.sheet.SpreadsheetDocument"):
            self._tableur(modele)
        elif modele.supportsService("com.sun.star.text.GenericTextDocument"):
            self._ecrit(modele)
        else:
            self._pages(modele)

    def fais(self, essai: Essai) -> bool:
        """Makes the correction in the paragraph that reads as the zone did; of several in the one that
        stands between the same ones, or comes as far down."""
        textes = [p.vu for p in self._paragraphes]
        notes = [semblance(essai, textes, i) for i in range(len(textes))]
        semblables = self._semblables(essai, textes, notes)
        if not semblables:
            return False
        meilleurs = [i for i in semblables if notes[i] == max(notes[j] for j in semblables)]
        choisi = semblables[min(essai.pareilles, len(semblables) - 1)]
        return self._paragraphes[choisi if choisi in meilleurs else meilleurs[0]].remplace(essai)

    def _semblables(self, essai: Essai, textes: list[str], notes: list[int]) -> list[int]:
        """Those that read so; looked at portion by portion, as what is deleted does not count, where
        it is worth the time."""
        semblables = [i for i, vu in enumerate(textes) if vu == essai.avant]
        plus_long = max(essai.avant.replace("\n", REMPLISSAGE).split(REMPLISSAGE), key=len)
        probables = [i for i, vu in enumerate(textes) if plus_long in vu.replace(CESURE, "")]
        voisins = sorted(range(len(textes)), key=lambda i: -notes[i])
        if semblables:  # one that stands in the right place may read the same
            meilleure = max(notes[i] for i in semblables)
            suites = [[i for i in voisins if notes[i] > meilleure]]
        else:
            suites = [probables, voisins]
        for suite in suites:
            vus = [i for i in suite[:POSSIBLES_MAX] if self._paragraphes[i].se_lit(essai.avant)]
            if vus:
                return sorted({*semblables, *vus})
        return semblables

    def _texte(self, texte, champ=None, donne=None) -> None:
        for rang, element in enumerate(_suite(texte.createEnumeration())):
            if hasattr(element, "getCellNames"):
                for nom in element.getCellNames():
                    self._texte(element.getCellByName(nom))
            else:
                self._paragraphes.append(Paragraphe(donne or (lambda: texte), rang, element, champ))

    def _ecrit(self, modele) -> None:
        styles = modele.StyleFamilies.getByName("PageStyles")
        for style in (styles.getByIndex(i) for i in range(styles.getCount())):
            for nom in ("Header", "Footer"):
                if style.isInUse() and getattr(style, nom + "IsOn"):
                    for variante in ("Text", "TextLeft", "TextFirst"):
                        self._texte(getattr(style, nom + variante))
        self._texte(modele.Text)
        for notes in (modele.Footnotes, modele.Endnotes):
            for i in range(notes.getCount()):
                self._texte(notes.getByIndex(i))
        for i in range(modele.TextFrames.getCount()):
            self._texte(modele.TextFrames.getByIndex(i))
        for champ in _suite(modele.TextFields.createEnumeration()):
            if champ.supportsService("com.sun.star.text.textfield.Annotation"):
                self._texte(champ.TextRange, champ)
        self._formes(modele.DrawPage)

    def _tableur(self, modele) -> None:
        for feuille in (modele.Sheets.getByIndex(i) for i in range(modele.Sheets.getCount())):
            for a in feuille.queryContentCells(EN_LETTRES).getRangeAddresses():
                for ligne in range(a.StartRow, a.EndRow + 1):
                    for colonne in range(a.StartColumn, a.EndColumn + 1):
                        self._cellule(feuille, colonne, ligne)
            for i in range(feuille.Annotations.getCount()):
                self._texte(feuille.Annotations.getByIndex(i).AnnotationShape)
            self._formes(feuille.DrawPage)

    def _cellule(self, feuille, colonne: int, ligne: int) -> None:
        self._texte(feuille.getCellByPosition(colonne, ligne),
                    donne=lambda: feuille.getCellByPosition(colonne, ligne))

    def _pages(self, modele) -> None:
        for page in (modele.DrawPages.getByIndex(i) for i in range(modele.DrawPages.getCount())):
            self._formes(page)
            if hasattr(page, "createAnnotationEnumeration"):
                for annotation in _suite(page.createAnnotationEnumeration()):
                    self._texte(annotation.TextRange)
            if hasattr(page, "NotesPage"):
                self._formes(page.NotesPage)

    def _formes(self, formes) -> None:
        for forme in (formes.getByIndex(i) for i in range(formes.getCount())):
            if hasattr(forme, "getByIndex"):
                self._formes(forme)
            elif _valeur(forme, "UseFirstRowStyle") is not None and _valeur(forme, "Model"):
                tableau = forme.Model
                for ligne in range(tableau.RowCount):
                    for colonne in range(tableau.ColumnCount):
                        self._texte(tableau.getCellByPosition(colonne, ligne))
            elif hasattr(forme, "createEnumeration"):
                self._texte(forme.getText())  # of one with a frame of Writer's inside, that one
