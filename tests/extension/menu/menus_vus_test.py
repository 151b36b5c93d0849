# SPDX-License-Identifier: MPL-2.0
"""The menu and the toolbar in an office with a window, in French and in English."""

import unittest

import banc
import ecran
import menus

TITRES = {
    "en": ["Vocalyne", "Correct…", "Dictionary and synonyms for the selection…",
           "About and diagnosis…"],
    "fr": ["Vocalyne", "Corriger…", "Dictionnaire et synonymes pour la sélection…",
           "À propos et diagnostic…"],
}
FENETRES = {"swriter": "Writer", "scalc": "Calc", "simpress": "Impress", "sdraw": "Draw"}


class Vus(ecran.Fenetres):
    """The classes below run these, each in an office of its own."""

    interface = None
    langue = "en"

    @classmethod
    def setUpClass(cls):
        cls.outils = menus.Outils(cls.__name__)
        profil = "profil-" + cls.langue
        if cls.langue == "fr" and not (banc.DOSSIER / profil).exists():
            menus.met_en_francais(profil)
        cls.demarre(cls.interface, largeur=1400, profil=profil,
                    environnement=dict(cls.outils.environnement, LC_ALL="C.UTF-8"))

    def choisis(self, rang, attendu, fenetre="LibreOffice Writer", photo=None):
        """Opens the menu by the keyboard and takes the entry of that rank, until what is expected
        comes: a key that came before the window listens is lost."""
        def essaie():
            self.ecran.touche(fenetre, "Escape", "F10", "Left", "Left", "Left", "Down")
            if photo:
                self.ecran.photographie(photo)
            self.ecran.touche(None, *["Down"] * (rang - 1), "Return")
            try:
                banc.attends(attendu, "the menu entry's effect", 5)
                return True
            except AssertionError:
                return False
        banc.attends(essaie, "the menu entry's effect, after several attempts")

    def test_menu_and_toolbar_are_in_the_offices_language(self):
        noeud = banc.pv("nodepath", "/org.openoffice.Office.Addons/AddonUI")
        reglages = self.bureau.cree("com.sun.star.configuration.ConfigurationProvider")
        ui = reglages.createInstanceWithArguments(
            "com.sun.star.configuration.ConfigurationAccess", (noeud,))
        menu = ui.getByHierarchicalName("OfficeMenuBar/com.ombrel.vocalyne")
        entrees = [menu.Submenu.getByName(n) for n in sorted(menu.Submenu.ElementNames)]
        titres = [e.Title.replace("~", "") for e in (menu, *entrees) if e.Title]
        self.assertEqual(titres, TITRES[self.langue])
        barre = ui.getByHierarchicalName("OfficeToolBar/com.ombrel.vocalyne")
        self.assertEqual([barre.getByName(n).Title for n in sorted(barre.ElementNames)],
                         TITRES[self.langue][1:])

    def test_every_kind_of_document_with_texts_has_the_toolbar(self):
        for genre in FENETRES:
            with self.subTest(genre=genre):
                doc = self.ouvre_en_vue(genre)
                disposition = doc.CurrentController.Frame.LayoutManager
                banc.attends(lambda: disposition.isElementVisible(menus.BARRE), "the toolbar")
                self.ecran.photographie(f"barre-{genre}-{self.interface}-{self.langue}")

    def test_the_entries_open_the_hosts_window(self):
        doc = self.ouvre_en_vue()
        doc.Text.setString("un chat noir")
        identifiant = banc.Client(self.bus).prends(doc)
        self.choisis(1, self.outils.notes_hote.exists,
                     photo=f"menu-{self.interface}-{self.langue}")
        hote = self.outils.attends_la_fenetre()
        self.assertEqual(hote["arguments"], ["fenetre", identifiant])
        self.assertEqual(hote["environnement"]["DISPLAY"], self.ecran.nom)
        menus.demande(self.bureau, doc.CurrentController.Frame, "dictionnaire")
        hote = self.outils.attends_la_fenetre()
        self.assertEqual(hote["arguments"], ["fenetre", "--page", "mots", identifiant])

    def test_the_key_opens_the_window_too(self):
        doc = self.ouvre_en_vue()
        identifiant = banc.Client(self.bus).prends(doc)

        def essaie():
            self.ecran.touche("LibreOffice Writer", "ctrl+alt+v")
            try:
                return banc.attends(self.outils.notes_hote.exists, "the key's effect", 5)
            except AssertionError:
                return False
        banc.attends(essaie, "the key's effect")
        self.assertEqual(self.outils.attends_la_fenetre()["arguments"], ["fenetre", identifiant])

    def test_about_opens_a_box_that_closes(self):
        self.ouvre_en_vue()
        self.choisis(3, lambda: '"Vocalyne"' in self.ecran.titres())
        self.ecran.photographie(f"diagnostic-{self.interface}-{self.langue}")
        self.ferme_la_boite()

    def test_what_is_missing_is_told_in_a_box(self):
        self.ouvre_en_vue()
        cache = self.outils.hote.with_suffix(".absent")
        self.outils.hote.rename(cache)
        self.addCleanup(cache.rename, self.outils.hote)
        self.choisis(1, lambda: '"Vocalyne"' in self.ecran.titres())
        self.ecran.photographie(f"manque-{self.interface}-{self.langue}")
        self.ferme_la_boite()
        self.assertFalse(self.outils.notes_hote.exists())

    def ferme_la_boite(self):
        def ferme():
            self.ecran.touche("^Vocalyne$", "Return")
            return '"Vocalyne"' not in self.ecran.titres()
        banc.attends(ferme, "the box to close", 20)


class X11Anglais(Vus, unittest.TestCase):
    interface = "gen"


class X11Francais(Vus, unittest.TestCase):
    interface, langue = "gen", "fr"


class GtkAnglais(Vus, unittest.TestCase):
    interface = "gtk3"


class GtkFrancais(Vus, unittest.TestCase):
    interface, langue = "gtk3", "fr"


if __name__ == "__main__":
    unittest.main()
