# SPDX-License-Identifier: MPL-2.0
"""The extension, in a real LibreOffice, held to the contract: in a text, a spreadsheet, a slide."""

import unittest

import uno  # noqa: F401
from com.sun.star.awt import Size

import banc
from ecrivain import Ecrivain
from suite import regles  # noqa: F401
from suite.deroulement import TENUE, VIOLEE, deroule
from suite.essai import Options
from suite.hote import Cible
from suite.protocole import Protocole
from suite.registre import REGLES

# What nothing in LibreOffice can show: its person saves.
SANS_OBJET = {"documents.enregistre"}


def setUpModule():
    global BUS, BUREAU
    BUS, BUREAU = banc.bus_et_bureau()


class Compagnon(unittest.TestCase):
    def setUp(self):
        autre = BUREAU.ouvre()
        autre.Text.setString("Un autre document.")
        self.addCleanup(lambda: autre.close(True))
        figee = BUREAU.ouvre()
        figee.Text.setString("Personne ne touche à ceci.")
        url = (banc.DOSSIER / "figee.odt").as_uri()
        figee.storeAsURL(url, ())
        figee.close(True)
        figee = BUREAU.ouvre(url, banc.pv("ReadOnly", True))
        self.addCleanup(lambda: figee.close(True))
        self.client = banc.Client(BUS)
        self.autre, self.figee = self.client.prends(autre), self.client.prends(figee)

    def tiens(self, document, non_essayees):
        """Every rule is held in this document, but those that it has nothing for."""
        cible = Cible(self.client.instance, Protocole(banc.DOSSIER / "protocol"), BUS.adresse)
        bilan = deroule(cible, Options(self.client.prends(document), self.autre, self.figee),
                        REGLES.values(), lambda _: None, lambda _: None)
        self.assertEqual({r.regle.identifiant: list(map(str, r.constats))
                          for r in bilan.de_statut(VIOLEE)}, {})
        self.assertEqual({r.regle.identifiant for r in bilan.resultats if r.statut != TENUE},
                         SANS_OBJET | non_essayees)
        self.assertEqual(bilan.ecarts, [])

    def ouvre(self, genre):
        document = BUREAU.ouvre(f"private:factory/{genre}")
        self.addCleanup(lambda: document.close(True))
        return document

    def test_a_text(self):
        document = self.ouvre("swriter")
        e = Ecrivain(document)
        e.ecrit("Les chats dorment ici.").paragraphe().ecrit("Un champ ")
        e.met("com.sun.star.text.textfield.PageNumber", NumberingType=4)
        e.ecrit(" et une note").note("au pied de la page")
        e.paragraphe().ecrit("Du ").ecrit("gras", CharWeight=150.0).ecrit(" ici \U0001f600",
                                                                         CharWeight=100.0)
        debut = len(document.Text.String)
        e.paragraphe().ecrit("Voici du texte sous clé")
        e.section(debut + 1, len(document.Text.String), IsProtected=True)
        self.tiens(document, set())

    def test_a_spreadsheet(self):
        feuille = self.ouvre("scalc")
        for rang, texte in enumerate(("Les chats dorment ici.", "Du texte", "Un \U0001f600 la")):
            feuille.Sheets[0].getCellByPosition(0, rang).setString(texte)
        feuille.Sheets[0].getCellByPosition(0, 1).CharWeight = 150.0
        self.tiens(feuille, {"peut.interdit", "refus.champ"})

    def test_a_slide(self):
        document = self.ouvre("simpress")
        for rang, texte in enumerate(("Les chats dorment ici.\rEncore", "Du texte")):
            forme = document.createInstance("com.sun.star.drawing.RectangleShape")
            forme.setSize(Size(20000, 5000))
            document.DrawPages[0].add(forme)
            forme.setString(texte)
            if rang:
                forme.CharWeight = 150.0
        self.tiens(document, {"peut.interdit", "refus.champ"})


if __name__ == "__main__":
    unittest.main()
