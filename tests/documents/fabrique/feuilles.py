# SPDX-License-Identifier: MPL-2.0
"""Spreadsheets."""

import uno
from com.sun.star.awt import Size

import banc
from ecrivain import plage

ITALIQUE = uno.Enum("com.sun.star.awt.FontSlant", "ITALIC")


def _forme(document, feuille, texte):
    forme = document.createInstance("com.sun.star.drawing.RectangleShape")
    forme.setSize(Size(5000, 2000))
    feuille.DrawPage.add(forme)
    forme.setString(texte)
    return forme


def feuilles(bureau):
    document = bureau.ouvre("private:factory/scalc")
    feuille = document.Sheets.getByIndex(0)

    def case(nom: str, texte: str):
        cellule = feuille.getCellRangeByName(nom).getCellByPosition(0, 0)
        cellule.setString(texte)
        return cellule
    for nom, texte in (("A1", "Produit"), ("B1", "Quantité"), ("A2", "pomme"), ("A3", "pomme"),
                       ("A4", "pomme"), ("C1", "12"), ("C2", "=1+1"), ("E1", "漢字 mêlé 😀"),
                       ("D1", "un\ndeux lignes\n\nquatre"), ("E2", "مرحبا بالعالم")):
        case(nom, texte)
    for rang in range(3, 9):  # other programs leave such texts without a format of their own
        case(f"C{rang}", f"= titre {rang} =").setPropertyToDefault("NumberFormat")
    feuille.getCellRangeByName("B2").getCellByPosition(0, 0).setValue(12)
    feuille.getCellRangeByName("B3").getCellByPosition(0, 0).setFormula('="un "&A1&LEN(A2)')
    formatee = case("A5", "un mot gras et penché")
    plage(formatee, 3, 6).CharWeight = 150.0
    plage(formatee, 12, 21).CharPosture = ITALIQUE
    lien = case("A6", "voir  ici")
    champ = document.createInstance("com.sun.star.text.TextField.URL")
    champ.URL, champ.Representation = "https://example.org/", "un lien"
    lien.insertTextContent(plage(lien, 5, 5), champ, False)
    case("A8", "fusionnée")
    case("B8", "couverte")
    feuille.getCellRangeByName("A8:B9").merge(True)
    case("A10", "mot").NumberFormat = document.NumberFormats.addNew('"avant "@', document.CharLocale)
    for rang, nom in ((10, "A11"), (11, "A12")):
        case(nom, "ligne cachée" if rang == 11 else "ligne vue")
        feuille.Rows.getByIndex(rang).IsVisible = rang != 11
    case("H1", "colonne cachée")
    feuille.Columns.getByIndex(7).IsVisible = False
    condition = feuille.getCellRangeByName("A2:A4")
    formats = condition.ConditionalFormat
    formats.addNew((banc.pv("Operator", uno.Enum("com.sun.star.sheet.ConditionOperator", "EQUAL")),
                    banc.pv("Formula1", '"pomme"'), banc.pv("StyleName", "Good")))
    condition.ConditionalFormat = formats
    feuille.Annotations.insertNew(case("A13", "avec une note").CellAddress, "note de la case")
    _forme(document, feuille, "une forme\rde deux")
    document.Sheets.insertNewByName("Autre", 1)
    document.Sheets.getByIndex(1).getCellByPosition(2, 2).setString("sur l'autre feuille")
    document.Sheets.insertNewByName("Cachée", 2)
    document.Sheets.getByIndex(2).getCellByPosition(0, 0).setString("feuille cachée")
    document.Sheets.getByIndex(2).IsVisible = False
    return document


def protegee(bureau):
    document = bureau.ouvre("private:factory/scalc")
    feuille = document.Sheets.getByIndex(0)
    feuille.getCellByPosition(0, 0).setString("verrouillée")
    libre = feuille.getCellByPosition(0, 1)
    libre.setString("libre d'être corrigée")
    protection = libre.CellProtection
    protection.IsLocked = False
    libre.CellProtection = protection
    feuille.protect("")
    return document
