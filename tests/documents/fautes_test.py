# SPDX-License-Identifier: MPL-2.0
"""A harm that is done to a document is found, and named for what it is; without any, nothing is."""

import unittest

import banc
import fautes
from documents.constats import FAUTE
from documents.epreuve import AUTRE
from documents.place import Place
from ecrivain import Ecrivain

PATIENCE = 60


def setUpModule():
    global FICHIER, PLACE
    FICHIER = banc.DOSSIER / "document.odt"
    _ecris()
    PLACE = Place(PATIENCE, par_bureau=100)
    unittest.addModuleCleanup(PLACE.ferme)


def _ecris():
    bus = banc.Bus()
    bureau = banc.Bureau(bus.adresse)
    try:
        document = bureau.ouvre()
        e = Ecrivain(document)
        e.ecrit("Du texte ").ecrit("gras ", CharWeight=150.0).ecrit("et maigre.", CharWeight=100.0)
        e.paragraphe().ecrit("Rien que du gras.", CharWeight=150.0)
        e.paragraphe().ecrit("Une page ", CharWeight=100.0)
        e.met("com.sun.star.text.textfield.PageNumber", NumberingType=4)
        e.paragraphe().ecrit("un mot dedans")
        curseur = e.fin()
        curseur.goLeft(6, False)
        curseur.goLeft(4, True)
        e.met("com.sun.star.text.ContentControl", absorbe=curseur)
        e.paragraphe().ecrit("La fin.")
        document.storeToURL(FICHIER.as_uri(), ())
        document.close(True)
        bureau.ferme()
    finally:
        bus.ferme()


class Fautes(unittest.TestCase):
    def trouve(self, client, corrections=6, patience=PATIENCE):
        """The natures of the faults found."""
        place = PLACE if patience == PATIENCE else Place(patience, par_bureau=1)
        if place is not PLACE:
            PLACE._ferme_bureau()  # one profile, one office
            self.addCleanup(place.ferme)
        place._fais_client = client
        if client is not banc.Client:
            client.bureau = staticmethod(lambda: place.bureau)
        bilan = place.essaie(FICHIER, FICHIER.name, 1, corrections)
        self.bilan = bilan
        return {c.nature for c in bilan.constats if c.genre == FAUTE}

    def verifie(self, client, *natures, **options):
        trouvees = self.trouve(client, **options)
        self.assertLessEqual(set(natures), trouvees, self.bilan.constats)

    def test_without_any_harm_nothing_is_found(self):
        self.assertEqual(self.trouve(banc.Client, corrections=12), set())
        self.assertGreater(self.bilan.faites, 6)
        self.assertEqual((self.bilan.zones, self.bilan.selections), (5, 5))

    def test_a_paragraph_that_is_not_read_is_found(self):
        self.verifie(fautes.ZoneTue, "mots.absents")

    def test_words_that_nobody_wrote_are_found(self):
        self.verifie(fautes.ZoneInventee, "mots.en-trop")

    def test_a_reading_that_leaves_a_trace_is_found(self):
        self.verifie(fautes.LectureQuiMarque, "lecture.change")

    def test_other_letters_than_were_asked_for_are_found(self):
        self.verifie(fautes.AutreTexte, "correction.texte")

    def test_a_change_in_another_paragraph_is_found(self):
        self.verifie(fautes.VoisineTouchee, "correction.voisine")

    def test_a_format_that_is_lost_is_found(self):
        self.verifie(fautes.FormatPerdu, "structure")

    def test_a_correction_that_cannot_be_undone_is_found(self):
        self.verifie(fautes.AnnulationPerdue, "annulation.texte", "annulation.pas")

    def test_a_correction_in_two_undo_steps_is_found(self):
        self.verifie(fautes.DeuxEtapes, "annulation.pas")

    def test_a_refusal_that_changed_something_is_found(self):
        self.verifie(fautes.RefusMenteur, "refus.change")

    def test_a_no_to_what_can_be_done_is_found(self):
        self.verifie(fautes.NonATort, "peut")

    def test_a_selection_that_is_another_one_is_found(self):
        self.verifie(fautes.SelectionAilleurs, "selection")

    def test_a_document_that_cannot_be_saved_any_more_is_found(self):
        self.verifie(fautes.EnregistrementEmpeche, "enregistrement")

    def test_an_office_that_crashes_is_told_and_the_next_document_is_tried(self):
        self.verifie(fautes.Mortel, "mort")
        self.assertEqual(self.trouve(banc.Client), set())

    def test_an_office_that_hangs_is_ended_and_the_next_document_is_tried(self):
        self.verifie(fautes.SansFin, "bloque", patience=15)
        self.assertEqual(self.trouve(banc.Client), set())

    def test_the_same_seed_makes_the_same_corrections(self):
        vus = []

        class Temoin(fautes.Fautif):
            def CorrigeDansTexteur(self, zone, *arguments):  # noqa: N802
                if set(arguments[2]) != {AUTRE}:  # which only asks whether a "no" was right
                    vus.append(arguments)
                self.appelle("CorrigeDansTexteur", zone, *arguments)
        self.trouve(Temoin)
        premieres, vus[:] = list(vus), []
        self.trouve(Temoin)
        self.assertEqual(vus, premieres)
        self.assertEqual(len(vus), 6)
