# SPDX-License-Identifier: MPL-2.0
"""./demo --bureau libreoffice as a person types it, on programs that are built already: a real office,
the extension of the build in a fresh profile."""
import os
import pathlib
import re
import subprocess
import unittest
import zipfile

from commun import lance
from essai import CONSTRUCTION, DEMO, SOURCES, Essai

MANIFESTE = """<?xml version="1.0" encoding="UTF-8"?>
<manifest:manifest xmlns:manifest="urn:oasis:names:tc:opendocument:xmlns:manifest:1.0" manifest:version="1.3">
<manifest:file-entry manifest:full-path="/" manifest:media-type="application/vnd.oasis.opendocument.text"/>
<manifest:file-entry manifest:full-path="content.xml" manifest:media-type="text/xml"/>
</manifest:manifest>
"""
CONTENU = """<?xml version="1.0" encoding="UTF-8"?>
<office:document-content xmlns:office="urn:oasis:names:tc:opendocument:xmlns:office:1.0"
 xmlns:style="urn:oasis:names:tc:opendocument:xmlns:style:1.0"
 xmlns:text="urn:oasis:names:tc:opendocument:xmlns:text:1.0"
 xmlns:fo="urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0" office:version="1.3">
<office:automatic-styles><style:style style:name="G" style:family="text">
<style:text-properties fo:font-weight="bold"/></style:style></office:automatic-styles>
<office:body><office:text>{}</office:text></office:body></office:document-content>
"""
LETTRE = '<text:p>Un bel <text:span text:style-name="G">acceuil</text:span> pour toi.</text:p>'


def corps(odt: pathlib.Path) -> str:
    """The document's text with its formats, named by what they are."""
    with zipfile.ZipFile(odt) as paquet:
        contenu = paquet.read("content.xml").decode()
    gras = re.search(r'style:name="(\w+)" style:family="text">\s*<style:text-properties[^>]*font-weight="bold"',
                     contenu).group(1)
    texte = re.search(r"<text:p.*</text:p>", contenu, re.S).group(0)
    texte = texte.replace(f'<text:span text:style-name="{gras}">', "<b>").replace("</text:span>", "</b>")
    return re.sub(r"</?text:p[^>]*>", "", texte)


class DemoLibreOffice(Essai):

    def setUp(self):
        super().setUp()
        # Run by the superuser, the office is somebody else: it must get there.
        self.dossier.chmod(0o755)
        (self.dossier / "tmp").chmod(0o1777)

    def lance(self, *options, **autres):
        return lance(DEMO, "--bureau", "libreoffice", *options, env=self.env, **autres)

    def odt(self, nom: str, paragraphes: str = LETTRE) -> pathlib.Path:
        chemin = self.dossier / nom
        with zipfile.ZipFile(chemin, "w") as paquet:
            paquet.writestr("mimetype", "application/vnd.oasis.opendocument.text")
            paquet.writestr("META-INF/manifest.xml", MANIFESTE)
            paquet.writestr("content.xml", CONTENU.format(paragraphes))
        return chemin

    def test_without_a_file_both_documents_are_corrected_pictured_and_stay_as_they_were(self):
        avant = {c: c.read_bytes() for c in (SOURCES / "exemples").iterdir() if c.is_file()}
        images = pathlib.Path(CONSTRUCTION, "images")
        for image in images.glob("*"):
            image.unlink()
        sortie = self.lance().stdout
        # In the body, in bold, in a comment, in a footnote, in a table.
        for faute, juste in (("acceuil", "accueil"), ("bibliotèque", "bibliothèque"), ("soufert", "souffert"),
                             ("juilet", "juillet"), ("definately", "definitely"), ("acctually", "actually"),
                             ("Wednesdey", "Wednesday"), ("libary", "library")):
            self.assertIn(f"[-{faute}-]{{+{juste}+}}", sortie)
        for nom, mots in (("francais", "accueil souffert septembre"), ("english", "definitely library Wednesday")):
            self.assertIn(f"images/{nom}.png", sortie)
            self.assertEqual((images / f"{nom}.png").read_bytes()[:8], b"\x89PNG\r\n\x1a\n")
            pages = subprocess.run(["pdftotext", images / f"{nom}.pdf", "-"], capture_output=True, text=True,
                                   check=True).stdout
            for mot in mots.split():
                self.assertIn(mot, pages)
        self.assertEqual({c: c.read_bytes() for c in (SOURCES / "exemples").iterdir() if c.is_file()}, avant)

    def test_a_document_of_ones_own_is_left_alone_and_the_corrected_one_stands_beside_it(self):
        lettre = self.odt("ma lettre.odt")
        avant = lettre.read_bytes()
        self.lance("--langue", "fr", lettre)
        self.assertEqual(lettre.read_bytes(), avant)
        self.assertEqual(corps(self.dossier / "ma lettre.corrige.odt"), "Un bel <b>accueil</b> pour toi.")

    def test_in_place_the_document_itself_is_corrected_and_keeps_its_permissions(self):
        lettre = self.odt("en place.odt")
        lettre.chmod(0o640)
        self.lance("--en-place", "--langue", "fr", lettre)
        self.assertEqual(corps(lettre), "Un bel <b>accueil</b> pour toi.")
        self.assertEqual(lettre.stat().st_mode & 0o777, 0o640)
        self.assertEqual(sorted(c.name for c in self.dossier.iterdir()), ["en place.odt", "tmp"])

    def test_a_document_without_mistakes_is_not_written_at_all(self):
        lettre = self.odt("juste.odt", "<text:p>Un bel accueil pour toi.</text:p>")
        avant = lettre.stat()
        self.assertIn("nothing has changed", self.lance("--en-place", "--langue", "fr", lettre).stdout)
        self.assertEqual((lettre.stat().st_ino, lettre.stat().st_mtime_ns), (avant.st_ino, avant.st_mtime_ns))

    def test_a_document_that_is_open_elsewhere_is_not_corrected_in_place(self):
        lettre = self.odt("ouverte.odt")
        avant = lettre.read_bytes()
        self.fichier(".~lock.ouverte.odt#", ",somebody,elsewhere;")
        self.assertIn("open in an office", self.lance("--en-place", lettre, statut=1).stderr)
        self.assertEqual(lettre.read_bytes(), avant)

    def test_a_file_that_is_no_document_is_said_to_be_so(self):
        fautif = self.fichier("abime.odt", b"PK\x03\x04 no more than that")
        self.assertIn("abime.odt", self.lance(fautif, statut=1).stderr)
        self.assertEqual(fautif.read_bytes(), b"PK\x03\x04 no more than that")

    def test_an_office_that_does_not_come_up_in_time_is_said_not_to(self):
        lent = self.dossier / "programmes"
        lent.mkdir()
        for nom, commande in (("soffice", "exec sleep 600"), ("unopkg", "exit 0")):
            (lent / nom).write_text(f"#!/bin/sh\n{commande}\n")
            (lent / nom).chmod(0o755)
        self.env |= {"PATH": f"{lent}:{os.environ['PATH']}", "VOCALYNE_DEMO_PATIENCE": "1"}
        self.assertIn("LibreOffice did not come up within 1 s.", self.lance(statut=1).stderr)

    def test_an_interruption_leaves_nothing_behind_and_the_document_as_it_was(self):
        lettre = self.odt("interrompue.odt")
        avant = lettre.read_bytes()
        self.assertNotEqual(self.interrompue(DEMO, "--bureau", "libreoffice", "--en-place", "--langue", "fr",
                                             lettre, apres=b"accueil"), 0)
        self.assertEqual(lettre.read_bytes(), avant)


if __name__ == "__main__":
    unittest.main()
