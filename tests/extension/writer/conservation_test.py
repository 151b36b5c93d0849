# SPDX-License-Identifier: MPL-2.0
"""A document that was read, asked about, selected in or corrected can be saved and undone as before."""

import unittest

import banc
from ecrivain import Ecrivain

FILTRE = banc.pv("FilterName", "writer8")


def setUpModule():
    global BUS, BUREAU
    BUS, BUREAU = banc.bus_et_bureau()


class Dans:
    """What the office keeps inside a control or a metadata field must not outlive the call."""

    service = None

    def setUp(self):
        self.doc, self.client = banc.document_et_client(self, BUS, BUREAU)
        e = Ecrivain(self.doc)
        e.ecrit("avant la VAT après")
        e.met(self.service, absorbe=e.plage(9, 12))
        self.addCleanup(self.verifie)

    def zone(self):
        return next(z for z in self.client.zones() if "VAT" in z.texte)

    def enregistre(self):
        # The office aborts at the second save that fails.
        for numero in range(2):
            self.doc.storeToURL(f"file://{banc.DOSSIER}/{self.id()}{numero}.odt",
                                (banc.pv("FilterName", "writer8"),))

    def verifie(self):
        """Saved, undone as far as the corrections go, and saved again."""
        self.enregistre()
        pile = self.doc.UndoManager
        while pile.isUndoPossible() and pile.getCurrentUndoActionTitle().startswith("Correction"):
            pile.undo()
        self.assertEqual(self.zone().texte, "avant la VAT après")
        self.enregistre()

    def test_a_reading_leaves_nothing_behind(self):
        self.assertEqual(self.zone().texte, "avant la VAT après")

    def test_a_question_leaves_nothing_behind(self):
        self.assertTrue(self.client.peut(self.zone(), "VAT"))

    def test_a_selection_leaves_nothing_behind(self):
        self.client.SelectionneIntervalle(self.zone().nom, 9, 12)
        self.assertEqual(self.client.DonneContenuSelection(), "VAT")

    def test_a_correction_is_saved_and_undone(self):
        self.client.corrige(self.zone(), "VAT", "VT")
        self.assertEqual(self.doc.Text.String, "avant la VT après")

    def test_a_correction_beside_it_is_saved_and_undone(self):
        self.client.corrige(self.zone(), "avant", "devant")
        self.assertEqual(self.doc.Text.String, "devant la VAT après")


class DansUnControle(Dans, unittest.TestCase):
    service = "com.sun.star.text.ContentControl"


class DansDesMetadonnees(Dans, unittest.TestCase):
    service = "com.sun.star.text.InContentMetadata"
