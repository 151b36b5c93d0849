# SPDX-License-Identifier: MPL-2.0
"""What `cmake --install` lays out works from wherever it is moved, and an SDK is enough to build on."""
import os
import pathlib
import re
import shutil
import subprocess
import sys
import unittest

from commun import bureau, bus_prive, dialogue, lance
from prefixe import CMAKE, CONSTRUCTION, SOURCES, PrefixeInstalle

LIB = os.environ["VOCALYNE_LIBDIR"]
ICI = pathlib.Path(__file__).resolve().parent

PROGRAMMES = ["bin/vocalyne-hote", "bin/vocalyne-bureau-texte"]
BIBLIOTHEQUES = [f"{LIB}/libOutils{nom}.so" for nom in ("Noyau", "Vocalyne", "Gui")]
GREFFON = f"{LIB}/vocalyne/libTexteurOOo.so"


def dynamique(elf: pathlib.Path) -> str:
    return subprocess.run(["readelf", "--dynamic", "--wide", elf], capture_output=True, text=True,
                          env={**os.environ, "LC_ALL": "C"}, check=True).stdout


def symboles_exportes(elf: pathlib.Path) -> set[str]:
    sortie = subprocess.run(["nm", "--dynamic", "--defined-only", "--format=posix", elf],
                            capture_output=True, text=True, check=True).stdout
    return {ligne.split()[0].split("@")[0] for ligne in sortie.splitlines()}


class Disposition(PrefixeInstalle):

    def test_every_product_stands_at_its_place(self):
        for chemin in [*PROGRAMMES, *BIBLIOTHEQUES, GREFFON, "include/vocalyne/ImplAgentTexteur.h",
                       "include/vocalyne/Exports.h",
                       "include/vocalyne/UniChaine.h", "share/vocalyne/protocol/zones.schema.json",
                       "share/vocalyne/protocol/Contrat.h",
                       "share/doc/VocalyneConnecteur/LICENSE",
                       f"{LIB}/cmake/VocalyneConnecteur/VocalyneConnecteurConfig.cmake"]:
            with self.subTest(chemin):
                self.assertTrue((self.prefixe / chemin).is_file())

    def test_run_paths_are_relative_to_the_file_that_holds_them(self):
        self.assertGreaterEqual(len(self.elfs()), len(PROGRAMMES) + len(BIBLIOTHEQUES) + 1)
        for elf in self.elfs():
            for chemins in re.findall(r"\((?:RUNPATH|RPATH)\).*\[(.*)\]", dynamique(elf)):
                for chemin in chemins.split(":"):
                    with self.subTest(elf.name):
                        self.assertRegex(chemin, r"^\$ORIGIN(/|$)")

    def test_no_text_names_the_folders_it_was_made_in(self):
        elfs = self.elfs()
        textes = [c for c in self.prefixe.rglob("*") if c.is_file() and c not in elfs
                  and c.suffix != ".a"]
        self.assertGreater(len(textes), 10)
        for texte in textes:
            contenu = texte.read_bytes()
            for dossier in (SOURCES, CONSTRUCTION, self.dossier / "provisoire"):
                with self.subTest(texte.name):
                    self.assertNotIn(os.fsencode(dossier), contenu)


class Programmes(PrefixeInstalle):

    composants = ("runtime",)

    def test_the_runtime_component_needs_no_sdk(self):
        self.assertFalse((self.prefixe / "include").exists())
        for programme in PROGRAMMES:
            lance(self.prefixe / programme, "--help", env=self.env)

    def test_the_installed_host_corrects_a_document_of_the_installed_office(self):
        document = self.dossier / "lettre.txt"
        document.write_text("Un bel acceuil.\n", encoding="utf-8")
        with bus_prive(self.env) as env:
            with bureau(self.prefixe / PROGRAMMES[1], [document], env) as [identifiant]:
                lance(self.prefixe / PROGRAMMES[0], "corrige", identifiant, "--langue", "fr",
                      "--automatique", env=env)
        self.assertEqual(document.read_text(encoding="utf-8"), "Un bel accueil.\n")


class Sdk(PrefixeInstalle):

    def construis(self) -> pathlib.Path:
        construction = self.dossier / "connecteur"
        lance(CMAKE, "-G", "Ninja", "-S", ICI / "connecteur", "-B", construction,
              f"-DCMAKE_PREFIX_PATH={self.prefixe}", env=self.env)
        lance(CMAKE, "--build", construction, env=self.env)
        return construction

    def alerte(self, connecteur: pathlib.Path, env: dict[str, str]) -> str:
        """What the connector says when it is asked for a window that it cannot serve."""
        infos = {"Id": "essai", "ClasseInitialisation": "a window of another program", "Genre": 1}
        [refus] = dialogue(self.prefixe / PROGRAMMES[0], [
            {"op": "CreeAgentTexteur", "idDocument": "essai", "infos": infos}], env, "--greffon", connecteur)
        self.assertIsNone(refus["resultat"])
        return refus["alertes"][0]["information"] + refus["alertes"][0]["texte"]

    def test_the_alerts_of_a_connector_speak_the_language_of_the_person(self):
        connecteur = self.construis() / "libConnecteurMinimal.so"
        self.assertIn("a connector must be installed", self.alerte(connecteur, self.env))
        self.assertIn("nécessite l’installation d’un connecteur",
                      self.alerte(connecteur, self.env | {"LANG": "fr_FR.UTF-8"}))

    def test_a_connector_shows_its_five_functions_and_asks_for_nothing_that_is_missing(self):
        construction = self.construis()
        for nom in ("libConnecteurMinimal.so", "libConnecteurALaMain.so"):
            self.assertEqual(symboles_exportes(construction / nom), symboles_exportes(self.prefixe / GREFFON))
        chemins = re.findall(r"\((?:RUNPATH|RPATH)\).*\[(.*)\]",
                             dynamique(construction / "libConnecteurMinimal.so"))
        self.assertEqual(chemins, ["$ORIGIN/.."])
        rate = lance(CMAKE, "--build", construction, "--target", "ConnecteurIncomplet", env=self.env,
                     statut=None)
        self.assertNotEqual(rate.returncode, 0)
        self.assertIn("FonctionOubliee", rate.stdout)

    def test_a_connector_is_installed_where_the_host_keeps_its_plug_ins(self):
        construction = self.construis()
        lance(CMAKE, "--install", construction, "--prefix", self.prefixe, env=self.env)
        pose = self.prefixe / LIB / "vocalyne/libConnecteurMinimal.so"
        # Alone in a program that has none of the host's libraries, by its run path.
        lance(sys.executable, "-c", "import ctypes, sys; ctypes.CDLL(sys.argv[1])", pose,
              env=self.env | {"QT_QPA_PLATFORM": "offscreen"})

    def test_a_connector_builds_against_the_sdk_alone_and_works_in_the_host(self):
        construction = self.construis()
        creation = {"op": "CreeAgentTexteur", "idDocument": "essai",
                    "infos": {"Id": "essai", "ClasseInitialisation": "", "Genre": 1, "Classe": ""}}
        noms, agent, avant, peut, _, apres, _ = dialogue(self.prefixe / PROGRAMMES[0], [
            {"op": "DonneNomsTexteurs", "texte": ""}, creation, {"op": "DonneZones"},
            {"op": "PeutCorriger", "zone": 0, "debut": 12, "fin": 22, "texte": "ortographe"},
            {"op": "CorrigeDansTexteur", "zone": 0, "debut": 12, "fin": 22, "texte": "orthographe",
             "drapeau": False},
            {"op": "SynchronisePositions", "vide": True}, {"op": "Detruis"},
        ], self.env, "--greffon", construction / "libConnecteurMinimal.so")
        self.assertEqual(noms["resultat"], "ConnecteurMinimal")
        self.assertIs(agent["resultat"], True)
        self.assertEqual([z["texte"] for z in avant["resultat"]["zones"]], ["Une faute d'ortographe."])
        self.assertIs(peut["resultat"], True)
        self.assertEqual([z["texte"] for z in apres["resultat"]["zones"]], ["Une faute d'orthographe."])

    def test_the_plug_in_builds_against_another_providers_libraries(self):
        # The libraries and their headers alone, in a folder laid out as another maker might.
        autre = self.dossier / "autre"
        shutil.copytree(self.prefixe / "include/vocalyne", autre / "include")
        for entete in (SOURCES / "toolkit").glob("*.h"):
            (autre / "include" / entete.name).unlink(missing_ok=True)
        (autre / "lib").mkdir()
        for bibliotheque in BIBLIOTHEQUES:
            shutil.copy(self.prefixe / bibliotheque, autre / "lib")
        construction = self.dossier / "greffon"
        lance(CMAKE, "-G", "Ninja", "-S", SOURCES, "-B", construction, f"-DVOCALYNE_SDK={autre}",
              "-DBUILD_TESTING=OFF", env=self.env)
        lance(CMAKE, "--build", construction, "--target", "TexteurOOo", env=self.env)
        [greffon] = construction.rglob("libTexteurOOo.so")
        self.assertEqual(symboles_exportes(greffon), symboles_exportes(self.prefixe / GREFFON))
        self.assertFalse(list(construction.rglob("libOutils*.so")))
        [noms] = dialogue(self.prefixe / PROGRAMMES[0], [{"op": "DonneNomsTexteurs", "texte": ""}],
                          self.env | {"LD_LIBRARY_PATH": str(autre / "lib")}, "--greffon", greffon)
        self.assertEqual(noms["resultat"], "VCLSalFrame:OpenOffice.org 4.0")


if __name__ == "__main__":
    unittest.main()
