# SPDX-License-Identifier: MPL-2.0
"""`vocalyne-hote verifie`: each breach of a connector bears its rule's name, and sound ones pass."""
import json
import os
import pathlib
import unittest

from commun import bureau, bus_prive, dossier_neuf, environnement, lance

HOTE = os.environ["VOCALYNE_HOTE"]
FAUTIF = os.environ["VOCALYNE_FAUTIF"]
TOOLKIT = pathlib.Path(os.environ["VOCALYNE_TOOLKIT"])
TEXTE = "Les chats dorment ici.\nUn deuxieme paragraphe.\n\nEncore un, avec un \U0001f600 dedans.\n"
# What is asked of the connector of the tests, and the rule that has to name it.
DES_EXPORTS = {
    "sans-nom": "exports.noms", "nom-changeant": "exports.noms", "nul-servi": "exports.nul",
    "refus-ecrit": "exports.refus", "infos-ecrites": "exports.lecture",
    "agent-sans-nom": "exports.vide"}
DE_L_AGENT = {
    "sans-agent": "agent.cree", "identifiant-perdu": "agent.identifiant",
    "autre-agent": "agent.meme-objet", "capacite-changeante": "agent.constantes",
    "toujours-mort": "agent.vivant", "contexte-ecrit": "ordre.sans-effet"}
DES_EXCEPTIONS = {"titre-leve": "appels.exceptions", "lecture-leve": "appels.exceptions"}
DES_ZONES = {
    "lecture-refusee": "zones.lues", "longueur-fausse": "zones.longueur",
    "selection-dehors": "zones.selection", "deux-selections": "zones.selection-unique",
    "styles-dehors": "zones.styles", "styles-en-desordre": "zones.styles",
    "collection-videe": "zones.ajoutees", "zones-en-double": "zones.une-fois",
    "texte-changeant": "zones.stables", "blocs-courts": "zones.entieres"}
DES_CORRECTIONS = {
    "corrige-tout": "corrections.attendu", "corrige-a-cote": "corrections.faite",
    "corrige-sans-raccourcir": "corrections.plus-courte", "decalage-oublie": "corrections.decalage",
    "selection-mobile": "corrections.selection", "ajuste-dehors": "ajuste.bornes",
    "selection-ailleurs": "selection.relue"}
DE_LA_FIN = {"fin-qui-ferme-tout": "liberation.agents", "fuite": "memoire.croissance"}
# How the connector takes its process along, and at which call.
PANNES = {"nul-plante": "DonneNomsTexteurs", "suspendu-plante": "SynchronisePositions",
          "fin-du-programme": "RompsLienCorrecteur", "fin-qui-plante": "~InterfaceAgentTexteur",
          "dechargement-plante": "dlclose"}


class Verifie(unittest.TestCase):

    def setUp(self):
        dossier = dossier_neuf()
        self.addCleanup(dossier.cleanup)
        self.dossier = pathlib.Path(dossier.name)
        # Valgrind is not found, but where a test asks for it: it takes longer than all the rest.
        self.env = environnement(self.dossier, PATH="/nonexistent")

    def verifie(self, *arguments, **autres: str) -> dict:
        fini = lance(HOTE, "verifie", *arguments, "--sortie", "json", env=self.env | autres, statut=None)
        self.assertIn(fini.returncode, (0, 1), fini.stderr)
        bilan = json.loads(fini.stdout)
        self.assertEqual(fini.returncode == 0, bilan["violees"] == 0)
        return bilan

    def violees(self, *arguments, **autres: str) -> dict[str, list[dict]]:
        return {r["nom"]: r["constats"] for r in self.verifie(*arguments, **autres)["regles"]
                if r["etat"] == "violee"}

    def nomme(self, fautes: dict[str, str]):
        for faute, regle in fautes.items():
            with self.subTest(faute):
                self.assertIn(regle, self.violees(FAUTIF, "doc", VOCALYNE_FAUTE=faute))


class Fautes(Verifie):

    def test_without_a_breach_every_rule_is_held(self):
        bilan = self.verifie(FAUTIF, "doc")
        self.assertEqual({r["nom"]: r["constats"] for r in bilan["regles"] if r["etat"] == "violee"}, {})
        self.assertEqual({r["nom"] for r in bilan["regles"] if r["etat"] == "nonEssayee"},
                         {"memoire.valgrind"})

    def test_breaches_of_the_exports_are_named(self):
        self.nomme(DES_EXPORTS)

    def test_breaches_of_the_agent_are_named(self):
        self.nomme(DE_L_AGENT | DES_EXCEPTIONS)

    def test_breaches_of_the_zones_are_named(self):
        self.nomme(DES_ZONES)

    def test_breaches_of_corrections_and_selection_are_named(self):
        self.nomme(DES_CORRECTIONS)

    def test_breaches_at_the_end_of_an_agent_are_named(self):
        self.nomme(DE_LA_FIN)

    def test_a_crash_or_an_end_of_the_process_is_named_with_the_call(self):
        for faute, operation in PANNES.items():
            with self.subTest(faute):
                constats = self.violees(FAUTIF, "doc", VOCALYNE_FAUTE=faute)["appels.panne"]
                self.assertIn(operation, {c["operation"] for c in constats})

    def test_a_call_that_never_comes_back_is_named_and_the_other_trials_go_on(self):
        violees = self.violees(FAUTIF, "doc", "--delai", "2", VOCALYNE_FAUTE="boucle")
        self.assertEqual(list(violees), ["appels.attente"])
        self.assertEqual(violees["appels.attente"][0]["operation"], "DonneCheminDocument")

    def test_a_library_that_is_no_connector_is_told_what_it_lacks_or_has_too_much(self):
        self.assertIn("CreeTexteurPalette",
                      self.violees(os.environ["VOCALYNE_SANS"], "doc")["exports.cinq"][0]["texte"])
        self.assertIn("UneFonctionDeTrop",
                      self.violees(os.environ["VOCALYNE_BAVARD"], "doc")["exports.rien-d-autre"][0]["texte"])
        self.assertIn("exports.charge", self.violees(__file__, "doc"))

    def test_valgrind_s_findings_in_the_connector_are_named(self):
        for faute, fonction in (("fuite", "InitialisePour"), ("acces-fautif", "InitialisePour")):
            with self.subTest(faute):
                constats = self.violees(FAUTIF, "doc", VOCALYNE_FAUTE=faute,
                                        PATH="/usr/bin:/bin")["memoire.valgrind"]
                self.assertIn(fonction, constats[0]["texte"])

    def test_a_breach_names_the_line_of_the_header_to_read(self):
        for faute, regle, declaration in (
                ("longueur-fausse", "zones.longueur", "virtual int DonneLongueur()"),
                ("titre-leve", "appels.exceptions", "virtual UniChaine DonneTitreDocument()"),
                ("agent-sans-nom", "exports.vide", "VOCALYNE_EXPORT InterfaceAgentTexteur* CreeAgent"),
                ("fin-qui-plante", "appels.panne", "class InterfaceAgentTexteur :")):
            with self.subTest(faute):
                constats = self.violees(FAUTIF, "doc", VOCALYNE_FAUTE=faute)[regle]
                lignes = [(TOOLKIT / c["entete"]).read_text().splitlines()[c["ligne"] - 1] for c in constats]
                self.assertTrue(any(declaration in ligne for ligne in lignes), lignes)


class Sains(Verifie):

    def test_the_real_connector_holds_every_rule_and_leaves_the_document_as_it_was(self):
        document = self.dossier / "essai.txt"
        document.write_text(TEXTE, encoding="utf-8")
        self.env["PATH"] = os.environ["PATH"]
        with bus_prive(self.env) as env:
            with bureau(os.environ["VOCALYNE_BUREAU"], [document], env) as [identifiant]:
                bilan = self.verifie(os.environ["VOCALYNE_GREFFON"], identifiant, **env)
        self.assertEqual({r["nom"]: r for r in bilan["regles"] if r["etat"] != "tenue"}, {})
        self.assertEqual(document.read_text(encoding="utf-8"), TEXTE)

    def test_without_a_document_what_needs_one_is_not_tried(self):
        bilan = self.verifie(os.environ["VOCALYNE_GREFFON"])
        etats = {r["nom"]: r["etat"] for r in bilan["regles"]}
        self.assertEqual((etats["exports.nul"], etats["agent.cree"], etats["zones.lues"]),
                         ("tenue", "nonEssayee", "nonEssayee"))

    def test_people_read_the_result_in_their_language(self):
        for langue, voulus in (("fr_FR.UTF-8", ["VIOLÉE  exports.noms", "Le nom est vide.", "Règles tenues"]),
                               ("en_GB.UTF-8", ["BROKEN  exports.noms", "The name is empty.", "Rules held"])):
            dit = lance(HOTE, "verifie", FAUTIF, "doc", statut=1,
                        env=self.env | {"VOCALYNE_FAUTE": "sans-nom", "LANG": langue}).stdout
            for voulu in voulus:
                self.assertIn(voulu, dit)


class Ligne(Verifie):

    def test_a_wrong_command_line_is_refused(self):
        for arguments in ([], [FAUTIF, "doc", "trop"], [FAUTIF, "--delai", "0"],
                          [FAUTIF, "--epreuve", "inconnue"], [FAUTIF, "--automatique"]):
            with self.subTest(arguments):
                lance(HOTE, "verifie", *arguments, env=self.env, statut=2)

    def test_a_connector_that_is_not_there_is_told(self):
        lance(HOTE, "verifie", "/nonexistent/lib.so", env=self.env, statut=4)

    def test_one_trial_alone_runs_in_the_process_that_was_started(self):
        dit = lance(HOTE, "verifie", FAUTIF, "doc", "--epreuve", "zones", env=self.env).stdout
        faits = [json.loads(ligne)["fait"] for ligne in dit.splitlines()]
        self.assertIn("essai", faits)
        self.assertEqual(faits[-1], "fin")


if __name__ == "__main__":
    unittest.main()
