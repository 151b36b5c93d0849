# SPDX-License-Identifier: MPL-2.0
"""What a corrector reads and changes in a presentation or a drawing.

Tables and comments of slides are made and changed on the office's main thread, as by a person:
from another one the office loses count of what it has to redraw, and crashes at the end.
"""

import re
import unittest
import zipfile

import uno
from com.sun.star.awt import Size

import banc
from ecrivain import elements, parties_grasses, plage

ITALIQUE = uno.Enum("com.sun.star.awt.FontSlant", "ITALIC")


def setUpModule():
    global BUS, BUREAU
    BUS, BUREAU = banc.bus_et_bureau()


class Cas(unittest.TestCase):
    genre = "simpress"

    def setUp(self):
        self.doc, self.client = banc.document_et_client(self, BUS, BUREAU,
                                                        f"private:factory/{self.genre}")
        self.page = self.doc.DrawPages.getByIndex(0)
        self.tenues = []
        self.tiens(self.page)

    def tiens(self, page):
        """Holds what stands on the page for as long as the test runs.

        An object of the office's for a shape that nobody holds any more ends on a thread of the
        office's; where it has to wait there for the main thread, the shape has got another object
        meanwhile and loses that one in turn: two readings would then meet two shapes.
        """
        self.tenues.append(page)
        self.tenues.extend(page.getByIndex(rang) for rang in range(page.Count))
        if self.genre == "simpress":
            notes = page.NotesPage
            self.tenues.append(notes)
            self.tenues.extend(notes.getByIndex(rang) for rang in range(notes.Count))

    def diapo(self, titre=None, corps=None):
        """A new slide with a title and an outline."""
        pages = self.doc.DrawPages
        page = pages.insertNewByIndex(pages.Count - 1)
        page.Layout = 1
        self.tiens(page)
        for rang, texte in enumerate((titre, corps)):
            if texte is not None:
                page.getByIndex(rang).setString(texte)
        return page

    def forme(self, texte, page=None, genre="RectangleShape"):
        forme = self.doc.createInstance(f"com.sun.star.drawing.{genre}")
        forme.setSize(Size(5000, 2000))
        (page or self.page).add(forme)
        if texte:
            forme.setString(texte)
        self.tenues.append(forme)
        return forme

    def groupe(self, *formes):
        collection = BUREAU.cree("com.sun.star.drawing.ShapeCollection")
        for forme in formes:
            collection.add(forme)
        groupe = self.page.group(collection)
        self.tenues.append(groupe)
        return groupe

    def tableau(self, lignes):
        return BUREAU.sur_le_fil_principal(lambda: self._tableau(lignes))

    def _tableau(self, lignes):
        forme = self.forme(None, genre="TableShape")
        modele = forme.Model
        modele.Rows.insertByIndex(0, len(lignes) - modele.RowCount)
        modele.Columns.insertByIndex(0, len(lignes[0]) - modele.ColumnCount)
        for i, ligne in enumerate(lignes):
            for j, texte in enumerate(ligne):
                cellule = modele.getCellByPosition(j, i)
                cellule.setString(texte)
                self.tenues.append(cellule)
        self.tenues.append(modele)
        return forme

    def commente(self, texte):
        def pose():
            commentaire = self.page.createAndInsertAnnotation()
            commentaire.TextRange.setString(texte)
            self.tenues += [commentaire, commentaire.TextRange]
            return commentaire
        return BUREAU.sur_le_fil_principal(pose)

    def annule(self, fois=1, encore=False):
        pile = self.doc.UndoManager
        for _ in range(fois):
            BUREAU.sur_le_fil_principal(pile.redo if encore else pile.undo)

    def zone(self, contenant=""):
        return next(z for z in self.client.zones() if contenant in z.texte)

    def corrige(self, cherche, remplace):
        self.client.corrige(self.zone(cherche), cherche, remplace)

    def titres(self):
        return self.doc.UndoManager.AllUndoActionTitles


class Lecture(Cas):
    def test_slides_come_in_order_each_with_title_outline_comments_and_notes(self):
        self.diapo("titre 2", "point\npoint suivant")
        self.page.getByIndex(0).setString("titre 1")
        self.commente("remarque\nsuite")
        self.page.NotesPage.getByIndex(1).setString("note 1")
        self.assertEqual(self.client.textes(),
                         ["titre 1", "remarque", "suite", "note 1", "titre 2", "point",
                          "point suivant"])

    def test_placeholders_and_shapes_without_a_letter_are_not_read(self):
        self.diapo()
        self.forme(None)
        self.forme(None, genre="LineShape")
        self.forme("seule")
        self.assertEqual(self.client.textes(), ["seule"])

    def test_the_master_page_is_not_read(self):
        self.forme("sur le masque", self.page.MasterPage)
        self.forme("sur la page")
        self.assertEqual(self.client.textes(), ["sur la page"])

    def test_groups_are_read_nested_ones_too(self):
        dedans = self.groupe(self.forme("un"), self.forme("deux"))
        self.groupe(dedans, self.forme("trois"))
        self.assertEqual(sorted(self.client.textes()), ["deux", "trois", "un"])

    def test_table_cells_come_row_by_row_without_those_that_a_merged_one_covers(self):
        modele = self.tableau([["a1", "b1"], ["a2", "b2"], ["a3", "b3"]]).Model
        self.assertEqual(self.client.textes(), ["a1", "b1", "a2", "b2", "a3", "b3"])
        fusion = modele.createCursorByRange(modele.getCellRangeByPosition(0, 2, 1, 2))

        def fusionne():
            fusion.merge()  # which takes the texts together
            modele.getCellByPosition(1, 2).setString("couverte")
        BUREAU.sur_le_fil_principal(fusionne)
        textes = self.client.textes()
        self.assertEqual(textes[:4], ["a1", "b1", "a2", "b2"])
        self.assertEqual(sorted(textes[4:]), ["a3", "b3"])

    def test_hidden_shapes_are_not_read_and_hidden_slides_are(self):
        self.forme("cachee").Visible = False
        self.diapo("titre").Visible = False
        self.assertEqual(self.client.textes(), ["titre"])

    def test_fields_line_breaks_and_styles(self):
        forme = self.forme("page  ici")
        forme.insertTextContent(
            plage(forme, 5, 5),
            self.doc.createInstance("com.sun.star.text.TextField.PageNumber"), False)
        plage(forme, 7, 10).CharWeight = 150.0
        forme.insertControlCharacter(plage(forme, 6, 6), 1, False)
        zone = self.zone()
        self.assertEqual((zone.texte, zone.styles), ("page \a\n ici", [(8, 11, 1)]))

    def test_keys_last_across_edits_elsewhere(self):
        self.diapo("titre", "un\ndeux")
        self.tableau([["a", "b"], ["c", "d"]])
        self.commente("remarque")
        avant = {z.texte: z.nom for z in self.client.zones()}
        self.forme("nouvelle")
        self.doc.DrawPages.insertNewByIndex(0)
        apres = {z.texte: z.nom for z in self.client.zones()}
        self.assertEqual({t: apres[t] for t in avant}, avant)
        self.assertEqual(len(set(apres.values())), 9)


class Dessin(Cas):
    genre = "sdraw"

    def test_a_drawing_is_read_and_corrected_page_by_page(self):
        self.forme("un mot")
        self.forme("page deux", self.doc.DrawPages.insertNewByIndex(0))
        self.assertEqual(self.client.textes(), ["un mot", "page deux"])
        self.corrige("mot", "maux")
        self.assertEqual(self.client.textes(), ["un maux", "page deux"])


class Correction(Cas):
    def test_every_kind_of_text_can_be_corrected_undone_and_redone(self):
        self.diapo("mot du titre", "mot un\nmot deux")
        self.page.NotesPage.getByIndex(1).setString("mot en note")
        self.forme("mot en forme")
        self.groupe(self.forme("mot groupe"), self.forme("autre mot"))
        self.tableau([["mot a1", "x"], ["y", "mot b2"]])
        self.commente("mot en remarque")
        avant = self.client.textes()
        self.doc.UndoManager.clear()
        for zone in self.client.zones():
            if "mot" in zone.texte:
                self.assertTrue(self.client.peut(zone, "mot"))
                self.client.corrige(zone, "mot", "maux")
        apres = self.client.textes()
        self.assertEqual(apres, [t.replace("mot", "maux") for t in avant])
        nombre = len([t for t in avant if "mot" in t])
        self.assertEqual(nombre, 10)
        self.assertEqual(self.titres(), ("Correction: \u201cmot\u201d to \u201cmaux\u201d",) * 10)
        self.annule(nombre)
        self.assertEqual(self.client.textes(), avant)
        self.annule(nombre, encore=True)
        self.assertEqual(self.client.textes(), apres)

    def test_formats_on_both_sides_of_a_border_stay_and_undo_restores_them(self):
        forme = self.forme("un chat noir\ndeux")
        plage(forme, 3, 7).CharWeight = 150.0
        self.corrige("chat noir", "chiens noirs")
        self.assertEqual((forme.String, parties_grasses(forme)), ("un chiens noirs\ndeux", ["chiens"]))
        self.annule()
        self.assertEqual((forme.String, parties_grasses(forme)), ("un chat noir\ndeux", ["chat"]))

    def test_a_word_with_a_format_of_its_own_and_a_tab_can_be_taken_out(self):
        forme = self.forme("un petit\tchat noir")
        plage(forme, 9, 13).CharWeight = 150.0
        plage(forme, 3, 8).CharPosture = ITALIQUE
        self.corrige("petit", "")
        self.assertEqual((forme.String, parties_grasses(forme)), ("un \tchat noir", ["chat"]))
        self.corrige("\t", "")
        self.assertEqual((forme.String, parties_grasses(forme)), ("un chat noir", ["chat"]))
        self.annule(2)
        self.assertEqual((forme.String, parties_grasses(forme)), ("un petit\tchat noir", ["chat"]))

    def portions(self, forme):
        """The first paragraph's letters with their format, neighbours of one format together."""
        vues = []
        for p in elements(next(elements(forme))):
            format_ = (p.CharWeight, p.CharPosture.value, p.CharColor, p.CharHeight)
            if vues and vues[-1][1] == format_:
                vues[-1] = (vues[-1][0] + p.String, format_)
            else:
                vues.append((p.String, format_))
        return vues

    def test_letters_of_another_script_are_undone_and_redone_and_so_is_all_before_them(self):
        arabe = "\u0627\u0644\u0646\u0635 \u0627\u0644\u0639\u0631\u0628\u064a"
        cas = [("\u65e5\u672c\u8a9e\u306e\u6587", "\u8a9e", "abc"),
               ("\u65e5\u672c\u8a9e\u306e\u6587", "\u65e5\u672c", "Nippon"),
               (arabe, "\u0639\u0631", "ar"), (arabe, arabe[:4], "text"),
               ("un mot latin", "mot", "\u65e5\u672c\u8a9e"), ("\u65e5\u672c x \u6587", "x", "\u8a9e"),
               ("\u65e5\u672cabc\u6587", "abc", ""), ("\u05e9\u05dc\u05d5\u05dd abc", "abc", "\u05dd\u05d5")]
        premiere = self.forme("mot")
        formes = [self.forme(texte) for texte, _, _ in cas]
        avant = [self.portions(f) for f in formes]
        self.doc.UndoManager.clear()
        self.corrige("mot", "maux")
        faites = []
        for (texte, cherche, remplace), forme in zip(cas, formes):
            with self.subTest(texte=texte, cherche=cherche):
                zone = next(z for z in self.client.zones() if z.texte == texte)
                try:
                    self.client.corrige(zone, cherche, remplace)
                    faites.append(forme)
                except banc.Appel as refus:
                    self.assertEqual(refus.nom, "ChampDetruit")
                    self.assertEqual(forme.String, texte)
        self.assertGreater(len(faites), 4)
        apres = [f.String for f in formes]
        self.annule(len(faites))
        self.assertEqual([self.portions(f) for f in formes], avant)
        self.annule(len(faites), encore=True)
        self.assertEqual([f.String for f in formes], apres)
        self.annule(len(faites) + 1)
        self.assertEqual(premiere.String, "mot")

    def test_undo_brings_back_the_formats_of_what_was_taken_out(self):
        forme = self.forme("un petit chat noir")
        plage(forme, 3, 9).CharPosture = ITALIQUE
        plage(forme, 3, 9).CharColor = 0xFF0000
        plage(forme, 9, 14).CharWeight = 150.0
        forme.insertControlCharacter(forme.End, 0, False)
        forme.insertString(forme.End, "suite", False)
        avant = self.portions(forme)
        faites = 0
        for cherche in ("petit chat ", "petit ", "chat ", "un petit ", "chat noir", "un petit chat noir"):
            with self.subTest(cherche=cherche):
                try:
                    self.corrige(cherche, "")
                    faites += 1
                    self.annule()
                except banc.Appel as refus:
                    self.assertEqual(refus.nom, "ChampDetruit")
                self.assertEqual((self.portions(forme), forme.String),
                                 (avant, "un petit chat noir\nsuite"))
        self.assertGreater(faites, 0)

    def test_undo_at_the_border_of_a_format_gives_each_letter_its_own(self):
        faites = 0
        for cherche, remplace in (("n", "ab"), ("n", ""), ("un", "x"), ("un", "nu"), ("n mot", "x"),
                                  ("n mot", ""), (" mot", ""), ("u", "U"), ("un m", "au v")):
            with self.subTest(cherche=cherche, remplace=remplace):
                forme = self.forme("un mot")
                plage(forme, 0, 1).CharWeight = 150.0
                avant = self.portions(forme)
                zone = self.client.zones()[-1]
                try:
                    self.client.corrige(zone, cherche, remplace)
                    faites += 1
                except banc.Appel as refus:
                    self.assertEqual(refus.nom, "ChampDetruit")
                    continue
                apres = self.portions(forme)
                self.annule()
                self.assertEqual(self.portions(forme), avant)
                self.annule(encore=True)
                self.assertEqual(self.portions(forme), apres)
        self.assertGreater(faites, 5)

    def test_a_text_is_read_whole_however_it_was_written(self):
        forme = self.forme("un chat noir\ndeux")
        self.assertEqual(self.client.textes(), ["un chat noir", "deux"])
        plage(forme, 12, 12).setString("atre")
        plage(forme, 21, 21).setString(" et trois")
        self.doc.setModified(False)
        self.assertEqual(self.client.textes(), ["un chat noiratre", "deux et trois"])
        self.assertFalse(self.doc.isModified())
        self.corrige("trois", "quatre")
        self.assertEqual(self.client.textes(), ["un chat noiratre", "deux et quatre"])
        self.annule()
        self.assertEqual(self.client.textes(), ["un chat noiratre", "deux et trois"])

    def test_letters_that_would_not_come_back_as_they_were_are_not_taken_out(self):
        forme = self.forme("gras simple gras")
        for debut, fin in ((0, 4), (12, 16)):
            plage(forme, debut, fin).CharWeight = 150.0
        avant = self.portions(forme)
        with self.assertRaises(banc.Appel) as refus:  # between bold letters they come back bold
            self.corrige(" simple ", "")
        self.assertEqual(refus.exception.nom, "ChampDetruit")
        self.assertEqual(self.portions(forme), avant)
        self.corrige(" simple ", " ")
        self.assertEqual([texte for texte, _ in self.portions(forme)], ["gras", " ", "gras"])
        self.annule()
        self.assertEqual(self.portions(forme), avant)

    def test_a_link_in_a_tables_cell_is_corrected_and_undone(self):
        modele = self.tableau([["voir ", "x"], ["y", "z"]]).Model
        cellule = modele.getCellByPosition(0, 0)
        BUREAU.sur_le_fil_principal(lambda: self.lien(cellule, 5, "un bau lien"))
        self.corrige("voir un bau", "vois un beau")
        self.assertEqual(self.client.textes()[0], "vois un beau lien")
        self.annule()
        self.assertEqual(self.client.textes()[0], "voir un bau lien")

    def test_an_undo_step_that_finds_another_text_leaves_it_and_the_list_alone(self):
        premiere, autre, partie = self.forme("un mot"), self.forme("un chat"), self.forme("un lion")
        self.doc.UndoManager.clear()
        self.corrige("mot", "maux")
        self.corrige("lion", "lions")
        self.corrige("chat", "chats")
        autre.setString("du texte nouveau")  # which leaves no step
        BUREAU.sur_le_fil_principal(lambda: self.page.remove(partie))
        while self.doc.UndoManager.isUndoPossible():
            self.annule()
        self.assertEqual(autre.String, "du texte nouveau")
        self.assertEqual(premiere.String, "un mot")

    def lien(self, forme, place, texte):
        champ = self.doc.createInstance("com.sun.star.text.TextField.URL")
        champ.URL, champ.Representation, champ.TargetFrame = "https://example.org/", texte, "cadre"
        forme.insertTextContent(plage(forme, place, place), champ, False)

    def liens(self, forme):
        vus = []
        for paragraphe in elements(forme):
            for p in elements(paragraphe):
                if p.TextPortionType == "TextField" and hasattr(p.TextField, "URL"):
                    vus.append((p.TextField.Representation, p.TextField.URL,
                                p.TextField.TargetFrame, p.CharWeight))
        return vus

    def test_the_words_of_a_link_are_read_corrected_undone_and_redone(self):
        forme = self.forme("debut\nvoir  et  ici")
        self.lien(forme, 15, "la suitte")
        self.lien(forme, 11, "un bau lien")
        plage(forme, 11, 12).CharWeight = 150.0
        avant = self.liens(forme)
        self.assertEqual(self.client.textes(), ["debut", "voir un bau lien et la suitte ici"])
        zone = self.zone("bau")
        self.assertTrue(self.client.peut(zone, "bau lien"))
        self.client.corrige(zone, "bau lien", "beau lien")
        self.client.corrige(zone, "lien et la suitte", "lieu et les suites")
        self.client.corrige(zone, "suites", "suites.")
        self.assertEqual(self.client.textes(), ["debut", "voir un beau lieu et les suites. ici"])
        apres = self.liens(forme)
        self.assertEqual(apres, [("un beau lieu", *avant[0][1:]), ("les suites.", *avant[1][1:])])
        self.annule(3)
        self.assertEqual(self.liens(forme), avant)
        self.assertEqual(self.client.textes(), ["debut", "voir un bau lien et la suitte ici"])
        self.annule(3, encore=True)
        self.assertEqual(self.liens(forme), apres)

    def test_a_link_in_a_format_of_its_own_keeps_it(self):
        forme = self.forme("un\nvoir")
        for _ in range(2):
            self.lien(forme, 7, "un bau lien")
        lettres = plage(forme, 7, 9)
        lettres.CharWeight, lettres.CharHeight, lettres.CharColor = 150.0, 30.0, 0x0000FF
        self.corrige("voirun bau", "voisun beau")
        for texte in ("voisun beau lienun bau lien", "voirun bau lienun bau lien"):
            self.assertEqual(self.client.textes(), ["un", texte])
            for rang in (7, 8):
                vu = plage(forme, rang, rang + 1)
                self.assertEqual((vu.CharWeight, vu.CharHeight, vu.CharColor), (150.0, 30.0, 0x0000FF))
            if self.doc.UndoManager.isUndoPossible():
                self.annule()

    def test_a_link_never_loses_all_of_its_words(self):
        forme = self.forme("voir  ici")
        self.lien(forme, 5, "lien")
        with self.assertRaises(banc.Appel) as refus:
            self.client.corrige(self.zone(), "lien", "")
        self.assertEqual(refus.exception.nom, "ChampDetruit")
        self.assertEqual([lien[0] for lien in self.liens(forme)], ["lien"])

    def test_offsets_behind_emoji_and_fields_are_exact(self):
        forme = self.forme("\U0001f600 a  faute")
        forme.insertTextContent(
            plage(forme, 5, 5),
            self.doc.createInstance("com.sun.star.text.TextField.PageNumber"), False)
        self.corrige("faute", "correction")
        self.assertEqual(self.zone().texte, "\U0001f600 a \a correction")

    def test_a_field_or_a_line_break_bars_the_way(self):
        forme = self.forme("un chat")
        forme.insertTextContent(
            plage(forme, 5, 5),
            self.doc.createInstance("com.sun.star.text.TextField.PageNumber"), False)
        zone = self.zone()
        self.assertEqual(zone.texte, "un ch\aat")
        self.assertFalse(self.client.peut(zone, "ch\aat"))
        with self.assertRaises(banc.Appel):
            self.client.corrige(zone, "ch\aat", "chat")
        with self.assertRaises(banc.Appel):
            self.client.corrige(self.zone(), "un", "un\ndeux")
        self.assertEqual(self.client.textes(), ["un ch\aat"])

    def test_a_read_only_document_is_refused(self):
        self.forme("un mot")
        url = (banc.DOSSIER / "lecture_seule.odp").as_uri()
        self.doc.storeToURL(url, ())
        doc = BUREAU.ouvre(url, banc.pv("ReadOnly", True))
        self.addCleanup(lambda: doc.close(True))
        client = banc.Client(BUS)
        client.prends(doc)
        zone = client.zones()[0]
        self.assertFalse(client.peut(zone, "mot"))
        with self.assertRaises(banc.Appel):
            client.corrige(zone, "mot", "maux")
        self.assertEqual(client.textes(), ["un mot"])

    def test_a_shape_that_was_deleted_or_changed_is_not_corrected(self):
        partie, changee = self.forme("un chat"), self.forme("un chien")
        tableau = self.tableau([["cellule partie"], ["cellule"]])
        entier = self.tableau([["tableau parti"]])
        commentaire = self.commente("remarque partie")
        zones = self.client.zones()

        def retire():
            self.page.remove(partie)
            self.page.remove(entier)
            self.page.removeAnnotation(commentaire)
            tableau.Model.Rows.removeByIndex(0, 1)
        BUREAU.sur_le_fil_principal(retire)
        changee.setString("un cheval")
        self.assertEqual(len(zones), 6)
        for zone in zones:
            if zone.texte != "cellule":
                with self.subTest(zone=zone.texte), self.assertRaises(banc.Appel):
                    self.client.CorrigeDansTexteur(zone.nom, 0, 7, "x", False)
        self.assertEqual(self.client.textes(), ["un cheval", "cellule"])

    def test_saving_and_loading_keeps_everything_but_the_corrected_letters(self):
        forme = self.forme("un chat noir")
        plage(forme, 3, 7).CharPosture = ITALIQUE
        self.tableau([["chat", "x"], ["y", "z"]])

        def contenu(nom):
            chemin = banc.DOSSIER / nom
            self.doc.storeToURL(chemin.as_uri(),
                                (banc.pv("FilterName", "OpenDocument Presentation Flat XML"),))
            texte = chemin.read_text(encoding="utf-8")
            corps = texte[texte.index("<office:body>"):texte.index("</office:body>")]
            # A table comes with a picture of itself.
            return re.sub(r"<office:binary-data>.*?</office:binary-data>", "", corps, flags=re.S)

        avant = contenu("avant.fodp")
        for zone in self.client.zones():
            if "chat" in zone.texte:
                self.client.corrige(zone, "chat", "chiot")
        self.assertEqual(contenu("apres.fodp"), avant.replace("chat", "chiot"))


class TableauxImportes(Cas):
    """Two tables as another program writes them: of cells whose paragraphs are empty the office makes
    others when a table changes."""

    VIDE = "retirer"

    def setUp(self):
        super().setUp()
        for page in (self.page, self.doc.DrawPages.insertNewByIndex(1)):
            self.page = page
            self.tableau([["un mot", f"{self.VIDE}\n{self.VIDE}"], ["x", "y"]])
        ecrit, allege = banc.DOSSIER / "tableaux.pptx", banc.DOSSIER / "tableaux vides.pptx"
        self.doc.storeToURL(ecrit.as_uri(), (banc.pv("FilterName", "Impress MS PowerPoint 2007 XML"),))
        passage = re.compile(rb"<a:r>(?:(?!<a:r>).)*?%s</a:t></a:r>" % self.VIDE.encode())
        with zipfile.ZipFile(ecrit) as source, zipfile.ZipFile(allege, "w") as but:
            for nom in source.namelist():
                but.writestr(nom, passage.sub(b"", source.read(nom)))
        self.doc, self.client = banc.document_et_client(self, BUS, BUREAU, allege.as_uri())

    def lignes(self):
        """The paragraphs of the second cell of each table."""
        comptes = []
        for page in (self.doc.DrawPages.getByIndex(i) for i in range(self.doc.DrawPages.Count)):
            formes = (page.getByIndex(i) for i in range(page.Count))
            comptes += [forme.Model.getCellByPosition(1, 0).String.count("\n") + 1 for forme in formes
                        if forme.ShapeType.endswith(".TableShape")]
        return comptes

    def test_empty_paragraphs_of_other_cells_stay(self):
        zones = self.client.zones()
        self.assertEqual(self.lignes(), [2, 2])
        self.client.corrige(zones[0], "un ", "")
        self.assertEqual(self.client.textes(), ["mot", *(z.texte for z in zones[1:])])
        self.assertEqual(self.lignes(), [2, 2])


class Selection(Cas):
    def test_selected_shapes_are_selected_whole(self):
        self.forme("une")
        deux, trois = self.forme("deux"), self.forme("trois mots\nen bas")
        vue = self.doc.CurrentController
        vue.select(trois)
        self.assertEqual([z.selection for z in self.client.zones()],
                         [(0, 0), (0, 0), (0, 10), (0, 6)])
        self.assertEqual(self.client.DonneContexteSelection(), "trois mots")
        vue.select(deux)
        self.assertEqual(self.client.DonneContexteSelection(), "deux")
        self.assertEqual(self.client.DonneContenuSelection(), "deux")

    def test_a_selected_group_or_table_stands_for_the_texts_in_it(self):
        self.forme("dehors")
        groupe = self.groupe(self.forme("un"), self.forme("deux"))
        tableau = self.tableau([["a", "b"], ["c", "d"]])
        vue = self.doc.CurrentController
        vue.select(groupe)
        choisies = [z.texte for z in self.client.zones() if z.selection != (0, 0)]
        self.assertEqual(sorted(choisies), ["deux", "un"])
        vue.select(tableau)
        self.assertEqual([z.texte for z in self.client.zones() if z.selection != (0, 0)],
                         ["a", "b", "c", "d"])
        self.assertEqual(self.client.DonneContexteSelection(), "a")
        with self.assertRaises(banc.Appel):
            self.client.RemplaceEtReselectionne("x")

    def test_nothing_selected_has_no_context(self):
        self.forme("une")
        self.doc.CurrentController.select(None)
        self.assertEqual(self.client.DonneContexteSelection(), "")

    def test_selecting_a_range_shows_its_slide_and_selects_its_shape(self):
        page = self.diapo("titre", "un point")
        self.page.NotesPage.getByIndex(1).setString("la note")
        vue = self.doc.CurrentController
        self.client.SelectionneIntervalle(self.zone("point").nom, 3, 8)
        self.assertEqual(vue.CurrentPage, page)
        self.assertEqual(self.doc.CurrentSelection.getByIndex(0), page.getByIndex(1))
        self.assertEqual(self.client.DonneContenuSelection(), "point")
        with self.assertRaises(banc.Appel):  # the notes page is not in view
            self.client.SelectionneIntervalle(self.zone("note").nom, 0, 2)
        self.assertEqual(vue.CurrentPage, self.page)
        with self.assertRaises(banc.Appel):
            self.client.RemplaceEtReselectionne("x")
        self.assertEqual([z.texte for z in self.client.zones()].count("un point"), 1)

    def test_selecting_in_a_comment_shows_its_slide(self):
        self.commente("remarque")
        vue = self.doc.CurrentController
        vue.CurrentPage = self.diapo("titre")
        with self.assertRaises(banc.Appel):
            self.client.SelectionneIntervalle(self.zone("remarque").nom, 0, 2)
        self.assertEqual(vue.CurrentPage, self.page)

    def test_the_tools_can_shift_and_replace_the_selection(self):
        forme = self.forme("un tres beau chat")
        self.doc.CurrentController.select(forme)
        c = self.client
        c.InitialisePourOutils(True)
        c.AjusteSelectionPourOutils(3, -10)
        self.assertEqual(c.DonneContenuSelection(), "tres")
        c.RemplaceEtReselectionne("très, très")
        self.assertEqual(forme.String, "un très, très beau chat")
        self.assertEqual(c.DonneContenuSelection(), "très, très")


if __name__ == "__main__":
    unittest.main()
