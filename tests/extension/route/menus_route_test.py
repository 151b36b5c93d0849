# SPDX-License-Identifier: MPL-2.0
"""The menu's commands all the way: the real host in a terminal, and what the document then holds."""

import unittest

import banc
import menus
from hote import PROGRAMME


class Route(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.bus = banc.Bus()
        cls.addClassCleanup(cls.bus.ferme)
        cls.outils = menus.Outils("route")
        cls.bureau = banc.Bureau(cls.bus.adresse, environnement=dict(
            cls.outils.environnement, VOCALYNE_HOTE=str(PROGRAMME), VOCALYNE_ESSAI_REPONSES="1",
            LC_ALL="C.UTF-8"))
        cls.addClassCleanup(cls.bureau.ferme)

    def demande(self, texte, commande, selection=None):
        """What the document holds after the command, and what the terminal showed."""
        doc = self.bureau.ouvre()
        self.addCleanup(doc.close, True)
        doc.Text.setString(texte)
        if selection:
            curseur = doc.Text.createTextCursor()
            curseur.goRight(texte.index(selection), False)
            curseur.goRight(len(selection), True)
            doc.CurrentController.select(curseur)
        banc.attends(lambda: "serving as" in self.bureau.dit(), "the extension")
        menus.demande(self.bureau, doc.CurrentController.Frame, commande)
        _, terminal = self.outils.attends()
        return doc.Text.String, terminal["dit"]

    def test_correct_corrects_the_document_in_front(self):
        texte, dit = self.demande("Notre acceuil est toujours chaleureux.", "corrige")
        self.assertEqual(texte, "Notre accueil est toujours chaleureux.", dit)

    def test_dictionary_puts_the_synonym_in_the_selections_place(self):
        texte, dit = self.demande("Le chat dort toujours dans la maison.", "dictionnaire", "chat")
        self.assertEqual(texte, "Le félin dort toujours dans la maison.", dit)

    def test_without_a_word_selected_the_terminal_says_so(self):
        texte, dit = self.demande("Un  chat.", "dictionnaire", " ")
        self.assertEqual(texte, "Un  chat.")
        self.assertIn("No word is selected", dit)


if __name__ == "__main__":
    unittest.main()
