# SPDX-License-Identifier: MPL-2.0
"""What a person selects while typing in the text of a shape, in an office with a window."""

import unittest

import banc
import ecran
from com.sun.star.awt import Size


class Selection(ecran.Fenetres, unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.demarre("gen")

    def ouvre(self, genre, texte):
        """A document with a shape."""
        self.doc = doc = self.ouvre_en_vue(genre)
        forme = doc.createInstance("com.sun.star.drawing.RectangleShape")
        forme.setSize(Size(8000, 3000))
        doc.DrawPages.getByIndex(0).add(forme)
        forme.setString(texte)
        self.forme = forme
        self.client = banc.Client(self.bus)
        self.client.prends(doc)
        return forme

    def tape(self, *touches, contenu):
        """Types from the start of the shape's text, until that is selected; a key that came before
        the window listens is lost."""
        def essaie():
            self.ecran.touche("LibreOffice Impress", "Escape", "Escape")
            self.doc.CurrentController.select(self.forme)
            self.ecran.touche("LibreOffice Impress", "F2", "ctrl+Home", *touches)
            try:
                banc.attends(lambda: self.client.DonneContenuSelection() == contenu,
                             "the selection", 5)
                return True
            except AssertionError:
                return False
        banc.attends(essaie, "the selection, after several attempts")

    def test_a_range_selected_while_typing_stands_in_its_paragraph(self):
        forme = self.ouvre("simpress", "un \U0001f600 chat\nnoir")
        self.tape("Down", "Right", "shift+Right", "shift+Right", contenu="oi")
        self.assertEqual([(z.texte, z.selection) for z in self.client.zones()],
                         [("un \U0001f600 chat", (0, 0)), ("noir", (1, 3))])
        self.assertEqual(self.client.DonneContexteSelection(), "noir")
        with self.assertRaises(banc.Appel) as refus:
            self.client.RemplaceEtReselectionne("ouva")
        self.assertEqual(refus.exception.nom, "Frappe")
        self.assertEqual(forme.String, "un \U0001f600 chat\nnoir")

    def test_offsets_behind_an_emoji_are_exact(self):
        self.ouvre("simpress", "un \U0001f600 chat\nnoir")
        self.tape(*["Right"] * 5, *["shift+Right"] * 4, contenu="chat")
        self.assertEqual([z.selection for z in self.client.zones()], [(6, 10), (0, 0)])

    def test_a_range_over_two_paragraphs_stands_in_both_and_is_not_replaced(self):
        self.ouvre("simpress", "un chat\nnoir")
        self.tape(*["Right"] * 3, "shift+Down", contenu="chat")
        self.assertEqual([z.selection for z in self.client.zones()], [(3, 7), (0, 3)])
        with self.assertRaises(banc.Appel) as refus:
            self.client.RemplaceEtReselectionne("x")
        self.assertEqual(refus.exception.nom, "SelectionImpossible")

    def test_a_correction_of_what_the_person_is_typing_is_refused_until_the_end(self):
        forme = self.ouvre("simpress", "un chat noir")
        for touches, contenu in (([*["shift+Right"] * 2], "un"), (["Right"], "un chat noir")):
            with self.subTest(contenu=contenu):
                self.tape(*touches, contenu=contenu)
                zone = self.client.zones()[0]
                banc.attends(lambda z=zone: not self.client.peut(z, "chat"), "the typing", 20)
                with self.assertRaises(banc.Appel) as refus:
                    self.client.corrige(zone, "chat", "chien")
                self.assertEqual(refus.exception.nom, "Frappe")
                self.ecran.touche(None, "Escape", "Escape")
                banc.attends(lambda: self.client.peut(self.client.zones()[0], "chat"), "its end", 20)
        self.client.corrige(self.client.zones()[0], "chat", "chien")
        self.assertEqual(forme.String, "un chien noir")


if __name__ == "__main__":
    unittest.main()
