# SPDX-License-Identifier: MPL-2.0
"""A large document is read piece by piece, and what is told of it is true all the same."""

import json
import threading
import unittest

import banc
from ecrivain import Ecrivain
from occupe import Occupe
from rafale import Rafale

# Enough for a dozen pieces, and for as many cells and shapes.
PARAGRAPHES, CASES, FORMES = 4000, 20000, 800


def setUpModule():
    global BUS, BUREAU
    BUS, BUREAU = banc.bus_et_bureau()


def zones(reponse):
    return [banc.Zone(z) for z in json.loads(reponse)["Zones"]]


class Cas(unittest.TestCase):
    def ouvre(self, genre):
        document = BUREAU.ouvre(f"private:factory/{genre}")
        self.addCleanup(lambda: self.ferme(document))
        return document

    @staticmethod
    def ferme(document):
        try:
            document.close(True)
        except banc.DisposedException:
            pass  # by the test

    def ecris(self, nombre=PARAGRAPHES):
        document = self.ouvre("swriter")
        document.Text.setString("\r".join(f"ligne {i} avec un chat noir et gris" for i in range(nombre)))
        return document

    def client(self, document):
        client = banc.Client(BUS)
        client.prends(document)
        return client

    def lance(self, document, client, autre, *appel, signature=None):
        """`client` synchronises, and while it is read to the call of `autre` is served; what both
        were answered. The office has both before it begins."""
        with Occupe(document):
            lecture = Rafale(client).envoie("SynchronisePositions", client.id, signature="(s)").part()
            second = Rafale(autre).envoie(*appel, signature=signature).part()
        lecture.attends()
        second.attends()
        self.assertEqual((lecture.refus, second.refus), ({}, {}))
        return zones(lecture.valeurs[0]), second.valeurs[0]


class ChangeEntreTemps(Cas):
    def renverse(self, curseur):
        un, deux = curseur.getString().split("\n")
        curseur.setString(f"{deux}\r{un}")

    def corrige_aux_bouts(self, document, texte):
        """The zone that was read first, when another corrects it, and the one that is read last."""
        for rang in (0, -1):
            client, autre = self.client(document), self.client(document)
            avant = autre.zones()
            vues, _ = self.lance(document, client, autre, "CorrigeDansTexteur", avant[rang].nom, 0, 0,
                                 texte, True, signature="(siisb)")
            attendus = [z.texte for z in avant]
            attendus[rang] = texte + attendus[rang]
            self.assertEqual([z.texte for z in vues], attendus)
            self.assertEqual([z.nom for z in vues], [z.nom for z in avant])
            client.CorrigeDansTexteur(vues[rang].nom, 0, len(texte), "", True)
            self.assertEqual(client.textes(), [z.texte for z in avant])

    def test_what_another_corrects_meanwhile_is_in_what_is_read_of_a_text(self):
        self.corrige_aux_bouts(self.ecris(), "Un mot. ")

    def test_what_another_corrects_meanwhile_is_in_what_is_read_of_a_spreadsheet(self):
        classeur = self.ouvre("scalc")
        plage = classeur.Sheets[0].getCellRangeByPosition(0, 0, 9, CASES // 10 - 1)
        plage.setFormulaArray(tuple(tuple(f"case {l} {c}" for c in range(10))
                                    for l in range(CASES // 10)))
        self.corrige_aux_bouts(classeur, "Un mot. ")

    def test_what_another_corrects_meanwhile_in_a_shape_of_a_text_is_in_what_is_read(self):
        document = self.ecris()
        forme = document.createInstance("com.sun.star.drawing.RectangleShape")
        document.Text.insertTextContent(document.Text.createTextCursorByRange(document.Text.Start), forme, False)
        forme.setString("dans une forme")
        client, autre = self.client(document), self.client(document)
        [zone] = [z for z in autre.zones()[:3] if z.texte == "dans une forme"]
        vues, _ = self.lance(document, client, autre, "CorrigeDansTexteur", zone.nom, 0, 0, "Un mot ",
                             True, signature="(siisb)")
        self.assertIn("Un mot dans une forme", [z.texte for z in vues[:3]])

    def test_slides_are_read_in_one_piece_as_nobody_is_told_of_changes_in_their_texts(self):
        document = self.ouvre("simpress")
        for i in range(FORMES):
            forme = document.createInstance("com.sun.star.drawing.RectangleShape")
            document.DrawPages[0].add(forme)
            forme.setString(f"forme {i}")
        client, autre = self.client(document), self.client(document)
        avant = [z.texte for z in autre.zones()]
        derniere = autre.zones()[-1]
        vues, _ = self.lance(document, client, autre, "CorrigeDansTexteur", derniere.nom, 0, 0,
                             "Un mot. ", True, signature="(siisb)")
        self.assertEqual([z.texte for z in vues], avant)
        self.assertEqual(client.textes(), [*avant[:-1], "Un mot. " + avant[-1]])

    def test_what_is_selected_meanwhile_is_told_as_selected(self):
        document = self.ecris()
        client, autre = self.client(document), self.client(document)
        premiere = autre.zones()[0]
        vues, _ = self.lance(document, client, autre, "SelectionneIntervalle", premiere.nom, 2, 5,
                             signature="(sii)")
        self.assertEqual(vues[0].selection, (2, 5))
        self.assertEqual({z.selection for z in vues[1:]}, {(0, 0)})

    def test_paragraphs_that_change_places_all_the_time_are_each_read_once(self):
        document = self.ecris(1500)
        client = self.client(document)
        attendus = sorted(client.textes())
        arret = threading.Event()
        echanges = []

        def echange():
            # Two neighbours at a time, each time in one call: the document is whole in between.
            curseur = document.Text.createTextCursor()
            while not arret.is_set():
                curseur.gotoStart(False)
                curseur.gotoNextParagraph(True)
                curseur.gotoEndOfParagraph(True)
                self.renverse(curseur)
                curseur.gotoEnd(False)
                curseur.gotoStartOfParagraph(True)
                curseur.gotoPreviousParagraph(True)
                echanges.append(self.renverse(curseur))
        fil = threading.Thread(target=echange)
        fil.start()
        try:
            for _ in range(2):
                avant = len(echanges)
                self.assertEqual(sorted(client.textes()), attendus)
                banc.attends(lambda: len(echanges) > avant, "an exchange")
        finally:
            arret.set()
            fil.join()
        self.assertEqual(sorted(client.textes()), attendus)


class Ordre(Cas):
    def test_the_caller_s_own_next_call_waits_for_the_end_of_the_reading(self):
        document = self.ecris()
        client = self.client(document)
        derniere = client.zones()[-1]
        with Occupe(document):
            lecture = Rafale(client).envoie("SynchronisePositions", client.id, signature="(s)")
            lecture.envoie("CorrigeDansTexteur", derniere.nom, 0, 5, "Ligne", True,
                           signature="(siisb)").part()
        lecture.attends()
        self.assertEqual(lecture.refus, {})
        lues = next(v for v in lecture.valeurs if v)
        self.assertEqual(zones(lues)[-1].texte, derniere.texte)
        self.assertEqual(client.zones()[-1].texte, derniere.texte.replace("ligne", "Ligne"))

    def test_a_document_that_is_closed_meanwhile_is_an_error(self):
        for _ in range(3):
            document = self.ecris()
            client = self.client(document)
            lecture = Rafale(client).envoie("SynchronisePositions", client.id, signature="(s)",
                                            fois=3).part()
            document.close(True)
            lecture.attends()
            self.assertLessEqual(set(lecture.refus), {"DocumentFerme", "DocumentInconnu"})

    def test_whoever_leaves_meanwhile_is_forgotten_and_its_reading_given_up(self):
        document = self.ecris()
        client = self.client(document)
        with Occupe(document):
            for _ in range(20):
                passant = banc.Client(BUS, client.instance)
                Rafale(passant).envoie("SynchronisePositions", client.id, signature="(s)").part()
                passant.bus.close_sync(None)
            suite = Rafale(client).envoie("DonneTitreDocument").part()
        suite.attends()
        self.assertEqual(suite.faits, 1)
        self.assertEqual(len(client.textes()), PARAGRAPHES)


class Conservation(Cas):
    def test_a_document_saved_in_the_midst_of_a_reading_is_saved_whole(self):
        document = self.ouvre("swriter")
        e = Ecrivain(document)
        for i in range(300):
            e.ecrit(f"avant {i} ")
            debut = len(document.Text.String)
            e.ecrit("dedans")
            e.met("com.sun.star.text.ContentControl", absorbe=e.plage(debut, debut + 6))
            e.ecrit(" après").paragraphe()
        client = self.client(document)
        attendus = client.textes()
        lecture = Rafale(client).envoie("SynchronisePositions", client.id, signature="(s)",
                                        fois=20).part()
        for i in range(5):
            document.storeToURL((banc.DOSSIER / f"pendant{i}.odt").as_uri(), ())
        lecture.attends()
        self.assertEqual(lecture.refus, {})
        for reponse in lecture.valeurs:
            self.assertEqual([z.texte for z in zones(reponse)], attendus)


if __name__ == "__main__":
    unittest.main()
