# SPDX-License-Identifier: MPL-2.0
"""The correction of a document, against the scripted plug-in."""
import json
import pathlib
import shutil
import subprocess
import sys
import unittest

from commun import PATIENCE
from hote import HOTE, AvecGreffonFaux

# The dictionary of these tests: few words, so that every mistake and suggestion is known.
MOTS = ["chat", "chien", "maison", "blanche", "petite", "rouge", "la", "le", "une", "noir", "école"]


class Corrige(AvecGreffonFaux):

    def setUp(self):
        super().setUp()
        dictionnaires = self.dossier / "dictionnaires"
        dictionnaires.mkdir()
        (dictionnaires / "fr_FR.aff").write_text("SET UTF-8\nTRY abcdefghijklmnopqrstuvwxyzé\n")
        (dictionnaires / "fr_FR.dic").write_text(f"{len(MOTS)}\n" + "\n".join(MOTS) + "\n")
        self.env["DICPATH"] = str(dictionnaires)

    def corrige(self, *options, statut: int = 0) -> dict:
        fini = self.hote("corrige", "i~d", "--langue", "fr", "--sortie", "json", *options, statut=statut)
        self.assertEqual(len(fini.stdout.splitlines()), 1)
        bilan = json.loads(fini.stdout)
        for etat, cle in (("corrigee", "corrigees"), ("refusee", "refusees"), ("laissee", "laissees"),
                          ("nonVerifiee", "nonVerifiees")):
            self.assertEqual(bilan[cle], sum(f["etat"] == etat for f in bilan["fautes"]))
        return bilan

    def fautes(self, bilan: dict) -> list[tuple]:
        return [(f["zone"], f["debut"], f["fin"], f["mot"], f["etat"], f["remplacement"])
                for f in bilan["fautes"]]

    def zones(self) -> list[str]:
        return self.lis_journal()["zones"]


class SansRefus(Corrige):

    def test_mistakes_are_corrected_by_the_first_suggestion(self):
        self.joue(["la maisso blanche", "", "le chyen noir et rouje"])
        bilan = self.corrige("--tout")
        self.assertEqual(self.zones(), ["la maison blanche", "", "le chien noir et rouge"])
        self.assertEqual(self.fautes(bilan)[:1], [(0, 3, 9, "maisso", "corrigee", "maison")])
        self.assertEqual((bilan["corrigees"], bilan["refusees"], bilan["zones"]), (3, 0, 3))

    def test_corrections_of_other_lengths_do_not_disturb_those_behind(self):
        self.joue(["maisonn chienn rougee blancheee", "mison chen rog"])
        self.corrige("--tout")
        self.assertEqual(self.zones()[0], "maison chien rouge blanche")

    def test_positions_are_those_of_the_text_as_it_was_read(self):
        self.joue(["maisonn chienn rougee"])
        self.assertEqual([f[1:3] for f in self.fautes(self.corrige("--tout"))],
                         [(0, 7), (8, 14), (15, 21)])

    def test_positions_count_utf16_units(self):
        self.joue(["😀 e\u0301cole maisso"])
        self.assertEqual(self.fautes(self.corrige("--tout")),
                         [(0, 10, 16, "maisso", "corrigee", "maison")])

    def test_without_being_told_to_correct_nothing_is_changed(self):
        self.joue(["la maisso blanche"])
        bilan = self.corrige()
        self.assertEqual(bilan["fautes"][0]["suggestions"][0], "maison")
        self.assertEqual((bilan["laissees"], bilan["automatique"]), (1, False))
        self.assertEqual(self.zones(), ["la maisso blanche"])
        self.assertNotIn("CorrigeDansTexteur", self.appels())

    def test_a_mistake_without_a_suggestion_is_left(self):
        self.joue(["la qzxwvkqzxw"])
        self.assertEqual(self.fautes(self.corrige("--tout")),
                         [(0, 3, 13, "qzxwvkqzxw", "laissee", None)])

    def test_text_that_is_not_to_be_proofed_is_passed_over(self):
        self.joue([{"texte": "maisso maisso maisso", "styles": [[0, 6, 64], [7, 6, 3], [14, 2, 65]]}])
        self.assertEqual([f[1] for f in self.fautes(self.corrige())], [7])

    def test_an_empty_document_has_no_mistake(self):
        self.joue([])
        self.assertEqual(self.corrige("--tout")["fautes"], [])

    def test_the_document_is_told_by_its_identifier_and_title(self):
        self.joue(["la"], titre="Ma \u2028 lettre")
        bilan = self.corrige()
        self.assertEqual((bilan["id"], bilan["titre"], bilan["langue"]), ("i~d", "Ma \u2028 lettre", "fr"))

    def test_the_word_processor_is_asked_before_each_correction(self):
        self.joue(["maisso chyen"])
        self.corrige("--tout")
        suite = [a for a in self.appels() if a in ("PeutCorriger", "CorrigeDansTexteur")]
        self.assertEqual(suite, ["PeutCorriger", "CorrigeDansTexteur"] * 2)

    def test_the_link_is_made_for_the_corrector_and_broken_at_the_end(self):
        self.joue(["la"])
        self.corrige()
        appels = self.appels()
        self.assertIn("InitialisePour(0)", appels)
        self.assertEqual([a for a in appels if a.startswith(("Romps", "~"))],
                         ["RompsLienCorrecteur", "RompsLienTexteur", "~Zone", "~Agent"])


class CeQuiEstSur(Corrige):

    def pose_moteur(self, programme: str):
        dossier = self.dossier / "moteurs" / "essai"
        dossier.mkdir(parents=True)
        (dossier / "essai.py").write_text(programme)
        (dossier / "moteur.json").write_text(json.dumps({
            "contrat": 1, "nom": "essai", "langues": ["fr"],
            "commande": [sys.executable, "-B", "{dossier}/essai.py"]}))
        self.env["VOCALYNE_MOTEURS"] = str(self.dossier / "moteurs")

    def pose_accords(self, **plus):
        """An engine that wants "blanche" to be "blanches"."""
        remarque = {"genre": "accord", "regle": "pluriel", "explication": "Au pluriel.",
                    "suggestions": ["blanches"], "surete": 0.9, **plus}
        self.pose_moteur(
            "import json, sys\n"
            "print(json.dumps({'contrat': 1, 'moteur': 'essai', 'version': '1'}), flush=True)\n"
            "for ligne in sys.stdin:\n"
            "    d = json.loads(ligne)\n"
            "    i = d['texte'].find('blanche')\n"
            f"    r = [dict(debut=i, fin=i + 7, **{remarque!r})] if i >= 0 else []\n"
            "    print(json.dumps({'id': d['id'], 'remarques': r}), flush=True)\n")

    def test_what_an_engine_is_sure_of_is_corrected_and_told_with_its_reason(self):
        self.pose_accords()
        self.joue(["la maison blanche"])
        faute = self.corrige("--automatique")["fautes"][0]
        self.assertEqual(self.zones(), ["la maison blanches"])
        self.assertEqual((faute["genre"], faute["moteur"], faute["regle"], faute["explication"]),
                         ("accord", "essai", "pluriel", "Au pluriel."))

    def test_what_no_engine_is_sure_of_is_left(self):
        for plus in ({"surete": 0.5}, {"suggestions": ["blanches", "blanc"]}, {"suggestions": []}):
            with self.subTest(plus):
                shutil.rmtree(self.dossier / "moteurs", ignore_errors=True)
                self.pose_accords(**plus)
                self.joue(["la maison blanche"])
                self.assertEqual(self.corrige("--automatique")["laissees"], 1)
                self.assertEqual(self.zones(), ["la maison blanche"])

    def test_a_misspelt_word_with_one_near_word_is_corrected(self):
        self.joue(["la maisson noir"])
        self.corrige("--automatique")
        self.assertEqual(self.zones(), ["la maison noir"])

    def test_a_name_is_left_even_when_a_word_is_near(self):
        self.joue(["la petite Maisson noir, et la rouge Ecol"])
        self.corrige("--automatique")
        self.assertEqual(self.zones(), ["la petite Maisson noir, et la rouge Ecol"])

    def test_an_engine_that_dies_is_told_and_the_rest_is_corrected(self):
        self.pose_moteur("import sys\nsys.exit('rien ne va')\n")
        self.joue(["la maisson noir"])
        fini = self.hote("corrige", "i~d", "--langue", "fr", "--automatique")
        self.assertIn(b"rien ne va", fini.stderr)
        self.assertEqual(self.zones(), ["la maison noir"])

    def test_accepted_words_and_rules_that_are_off_are_no_mistakes(self):
        self.pose_accords()
        reglages = self.dossier / ".config/vocalyne"
        (reglages / "mots").mkdir(parents=True)
        (reglages / "mots/fr.txt").write_text("machinchose\n")
        (reglages / "hote.conf").write_text("[General]\nreglesEteintes=essai/pluriel\n")
        self.joue(["la maison blanche machinchose, Machinchose"])
        self.assertEqual(self.corrige()["fautes"], [])

    def test_the_offices_own_words_are_no_mistakes(self):
        mots = self.dossier / ".config/libreoffice/4/user/wordbook"
        mots.mkdir(parents=True)
        (mots / "standard.dic").write_text("OOoUserDict1\nlang: <none>\ntype: positive\n---\nmaisso\n")
        self.joue(["la maisso blanche"])
        self.assertEqual(self.corrige()["fautes"], [])


class AvecRefus(Corrige):

    def test_a_refusal_of_an_unchanged_document_stands(self):
        self.joue(["maisso chyen"], [{"op": "PeutCorriger", "appel": 1, "reponse": False}])
        bilan = self.corrige("--tout", statut=1)
        self.assertEqual([f[4] for f in self.fautes(bilan)], ["refusee", "corrigee"])
        self.assertEqual(self.zones(), ["maisso chien"])

    def test_a_place_that_moved_in_its_zone_is_found_again(self):
        self.joue(["la maisso", "chyen"], [{"op": "PeutCorriger", "appel": 1,
                                            "zones": [{"texte": "une petite la maisso"}, {"texte": "chyen"}]}])
        bilan = self.corrige("--tout")
        self.assertEqual(self.zones(), ["une petite la maison", "chien"])
        self.assertEqual(self.fautes(bilan)[0], (0, 14, 20, "maisso", "corrigee", "maison"))

    def test_a_place_in_a_zone_that_moved_is_found_again(self):
        self.joue(["le chat", "la maisso"], [{"op": "PeutCorriger", "appel": 1, "zones": [
            {"texte": "une"}, {"texte": "le chat"}, {"texte": "rouge"}, {"texte": "la maisso"}]}])
        bilan = self.corrige("--tout")
        self.assertEqual(self.zones(), ["une", "le chat", "rouge", "la maison"])
        self.assertEqual(self.fautes(bilan), [(3, 3, 9, "maisso", "corrigee", "maison")])

    def test_a_place_that_cannot_be_told_is_refused_and_nothing_is_changed(self):
        apres = [{"texte": "la maissonnette"}]
        self.joue(["la maisso"], [{"op": "PeutCorriger", "appel": 1, "zones": apres},
                                  {"op": "PeutCorriger", "reponse": False}])
        bilan = self.corrige("--tout", statut=1)
        self.assertEqual(self.fautes(bilan)[0][4], "refusee")
        self.assertEqual(self.zones(), ["la maissonnette"])

    def test_a_zone_that_went_away_is_refused_and_the_next_one_corrected(self):
        self.joue(["chat", "la maisso", "le chyen"], [
            {"op": "PeutCorriger", "appel": 1, "zones": [{"texte": "chat"}, {"texte": "le chyen"}]}])
        bilan = self.corrige("--tout", statut=1)
        self.assertEqual([f[3:5] for f in self.fautes(bilan)], [("maisso", "refusee"), ("chyen", "corrigee")])
        self.assertEqual(self.zones(), ["chat", "le chien"])

    def test_a_correction_that_the_document_does_not_show_counts_as_refused(self):
        self.joue(["maisso chyen"], [{"op": "CorrigeDansTexteur", "appel": 2, "ignore": True}])
        bilan = self.corrige("--tout", statut=1)
        self.assertEqual([f[3:5] for f in self.fautes(bilan)], [("maisso", "corrigee"), ("chyen", "refusee")])
        self.assertEqual(self.zones(), ["maison chyen"])

    def test_a_correction_that_landed_in_part_of_a_word_counts_as_refused(self):
        # The document had "lle" corrected to "le" dropped: "le" stands in it, as part of "lle".
        self.joue(["chat lle chat"], [{"op": "CorrigeDansTexteur", "ignore": True}])
        self.assertEqual(self.corrige("--tout", statut=1)["refusees"], 1)

    def test_typing_elsewhere_does_not_hide_a_correction_that_was_made(self):
        self.joue(["la maisso", "chat"], [{"op": "SynchronisePositions", "appel": 2, "zones": [
            {"texte": "une la maison noir"}, {"texte": "chat"}, {"texte": "rouge"}]}])
        bilan = self.corrige("--tout")
        self.assertEqual(bilan["corrigees"], 1)

    def test_a_document_that_refuses_everything_is_not_read_for_each_refusal(self):
        self.joue(["maisso chyen rouje " * 100], [{"op": "PeutCorriger", "reponse": False}])
        bilan = self.corrige("--tout", statut=1)
        self.assertEqual(bilan["refusees"], 300)
        self.assertLess(self.appels().count("SynchronisePositions"), 12)

    def test_a_document_that_is_another_one_at_each_reading_comes_to_an_end(self):
        self.joue(["maisso 0"], [{"op": "SynchronisePositions", "appel": n, "zones": [{"texte": f"maisso chat{'s' * n}"}]}
                                 for n in range(2, 40)] + [{"op": "PeutCorriger", "reponse": False}])
        self.corrige("--tout", statut=1)
        self.assertEqual(self.appels().count("CorrigeDansTexteur"), 0)

    def test_refusals_are_told_on_screen(self):
        self.joue(["maisso chyen"], [{"op": "PeutCorriger", "reponse": False}])
        sortie = self.hote("corrige", "i~d", "--langue", "fr", "--tout", statut=1).stdout.decode()
        self.assertIn("refused: maison", sortie)
        self.assertTrue(sortie.endswith("Corrected: 0, refused: 2, left: 0.\n"))


class DocumentPerdu(Corrige):

    def test_a_document_closed_midway_ends_the_work(self):
        self.joue(["maisso chyen rouje"], [{"op": "PeutCorriger", "appel": 2, "mort": True}])
        bilan = self.corrige("--tout", statut=6)
        self.assertEqual([f[4] for f in self.fautes(bilan)], ["nonVerifiee", "refusee"])
        self.assertIn("closed", bilan["erreur"])

    def test_a_companion_that_left_ends_the_work(self):
        # It is not called dead by an agent that reaches nobody: its zones are gone.
        self.joue(["maisso chyen"], [{"op": "PeutCorriger", "appel": 2, "zones": []}])
        fini = self.hote("corrige", "i~d", "--langue", "fr", "--tout", statut=6)
        self.assertIn(b"Sent, but could not be verified: 1.", fini.stdout)
        self.assertIn(b"no longer answers", fini.stderr)

    def test_a_document_gone_before_the_last_reading_leaves_corrections_unverified(self):
        self.joue(["maisso"], [{"op": "SynchronisePositions", "appel": 2, "zones": []}])
        self.assertEqual(self.corrige("--tout", statut=6)["nonVerifiees"], 1)

    def test_an_exception_of_the_plugin_ends_the_work_with_what_was_done(self):
        self.joue(["maisso chyen"], [{"op": "PeutCorriger", "appel": 2, "leve": "panne"}])
        bilan = self.corrige("--tout", statut=4)
        self.assertEqual(bilan["nonVerifiees"], 1)
        self.assertIn("panne", bilan["erreur"])

    def test_an_exception_of_the_first_reading_is_told(self):
        for quoi in ({"leve": "panne"}, {"leveEntier": 3}):
            with self.subTest(quoi):
                self.joue(["maisso"], [{"op": "SynchronisePositions"} | quoi])
                fini = self.hote("corrige", "i~d", "--langue", "fr", statut=4)
                self.assertIn(b"The connector failed", fini.stderr)

    def test_a_document_that_cannot_be_reached_is_told(self):
        for evenement in ({"op": "CreeAgentTexteur", "reponse": False},
                          {"op": "DonneIdentificateurDocumentCourant", "reponse": False}):
            with self.subTest(evenement["op"]):
                self.joue(["maisso"], [evenement])
                fini = self.hote("corrige", "i~d", "--langue", "fr", statut=3)
                self.assertIn(b"i~d", fini.stderr)


class Langues(Corrige):

    def setUp(self):
        super().setUp()
        self.dictionnaires = pathlib.Path(self.env["DICPATH"])
        (self.dictionnaires / "en_US.aff").write_text("SET UTF-8\nTRY abcdefghijklmnopqrstuvwxyz\n")
        (self.dictionnaires / "en_US.dic").write_text("4\nhouse\nwhite\nthe\nred\n")

    def langue(self, *options) -> tuple:
        bilan = json.loads(self.hote("corrige", "i~d", "--sortie", "json", *options).stdout)
        return bilan["langue"], bilan["langueTrouvee"]

    def test_the_language_is_found_out_from_the_text(self):
        self.joue(["la maisso blanche", "the"])
        self.assertEqual(self.langue(), ("fr", True))
        self.joue(["the whyte house", "la"])
        self.assertEqual(self.langue(), ("en", True))

    def test_a_text_that_does_not_tell_is_taken_for_one_in_the_persons_language(self):
        self.joue(["la the"])
        self.assertEqual(self.langue(), ("en", True))
        self.env["LANG"] = "fr_FR.UTF-8"
        self.assertEqual(self.langue(), ("fr", True))

    def test_the_language_that_is_asked_for_is_taken(self):
        self.joue(["the white house"])
        self.assertEqual(self.langue("--langue", "fr"), ("fr", False))

    def test_the_language_found_is_said_on_screen(self):
        self.joue(["la maison"])
        sortie = self.hote("corrige", "i~d").stdout.decode()
        self.assertIn("Language: French, judging by the text", sortie)


class SurLEcran(Corrige):

    def texte(self, *options, statut: int = 0) -> str:
        return self.hote("corrige", "i~d", "--langue", "fr", *options, statut=statut).stdout.decode()

    def test_mistakes_stand_in_their_context_with_what_became_of_them(self):
        self.joue(["la maisso blanche"])
        self.assertEqual(self.texte("--tout"),
                         "Document: Essai (i~d)\nLanguage: French\n"
                         "    1 la [maisso] blanche\n      → maison\n"
                         "Corrected: 1, refused: 0, left: 0.\n")

    def test_nothing_is_changed_and_it_says_so_when_nobody_can_be_asked(self):
        self.joue(["la maisso blanche"])
        self.assertEqual(self.texte().splitlines()[-2:],
                         ["      maison", "Mistakes: 1. Nothing was changed (--automatique corrects)."])

    def test_a_document_without_mistakes_is_told(self):
        self.joue(["la maison"])
        self.assertTrue(self.texte("--tout").endswith("No mistake.\n"))

    def test_messages_are_french_for_a_french_person(self):
        self.joue(["la maisso"])
        self.env["LANG"] = "fr_CA.UTF-8"
        self.assertIn("Corrigées : 1, refusées : 0, laissées : 0.", self.texte("--tout"))

    def test_nothing_of_a_document_reaches_the_terminal_as_a_command(self):
        self.joue(["a\x1b]0;titre\x07 maisso \x1b[2J\x9b2J\u202e\u2028\ud800"], titre="\x1b[31mrouge\nfin")
        sortie = self.texte("--tout")
        for signe in "\x1b\x07\x9b\u202e\u2028":
            self.assertNotIn(signe, sortie)

    def test_alerts_of_the_plugin_are_shown(self):
        self.joue(["la"], [{"op": "CreeAgentTexteur", "avertis": "Attention é\x1b[2J"}])
        fini = self.hote("corrige", "i~d", "--langue", "fr")
        self.assertIn("Attention é·[2J\n", fini.stderr.decode())

    def test_a_reader_that_goes_away_does_not_stop_the_corrections(self):
        self.joue(["maisso " * 5000])
        with subprocess.Popen([HOTE, "corrige", "i~d", "--langue", "fr", "--tout"], env=self.env,
                              stdout=subprocess.PIPE, stderr=subprocess.PIPE) as hote:
            hote.stdout.readline()
            hote.stdout.close()
            self.assertEqual(hote.wait(PATIENCE), 7)
            self.assertEqual(hote.stderr.read(), b"")
        self.assertEqual(self.zones(), ["maison " * 5000])


if __name__ == "__main__":
    unittest.main()
