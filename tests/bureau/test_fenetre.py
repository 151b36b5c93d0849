# SPDX-License-Identifier: MPL-2.0
"""The extension in an office with a window, drawn by its own toolkit and by GTK."""

import os
import pathlib
import shutil
import subprocess
import unittest

import banc


class Ecran:
    """A screen of the test's own."""

    def __init__(self):
        lecture, ecriture = os.pipe()
        self.processus = subprocess.Popen(
            ["Xvfb", "-displayfd", str(ecriture), "-screen", "0", "1000x800x24", "-nolisten",
             "tcp"], pass_fds=[ecriture], stderr=subprocess.DEVNULL)
        os.close(ecriture)
        with os.fdopen(lecture) as numero:
            self.nom = ":" + numero.readline().strip()
        # Without a window manager no window has a size or the keyboard.
        self.gestionnaire = subprocess.Popen(["openbox"], env=dict(os.environ, DISPLAY=self.nom),
                                             stderr=subprocess.DEVNULL)

    def ferme(self):
        banc.arrete(self.gestionnaire)
        banc.arrete(self.processus)

    def photographie(self, nom):
        """A picture for people to look at, where the run was asked for them."""
        dossier = os.environ.get("VOCALYNE_IMAGES")
        if dossier and shutil.which("import"):
            image = pathlib.Path(dossier, nom + ".png")

            def dessine():
                subprocess.run(["import", "-window", "root", "-display", self.nom,
                                "-define", "png:exclude-chunk=date,time", image], check=True)
                return image.stat().st_size > 20000  # a blank screen takes far less
            banc.attends(dessine, "the window to be drawn")


class Fenetre:
    """Both classes below run these in their own office."""

    interface = None

    @classmethod
    def setUpClass(cls):
        cls.ecran = Ecran()
        cls.addClassCleanup(cls.ecran.ferme)
        cls.bus = banc.Bus()
        cls.addClassCleanup(cls.bus.ferme)
        cls.bureau = banc.Bureau(cls.bus.adresse, options=(), environnement={
            "DISPLAY": cls.ecran.nom, "SAL_USE_VCLPLUGIN": cls.interface, "GDK_BACKEND": "x11",
            "NO_AT_BRIDGE": "1"})
        cls.addClassCleanup(cls.bureau.ferme)

    def setUp(self):
        # On the main thread, as a person's click would: with GTK, windows opened from another one
        # now and then wait for the clipboard forever.
        self.doc = self.bureau.ouvre("private:factory/swriter", banc.pv("OnMainThread", True))
        self.addCleanup(lambda: self.doc.close(True))
        self.doc.CurrentController.Frame.ContainerWindow.setPosSize(0, 0, 1000, 800, 15)
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
        self.assertEqual(erreur.exception.nom, "Refuse")
        self.assertEqual(self.client.textes(), ["un chat noir"])
        self.ferme("Insert Table")
        # The refusal left the host's copy in doubt: it asks anew.
        banc.attends(lambda: self.client.peut(self.client.zones()[0], "chat"), "its end", 20)
        zone = self.client.zones()[0]
        self.client.corrige(zone, "chat", "chien")
        self.assertEqual(self.doc.Text.String, "un chien noir")

    def titres(self):
        # A window that goes while the tree is read makes the reading fail: read again.
        while True:
            arbre = subprocess.run(["xwininfo", "-root", "-tree", "-display", self.ecran.nom],
                                   capture_output=True, text=True, check=False)
            if arbre.returncode == 0:
                return arbre.stdout
            self.assertIsNone(self.ecran.processus.poll(), "the screen is gone")

    def touche(self, fenetre, touches):
        """Types into the window, as the keyboard does: what is sent to one window GTK ignores."""
        ecran = dict(os.environ, DISPLAY=self.ecran.nom)
        for commande in (["search", "--onlyvisible", "--name", fenetre, "windowactivate", "%@"],
                         ["key", "--clearmodifiers", touches]):
            subprocess.run(["xdotool", *commande], check=False, capture_output=True, env=ecran)

    def demande(self, touches, dialogue):
        """Asks for a dialogue as a person does; a key that came before the window listens is lost."""
        self.touche("LibreOffice Writer", touches)
        banc.attends(lambda: dialogue in self.titres()
                     or self.touche("LibreOffice Writer", touches), f"{dialogue} to show")

    def ferme(self, dialogue):
        def echappe():
            self.touche(dialogue, "Escape")
            return dialogue not in self.titres()
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
