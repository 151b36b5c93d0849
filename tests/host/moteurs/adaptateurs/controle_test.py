# SPDX-License-Identifier: MPL-2.0
"""The check of engines finds each fault: it is run on an engine with one fault at a time."""
import json
import os
import pathlib
import subprocess
import sys
import textwrap
import unittest

from commun import PATIENCE, dossier_neuf

CONTROLE = os.environ["VOCALYNE_CONTROLE_MOTEUR"]

BON = textwrap.dedent("""
    import json, sys
    def dis(o): print(json.dumps(o), flush=True)
    def remarque(t):
        return {"debut": 0, "fin": 1, "genre": "accord", "regle": "r", "explication": "e",
                "suggestions": ["s"], "surete": 0.5}
    def reponds(d):
        t = d["texte"]
        bon = t and ord(t[0]) < 65536
        return {"id": d["id"], "remarques": [remarque(t)] if bon else []}
    ACCUEIL = {"contrat": 1, "moteur": "essai", "version": "1"}
    #ICI
    dis(ACCUEIL)
    for ligne in sys.stdin:
        dis(reponds(json.loads(ligne)))
    #FIN
""")

# What the fault is, how it is made, and a word of what must be said of it.
FAUTES = {
    "no first line": ("dis = lambda o: None", "nothing within"),
    "another name": ("ACCUEIL['moteur'] = 'autre'", "another engine"),
    "another contract": ("ACCUEIL['contrat'] = 2", "contrat"),
    "a wrong number": ("bon = reponds\nreponds = lambda d: {**bon(d), 'id': d['id'] + 1}", "id"),
    "no remarks": ("reponds = lambda d: {'id': d['id']}", "neither"),
    "not JSON": ("dis(ACCUEIL)\nprint('bonjour', flush=True)\nACCUEIL = None", "not JSON"),
    "its end": ("dis(ACCUEIL)\nsys.exit(0)", "it ended"),
    "one line too many": ("#FIN", None),
    "it stays": ("#RESTE", "still runs"),
}
MEMBRES = {
    "debut": (-1, "not in the text"), "fin": (10 ** 6, "not in the text"), "genre": ("beau", "genre"),
    "regle": ("", "rule"), "explication": (None, "explication"), "suggestions": ("s", "suggestions"),
    "surete": (7, "surete"),
}


class Controle(unittest.TestCase):

    def setUp(self):
        dossier = dossier_neuf()
        self.addCleanup(dossier.cleanup)
        self.dossier = pathlib.Path(dossier.name) / "essai"
        self.dossier.mkdir()

    def controle(self, programme: str) -> subprocess.CompletedProcess:
        (self.dossier / "essai.py").write_text(programme)
        (self.dossier / "moteur.json").write_text(json.dumps({
            "contrat": 1, "nom": "essai", "langues": ["fr"], "demarrageMs": 3000, "examenMs": 3000,
            "commande": [sys.executable, "-B", "{dossier}/essai.py"]}))
        return subprocess.run([sys.executable, "-B", CONTROLE, str(self.dossier)], text=True,
                              capture_output=True, timeout=PATIENCE, check=False)

    def exige_faute(self, programme: str, mot: str):
        fini = self.controle(programme)
        self.assertEqual(fini.returncode, 1, fini.stdout + fini.stderr)
        self.assertIn(mot, fini.stdout)

    def test_a_good_engine_passes(self):
        fini = self.controle(BON)
        self.assertEqual(fini.returncode, 0, fini.stdout + fini.stderr)

    def test_each_fault_of_the_dialogue_is_found(self):
        for nom, (ligne, mot) in FAUTES.items():
            with self.subTest(nom):
                programme = BON.replace("#ICI", ligne)
                if ligne == "#FIN":
                    programme, mot = BON.replace("#FIN", "dis({})"), "nobody asked"
                elif ligne == "#RESTE":
                    programme = BON.replace("#FIN", "import signal\nsignal.pause()")
                self.exige_faute(programme, mot)

    def test_each_fault_of_a_remark_is_found(self):
        for membre, (valeur, mot) in MEMBRES.items():
            with self.subTest(membre):
                ligne = (f"vraie = remarque\n"
                         f"remarque = lambda t: {{**vraie(t), {membre!r}: {valeur!r}}}")
                self.exige_faute(BON.replace("#ICI", ligne), mot)

    def test_half_a_character_is_found(self):
        self.exige_faute(BON.replace("bon = t and ord(t[0]) < 65536", "bon = bool(t)"), "parts")


if __name__ == "__main__":
    unittest.main()
