# SPDX-License-Identifier: MPL-2.0
"""The relay between a window and a document: the real plug-in, the text office, JSON line by line."""
import json
import os
import pathlib
import subprocess
import unittest

from commun import PATIENCE, bureau, bus_prive, dossier_neuf, environnement

HOTE = os.environ["VOCALYNE_HOTE"]
BUREAU = pathlib.Path(os.environ["VOCALYNE_BUREAU"])


class Relais(unittest.TestCase):

    def setUp(self):
        dossier = dossier_neuf()
        self.addCleanup(dossier.cleanup)
        self.dossier = pathlib.Path(dossier.name)
        env = environnement(self.dossier, VOCALYNE_GREFFON=os.environ["VOCALYNE_GREFFON"])
        self.env = self.enterContext(bus_prive(env))
        self.fichier = self.dossier / "texte.txt"

    def ecris(self, *lignes):
        self.fichier.write_text("\n".join(lignes) + "\n", encoding="utf-8")

    def relaie(self, identifiant, chemin=""):
        self.relais = subprocess.Popen([HOTE, "relais", identifiant, chemin], env=self.env,
                                       text=True, stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        self.addCleanup(self.finis)

    def finis(self):
        if not self.relais.stdin.closed:
            self.relais.stdin.close()
        self.relais.wait(PATIENCE)
        self.relais.stdout.close()

    def recois(self) -> dict:
        return json.loads(self.relais.stdout.readline())

    def demande(self, op, **suite) -> dict:
        self.envoie(op, **suite)
        return self.recois()

    def envoie(self, op, **suite):
        self.relais.stdin.write(json.dumps({"op": op, **suite}) + "\n")
        self.relais.stdin.flush()

    def ouvre(self, *lignes):
        self.ecris(*lignes)
        [self.id] = self.enterContext(bureau(BUREAU, [self.fichier], self.env))
        self.relaie(self.id)
        ouvert = self.recois()
        self.assertEqual((ouvert["op"], ouvert["id"], ouvert["titre"], ouvert["chemin"]),
                         ("ouvert", self.id, "texte.txt", str(self.fichier)))

    def corrige(self, zone, debut, avant, apres, version=1) -> dict:
        return self.demande("corrige", jeton=7, version=version, zone=zone, debut=debut,
                            avant=avant, apres=apres)

    def autre_corrige(self, zone, debut, avant, apres):
        """A correction by somebody else."""
        requetes = [{"op": "lis"}, {"op": "corrige", "jeton": 1, "version": 1, "zone": zone,
                                    "debut": debut, "avant": avant, "apres": apres}]
        fini = subprocess.run([HOTE, "relais", self.id, ""], env=self.env, text=True, check=True,
                              capture_output=True, timeout=PATIENCE,
                              input="\n".join(map(json.dumps, requetes)) + "\n")
        self.assertIn('"faite"', fini.stdout)

    def test_a_reading_tells_texts_and_languages_and_the_next_what_changed(self):
        self.ouvre("Je suis contant de vous voir.", "Bonjour à tous.")
        lue = self.demande("lis")
        self.assertEqual((lue["op"], lue["version"]), ("lue", 1))
        zones = lue["ecart"]["zones"]
        self.assertEqual([z["t"] for z in zones[:2]],
                         ["Je suis contant de vous voir.", "Bonjour à tous."])
        self.assertEqual(zones[0]["l"], [0, 29, "fr"])
        self.assertNotIn("ecart", self.demande("lis"))

    def test_a_correction_is_made_and_is_no_change_of_the_next_reading(self):
        self.ouvre("un chta noir")
        self.demande("lis")
        corrigee = self.corrige(0, 3, "chta", "chat")
        self.assertEqual((corrigee["jeton"], corrigee["etat"]), (7, "faite"))
        self.assertEqual(corrigee["apres"]["t"], "un chat noir")
        lue = self.demande("lis")
        self.assertEqual(lue["version"], 1)
        self.assertNotIn("ecart", lue)

    def test_what_another_changes_counts_as_a_change_and_refuses_what_is_older(self):
        self.ouvre("un chta noir", "deux")
        self.demande("lis")
        self.autre_corrige(1, 0, "deux", "trois")
        lue = self.demande("lis")
        self.assertEqual(lue["version"], 2)
        self.assertEqual([z["t"] for z in lue["ecart"]["zones"]], ["trois"])
        self.assertEqual(lue["ecart"]["debut"], 1)
        self.assertEqual(self.corrige(0, 3, "chta", "chat", version=1)["etat"], "perimee")
        self.assertEqual(self.corrige(0, 3, "chta", "chat", version=2)["etat"], "faite")

    def test_a_refusal_has_the_offices_reason(self):
        self.ouvre("un chta noir")
        self.demande("lis")
        self.demande("nomme")
        self.autre_corrige(0, 3, "chta", "chien")
        refusee = self.corrige(0, 3, "chta", "chat")
        self.assertEqual(refusee["etat"], "refusee")
        self.assertIn("changed", refusee["raison"])
        self.assertEqual(self.demande("lis")["ecart"]["zones"][0]["t"], "un chien noir")

    def test_places_have_names(self):
        self.ouvre("un", "deux")
        self.demande("lis")
        self.assertEqual(self.demande("nomme")["noms"][:2], ["line 1", "line 2"])

    def test_the_word_at_the_caret_is_looked_up_and_replaced(self):
        self.ouvre("Voici des chats noirs dans la maison.")
        self.demande("lis")
        self.envoie("selectionne", version=1, zone=0, debut=10, fin=15)
        mots = self.demande("mots")["mots"]
        self.assertEqual(mots["places"], [10, 15, 10, 15])
        self.assertTrue(mots["connu"])
        self.assertTrue(self.demande("remplace", mots=mots, nouveau="matous")["fait"])
        self.assertFalse(self.demande("remplace", mots=mots, nouveau="chiens")["fait"])
        lue = self.demande("lis")
        self.assertEqual(lue["ecart"]["zones"][0]["t"], "Voici des matous noirs dans la maison.")

    def test_the_office_that_goes_ends_the_relay_with_the_reason(self):
        self.ecris("un")
        with bureau(BUREAU, [self.fichier], self.env) as [identifiant]:
            self.relaie(identifiant)
            self.recois()
            self.demande("lis")
        perdu = self.demande("lis")
        self.assertEqual((perdu["op"], perdu["code"]), ("perdu", 6))
        self.assertTrue(perdu["raison"])
        self.assertEqual(self.relais.wait(PATIENCE), 6)

    def test_a_document_that_comes_back_under_another_name_is_known_by_its_file(self):
        self.ecris("un")
        [identifiant] = self.enterContext(bureau(BUREAU, [self.fichier], self.env))
        self.relaie("autre~doc1", str(self.fichier))
        self.assertEqual(self.recois()["id"], identifiant)

    def test_a_document_out_of_reach_is_told(self):
        self.relaie("absent~doc1")
        perdu = self.recois()
        self.assertEqual((perdu["op"], perdu["code"]), ("perdu", 3))


if __name__ == "__main__":
    unittest.main()
