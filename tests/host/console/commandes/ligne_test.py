# SPDX-License-Identifier: MPL-2.0
"""The command line: what it takes, what it refuses, what it says."""
import json
import pathlib
import shutil
import subprocess
import unittest

from commun import lance
from hote import FAUX, HOTE, AvecGreffonFaux


class Usage(AvecGreffonFaux):

    def test_a_wrong_command_line_shows_the_usage_and_ends_with_2(self):
        cas = [[], ["corige"], [""], ["--"], ["-x"], ["--inconnue"], ["documents", "x"],
               ["documents", "--langue", "fr"], ["documents", "--sortie", "xml"], ["documents", "--sortie"],
               ["corrige", "a", "b"], ["corrige", "--langue", "de"], ["corrige", "--langue"],
               ["corrige", "--langue="], ["corrige", "--automatique=oui"], ["corrige", "--sortie", ""],
               ["corrige", "--automatiq"], ["pilote", "x"], ["pilote", "--greffon", ""],
               ["pilote", "--greffon"], ["pilote", "--automatique"], ["--langue", "fr", "corrige"]]
        for arguments in cas:
            with self.subTest(arguments):
                fini = self.hote(*arguments, statut=2)
                self.assertEqual(fini.stdout, b"")
                self.assertIn(b"Usage: vocalyne-hote", fini.stderr)

    def test_a_wrong_option_is_named(self):
        for arguments, nom in ((["corrige", "--vite"], "--vite"), (["documents", "-q"], "-q"),
                               (["corrige", "--langue", "klingon"], "klingon"), (["corige"], "corige")):
            with self.subTest(arguments):
                premiere = self.hote(*arguments, statut=2).stderr.decode().splitlines()[0]
                self.assertIn(nom, premiere)

    def test_help_tells_commands_options_and_every_exit_code(self):
        for arguments in (["--help"], ["-h"], ["corrige", "--help"], ["pilote", "-h"]):
            with self.subTest(arguments):
                aide = self.hote(*arguments)
                self.assertEqual(aide.stderr, b"")
                texte = aide.stdout.decode()
                for mot in ("documents", "corrige", "pilote", "--langue", "--automatique", "--sortie", "--greffon",
                            "--version", "NO_COLOR", "VOCALYNE_GREFFON", "DICPATH"):
                    self.assertIn(mot, texte)
                for code in range(8):
                    self.assertRegex(texte, rf"(?m)^  {code}  \w")

    def test_help_is_french_for_a_french_person(self):
        self.env["LANG"] = "fr_FR.UTF-8"
        self.assertIn("Code de sortie :", self.hote("--help").stdout.decode())

    def test_the_persons_choice_of_language_wins_over_the_systems(self):
        dossier = self.dossier / ".vocalyne/9.0"
        dossier.mkdir(parents=True)
        (dossier / "vocalyne.conf").write_text(
            "[Adaptateurs2]\npreferences\\interfaceGenerale\\langueAffichage=1\n")
        self.assertIn("Code de sortie :", self.hote("--help").stdout.decode())

    def test_the_version_is_told(self):
        self.assertRegex(self.hote("--version").stdout.decode(), r"\Avocalyne-hote \d+\.\d+\.\d+\n\Z")

    def test_an_output_that_is_full_is_told(self):
        for arguments in (["--help"], ["--version"]):
            with self.subTest(arguments):
                with open("/dev/full", "wb") as plein:
                    fini = subprocess.run([HOTE, *arguments], env=self.env, stdout=plein,
                                          stderr=subprocess.PIPE, check=False)
                self.assertEqual(fini.returncode, 7)


class Manques(AvecGreffonFaux):

    def test_no_session_bus_is_told(self):
        for adresse in (None, "", "unix:path=/absent", "n'importe quoi", "unix:abstract="):
            for commande in ("documents", "corrige"):
                with self.subTest((adresse, commande)):
                    self.env.pop("DBUS_SESSION_BUS_ADDRESS", None)
                    if adresse is not None:
                        self.env["DBUS_SESSION_BUS_ADDRESS"] = adresse
                    fini = self.hote(commande, statut=3)
                    self.assertIn(b"No D-Bus session bus", fini.stderr)
                    self.assertEqual(fini.stdout, b"")

    def installe(self) -> pathlib.Path:
        """The program alone in a prefix of its own, reached through a symbolic link."""
        programme = self.dossier / "prefixe/bin/vocalyne-hote"
        programme.parent.mkdir(parents=True)
        shutil.copy(HOTE, programme)
        lien = self.dossier / "lien"
        lien.symlink_to(programme)
        del self.env["VOCALYNE_GREFFON"]
        return lien

    def test_a_missing_plugin_names_the_places_looked_at(self):
        fini = lance(self.installe(), "pilote", env=self.env, statut=4)
        self.assertIn(f"{self.dossier}/prefixe/lib/vocalyne/libTexteurOOo.so", fini.stderr)
        self.assertIn("VOCALYNE_GREFFON", fini.stderr)

    def test_the_plugin_installed_with_the_program_is_found(self):
        self.joue([])
        lien = self.installe()
        for dossier in ("lib", "lib64"):
            with self.subTest(dossier):
                greffon = self.dossier / "prefixe" / dossier / "vocalyne/libTexteurOOo.so"
                greffon.parent.mkdir(parents=True)
                greffon.symlink_to(FAUX)
                fini = lance(lien, "pilote", env=self.env, entree='{"op":"DonneNomsTexteurs"}')
                self.assertEqual(json.loads(fini.stdout)["resultat"], "Fenetre")
                greffon.unlink()

    def test_the_plugin_of_the_environment_is_taken(self):
        self.joue([])
        sortie = self.hote("pilote", entree=b'{"op":"DonneNomsTexteurs"}\n').stdout
        self.assertEqual(json.loads(sortie)["resultat"], "Fenetre")
        self.assertEqual(str(FAUX), self.env["VOCALYNE_GREFFON"])


if __name__ == "__main__":
    unittest.main()
