# SPDX-License-Identifier: MPL-2.0
"""Groups of shapes: each of their texts is read and corrected, however many groups there are.

Each document is saved and opened again, so that nobody holds its shapes: the office then makes an
object for a group when it is asked for, and may put the next group's in the same place.
"""

import unittest

import uno  # noqa: F401: makes the office's names importable
from com.sun.star.awt import Point, Size
from com.sun.star.text.TextContentAnchorType import AT_PAGE, AT_PARAGRAPH

import banc

GROUPES, TEXTES = 10, 6


def setUpModule():
    global BUS, BUREAU
    BUS, BUREAU = banc.bus_et_bureau()


class Groupes(unittest.TestCase):
    def groupe(self, doc, page, textes, pose):
        formes = BUREAU.cree("com.sun.star.drawing.ShapeCollection")
        for rang, texte in enumerate(textes):
            forme = doc.createInstance("com.sun.star.drawing.RectangleShape")
            forme.setSize(Size(900, 400))
            forme.setPosition(Point(1000 * rang, 500))
            pose(forme)
            forme.setString(texte)
            formes.add(forme)
        return page.group(formes)

    def ecris(self, genre, ancrage):
        """The file of a document with groups of shapes on its page."""
        doc = BUREAU.ouvre(f"private:factory/{genre}")
        page = doc.DrawPage if ancrage else doc.DrawPages.getByIndex(0)

        def pose(forme):
            if ancrage:
                forme.AnchorType = ancrage
                doc.Text.insertTextContent(doc.Text.Start, forme, False)
            else:
                page.add(forme)
        for g in range(GROUPES):
            groupe = self.groupe(doc, page, [f"groupe {g} texte {t}" for t in range(TEXTES)], pose)
            if ancrage:
                groupe.AnchorType = ancrage
        fichier = (banc.DOSSIER / self.id()).as_uri()
        doc.storeAsURL(fichier, ())
        doc.close(True)
        return fichier

    def verifie(self, genre, ancrage=None):
        _, client = banc.document_et_client(self, BUS, BUREAU, self.ecris(genre, ancrage))
        attendus = [f"groupe {g} texte {t}" for g in range(GROUPES) for t in range(TEXTES)]
        for fois in range(3):
            with self.subTest(fois=fois):
                self.assertEqual(sorted(t for t in client.textes() if t), attendus)
        zone = next(z for z in client.zones() if z.texte == attendus[-1])
        client.corrige(zone, "groupe", "paquet")
        self.assertIn(attendus[-1].replace("groupe", "paquet"), client.textes())

    def test_all_texts_of_all_groups_of_a_slide_are_read(self):
        self.verifie("simpress")

    def test_all_texts_of_all_groups_of_a_drawing_are_read(self):
        self.verifie("sdraw")

    def test_all_texts_of_all_groups_of_a_spreadsheet_are_read(self):
        self.verifie("scalc")

    def test_all_texts_of_all_groups_of_a_paragraph_are_read(self):
        self.verifie("swriter", AT_PARAGRAPH)

    def test_all_texts_of_all_groups_of_a_writer_page_are_read(self):
        self.verifie("swriter", AT_PAGE)


if __name__ == "__main__":
    unittest.main()
