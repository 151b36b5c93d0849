# SPDX-License-Identifier: MPL-2.0
"""Builds Writer documents through UNO, element by element."""

import uno
from com.sun.star.awt import Size

ANCRE = "com.sun.star.text.TextContentAnchorType"

# What stands for a part of a shape's text leaves a list of the office's as it ends, which it does on
# another thread than the one that may be walking that list: the office falls. So none ends.
_TENUS = []


def plage(texte, debut, fin):
    """A cursor over the characters debut to fin of the text."""
    curseur = texte.createTextCursor()
    _TENUS.append(curseur)
    curseur.gotoStart(False)
    curseur.goRight(debut, False)
    curseur.goRight(fin - debut, True)
    return curseur


def elements(porteur):
    """What an enumeration gives, one after the other: a text's paragraphs, a paragraph's portions."""
    suite = porteur.createEnumeration()
    while suite.hasMoreElements():
        _TENUS.append(suite.nextElement())
        yield _TENUS[-1]


def parties_grasses(texte):
    """The bold parts of the text's first paragraph."""
    return [portion.String for portion in elements(next(elements(texte)))
            if portion.CharWeight == 150.0]


class Ecrivain:
    """Writes at the end of a text."""

    def __init__(self, document, texte=None):
        self.document = document
        self.texte = texte or document.Text

    def fin(self):
        return self.texte.createTextCursorByRange(self.texte.End)

    def ecrit(self, chaine, **format_):
        curseur = self.fin()
        for nom, valeur in format_.items():
            curseur.setPropertyValue(nom, valeur)
        self.texte.insertString(curseur, chaine, False)
        return self

    def paragraphe(self):
        self.texte.insertControlCharacter(self.fin(), 0, False)
        return self

    def met(self, service, absorbe=None, **proprietes):
        contenu = self.document.createInstance(service)
        for nom, valeur in proprietes.items():
            if nom == "Name" and hasattr(contenu, "setName"):
                contenu.setName(valeur)
            else:
                contenu.setPropertyValue(nom, valeur)
        self.texte.insertTextContent(absorbe or self.fin(), contenu, absorbe is not None)
        return contenu

    def note(self, chaine, service="com.sun.star.text.Footnote"):
        note = self.met(service)
        note.Text.setString(chaine)
        return note

    def cadre(self, chaine, ancrage="AS_CHARACTER"):
        cadre = self.met("com.sun.star.text.TextFrame", AnchorType=uno.Enum(ANCRE, ancrage))
        cadre.Text.setString(chaine)
        return cadre

    def forme(self, chaine, ancrage="AT_PARAGRAPH"):
        forme = self.document.createInstance("com.sun.star.drawing.RectangleShape")
        forme.setSize(Size(5000, 2000))
        forme.AnchorType = uno.Enum(ANCRE, ancrage)
        self.texte.insertTextContent(self.fin(), forme, False)
        forme.setString(chaine)
        return forme

    def tableau(self, lignes, colonnes):
        tableau = self.document.createInstance("com.sun.star.text.TextTable")
        tableau.initialize(lignes, colonnes)
        self.texte.insertTextContent(self.fin(), tableau, False)
        return tableau

    def section(self, debut, fin, **proprietes):
        """A section around the characters debut to fin of the body."""
        return self.met("com.sun.star.text.TextSection", absorbe=self.plage(debut, fin),
                        **proprietes)

    def plage(self, debut, fin):
        return plage(self.texte, debut, fin)
