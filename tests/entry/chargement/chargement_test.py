#!/usr/bin/env python3
# SPDX-License-Identifier: MPL-2.0
"""What happens, and in which order, while the plug-in is loaded and unloaded."""
import os
import pathlib
import subprocess
import tempfile
import unittest

CHARGEUR = os.environ["VOCALYNE_CHARGEUR"]
CHARGEUR_NU = os.environ["VOCALYNE_CHARGEUR_NU"]
GREFFON = os.environ["VOCALYNE_GREFFON"]

CHARGE_DOMAINE = ["qRegisterResourceData(1)",
                  "InitLocaleAvecQRC(:/fichiers/TexteurEn.mo, 2, 0)",
                  "InitLocaleAvecQRC(:/fichiers/TexteurFr.mo, 1, 0)",
                  "qUnregisterResourceData(1)"]
DECHARGE = ["(storers released)", "LibereConvertisseurPourCodage", "~QApplication",
            "qUnregisterResourceData(1)"]


def ouverture(chemin: str, affichage: int, langue: int) -> list[str]:
    return [f"PrefsGeneralesQt({chemin}, 0, 0, native)",
            "Donne(Adaptateurs2/preferences/interfaceGenerale/langueAffichage, 0, true)",
            f"eLangueSelonELangueAffichage({affichage}) = {langue}",
            f"InitLePlusTotPossible({langue})",
            "InitQApplication",
            f"StockageReponse::Initialise(1, {chemin})",
            "InitApresQApp",
            "setOrganizationDomain",
            "setOrganizationName(Ombrel Informatique inc.)",
            "setApplicationName(Vocalyne 9)",
            "~PrefsGeneralesQt",
            "AjouterAuxDomainesDeTraduction"]


class Chargement(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        dossier = tempfile.TemporaryDirectory()
        self.addCleanup(dossier.cleanup)
        self.maison = pathlib.Path(dossier.name)

    def reglages(self, contenu: str):
        fichier = self.maison / ".vocalyne/9.0/vocalyne.conf"
        fichier.parent.mkdir(parents=True)
        fichier.write_text(contenu)

    def affichage(self, valeur: str):
        self.reglages(f"[Adaptateurs2]\npreferences\\interfaceGenerale\\langueAffichage={valeur}\n")

    def lance(self, *mots: str, programme=CHARGEUR, maison=None, **variables) -> list[str]:
        """The lines of one run; a plug-in that crashes it, or a sanitizer's finding, is a failure."""
        # No display and no bus, unless the case brings one.
        milieu = {cle: valeur for cle, valeur in os.environ.items()
                  if cle not in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "DBUS_SESSION_BUS_ADDRESS")}
        milieu |= {"HOME": maison or str(self.maison), "LC_ALL": "en_US.UTF-8"} | variables
        fin = subprocess.run([programme, GREFFON, *mots], env=milieu, capture_output=True, text=True,
                             timeout=120, check=False)
        self.assertEqual(0, fin.returncode, fin.stdout + fin.stderr)
        return fin.stdout.splitlines()

    def chemin(self) -> str:
        return f"{self.maison}/.vocalyne/9.0/vocalyne.conf"

    def attendu(self, affichage=0, langue=2) -> list[str]:
        """Load and unload, told whole."""
        return [*ouverture(self.chemin(), affichage, langue), *CHARGE_DOMAINE, "qRegisterResourceData(1)",
                "-- charge: application its own", *DECHARGE, "-- decharge: application none"]

    def test_loading_and_unloading_make_their_calls_in_order(self):
        self.assertEqual(self.attendu(), self.lance("charge", "decharge"))

    def test_without_a_settings_file_the_language_is_the_one_for_zero(self):
        self.assertIn("eLangueSelonELangueAffichage(0) = 1",
                      self.lance("charge", "decharge", LC_ALL="fr_FR.UTF-8"))
        self.assertIn("eLangueSelonELangueAffichage(0) = 2",
                      self.lance("charge", "decharge", LC_ALL="de_DE.UTF-8"))

    def test_loading_never_makes_a_settings_file(self):
        self.lance("charge", "decharge")
        self.assertEqual([], list(self.maison.rglob("vocalyne.conf")))

    def test_the_settings_choose_the_display_language(self):
        for valeur, langue in ((1, 1), (2, 2), (99, 2)):
            with self.subTest(valeur=valeur):
                with tempfile.TemporaryDirectory() as maison:
                    self.maison = pathlib.Path(maison)
                    self.affichage(str(valeur))
                    self.assertEqual(self.attendu(valeur, langue), self.lance("charge", "decharge"))

    def test_a_language_that_is_no_number_counts_as_zero(self):
        self.affichage("abc")
        self.assertEqual(self.attendu(), self.lance("charge", "decharge"))

    def test_a_broken_settings_file_reads_as_none_and_stays_as_it_is(self):
        self.reglages("[[[\x01\x02 = not settings\n\\\\=\n")
        avant = (self.maison / ".vocalyne/9.0/vocalyne.conf").read_bytes()
        self.assertEqual(self.attendu(), self.lance("charge", "decharge"))
        self.assertEqual(avant, (self.maison / ".vocalyne/9.0/vocalyne.conf").read_bytes())

    def test_a_home_at_the_root_gives_two_slashes_in_the_settings_path(self):
        self.assertIn("PrefsGeneralesQt(//.vocalyne/9.0/vocalyne.conf, 0, 0, native)",
                      self.lance("charge", "decharge", maison="/"))

    def test_the_application_bears_the_maker_s_names(self):
        self.assertIn("application Vocalyne 9 of Ombrel Informatique inc.",
                      self.lance("charge", "noms", "decharge"))

    def test_what_set_up_throws_reaches_the_host_and_the_settings_are_closed(self):
        avant = ouverture(self.chemin(), 0, 2)
        self.assertEqual([*avant[:avant.index("InitApresQApp") + 1], "~PrefsGeneralesQt", "thrown: set-up"],
                         self.lance("charge-leve", VOCALYNE_LEVE_AU_CHARGEMENT="1"))

    def test_without_any_display_loading_goes_on_offscreen(self):
        self.assertIn("-- charge: application its own", self.lance("charge", "decharge"))

    def test_a_display_that_cannot_be_reached_does_not_end_the_host(self):
        self.assertIn("-- charge: application its own", self.lance("charge", "decharge", DISPLAY=":97"))

    def test_an_application_of_the_host_s_survives_the_unloading(self):
        for genre in ("application", "console"):
            with self.subTest(genre=genre):
                lignes = self.lance(genre, "charge", "decharge", QT_QPA_PLATFORM="offscreen")
                self.assertIn("-- charge: application the host's", lignes)
                self.assertIn("-- decharge: application the host's", lignes)

    def test_the_catalogs_resolve_while_the_plug_in_is_loaded_and_are_stored_as_promised(self):
        lignes = self.lance("charge", "ressources", "decharge", "ressources")
        fin = lignes.index("-- decharge: application none")
        self.assertIn(":/fichiers/TexteurEn.mo plain whole", lignes[:fin])
        self.assertIn(":/fichiers/TexteurFr.mo zlib whole", lignes[:fin])
        self.assertIn(":/fichiers/TexteurEn.mo missing", lignes[fin:])
        self.assertIn(":/fichiers/TexteurFr.mo missing", lignes[fin:])

    def test_a_second_run_of_the_loader_loads_nothing_and_leaves_the_registration(self):
        # Fixing another language has the registered loaders run again.
        lignes = self.lance("charge", "langue1", "ressources", "decharge")
        debut = lignes.index("-- charge: application its own")
        fin = lignes.index("-- langue1: application its own")
        self.assertEqual(["InitLePlusTotPossible(1)", "qRegisterResourceData(1)", "qUnregisterResourceData(1)",
                          "qRegisterResourceData(1)"], lignes[debut + 1:fin])
        self.assertIn(":/fichiers/TexteurFr.mo zlib whole", lignes[fin:])

    def test_a_hundred_loads_in_one_process_leave_no_growth_behind(self):
        for mots in (("cent",), ("application", "cent")):
            lignes = self.lance(*mots, programme=CHARGEUR_NU, QT_QPA_PLATFORM="offscreen")
            self.assertIn("growth bounded: yes", lignes)

    def test_a_process_that_ends_without_unloading_ends_well(self):
        for mots in (("charge", "sors"), ("application", "charge", "sors")):
            self.lance(*mots, programme=CHARGEUR_NU, QT_QPA_PLATFORM="offscreen")

    def test_storers_are_released_however_the_process_ends_and_may_write_then(self):
        fins = (("charge", "decharge"), ("charge",), ("charge", "sors"), ("ferme-a-la-fin", "charge"),
                ("ferme-a-la-fin", "charge", "sors"), ("charge", "ferme-a-la-fin"),
                ("charge", "ferme-a-la-fin", "sors"))
        for mots in fins:
            for application in ((), ("application",), ("console",)):
                with self.subTest(mots=mots, application=application):
                    rang = mots.index("charge") + 1
                    self.lance(*application, *mots[:rang], "stockeur", *mots[rang:], programme=CHARGEUR_NU,
                               QT_QPA_PLATFORM="offscreen")
                    reponses = self.maison / "reponses.conf"
                    self.assertEqual("[General]\nliberations=1\n", reponses.read_text())
                    reponses.unlink()

    def test_at_the_end_of_the_process_the_application_alone_is_left(self):
        liberations = ["(storers released)", "LibereConvertisseurPourCodage"]
        for mots in (("charge", "sors"), ("ferme-a-la-fin", "charge", "sors")):
            with self.subTest(mots=mots):
                lignes = self.lance(*mots)
                fin = lignes[lignes.index("-- charge: application its own") + 1:]
                self.assertEqual(liberations, [ligne for ligne in fin if ligne in liberations])
                self.assertNotIn("~QApplication", fin)


if __name__ == "__main__":
    unittest.main()
