#!/usr/bin/python3
# SPDX-License-Identifier: MPL-2.0
"""The suite itself, on a companion that breaks the contract on purpose: each breach is named, and
each rule can be broken."""

import contextlib
import json
import pathlib
import re
import signal
import subprocess
import unittest

import commun
from suite import regles  # noqa: F401
from suite.deroulement import NON_ESSAYEE, TENUE, VIOLEE, deroule
from suite.essai import Options
from suite.hote import Cible
from suite.protocole import DOSSIER, ERREURS, Protocole
from suite.registre import REGLES

ICI = pathlib.Path(__file__).resolve().parent
CONTRAT = ICI.parents[1] / "outils/contrat"

# What the companion breaks, and the rules that must say so.
FAUTES = {
    "cle-bavarde": ["nom.opaque"],
    "sans-suspends": ["interface.methodes", "reponse.types"],
    "entier-en-texte": ["interface.methodes", "reponse.types"],
    "sans-documents": ["interface.documents", "documents.liste"],
    "repond-a-tout": ["interface.mauvais-appels"],
    "titre-autre": ["documents.liste"],
    "devant-fige": ["documents.devant"],
    "enregistre-menteur": ["documents.enregistre"],
    "document-par-defaut": ["document.inconnu"],
    "mort-erreur": ["document.mort"],
    "document-implicite": ["document.aucun", "hotes.nomme"],
    "synchronise-sans-nommer": ["document.nomme"],
    "erreur-denomme": ["document.erreur-sans-effet"],
    "prepare-espace": ["document.preparatifs"],
    "prepare-et-protege": ["document.preparatifs"],
    "zones-accents": ["zones.forme"],
    "base64-coupe": ["zones.forme"],
    "base64-nu": ["zones.forme"],
    "selection-texte": ["zones.forme"],
    "cles-neuves": ["zones.cles"],
    "zones-datees": ["zones.deux-fois"],
    "selection-partout": ["zones.selection"],
    "styles-coupes": ["zones.styles"],
    "styles-en-desordre": ["zones.styles"],
    "styles-dehors": ["zones.styles"],
    "styles-inconnus": ["zones.styles"],
    "positions-en-lettres": ["zones.positions", "corrige.positions"],
    "ecrit-deux-fois": ["zones.autres"],
    "peut-toujours": ["peut.texte", "peut.plage", "peut.zone", "peut.accord"],
    "peut-sans-lire": ["peut.texte"],
    "peut-plage-erreur": ["peut.plage"],
    "peut-zone-erreur": ["peut.zone"],
    "protege-perce": ["peut.interdit"],
    "insere-avant-la-fin": ["corrige.insere"],
    "remplace-et-espace": ["corrige.remplace"],
    "efface-une-de-plus": ["corrige.efface"],
    "automatique-ignore": ["corrige.automatique"],
    "normalise": ["corrige.lettres"],
    "croyance-figee": ["corrige.suite"],
    "desordre": ["corrige.ordre"],
    "tronque": ["corrige.longue"],
    "grand-interne": ["corrige.trop-grand"],
    "grand-passe": ["corrige.trop-grand"],
    "plage-rognee": ["refus.plage", "peut.plage", "selection.refusee"],
    "coupe-paire": ["refus.paire", "selection.refusee"],
    "zone-premiere": ["refus.zone-inconnue"],
    "zone-a-tous": ["refus.zone-non-donnee", "peut.zone", "liens.correcteur"],
    "retour-passe": ["refus.retour-chariot", "remplace.fin-de-ligne"],
    "fin-de-ligne-passe": ["refus.fin-de-ligne"],
    "controle-avale": ["refus.controle"],
    "lettres-avant-plage": ["refus.priorite"],
    "refus-oublie": ["refus.suite"],
    "champ-mal-nomme": ["refus.champ"],
    "genre-libre": ["documents.genre"],
    "langue-en-mots": ["documents.genre"],
    "noms-nomment": ["noms.zones"],
    "noms-pour-tous": ["noms.zones"],
    "noms-vides": ["noms.zones"],
    "rapport-faux-compte": ["rapport.forme"],
    "rapport-muet": ["rapport.forme"],
    "rapport-par-defaut": ["rapport.forme"],
    "refus-tu": ["refus.raison"],
    "refus-perdu": ["refus.raison"],
    "refus-sans-phrase": ["refus.raison"],
    "refus-de-tous": ["refus.raison", "refus.raison-inconnue"],
    "lecture-seule-ecrite": ["refus.lecture-seule"],
    "selection-decalee": ["selection.intervalle"],
    "curseur-refuse": ["selection.vide"],
    "contexte-coupe": ["selection.contexte"],
    "selection-rognee": ["selection.refusee"],
    "marque-d-ordre": ["selection.marque-d-ordre"],
    "ajuste-debut-seul": ["ajuste.decale"],
    "ajuste-rogne": ["ajuste.refuse"],
    "remplace-sans-choisir": ["remplace.reselectionne"],
    "remplace-aveugle": ["remplace.autre-selection"],
    "remplace-texte-change": ["remplace.texte-change"],
    "remplace-dite-seule": ["remplace.non-dite"],
    "correcteur-garde": ["liens.correcteur", "liens.texteur"],
    "texteur-garde": ["liens.texteur"],
    "lien-erreur": ["liens.jamais-d-erreur"],
    "suspends-oublie": ["liens.suspends"],
    "document-commun": ["hotes.nomme", "document.aucun"],
    "sans-suivi": ["hotes.decale", "hotes.perimee", "hotes.raccourcie"],
    "depart-oublie-tous": ["hotes.depart"],
    "dix-appelants": ["hotes.nombreux"],
    "zone-sans-nommer": ["documents.nomme-par-zone"],
    "une-synchronisation": ["documents.zones-gardees"],
    "lien-total": ["documents.lies-a-part"],
    "cles-par-document": ["documents.a-part"],
    "erreur-etrangere": ["reponse.noms-d-erreur", "document.inconnu"],
    "erreur-muette": ["reponse.messages"],
    "muet": ["reponse.rendue"],
    "meurt": ["liens.correcteur", "reponse.rendue"],
}
TOUTES = Options("moi~k1", "moi~k2", "moi~k3", enregistre=True)


def options(fautes) -> Options:
    return (TOUTES if "cle-bavarde" not in fautes
            else Options("moi~essai-un", "moi~k2", "moi~k3", enregistre=True))


class Essai(unittest.TestCase):
    def setUp(self):
        temporaire = commun.dossier_neuf()
        self.addCleanup(temporaire.cleanup)
        pile = contextlib.ExitStack()
        self.addCleanup(pile.close)
        self.env = pile.enter_context(commun.bus_prive(commun.environnement(
            pathlib.Path(temporaire.name), PYTHONPATH=str(ICI))))

    def compagnon(self, *fautes: str):
        """The companion with these breaches, once it can be called."""
        @contextlib.contextmanager
        def lance():
            with commun.processus("/usr/bin/python3", "-B", "-m", "fautif", "moi", *fautes,
                                  env=self.env) as tenu:
                self.assertEqual(tenu.suivante(), "ready")
                yield tenu
        return lance()

    def deroule(self, choisies, fautes=()):
        with self.compagnon(*fautes):
            cible = Cible("moi", Protocole(), self.env["DBUS_SESSION_BUS_ADDRESS"], patience=2000)
            return deroule(cible, options(fautes), [REGLES[r] for r in choisies],
                           lambda _: None, lambda _: None)

    def commande(self, *arguments, statut=0, **autres):
        return commun.lance(CONTRAT, *arguments, env=self.env | autres, statut=statut)


class Regles(Essai):
    def test_a_companion_that_keeps_the_contract_holds_every_rule(self):
        bilan = self.deroule(REGLES)
        self.assertEqual({r.regle.identifiant: list(map(str, r.constats))
                          for r in bilan.resultats if r.statut != TENUE}, {})
        self.assertEqual(bilan.ecarts, [])

    def test_each_breach_is_named_by_its_rules(self):
        for faute, violees in FAUTES.items():
            with self.subTest(faute=faute):
                # Those that judge all replies need the replies of others.
                avec = ["document.inconnu", "liens.suspends"] if violees[0].startswith("reponse") else []
                choisies = [r for r in REGLES if r in violees or r in avec]
                bilan = self.deroule(choisies, [faute])
                vues = {r.regle.identifiant for r in bilan.de_statut(VIOLEE)}
                self.assertLessEqual(set(violees), vues)

    def test_each_rule_is_broken_by_some_breach(self):
        self.assertEqual(set(REGLES), {r for violees in FAUTES.values() for r in violees})

    def test_rules_and_errors_are_those_that_the_readme_tells(self):
        lisezmoi = (DOSSIER / "README.md").read_text(encoding="utf-8")
        titres = set(re.findall(r"^#+ (.*)$", lisezmoi, re.M))
        self.assertEqual({r.section for r in REGLES.values()} - titres, set())
        section = lisezmoi.split("## Errors\n")[1].split("\n## ")[0]
        self.assertEqual(tuple(re.findall(r"^\| `(\w+)` \|", section, re.M)), ERREURS)
        entete = (DOSSIER / "Contrat.h").read_text(encoding="utf-8")
        self.assertEqual(tuple(re.findall(r"\{Erreur::\w+, \"(\w+)\"\}", entete)), ERREURS)


class Document(Essai):
    def test_is_as_it_was_after_a_run_full_of_breaches(self):
        bilan = self.deroule(REGLES, ["plage-rognee", "sans-suivi", "retour-passe", "zone-a-tous"])
        self.assertGreater(len(bilan.de_statut(VIOLEE)), 3)
        self.assertEqual(bilan.ecarts, [])

    def test_that_cannot_be_put_back_is_told_with_a_status_of_its_own(self):
        with self.compagnon("prepare-et-protege"):
            dit = self.commande("moi", "k1", "--regle", "document.preparatifs", statut=4)
        self.assertIn("IS NOT AS BEFORE: moi~k1: the text of the zone z1", dit.stdout)

    def test_is_put_back_when_the_run_is_interrupted(self):
        with self.compagnon():
            env = self.env
            tenu = subprocess.Popen([CONTRAT, "moi", "k1", "--autre", "k2"], env=env, text=True,
                                    stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
            for ligne in tenu.stdout:
                if "corrige.insere" in ligne:
                    tenu.send_signal(signal.SIGTERM)
                    break
            tenu.stdout.read()
            self.assertEqual(tenu.wait(commun.PATIENCE), 130)
            tenu.stdout.close()
            lu = self.commande("moi", "k1", "--regle", "zones.forme", "--sortie", "json")
            self.assertEqual(json.loads(lu.stdout)["ecarts"], [])

    def test_too_poor_for_a_rule_leaves_it_not_tried_with_the_reason(self):
        with self.compagnon():
            dit = self.commande("moi", "k2")
        self.assertRegex(dit.stdout, r"not tried  documents.devant: .*\n +a second document is needed")
        self.assertRegex(dit.stdout, r"not tried  zones.styles: ")
        self.assertRegex(dit.stdout, r"[0-9]+ rules held, 0 broken, [1-9][0-9]* not tried")


class Commande(Essai):
    def test_names_a_breach_by_its_rule_and_where_to_read_it(self):
        with self.compagnon("mort-erreur"):
            dit = self.commande("moi", "k1", statut=1)
        self.assertRegex(dit.stdout, r"BROKEN     document.mort: .*\n"
                         r" +DocEstMort\(''\): True expected, 'DocumentInconnu' received\n")
        self.assertRegex(dit.stdout, r"→ protocol/README.md:[0-9]+ \(What every companion does alike\)")
        self.assertRegex(dit.stderr, "moi~k1 is edited on the way, then put back as before")

    def test_speaks_french(self):
        with self.compagnon("mort-erreur"):
            dit = self.commande("moi", "k1", "--regle", "document.mort", statut=1, LANG="fr_FR.UTF-8")
        self.assertRegex(dit.stdout, r"VIOLÉE +document.mort: DocEstMort répond faux")
        self.assertIn("Le document est modifié", self.commande("--help", LANG="fr").stdout)
        self.assertIn("is edited", self.commande("--help").stdout)

    def test_writes_one_json_object(self):
        with self.compagnon("mort-erreur"):
            dit = json.loads(self.commande("moi", "k1", "--autre", "k2", "--sortie", "json",
                                           statut=1).stdout)
        self.assertEqual(dit["document"], "moi~k1")
        self.assertEqual([r["id"] for r in dit["regles"]], list(REGLES))
        statuts = {r["id"]: r["statut"] for r in dit["regles"]}
        self.assertEqual(statuts["document.mort"], VIOLEE)
        self.assertEqual(statuts["refus.lecture-seule"], NON_ESSAYEE)
        self.assertEqual([i for i, s in statuts.items() if s == VIOLEE], ["document.mort"])

    def test_lists_its_rules_without_a_companion(self):
        dit = self.commande("--liste").stdout
        for identifiant in REGLES:
            self.assertRegex(dit, rf"(?m)^{re.escape(identifiant)}$")

    def test_says_what_is_missing(self):
        for arguments, message in ((["personne"], "no companion \"personne\""),
                                   (["personne", "k1"], "nothing could be tried"),
                                   (["7 ou", "k1"], "cannot name an instance")):
            self.assertIn(message, self.commande(*arguments, statut=3).stderr)
        with self.compagnon():
            self.assertIn("DocumentInconnu", self.commande("moi", "absent", statut=3).stderr)
            self.assertIn("moi~k1  essai-un.txt", self.commande("moi", statut=2).stderr)
        self.assertIn("unknown rule: x", self.commande("moi", "k1", "--regle", "x", statut=2).stderr)
        self.assertIn("SERVICE is needed", self.commande(statut=2).stderr)
        self.assertIn("--quoi", self.commande("--quoi", statut=2).stderr)
        sans_gi = commun.lance("/usr/bin/python3", "-B", "-S", "-c",
                               "import sys; sys.modules['gi'] = None; sys.argv = ['x', 'moi']\n"
                               "from suite.principal import main; sys.exit(main())",
                               env=self.env, statut=3)
        self.assertIn("apt-get install python3-gi", sans_gi.stderr)

    def test_ends_when_the_companion_does(self):
        with self.compagnon("meurt"):
            dit = self.commande("moi", "k1", statut=4)
        self.assertRegex(dit.stdout, r"BROKEN     liens.correcteur")
        self.assertRegex(dit.stdout, r"not tried  hotes.nomme: .*\n +the companion has left the bus")
        self.assertRegex(dit.stdout, r"BROKEN     reponse.rendue")


if __name__ == "__main__":
    unittest.main()
