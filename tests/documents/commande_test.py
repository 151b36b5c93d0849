#!/usr/bin/python3
# SPDX-License-Identifier: MPL-2.0
"""The command `outils/torture`, from outside."""

import json
import os
import pathlib
import subprocess
import tempfile
import unittest

DEPOT = pathlib.Path(__file__).resolve().parents[2]
TEXTE = """<?xml version="1.0" encoding="UTF-8"?>
<office:document xmlns:office="urn:oasis:names:tc:opendocument:xmlns:office:1.0"
 xmlns:text="urn:oasis:names:tc:opendocument:xmlns:text:1.0" office:version="1.3"
 office:mimetype="application/vnd.oasis.opendocument.text"><office:body><office:text>
<text:p>Un paragraphe à éprouver.</text:p><text:p>Et un autre.</text:p></office:text></office:body>
</office:document>
"""


def torture(*arguments, langue: str = "C.UTF-8") -> subprocess.CompletedProcess:
    return subprocess.run([DEPOT / "outils/torture", *map(str, arguments)], check=False, text=True,
                          capture_output=True, env=dict(os.environ, LC_ALL="", LC_MESSAGES="", LANG=langue))


class SansBureau(unittest.TestCase):
    def test_the_help_speaks_english_and_french(self):
        for langue, phrase in (("C.UTF-8", "The originals are left alone"),
                               ("fr_FR.UTF-8", "Les\noriginaux ne sont pas touchés")):
            aide = torture("--help", langue=langue)
            self.assertEqual((aide.returncode, aide.stderr), (0, ""))
            self.assertIn(phrase, aide.stdout)

    def test_a_wrong_option_is_told(self):
        for mauvaise in (["--nulle"], ["--corrections", "100"], ["--places", "0"]):
            refus = torture(DEPOT / "exemples", *mauvaise)
            self.assertEqual((refus.returncode, refus.stdout), (2, ""))
            self.assertIn(mauvaise[0], refus.stderr)

    def test_a_folder_without_documents_is_told(self):
        with tempfile.TemporaryDirectory() as dossier:
            refus = torture(dossier)
            self.assertEqual(refus.returncode, 2)
            self.assertIn(dossier, refus.stderr)


class AvecBureau(unittest.TestCase):
    def setUp(self):
        lieu = tempfile.TemporaryDirectory()
        self.addCleanup(lieu.cleanup)
        self.dossier = pathlib.Path(lieu.name)
        (self.dossier / "sous").mkdir()
        for nom in ("un.fodt", "sous/deux.fodt"):
            (self.dossier / nom).write_text(TEXTE, encoding="utf-8")
        (self.dossier / "note.md").write_text("rien", encoding="utf-8")

    def essaie(self, *options):
        resultats = self.dossier / "resultats"
        fin = torture(self.dossier, "--oxt", os.environ["VOCALYNE_OXT"], "--json", resultats, *options)
        bilans = [json.loads(ligne) for ligne in resultats.read_text("utf-8").splitlines()]
        return fin, {bilan["document"]: bilan for bilan in bilans}

    def test_documents_of_all_folders_are_tried_and_left_as_they_are(self):
        fin, bilans = self.essaie("--corrections", "5", "--graine", "7")
        self.assertEqual(fin.returncode, 0, fin.stdout + fin.stderr)
        self.assertEqual(sorted(bilans), ["sous/deux.fodt", "un.fodt"])
        for bilan in bilans.values():
            self.assertEqual((bilan["zones"], bilan["graine"], bilan["constats"]), (2, 7, []))
            self.assertEqual(bilan["corrections"]["faites"], 5)
        self.assertIn("2 documents, 10 corrections: 2 unharmed, 0 with a fault", fin.stdout)
        self.assertEqual((self.dossier / "un.fodt").read_text("utf-8"), TEXTE)

    def test_a_document_that_takes_too_long_is_told_and_the_others_are_tried(self):
        # Where the second is up, in the office's opening or in ours, is the machine's affair.
        _, bilans = self.essaie("--corrections", "99", "--patience", "1")
        self.assertEqual([[c["nature"] for c in bilan["constats"]] for bilan in bilans.values()],
                         [["bloque"], ["bloque"]])

    def test_of_many_documents_some_are_chosen_by_name(self):
        fin, bilans = self.essaie("--seulement", "deux*", "--corrections", "0")
        self.assertEqual((fin.returncode, list(bilans)), (0, ["sous/deux.fodt"]))


if __name__ == "__main__":
    unittest.main()
