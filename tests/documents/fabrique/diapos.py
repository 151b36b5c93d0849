# SPDX-License-Identifier: MPL-2.0
"""Presentations and drawings.

Made on the office's main thread, as by a person: from another one the office loses count of what it
has to redraw.
"""

import uno  # noqa: F401: makes the office's names importable
from com.sun.star.awt import Point, Size

from ecrivain import plage


class _Page:
    def __init__(self, bureau, document, page):
        self.bureau, self.document, self.page = bureau, document, page

    def forme(self, texte: str, rang: int = 0, genre: str = "RectangleShape"):
        forme = self.document.createInstance(f"com.sun.star.drawing.{genre}")
        forme.setSize(Size(5000, 2000))
        forme.setPosition(Point(1000 * rang, 9000))
        self.page.add(forme)
        if texte:
            forme.setString(texte)
        return forme

    def groupe(self, *formes):
        collection = self.bureau.cree("com.sun.star.drawing.ShapeCollection")
        for forme in formes:
            collection.add(forme)
        return self.page.group(collection)

    def tableau(self, *lignes):
        modele = self.forme("", genre="TableShape").Model
        modele.Rows.insertByIndex(0, len(lignes) - modele.RowCount)
        modele.Columns.insertByIndex(0, len(lignes[0]) - modele.ColumnCount)
        for i, ligne in enumerate(lignes):
            for j, texte in enumerate(ligne):
                modele.getCellByPosition(j, i).setString(texte)
        return modele


def presentation(bureau):
    document = bureau.ouvre("private:factory/simpress")
    bureau.sur_le_fil_principal(lambda: _presentation(bureau, document))
    return document


def _presentation(bureau, document):
    pages = document.DrawPages
    premiere = pages.getByIndex(0)
    premiere.Layout = 1
    premiere.getByIndex(0).setString("Le titre")
    premiere.getByIndex(1).setString("premier point\nsecond point\ntroisième point")
    plage(premiere.getByIndex(1), 0, 7).CharWeight = 150.0
    page = _Page(bureau, document, pages.insertNewByIndex(1))
    page.page.Layout = 20
    page.tableau(("case un", "case deux"), ("case trois", "case quatre"))
    page.groupe(page.forme("dans le groupe", 1), page.groupe(page.forme("plus au fond", 2),
                                                             page.forme("avec lui", 3)))
    lien = page.forme("voir  ici", 4)
    champ = document.createInstance("com.sun.star.text.TextField.URL")
    champ.URL, champ.Representation = "https://example.org/", "un lien"
    lien.insertTextContent(plage(lien, 5, 5), champ, False)
    page.forme("مرحبا بالعالم et 漢字 😀", 5, "TextShape")
    page.page.createAndInsertAnnotation().TextRange.setString("une remarque")
    for forme in map(page.page.NotesPage.getByIndex, range(page.page.NotesPage.Count)):
        if forme.supportsService("com.sun.star.presentation.NotesShape"):
            forme.setString("les notes de la diapo")
    vide = pages.insertNewByIndex(2)
    vide.Layout = 1
    vide.getByIndex(0).setString("celle-ci est cachée")
    vide.Visible = False


def dessin(bureau):
    document = bureau.ouvre("private:factory/sdraw")
    page = _Page(bureau, document, document.DrawPages.getByIndex(0))

    def dessine():
        page.forme("un rectangle\rde deux paragraphes")
        page.forme("une ellipse", 2, "EllipseShape").RotateAngle = 3000
        page.forme("sur un trait", 3, "ConnectorShape")
        page.groupe(page.forme("du groupe", 4), page.forme("aussi", 5))
        plage(page.forme("gras et maigre", 6, "TextShape"), 0, 4).CharWeight = 150.0
    bureau.sur_le_fil_principal(dessine)
    return document
