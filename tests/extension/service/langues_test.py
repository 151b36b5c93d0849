# SPDX-License-Identifier: MPL-2.0
"""The language of each run, in every kind of document, against the document's main one."""

import unittest

import uno  # noqa: F401
from com.sun.star.awt import Size
from com.sun.star.lang import Locale

import banc
from ecrivain import plage

# Numbers of protocol/langues.json.
FR, EN_GB, EN_US, JA, HE, ZH, AUTRE = 1, 8, 9, 84, 64, 81, 255
SANS_CORRECTION = 64
TEXTES = {"": "latin", "Asian": "\u65e5\u672c\u8a9e", "Complex": "\u05e9\u05dc\u05d5\u05dd"}


def setUpModule():
    global BUS, BUREAU
    BUS, BUREAU = banc.bus_et_bureau()


class DansUnTexte(unittest.TestCase):
    genre = "swriter"

    def setUp(self):
        self.doc, self.client = banc.document_et_client(self, BUS, BUREAU,
                                                        f"private:factory/{self.genre}")
        self.texte = self.cree()

    def cree(self):
        return self.doc.Text

    def ecris(self, texte, **formats):
        """The text, in formats that no style of the bench's own office changes."""
        self.texte.setString(texte)
        tout = plage(self.texte, 0, len(texte))
        for suffixe in TEXTES:
            tout.setPropertyValue("CharLocale" + suffixe, Locale("en", "US", ""))
        for nom, valeur in formats.items():
            tout.setPropertyValue(nom, valeur)

    def langue(self, debut, fin, etiquette, suffixe=""):
        langue, _, pays = etiquette.partition("-")
        plage(self.texte, debut, fin).setPropertyValue("CharLocale" + suffixe,
                                                       Locale(langue, pays, ""))

    def styles(self):
        """[start, end, number of the language, bits]"""
        zone = next(z for z in self.client.zones() if z.texte)
        return [(debut, fin, style >> 8, style & 0xFF) for debut, fin, style in zone.styles]

    def test_text_in_the_main_language_has_no_run(self):
        self.ecris("un mot")
        self.assertEqual(self.styles(), [])

    def test_a_run_in_another_language_has_its_number_beside_its_formats(self):
        self.ecris("un two trois")
        self.langue(0, 3, "fr-FR")
        self.langue(3, 7, "en-GB")
        self.langue(7, 12, "fr-FR")
        plage(self.texte, 5, 9).CharWeight = 150.0
        self.assertEqual(self.styles(), [(0, 3, FR, 0), (3, 5, EN_GB, 0), (5, 7, EN_GB, 1),
                                         (7, 9, FR, 1), (9, 12, FR, 0)])

    def test_each_script_has_a_language_of_its_own(self):
        self.ecris(" ".join(TEXTES.values()))
        for suffixe, etiquette in (("", "fr-FR"), ("Asian", "ja-JP"), ("Complex", "he-IL")):
            self.langue(0, 14, etiquette, suffixe)
        # What is of no script goes with what stands before.
        self.assertEqual(self.styles(), [(0, 6, FR, 0), (6, 10, JA, 0), (10, 14, HE, 0)])

    def test_one_that_is_not_to_be_proofed_has_the_bit_and_no_number(self):
        self.ecris("un mot")
        self.langue(3, 6, "zxx")
        self.assertEqual(self.styles(), [(3, 6, 0, SANS_CORRECTION)])

    def test_one_that_the_table_does_not_have_is_another_one(self):
        self.ecris("un mot")
        self.langue(3, 6, "tlh")
        self.assertEqual(self.styles(), [(3, 6, AUTRE, 0)])


class DansUneCellule(DansUnTexte):
    genre = "scalc"

    def cree(self):
        return self.doc.Sheets.getByIndex(0).getCellByPosition(0, 0)

    def test_a_whole_cell_has_its_language(self):
        self.texte.setString("un mot")
        self.texte.CharLocale = Locale("fr", "FR", "")
        self.doc.Sheets.getByIndex(0).getCellByPosition(0, 1).setString("a word")
        self.assertEqual([[s >> 8 for _, _, s in z.styles] for z in self.client.zones()], [[FR], []])


class SurUneDiapo(DansUnTexte):
    genre = "simpress"

    def cree(self):
        forme = self.doc.createInstance("com.sun.star.drawing.RectangleShape")
        forme.setSize(Size(9000, 2000))
        self.doc.DrawPages.getByIndex(0).add(forme)
        return forme


class Principale(unittest.TestCase):
    def test_all_is_told_against_the_language_of_the_ordinary_style(self):
        doc, client = banc.document_et_client(self, BUS, BUREAU)
        doc.Text.setString("un deux trois")
        plage(doc.Text, 3, 7).CharLocale = Locale("en", "US", "")
        self.assertEqual(client.zones()[0].styles, [])
        doc.StyleFamilies.getByName("ParagraphStyles").getByName("Standard").CharLocale = Locale(
            "fr", "FR", "")
        self.assertEqual(client.zones()[0].styles, [(3, 7, EN_US << 8)])

    def test_a_comment_in_another_language_can_still_be_corrected(self):
        doc, client = banc.document_et_client(self, BUS, BUREAU)
        doc.StyleFamilies.getByName("ParagraphStyles").getByName("Standard").CharLocale = Locale(
            "fr", "FR", "")
        remarque = doc.createInstance("com.sun.star.text.textfield.Annotation")
        remarque.Content = "un remarque"
        doc.Text.insertTextContent(doc.Text.End, remarque, False)
        zone = next(z for z in client.zones() if "remarque" in z.texte)
        client.corrige(zone, "un ", "une ")
        self.assertEqual(remarque.Content, "une remarque")


if __name__ == "__main__":
    unittest.main()
