# SPDX-License-Identifier: MPL-2.0
"""How the extension lives: names, documents, callers, a busy office, the bus going and coming."""

import pathlib
import re
import subprocess
import threading
import unittest

import gi
gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

import banc  # noqa: E402
from ecrivain import Ecrivain  # noqa: E402
from occupe import Occupe  # noqa: E402

METHODES = {
    "ActivePourCorrecteur": (), "ActivePourOutils": (), "AjusteSelectionPourOutils": (0, 0),
    "DonneCheminDocument": (), "DonneContenuSelection": (), "DonneContexteSelection": (),
    "DonneDebutSelection": (), "DonneDebutSelectionDansSonContexte": (),
    "DonneFinSelection": (), "DonneFinSelectionDansSonContexte": (), "DonneTitreDocument": (),
    "InitialisePourCorrecteur": (), "InitialisePourOutils": (True,),
    "PermetsRetourDeCharriot": (), "RompsLienCorrecteur": (), "Suspends": (),
    "RompsLienTexteur": (),
}


class Cas(unittest.TestCase):
    options = {}

    @classmethod
    def setUpClass(cls):
        cls.bus = banc.Bus()
        cls.addClassCleanup(cls.bus.ferme)
        cls.bureau = banc.Bureau(cls.bus.adresse, **cls.options)
        cls.addClassCleanup(cls.bureau.ferme)

    def ouvre(self, texte="un mot"):
        doc = self.bureau.ouvre()
        doc.Text.setString(texte)
        return doc


class Interface(Cas):
    def setUp(self):
        self.doc = self.ouvre("un chat noir")
        self.addCleanup(lambda: self.doc.close(True))
        self.client = banc.Client(self.bus)

    def test_the_name_is_valid_and_opaque(self):
        self.assertRegex(self.client.instance, r"^[A-Za-z_][A-Za-z0-9_]*$")
        self.client.prends(self.doc)
        self.assertRegex(self.client.id, rf"^{self.client.instance}~[A-Za-z0-9_]+$")

    def test_every_method_of_the_contract_is_published(self):
        xml = self.client.bus.call_sync(
            banc.SERVICE + self.client.instance, banc.CHEMIN + self.client.instance,
            "org.freedesktop.DBus.Introspectable", "Introspect", None, None, 0, 5000,
            None).unpack()[0]
        noeud = Gio.DBusNodeInfo.new_for_xml(xml)
        self.assertEqual(len(noeud.lookup_interface(banc.PROXY).methods), 24)
        self.assertIsNotNone(noeud.lookup_interface(banc.DOCUMENTS).lookup_method("DonneDocuments"))

    def test_saving_is_left_to_the_person(self):
        self.client.prends(self.doc)
        with self.assertRaises(banc.Appel) as erreur:
            self.client.appelle("Enregistre", self.client.id, interface=banc.DOCUMENTS)
        self.assertEqual(erreur.exception.nom, "UnknownMethod")

    def test_methods_without_argument_answer_for_the_document_last_named(self):
        self.client.prends(self.doc)
        for methode, arguments in METHODES.items():
            with self.subTest(methode=methode):
                self.client.appelle(methode, *arguments)

    def test_methods_before_any_document_was_named_are_errors(self):
        for methode in METHODES:
            if methode.startswith("Donne"):
                with self.subTest(methode=methode), self.assertRaises(banc.Appel) as erreur:
                    self.client.appelle(methode)
                self.assertEqual(erreur.exception.nom, "AucunDocument")

    def test_unknown_identifiers_are_errors(self):
        for inconnu in ("", "d999_0", "é", "../etc", "x" * 100000):
            with self.assertRaises(banc.Appel):
                self.client.InitialiseTexteur(inconnu)
            with self.assertRaises(banc.Appel):
                self.client.SynchronisePositions(inconnu)
            self.assertTrue(self.client.DocEstMort(inconnu))
        self.client.prends(self.doc)
        with self.assertRaises(banc.Appel):  # the whole identifier is wanted here
            self.client.SynchronisePositions(self.client.id.split("~")[1])

    def test_title_and_path(self):
        self.client.prends(self.doc)
        self.assertEqual(self.client.DonneTitreDocument(), self.doc.getTitle())
        self.assertEqual(self.client.DonneCheminDocument(), "")
        chemin = banc.DOSSIER / "été à «l'ombre».odt"
        self.doc.storeAsURL(chemin.as_uri(), ())
        self.assertEqual(self.client.DonneCheminDocument(), str(chemin))
        vu = next(d for d in self.client.documents() if d["id"] == self.client.id)
        self.assertEqual(vu["chemin"], str(chemin))

    def test_a_carriage_return_is_allowed_in_text_that_can_be_edited(self):
        self.client.prends(self.doc)
        self.assertTrue(self.client.PermetsRetourDeCharriot())
        Ecrivain(self.doc).section(0, 12, IsProtected=True)
        vue = self.doc.CurrentController.ViewCursor
        vue.gotoStart(False)
        self.assertFalse(self.client.PermetsRetourDeCharriot())

    def test_a_document_in_two_windows_is_listed_once(self):
        avant = sorted(d["id"] for d in self.client.documents())
        self.bureau.commande(self.doc, ".uno:NewWindow")
        self.assertEqual(sorted(d["id"] for d in self.client.documents()), avant)

    def test_documents_with_the_same_title_are_two(self):
        autre = self.ouvre("autre")
        self.addCleanup(lambda: autre.close(True))
        for i, doc in enumerate((self.doc, autre)):
            (banc.DOSSIER / f"dossier{i}").mkdir(exist_ok=True)
            doc.storeAsURL((banc.DOSSIER / f"dossier{i}" / "jumeau.odt").as_uri(), ())
        jumeaux = [d for d in self.client.documents() if "jumeau" in d["titre"]]
        self.assertEqual(len({d["id"] for d in jumeaux}), 2)
        for vu in jumeaux:
            self.client.id = vu["id"]
            attendu = "autre" if "dossier1" in vu["chemin"] else "un chat noir"
            self.assertEqual(self.client.textes(), [attendu])

    def test_two_callers_have_beliefs_of_their_own(self):
        premier, second = banc.Client(self.bus), banc.Client(self.bus)
        for client in (premier, second):
            client.prends(self.doc)
        zone = premier.zones()[0]
        self.doc.Text.setString("un chien noir")
        vue = second.zones()[0]
        self.assertEqual(zone.nom, vue.nom)
        second.corrige(vue, "chien", "chiens")
        with self.assertRaises(banc.Appel):
            premier.corrige(zone, "chat", "chats")
        self.assertEqual(self.doc.Text.String, "un chiens noir")

    def refuse(self, nom, appel):
        with self.assertRaises(banc.Appel) as erreur:
            appel()
        self.assertEqual(erreur.exception.nom, nom)

    def test_having_let_go_of_the_corrector_it_synchronises_before_it_corrects(self):
        self.client.prends(self.doc)
        zone = self.client.zones()[0]
        self.client.RompsLienCorrecteur()
        self.assertFalse(self.client.peut(zone, "chat"))
        self.refuse("ZoneInconnue", lambda: self.client.corrige(zone, "chat", "chats"))
        self.assertEqual(self.client.DonneTitreDocument(), self.doc.getTitle())
        self.client.corrige(self.client.zones()[0], "chat", "chats")
        self.assertEqual(self.doc.Text.String, "un chats noir")

    def test_having_let_go_of_one_document_it_still_has_the_other(self):
        autre = self.ouvre("autre")
        self.addCleanup(lambda: autre.close(True))
        client = banc.Client(self.bus)
        client.prends(self.doc)
        zone = client.zones()[0]
        client.prends(autre)
        seconde = client.zones()[0]
        client.RompsLienTexteur()
        self.refuse("AucunDocument", client.DonneTitreDocument)
        self.assertFalse(client.peut(seconde, "autre"))
        self.assertTrue(client.peut(zone, "chat"))  # names its document
        self.assertEqual(client.DonneTitreDocument(), self.doc.getTitle())

    def test_a_range_that_the_caller_selected_may_be_replaced(self):
        self.client.prends(self.doc)
        zone = self.client.zones()[0]
        self.client.DonneContexteSelection()
        self.client.SelectionneIntervalle(zone.nom, 3, 7)
        self.client.RemplaceEtReselectionne("chien")
        self.assertEqual(self.doc.Text.String, "un chien noir")
        self.client.SelectionneIntervalle(self.client.zones()[0].nom, 9, 13)
        self.refuse("FinDeLigne", lambda: self.client.RemplaceEtReselectionne("a\rb"))
        self.assertEqual(self.doc.Text.String, "un chien noir")

    def test_a_context_that_begins_with_a_byte_order_mark_keeps_its_offsets(self):
        self.doc.Text.setString("\ufeffun chat")
        self.client.prends(self.doc)
        zone = self.client.zones()[0]
        self.assertEqual(zone.texte, "\ufeffun chat")
        self.client.SelectionneIntervalle(zone.nom, 4, 8)
        self.assertEqual(self.client.DonneContexteSelection(), "\aun chat")
        self.assertEqual(self.client.DonneDebutSelectionDansSonContexte(), 4)

    def test_a_hidden_document_is_not_served(self):
        cache = self.bureau.ouvre("private:factory/swriter", banc.pv("Hidden", True))
        self.addCleanup(lambda: cache.close(True))
        self.assertNotIn(cache.getTitle(), [d["titre"] for d in self.client.documents()])

    def test_a_closed_document_is_dead_at_once_and_its_zones_are_gone(self):
        doc = self.ouvre("court")
        client = banc.Client(self.bus)
        client.prends(doc)
        zone = client.zones()[0]
        cle = client.id.split("~")[1]
        self.assertFalse(client.DocEstMort(cle))
        doc.close(True)
        self.assertTrue(client.DocEstMort(cle))
        self.assertFalse(client.peut(zone, "court"))
        for appel, nom in ((lambda: client.corrige(zone, "court", "x"), "ZoneInconnue"),
                           (client.zones, "DocumentInconnu"),
                           (client.DonneTitreDocument, "DocumentFerme")):
            self.refuse(nom, appel)

    def test_saving_and_loading_keeps_everything_but_the_corrected_letters(self):
        e = Ecrivain(self.doc)
        e.note("la note")
        e.plage(3, 7).CharWeight = 150.0
        e.met("com.sun.star.text.Bookmark", absorbe=e.plage(8, 12), Name="m")
        e.paragraphe().ecrit("chat")

        def contenu(nom):
            chemin = banc.DOSSIER / nom
            self.doc.storeToURL(chemin.as_uri(),
                                (banc.pv("FilterName", "OpenDocument Text Flat XML"),))
            texte = chemin.read_text(encoding="utf-8")
            return re.search(r"<office:body>.*</office:body>", texte, re.S).group(0)

        avant = contenu("avant.fodt")
        self.client.prends(self.doc)
        for zone in self.client.zones():
            if "chat" in zone.texte:
                self.client.corrige(zone, "chat", "chiot")
        self.assertEqual(contenu("apres.fodt"), avant.replace("chat", "chiot"))


class Patience(Cas):
    options = {"delai_ms": 300}

    def setUp(self):
        self.doc = self.ouvre("un chat noir")
        self.addCleanup(lambda: self.doc.close(True))
        self.client = banc.Client(self.bus)
        self.client.prends(self.doc)

    def test_a_call_that_cannot_be_served_in_time_does_nothing_later(self):
        zone = self.client.zones()[0]
        with Occupe(self.doc):
            with self.assertRaises(banc.Appel) as erreur:
                self.client.corrige(zone, "chat", "chien")
            self.assertEqual(erreur.exception.nom, "Occupe")
            self.assertFalse(self.client.DocEstMort(self.client.id.split("~")[1]))
        self.assertEqual(self.client.refus(zone)[0], "Occupe")
        self.assertEqual(self.client.zones()[0].texte, "un chat noir")

    def test_a_call_that_waited_is_served_when_the_office_is_free_again(self):
        zone = self.client.zones()[0]
        resultat = []
        with Occupe(self.doc):
            fil = threading.Thread(target=lambda: resultat.append(
                self.client.InitialiseTexteur(self.client.id.split("~")[1])))
            fil.start()
        fil.join()
        self.assertEqual(resultat, [None])
        self.client.corrige(zone, "chat", "chien")
        self.assertEqual(self.doc.Text.String, "un chien noir")


class Fermeture(unittest.TestCase):
    def setUp(self):
        self.bus = banc.Bus()
        self.addCleanup(self.bus.ferme)

    def lance(self, **options):
        bureau = banc.Bureau(self.bus.adresse, **options)
        self.addCleanup(bureau.ferme)
        return bureau

    def test_a_document_that_closes_under_a_call_is_an_error_reply(self):
        bureau = self.lance()
        doc = bureau.ouvre()
        doc.Text.setString("\r".join(f"ligne {i} mot" for i in range(2000)))
        autre = bureau.ouvre()
        client = banc.Client(self.bus)
        client.prends(doc)
        zones = client.zones()
        reponses = []
        fini = threading.Event()

        def appelle(demande, resultat, _):
            try:
                demande.call_finish(resultat)
                reponses.append("fait")
            except GLib.Error as erreur:
                reponses.append((Gio.DBusError.get_remote_error(erreur) or "?").rsplit(".")[-1])
            if len(reponses) == 50:
                fini.set()

        contexte = GLib.MainContext.default()
        for zone in zones[:50]:
            client.bus.call(banc.SERVICE + client.instance, banc.CHEMIN + client.instance,
                            banc.PROXY, "PeutCorriger",
                            GLib.Variant("(siis)", (zone.nom, 0, 5, "ligne")), None, 0, 60000,
                            None, appelle, None)
        doc.close(True)
        banc.attends(lambda: contexte.iteration(False) or fini.is_set(), "fifty replies")
        banc.attends(lambda: len(reponses) == 50 or contexte.iteration(False) and False, "replies")
        self.assertLessEqual(set(reponses), {"fait", "ZoneInconnue", "DocumentFerme", "Bureau"})
        client.prends(autre)
        self.assertEqual(client.textes(), [""])

    def test_an_office_that_quits_while_busy_with_calls_ends_in_order(self):
        bureau = self.lance()
        doc = bureau.ouvre()
        client = banc.Client(self.bus)
        client.prends(doc)
        arret = threading.Event()

        def insiste():
            autre = banc.Client(self.bus, client.instance)
            while not arret.is_set():
                try:
                    autre.SynchronisePositions(client.id)
                except banc.Appel:
                    arret.wait(0)
        fils = [threading.Thread(target=insiste) for _ in range(2)]
        for fil in fils:
            fil.start()
        try:
            bureau.ferme()
        finally:
            arret.set()
            for fil in fils:
                fil.join()
        self.assertEqual(bureau.processus.returncode, 0, bureau.dit())
        banc.attends(lambda: banc.SERVICE + client.instance not in client.noms(), "a free name")

    def test_an_office_started_again_in_mid_correction_takes_no_stale_call(self):
        bureau = self.lance(instance="reprise")
        url = (banc.DOSSIER / "reprise.odt").as_uri()
        doc = bureau.ouvre()
        doc.Text.setString("un chat noir")
        doc.storeAsURL(url, ())
        client = banc.Client(self.bus, "reprise")
        client.prends(doc)
        zone = client.zones()[0]
        client.corrige(zone, "noir", "noirs")
        bureau.tue()
        banc.attends(lambda: banc.SERVICE + "reprise" not in client.noms(), "the crash to be seen")
        (banc.DOSSIER / ".~lock.reprise.odt#").unlink(missing_ok=True)
        encore = self.lance(instance="reprise")
        doc = encore.ouvre(url)
        banc.attends(lambda: banc.SERVICE + "reprise" in client.noms(), "the name to be back")
        with self.assertRaises(banc.Appel):
            client.corrige(zone, "chat", "chats")
        with self.assertRaises(banc.Appel):
            client.zones()
        self.assertTrue(client.DocEstMort(client.id.split("~")[1]))
        self.assertEqual(doc.Text.String, "un chat noir")
        client.prends(doc)
        client.corrige(client.zones()[0], "chat", "chats")
        self.assertEqual(doc.Text.String, "un chats noir")

    def test_a_taken_name_is_reported_with_its_holder_and_taken_when_free(self):
        tenant = self.bus.connexion()
        tenant.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus",
                         "RequestName", GLib.Variant("(su)", (banc.SERVICE + "prise", 4)), None, 0,
                         5000, None)
        bureau = self.lance(instance="prise")
        doc = bureau.ouvre()
        banc.attends(lambda: "is taken by " + tenant.get_unique_name() in bureau.dit(),
                     "a word on who holds the name")
        tenant.close_sync(None)
        client = banc.Client(self.bus, "prise")
        banc.attends(lambda: banc.SERVICE + "prise" in client.noms(), "the name to be taken")
        client.prends(doc)

    def test_an_instance_that_no_bus_allows_is_replaced(self):
        bureau = self.lance(instance="7 or so")
        doc = bureau.ouvre()
        banc.Client(self.bus).prends(doc)


class SansBus(unittest.TestCase):
    def test_the_extension_goes_quiet_with_the_bus_and_comes_back_with_it(self):
        adresse = f"unix:path={banc.DOSSIER}/bus_qui_part"
        bus = banc.Bus(adresse)
        bureau = banc.Bureau(adresse, instance="retour")
        self.addCleanup(bureau.ferme)
        doc = bureau.ouvre()
        banc.Client(bus, "retour").prends(doc)
        bus.ferme()
        banc.attends(lambda: "the session bus is gone" in bureau.dit(), "a word on the lost bus")
        doc.Text.setString("le bureau vit")
        pathlib.Path(banc.DOSSIER / "bus_qui_part").unlink(missing_ok=True)
        bus = banc.Bus(adresse)
        self.addCleanup(bus.ferme)
        client = banc.Client(bus, "retour")
        banc.attends(lambda: banc.SERVICE + "retour" in client.noms(), "the name to be back")
        client.prends(doc)
        self.assertEqual(client.textes(), ["le bureau vit"])

    def test_an_office_without_a_bus_works(self):
        bureau = banc.Bureau(None)
        self.addCleanup(bureau.ferme)
        doc = bureau.ouvre()
        doc.Text.setString("seul")
        banc.attends(lambda: "there is no session bus" in bureau.dit(), "a word on the bus")

    def test_a_conversion_does_not_start_it(self):
        bus = banc.Bus()
        self.addCleanup(bus.ferme)
        bureau = banc.Bureau(bus.adresse)  # installs the package in the profile
        bureau.ferme()
        source = banc.DOSSIER / "convertie.txt"
        source.write_text("un mot\n", encoding="utf-8")
        fait = subprocess.run(
            ["soffice", "--headless", "--convert-to", "pdf", "--outdir", str(banc.DOSSIER),
             str(source), bureau.profil], env=bureau.env, capture_output=True, text=True,
            check=True)
        self.assertTrue((banc.DOSSIER / "convertie.pdf").exists())
        self.assertNotIn("vocalyne: ", fait.stdout + fait.stderr)


if __name__ == "__main__":
    unittest.main()
