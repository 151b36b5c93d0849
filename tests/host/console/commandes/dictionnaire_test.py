# SPDX-License-Identifier: MPL-2.0
"""Synonyms for what is selected, through the plug-in, in a document of the text office."""
import json
import os
import pathlib
import unittest

from commun import bureau, bus_prive, dialogue, dossier_neuf, environnement, lance
from terminal_test import INVITE, Terminal

HOTE = os.environ["VOCALYNE_HOTE"]
BUREAU = pathlib.Path(os.environ["VOCALYNE_BUREAU"])
CLASSE = "VCLSalFrame:OpenOffice.org 4.0"

# Small dictionaries of these tests' own, so that every number and word is known.
ENTREES = {"chat": "(Nom)|félin|matou|(Nom)|chien (contraire)", "ami": "(Nom)|copain"}


def ecris_dictionnaires(dossier: pathlib.Path):
    donnees, index = "UTF-8\n", []
    for entree, article in sorted(ENTREES.items()):
        index.append(f"{entree}|{len(donnees.encode())}")
        sens = article.split("|(Nom)|")
        lignes = [sens[0], *("(Nom)|" + s for s in sens[1:])]
        donnees += f"{entree}|{len(lignes)}\n" + "".join(l + "\n" for l in lignes)
    (dossier / "th_fr_FR_v2.dat").write_text(donnees, encoding="utf-8")
    (dossier / "th_fr_FR_v2.idx").write_text(
        f"UTF-8\n{len(index)}\n" + "".join(l + "\n" for l in index), encoding="utf-8")
    (dossier / "fr_FR.aff").write_text("SET UTF-8\nSFX S Y 1\nSFX S 0 s .\n", encoding="utf-8")
    (dossier / "fr_FR.dic").write_text("5\nchat/S\nami/S\nun\ndes\nchez\n", encoding="utf-8")


class Dictionnaire(unittest.TestCase):

    def setUp(self):
        dossier = dossier_neuf()
        self.addCleanup(dossier.cleanup)
        self.dossier = pathlib.Path(dossier.name)
        ecris_dictionnaires(self.dossier)
        env = environnement(self.dossier, VOCALYNE_GREFFON=os.environ["VOCALYNE_GREFFON"],
                            DICPATH=str(self.dossier), TERM="xterm")
        self.env = self.enterContext(bus_prive(env))

    def ouvre(self, texte: str, debut: int, fin: int, zone: int = 0):
        """A document with that selection in it."""
        fichier = self.dossier / "texte.txt"
        fichier.write_text(texte, encoding="utf-8")
        [self.id] = self.enterContext(bureau(BUREAU, [fichier], self.env))
        self.pilote({"op": "DonneZones"},
                    {"op": "SelectionneIntervalle", "zone": zone, "debut": debut, "fin": fin})

    def pilote(self, *requetes: dict) -> list:
        infos = {"Id": self.id, "ClasseInitialisation": CLASSE, "Genre": 2, "Classe": CLASSE}
        reponses = dialogue(HOTE, [{"op": "CreeAgentTexteur", "idDocument": self.id, "infos": infos},
                                   *requetes], self.env)
        return [r["resultat"] for r in reponses[1:]]

    def zones(self) -> list[str]:
        return [z["texte"] for z in self.pilote({"op": "DonneZones"})[0]["zones"]]

    def cherche(self, *options: str, statut: int = 0) -> dict:
        fini = lance(HOTE, "dictionnaire", self.id, "--langue", "fr", "--sortie", "json", *options,
                     env=self.env, statut=statut)
        return json.loads(fini.stdout)

    def terminal(self) -> Terminal:
        terminal = Terminal(HOTE, "dictionnaire", self.id, "--langue", "fr", env=self.env)
        self.addCleanup(terminal.__exit__)
        return terminal

    def test_the_json_result_tells_place_meanings_and_notes(self):
        self.ouvre("Des chats noirs.\n", 4, 9)
        trouve = self.cherche()
        self.assertEqual((trouve["id"], trouve["titre"], trouve["langue"], trouve["langueTrouvee"]),
                         (self.id, "texte.txt", "fr", False))
        self.assertEqual((trouve["mot"], trouve["debut"], trouve["fin"]), ("chats", 4, 9))
        self.assertEqual(trouve["articles"], [{"entree": "chat", "sens": [
            {"genre": "Nom", "synonymes": [{"mot": "félin", "note": ""}, {"mot": "matou", "note": ""}]},
            {"genre": "Nom", "synonymes": [{"mot": "chien", "note": "contraire"}]}]}])
        self.assertEqual(self.zones()[0], "Des chats noirs.")

    def test_the_word_around_the_caret_is_looked_up_in_its_own_zone(self):
        self.ouvre("premier\n😀 chez l’ami\n", 11, 11, zone=1)
        self.assertEqual([self.cherche()[cle] for cle in ("mot", "debut", "fin")], ["ami", 10, 13])

    def test_the_language_is_found_out_from_the_paragraph(self):
        self.ouvre("un chat chez un ami\n", 4, 4)
        for nom in ("en_US.aff", "en_US.dic"):
            (self.dossier / nom).write_text("SET UTF-8\n" if nom.endswith("aff") else "1\ncat\n")
        fini = lance(HOTE, "dictionnaire", "--sortie", "json", env=self.env)
        trouve = json.loads(fini.stdout)
        self.assertEqual((trouve["langue"], trouve["langueTrouvee"]), ("fr", True))

    def test_a_word_without_synonyms_is_told(self):
        self.ouvre("un rien\n", 4, 4)
        self.assertEqual(self.cherche()["articles"], [])
        texte = lance(HOTE, "dictionnaire", self.id, "--langue", "fr", env=self.env).stdout
        self.assertEqual(texte, "“rien”: no synonym (French).\n")

    def test_where_no_word_stands_the_status_says_so(self):
        self.ouvre("un  chat\n", 3, 3)
        fini = lance(HOTE, "dictionnaire", self.id, "--langue", "fr", env=self.env, statut=3)
        self.assertIn("No word is selected", fini.stderr)

    def test_a_dictionary_of_synonyms_that_cannot_be_read_is_told(self):
        self.ouvre("a cat\n", 2, 5)
        for nom in ("en_US.aff", "en_US.dic"):
            (self.dossier / nom).write_text("SET UTF-8\n" if nom.endswith("aff") else "1\ncat\n")
        for nom in ("th_en_US_v2.idx", "th_en_US_v2.dat"):
            (self.dossier / nom).write_text("")
        fini = lance(HOTE, "dictionnaire", self.id, "--langue", "en", env=self.env, statut=5)
        self.assertIn("cannot be read", fini.stderr)

    def test_without_a_terminal_nothing_is_asked_and_nothing_changed(self):
        self.ouvre("un chat noir\n", 3, 7)
        texte = lance(HOTE, "dictionnaire", self.id, "--langue", "fr", env=self.env,
                      entree="1\n").stdout
        self.assertEqual(texte, "Synonyms of “chat” (French)\n\nchat\n  (Nom) félin, matou\n"
                                "  (Nom) chien (contraire)\n")
        self.assertEqual(self.zones()[0], "un chat noir")

    def test_the_number_that_is_typed_replaces_the_selection(self):
        self.ouvre("un chat noir\n", 3, 7)
        terminal = self.terminal()
        question = terminal.attends(INVITE)
        self.assertIn("1 félin  2 matou", question)
        self.assertIn("3 chien (contraire)", question)
        terminal.tape("9\n")
        terminal.attends(INVITE)
        terminal.tape("2\n")
        code, suite = terminal.finis()
        self.assertEqual((code, suite.split()), (0, ["2", "→", "matou"]))
        self.assertEqual(self.zones()[0], "un matou noir")
        contexte = self.pilote({"op": "DonneContexte"})[0]
        self.assertEqual((contexte["debut"], contexte["fin"]), (3, 8))

    def test_a_caret_is_widened_to_its_word_and_capitals_are_kept(self):
        self.ouvre("Chats noirs\n", 2, 2)
        terminal = self.terminal()
        terminal.attends(INVITE)
        terminal.tape("3\n")
        self.assertEqual(terminal.finis()[0], 0)
        self.assertEqual(self.zones()[0], "Chien noirs")

    def test_quitting_leaves_all_as_it_is(self):
        self.ouvre("un chat noir\n", 3, 7)
        terminal = self.terminal()
        terminal.attends(INVITE)
        terminal.tape("q\n")
        self.assertEqual(terminal.finis()[0], 0)
        self.assertEqual(self.zones()[0], "un chat noir")

    def test_a_selection_that_became_another_one_meanwhile_is_left_alone(self):
        self.ouvre("un chat noir\n", 3, 7)
        terminal = self.terminal()
        terminal.attends(INVITE)
        self.pilote({"op": "DonneZones"},
                    {"op": "SelectionneIntervalle", "zone": 0, "debut": 8, "fin": 12})
        terminal.tape("1\n")
        code, suite = terminal.finis()
        self.assertEqual(code, 1)
        self.assertIn("refused: félin", suite)
        self.assertEqual(self.zones()[0], "un chat noir")


if __name__ == "__main__":
    unittest.main()
