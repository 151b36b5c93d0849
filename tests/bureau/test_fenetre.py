# SPDX-License-Identifier: MPL-2.0
"""The extension in an office with a window, drawn by its own toolkit and by GTK."""

import contextlib
import os
import pathlib
import shutil
import subprocess
import threading
import unittest

import uno  # noqa: F401  makes the office's types importable
from com.sun.star.lang import DisposedException

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
        self.doc = self.bureau.ouvre()
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
        self.dialogue(".uno:InsertTable")
        self.addCleanup(self.ferme_le_dialogue)
        banc.attends(lambda: "Insert Table" in self.titres(), "the dialogue to show")
        banc.attends(lambda: not self.client.peut(zone, "chat"), "it to be noticed", 20)
        self.ecran.photographie(f"dialogue-{self.interface}")
        with self.assertRaises(banc.Appel) as erreur:
            self.client.corrige(zone, "chat", "chien")
        self.assertEqual(erreur.exception.nom, "Refuse")
        self.assertEqual(self.client.textes(), ["un chat noir"])
        self.ferme_le_dialogue()
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

    def dialogue(self, commande):
        """Asks for a dialogue from a thread of its own: the answer comes when it is closed."""
        aide = self.bureau.cree("com.sun.star.frame.DispatchHelper")
        cadre = self.doc.CurrentController.Frame

        def demande():
            with contextlib.suppress(DisposedException):  # closed with its document
                aide.executeDispatch(cadre, commande, "", 0, ())
        threading.Thread(target=demande, daemon=True).start()

    def ferme_le_dialogue(self):
        def echappe():
            subprocess.run(["xdotool", "search", "--name", "Insert Table", "windowfocus", "key",
                            "Escape"], check=False, capture_output=True,
                           env=dict(os.environ, DISPLAY=self.ecran.nom))
            return "Insert Table" not in self.titres()
        banc.attends(echappe, "the dialogue to close", 20)


class AvecX11(Fenetre, unittest.TestCase):
    interface = "gen"


class AvecGtk(Fenetre, unittest.TestCase):
    interface = "gtk3"

    def test_beneath_a_dialogue_that_is_not_modal_corrections_go_on(self):
        zone = self.client.zones()[0]
        self.dialogue(".uno:SearchDialog")
        banc.attends(lambda: "Find" in self.titres(), "the dialogue to show")
        self.assertTrue(self.client.peut(zone, "chat"))
        self.client.corrige(zone, "chat", "chien")
        self.assertEqual(self.doc.Text.String, "un chien noir")
        self.dialogue(".uno:SearchDialog")


if __name__ == "__main__":
    unittest.main()
