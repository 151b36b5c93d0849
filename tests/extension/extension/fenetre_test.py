# SPDX-License-Identifier: MPL-2.0
"""The extension in an office with a window, drawn by its own toolkit and by GTK."""

import unittest

import banc
import ecran


class Fenetre(ecran.Fenetres):
    """Both classes below run these in their own office."""

    interface = None

    @classmethod
    def setUpClass(cls):
        cls.demarre(cls.interface)

    def setUp(self):
        self.doc = self.ouvre_en_vue()
        self.doc.Text.setString("un chat noir")
        self.client = banc.Client(self.bus)
        self.client.prends(self.doc)

    def test_a_correction_is_seen_in_the_window(self):
        self.client.ActivePourCorrecteur()
        zone = self.client.zones()[0]
        self.client.SelectionneIntervalle(zone.nom, 3, 7)
        self.client.corrige(zone, "chat", "chien")
        self.assertEqual(self.doc.Text.String, "un chien noir")
        self.ecran.photographie(f"correction-{self.interface}")

    def test_beneath_a_modal_dialogue_everything_is_read_and_nothing_edited(self):
        zone = self.client.zones()[0]
        self.assertTrue(self.client.peut(zone, "chat"))
        self.addCleanup(self.ferme, "Insert Table")
        self.demande("ctrl+F12", "Insert Table")
        banc.attends(lambda: not self.client.peut(zone, "chat"), "it to be noticed", 20)
        self.ecran.photographie(f"dialogue-{self.interface}")
        with self.assertRaises(banc.Appel) as erreur:
            self.client.corrige(zone, "chat", "chien")
        self.assertEqual(erreur.exception.nom, "DialogueOuvert")
        self.assertEqual(self.client.refus(zone)[0], "DialogueOuvert")
        self.assertEqual(self.client.textes(), ["un chat noir"])
        self.ferme("Insert Table")
        # The refusal left the host's copy in doubt: it asks anew.
        banc.attends(lambda: self.client.peut(self.client.zones()[0], "chat"), "its end", 20)
        zone = self.client.zones()[0]
        self.client.corrige(zone, "chat", "chien")
        self.assertEqual(self.doc.Text.String, "un chien noir")

    def demande(self, touches, dialogue):
        """Asks for a dialogue as a person does; a key that came before the window listens is lost."""
        self.ecran.touche("LibreOffice Writer", touches)
        banc.attends(lambda: dialogue in self.ecran.titres()
                     or self.ecran.touche("LibreOffice Writer", touches), f"{dialogue} to show")

    def ferme(self, dialogue):
        def echappe():
            self.ecran.touche(dialogue, "Escape")
            return dialogue not in self.ecran.titres()
        banc.attends(echappe, f"{dialogue} to close", 20)


class AvecX11(Fenetre, unittest.TestCase):
    interface = "gen"


class AvecGtk(Fenetre, unittest.TestCase):
    interface = "gtk3"

    def test_beneath_a_dialogue_that_is_not_modal_corrections_go_on(self):
        zone = self.client.zones()[0]
        self.addCleanup(self.ferme, "Find and Replace")
        self.demande("ctrl+h", "Find and Replace")
        self.assertTrue(self.client.peut(zone, "chat"))
        self.client.corrige(zone, "chat", "chien")
        self.assertEqual(self.doc.Text.String, "un chien noir")


if __name__ == "__main__":
    unittest.main()
