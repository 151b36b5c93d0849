# SPDX-License-Identifier: MPL-2.0
"""Where `cmake --install` puts the LibreOffice extension, packed and for a package of the system."""
import unittest
import zipfile

from prefixe import PrefixeInstalle

PARTAGE = "share/vocalyne/"
SYSTEME = "lib/libreoffice/share/extensions"


class Empaquetee(PrefixeInstalle):

    composants = ("runtime",)

    def test_the_extension_stands_beside_its_update_information(self):
        self.assertTrue(zipfile.is_zipfile(self.prefixe / PARTAGE / "vocalyne-libreoffice.oxt"))
        information = (self.prefixe / PARTAGE / "vocalyne-libreoffice.update.xml").read_text()
        self.assertIn('/vocalyne-libreoffice.oxt"', information)

    def test_nothing_goes_into_the_office_unless_it_is_asked_for(self):
        self.assertFalse((self.prefixe / SYSTEME).exists())


class PourLeSysteme(PrefixeInstalle):

    composants = ("runtime", "extension-systeme")

    def test_the_office_gets_what_the_package_holds_file_by_file(self):
        dossier = self.prefixe / SYSTEME / "vocalyne"
        poses = {str(f.relative_to(dossier)): f.read_bytes() for f in dossier.rglob("*") if f.is_file()}
        with zipfile.ZipFile(self.prefixe / PARTAGE / "vocalyne-libreoffice.oxt") as paquet:
            dedans = {nom: paquet.read(nom) for nom in paquet.namelist() if not nom.endswith("/")}
        self.assertEqual(sorted(poses), sorted(dedans))
        self.assertEqual(poses, dedans)


if __name__ == "__main__":
    unittest.main()
