# SPDX-License-Identifier: MPL-2.0
"""What the menu does, in an office without a window: it says on standard error what it would show."""

import pathlib
import unittest

import banc
import menus


def enfants_morts(pid):
    """The office's children that ended and that nobody waited for."""
    morts = []
    for etat in pathlib.Path("/proc").glob("[0-9]*/stat"):
        try:
            nom, reste = etat.read_text().rsplit(")", 1)
        except (FileNotFoundError, ProcessLookupError):
            continue
        genre, parent = reste.split()[:2]
        if genre == "Z" and int(parent) == pid:
            morts.append(nom)
    return morts


class Menus(unittest.TestCase):
    def ouvre(self, adresse, environnement, **options):
        # English whatever the system speaks, unless the profile says otherwise.
        self.bureau = banc.Bureau(adresse, environnement=dict(environnement, LC_ALL="C.UTF-8"),
                                  **options)
        self.addCleanup(self.bureau.ferme)
        return self.document()

    def bus(self):
        bus = banc.Bus()
        self.addCleanup(bus.ferme)
        return bus

    def document(self):
        doc = self.bureau.ouvre()
        doc.Text.setString("un chat noir")
        return doc

    def demande(self, doc, commande):
        menus.demande(self.bureau, doc.CurrentController.Frame, commande)

    def attends_mot(self, *mots):
        banc.attends(lambda: all(mot in self.bureau.dit() for mot in mots), f"a word on {mots}")


class Lancement(Menus):
    def setUp(self):
        self.outils = menus.Outils(self.id().rsplit(".", 1)[-1])
        self.le_bus = self.bus()

    def ouvre_avec(self, **environnement):
        doc = self.ouvre(self.le_bus.adresse,
                         environnement=dict(self.outils.environnement, **environnement))
        self.attends_mot("serving as")
        return doc

    def test_correct_starts_the_host_on_the_document_in_front_of_the_person(self):
        premier = self.ouvre_avec()
        second = self.document()
        client = banc.Client(self.le_bus)
        identifiants = {}
        for doc in (premier, second):
            identifiants[client.prends(doc)] = doc
        for identifiant, doc in identifiants.items():
            self.demande(doc, "corrige")
            hote, terminal = self.outils.attends()
            self.assertEqual(hote["arguments"], ["corrige", identifiant])
            self.assertIn("the host was here", terminal["dit"])
            self.assertTrue(terminal["reste_ouvert"], "the terminal closed before it was read")

    def test_the_host_is_on_its_own(self):
        doc = self.ouvre_avec(LD_LIBRARY_PATH="/usr/lib/libreoffice/program", SAL_DISABLE_OPENCL="1",
                              DESKTOP_STARTUP_ID="bureau", VOCALYNE_ESSAI="reste")
        self.demande(doc, "corrige")
        hote, terminal = self.outils.attends()
        environnement = hote["environnement"]
        for variable in ("LD_LIBRARY_PATH", "SAL_DISABLE_OPENCL", "DESKTOP_STARTUP_ID"):
            self.assertNotIn(variable, environnement)
        self.assertEqual(environnement["VOCALYNE_ESSAI"], "reste")
        self.assertEqual(environnement["DBUS_SESSION_BUS_ADDRESS"], self.le_bus.adresse)
        self.assertTrue(terminal["a_part"], "what ends the office would end the terminal")
        self.assertEqual(enfants_morts(self.pid_du_bureau()), [])

    def pid_du_bureau(self):
        client = banc.Client(self.le_bus)
        return client.bus.call_sync(
            "org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
            "GetConnectionUnixProcessID",
            banc.GLib.Variant("(s)", (banc.SERVICE + client.instance,)), None, 0, 5000,
            None).unpack()[0]

    def test_a_host_that_cannot_be_run_is_named(self):
        doc = self.ouvre_avec(VOCALYNE_HOTE="/nulle/part/hote")
        self.demande(doc, "corrige")
        self.attends_mot("VOCALYNE_HOTE names “/nulle/part/hote”, which is not a program")

    def test_a_terminal_that_cannot_be_run_is_named(self):
        doc = self.ouvre_avec(VOCALYNE_TERMINAL="aucun-terminal --plein")
        self.demande(doc, "corrige")
        self.attends_mot("VOCALYNE_TERMINAL says “aucun-terminal --plein”, which cannot be run")
        self.assertFalse(self.outils.notes_hote.exists())

    def test_a_window_without_a_document_is_told_from_one_with_texts(self):
        doc = self.ouvre_avec()
        vide = self.bureau.bureau.findFrame("_blank", 8)
        self.addCleanup(vide.close, True)
        menus.demande(self.bureau, vide, "corrige")
        self.attends_mot("cannot read a document of this kind")
        self.assertFalse(self.outils.notes_hote.exists())
        self.demande(doc, "corrige")
        self.outils.attends()


class Diagnostic(Menus):
    def test_all_is_said_where_all_is_well(self):
        outils = menus.Outils("diagnostic")
        bus = self.bus()
        doc = self.ouvre(bus.adresse, environnement=outils.environnement)
        client = banc.Client(bus)
        identifiant = client.prends(doc)
        self.attends_mot("serving as")
        self.document()
        self.demande(doc, "diagnostic")
        self.attends_mot("Documents served: 2", f"This document: {identifiant}",
                         f"Service: {banc.SERVICE}{client.instance}", "Session bus: connected",
                         f"Host: {outils.hote}", f"Terminal: {outils.terminal}", "All is well.")
        self.assertNotIn("What is wrong", self.bureau.dit())

    def test_it_works_without_bus_host_and_terminal(self):
        doc = self.ouvre(None, environnement={"VOCALYNE_HOTE": "aucun-hote",
                                              "VOCALYNE_TERMINAL": "aucun-terminal"})
        self.demande(doc, "diagnostic")
        self.attends_mot("Vocalyne for LibreOffice, version ", "Documents served: 1",
                         "Session bus: missing", "Host: not found", "Terminal: not found",
                         "What is wrong:", "There is no session bus",
                         "VOCALYNE_HOTE names “aucun-hote”", "VOCALYNE_TERMINAL says “aucun-terminal”")

    def test_whoever_took_the_name_is_told(self):
        bus = self.bus()
        tenant = bus.connexion()
        nom = banc.SERVICE + "prise"
        tenant.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                         "RequestName", banc.GLib.Variant("(su)", (nom, 4)), None, 0, 5000, None)
        doc = self.ouvre(bus.adresse, instance="prise",
                         environnement=menus.Outils("nom").environnement)
        self.attends_mot("waiting for it to be free")
        self.demande(doc, "corrige")
        self.attends_mot(f"The name {nom} is taken by {tenant.get_unique_name()}",
                         "End that program")

    def test_it_speaks_the_offices_french(self):
        menus.met_en_francais("profil-diagnostic-fr")
        doc = self.ouvre(None, profil="profil-diagnostic-fr", environnement={"VOCALYNE_HOTE": "aucun-hote"})
        self.demande(doc, "diagnostic")
        self.attends_mot("Vocalyne pour LibreOffice, version ", "Documents servis : 1",
                         "Bus de session : absent", "Ce qui ne va pas :",
                         "Il n’y a pas de bus de session", "VOCALYNE_HOTE nomme « aucun-hote »")


if __name__ == "__main__":
    unittest.main()
