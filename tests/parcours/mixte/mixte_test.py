# SPDX-License-Identifier: MPL-2.0
"""The host's own architecture against an office of the system's: 32-bit host and plug-in inside the
i386 root, a 64-bit office outside, one bus between them."""
import json
import os
import pathlib
import unittest

from commun import bureau, bus_prive, dialogue, dossier_neuf, environnement, lance

SOURCES = pathlib.Path(os.environ["VOCALYNE_SOURCES"])
CONSTRUCTION_64 = pathlib.Path(os.environ["VOCALYNE_CONSTRUCTION"])
CONSTRUCTION_32 = pathlib.Path(os.environ["VOCALYNE_CONSTRUCTION_I386"])
HOTE_64 = CONSTRUCTION_64 / "bin/vocalyne-hote"
HOTE_32 = CONSTRUCTION_32 / "bin/vocalyne-hote"
BUREAU_64 = CONSTRUCTION_64 / "bin/vocalyne-bureau-texte"

TEXTE = "Un bel acceuil 😀 pour toi.\nL’e\u0301le\u0301phant est notament gris.\n\nFin.\n"
CORRIGE = TEXTE.replace("acceuil", "accueil").replace("notament", "notamment")


class Mixte(unittest.TestCase):

    def setUp(self):
        dossier = dossier_neuf()
        self.addCleanup(dossier.cleanup)
        self.dossier = pathlib.Path(dossier.name)
        self.document = self.dossier / "texte.txt"
        self.document.write_text(TEXTE, encoding="utf-8")
        self.env = environnement(self.dossier)

    def dans_la_racine(self, *commande, env: dict[str, str], entree: str = ""):
        # Whoever runs the tests owns the root, not the home that the programs are given.
        return lance(SOURCES / "outils/racine-i386", "--", *commande, entree=entree, dossier=SOURCES,
                     env=os.environ | {"DBUS_SESSION_BUS_ADDRESS": env["DBUS_SESSION_BUS_ADDRESS"]})

    def test_the_two_sides_are_of_two_architectures(self):
        def classe_et_machine(elf: pathlib.Path) -> tuple[int, int]:
            debut = elf.read_bytes()[:20]
            return debut[4], debut[18]
        self.assertEqual(classe_et_machine(HOTE_32), (1, 3))
        [greffon] = CONSTRUCTION_32.rglob("libTexteurOOo.so")
        self.assertEqual(classe_et_machine(greffon), (1, 3))
        self.assertEqual(classe_et_machine(BUREAU_64)[0], 2)

    def test_a_32_bit_host_corrects_a_document_of_a_64_bit_office(self):
        with bus_prive(self.env) as env, bureau(BUREAU_64, [self.document], env) as [identifiant]:
            self.dans_la_racine(HOTE_32, "corrige", identifiant, "--langue", "fr", "--tout", env=env)
        self.assertEqual(self.document.read_text(encoding="utf-8"), CORRIGE)

    def test_hosts_of_both_architectures_read_the_same_in_the_same_document(self):
        with bus_prive(self.env) as env, bureau(BUREAU_64, [self.document], env) as [identifiant]:
            classe = "VCLSalFrame:OpenOffice.org 4.0"
            requetes = [
                {"op": "CreeAgentTexteur", "idDocument": identifiant, "infos": {
                    "Id": identifiant, "ClasseInitialisation": classe, "Genre": 1, "Classe": classe}},
                {"op": "DonneZones"}, {"op": "DonneTitreDocument"}, {"op": "DonneContexte"},
                {"op": "DocEstMort"},
                {"op": "PeutCorriger", "zone": 0, "debut": 7, "fin": 14, "texte": "acceuil"},
                {"op": "PeutCorriger", "zone": 0, "debut": 7, "fin": 14, "texte": "autre"},
                {"op": "Detruis"}]
            lues_64 = dialogue(HOTE_64, requetes, env)
            entree = "".join(json.dumps(r) + "\n" for r in requetes)
            lues_32 = [json.loads(ligne) for ligne in self.dans_la_racine(
                HOTE_32, "pilote", env=env, entree=entree).stdout.splitlines()]
        self.assertEqual(lues_32, lues_64)
        textes = [zone["texte"] for zone in lues_32[1]["resultat"]["zones"]]
        self.assertEqual(textes[:2], TEXTE.split("\n")[:2])
        self.assertIs(lues_32[5]["resultat"], True)
        self.assertIs(lues_32[6]["resultat"], False)


if __name__ == "__main__":
    unittest.main()
