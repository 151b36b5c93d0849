# SPDX-License-Identifier: MPL-2.0
"""What the extension has to say of a document beyond its text: why it refused."""

import unittest

import banc
import menus
from ecrivain import Ecrivain


def setUpModule():
    global BUS, BUREAU
    BUS, BUREAU = banc.bus_et_bureau()


class Refus(unittest.TestCase):
    """Each is told by the question whether it may be corrected, and by the correction itself."""

    def setUp(self):
        self.doc, self.client = banc.document_et_client(self, BUS, BUREAU)
        self.doc.Text.setString("un chat noir")

    def refuse(self, zone, cherche, code, phrase):
        self.assertFalse(self.client.peut(zone, cherche))
        self.assertEqual(self.client.refus(zone)[0], code)
        self.assertRegex(self.client.refus(zone)[1], phrase)
        with self.assertRaises(banc.Appel) as erreur:
            self.client.corrige(zone, cherche, "x")
        self.assertEqual(self.client.refus(zone), (code, str(erreur.exception).split(": ", 1)[1]))

    def zone(self, contenant="chat"):
        return next(z for z in self.client.zones() if contenant in z.texte)

    def test_what_may_be_corrected_and_was_has_none(self):
        zone = self.zone()
        self.assertEqual(self.client.refus(zone), ("", ""))
        self.assertTrue(self.client.peut(zone, "chat"))
        self.assertEqual(self.client.refus(zone), ("", ""))
        self.client.corrige(zone, "chat", "chien")
        self.assertEqual(self.client.refus(zone), ("", ""))

    def test_a_protected_section(self):
        Ecrivain(self.doc).section(0, 12, IsProtected=True)
        self.refuse(self.zone(), "chat", "Protege", "protected")

    def test_a_read_only_document(self):
        url = (banc.DOSSIER / "fige.odt").as_uri()
        self.doc.storeToURL(url, ())
        fige, self.client = banc.document_et_client(self, BUS, BUREAU, url,
                                                    banc.pv("ReadOnly", True))
        self.refuse(self.zone(), "chat", "LectureSeule", "read-only")

    def test_a_field_that_would_be_destroyed(self):
        e = Ecrivain(self.doc)
        e.met("com.sun.star.text.textfield.PageNumber", NumberingType=4)
        self.refuse(self.zone(), "noir\a", "ChampDetruit", "field")

    def test_words_that_were_changed_meanwhile(self):
        zone = self.zone()
        self.doc.Text.setString("un chien noir")
        self.refuse(zone, "chat", "PlageRefusee", "changed")

    def test_a_paragraph_that_was_deleted(self):
        self.doc.Text.setString("un\rchat")
        zone = self.zone()
        suite = self.doc.Text.createEnumeration()
        suite.nextElement()
        suite.nextElement().dispose()
        self.assertFalse(self.client.peut(zone, "chat"))
        self.assertEqual(self.client.refus(zone)[0], "ZoneInconnue")

    def test_it_is_still_told_after_a_synchronisation_and_not_after_a_success(self):
        zone = self.zone()
        with self.assertRaises(banc.Appel):
            self.client.CorrigeDansTexteur(zone.nom, 0, 2, "a\rb", True)
        zone = self.zone()
        self.assertEqual(self.client.refus(zone)[0], "FinDeLigne")
        self.client.corrige(zone, "chat", "chats")
        self.assertEqual(self.client.refus(zone), ("", ""))


class EnFrancais(unittest.TestCase):
    def test_the_reason_is_told_in_the_offices_language(self):
        menus.met_en_francais("profil-fr")
        bus = banc.Bus()
        self.addCleanup(bus.ferme)
        bureau = banc.Bureau(bus.adresse, profil="profil-fr")
        self.addCleanup(bureau.ferme)
        doc, client = banc.document_et_client(self, bus, bureau)
        doc.Text.setString("un chat")
        Ecrivain(doc).section(0, 7, IsProtected=True)
        zone = client.zones()[0]
        client.peut(zone, "chat")
        self.assertEqual(client.refus(zone), ("Protege", "Le texte est protégé"))


if __name__ == "__main__":
    unittest.main()
