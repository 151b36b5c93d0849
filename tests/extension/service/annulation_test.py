# SPDX-License-Identifier: MPL-2.0
"""A run of automatic corrections is one undo step, in every kind of document, and nobody else's.

What changes the undo list is done on the office's main thread, as by a person.
"""

import unittest

import uno  # noqa: F401
from com.sun.star.awt import Size

import banc

NOMBRE = 250  # corrections, well past the steps that the office keeps
SUITE = "Automatic corrections"


def setUpModule():
    global BUS, BUREAU
    BUS, BUREAU = banc.bus_et_bureau()


class Cas(unittest.TestCase):
    genre = "swriter"

    def setUp(self):
        self.doc, self.client = banc.document_et_client(self, BUS, BUREAU,
                                                        f"private:factory/{self.genre}")
        self.pile = self.doc.UndoManager
        self.remplis(10)

    def remplis(self, nombre):
        """So many paragraphs "un motn", a bold letter in each."""
        self.doc.Text.setString("\r".join(f"un mot{i}" for i in range(nombre)))
        curseur = self.doc.Text.createTextCursor()
        for i in range(nombre):
            curseur.gotoStart(False)
            for _ in range(i):
                curseur.gotoNextParagraph(False)
            curseur.goRight(1, True)
            curseur.CharWeight = 150.0
        self.pile.clear()

    def ecris(self):
        """An edit that is none of a corrector's."""
        self.doc.Text.getEnd().setString("!")

    def fais(self, action):
        return BUREAU.sur_le_fil_principal(action)

    def lu(self, client=None):
        return [(z.texte, z.styles) for z in (client or self.client).zones()]

    def corrige(self, nombre, client=None, automatique=True):
        """So many corrections, one after the other, of whatever stands there."""
        client = client or self.client
        zones = [z for z in client.zones() if z.texte]
        for i in range(nombre):
            zone = zones[i % len(zones)]
            fin = banc.unites(zone.texte)
            # By turns: a letter more at the end, and letters of a bold border.
            debut = fin if i % 2 else 1
            client.CorrigeDansTexteur(zone.nom, debut, debut + (i + 1) % 2, "ab", automatique)
            zone.texte = zone.texte[:debut] + "ab" + zone.texte[debut + (i + 1) % 2:]

    def titres(self):
        return self.pile.AllUndoActionTitles


class Suite(Cas):
    def test_a_long_run_is_one_step_that_undo_and_redo_go_over_at_once(self):
        avant = self.lu()
        self.corrige(NOMBRE)
        apres = self.lu()
        self.assertNotEqual(apres, avant)
        self.assertEqual(self.titres(), (SUITE,))
        self.fais(self.pile.undo)
        self.assertEqual(self.lu(), avant)
        self.assertFalse(self.pile.isUndoPossible())
        self.fais(self.pile.redo)
        self.assertEqual(self.lu(), apres)
        self.fais(self.pile.undo)
        self.assertEqual(self.lu(), avant)

    def test_an_edit_in_between_stands_in_a_step_of_its_own_between_two_runs(self):
        avant = self.lu()
        self.corrige(5)
        milieu = self.lu()
        self.fais(self.ecris)
        ecrit = self.lu()
        self.corrige(5)
        apres = self.lu()
        titres = self.titres()
        self.assertEqual(len(titres), 3)
        self.assertEqual((titres[0], titres[2]), (SUITE, SUITE))
        vus = [apres]
        while self.pile.isUndoPossible():
            self.fais(self.pile.undo)
            vus.append(self.lu())
        self.assertEqual(vus, [apres, ecrit, milieu, avant])
        while self.pile.isRedoPossible():
            self.fais(self.pile.redo)
        self.assertEqual(self.lu(), apres)


class SuiteEnCalc(Suite):
    genre = "scalc"

    def remplis(self, nombre):
        feuille = self.doc.Sheets.getByIndex(0)
        for i in range(nombre):
            cellule = feuille.getCellByPosition(0, i)
            cellule.setString(f"un mot{i}")
            if i % 2:  # the others are cells without a format inside
                curseur = cellule.createTextCursor()
                curseur.gotoStart(False)
                curseur.goRight(1, True)
                curseur.CharWeight = 150.0
        self.pile.clear()

    def ecris(self):
        self.doc.Sheets.getByIndex(0).getCellByPosition(2, 0).setString("!")


class SuiteEnImpress(Suite):
    genre = "simpress"

    def remplis(self, nombre):
        page = self.doc.DrawPages.getByIndex(0)
        for i in range(nombre):
            forme = self.doc.createInstance("com.sun.star.drawing.RectangleShape")
            forme.setSize(Size(5000, 2000))
            page.add(forme)
            forme.setString(f"un mot{i}")
            curseur = forme.createTextCursor()
            curseur.gotoStart(False)
            curseur.goRight(1, True)
            curseur.CharWeight = 150.0
        self.pile.clear()

    def ecris(self):
        # The office records no text that a program changes in a shape: the shape's name will do.
        self.doc.DrawPages.getByIndex(0).getByIndex(0).Name = f"nom{len(self.titres())}"


class FinDeSuite(Cas):
    """What ends a run: anything but the next automatic correction of the same caller."""

    def verifie(self, *titres):
        self.assertEqual(self.titres(), tuple(reversed(titres)))

    def test_an_undo_ends_it_and_is_not_lost_in_what_follows(self):
        self.corrige(3)
        un = self.lu()
        self.fais(self.ecris)
        self.fais(self.pile.undo)
        self.corrige(3)
        self.verifie(SUITE, SUITE)
        self.fais(self.pile.undo)
        self.assertEqual(self.lu(), un)

    def test_a_redo_ends_it(self):
        self.corrige(3)
        self.fais(self.pile.undo)
        self.fais(self.pile.redo)
        self.corrige(3)
        self.verifie(SUITE, SUITE)

    def test_another_caller_ends_it(self):
        autre = banc.Client(BUS)
        autre.prends(self.doc)
        for client in (self.client, autre, self.client):
            self.corrige(3, client)
        self.verifie(SUITE, SUITE, SUITE)

    def test_a_correction_that_a_person_chose_ends_it_and_keeps_its_own_name(self):
        self.corrige(3)
        self.corrige(1, automatique=False)
        self.corrige(3)
        titres = self.titres()
        self.assertEqual((titres[0], titres[2]), (SUITE, SUITE))
        self.assertRegex(titres[1], "^Correction: ")
        self.assertEqual(len(titres), 3)

    def test_saving_ends_it_so_that_undo_leads_to_what_was_saved(self):
        self.corrige(3)
        enregistre = self.lu()
        self.doc.storeAsURL((banc.DOSSIER / "suite.odt").as_uri(), ())
        self.corrige(3)
        self.verifie(SUITE, SUITE)
        self.fais(self.pile.undo)
        self.assertEqual(self.lu(), enregistre)

    def test_a_corrector_that_begins_anew_ends_it(self):
        self.corrige(3)
        self.client.InitialisePourCorrecteur()
        self.corrige(3)
        self.verifie(SUITE, SUITE)

    def test_steps_of_others_are_never_taken_in(self):
        self.fais(self.ecris)
        premier = self.titres()[0]
        self.corrige(3)
        self.verifie(premier, SUITE)

    def test_nor_those_that_stand_last_once_a_run_was_undone(self):
        self.fais(self.ecris)
        ecrit = self.lu()
        [premier] = self.titres()
        self.corrige(3)
        self.fais(self.pile.undo)
        self.corrige(3)
        self.verifie(premier, SUITE)
        self.fais(self.pile.undo)
        self.assertEqual(self.lu(), ecrit)

    def test_reading_asking_and_refusals_do_not_end_it(self):
        self.corrige(3)
        zone = next(z for z in self.client.zones() if z.texte)
        self.client.PeutCorriger(zone.nom, 0, 1, zone.texte[:1])
        with self.assertRaises(banc.Appel):
            self.client.CorrigeDansTexteur(zone.nom, 0, 9999, "x", True)
        self.client.CorrigeDansTexteur(zone.nom, 0, 0, "", True)  # which changes nothing
        self.corrige(3)
        self.verifie(SUITE)

    def test_two_documents_each_have_their_own(self):
        autre, client = banc.document_et_client(self, BUS, BUREAU)
        autre.Text.setString("un mot")
        autre.UndoManager.clear()
        for _ in range(3):
            self.corrige(1)
            self.corrige(1, client)
        self.verifie(SUITE)
        self.assertEqual(autre.UndoManager.AllUndoActionTitles, (SUITE,))

    def test_a_run_of_thousands_takes_few_steps_and_undoes_without_harm(self):
        avant = self.lu()
        self.corrige(2100)
        self.verifie(SUITE, SUITE, SUITE)
        while self.pile.isUndoPossible():
            self.fais(self.pile.undo)
        self.assertEqual(self.lu(), avant)


if __name__ == "__main__":
    unittest.main()
