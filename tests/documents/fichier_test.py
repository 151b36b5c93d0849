#!/usr/bin/python3
# SPDX-License-Identifier: MPL-2.0
"""What is read of a saved file: its words with the reason why some are left out, and its structure."""

import pathlib
import re
import sys
import tempfile
import unittest
import zipfile

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "outils"))
from documents.fichier.demandees import sans_demandees
from documents.fichier.deplacees import sans_deplacees
from documents.fichier.differences import Difference, differences, partage
from documents.fichier.mots import Lecture
from documents.fichier.ossature import Ligne, Ossature
from documents.fichier.sauvegarde import Sauvegarde

ESPACES = " ".join(f'xmlns:{p}="urn:oasis:names:tc:opendocument:xmlns:{nom}:1.0"' for p, nom in (
    ("office", "office"), ("style", "style"), ("text", "text"), ("table", "table"),
    ("draw", "drawing"), ("fo", "xsl-fo-compatible"), ("presentation", "presentation"))) + (
    ' xmlns:officeooo="http://openoffice.org/2009/office"'
    ' xmlns:dc="http://purl.org/dc/elements/1.1/" xmlns:loext="urn:org:documentfoundation:names:'
    'experimental:office:xmlns:loext:1.0"')


def fichier(corps: str, styles: str = "", genre: str = "text", communs: str = "",
            maitres: str = "") -> Sauvegarde:
    with tempfile.TemporaryDirectory() as dossier:
        chemin = pathlib.Path(dossier) / "f.odt"
        with zipfile.ZipFile(chemin, "w") as archive:
            archive.writestr("content.xml", (
                f"<office:document-content {ESPACES}><office:automatic-styles>{styles}"
                f"</office:automatic-styles><office:body><office:{genre}>{corps}</office:{genre}>"
                "</office:body></office:document-content>"))
            archive.writestr("styles.xml", (
                f"<office:document-styles {ESPACES}><office:styles>{communs}</office:styles>"
                f"<office:master-styles>{maitres}</office:master-styles></office:document-styles>"))
        return Sauvegarde(chemin)


def gras(nom: str, *attributs: str) -> str:
    return (f'<style:style style:name="{nom}" style:family="text"><style:text-properties '
            f'fo:font-weight="bold" {" ".join(attributs)}/></style:style>')


def cache(nom: str, famille: str = "text") -> str:
    return (f'<style:style style:name="{nom}" style:family="{famille}">'
            '<style:text-properties text:display="none"/></style:style>')


def lignes(*arguments, lettres: bool = True, **autres) -> list[str]:
    return [ligne.dit for ligne in Ossature(fichier(*arguments, **autres), lettres).lignes]


class Mots(unittest.TestCase):
    def lis(self, *arguments, **autres) -> Lecture:
        return Lecture(fichier(*arguments, **autres))

    def attend(self, lecture: Lecture, lus: str, **ecartes: str) -> None:
        self.assertEqual(" ".join(sorted(lecture.lus.elements())), lus)
        self.assertEqual({raison: " ".join(sorted(siens.elements()))
                          for raison, siens in lecture.ecartes.items() if siens},
                         {nom.replace("_", " "): mots for nom, mots in ecartes.items()})

    def test_letters_of_spans_and_links_make_one_word(self):
        self.attend(self.lis("<text:p>a<text:span>b</text:span><text:a>c</text:a><text:s/>d</text:p>"),
                    "abc d")

    def test_a_field_parts_words_and_its_own_are_left_out(self):
        self.attend(self.lis("<text:p>a<text:page-number>12</text:page-number>b</text:p>"), "a b",
                    field="12")

    def test_what_was_typed_into_a_field_is_read(self):
        self.attend(self.lis("<text:p>a<text:text-input>b</text:text-input> c</text:p>"), "ab c")

    def test_an_input_field_with_line_ends_is_left_out(self):
        self.attend(self.lis("<text:p>a<text:text-input>b&#13;</text:text-input>c</text:p>"), "a c",
                    field="b")

    def test_a_bookmark_parts_no_word(self):
        self.attend(self.lis('<text:p>a<text:bookmark text:name="x"/>b</text:p>'), "ab")

    def test_a_note_is_read_without_its_number(self):
        self.attend(self.lis("<text:p>a<text:note><text:note-citation>1</text:note-citation>"
                             "<text:note-body><text:p>bas</text:p></text:note-body></text:note>"
                             "</text:p>"), "a bas", note_number="1")

    def test_a_comment_is_read_without_its_author(self):
        self.attend(self.lis("<text:p>a<office:annotation><dc:creator>Ana</dc:creator>"
                             "<text:p>note</text:p></office:annotation>b</text:p>"), "ab note")

    def test_hidden_letters_leave_their_neighbours_together(self):
        self.attend(self.lis('<text:p>a<text:span text:style-name="T">nul</text:span>b</text:p>',
                             cache("T")), "ab", hidden="nul")

    def test_letters_hidden_by_a_style_further_up_are_left_out(self):
        fille = '<style:style style:name="F" style:family="text" style:parent-style-name="M"/>'
        self.attend(self.lis('<text:p>a <text:span text:style-name="F">nul</text:span></text:p>',
                             fille, communs=cache("M")), "a", hidden="nul")

    def test_what_was_deleted_with_changes_tracked_is_left_out(self):
        self.attend(self.lis("<text:tracked-changes><text:p>vieux</text:p></text:tracked-changes>"
                             "<text:p>neuf</text:p>"), "neuf", deleted="vieux")

    def test_an_index_is_left_out(self):
        self.attend(self.lis("<text:table-of-content><text:index-body><text:p>titre</text:p>"
                             "</text:index-body></text:table-of-content>"), "", index="titre")

    def test_the_base_of_ruby_is_read(self):
        self.attend(self.lis("<text:p><text:ruby><text:ruby-base>字</text:ruby-base>"
                             "<text:ruby-text>ji</text:ruby-text></text:ruby></text:p>"), "字",
                    ruby="ji")

    def test_a_list_to_choose_from_is_no_text(self):
        controle = "<loext:content-control>{}oui</loext:content-control>"
        self.attend(self.lis(f"<text:p>{controle.format('')} "
                             f"{controle.format('<loext:list-item/>')}</text:p>"), "oui",
                    closed_control="oui")

    def test_headers_count_where_a_page_has_them(self):
        maitre = ('<style:master-page style:name="{}"><style:header><text:p>{}</text:p>'
                  "</style:header></style:master-page>")
        self.attend(self.lis("<text:p>a</text:p>", maitres=maitre.format("Standard", "haut")
                             + maitre.format("Autre", "jamais")), "a haut",
                    unused_page_style="jamais")

    def cellules(self, *cellules: str, avant: str = "") -> Lecture:
        return self.lis(f'<table:table table:name="F">{avant}<table:table-row>'
                        f"{''.join(cellules)}</table:table-row></table:table>", genre="spreadsheet")

    def cellule(self, texte: str, *attributs: str, genre: str = "string") -> str:
        return (f'<table:table-cell office:value-type="{genre}" {" ".join(attributs)}>'
                f"<text:p>{texte}</text:p></table:table-cell>")

    def test_of_cells_those_with_typed_text_count(self):
        self.attend(self.cellules(self.cellule("mot"), self.cellule("12", genre="float"),
                                  self.cellule("somme", 'table:formula="of:=A1"')), "mot",
                    number="12", computed="somme")

    def test_a_result_that_stands_without_its_formula_may_count_or_not(self):
        lecture = self.cellules(self.cellule("mot", 'office:string-value="mot"'), self.cellule("vu"))
        self.attend(lecture, "vu")
        self.assertEqual(list(lecture.douteux), ["mot"])

    def test_the_comment_of_a_number_is_read(self):
        note = "<office:annotation><text:p>voir</text:p></office:annotation>"
        self.attend(self.cellules(self.cellule("12", genre="float").replace("<text:p>",
                                                                            note + "<text:p>")),
                    "voir", number="12")

    def test_a_repeated_cell_counts_as_often(self):
        self.attend(self.cellules(self.cellule("mot", 'table:number-columns-repeated="3"')),
                    "mot mot mot")

    def test_hidden_columns_are_left_out(self):
        colonnes = '<table:table-column/><table:table-column table:visibility="collapse"/>'
        self.attend(self.cellules(self.cellule("vu"), self.cellule("nul"), avant=colonnes), "vu",
                    hidden_column="nul")

    def test_covered_cells_are_left_out(self):
        self.attend(self.cellules("<table:covered-table-cell office:value-type='string'>"
                                  "<text:p>nul</text:p></table:covered-table-cell>"), "",
                    covered_cell="nul")

    def test_what_a_pivot_table_wrote_is_left_out(self):
        pivot = ('<table:data-pilot-tables><table:data-pilot-table '
                 'table:target-range-address="F.B1:F.C9"/></table:data-pilot-tables>')
        lecture = self.lis(f'<table:table table:name="F"><table:table-row>{self.cellule("mot")}'
                           f'{self.cellule("total")}</table:table-row></table:table>{pivot}',
                           genre="spreadsheet")
        self.attend(lecture, "mot", pivot_table="total")

    def test_an_invitation_on_a_slide_is_left_out(self):
        self.attend(self.lis('<draw:page><draw:frame presentation:placeholder="true"><draw:text-box>'
                             "<text:p>cliquez</text:p></draw:text-box></draw:frame></draw:page>",
                             genre="presentation"), "", placeholder="cliquez")


class Structure(unittest.TestCase):
    def test_names_of_automatic_styles_do_not_matter(self):
        corps = '<text:p><text:span text:style-name="{}">a</text:span></text:p>'
        self.assertEqual(lignes(corps.format("T1"), gras("T1")), lignes(corps.format("T7"), gras("T7")))

    def test_what_an_automatic_style_says_does(self):
        corps = '<text:p><text:span text:style-name="T1">a</text:span></text:p>'
        self.assertNotEqual(lignes(corps, gras("T1")),
                            lignes(corps, gras("T1", 'fo:color="#ff0000"')))

    def test_spans_of_one_format_are_one(self):
        def span(nom: str, lettres: str) -> str:
            return f'<text:span text:style-name="{nom}">{lettres}</text:span>'
        self.assertEqual(lignes(f"<text:p>{span('T1', 'ab')}</text:p>", gras("T1")),
                         lignes(f"<text:p>{span('T1', 'a')}{span('T2', 'b')}</text:p>",
                                gras("T1") + gras("T2", 'officeooo:rsid="0012"')))

    def test_a_span_without_any_format_is_none(self):
        vide = ('<style:style style:name="T1" style:family="text"><style:text-properties '
                'officeooo:rsid="0012"/></style:style>')
        self.assertEqual(lignes('<text:p>a<text:span text:style-name="T1">b</text:span></text:p>', vide),
                         lignes("<text:p>ab</text:p>"))

    def test_without_letters_other_words_are_the_same(self):
        un, deux = "<text:p>un<text:s/></text:p>", "<text:p>deux<text:tab/>trois</text:p>"
        self.assertEqual(lignes(un, lettres=False), lignes(deux, lettres=False))
        self.assertNotEqual(lignes(un), lignes(deux))

    def test_a_field_that_goes_away_shows(self):
        self.assertNotEqual(lignes("<text:p>a<text:page-number/></text:p>", lettres=False),
                            lignes("<text:p>a</text:p>", lettres=False))

    def test_a_bookmark_that_goes_away_shows(self):
        self.assertNotEqual(lignes('<text:p>a<text:bookmark text:name="x"/></text:p>', lettres=False),
                            lignes("<text:p>a</text:p>", lettres=False))

    def test_a_bookmark_that_moves_to_the_other_side_of_letters_shows(self):
        marque = '<text:bookmark text:name="x"/>'
        self.assertNotEqual(lignes(f"<text:p>a{marque}</text:p>", lettres=False),
                            lignes(f"<text:p>{marque}a</text:p>", lettres=False))

    def test_bookmarks_of_the_same_place_have_no_order(self):
        def marques(*noms: str) -> str:
            return "".join(f'<text:bookmark-start text:name="{nom}"/>' for nom in noms)
        self.assertEqual(lignes(f"<text:p>{marques('a', 'b')}mot</text:p>"),
                         lignes(f"<text:p>{marques('b', 'a')}mot</text:p>"))
        self.assertNotEqual(lignes(f"<text:p>{marques('a')}mot{marques('b')}</text:p>"),
                            lignes(f"<text:p>{marques('b')}mot{marques('a')}</text:p>"))

    def test_cells_that_stop_being_repeated_are_the_same(self):
        def feuille(*cellules: str) -> str:
            return f"<table:table><table:table-row>{''.join(cellules)}</table:table-row></table:table>"
        plein = '<table:table-cell table:number-columns-repeated="{}"><text:p>{}</text:p></table:table-cell>'
        self.assertEqual(lignes(feuille(plein.format(2, "a")), lettres=False),
                         lignes(feuille(plein.format(1, "a"), plein.format(1, "b")), lettres=False))

    def test_a_result_is_no_structure_while_a_formula_is(self):
        cellule = ('<table:table><table:table-row><table:table-cell table:formula="{}" '
                   'office:value="{}"><text:p>{}</text:p></table:table-cell></table:table-row>'
                   "</table:table>")
        self.assertEqual(lignes(cellule.format("of:=A1", "1", "1"), lettres=False),
                         lignes(cellule.format("of:=A1", "2", "2"), lettres=False))
        self.assertNotEqual(lignes(cellule.format("of:=A1", "1", "1"), lettres=False),
                            lignes(cellule.format("of:=A2", "1", "1"), lettres=False))


class Demandees(unittest.TestCase):
    """Of two paragraphs: do their runs differ as was asked for?"""

    def juge(self, avant: str, apres: str, juste: bool):
        styles = gras("G") + gras("R", 'fo:color="#ff0000"')
        textes = [re.sub(r"([GR])\(([^)]*)\)", r'<text:span text:style-name="\1">\2</text:span>', dit)
                  for dit in (avant, apres)]
        vues = [Ossature(fichier(f"<text:p>{t}</text:p>", styles), False).lignes for t in textes]
        self.assertNotEqual(*([ligne.dit for ligne in lignes] for lignes in vues))
        restes = sans_demandees(*vues)
        self.assertEqual(not differences(*restes), juste, restes)

    def test_a_format_whose_letters_were_all_replaced_or_taken_out_may_go(self):
        self.juge("un G(mot) ici", "un  ici", True)
        self.juge("G(e)R( )fin", "G(x)fin", True)

    def test_a_letter_that_stays_keeps_its_format(self):
        self.juge("un G(mot)", "un G(m)ot", False)
        self.juge("un G(mot) ici", "un mot ici", False)
        self.juge("un mot ici", "un G(mot) ici", False)

    def test_new_letters_have_the_format_of_what_they_replace(self):
        self.juge("a G(quoi) b", "a z b", False)
        self.juge("G(a)R(b)", "G(a)R(b)R()zz", False)
        self.juge("a", "aG(z)", False)

    def test_an_empty_paragraph_gets_letters_without_a_format(self):
        self.juge("", "mot", True)
        self.juge("", "G(mot)", False)
        self.juge("G(<text:page-number/>)", "G(<text:page-number/>mot)", True)
        self.juge("G(<text:page-number/>)", "G(<text:page-number/>)mot", False)

    def test_what_is_no_letter_stays_where_it_is(self):
        marque, champ = '<text:bookmark text:name="x"/>', "<text:page-number/>"
        self.juge(f"G(a){marque}b", f"G(a)b{marque}", False)
        self.juge(f"G(a) {champ}b", "G(a) b", False)
        self.juge(f"G(a){champ}b", f"{champ}b", True)
        self.juge(f"G(a){champ}b", f"{champ}ab", False)


class Deplacees(unittest.TestCase):
    """Of two paragraphs, and two of a witness: is what undo changed the office's own?"""

    MARQUES = {"[": '<text:bookmark-start text:name="x"/>', "]": '<text:bookmark-end text:name="x"/>',
               "(": '<office:annotation office:name="1"><dc:creator>A</dc:creator>'
                    "<text:p>dit</text:p></office:annotation>",
               "#": "<text:page-number/>"}

    def juge(self, avant: str, apres: str, temoin: str, sien: bool):
        vues = []
        for dit in (avant, apres, avant, temoin):
            corps = "".join(self.MARQUES.get(signe, signe) for signe in dit)
            vues.append(Ossature(fichier(f"<text:p>{corps}</text:p>"), True).lignes)
        reste, autre, dites = sans_deplacees(vues[0], vues[1], (vues[2], vues[3]))
        self.assertEqual((not differences(reste, autre), bool(dites)), (sien, sien))

    def test_a_mark_that_moves_in_the_witness_too_is_the_offices_however_far(self):
        self.juge("un [mot]", "un m[ot]", "un mot[]", True)
        self.juge("un (mot", "un m(ot", "un mot(", True)

    def test_a_mark_that_moves_for_us_alone_is_ours(self):
        self.juge("un [mot]", "un m[ot]", "un [mot]", False)
        self.juge("[un (mot]", "un[ m(ot]", "[un mot(]", False)

    def test_what_else_differs_is_ours(self):
        self.juge("un [mot]", "un m[o]", "un mot[]", False)
        self.juge("un [mot]", "un mot", "un mot[]", False)
        self.juge("un #mot", "un m#ot", "un m#ot", False)


class Differences(unittest.TestCase):
    @staticmethod
    def lignes(*dites: str) -> list[Ligne]:
        return [Ligne(f"p[{i}]", dite) for i, dite in enumerate(dites)]

    def test_the_same_differs_in_nothing(self):
        self.assertEqual(differences(self.lignes("a", "b"), self.lignes("a", "b")), [])

    def test_a_line_that_differs_is_told_with_its_place(self):
        self.assertEqual(differences(self.lignes("a", "b", "c"), self.lignes("a", "x", "c")),
                         [Difference("p[1]", ("b",), ("x",))])

    def test_a_line_too_many_is_told_alone(self):
        self.assertEqual(differences(self.lignes("a", "c", "d"), self.lignes("a", "b", "c", "d")),
                         [Difference("p[1]", (), ("b",))])

    def test_in_huge_files_lines_too_many_are_told_too(self):
        longue = [str(i % 50) for i in range(9000)]
        trouvees = differences(self.lignes(*longue),
                               self.lignes("x", *longue[:4000], "y", *longue[4000:], "z"))
        self.assertEqual(sorted(d.gagne for d in trouvees), [("x",), ("y",), ("z",)])

    def test_what_the_office_does_as_well_is_not_ours(self):
        sienne, notre = Difference("p[1]", ("a",), ("b",)), Difference("p[2]", ("a",), ("c",))
        self.assertEqual(partage([sienne, notre], [Difference("p[9]", ("a",), ("b",))], []),
                         ([notre], [sienne]))

    def test_a_mark_that_the_office_moves_as_well_is_not_ours_whatever_letters_it_passes(self):
        def deplace(lieu, mot, reste):
            return [Difference(lieu, (), (f"letters '{mot}'",)),
                    Difference(lieu, (f"letters '{mot}{reste}'",), (f"letters '{reste}'",))]
        ici = deplace("p[1]", "un", " mot")
        self.assertEqual(partage(ici, deplace("p[1]", "le", " mot"), []), ([], ici))
        autre = Difference("p[2]", ("letters 'a'",), ("letters 'b'",))
        self.assertEqual(partage([autre], deplace("p[1]", "le", " mot"), []), ([autre], []))

    def test_measures_of_the_same_kind_are_not_ours(self):
        def hauteur(lieu, avant, apres):
            return Difference(lieu, (f"draw:frame[svg:height={avant}cm]",),
                              (f"draw:frame[svg:height={apres}cm]",))
        notre = hauteur("p[1]", 1, 2)
        self.assertEqual(partage([notre], [hauteur("p[9]", 3, 4)], []), ([], [notre]))
        self.assertEqual(partage([notre], [], []), ([notre], []))

    def test_what_changes_at_each_save_is_not_ours(self):
        heure = Difference("p[1]", ("12:00",), ("12:02",))
        self.assertEqual(partage([heure], [], [Difference("p[1]", ("12:00",), ("12:01",))]),
                         ([], [heure]))


if __name__ == "__main__":
    unittest.main()
