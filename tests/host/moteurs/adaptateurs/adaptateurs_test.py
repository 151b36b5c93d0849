# SPDX-License-Identifier: MPL-2.0
"""The engines that we install, held to the contract, and asked about plain mistakes."""
import http.server
import json
import os
import pathlib
import subprocess
import threading
import unittest
import urllib.parse

from commun import PATIENCE

MOTEURS = pathlib.Path(os.environ["VOCALYNE_MOTEURS_LIVRES"])
CONTROLE = os.environ["VOCALYNE_CONTROLE_MOTEUR"]
HARPER = os.environ.get("VOCALYNE_HARPER", "")


def controle(nom: str, *options: str) -> subprocess.CompletedProcess:
    return subprocess.run(["/usr/bin/python3", "-B", CONTROLE, str(MOTEURS / nom), *options],
                          capture_output=True, text=True, timeout=PATIENCE, check=False)


def examine(nom: str, texte: str, langue: str, **lieux: str) -> dict:
    """{what is wrong: first suggestion} of a text."""
    description = json.loads((MOTEURS / nom / "moteur.json").read_text(encoding="utf-8"))
    lieux["dossier"] = str(MOTEURS / nom)
    commande = []
    for mot in description["commande"]:
        for lieu, valeur in lieux.items():
            mot = mot.replace("{" + lieu + "}", valeur)
        commande.append(mot)
    octets = texte.encode("utf-16-le")
    demande = {"id": 1, "texte": texte,
               "langues": [{"debut": 0, "fin": len(octets) // 2, "langue": langue}]}
    fini = subprocess.run(commande, input=json.dumps(demande) + "\n", capture_output=True, text=True,
                          timeout=PATIENCE, check=True)
    reponse = json.loads(fini.stdout.splitlines()[1])
    if "erreur" in reponse:
        raise ValueError(reponse["erreur"])
    return {octets[2 * r["debut"]:2 * r["fin"]].decode("utf-16-le"): (r["suggestions"] or [""])[0]
            for r in reponse["remarques"]}


class Grammalecte(unittest.TestCase):

    def test_grammalecte_keeps_to_the_contract(self):
        fini = controle("grammalecte")
        self.assertEqual(fini.returncode, 0, fini.stdout + fini.stderr)

    def test_grammalecte_finds_what_does_not_agree_behind_characters_of_two_units_too(self):
        self.assertEqual(examine("grammalecte", "😀 Bonjour. L’amis est venu dans le jardins.", "fr"),
                         {"amis": "ami", "jardins": "jardin"})

    def test_grammalecte_leaves_the_writers_apostrophes_and_spaces_alone(self):
        self.assertEqual(examine("grammalecte", "L'ami dit : d'accord, le 12345 ou le 3 5.", "fr"), {})


class Harper(unittest.TestCase):

    def test_harper_keeps_to_the_contract(self):
        fini = controle("harper", "--donnees", HARPER)
        self.assertEqual(fini.returncode, 0, fini.stdout + fini.stderr)

    def test_harper_finds_mistakes_of_grammar_and_leaves_spelling_alone(self):
        self.assertEqual(examine("harper", "😀 He go to a big huose. I could of known.", "en",
                                 donnees=HARPER), {"go": "goes", "could of": "could have"})

    def test_harper_says_that_it_is_missing_where_npm_has_not_installed_it(self):
        fini = controle("harper", "--donnees", "/nulle/part")
        self.assertEqual(fini.returncode, 1)
        self.assertIn("cannot work", fini.stdout)


class ServeurFaux(http.server.BaseHTTPRequestHandler):
    """Answers as the server's test says, and writes down what it was asked."""
    reponse = b""
    demandes: list[dict] = []

    def do_POST(self):
        corps = self.rfile.read(int(self.headers["Content-Length"])).decode()
        type(self).demandes.append({"chemin": self.path, **dict(urllib.parse.parse_qsl(corps))})
        if self.reponse.startswith(b"http"):
            self.send_response(307)
            self.send_header("Location", self.reponse.decode())
            self.end_headers()
            return
        self.send_response(200)
        self.send_header("Content-Length", str(len(self.reponse)))
        self.end_headers()
        self.wfile.write(self.reponse)

    def log_message(self, *_):
        pass


class LanguageTool(unittest.TestCase):

    def setUp(self):
        ServeurFaux.demandes = []
        self.serveur = http.server.HTTPServer(("127.0.0.1", 0), ServeurFaux)
        threading.Thread(target=self.serveur.serve_forever, args=(0.05,), daemon=True).start()
        self.addCleanup(self.serveur.server_close)
        self.addCleanup(self.serveur.shutdown)
        self.adresse = f"http://127.0.0.1:{self.serveur.server_port}/"

    def test_languagetool_asks_the_persons_server_and_gives_its_remarks(self):
        ServeurFaux.reponse = json.dumps({"matches": [
            {"offset": 2, "length": 2, "message": "Accord.", "replacements": [{"value": "goes"}],
             "rule": {"id": "HE_VERB", "issueType": "grammar"}}]}).encode()
        self.assertEqual(examine("languagetool", "I go there.", "en-GB", adresse=self.adresse),
                         {"go": "goes"})
        self.assertEqual(ServeurFaux.demandes[0]["chemin"], "/v2/check")
        self.assertEqual(ServeurFaux.demandes[0]["language"], "en-GB")
        self.assertEqual(ServeurFaux.demandes[0]["text"], "I go there.")

    def test_languagetool_keeps_to_the_contract_whatever_the_server_answers(self):
        for reponse in (b"{\"matches\": []}", b"", b"<html>", b"[]", b"{\"matches\": [{}]}"):
            with self.subTest(reponse):
                ServeurFaux.reponse = reponse
                fini = controle("languagetool", "--adresse", self.adresse)
                self.assertEqual(fini.returncode, 0, fini.stdout + fini.stderr)

    def test_languagetool_does_not_follow_the_server_elsewhere(self):
        ServeurFaux.reponse = (self.adresse + "ailleurs").encode()
        with self.assertRaises(ValueError):
            examine("languagetool", "I go there.", "en", adresse=self.adresse)
        self.assertEqual([d["chemin"] for d in ServeurFaux.demandes], ["/v2/check"])

    def test_languagetool_tells_of_a_server_that_is_not_there(self):
        self.serveur.shutdown()
        self.serveur.server_close()
        with self.assertRaisesRegex(ValueError, "127.0.0.1"):
            examine("languagetool", "I go there.", "en", adresse=self.adresse)


if __name__ == "__main__":
    unittest.main()
