# SPDX-License-Identifier: MPL-2.0
"""./demo as a person types it, on programs that are built already."""
import unittest

from commun import lance
from essai import DEMO, SOURCES, Essai


class Demo(Essai):

    def test_without_a_file_both_examples_are_corrected_and_stay_as_they_were(self):
        avant = {c: c.read_bytes() for c in (SOURCES / "exemples").iterdir() if c.is_file()}
        sortie = lance(DEMO, env=self.env).stdout
        for faute, juste in (("acceuil", "accueil"), ("bibliotèque", "bibliothèque"),
                             ("reste", "restent"), ("Untill", "Until"), ("definately", "definitely")):
            self.assertIn(f"[-{faute}-]{{+{juste}+}}", sortie)
        self.assertEqual({c: c.read_bytes() for c in (SOURCES / "exemples").iterdir() if c.is_file()}, avant)

    def test_a_file_of_ones_own_is_left_alone_and_the_corrected_text_stands_beside_it(self):
        lettre = self.fichier("ma lettre.txt", "Un bel acceuil.\n")
        self.fichier("ma lettre.corrige.txt", "à moi\n")
        lance(DEMO, "--langue", "fr", lettre, env=self.env)
        self.assertEqual(lettre.read_text(), "Un bel acceuil.\n")
        self.assertEqual((self.dossier / "ma lettre.corrige.txt").read_text(), "à moi\n")
        self.assertEqual((self.dossier / "ma lettre.corrige-2.txt").read_text(), "Un bel accueil.\n")

    def test_in_place_the_file_itself_is_corrected(self):
        lettre = self.fichier("lettre", "Un bel acceuil.")
        lance(DEMO, "--en-place", "--langue", "fr", lettre, env=self.env)
        self.assertEqual(lettre.read_text(), "Un bel accueil.")
        self.assertEqual(sorted(c.name for c in self.dossier.iterdir()), ["lettre", "tmp"])

    def test_two_files_of_one_name_are_told_apart(self):
        un, deux = self.fichier("un/a.txt", "Un bel acceuil.\n"), self.fichier("deux/a.txt", "Rien ici.\n")
        lance(DEMO, "--langue", "fr", un, deux, env=self.env)
        self.assertEqual((self.dossier / "un/a.corrige.txt").read_text(), "Un bel accueil.\n")
        self.assertFalse((self.dossier / "deux/a.corrige.txt").exists())

    def test_a_file_that_cannot_be_served_is_said_to_be_so(self):
        for nom, contenu in (("binaire", b"\x00\x01\x02"), ("latin1", "é".encode("latin-1"))):
            with self.subTest(nom):
                fautif = self.fichier(nom, contenu)
                fini = lance(DEMO, fautif, env=self.env, statut=1)
                self.assertIn(nom, fini.stderr)
                self.assertEqual(fautif.read_bytes(), contenu)

    def test_a_missing_file_ends_with_status_1_before_anything_is_opened(self):
        fini = lance(DEMO, self.dossier / "absent.txt", env=self.env, statut=1)
        self.assertIn("absent.txt: no such file", fini.stderr)

    def test_a_wrong_option_shows_the_usage_and_ends_with_status_2(self):
        for options in (["--rouge"], ["--langue", "de"], ["--langue"], ["--bureau", "absent"], ["--bureau"]):
            with self.subTest(options):
                fini = lance(DEMO, *options, env=self.env, statut=2)
                self.assertIn("Usage: ./demo", fini.stderr)
                self.assertEqual(fini.stdout, "")

    def test_help_and_messages_follow_the_persons_language(self):
        self.assertIn("Usage: ./demo", lance(DEMO, "--help", env=self.env).stdout)
        self.assertIn("Usage : ./demo", lance(DEMO, "--help", env=self.env | {"LANG": "fr_FR.UTF-8"}).stdout)
        self.assertIn("ce qui a changé", lance(DEMO, env=self.env | {"LC_ALL": "fr_FR.UTF-8"}).stdout)

    def test_on_a_terminal_the_person_is_asked_and_an_interruption_leaves_nothing_behind(self):
        lettre = self.fichier("lettre.txt", "Un bel acceuil.\n")
        # The mistake and its correction are shown, and then the host waits for an answer.
        self.assertNotEqual(self.interrompue(DEMO, "--langue", "fr", lettre, apres=b"accueil"), 0)
        self.assertEqual(lettre.read_text(), "Un bel acceuil.\n")


if __name__ == "__main__":
    unittest.main()
