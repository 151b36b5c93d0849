# SPDX-License-Identifier: MPL-2.0
"""What a correction changes in a Writer document, and what it leaves alone."""

import unittest

import uno
from com.sun.star.lang import Locale

import banc
import menus
from ecrivain import Ecrivain, parties_grasses

ITALIQUE = uno.Enum("com.sun.star.awt.FontSlant", "ITALIC")


COMMENTAIRE = """<?xml version="1.0" encoding="UTF-8"?>
<office:document xmlns:office="urn:oasis:names:tc:opendocument:xmlns:office:1.0"
 xmlns:style="urn:oasis:names:tc:opendocument:xmlns:style:1.0"
 xmlns:text="urn:oasis:names:tc:opendocument:xmlns:text:1.0"
 xmlns:dc="http://purl.org/dc/elements/1.1/"
 xmlns:fo="urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0"
 office:version="1.3" office:mimetype="application/vnd.oasis.opendocument.text">
<office:automatic-styles><style:style style:name="G" style:family="text">
<style:text-properties fo:font-weight="bold"/></style:style></office:automatic-styles>
<office:body><office:text><text:p>corps<office:annotation><dc:creator>A</dc:creator>
<text:p>un <text:span text:style-name="G">mot</text:span> gras</text:p></office:annotation></text:p>
</office:text></office:body></office:document>
"""


def setUpModule():
    global BUS, BUREAU
    BUS, BUREAU = banc.bus_et_bureau()


class Cas(unittest.TestCase):
    def setUp(self):
        self.doc, self.client = banc.document_et_client(self, BUS, BUREAU)
        self.texte = self.doc.Text
        self.e = Ecrivain(self.doc)

    def zone(self, contenant=""):
        return next(z for z in self.client.zones() if contenant in z.texte)

    def corrige(self, cherche, remplace):
        self.client.corrige(self.zone(cherche), cherche, remplace)

    def refuse(self, zone, cherche, remplace, raison="Protege"):
        """The edit is refused, and nothing has changed."""
        avant = self.client.textes()
        zone = next(z for z in self.client.zones() if z.nom == zone.nom)
        self.assertFalse(self.client.peut(zone, cherche))
        with self.assertRaises(banc.Appel) as erreur:
            self.client.corrige(zone, cherche, remplace)
        self.assertEqual(erreur.exception.nom, raison)
        self.assertEqual(self.client.textes(), avant)

    def gras(self, texte=None):
        return parties_grasses(texte or self.texte)


class Remplacement(Cas):
    def test_a_correction_changes_the_word_and_nothing_else(self):
        self.texte.setString("un\rles chat noir\rtrois")
        zone = self.zone("chat")
        self.assertTrue(self.client.peut(zone, "chat"))
        self.client.corrige(zone, "chat", "chats")
        self.client.corrige(zone, "noir", "noirs")
        self.assertEqual(self.texte.String, "un\nles chats noirs\ntrois")

    def test_an_insertion_and_a_deletion(self):
        self.texte.setString("abcdef")
        zone = self.zone()
        self.client.CorrigeDansTexteur(zone.nom, 3, 3, "XY", False)
        self.client.CorrigeDansTexteur(zone.nom, 0, 2, "", True)
        self.assertEqual(self.texte.String, "cXYdef")

    def test_formats_on_both_sides_of_a_border_stay(self):
        self.texte.setString("un chat noir")
        self.e.plage(3, 7).CharWeight = 150.0
        self.corrige("chat noir", "chien noirs")
        self.assertEqual(self.texte.String, "un chien noirs")
        self.assertEqual(self.gras(), ["chien"])

    def test_a_whole_bold_word_stays_bold(self):
        self.texte.setString("un chat noir")
        self.e.plage(3, 7).CharWeight = 150.0
        self.corrige("chat", "lion")
        self.assertEqual(self.gras(), ["lion"])

    def test_offsets_behind_emoji_fields_notes_and_images_are_exact(self):
        self.e.ecrit("\U0001f600 a").note("n")
        self.e.met("com.sun.star.text.textfield.PageNumber", NumberingType=4)
        self.e.met("com.sun.star.text.TextGraphicObject",
                   AnchorType=uno.Enum("com.sun.star.text.TextContentAnchorType", "AS_CHARACTER"))
        self.e.ecrit("e\u0301 faute fin")
        self.corrige("faute", "correction")
        self.assertEqual(self.zone().texte, "\U0001f600 a\a\a\ae\u0301 correction fin")
        self.assertEqual(self.doc.Footnotes.Count, 1)

    def test_every_kind_of_text_can_be_corrected(self):
        style = self.doc.StyleFamilies.getByName("PageStyles").getByName("Standard")
        style.HeaderIsOn = True
        style.HeaderText.setString("mot entete")
        self.e.ecrit("mot corps").note("mot note")
        self.e.ecrit("x").note("mot fin", "com.sun.star.text.Endnote")
        self.e.cadre("mot cadre")
        self.e.forme("mot forme\rmot forme2")
        self.e.met("com.sun.star.text.textfield.Annotation", Content="mot remarque\nmot suite")
        self.e.tableau(1, 1).getCellByName("A1").setString("mot cellule")
        for zone in self.client.zones():
            if "mot" in zone.texte:
                with self.subTest(zone=zone.texte):
                    self.assertTrue(self.client.peut(zone, "mot"))
                    self.client.corrige(zone, "mot", "maux")
        textes = self.client.textes()
        self.assertEqual(len([t for t in textes if "maux" in t]), 10)
        self.assertFalse([t for t in textes if "mot" in t])

    def test_a_thousand_corrections_in_one_document(self):
        self.texte.setString("\r".join(f"{i} fotes dans \U0001f600 le texte fotes"
                                       for i in range(500)))
        for zone in self.client.zones():
            self.client.corrige(zone, "fotes", "fautes")
            self.client.corrige(zone, "fotes", "fautes")
        self.assertEqual(self.texte.String, "\n".join(
            f"{i} fautes dans \U0001f600 le texte fautes" for i in range(500)))

    def test_a_very_long_paragraph(self):
        self.texte.setString("mot \U0001f600 " * 500 + "mot " * 10000 + "faute")
        self.corrige("faute", "juste")
        self.assertTrue(self.texte.String.endswith("mot juste"))


class Survie(Cas):
    def test_bookmarks_survive_corrections_of_what_they_span(self):
        self.texte.setString("un chat noir")
        marque = self.e.met("com.sun.star.text.Bookmark", absorbe=self.e.plage(3, 7), Name="m")
        for cherche, remplace in (("chat", "lion"), ("lion", "lionne"), ("lionne", "l\u00e9opard"), ("l\u00e9opard", "un l\u00e9opard")):
            self.corrige(cherche, remplace)
            self.assertEqual(marque.Anchor.String, remplace)

    def test_a_correction_that_would_take_a_bookmark_along_is_refused(self):
        self.texte.setString("un chat noir")
        self.e.met("com.sun.star.text.Bookmark", absorbe=self.e.plage(3, 7), Name="m")
        zone = self.zone()
        with self.assertRaises(banc.Appel):
            self.client.corrige(zone, "chat", "")
        self.assertTrue(self.doc.Bookmarks.hasByName("m"))
        self.assertEqual(self.texte.String, "un chat noir")

    def test_a_bookmark_without_extent_survives_or_the_correction_is_refused(self):
        for place in range(2, 9):
            with self.subTest(place=place):
                self.texte.setString("un chat noir")
                curseur = self.e.plage(place, place)
                self.texte.insertTextContent(
                    curseur, self.doc.createInstance("com.sun.star.text.Bookmark"), False)
                zone = self.zone()
                permis = self.client.peut(zone, "chat")
                try:
                    self.client.corrige(zone, "chat", "loups")
                    fait = True
                except banc.Appel:
                    fait = False
                self.assertEqual(len(self.doc.Bookmarks.ElementNames), 1)
                self.assertTrue(fait or not permis)
                self.assertEqual(self.texte.String, "un loups noir" if fait else "un chat noir")
                self.doc.Bookmarks.getByIndex(0).dispose()

    def signets(self):
        """What each bookmark spans, and what stands before it in its text."""
        lus = {}
        for nom in self.doc.Bookmarks.ElementNames:
            etendue = self.doc.Bookmarks.getByName(nom).Anchor
            avant = etendue.Text.createTextCursorByRange(etendue.Start)
            avant.gotoStart(True)
            lus[nom] = (avant.String, etendue.String)
        return lus

    def test_undo_and_redo_bring_bookmarks_back_where_they_were(self):
        for suivi in (False, True):
            with self.subTest(suivi=suivi):
                self.doc.RecordChanges = False
                self.texte.setString("un chat noir\rla suite\rmot")
                for nom, debut, fin in (("mot", 3, 7), ("debut", 0, 2), ("tout", 0, 12), ("seul", 22, 25),
                                        ("ailleurs", 8, 15), ("ici", 15, 15)):
                    self.e.met("com.sun.star.text.Bookmark", absorbe=self.e.plage(debut, fin), Name=nom)
                self.doc.Bookmarks.getByName("mot").BookmarkHidden = True
                self.doc.RecordChanges = suivi
                self.doc.UndoManager.clear()
                etats = [(self.client.textes(), self.signets())]
                for cherche, remplace in (("mot", "xy"), ("chat", "loup"), ("un", "le"), ("noir", "blanc"),
                                          ("suite", "fin"), ("loup", "lion"), ("xy", "le mot")):
                    self.corrige(cherche, remplace)
                    etats.append((self.client.textes(), self.signets()))
                for voulu in etats[-2::-1]:
                    self.doc.UndoManager.undo()
                    self.assertEqual((self.client.textes(), self.signets()), voulu)
                for voulu in etats[1:]:
                    self.doc.UndoManager.redo()
                    self.assertEqual((self.client.textes(), self.signets()), voulu)
                self.assertTrue(self.doc.Bookmarks.getByName("mot").BookmarkHidden)

    def test_ruby_survives(self):
        self.texte.setString("tokyo city")
        self.e.plage(0, 5).setPropertyValue("RubyText", "above")
        self.corrige("tokyo", "kyoto")
        self.assertEqual(self.e.plage(1, 2).RubyText, "above")
        self.assertEqual(self.e.plage(4, 5).RubyText, "above")

    def test_a_hyperlink_survives(self):
        self.texte.setString("see the sitte now")
        self.e.plage(8, 13).HyperLinkURL = "https://example.org/"
        self.corrige("sitte", "site")
        self.assertEqual(self.e.plage(9, 10).HyperLinkURL, "https://example.org/")
        self.assertEqual(self.texte.String, "see the site now")

    def liens(self):
        """The letters in links."""
        portions = self.texte.createEnumeration().nextElement().createEnumeration()
        lettres = ""
        while portions.hasMoreElements():
            p = portions.nextElement()
            lettres += p.String if p.HyperLinkURL else ""
        return lettres

    def test_a_corrected_word_of_a_link_stays_in_the_link_whole(self):
        for debut, fin, cherche, remplace, attendu in (
                (3, 7, "lien", "liens", "liens"), (3, 7, "lien", "aliens", "aliens"),
                (3, 7, "lien", "liyen", "liyen"), (3, 7, "lien", "site", "site"),
                (3, 7, "un lien", "les liens", "liens"), (3, 7, "lien ici", "liens la", "liens"),
                (0, 7, "un", "aun", "aun lien"), (3, 11, "ici", "icis", "lien icis"),
                (3, 7, "un", "une", "lien"), (3, 7, "ici", "x ici", "lien"),
                (3, 5, "lien", "liens", "li"), (3, 5, "lien", "liaen", "li"),
                (5, 7, "lien", "liaen", "en"), (0, 11, "ici", "icis", "un lien icis")):
            with self.subTest(lien=(debut, fin), remplace=remplace):
                self.texte.setString("")
                self.e.ecrit("un lien ici", HyperLinkURL="")
                self.e.plage(debut, fin).HyperLinkURL = "https://example.org/"
                self.corrige(cherche, remplace)
                self.assertEqual(self.texte.String, "un lien ici".replace(cherche, remplace, 1))
                self.assertEqual(self.liens(), attendu)

    def test_a_link_is_not_lost_with_its_last_letter(self):
        self.texte.setString("un lien a")
        self.e.plage(3, 7).HyperLinkURL = "https://example.org/1"
        self.e.plage(8, 9).HyperLinkURL = "https://example.org/2"
        with self.assertRaises(banc.Appel) as refus:
            self.client.corrige(self.zone(), "lien", "")
        self.assertEqual(refus.exception.nom, "ChampDetruit")
        self.refuse(self.zone(), "a", "b", "ChampDetruit")
        self.assertEqual(self.liens(), "liena")

    def test_letters_put_in_at_a_paragraphs_start_have_the_format_of_its_first_letter(self):
        def langues():
            portions = self.texte.createEnumeration().nextElement().createEnumeration()
            vues = []
            while portions.hasMoreElements():
                p = portions.nextElement()
                vues.append((p.String, p.CharLocale.Language))
            return vues

        for cherche, remplace in (("eau", "l'eau"), ("", "Oh "), ("eau tiede", "beau temps")):
            with self.subTest(remplace=remplace):
                self.texte.setString("eau tiede")
                self.e.plage(0, 4).CharLocale = Locale("de", "DE", "")
                self.e.plage(4, 9).CharLocale = Locale("it", "IT", "")
                self.corrige(cherche, remplace)
                texte = "eau tiede".replace(cherche, remplace, 1)
                self.assertEqual(self.texte.String, texte)
                ou = texte.index(" t") + 1
                self.assertEqual(langues(), [(texte[:ou], "de"), (texte[ou:], "it")])

    def saisie(self):
        """The input field's words, and all others."""
        portions = self.texte.createEnumeration().nextElement().createEnumeration()
        dedans = dehors = ""
        while portions.hasMoreElements():
            p = portions.nextElement()
            if p.TextPortionType == "TextField":
                self.assertEqual((p.TextField.Hint, p.TextField.Content), ("nom", p.String))
                dedans += p.String
            else:
                dehors += p.String
        return dedans, dehors

    def test_the_words_of_an_input_field_are_corrected_in_the_field(self):
        self.e.ecrit("avant ")
        self.e.met("com.sun.star.text.textfield.Input", Content="jean dupond", Hint="nom")
        self.e.ecrit(" apres")
        for cherche, remplace, attendu in (
                ("jean", "Jean", "Jean dupond"), ("dupond", "dupont", "jean dupont"),
                ("jean dupond", "x", "x"), ("dupond", "duponds", "jean duponds"),
                ("jean", "ajean", "ajean dupond"), ("n d", "nd", "jeandupond"),
                ("avant jean", "devant Jean", "Jean dupond"), ("jean ", "", "dupond"),
                ("dupond apres", "dupont ensuite", "jean dupont")):
            with self.subTest(remplace=remplace):
                zone = self.zone("avant")
                self.assertEqual(zone.texte, "avant jean dupond apres")
                self.assertTrue(self.client.peut(zone, cherche))
                self.doc.UndoManager.clear()
                self.client.corrige(zone, cherche, remplace)
                self.assertEqual(self.zone().texte, zone.texte)
                self.assertEqual(self.saisie()[0], attendu)
                self.assertEqual(len(self.doc.UndoManager.AllUndoActionTitles), 1)
                self.doc.UndoManager.undo()
                self.assertEqual(self.saisie(), ("jean dupond", "avant  apres"))
                self.doc.UndoManager.redo()
                self.assertEqual(self.saisie()[0], attendu)
                self.doc.UndoManager.undo()
        with self.assertRaises(banc.Appel) as refus:
            self.client.corrige(self.zone(), "jean dupond", "")
        self.assertEqual(refus.exception.nom, "ChampDetruit")
        self.doc.RecordChanges = True  # those in a field are not recorded
        self.refuse(self.zone(), "dupond", "dupont", "ChampDetruit")
        self.corrige("apres", "ensuite")
        self.assertEqual(self.saisie()[0], "jean dupond")

    def test_what_is_anchored_at_a_paragraphs_start_survives_what_is_put_in_there(self):
        for suivi in (False, True):
            for signet in (False, True):
                with self.subTest(suivi=suivi, signet=signet):
                    self.doc.RecordChanges = False
                    self.texte.setString("un mot")
                    cadre = self.doc.createInstance("com.sun.star.text.TextFrame")
                    cadre.AnchorType = uno.Enum("com.sun.star.text.TextContentAnchorType",
                                                "AT_CHARACTER")
                    self.texte.insertTextContent(self.e.plage(0, 0), cadre, False)
                    cadre.Text.setString("dans le cadre")
                    if signet:
                        self.e.met("com.sun.star.text.Bookmark", absorbe=self.e.plage(0, 0),
                                   Name="m")
                    self.doc.RecordChanges = suivi
                    self.doc.UndoManager.clear()
                    for debut, fin, texte in ((0, 0, "Oh "), (0, 2, "Oun"), (0, 0, "x")):
                        zone = self.client.zones()[0]
                        self.client.CorrigeDansTexteur(zone.nom, debut, fin, texte + zone.texte[
                            debut:fin][2:], False)
                    self.assertEqual(self.client.textes()[1], "dans le cadre")
                    self.assertEqual(self.doc.Bookmarks.hasByName("m"), signet)
                    while self.doc.UndoManager.isUndoPossible():
                        self.doc.UndoManager.undo()
                    self.assertEqual(self.client.textes(), ["un mot", "dans le cadre"])
                    self.doc.RecordChanges = False
                    self.assertEqual(self.doc.Bookmarks.hasByName("m"), signet)
                    if signet:
                        self.doc.Bookmarks.getByName("m").dispose()
                    self.doc.TextFrames.getByIndex(0).dispose()

    def test_a_bookmark_beside_an_anchored_frame_survives_or_the_correction_is_refused(self):
        def cadre(place):
            cadre = self.doc.createInstance("com.sun.star.text.TextFrame")
            cadre.AnchorType = uno.Enum("com.sun.star.text.TextContentAnchorType", "AT_CHARACTER")
            self.texte.insertTextContent(self.e.plage(place, place), cadre, False)
            return cadre

        def signet(place):
            self.texte.insertTextContent(
                self.e.plage(place, place),
                self.doc.createInstance("com.sun.star.text.Bookmark"), False)

        for place in (0, 3, 5, 7):
            for poses in ((cadre, signet), (signet, cadre)):
                for cherche, remplace in (("chat", "lion"), ("chat", "chats"), ("un", "le"),
                                          ("un chat", "mon lion"), (" ", "  ")):
                    with self.subTest(place=place, remplace=remplace, premier=poses[0].__name__):
                        self.texte.setString("un chat noir")
                        for pose in poses:
                            pose(place)
                        zone = self.zone("noir")
                        permis = self.client.peut(zone, cherche)
                        try:
                            self.client.corrige(zone, cherche, remplace)
                            fait = True
                        except banc.Appel:
                            fait = False
                        self.assertTrue(fait or not permis)
                        self.assertEqual(len(self.doc.Bookmarks.ElementNames), 1)
                        self.assertEqual(len(self.doc.TextFrames.ElementNames), 1)
                        self.assertEqual(self.texte.String, "un chat noir".replace(
                            cherche, remplace, 1) if fait else "un chat noir")
                        self.doc.Bookmarks.getByIndex(0).dispose()
                        self.doc.TextFrames.getByIndex(0).dispose()

    def test_a_range_across_a_field_note_image_or_comment_is_refused(self):
        poses = {
            "field": lambda: self.e.met("com.sun.star.text.textfield.PageNumber"),
            "note": lambda: self.e.note("n"),
            "comment": lambda: self.e.met("com.sun.star.text.textfield.Annotation", Content="c"),
            "image": lambda: self.e.met(
                "com.sun.star.text.TextGraphicObject",
                AnchorType=uno.Enum("com.sun.star.text.TextContentAnchorType", "AS_CHARACTER")),
            "frame here": lambda: self.e.cadre("f", "AT_CHARACTER"),
            "reference": lambda: self.e.met("com.sun.star.text.ReferenceMark", Name="r"),
        }
        for nom, pose in poses.items():
            with self.subTest(nom=nom):
                self.texte.setString("")
                self.e.ecrit("un cha")
                pose()
                self.e.ecrit("t noir")
                zone = next(z for z in self.client.zones() if z.texte.startswith("un cha"))
                mot = "cha\at" if "\a" in zone.texte else "chat"
                self.refuse(zone, mot, "lion", "ChampDetruit")

    def test_a_range_across_hidden_letters_is_refused(self):
        self.texte.setString("un cha\u2026\u2026t noir")
        self.e.plage(6, 8).CharHidden = True
        self.refuse(self.zone(), "chat", "lion", "ChampDetruit")

    def test_a_comment_with_formats_is_left_alone(self):
        # Only a file brings formats into a comment: the office takes none through UNO.
        source = banc.DOSSIER / "commentaire.fodt"
        source.write_text(COMMENTAIRE, encoding="utf-8")
        doc = BUREAU.ouvre(source.as_uri())
        self.addCleanup(lambda: doc.close(True))
        client = banc.Client(BUS)
        client.prends(doc)
        zone = next(z for z in client.zones() if z.texte == "un mot gras")
        self.assertEqual(zone.styles, [(3, 6, 1)])
        self.reste(client, zone)
        self.assertIn("un mot gras", client.textes())

    def reste(self, client, zone):
        """Nothing in the zone can be corrected, and that is said beforehand."""
        self.assertFalse(client.peut(zone, "mot"))
        with self.assertRaises(banc.Appel) as refus:
            client.corrige(zone, "mot", "maux")
        self.assertEqual(refus.exception.nom, "ChampDetruit")

    def commentaire(self, *paragraphes, **format_):
        """A comment whose words have that format; without one, as the office itself makes it."""
        champ = self.doc.createInstance("com.sun.star.text.textfield.Annotation")
        if not format_ and paragraphes[-1]:
            champ.Content = "\n".join(paragraphes)
            self.texte.insertTextContent(self.texte.End, champ, False)
            return champ
        texte = champ.TextRange
        for i, paragraphe in enumerate(paragraphes):
            if i:
                texte.insertControlCharacter(texte.End, 0, False)
            texte.insertString(texte.End, paragraphe, False)
        curseur = texte.createTextCursor()
        curseur.gotoStart(False)
        curseur.gotoEnd(True)
        for nom, valeur in format_.items():
            curseur.setPropertyValue(nom, valeur)
        self.texte.insertTextContent(self.texte.End, champ, False)
        return champ

    @staticmethod
    def lettres(champ):
        """The comment's paragraphs, each with its format."""
        suite = champ.TextRange.createEnumeration()
        vus = []
        while suite.hasMoreElements():
            p = suite.nextElement()
            vus.append((p.String, p.CharHeight, p.CharFontName, p.CharColor,
                        p.CharLocale.Language, p.ParaAdjust))
        return vus

    def test_a_comment_in_a_font_or_size_of_its_own_is_left_alone(self):
        for format_ in ({"CharHeight": 8.0}, {"CharFontName": "DejaVu Sans"},
                        {"CharColor": 0xFF0000}, {"CharLocale": Locale("de", "DE", "")},
                        {"ParaAdjust": uno.Enum("com.sun.star.style.ParagraphAdjust", "CENTER")}):
            with self.subTest(format=format_):
                self.texte.setString("corps")
                champ = self.commentaire("un mot", "suite", **format_)
                avant = self.lettres(champ)
                self.assertEqual([texte for texte, *_ in avant], ["un mot", "suite"])
                self.reste(self.client, self.zone("mot"))
                self.assertEqual(self.lettres(champ), avant)

    def test_a_comment_that_ends_with_empty_paragraphs_is_left_alone(self):
        self.texte.setString("corps")
        champ = self.commentaire("un mot", "", "")
        self.reste(self.client, self.zone("mot"))
        self.assertEqual([texte for texte, *_ in self.lettres(champ)], ["un mot", "", ""])

    def test_a_correction_never_makes_the_last_paragraph_of_a_comment_empty(self):
        self.texte.setString("corps")
        champ = self.commentaire("un", "mot")
        zone = self.zone("mot")
        with self.assertRaises(banc.Appel) as refus:
            self.client.corrige(zone, "mot", "")
        self.assertEqual(refus.exception.nom, "ChampDetruit")
        self.corrige("mot", "maux")
        self.assertEqual([texte for texte, *_ in self.lettres(champ)], ["un", "maux"])

    def test_the_fillers_of_a_range_never_become_letters(self):
        self.e.ecrit("un ").note("n")
        self.e.ecrit(" mot")
        zone = self.zone()
        # A host gives back what it was given: around the note nothing differs.
        self.client.CorrigeDansTexteur(zone.nom, 0, len(zone.texte), "le \a mot", False)
        self.assertEqual(self.doc.Footnotes.Count, 1)
        self.assertEqual(self.zone().texte, "le \a mot")


class Refus(Cas):
    def test_a_protected_section(self):
        self.texte.setString("libre\rprotege\rlibre")
        self.e.section(6, 13, IsProtected=True)
        self.refuse(self.zone("protege"), "protege", "x")
        self.corrige("libre", "livre")

    def test_a_nested_section_in_a_protected_one(self):
        self.texte.setString("a\rdehors\rdedans\rb")
        self.e.section(2, 15, IsProtected=True, Name="grande")
        self.e.section(9, 15, Name="petite")
        self.refuse(self.zone("dedans"), "dedans", "x")

    def test_a_protected_cell_and_what_is_nested_in_it(self):
        tableau = self.e.tableau(1, 2)
        tableau.getCellByName("B1").setString("protege")
        interieur = Ecrivain(self.doc, tableau.getCellByName("B1")).tableau(1, 1)
        interieur.getCellByName("A1").setString("imbrique")
        tableau.getCellByName("B1").IsProtected = True
        self.refuse(self.zone("protege"), "protege", "x")
        self.refuse(self.zone("imbrique"), "imbrique", "x")

    def test_a_footnote_of_a_protected_section(self):
        self.texte.setString("a\r")
        self.e.ecrit("corps").note("la note")
        self.e.paragraphe().ecrit("b")
        self.e.section(2, 8, IsProtected=True)
        self.refuse(self.zone("la note"), "note", "x")

    def test_a_protected_frame(self):
        self.e.cadre("protege").ContentProtected = True
        self.refuse(self.zone("protege"), "protege", "x")

    def en_lecture_seule(self):
        """The document as it stands, opened once more, for reading alone; and a client on it."""
        copie = f"file://{banc.DOSSIER}/lecture_seule.odt"
        self.doc.storeToURL(copie, ())
        return banc.document_et_client(self, BUS, BUREAU, copie, banc.pv("ReadOnly", True))

    def test_a_read_only_document(self):
        self.texte.setString("un mot")
        doc, client = self.en_lecture_seule()
        zone = client.zones()[0]
        self.assertFalse(client.peut(zone, "mot"))
        self.assertFalse(client.PermetsRetourDeCharriot())
        with self.assertRaises(banc.Appel):
            client.corrige(zone, "mot", "maux")
        self.assertEqual(doc.Text.String, "un mot")

    def test_of_several_reasons_the_same_one_is_told_whatever_the_way(self):
        self.texte.setString("un mot\rsuite")
        self.e.section(0, 6, IsProtected=True)
        for (_, client), raison in (((self.doc, self.client), "Protege"),
                                    (self.en_lecture_seule(), "LectureSeule")):
            with self.subTest(raison=raison):
                zone = client.zones()[0]
                client.SelectionneIntervalle(zone.nom, 3, 6)
                for corrige in (lambda: client.CorrigeDansTexteur(zone.nom, 3, 60, "\a", False),
                                lambda: client.RemplaceEtReselectionne("\a")):
                    with self.assertRaises(banc.Appel) as refus:
                        corrige()
                    self.assertEqual(refus.exception.nom, raison)
                self.assertFalse(client.PermetsRetourDeCharriot())

    def test_a_range_that_no_longer_holds_what_the_host_believes(self):
        self.texte.setString("un chat noir")
        zone = self.zone()
        self.e.plage(3, 7).setString("chien")
        self.assertFalse(self.client.peut(zone, "chat"))
        with self.assertRaises(banc.Appel):
            self.client.corrige(zone, "chat", "chats")
        self.assertEqual(self.texte.String, "un chien noir")

    def test_a_zone_that_was_never_given(self):
        self.texte.setString("un chat noir")
        zone = self.zone()
        autre = banc.Client(BUS)
        with self.assertRaises(banc.Appel):
            autre.corrige(zone, "chat", "chats")
        for inventee in ("", "d1:1", "d1_0:999", "\u00e9", zone.nom + "0"):
            with self.assertRaises(banc.Appel) as erreur:
                self.client.CorrigeDansTexteur(inventee, 0, 1, "x", False)
            self.assertEqual(erreur.exception.nom, "ZoneInconnue")
        self.assertEqual(self.texte.String, "un chat noir")

    def test_ranges_outside_the_zone_or_inverted(self):
        self.texte.setString("un \U0001f600 noir")
        for debut, fin in ((-1, 2), (2, 1), (0, 1000), (2**31 - 1, 2**31 - 1), (-2**31, 0), (4, 5)):
            with self.subTest(plage=(debut, fin)):
                zone = self.zone()
                self.assertFalse(self.client.PeutCorriger(zone.nom, debut, fin, ""))
                with self.assertRaises(banc.Appel):
                    self.client.CorrigeDansTexteur(zone.nom, debut, fin, "x", False)
        self.assertEqual(self.texte.String, "un \U0001f600 noir")

    def test_a_deleted_paragraph_is_not_edited_among_the_undo_steps(self):
        self.texte.setString("un\rdeux\rtrois")
        zone = self.zone("deux")
        suite = self.texte.createEnumeration()
        suite.nextElement()
        suite.nextElement().dispose()
        with self.assertRaises(banc.Appel):
            self.client.corrige(zone, "deux", "x")
        self.doc.UndoManager.undo()
        self.assertEqual(self.texte.String, "un\ndeux\ntrois")


    def test_a_shape_and_a_comment_that_were_deleted_are_not_corrected(self):
        self.e.ecrit("corps")
        forme = self.e.forme("dans une forme")
        remarque = self.e.met("com.sun.star.text.textfield.Annotation", Content="une remarque")
        zones = self.client.zones()
        self.doc.DrawPage.remove(forme)
        remarque.dispose()
        for zone in zones[1:]:
            with self.subTest(zone=zone.texte), self.assertRaises(banc.Appel):
                self.client.CorrigeDansTexteur(zone.nom, 0, 3, "x", False)
        self.assertEqual(self.client.textes(), ["corps"])


class Frappe(Cas):
    """The person types between synchronisation and correction."""

    def test_typing_before_the_range_shifts_it(self):
        self.texte.setString("un chat noir")
        zone = self.zone()
        self.texte.insertString(self.texte.Start, "Voici ", False)
        self.client.corrige(zone, "noir", "noirs")
        self.client.corrige(zone, "chat", "chats")
        self.assertEqual(self.texte.String, "Voici un chats noirs")

    def test_typing_between_two_corrections(self):
        self.texte.setString("les chat noir dort")
        zone = self.zone()
        self.client.corrige(zone, "chat", "chats")
        self.e.plage(9, 9).setString(" tout")
        self.client.corrige(zone, "dort", "dorment")
        self.assertEqual(self.texte.String, "les chats tout noir dorment")

    def test_new_paragraphs_above_move_nothing(self):
        self.texte.setString("un\rdeux")
        zone = self.zone("deux")
        self.texte.insertString(self.texte.Start, "zero\rzero bis\r", False)
        self.client.corrige(zone, "deux", "two")
        self.assertEqual(self.texte.String, "zero\nzero bis\nun\ntwo")

    def test_after_a_refusal_what_stands_before_can_still_be_corrected(self):
        self.texte.setString("un chat noir")
        zone = self.zone()
        self.e.plage(8, 12).setString("gris")
        with self.assertRaises(banc.Appel):
            self.client.corrige(zone, "noir", "noirs")
        self.client.corrige(zone, "un", "le")
        self.assertEqual(self.texte.String, "le chat gris")


class Annulation(Cas):
    def titres(self):
        return self.doc.UndoManager.AllUndoActionTitles

    def test_one_correction_is_one_named_step_and_undo_restores_exactly(self):
        self.texte.setString("un chat noir")
        self.e.plage(3, 7).CharWeight = 150.0
        self.e.plage(8, 12).CharPosture = ITALIQUE
        zone = self.zone()
        styles = zone.styles
        self.doc.UndoManager.clear()
        self.client.corrige(zone, "chat noir", "chiens gris")
        self.assertEqual(self.titres(), ("Correction: \u201cchat noir\u201d to "
                                         "\u201cchiens gris\u201d",))
        self.doc.UndoManager.undo()
        self.assertEqual((self.zone().texte, self.zone().styles), ("un chat noir", styles))
        self.doc.UndoManager.redo()
        self.assertEqual(self.zone().texte, "un chiens gris")

    def test_corrections_are_undone_one_by_one(self):
        self.texte.setString("aa bb cc")
        zone = self.zone()
        self.doc.UndoManager.clear()
        for avant, apres in (("aa", "AA"), ("bb", "BBB"), ("cc", "C")):
            self.client.corrige(zone, avant, apres)
        vus = [self.texte.String]
        while self.doc.UndoManager.isUndoPossible():
            self.doc.UndoManager.undo()
            vus.append(self.texte.String)
        self.assertEqual(vus, ["AA BBB C", "AA BBB cc", "AA bb cc", "aa bb cc"])

    def test_a_correction_in_a_shape_can_be_undone_and_redone(self):
        self.e.ecrit("x")
        forme = self.e.forme("un chat noir\rdeux")
        curseur = forme.createTextCursor()
        curseur.gotoStart(False)
        curseur.goRight(3, False)
        curseur.goRight(4, True)
        curseur.CharWeight = 150.0
        self.doc.UndoManager.clear()
        self.corrige("chat", "lions")
        self.assertEqual(forme.String, "un lions noir\ndeux")
        self.assertEqual(self.gras(forme), ["lions"])
        self.assertEqual(len(self.titres()), 1)
        self.doc.UndoManager.undo()
        self.assertEqual(forme.String, "un chat noir\ndeux")
        self.assertEqual(self.gras(forme), ["chat"])
        self.doc.UndoManager.redo()
        self.assertEqual(forme.String, "un lions noir\ndeux")

    def test_a_correction_in_a_comment_can_be_undone(self):
        self.e.ecrit("x")
        remarque = self.e.met("com.sun.star.text.textfield.Annotation", Content="un mot\nsuite")
        self.doc.UndoManager.clear()
        self.corrige("mot", "maux")
        self.assertEqual(remarque.Content, "un maux\nsuite")
        self.assertEqual(len(self.titres()), 1)
        self.doc.UndoManager.undo()
        self.assertIn("un mot\nsuite", self.contenus())

    def contenus(self):
        champs = self.doc.TextFields.createEnumeration()
        contenus = []
        while champs.hasMoreElements():
            contenus.append(champs.nextElement().Content)
        return contenus

    def test_a_refused_correction_leaves_no_step(self):
        self.texte.setString("un ")
        self.e.note("n")
        self.doc.UndoManager.clear()
        zone = self.zone()
        with self.assertRaises(banc.Appel):
            self.client.CorrigeDansTexteur(zone.nom, 0, 4, "tout", False)
        self.assertEqual(self.titres(), ())


class AnnulationEnFrancais(unittest.TestCase):
    def test_the_undo_step_is_named_in_the_offices_language(self):
        menus.met_en_francais("profil-fr")
        bus = banc.Bus()
        self.addCleanup(bus.ferme)
        bureau = banc.Bureau(bus.adresse, profil="profil-fr")
        self.addCleanup(bureau.ferme)
        nom = "Correction : \u00ab\u00a0mot\u00a0\u00bb en \u00ab\u00a0maux\u00a0\u00bb"
        for genre in ("swriter", "scalc"):
            with self.subTest(genre=genre):
                doc = bureau.ouvre(f"private:factory/{genre}")
                (doc.Text if genre == "swriter" else
                 doc.Sheets.getByIndex(0).getCellByPosition(0, 0)).setString("un mot")
                doc.UndoManager.clear()
                client = banc.Client(bus)
                client.prends(doc)
                client.corrige(client.zones()[0], "mot", "maux")
                self.assertEqual(doc.UndoManager.AllUndoActionTitles, (nom,))
                doc.close(True)


class Suivi(Cas):
    """Tracked changes."""

    def setUp(self):
        super().setUp()
        self.texte.setString("un chat noir dort")
        self.doc.RecordChanges = True

    def redlines(self):
        suite = self.doc.Redlines.createEnumeration()
        natures = []
        while suite.hasMoreElements():
            natures.append(suite.nextElement().RedlineType)
        return natures

    def test_a_correction_is_recorded_and_recording_stays_on(self):
        self.corrige("chat", "chien")
        self.assertEqual(self.zone().texte, "un chien noir dort")
        self.assertEqual(sorted(self.redlines()), ["Delete", "Insert"])
        self.assertTrue(self.doc.RecordChanges)

    def test_corrections_around_recorded_ones_find_their_place(self):
        zone = self.zone()
        for avant, apres in (("chat", "chien"), ("dort", "dorment"), ("un", "les"),
                             ("noir", "noirs")):
            self.client.corrige(zone, avant, apres)
        self.assertEqual(self.zone().texte, "les chien noirs dorment")

    def test_a_range_across_a_deletion_is_refused(self):
        self.corrige("chat", "chien")
        self.refuse(self.zone(), "un chien noir", "une", "ChampDetruit")

    def test_accepting_or_rejecting_all_gives_the_corrected_or_the_former_text(self):
        zone = self.zone()
        self.client.corrige(zone, "chat", "chien")
        self.client.corrige(zone, "dort", "dorme")
        repartiteur = BUREAU.cree("com.sun.star.frame.DispatchHelper")
        cadre = self.doc.CurrentController.Frame
        repartiteur.executeDispatch(cadre, ".uno:AcceptAllTrackedChanges", "", 0, ())
        self.assertEqual(self.texte.String, "un chien noir dorme")
        self.doc.UndoManager.undo()
        repartiteur.executeDispatch(cadre, ".uno:RejectAllTrackedChanges", "", 0, ())
        self.assertEqual(self.texte.String, "un chat noir dort")

    def test_a_paragraph_that_starts_inside_a_deletion_is_corrected_at_the_right_place(self):
        self.doc.RecordChanges = False
        self.texte.setString("aaaa bbbb\rcccc\rbbbb eeee bbbb")
        self.doc.RecordChanges = True
        self.e.plage(5, 19).setString("")
        zone = self.zone("eeee")
        self.assertEqual(zone.texte, " eeee bbbb")
        self.client.corrige(zone, "bbbb", "ffff")
        self.assertEqual(self.zone("eeee").texte, " eeee ffff")

    def test_a_paragraph_whose_deleted_start_was_replaced_is_selected_and_corrected_at_the_right_place(self):
        self.doc.RecordChanges = False
        self.texte.setString("aaaa bbbb\rcccc dddd")
        self.doc.RecordChanges = True
        self.e.plage(5, 15).setString("eeee")
        zone = self.zone("dddd")
        self.client.SelectionneIntervalle(zone.nom, 0, 4)
        self.assertEqual((self.client.DonneContenuSelection(), self.client.DonneDebutSelection()),
                         (zone.texte[:4], 0))
        self.client.corrige(zone, "dddd", "ffff")
        self.assertEqual(self.zone("ffff").texte, zone.texte)


if __name__ == "__main__":
    unittest.main()
