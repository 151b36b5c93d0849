# SPDX-License-Identifier: MPL-2.0
"""What a corrector reads of a Writer document."""

import unittest

import uno
from com.sun.star.lang import Locale

import banc
from ecrivain import Ecrivain

GRAS = {"CharWeight": 150.0}
ITALIQUE = uno.Enum("com.sun.star.awt.FontSlant", "ITALIC")
DROIT = uno.Enum("com.sun.star.awt.FontSlant", "NONE")


def setUpModule():
    global BUS, BUREAU
    BUS, BUREAU = banc.bus_et_bureau()


class Cas(unittest.TestCase):
    def setUp(self):
        self.doc, self.client = banc.document_et_client(self, BUS, BUREAU)
        self.texte = self.doc.Text
        self.e = Ecrivain(self.doc)


class Textes(Cas):
    def test_paragraphs_come_in_order_one_zone_each(self):
        self.texte.setString("Un.\rDeux \U0001f600.\r\rQuatre.")
        self.assertEqual(self.client.textes(), ["Un.", "Deux \U0001f600.", "", "Quatre."])

    def test_table_cells_come_in_reading_order_nested_ones_too(self):
        self.e.ecrit("before")
        tableau = self.e.tableau(2, 2)
        for nom in ("A1", "B1", "A2", "B2"):
            tableau.getCellByName(nom).setString(nom)
        self.e.ecrit("after")
        dedans = Ecrivain(self.doc, tableau.getCellByName("B1")).tableau(1, 2)
        dedans.getCellByName("A1").setString("nested 1")
        dedans.getCellByName("B1").setString("nested 2")
        self.assertEqual([t for t in self.client.textes() if t],
                         ["before", "A1", "B1", "nested 1", "nested 2", "A2", "B2", "after"])

    def test_footnotes_follow_their_paragraph_and_endnotes_the_body(self):
        self.e.ecrit("one").note("the footnote")
        self.e.ecrit(" two").note("the endnote", "com.sun.star.text.Endnote")
        self.e.paragraphe().ecrit("last")
        self.assertEqual(self.client.textes(),
                         ["one\a two\a", "the footnote", "last", "the endnote"])

    def test_headers_come_first_and_footers_last(self):
        style = self.doc.StyleFamilies.getByName("PageStyles").getByName("Standard")
        style.HeaderIsOn = style.FooterIsOn = True
        style.HeaderText.setString("the header")
        style.FooterText.setString("the footer")
        self.texte.setString("the body")
        self.assertEqual(self.client.textes(), ["the header", "the body", "the footer"])

    def test_headers_of_first_and_left_pages_are_read_when_they_differ(self):
        style = self.doc.StyleFamilies.getByName("PageStyles").getByName("Standard")
        style.HeaderIsOn = True
        style.HeaderIsShared = style.FirstIsShared = False
        style.HeaderText.setString("right")
        style.HeaderTextLeft.setString("left")
        style.HeaderTextFirst.setString("first")
        self.assertEqual(self.client.textes()[:3], ["right", "left", "first"])

    def test_frames_and_shapes_follow_the_paragraph_they_hang_on(self):
        self.e.ecrit("in")
        self.e.cadre("frame in the line")
        self.e.ecrit("line")
        self.e.cadre("frame at a character", "AT_CHARACTER")
        self.e.ecrit("!").paragraphe().ecrit("second")
        self.e.cadre("frame at the paragraph", "AT_PARAGRAPH")
        self.e.forme("shape\rof two")
        textes = self.client.textes()
        self.assertEqual(textes[:4], ["in\aline!", "frame in the line", "frame at a character",
                                      "second"])
        self.assertEqual(sorted(textes[4:]), ["frame at the paragraph", "of two", "shape"])

    def test_a_frame_anchored_to_the_page_is_read(self):
        self.texte.setString("body")
        cadre = self.doc.createInstance("com.sun.star.text.TextFrame")
        cadre.AnchorType = uno.Enum("com.sun.star.text.TextContentAnchorType", "AT_PAGE")
        cadre.AnchorPageNo = 1
        self.texte.insertTextContent(self.texte.End, cadre, False)
        cadre.Text.setString("on the page")
        self.assertEqual(self.client.textes(), ["body", "on the page"])

    def test_a_comment_follows_its_paragraph_and_leaves_no_trace_in_it(self):
        self.e.ecrit("com")
        self.e.met("com.sun.star.text.textfield.Annotation", Content="first\nsecond", Author="A")
        self.e.ecrit("mented").paragraphe().ecrit("next")
        self.assertEqual(self.client.textes(), ["commented", "first", "second", "next"])

    def test_a_comment_on_a_range_is_read_once(self):
        self.texte.setString("a word here")
        self.e.met("com.sun.star.text.textfield.Annotation", absorbe=self.e.plage(2, 6),
                   Content="remark")
        self.assertEqual(self.client.textes(), ["a word here", "remark"])

    def test_sections_are_read_hidden_ones_are_not(self):
        self.texte.setString("one\rtwo\rthree")
        self.e.section(4, 7, IsVisible=False)
        self.assertEqual([t for t in self.client.textes() if t], ["one", "three"])

    def test_a_generated_index_is_not_read(self):
        self.texte.setString("Title\rtext")
        self.texte.createEnumeration().nextElement().ParaStyleName = "Heading 1"
        index = self.doc.createInstance("com.sun.star.text.ContentIndex")
        index.CreateFromOutline = True
        self.texte.insertTextContent(self.texte.Start, index, False)
        index.update()
        self.assertIn("Title", self.texte.String.splitlines()[1])
        self.assertEqual([t for t in self.client.textes() if t], ["Title", "text"])


class Caracteres(Cas):
    def seule(self):
        zones = self.client.zones()
        return zones[0]

    def test_a_field_stands_as_one_filler(self):
        self.e.ecrit("page ")
        self.e.met("com.sun.star.text.textfield.PageNumber", NumberingType=4)
        self.e.ecrit(" end")
        self.assertEqual(self.seule().texte, "page \a end")

    def test_an_input_field_gives_its_words_and_a_list_a_filler(self):
        self.e.ecrit("a ")
        self.e.met("com.sun.star.text.textfield.Input", Content="un \U0001f600 mot", Hint="h")
        self.e.ecrit(" b ")
        self.e.met("com.sun.star.text.textfield.DropDown", Items=("x", "y"), SelectedItem="y")
        self.e.ecrit(" c ")
        self.e.met("com.sun.star.text.textfield.Input", Hint="vide")
        self.e.ecrit(" d ")
        self.e.met("com.sun.star.text.textfield.Input", Content="mot\r", Hint="fin de ligne")
        self.assertEqual(self.seule().texte, "a un \U0001f600 mot b \a c \a d \a")

    def test_a_selection_in_an_input_field_is_told_and_made(self):
        self.e.ecrit("a ")
        self.e.met("com.sun.star.text.textfield.Input", Content="un mot", Hint="h")
        self.e.ecrit(" b")
        zone = self.seule()
        self.client.SelectionneIntervalle(zone.nom, 5, 8)
        self.assertEqual(self.client.DonneContenuSelection(), "mot")
        self.assertEqual(self.seule().selection, (5, 8))

    def test_an_image_in_the_line_stands_as_one_filler(self):
        self.e.ecrit("a")
        self.e.met("com.sun.star.text.TextGraphicObject",
                   AnchorType=uno.Enum("com.sun.star.text.TextContentAnchorType", "AS_CHARACTER"))
        self.e.ecrit("b")
        self.assertEqual(self.seule().texte, "a\ab")

    def test_bookmarks_references_and_index_entries_leave_the_words_whole(self):
        self.e.ecrit("bo")
        self.e.met("com.sun.star.text.Bookmark", Name="b")
        self.e.ecrit("ok")
        self.e.met("com.sun.star.text.ReferenceMark", Name="r")
        self.e.ecrit("ma")
        self.e.met("com.sun.star.text.DocumentIndexMark", AlternativeText="x")
        self.e.ecrit("rk")
        self.assertEqual(self.seule().texte, "bookmark")

    def test_ruby_gives_its_base_text(self):
        self.texte.setString("tokyo city")
        self.e.plage(0, 5).setPropertyValue("RubyText", "above")
        self.assertEqual(self.client.textes(), ["tokyo city"])

    def test_a_soft_hyphen_is_not_read_and_a_line_break_is(self):
        self.texte.setString("cons\u00adtitution\nnext\tend\u00a0!")
        self.assertEqual(self.seule().texte, "constitution\nnext\tend\u00a0!")

    def test_a_comment_on_hidden_letters_is_read_as_the_margin_shows_it(self):
        self.e.ecrit("seen hidden ")
        self.e.met("com.sun.star.text.textfield.Annotation", Content="remarque")
        self.e.ecrit("seen")
        self.e.plage(5, 13).CharHidden = True
        self.assertEqual(self.client.textes(), ["seen seen", "remarque"])

    def test_hidden_letters_are_not_read(self):
        self.texte.setString("seen hidden seen")
        self.e.plage(5, 12).CharHidden = True
        self.assertEqual(self.seule().texte, "seen seen")

    def test_tracked_deletions_are_not_read_and_insertions_are(self):
        self.texte.setString("un chat noir")
        self.doc.RecordChanges = True
        self.e.plage(3, 7).setString("chien")
        self.assertEqual(self.seule().texte, "un chien noir")

    def test_a_deletion_that_spans_paragraphs_is_not_read_in_any_of_them(self):
        self.texte.setString("aaaa bbbb\rcccc\rdddd eeee")
        self.doc.RecordChanges = True
        self.e.plage(5, 19).setString("")
        self.assertEqual(self.client.textes(), ["aaaa ", "", " eeee"])

    def test_combining_marks_and_pairs_keep_their_units(self):
        self.texte.setString("e\u0301te\u0301 \U0001f469\u200d\U0001f680 fin")
        zone = self.seule()
        self.assertEqual(zone.texte, "e\u0301te\u0301 \U0001f469\u200d\U0001f680 fin")

    def test_each_style_has_its_bit_and_equal_neighbours_are_one_run(self):
        for bit, (nom, valeur, neutre) in enumerate([
                ("CharWeight", 150.0, 100.0), ("CharPosture", ITALIQUE, DROIT),
                ("CharUnderline", 1, 0), ("CharStrikeout", 1, 0), ("CharEscapement", 33, 0),
                ("CharEscapement", -33, 0),
                ("CharLocale", Locale("zxx", "", ""), Locale("en", "US", ""))]):
            with self.subTest(nom=nom, valeur=valeur):
                self.texte.setString("abcdef")
                self.e.plage(0, 6).setPropertyValue(nom, neutre)
                self.e.plage(2, 4).setPropertyValue(nom, valeur)
                self.e.plage(3, 4).setPropertyValue("CharColor", 0xFF0000)
                self.assertEqual(self.seule().styles, [(2, 4, 1 << bit)])
                self.e.plage(0, 6).setPropertyToDefault(nom)

    def test_each_script_has_weight_posture_and_proofing_of_its_own(self):
        textes = {"": "latin", "Asian": "\u65e5\u672c\u8a9e", "Complex": "\u05e9\u05dc\u05d5\u05dd"}
        proprietes = [("CharWeight", 150.0, 1), ("CharPosture", ITALIQUE, 2),
                      ("CharLocale", Locale("zxx", "", ""), 64)]
        self.texte.setString(" ".join(textes.values()))
        for suffixe, mot in textes.items():
            for nom, valeur, bit in proprietes:
                with self.subTest(suffixe=suffixe, nom=nom):
                    tout = self.e.plage(0, len(self.texte.String))
                    tout.setPropertyValue(nom + suffixe, valeur)
                    zone = self.seule()
                    debut = zone.texte.index(mot)
                    bits = [(d, f, s & 0xFF) for d, f, s in zone.styles if s & 0xFF]
                    self.assertEqual([(d, s) for d, _, s in bits], [(debut, bit)])
                    self.assertEqual(zone.texte[debut:bits[0][1]].strip(), mot)
                    tout.setPropertyToDefault(nom + suffixe)

    def test_styles_combine(self):
        self.texte.setString("abcdef")
        self.e.plage(0, 4).CharWeight = 150.0
        self.e.plage(2, 6).CharPosture = ITALIQUE
        self.assertEqual(self.seule().styles, [(0, 2, 1), (2, 4, 3), (4, 6, 2)])


class Cles(Cas):
    def test_a_key_lasts_across_edits_elsewhere(self):
        self.texte.setString("un\rdeux\rtrois")
        avant = {z.texte: z.nom for z in self.client.zones()}
        self.texte.insertString(self.texte.Start, "zero\r", False)
        self.e.plage(5, 7).setString("one")
        apres = {z.texte: z.nom for z in self.client.zones()}
        self.assertEqual(apres["deux"], avant["deux"])
        self.assertEqual(apres["trois"], avant["trois"])
        self.assertEqual(len(set(apres.values())), 4)

    def test_keys_in_shapes_and_comments_last_too(self):
        self.e.ecrit("body")
        self.e.forme("one\rtwo\rthree")
        self.e.met("com.sun.star.text.textfield.Annotation", Content="remark")
        avant = {z.texte: z.nom for z in self.client.zones()}
        apres = {z.texte: z.nom for z in self.client.zones()}
        self.assertEqual(apres, avant)

    def test_keys_are_opaque(self):
        self.texte.setString("secret")
        zone = self.client.zones()[0]
        self.assertNotIn("secret", zone.nom)
        self.assertNotIn(self.doc.Title, zone.nom)


class Selections(Cas):
    def choisis(self, debut, fin):
        self.doc.CurrentController.select(self.e.plage(debut, fin))

    def test_the_selection_stands_in_its_zone(self):
        self.texte.setString("premier\rdeux \U0001f600 mots")
        self.choisis(13, 18)  # characters; in UTF-16 units the first counts two
        self.assertEqual([z.selection for z in self.client.zones()], [(0, 0), (5, 11)])

    def test_a_selection_over_several_paragraphs_stands_in_each(self):
        self.texte.setString("un\rdeux\rtrois")
        self.choisis(1, 10)
        self.assertEqual([z.selection for z in self.client.zones()], [(1, 2), (0, 4), (0, 2)])

    def test_a_selection_behind_fields_and_notes_counts_them_as_one(self):
        self.e.ecrit("ab").note("n")
        self.e.met("com.sun.star.text.textfield.PageNumber", NumberingType=4)
        self.e.ecrit("cdef")
        self.choisis(5, 7)
        self.assertEqual(self.client.zones()[0].selection, (5, 7))
        self.assertEqual(self.client.DonneContenuSelection(), "de")

    def test_a_selection_inside_a_cell_and_inside_a_note(self):
        tableau = self.e.tableau(1, 1)
        cellule = tableau.getCellByName("A1")
        cellule.setString("in a cell")
        curseur = cellule.createTextCursor()
        curseur.gotoStart(False)
        curseur.goRight(5, False)
        curseur.goRight(4, True)
        self.doc.CurrentController.select(curseur)
        self.assertEqual({z.texte: z.selection for z in self.client.zones()}["in a cell"], (5, 9))
        note = self.e.ecrit("x").note("in a note")
        curseur = note.Text.createTextCursor()
        curseur.gotoStart(False)
        curseur.goRight(2, True)
        self.doc.CurrentController.select(curseur)
        self.assertEqual({z.texte: z.selection for z in self.client.zones()}["in a note"], (0, 2))
        self.assertEqual(self.client.DonneContexteSelection(), "in a note")

    def test_selected_table_cells_are_selected_each(self):
        self.texte.setString("avant")
        tableau = self.e.tableau(2, 3)
        for nom in tableau.CellNames:
            tableau.getCellByName(nom).setString("cellule " + nom)
        dedans = Ecrivain(self.doc, tableau.getCellByName("B1")).tableau(1, 1)
        dedans.getCellByName("A1").setString("imbriquee")
        self.doc.CurrentController.select(tableau.getCellRangeByName("B1:C2"))
        self.assertEqual([z.texte for z in self.client.zones() if z.selection[1]],
                         ["cellule B1", "imbriquee", "cellule C1", "cellule B2", "cellule C2"])
        self.assertEqual(self.client.DonneContexteSelection(), "cellule B1")
        with self.assertRaises(banc.Appel) as refus:
            self.client.RemplaceEtReselectionne("x")
        self.assertEqual(refus.exception.nom, "SelectionImpossible")

    def test_a_selected_shape_is_selected_whole(self):
        self.e.ecrit("corps")
        forme = self.e.forme("dans la forme")
        self.doc.CurrentController.select(forme)
        self.assertEqual(self.client.DonneContexteSelection(), "dans la forme")
        zone = next(z for z in self.client.zones() if "forme" in z.texte)
        self.assertEqual(zone.selection, (0, 13))
        self.client.SelectionneIntervalle(zone.nom, 5, 7)
        self.assertEqual(self.client.DonneContenuSelection(), "la")
        self.client.RemplaceEtReselectionne("une")
        self.assertEqual(forme.String, "dans une forme")
        self.assertEqual(self.client.DonneContenuSelection(), "une")

    def test_the_context_is_the_paragraph_with_the_selection_in_it(self):
        self.texte.setString("un\rdeux mots\rtrois")
        self.choisis(8, 12)
        c = self.client
        self.assertEqual(c.DonneContexteSelection(), "deux mots")
        self.assertEqual((c.DonneDebutSelectionDansSonContexte(),
                          c.DonneFinSelectionDansSonContexte()), (5, 9))
        self.assertEqual((c.DonneDebutSelection(), c.DonneFinSelection()), (5, 9))
        self.assertEqual(c.DonneContenuSelection(), "mots")

    def test_selecting_a_range_of_a_zone_selects_it_in_the_document(self):
        self.e.ecrit("un \U0001f600").note("n")
        self.e.ecrit(" deux").paragraphe().ecrit("trois")
        zone = self.client.zones()[0]
        self.assertEqual(zone.texte, "un \U0001f600\a deux")
        self.client.SelectionneIntervalle(zone.nom, 7, 11)
        self.assertEqual(self.doc.CurrentSelection.getByIndex(0).String, "deux")
        self.assertEqual(self.client.zones()[0].selection, (7, 11))

    def test_text_of_the_body_can_be_selected_while_a_shape_is_selected(self):
        self.texte.setString("du corps ici")
        forme = self.e.forme("dans la forme")
        self.doc.CurrentController.select(forme)
        zone = next(z for z in self.client.zones() if "corps" in z.texte)
        self.client.SelectionneIntervalle(zone.nom, 3, 8)
        self.assertEqual(self.client.DonneContenuSelection(), "corps")
        self.client.RemplaceEtReselectionne("texte")
        self.assertEqual((self.texte.String, forme.String), ("du texte ici", "dans la forme"))

    def test_a_comment_cannot_be_selected_and_nothing_else_is_replaced_for_it(self):
        self.texte.setString("du corps ici")
        remarque = self.doc.createInstance("com.sun.star.text.textfield.Annotation")
        remarque.Content = "une remarque"
        self.texte.insertTextContent(self.e.plage(3, 8), remarque, True)
        zone = next(z for z in self.client.zones() if "remarque" in z.texte)
        with self.assertRaises(banc.Appel) as erreur:
            self.client.SelectionneIntervalle(zone.nom, 4, 12)
        self.assertEqual(erreur.exception.nom, "SelectionImpossible")
        with self.assertRaises(banc.Appel):
            self.client.RemplaceEtReselectionne("note")
        self.assertEqual(self.texte.String, "du corps ici")
        self.assertEqual(next(z for z in self.client.zones() if "remarque" in z.texte).texte, "une remarque")

    def test_the_tools_can_shift_and_replace_the_selection(self):
        self.texte.setString("un tres beau chat")
        self.choisis(4, 4)
        c = self.client
        c.InitialisePourOutils(True)
        self.assertEqual(c.DonneContexteSelection(), "un tres beau chat")
        c.AjusteSelectionPourOutils(-1, 3)
        self.assertEqual(c.DonneContenuSelection(), "tres")
        c.RemplaceEtReselectionne("très, très")
        self.assertEqual(self.texte.String, "un très, très beau chat")
        self.assertEqual(c.DonneContenuSelection(), "très, très")

    def test_a_shift_out_of_the_paragraph_changes_nothing(self):
        self.texte.setString("un\rdeux\rtrois")
        self.choisis(5, 6)
        for deltas in ((-100, 2**31 - 1), (0, 100), (2, 0), (-3, 0)):
            with self.subTest(deltas=deltas), self.assertRaises(banc.Appel) as refus:
                self.client.AjusteSelectionPourOutils(*deltas)
            self.assertEqual(refus.exception.nom, "SelectionImpossible")
        self.assertEqual(self.client.DonneContenuSelection(), "u")

    def test_a_selection_that_moved_since_is_not_replaced(self):
        self.texte.setString("un deux trois")
        self.choisis(3, 7)
        self.client.DonneContexteSelection()
        self.choisis(8, 13)
        with self.assertRaises(banc.Appel) as refus:
            self.client.RemplaceEtReselectionne("x")
        self.assertEqual(refus.exception.nom, "PlageRefusee")
        self.assertEqual(self.texte.String, "un deux trois")


if __name__ == "__main__":
    unittest.main()
