# SPDX-License-Identifier: MPL-2.0
"""The package: what it says of itself, its ways into an office, and out of it again."""

import os
import pathlib
import re
import shutil
import subprocess
import unittest
import xml.etree.ElementTree
import zipfile

import banc
import ecran
import menus

IDENTIFIANT = "com.ombrel.vocalyne.libreoffice"
OXT = banc.DOSSIER / "vocalyne-libreoffice.oxt"
DESCRIPTION = "{http://openoffice.org/extensions/description/2006}"
ANGLAIS = {"LC_ALL": "C.UTF-8"}  # whatever the system speaks
LIEN = "{http://www.w3.org/1999/xlink}href"


def sans_paquet(profil):
    """A profile in which the bench installs nothing."""
    (banc.DOSSIER / profil).mkdir()
    (banc.DOSSIER / profil / "vocalyne").touch()
    return profil


def ote_le_temoin(profil):
    (banc.DOSSIER / profil / "vocalyne").unlink()


def unopkg(profil, *arguments, entree="", env=None, statut=0):
    fait = subprocess.run(
        ["unopkg", *arguments, f"-env:UserInstallation=file://{banc.DOSSIER}/{profil}"],
        env={**os.environ, **ANGLAIS, **(env or {})}, input=entree, capture_output=True, text=True,
        check=False)
    assert statut is None or fait.returncode == statut, (fait.stdout, fait.stderr)
    return fait.stdout + fait.stderr


def restes(dossier):
    """Files that are named after us, or that name us."""
    return [f for f in dossier.rglob("*")
            if "vocalyne" in str(f.relative_to(dossier)).lower()
            or (f.is_file() and b"vocalyne" in f.read_bytes().lower())]


class Description(unittest.TestCase):
    def setUp(self):
        with zipfile.ZipFile(OXT) as paquet:
            self.noms = paquet.namelist()
            self.racine = xml.etree.ElementTree.fromstring(paquet.read("description.xml"))

    def test_every_file_that_it_names_is_in_the_package(self):
        liens = [e.get(LIEN) for e in self.racine.iter() if e.get(LIEN)]
        dedans = [lien for lien in liens if "://" not in lien]
        self.assertIn("icone.svg", dedans)
        self.assertEqual([lien for lien in dedans if lien not in self.noms], [])

    def test_it_says_where_updates_and_their_notes_are(self):
        [lien] = [e.get(LIEN) for e in self.racine.find(DESCRIPTION + "update-information")]
        self.assertRegex(lien, r"^https://ombrel\.com/.*/vocalyne-libreoffice\.update\.xml$")
        for balise in ("publisher", "release-notes"):
            langues = [e.get("lang") for e in self.racine.find(DESCRIPTION + balise)]
            self.assertEqual(langues, ["en", "fr"])


class Composant(unittest.TestCase):
    # What Debian 12's systems and later have. A component that asks for more is not loaded by an
    # older one, and its office says nothing of it.
    PLAFONDS = {"GLIBC": (2, 34), "GLIBCXX": (3, 4, 29), "CXXABI": (1, 3, 13)}

    def test_it_asks_for_nothing_newer_than_the_systems_that_it_is_for(self):
        with zipfile.ZipFile(OXT) as paquet:
            [nom] = [n for n in paquet.namelist() if n.endswith(".so")]
            composant = paquet.extract(nom, banc.DOSSIER / "composant")
        symboles = subprocess.run(["objdump", "-T", composant], capture_output=True, text=True,
                                  check=True).stdout
        demandes = {(famille, tuple(map(int, version.split("."))))
                    for famille, version in re.findall(r"\((GLIBC|GLIBCXX|CXXABI)_([\d.]+)\)",
                                                       symboles)}
        self.assertEqual({famille for famille, _ in demandes}, set(self.PLAFONDS))
        self.assertEqual([(famille, version) for famille, version in sorted(demandes)
                          if version > self.PLAFONDS[famille]], [])


class PourUneSeulePersonne(unittest.TestCase):
    def test_the_licence_is_shown_and_must_be_accepted(self):
        profil = sans_paquet("licence")
        dit = unopkg(profil, "add", str(OXT), entree="no\n", statut=None)
        self.assertIn("Mozilla Public License", dit)
        self.assertNotIn(IDENTIFIANT, unopkg(profil, "list"))
        unopkg(profil, "add", str(OXT), entree="yes\n")
        self.assertIn(IDENTIFIANT, unopkg(profil, "list"))

    def test_an_office_older_than_it_asks_for_refuses_it(self):
        profil = sans_paquet("ancien")
        exigeant = banc.DOSSIER / "exigeant.oxt"
        with zipfile.ZipFile(OXT) as paquet, zipfile.ZipFile(exigeant, "w") as copie:
            for nom in paquet.namelist():
                contenu = paquet.read(nom)
                if nom == "description.xml":
                    self.assertEqual(contenu.count(b'value="7.4"'), 1)
                    contenu = contenu.replace(b'value="7.4"', b'value="99.0"')
                copie.writestr(nom, contenu)
        dit = unopkg(profil, "add", "--suppress-license", str(exigeant), statut=None)
        self.assertIn("unsatisfied dependencies", dit)
        self.assertNotIn(IDENTIFIANT, unopkg(profil, "list"))

    def test_the_office_shows_its_name_icon_licence_and_description_in_the_persons_language(self):
        menus.met_en_francais("presentation-fr")
        for profil, mot in (("presentation", "proofing program"), ("presentation-fr", "correcteur")):
            bureau = banc.Bureau(None, profil=profil, environnement=ANGLAIS)
            self.addCleanup(bureau.ferme)
            gestion = bureau.contexte.getValueByName(
                "/singletons/com.sun.star.deployment.ExtensionManager")
            paquet = gestion.getDeployedExtension("user", IDENTIFIANT, OXT.name, None)
            self.assertEqual(paquet.DisplayName, "Vocalyne")
            self.assertIn(mot, paquet.Description)
            self.assertIn("Mozilla Public License", paquet.LicenseText)
            self.assertGreater(paquet.getIcon(False).Size100thMM.Width, 0)
            self.assertEqual(paquet.PublisherInfo.First, "Ombrel")
            self.assertEqual(len(paquet.UpdateInformationURLs), 1)

    def fenetre(self, bureau):
        doc = bureau.ouvre("private:factory/swriter", banc.pv("OnMainThread", True))
        return doc.CurrentController.Frame

    def test_removing_it_leaves_nothing_behind(self):
        profil = "ote"
        vue = ecran.Ecran()
        self.addCleanup(vue.ferme)
        env = {"DISPLAY": vue.nom, "SAL_USE_VCLPLUGIN": "gtk3", "GDK_BACKEND": "x11",
               "NO_AT_BRIDGE": "1"}
        reglages = banc.DOSSIER / profil / "user/registrymodifications.xcu"
        bureau = banc.Bureau(None, profil=profil, options=(), environnement=env)
        disposition = self.fenetre(bureau).LayoutManager
        banc.attends(lambda: disposition.isElementVisible(menus.BARRE), "the toolbar")
        bureau.ferme()
        self.assertIn("vocalyne", reglages.read_text())  # where the office keeps the toolbar's place
        unopkg(profil, "remove", IDENTIFIANT)
        # The office forgets the place of a toolbar that is no more when it next runs.
        bureau = banc.Bureau(None, profil=profil, options=(), environnement=env)
        self.fenetre(bureau)
        bureau.ferme()
        ote_le_temoin(profil)
        # What the office's package manager threw away goes when it next adds something.
        autre = banc.DOSSIER / "autre.oxt"
        with zipfile.ZipFile(autre, "w") as paquet:
            paquet.writestr("description.xml", f"""<description
xmlns="{DESCRIPTION[1:-1]}"><identifier value="org.example.autre"/><version value="1"/>
</description>""")
            paquet.writestr("META-INF/manifest.xml", """<manifest:manifest
xmlns:manifest="http://openoffice.org/2001/manifest"/>""")
        unopkg(profil, "add", str(autre))
        self.assertEqual(restes(banc.DOSSIER / profil), [])


class PourTous(unittest.TestCase):
    """Into the office's own folders; the tests' office has others, which it is free to write to."""

    def setUp(self):
        self.bus = banc.Bus()
        self.addCleanup(self.bus.ferme)
        nom = self.id().rsplit(".", 1)[-1]
        self.lieu = banc.DOSSIER / nom
        self.lieu.mkdir()
        self.profils = [sans_paquet(f"{nom}-{qui}") for qui in ("alice", "bob")]

    def sert(self, profil, env):
        bureau = banc.Bureau(self.bus.adresse, profil=profil, environnement=env)
        try:
            doc = bureau.ouvre()
            banc.attends(lambda: "serving as" in bureau.dit(), "the extension", 10)
            menus.demande(bureau, doc.CurrentController.Frame, "diagnostic")
            banc.attends(lambda: "Documents served: 1" in bureau.dit(), "the menu's command", 10)
        finally:
            bureau.ferme()

    def ne_sert_plus(self, profil, env):
        bureau = banc.Bureau(self.bus.adresse, profil=profil, environnement=env)
        bureau.ouvre()
        bureau.ferme()
        self.assertNotIn("vocalyne", bureau.dit())

    def test_added_shared_it_serves_every_user_and_removed_it_leaves_nothing(self):
        env = {"UNO_SHARED_PACKAGES_CACHE": f"file://{self.lieu}", **ANGLAIS}
        unopkg(self.profils[0], "add", "--shared", "--suppress-license", str(OXT), env=env)
        for profil in self.profils:
            self.sert(profil, env)
        unopkg(self.profils[0], "remove", "--shared", IDENTIFIANT, env=env)
        for profil in self.profils:
            self.ne_sert_plus(profil, env)
            ote_le_temoin(profil)
            self.assertEqual(restes(banc.DOSSIER / profil), [])

    def test_unpacked_by_a_package_of_the_system_it_serves_every_user_until_it_is_taken_away(self):
        env = {"BUNDLED_EXTENSIONS": f"file://{self.lieu}", **ANGLAIS}
        with zipfile.ZipFile(OXT) as paquet:
            paquet.extractall(self.lieu / "vocalyne")
        for profil in self.profils:
            self.sert(profil, env)
        shutil.rmtree(self.lieu / "vocalyne")
        for profil in self.profils:
            self.ne_sert_plus(profil, env)
            ote_le_temoin(profil)
            self.assertEqual(restes(banc.DOSSIER / profil), [])


if __name__ == "__main__":
    unittest.main()
