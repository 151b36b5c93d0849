# SPDX-License-Identifier: MPL-2.0
"""A screen without a monitor, and an office with a window on it."""

import os
import pathlib
import shutil
import subprocess

import banc


class Ecran:
    """A screen of the test's own."""

    def __init__(self, largeur=1000):
        self.largeur = largeur
        lecture, ecriture = os.pipe()
        self.processus = subprocess.Popen(
            ["Xvfb", "-displayfd", str(ecriture), "-screen", "0", f"{largeur}x800x24", "-nolisten",
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
            image.unlink(missing_ok=True)

            def dessine():
                avant = image.read_bytes() if image.exists() else b""
                subprocess.run(["import", "-window", "root", "-display", self.nom,
                                "-define", "png:exclude-chunk=date,time", image], check=True)
                # A blank screen takes far less, and one that is being drawn changes.
                return len(avant) > 20000 and image.read_bytes() == avant
            banc.attends(dessine, "the window to be drawn")

    def titres(self):
        # A window that goes while the tree is read makes the reading fail: read again.
        while True:
            arbre = subprocess.run(["xwininfo", "-root", "-tree", "-display", self.nom],
                                   capture_output=True, text=True, check=False)
            if arbre.returncode == 0:
                return arbre.stdout
            assert self.processus.poll() is None, "the screen is gone"

    def touche(self, fenetre, *touches):
        """Types into the window of that title (a pattern; the one in front without), as the keyboard
        does: what is sent to one window GTK ignores."""
        ecran = dict(os.environ, DISPLAY=self.nom)
        devant = ["search", "--onlyvisible", "--name", fenetre, "windowactivate", "%@"]
        for commande in ([devant] if fenetre else []) + [["key", "--clearmodifiers", *touches]]:
            subprocess.run(["xdotool", *commande], check=False, capture_output=True, env=ecran)


class Fenetres:
    """What the classes of tests in an office with a window share: its screen, its bus, the office."""

    @classmethod
    def demarre(cls, interface, largeur=1000, profil="profil", environnement=None):
        """Starts all three, which end with the class; `interface` draws the windows."""
        cls.ecran = Ecran(largeur)
        cls.addClassCleanup(cls.ecran.ferme)
        cls.bus = banc.Bus()
        cls.addClassCleanup(cls.bus.ferme)
        cls.bureau = banc.Bureau(cls.bus.adresse, profil=profil, options=(), environnement=dict(
            environnement or {}, DISPLAY=cls.ecran.nom, SAL_USE_VCLPLUGIN=interface,
            GDK_BACKEND="x11", NO_AT_BRIDGE="1"))
        cls.addClassCleanup(cls.bureau.ferme)

    def ouvre_en_vue(self, genre="swriter"):
        """A new document over the whole screen, closed at the test's end. On the main thread, as a
        person's click would: with GTK, windows opened from another one now and then wait for the
        clipboard forever."""
        doc = self.bureau.ouvre(f"private:factory/{genre}", banc.pv("OnMainThread", True))
        self.addCleanup(lambda: doc.close(True))
        doc.CurrentController.Frame.ContainerWindow.setPosSize(0, 0, self.ecran.largeur, 800, 15)
        return doc
