# SPDX-License-Identifier: MPL-2.0
"""What the extension has to say of a document beyond its text: what it is, what a person would call
its zones, why it refused."""

import unittest

import uno  # noqa: F401
from com.sun.star.awt import Size
from com.sun.star.lang import Locale
from com.sun.star.util import CellProtection

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


class Genre(unittest.TestCase):
    def vu(self, genre, prepare=lambda doc: None):
        doc, client = banc.document_et_client(self, BUS, BUREAU, f"private:factory/{genre}")
        prepare(doc)
        return next(d for d in client.documents() if d["id"] == client.id)

    def test_each_document_tells_its_kind(self):
        for genre, attendu in (("swriter", "writer"), ("swriter/web", "writer"), ("scalc", "calc"),
                               ("simpress", "impress"), ("sdraw", "draw")):
            with self.subTest(genre=genre):
                self.assertEqual(self.vu(genre)["genre"], attendu)

    def test_the_language_is_that_of_text_in_no_other(self):
        def en_style(famille, style):
            def prepare(doc):
                doc.StyleFamilies.getByName(famille).getByName(style).CharLocale = Locale(
                    "fr", "CA", "")
            return prepare
        self.assertEqual(self.vu("swriter", en_style("ParagraphStyles", "Standard"))["langue"], "fr-CA")
        self.assertEqual(self.vu("scalc", en_style("CellStyles", "Default"))["langue"], "fr-CA")
        self.assertEqual(self.vu("simpress")["langue"], "en-US")

    def test_a_language_without_a_country_or_with_a_script_has_its_own_tag(self):
        for locale, attendu in ((Locale("eo", "", ""), "eo"),
                                (Locale("qlt", "RS", "sr-Latn-RS"), "sr-Latn-RS")):
            def prepare(doc, locale=locale):
                doc.StyleFamilies.getByName("ParagraphStyles").getByName(
                    "Standard").CharLocale = locale
            self.assertEqual(self.vu("swriter", prepare)["langue"], attendu)

    def test_a_language_of_none_is_not_told(self):
        def prepare(doc):
            doc.StyleFamilies.getByName("ParagraphStyles").getByName("Standard").CharLocale = Locale(
                "zxx", "", "")
        self.assertNotIn("langue", self.vu("swriter", prepare))


class Noms(unittest.TestCase):
    def ouvre(self, genre):
        self.doc, self.client = banc.document_et_client(self, BUS, BUREAU,
                                                        f"private:factory/{genre}")

    def forme(self, texte, page, nom=""):
        forme = self.doc.createInstance("com.sun.star.drawing.RectangleShape")
        forme.setSize(Size(5000, 2000))
        page.add(forme)
        forme.setString(texte)
        forme.Name = nom
        return forme

    def test_in_a_text(self):
        self.ouvre("swriter")
        e = Ecrivain(self.doc)
        e.ecrit("un").note("première").Text.setString("une\rdeux")
        e.paragraphe().ecrit("deux")
        e.note("finale", service="com.sun.star.text.Endnote")
        e.met("com.sun.star.text.textfield.Annotation", Content="remarque")
        cadre = e.cadre("dedans")
        cadre.Name = "Marge"
        tableau = e.tableau(1, 2)
        tableau.Name = "Prix"
        tableau.getCellByName("B1").setString("x\ry")
        style = self.doc.StyleFamilies.getByName("PageStyles").getByName("Standard")
        style.HeaderIsOn = style.FooterIsOn = True
        textes = dict(zip(self.client.noms_de_zones(), self.client.textes()))
        self.assertEqual({n: t.replace("\a", "") for n, t in textes.items() if t}, {
            "paragraph 1": "un", "footnote 1": "une", "footnote 1, paragraph 2": "deux",
            "paragraph 2": "deux", "endnote 1": "finale", "comment 1": "remarque",
            "frame “Marge”": "dedans", "table “Prix”, B1": "x",
            "table “Prix”, B1, paragraph 2": "y"})
        self.assertLessEqual({"page header", "page footer", "table “Prix”, A1"}, set(textes))

    def test_they_follow_what_a_person_puts_in_before(self):
        self.ouvre("swriter")
        e = Ecrivain(self.doc)
        e.ecrit("un").paragraphe().ecrit("deux").note("note")
        self.assertEqual(self.client.noms_de_zones(), ["paragraph 1", "paragraph 2", "footnote 1"])
        self.doc.Text.insertControlCharacter(self.doc.Text.Start, 0, False)
        avant = self.doc.createInstance("com.sun.star.text.Footnote")
        self.doc.Text.insertTextContent(self.doc.Text.Start, avant, False)
        self.assertEqual(self.client.noms_de_zones(),
                         ["paragraph 1", "footnote 1", "paragraph 2", "paragraph 3", "footnote 2"])

    def test_in_a_spreadsheet(self):
        self.ouvre("scalc")
        feuille = self.doc.Sheets.getByIndex(0)
        feuille.Name = "Été"
        feuille.getCellRangeByName("A4").setString("un")
        feuille.getCellRangeByName("AB2").setString("deux\nlignes")
        feuille.Annotations.insertNew(feuille.getCellRangeByName("A4").CellAddress, "remarque")
        self.forme("dessin", self.doc.DrawPages.getByIndex(0), "Cadre 7")
        self.assertEqual(self.client.noms_de_zones(),
                         ["AB2 (Été)", "AB2 (Été), paragraph 2", "A4 (Été)", "comment of A4 (Été)",
                          "shape “Cadre 7” (Été)"])
        feuille.Rows.insertByIndex(0, 1)
        self.assertEqual(self.client.noms_de_zones()[2], "A5 (Été)")

    def test_on_slides(self):
        self.ouvre("simpress")
        pages = self.doc.DrawPages
        page = pages.getByIndex(0)
        page.Layout = 1
        page.getByIndex(0).setString("titre")
        page.getByIndex(1).setString("un\ndeux")
        seconde = pages.insertNewByIndex(1)
        seconde.Layout = 20
        self.forme("dessin", seconde, "Flèche")
        page.NotesPage.getByIndex(1).setString("à dire")
        self.assertEqual(self.client.noms_de_zones(),
                         ["slide 1, title", "slide 1, shape 2", "slide 1, shape 2, paragraph 2",
                          "slide 1, notes, shape 1", "slide 2, shape “Flèche”"])

    def test_in_a_drawing(self):
        self.ouvre("sdraw")
        self.forme("dessin", self.doc.DrawPages.getByIndex(0))
        self.assertEqual(self.client.noms_de_zones(), ["page 1, shape 1"])


class Rapport(unittest.TestCase):
    def test_it_tells_kind_language_and_zones(self):
        doc, client = banc.document_et_client(self, BUS, BUREAU)
        doc.Text.setString("un\rdeux")
        client.zones()
        rapport = client.rapport()
        self.assertEqual((rapport["genre"], rapport["langue"], rapport["zones"],
                          rapport["lectureSeule"], rapport["laisses"]),
                         ("writer", "en-US", 2, False, []))

    def test_it_counts_what_is_protected(self):
        doc, client = banc.document_et_client(self, BUS, BUREAU)
        doc.Text.setString("un\rdeux\rtrois\rquatre")
        Ecrivain(doc).section(3, 13, IsProtected=True)
        client.zones()
        self.assertEqual(client.rapport()["laisses"],
                         [{"code": "protege", "nombre": 2,
                           "phrase": "2 paragraphs are protected"}])


    def test_it_counts_what_is_not_read_by_reason(self):
        doc, client = banc.document_et_client(self, BUS, BUREAU)
        e = Ecrivain(doc)
        e.ecrit("un deux trois quatre ")
        for _ in range(2):
            e.met("com.sun.star.text.textfield.DropDown", Items=("x", "y"), SelectedItem="y")
            e.ecrit(" ")
        e.met("com.sun.star.text.textfield.PageNumber")
        e.met("com.sun.star.text.textfield.Input", Content="une ligne\r", Hint="h")
        e.plage(3, 8).CharHidden = True
        doc.RecordChanges = True
        e.plage(8, 14).setString("")
        client.zones()
        client.zones()  # counted anew, not on top
        self.assertEqual({r["code"]: (r["nombre"], r["phrase"])
                          for r in client.rapport()["laisses"]},
                         {"choix": (2, "2 choices from lists, or dates, are not read"),
                          "saisie": (1, "1 input field of several lines is not read"),
                          "masque": (1, "1 hidden passage is not read"),
                          "supprime": (1, "1 deleted passage (tracked changes) is not read")})


class Laisses(unittest.TestCase):
    """What the reading leaves out, by code and number."""

    def laisses(self, prepare, genre="swriter"):
        doc, client = banc.document_et_client(self, BUS, BUREAU, f"private:factory/{genre}")
        prepare(doc)
        for _ in range(2):  # the second reading counts anew
            client.zones()
        return {reste["code"]: reste["nombre"] for reste in client.rapport()["laisses"]}

    def test_paragraphs_of_hidden_sections_and_of_indexes(self):
        def prepare(doc):
            doc.Text.setString("un\rdeux\rtrois\rquatre")
            Ecrivain(doc).section(3, 13, IsVisible=False)
            index = doc.createInstance("com.sun.star.text.ContentIndex")
            doc.Text.insertTextContent(doc.Text.Start, index, False)
            index.update()
        laisses = self.laisses(prepare)
        self.assertEqual(laisses.pop("masque"), 2)
        self.assertGreater(laisses.pop("genere"), 0)
        self.assertEqual(laisses, {})

    def test_a_hidden_shape_in_a_text(self):
        def prepare(doc):
            Ecrivain(doc).ecrit("un").forme("dedans").Visible = False
        self.assertEqual(self.laisses(prepare), {"masque": 1})

    def test_cells_of_hidden_rows_and_sheets(self):
        def prepare(doc):
            feuille = doc.Sheets.getByIndex(0)
            for rang in range(4):
                feuille.getCellByPosition(0, rang).setString("mot")
            feuille.getCellByPosition(1, 1).setValue(7)
            feuille.getCellByPosition(1, 2).setFormula('="a"&"b"')
            feuille.Rows.getByIndex(1).IsVisible = False
            feuille.Rows.getByIndex(2).IsVisible = False
            doc.Sheets.insertNewByName("cachée", 1)
            doc.Sheets.getByIndex(1).getCellByPosition(3, 3).setString("mot")
            doc.Sheets.getByIndex(1).IsVisible = False
        self.assertEqual(self.laisses(prepare, "scalc"), {"masque": 3})

    def test_locked_cells_of_a_protected_sheet(self):
        def prepare(doc):
            feuille = doc.Sheets.getByIndex(0)
            for rang in range(3):
                feuille.getCellByPosition(0, rang).setString("mot")
            libre = feuille.getCellByPosition(0, 1)
            libre.CellProtection = CellProtection(False, False, False, False)
            feuille.protect("")
            doc.Sheets.insertNewByName("ouverte", 1)
            doc.Sheets.getByIndex(1).getCellByPosition(0, 0).setString("mot")
        self.assertEqual(self.laisses(prepare, "scalc"), {"protege": 2})

    def test_a_hidden_shape_with_text_on_a_slide(self):
        def prepare(doc):
            for texte in ("vue", "cachée", ""):
                forme = doc.createInstance("com.sun.star.drawing.RectangleShape")
                forme.setSize(Size(5000, 2000))
                doc.DrawPages.getByIndex(0).add(forme)
                forme.setString(texte)
                forme.Visible = texte == "vue"
        self.assertEqual(self.laisses(prepare, "simpress"), {"masque": 1})

    def test_nothing_where_all_is_read(self):
        def prepare(doc):
            Ecrivain(doc).ecrit("un").note("note").Text.setString("x")
        self.assertEqual(self.laisses(prepare), {})


class EnFrancais(unittest.TestCase):
    def test_reasons_names_and_the_report_are_in_the_offices_language(self):
        menus.met_en_francais("profil-fr-recit")
        bus = banc.Bus()
        self.addCleanup(bus.ferme)
        bureau = banc.Bureau(bus.adresse, profil="profil-fr-recit")
        self.addCleanup(bureau.ferme)
        doc, client = banc.document_et_client(self, bus, bureau)
        doc.Text.setString("un chat")
        Ecrivain(doc).section(0, 7, IsProtected=True)
        zone = client.zones()[0]
        client.peut(zone, "chat")
        self.assertEqual(client.refus(zone), ("Protege", "Le texte est protégé"))
        self.assertEqual(client.noms_de_zones(), ["paragraphe 1"])
        self.assertEqual(client.rapport()["laisses"][0]["phrase"], "1 paragraphe est protégé")


if __name__ == "__main__":
    unittest.main()
