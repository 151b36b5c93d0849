# SPDX-License-Identifier: MPL-2.0
"""What an installed prefix gives a desktop and a shell, and that all of it can be taken away."""
import pathlib
import shutil
import subprocess
import unittest

from commun import dossier_neuf, environnement, lance
from prefixe import CMAKE, CONSTRUCTION, SOURCES, PrefixeInstalle

PROGRAMMES = ["vocalyne-hote", "vocalyne-bureau-texte"]


class Pages(PrefixeInstalle):

    composants = ("runtime",)

    def aide(self, programme: str) -> str:
        return lance(self.prefixe / "bin" / programme, "--help", env=self.env).stdout

    def test_each_program_has_a_manual_in_both_languages_that_formats_without_a_warning(self):
        for programme in PROGRAMMES:
            for lieu, titre in (("man/man1", "EXIT STATUS"), ("man/fr/man1", "CODES DE SORTIE")):
                with self.subTest(f"{lieu}/{programme}"):
                    dit = lance("groff", "-K", "utf8", "-T", "utf8", "-man", "-ww", "-P-cbou",
                                self.prefixe / "share" / lieu / f"{programme}.1", env=self.env)
                    self.assertEqual(dit.stderr, "")
                    self.assertIn(titre, dit.stdout)
                    self.assertIn("SYNOPSIS", dit.stdout)

    def test_a_manual_holds_what_help_says(self):
        for programme in PROGRAMMES:
            page = (self.prefixe / f"share/man/man1/{programme}.1").read_text(encoding="utf-8")
            mots = page.replace("\\-", "-").replace("\\fB", "").replace("\\fI", "").replace("\\fR", "").split()
            perdus = set(self.aide(programme).split()) - set(mots) - {"Usage:", "Exit", "code:", "codes:"}
            # The sentence that names the program ends without its dot there.
            self.assertEqual({m for m in perdus if m.rstrip(".") not in mots}, set())

    def propose(self, programme: str, *mots: str) -> list[str]:
        """What bash proposes for the last word."""
        fonction = "_" + programme.replace("-", "_")
        script = (f'source "$1"; shift; COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); {fonction}; '
                  'printf "%s\\n" "${COMPREPLY[@]}"')
        fichier = self.prefixe / "share/bash-completion/completions" / programme
        return subprocess.run(["bash", "-c", script, "bash", fichier, programme, *mots], env=self.env, text=True,
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=True).stdout.split()

    def test_bash_completes_commands_options_and_values(self):
        self.assertEqual(self.propose("vocalyne-hote", "co"), ["corrige"])
        self.assertEqual(self.propose("vocalyne-hote", "corrige", "--l"), ["--langue"])
        self.assertEqual(self.propose("vocalyne-hote", "corrige", "--langue", ""), ["fr", "en"])
        self.assertEqual(self.propose("vocalyne-hote", "documents", "--"), ["--sortie"])
        self.assertEqual(self.propose("vocalyne-bureau-texte", "--sans"), ["--sans-enregistrer"])

    def test_each_shell_knows_every_option_that_help_names(self):
        for programme in PROGRAMMES:
            options = {mot.strip("[],") for mot in self.aide(programme).split()
                       if mot.strip("[],;").startswith("--")}
            for lieu, forme in (("bash-completion/completions/{}", "{}"), ("zsh/site-functions/_{}", "{}["),
                                ("fish/vendor_completions.d/{}.fish", "-l {}")):
                texte = (self.prefixe / "share" / lieu.format(programme)).read_text(encoding="utf-8")
                for option in options:
                    voulue = forme.format(option.rstrip(";")[2:] if "-l" in forme else option.rstrip(";"))
                    with self.subTest(f"{lieu} {option}"):
                        self.assertIn(voulue, texte)

    def test_the_menu_entry_and_the_presentation_are_valid_and_name_what_is_there(self):
        partage = self.prefixe / "share"
        entree = partage / "applications/com.ombrel.vocalyne.desktop"
        lance("desktop-file-validate", entree, env=self.env)
        lance("appstreamcli", "validate", "--no-net",
              partage / "metainfo/com.ombrel.vocalyne.metainfo.xml", env=self.env)
        dites = dict(l.split("=", 1) for l in entree.read_text(encoding="utf-8").splitlines() if "=" in l)
        self.assertTrue((self.prefixe / "bin" / dites["Exec"].split()[0]).is_file())
        self.assertIn(f"\n  {dites['Exec'].split()[1]} ", self.aide("vocalyne-hote"))
        self.assertTrue((partage / f"icons/hicolor/scalable/apps/{dites['Icon']}.svg").is_file())


class Retrait(unittest.TestCase):

    def test_what_was_installed_whole_is_taken_away_and_nothing_else(self):
        dossier = dossier_neuf()
        self.addCleanup(dossier.cleanup)
        racine = pathlib.Path(dossier.name)
        env = environnement(racine)
        prefixe = racine / "person/.local"
        autre = prefixe / "share/applications/autre.desktop"
        autre.parent.mkdir(parents=True)
        autre.write_text("of another program\n")
        lance(CMAKE, "--install", CONSTRUCTION, "--prefix", prefixe, env=env)
        self.assertTrue((prefixe / "share/applications/com.ombrel.vocalyne.desktop").is_file())
        lance(prefixe / "bin/vocalyne-hote", "--version", env=env)
        # The list of the whole: other tests install components from the same build meanwhile.
        shutil.move(CONSTRUCTION / "install_manifest.txt", racine)
        retire = ["-DCONSTRUCTION=" + str(racine), "-P", SOURCES / "cmake/Desinstalle.cmake"]
        lance(CMAKE, *retire, env=env)
        self.assertEqual([c for c in prefixe.rglob("*") if not c.is_dir()], [autre])
        self.assertEqual(sorted(c.name for c in prefixe.iterdir()), ["share"])
        self.assertNotEqual(lance(CMAKE, *retire, env=env, statut=None).returncode, 0)


if __name__ == "__main__":
    unittest.main()
