# SPDX-License-Identifier: MPL-2.0
"""What the host finds in sentences of ours, and what it changes by itself."""
import os
import pathlib
import unittest

from commun import dossier_neuf, environnement
import compte

HOTE = os.environ["VOCALYNE_HOTE"]
CONNECTEUR = str(pathlib.Path(os.environ["VOCALYNE_FAUX"]) / "greffon_faux.so")
HARPER = pathlib.Path(os.environ["VOCALYNE_HARPER"])


class Langue(unittest.TestCase):

    def setUp(self):
        dossier = dossier_neuf()
        self.addCleanup(dossier.cleanup)
        npm = pathlib.Path(dossier.name) / ".local/share/vocalyne/npm"
        npm.mkdir(parents=True)
        (npm / "harper").symlink_to(HARPER)
        # Nothing on standard error but what is wrong.
        self.env = environnement(pathlib.Path(dossier.name), VOCALYNE_PROGRESSION_MS="3600000")

    def exige(self, langue: str):
        phrases = compte.lis(langue)
        remarques, _, plaintes = compte.corrige(HOTE, CONNECTEUR, phrases, langue, self.env)
        # An engine that is missing would be no reason to pass.
        self.assertEqual(plaintes, "")
        bilan = compte.compte(phrases, remarques)
        self.assertGreaterEqual(len(phrases), 200)
        self.assertGreaterEqual(bilan.propres, 100)
        self.assertGreaterEqual(bilan.rappel, 0.8, bilan.manquees)
        self.assertLessEqual(bilan.alarmes_pour_cent, 2, bilan.fausses)

    def test_french_mistakes_are_found_and_clean_sentences_left(self):
        self.exige("fr")

    def test_english_mistakes_are_found_and_clean_sentences_left(self):
        self.exige("en")

    def test_of_a_hundred_mistakes_at_most_one_is_changed_wrongly_by_itself(self):
        for langue in compte.TEXTES:
            with self.subTest(langue):
                phrases = compte.lis(langue)
                remarques, zones, _ = compte.corrige(HOTE, CONNECTEUR, phrases, langue, self.env,
                                                     "--automatique")
                self.assertGreater(sum(r["etat"] == "corrigee" for r in remarques), 20)
                degats = compte.compte_les_degats(phrases, zones)
                self.assertLessEqual(len(degats), 1, degats)


if __name__ == "__main__":
    unittest.main()
