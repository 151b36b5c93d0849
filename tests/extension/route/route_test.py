# SPDX-License-Identifier: MPL-2.0
"""The whole road: vocalyne-hote, the plug-in, the bus, the extension, and back from the file."""

import unittest
import zipfile

import uno  # noqa: F401
from com.sun.star.lang import Locale

import banc
from ecrivain import Ecrivain
from hote import Hote, Pilote

GRAS = 1


def setUpModule():
    global BUS, BUREAU, HOTE
    BUS, BUREAU = banc.bus_et_bureau()
    HOTE = Hote(BUS.adresse)


def compose(doc):
    """One of each: header, bold, emoji, field, notes, table, section, frame, comment, bookmark."""
    style = doc.StyleFamilies.getByName("PageStyles").getByName("Standard")
    style.HeaderIsOn = True
    style.HeaderText.setString("l’entête notament")
    e = Ecrivain(doc)
    e.ecrit("Un \U0001f600 bel ").ecrit("acceuil", CharWeight=150.0)
    e.ecrit(" e\u0301crit", CharWeight=100.0).note("la note soufert")
    e.met("com.sun.star.text.textfield.PageNumber", NumberingType=4)
    e.ecrit(" fin").met("com.sun.star.text.Bookmark", Name="marque")
    e.paragraphe().ecrit("avec un cadre ").cadre("le cadre posible")
    e.ecrit(" et").note("la fin juilet", "com.sun.star.text.Endnote")
    e.paragraphe().ecrit("commenté").met("com.sun.star.text.textfield.Annotation",
                                         Content="la remarque bibliotèque", Author="A")
    e.paragraphe()
    tableau = e.tableau(1, 2)
    tableau.getCellByName("A1").setString("septenbre")
    tableau.getCellByName("B1").setString("rien")


FAUTES = {"acceuil": "accueil", "notament": "notamment", "soufert": "souffert",
          "posible": "possible", "juilet": "juillet", "bibliotèque": "bibliothèque",
          "septenbre": "septembre"}
LUES = ["l’entête notament", "Un \U0001f600 bel acceuil e\u0301crit\a\a fin", "la note soufert",
        "avec un cadre \a et\a", "le cadre posible", "commenté", "la remarque bibliotèque",
        "septenbre", "rien", "", "la fin juilet"]


class Cas(unittest.TestCase):
    def setUp(self):
        self.doc = self.ouvre()
        self.hote = HOTE
        self.e = Ecrivain(self.doc)

    def ouvre(self, url="private:factory/swriter", *proprietes):
        doc = BUREAU.ouvre(url, *proprietes)
        self.addCleanup(lambda: doc.close(True))
        return doc

    def pilote(self, doc=None):
        pilote = Pilote(self.hote)
        self.addCleanup(pilote.ferme)
        self.assertTrue(pilote.ouvre(HOTE.identifiant((doc or self.doc).getTitle())))
        return pilote


class Documents(Cas):
    def test_documents_are_listed_with_their_title_and_path(self):
        chemin = banc.DOSSIER / "été à l’ombre.odt"
        self.doc.storeAsURL(chemin.as_uri(), ())
        autre = self.ouvre()
        vus = {d["titre"]: d for d in self.hote.documents()}
        self.assertEqual(vus.keys(), {self.doc.getTitle(), autre.getTitle()})
        self.assertEqual(vus[self.doc.getTitle()]["chemin"], str(chemin))
        self.assertEqual(vus[autre.getTitle()]["chemin"], "")
        self.assertEqual(len({d["id"] for d in vus.values()}), 2)
        pilote = self.pilote()
        self.assertEqual(pilote("DonneTitreDocument"), self.doc.getTitle())
        self.assertEqual(pilote("DonneCheminDocument"), str(chemin))

    def test_a_closed_document_is_dead_and_can_be_had_no_more(self):
        court = BUREAU.ouvre()
        identifiant = HOTE.identifiant(court.getTitle())
        pilote = Pilote(self.hote)
        self.addCleanup(pilote.ferme)
        self.assertTrue(pilote.ouvre(identifiant))
        self.assertFalse(pilote("DocEstMort"))
        court.close(True)
        self.assertTrue(pilote("DocEstMort"))
        self.assertEqual(pilote.zones(), [])
        self.assertFalse(pilote.ouvre(identifiant))
        HOTE.lance("corrige", identifiant, "--automatique", statut=3)


class Zones(Cas):
    def test_the_zones_are_what_the_document_holds(self):
        compose(self.doc)
        zones = self.pilote().zones()
        self.assertEqual([z["texte"] for z in zones], LUES)
        self.assertEqual([z["longueur"] for z in zones], [banc.unites(t) for t in LUES])
        self.assertEqual(zones[1]["styles"][0], {"debut": 10, "longueur": 7, "style": GRAS})

    def test_the_selection_stands_in_its_zone_and_its_context(self):
        self.e.ecrit("un").paragraphe().ecrit("deux mots")
        self.doc.CurrentController.select(self.e.plage(3, 7))
        pilote = self.pilote()
        zones = [(z["texte"], z["debutSelection"], z["finSelection"]) for z in pilote.zones()]
        self.assertEqual(zones, [("un", 0, 0), ("deux mots", 0, 4)])
        self.assertEqual(pilote("DonneContexte"), {"texte": "deux mots", "debut": 0, "fin": 4})


class Correction(Cas):
    def test_a_correction_through_a_zone_changes_the_document(self):
        self.e.ecrit("\U0001f600 un chat noir")
        pilote = self.pilote()
        zones = pilote.zones()
        self.assertTrue(pilote.peut(0, "chat", zones))
        self.assertTrue(pilote.corrige(0, "chat", "chien", zones))
        self.assertFalse(pilote.peut(0, "chat", zones))
        self.assertEqual(self.doc.Text.String, "\U0001f600 un chien noir")
        self.assertEqual(pilote("DonneTexte", zone=0)["texte"], "\U0001f600 un chien noir")

    def test_what_changed_meanwhile_is_refused_and_found_after_a_new_reading(self):
        self.e.ecrit("un chat noir")
        pilote = self.pilote()
        zones = pilote.zones()
        self.e.plage(3, 7).setString("loup")
        self.assertFalse(pilote.peut(0, "chat", zones))
        pilote.corrige(0, "chat", "chien", zones)
        self.assertEqual([z["texte"] for z in pilote.zones()], ["un loup noir"])
        self.assertEqual(self.doc.Text.String, "un loup noir")

    def test_parts_in_another_language_are_checked_in_it_or_left_alone(self):
        self.doc.StyleFamilies.getByName("ParagraphStyles").getByName(
            "Standard").CharLocale = Locale("fr", "FR", "")
        self.e.ecrit("Un acceuil : ").ecrit("we recieve them", CharLocale=Locale("en", "GB", ""))
        self.e.ecrit(" ; ", CharLocale=Locale("fr", "FR", ""))
        self.e.ecrit("das Fenstre", CharLocale=Locale("de", "DE", ""))
        HOTE.corrige(HOTE.identifiant(self.doc.getTitle()))
        self.assertEqual(self.doc.Text.String, "Un accueil : we receive them ; das Fenstre")

    def test_a_protected_section_is_refused_and_the_rest_corrected(self):
        self.e.ecrit("bel acceuil").paragraphe().ecrit("bel acceuil").paragraphe().ecrit("acceuil")
        self.e.section(12, 23, IsProtected=True)
        bilan = HOTE.corrige(HOTE.identifiant(self.doc.getTitle()), statut=1)
        self.assertEqual((bilan["corrigees"], bilan["refusees"]), (2, 1))
        self.assertEqual([z["texte"] for z in self.pilote().zones()],
                         ["bel accueil", "bel acceuil", "accueil"])

    def test_a_read_only_document_is_refused_whole(self):
        self.e.ecrit("bel acceuil")
        url = (banc.DOSSIER / "fermée.odt").as_uri()
        self.doc.storeToURL(url, ())
        doc = self.ouvre(url, banc.pv("ReadOnly", True))
        bilan = HOTE.corrige(HOTE.identifiant(doc.getTitle()), statut=1)
        self.assertEqual((bilan["corrigees"], bilan["refusees"]), (0, 1))
        self.assertEqual(doc.Text.String, "bel acceuil")

    def test_the_selection_is_moved_shown_and_replaced(self):
        self.e.ecrit("un").paragraphe().ecrit("deux chats noirs")
        pilote = self.pilote()
        pilote.zones()
        choisi = self.doc.CurrentController.ViewCursor
        pilote("SelectionneIntervalle", zone=1, debut=5, fin=10)
        self.assertEqual(pilote("DonneContexte"), {"texte": "deux chats noirs", "debut": 5, "fin": 10})
        self.assertEqual(choisi.String, "chats")
        pilote("AjusteSelectionPourOutils", debut=0, fin=-1)
        self.assertEqual(pilote("DonneContexte")["fin"], 9)
        self.assertEqual(choisi.String, "chat")
        pilote("RemplaceEtReselectionne", texte="loup")
        self.assertEqual(pilote("DonneContexte"), {"texte": "deux loups noirs", "debut": 5, "fin": 9})
        self.assertEqual(choisi.String, "loup")
        self.assertEqual(self.doc.Text.String, "un\ndeux loups noirs")


class Fichier(Cas):
    def test_in_the_file_nothing_differs_but_the_corrected_letters(self):
        compose(self.doc)
        # A twin that is opened and saved without a correction shows what the office changes itself.
        chemin, jumeau = banc.DOSSIER / "entier.odt", banc.DOSSIER / "jumeau.odt"
        for fichier in (chemin, jumeau):
            self.doc.storeToURL(fichier.as_uri(), ())
        doc = BUREAU.ouvre(jumeau.as_uri())
        doc.store()
        doc.close(True)
        doc = BUREAU.ouvre(chemin.as_uri())
        bilan = HOTE.corrige(HOTE.identifiant(doc.getTitle()))
        self.assertEqual({f["mot"]: f["remplacement"] for f in bilan["fautes"]}, FAUTES)
        self.assertEqual((bilan["corrigees"], bilan["zones"]), (len(FAUTES), len(LUES)))
        doc.store()
        doc.close(True)
        avant, apres = self.contenu(jumeau), self.contenu(chemin)
        attendu = {n: avant[n].decode() for n in ("content.xml", "styles.xml")}
        for nom, texte in attendu.items():
            self.assertEqual(apres[nom].decode(), self.corrigee(texte), nom)
        self.assertEqual(apres.keys(), avant.keys())
        changes = {n for n in avant if avant[n] != apres[n]}
        # Editing time and cycles, the caret's place and the preview are the office's own.
        self.assertLessEqual(changes - attendu.keys(),
                             {"meta.xml", "settings.xml", "Thumbnails/thumbnail.png"})
        doc = BUREAU.ouvre(chemin.as_uri())
        self.addCleanup(lambda: doc.close(True))
        self.assertEqual([z["texte"] for z in self.pilote(doc).zones()],
                         [self.corrigee(t) for t in LUES])

    @staticmethod
    def contenu(chemin):
        with zipfile.ZipFile(chemin) as paquet:
            return {n: paquet.read(n) for n in paquet.namelist()}

    @staticmethod
    def corrigee(texte):
        for faute, juste in FAUTES.items():
            texte = texte.replace(faute, juste)
        return texte


class Grand(Cas):
    def test_a_document_past_the_bus_s_limit_is_an_error_and_the_office_stays(self):
        # A spreadsheet, as the office lays out no more of it than is seen. Three bytes a letter,
        # four for three of them on the bus: past 128 MiB.
        classeur = self.ouvre("private:factory/scalc")
        lettres = "\u2019" * 32000
        colonne = classeur.Sheets.getByIndex(0).getCellRangeByName("A1000:A2099")
        colonne.setFormulaArray(((lettres,),) * 1100)
        pilote = self.pilote(classeur)
        client = banc.Client(BUS)
        client.prends(classeur)
        with self.assertRaises(banc.Appel) as erreur:
            client.zones()
        self.assertEqual(erreur.exception.nom, "TropGrand")
        self.assertEqual(pilote.zones(), [])
        self.assertEqual(pilote("DonneTitreDocument"), classeur.getTitle())
        colonne.setFormulaArray((("petit",),) * 1100)
        self.assertEqual([z["texte"] for z in pilote.zones()], ["petit"] * 1100)


class Reprise(unittest.TestCase):
    def test_an_office_started_again_in_mid_correction_is_met_anew(self):
        bus = banc.Bus()
        self.addCleanup(bus.ferme)
        hote = Hote(bus.adresse)
        url = (banc.DOSSIER / "reprise_hote.odt").as_uri()
        bureau = banc.Bureau(bus.adresse, profil="reprise_hote", instance="route")
        doc = bureau.ouvre()
        doc.Text.setString("bel acceuil et bibliotèque")
        doc.storeAsURL(url, ())
        identifiant = hote.identifiant(doc.getTitle())
        pilote = Pilote(hote)
        self.addCleanup(pilote.ferme)
        self.assertTrue(pilote.ouvre(identifiant))
        zones = pilote.zones()
        pilote.corrige(0, "acceuil", "accueil", zones)
        self.assertTrue(pilote.peut(0, "bibliotèque", zones))
        bureau.tue()
        self.assertFalse(pilote.peut(0, "bibliotèque", zones))
        (banc.DOSSIER / ".~lock.reprise_hote.odt#").unlink(missing_ok=True)
        bureau = banc.Bureau(bus.adresse, profil="reprise_hote", instance="route")
        self.addCleanup(bureau.ferme)
        doc = bureau.ouvre(url)
        nouvel = hote.identifiant(doc.getTitle())
        self.assertNotEqual(nouvel, identifiant)
        # The same name on the bus, another office: what the agent and its zones knew is void.
        pilote.corrige(0, "bibliotèque", "bibliothèque", zones)
        self.assertFalse(pilote.peut(0, "bibliotèque", zones))
        self.assertTrue(pilote("DocEstMort"))
        self.assertEqual(pilote.zones(), [])
        self.assertEqual(doc.Text.String, "bel acceuil et bibliotèque")
        self.assertTrue(pilote.ouvre(nouvel))
        self.assertEqual([z["texte"] for z in pilote.zones()], ["bel acceuil et bibliotèque"])
        self.assertEqual(hote.corrige(nouvel)["corrigees"], 2)
        self.assertEqual(doc.Text.String, "bel accueil et bibliothèque")


if __name__ == "__main__":
    unittest.main()
