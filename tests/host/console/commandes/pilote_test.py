# SPDX-License-Identifier: MPL-2.0
"""The dialogue by JSON Lines, against the scripted plug-in."""
import json
import os
import random
import resource
import subprocess
import unittest

from commun import PATIENCE
from hote import FAUX, GREFFONS, HOTE, AvecGreffonFaux

TOUTES = """DonneNomsTexteurs CreeTexteur CreeTexteurPalette DonneIdentificateurDocumentCourant CreeAgentTexteur
    Detruis Capacite1 Capacite2 Capacite3 Capacite4 Capacite5 Capacite6 Capacite7 DonneAgentTexteur Requete10
    Requete11 Requete12 TraiteTexteLu Crochet03 DocEstMort DonneCheminDocument DonneImageApplication
    DonneChaineAgent7 SynchronisePositions DonneZones DonneNomApplication DonneFinDeParagraphe
    DonneTitreDocument Requete13 Requete14 InitialisePour InitialiseTexteur Requete17 EstLie Crochet19
    PermetsRetourDeCharriot Requete21 ActivePour Crochet23 Crochet24 RompsLienCorrecteur RompsLienTexteur
    Suspends Crochet28 Crochet29 Requete30 AjusteSelectionPourOutils DonneContexte Requete33
    RemplaceEtReselectionne AccepteIntervalles CorrigeDansTexteur DonneDebutSelection DonneFinSelection
    DonneChaineAuxiliaire DonneTexte DonneLongueur PeutCorriger AjusteIntervalle SelectionneIntervalle
    EstMarquee Inconnue""".split()

CREE = {"op": "CreeAgentTexteur", "infos": {"Classe": "Fenetre"}, "idDocument": "i~d"}


class Pilote(AvecGreffonFaux):

    def setUp(self):
        super().setUp()
        self.joue(["Un.", {"texte": "Deux.", "styles": [[0, 4, 3]]}])

    def lignes(self, entree: bytes, *options, statut: int = 0) -> list[dict]:
        sortie = self.hote("pilote", *options, entree=entree, statut=statut).stdout
        self.assertTrue(sortie.endswith(b"\n") or not sortie)
        return [json.loads(ligne) for ligne in sortie.split(b"\n")[:-1]]

    def demande(self, *requetes: dict) -> list[dict]:
        entree = "".join(json.dumps(r) + "\n" for r in requetes).encode()
        reponses = self.lignes(entree)
        self.assertEqual(len(reponses), len(requetes))
        return reponses

    def resultat(self, *requetes: dict):
        """The result of the last request, each of them having been served."""
        reponses = self.demande(*requetes)
        for reponse in reponses:
            self.assertNotIn("erreur", reponse)
        return reponses[-1]["resultat"]

    def erreur(self, *requetes: dict) -> str:
        """The error of the last request, and of no other."""
        reponses = self.demande(*requetes)
        for reponse in reponses[:-1]:
            self.assertNotIn("erreur", reponse)
        self.assertEqual(list(reponses[-1]), ["op", "erreur"])
        return reponses[-1]["erreur"]


class Exports(Pilote):

    def test_an_answer_is_written_member_by_member_in_order(self):
        sortie = self.hote("pilote", entree=b'{"op":"DonneNomsTexteurs","texte":"before"}\n').stdout
        self.assertEqual(sortie, b'{"op":"DonneNomsTexteurs","resultat":"Fenetre","alertes":[]}\n')

    def test_every_export_answers_by_its_name(self):
        infos = {"Id": "i~d", "ClasseInitialisation": "c", "Genre": 1, "Classe": "Fenetre"}
        reponses = self.demande(
            {"op": "CreeTexteur"}, {"op": "CreeTexteurPalette"},
            {"op": "DonneIdentificateurDocumentCourant", "infos": infos, "idDocument": "avant"},
            {"op": "DonneIdentificateurDocumentCourant", "infos": infos | {"Classe": "x"}, "idDocument": "avant"},
            {"op": "CreeAgentTexteur", "infos": infos, "idDocument": "i~d"},
            {"op": "Detruis"})
        self.assertEqual([r["resultat"] for r in reponses],
                         [None, None, {"servi": True, "idDocument": "i~d"},
                          {"servi": False, "idDocument": "avant"}, True, None])

    def test_a_missing_member_of_the_record_is_empty(self):
        self.assertEqual(self.resultat({"op": "DonneIdentificateurDocumentCourant",
                                        "infos": {"Classe": "Fenetre"}}),
                         {"servi": True, "idDocument": ""})

    def test_a_new_agent_takes_the_place_of_the_one_held_whose_zones_go_first(self):
        self.demande(CREE, {"op": "DonneZones"}, CREE, {"op": "EstLie"})
        appels = [a for a in self.appels() if a in ("CreeAgentTexteur", "~Zone", "~Agent", "EstLie")]
        self.assertEqual(appels, ["CreeAgentTexteur", "CreeAgentTexteur", "~Zone", "~Zone", "~Agent",
                                  "EstLie", "~Agent"])

    def test_an_agent_that_is_not_made_leaves_the_one_held_with_its_zones(self):
        self.joue(["Un."], [{"op": "CreeAgentTexteur", "appel": 2, "reponse": False},
                            {"op": "CreeAgentTexteur", "appel": 3, "leve": "non"}])
        reponses = self.demande(CREE, {"op": "DonneZones"}, CREE, CREE,
                                {"op": "DonneLongueur", "zone": 0})
        self.assertIsNone(reponses[2]["resultat"])
        self.assertEqual(reponses[3], {"op": "CreeAgentTexteur", "erreur": "non"})
        self.assertEqual(reponses[4]["resultat"], 3)

    def test_the_agent_ends_with_the_input_after_its_zones(self):
        self.demande(CREE, {"op": "DonneZones"})
        self.assertEqual(self.appels()[-3:], ["~Zone", "~Zone", "~Agent"])

    def test_destroying_ends_zones_then_agent_and_a_second_time_there_is_none(self):
        self.assertIn("Detruis", self.erreur(CREE, {"op": "DonneZones"}, {"op": "Detruis"},
                                             {"op": "Detruis"}))
        self.assertEqual(self.appels()[-3:], ["~Zone", "~Zone", "~Agent"])


class Agent(Pilote):

    def test_every_operation_of_the_agent_answers_by_its_name(self):
        attendus = {
            "Capacite1": True, "Capacite2": False, "Capacite3": True, "Capacite4": True,
            "Capacite5": False, "Capacite6": False, "Capacite7": True, "DonneAgentTexteur": None,
            "Requete10": 10, "Requete11": 11, "Requete12": 12, "Crochet03": None,
            "DocEstMort": False, "DonneCheminDocument": "/un/chemin.txt",
            "DonneChaineAgent7": "sept", "DonneNomApplication": "Application fausse",
            "DonneFinDeParagraphe": "\n", "DonneTitreDocument": "Essai", "Requete13": 13,
            "Requete14": 14, "Requete17": True, "EstLie": True, "Crochet19": None,
            "PermetsRetourDeCharriot": True, "Requete21": False, "Crochet23": None,
            "Crochet24": None, "RompsLienCorrecteur": None, "RompsLienTexteur": None,
            "Suspends": None, "Crochet28": None, "Crochet29": None, "Requete30": False,
            "DonneContexte": {"texte": "le contexte", "debut": 3, "fin": 5}, "Requete33": True}
        reponses = self.demande(CREE, *({"op": op} for op in attendus))
        self.assertEqual({r["op"]: r.get("resultat", r) for r in reponses[1:]}, attendus)
        # Each reached the slot of its own name, and no other.
        tues = {"DonneAgentTexteur"}  # the interface's own default: the plug-in does not see it
        self.assertEqual([a for a in self.appels()[1:-1]], [op for op in attendus if op not in tues])

    def test_operations_pass_their_arguments_on(self):
        reponses = self.demande(
            CREE, {"op": "InitialisePour", "mode": 0}, {"op": "ActivePour", "mode": 2},
            {"op": "InitialiseTexteur", "texte": "abc", "mode": 3},
            {"op": "InitialiseTexteur", "texte": "abc", "mode": 2},
            {"op": "AjusteSelectionPourOutils", "debut": -7, "fin": 4},
            {"op": "RemplaceEtReselectionne", "texte": "\ud83d\ude00e"})
        self.assertEqual([r["resultat"] for r in reponses[1:]], [None, None, True, False, -696, 3])
        self.assertIn("InitialisePour(0)", self.appels())
        self.assertIn("ActivePour(2)", self.appels())

    def test_a_read_text_goes_through_the_agent_with_its_styles(self):
        self.assertEqual(
            self.resultat(CREE, {"op": "TraiteTexteLu", "texte": "abc",
                                 "styles": [{"debut": 1, "longueur": 2, "style": 5}]}),
            {"texte": "#bc", "longueur": 3, "styles": [{"debut": 1, "longueur": 2, "style": 5}]})

    def test_an_image_comes_as_png_and_no_image_as_null(self):
        image = self.resultat(CREE, {"op": "DonneImageApplication"})
        self.assertEqual((image["largeur"], image["hauteur"], image["png"][:8]), (3, 2, "iVBORw0K"))
        self.joue([], [{"op": "DonneImageApplication", "ignore": True}])
        self.assertIsNone(self.resultat(CREE, {"op": "DonneImageApplication"}))

    def test_bounds_that_the_connector_leaves_are_zero(self):
        self.joue([], [{"op": "DonneContexte", "ignore": True}])
        self.assertEqual(self.resultat(CREE, {"op": "DonneContexte"}),
                         {"texte": "le contexte", "debut": 0, "fin": 0})

    def test_an_operation_without_an_agent_is_refused(self):
        for op in ("EstLie", "DonneZones", "DonneLongueur", "Detruis"):
            with self.subTest(op):
                self.assertIn("CreeAgentTexteur", self.erreur({"op": op, "zone": 0}))


class Zones(Pilote):

    ZONES = [{"texte": "Un.", "longueur": 3, "debutSelection": 0, "finSelection": 0, "styles": [],
              "marquee": False},
             {"texte": "Deux.", "longueur": 5, "debutSelection": 0, "finSelection": 0,
              "styles": [{"debut": 0, "longueur": 4, "style": 3}], "marquee": False}]

    def test_zones_come_whole_and_in_order(self):
        for op in ("DonneZones", "SynchronisePositions"):
            with self.subTest(op):
                self.assertEqual(self.resultat(CREE, {"op": op}), {"ok": True, "zones": self.ZONES})

    def test_new_zones_stand_after_those_before_unless_the_collection_is_emptied(self):
        reponses = self.demande(CREE, {"op": "DonneZones"}, {"op": "DonneZones"},
                                {"op": "SynchronisePositions", "vide": True})
        self.assertEqual([len(r["resultat"]["zones"]) for r in reponses[1:]], [2, 4, 2])

    def test_the_answer_of_the_reading_is_told(self):
        self.joue(["a"], [{"op": "SynchronisePositions", "reponse": False}])
        self.assertIs(self.resultat(CREE, {"op": "DonneZones"})["ok"], False)

    def test_zones_appended_before_an_exception_stay(self):
        self.joue(["abc"], [{"op": "SynchronisePositions", "leveApres": True}])
        reponses = self.demande(CREE, {"op": "DonneZones"}, {"op": "DonneLongueur", "zone": 0})
        self.assertEqual(reponses[1], {"op": "DonneZones", "erreur": "leveApres"})
        self.assertEqual(reponses[2]["resultat"], 3)

    def test_every_operation_of_a_zone_answers_by_its_name(self):
        z = {"zone": 1}
        cas = [
            ({"op": "AccepteIntervalles", "debut": 1, "fin": 2, "debut2": 1, "fin2": 2}, True),
            ({"op": "AccepteIntervalles", "debut": 1, "fin": 2, "debut2": 1, "fin2": 3}, False),
            ({"op": "AccepteIntervalles", "debut": 1, "fin": 2}, True),
            ({"op": "PeutCorriger", "debut": 0, "fin": 4, "texte": "Deux"}, True),
            ({"op": "PeutCorriger", "debut": 0, "fin": 4, "texte": "Trois"}, False),
            ({"op": "CorrigeDansTexteur", "debut": 0, "fin": 4, "texte": "Tr", "drapeau": True}, True),
            ({"op": "DonneTexte"}, {"texte": "Tr.", "longueur": 3,
                                    "styles": [{"debut": 0, "longueur": 3, "style": 3}]}),
            ({"op": "CorrigeDansTexteur", "debut": 0, "fin": 0, "texte": "", "drapeau": False}, False),
            ({"op": "DonneLongueur"}, 3), ({"op": "DonneDebutSelection"}, 0),
            ({"op": "DonneFinSelection"}, 0), ({"op": "DonneChaineAuxiliaire"}, ""),
            ({"op": "AjusteIntervalle", "debut": 5, "fin": 9, "drapeau": True}, {"debut": 4, "fin": 10}),
            ({"op": "AjusteIntervalle", "debut": 5, "fin": 9, "drapeau": False}, {"debut": 4, "fin": 9}),
            ({"op": "SelectionneIntervalle", "debut": 1, "fin": 2}, True),
            ({"op": "SelectionneIntervalle", "debut": 2, "fin": 2}, False),
            ({"op": "EstMarquee"}, False)]
        reponses = self.demande(CREE, {"op": "DonneZones"}, *(r | z for r, _ in cas))
        self.assertEqual([r.get("resultat", r) for r in reponses[2:]], [a for _, a in cas])
        self.assertEqual(self.lis_journal()["zones"], ["Un.", "Tr."])

    def test_an_interval_that_the_zone_leaves_comes_back_as_given(self):
        self.joue(["a"], [{"op": "AjusteIntervalle", "ignore": True}])
        self.assertEqual(self.resultat(CREE, {"op": "DonneZones"},
                                       {"op": "AjusteIntervalle", "zone": 0, "debut": 5, "fin": 9, "drapeau": True}),
                         {"debut": 5, "fin": 9})

    def test_a_zone_that_does_not_exist_is_refused(self):
        for zone in (-1, 2, 2147483647):
            with self.subTest(zone):
                self.assertIn(str(zone), self.erreur(CREE, {"op": "DonneZones"},
                                                     {"op": "DonneTexte", "zone": zone}))


class Requetes(Pilote):

    def test_a_missing_argument_is_named(self):
        cas = [({"op": "InitialisePour"}, "mode"), ({"op": "AjusteSelectionPourOutils", "debut": 1}, "fin"),
               ({"op": "RemplaceEtReselectionne"}, "texte"), ({"op": "DonneTexte"}, "zone"),
               ({"op": "CorrigeDansTexteur", "zone": 0, "debut": 0, "fin": 0, "texte": ""}, "drapeau"),
               ({"op": "PeutCorriger", "zone": 0, "debut": 0, "fin": 0}, "texte"),
               ({"op": "CreeAgentTexteur", "infos": {}}, "idDocument"),
               ({"op": "CreeAgentTexteur", "idDocument": ""}, "infos"),
               ({"op": "TraiteTexteLu", "texte": "", "styles": [{}]}, "debut")]
        for requete, nom in cas:
            with self.subTest(requete["op"]):
                self.assertIn(nom, self.erreur(CREE, {"op": "DonneZones"}, requete))

    def test_an_argument_of_the_wrong_type_is_refused(self):
        for mode in (1.5, 1e99, -1e99, 2147483648, -2147483649, "1", True, None, [1], {}):
            with self.subTest(mode):
                self.assertIn("mode", self.erreur(CREE, {"op": "InitialisePour", "mode": mode}))
        for cle, valeur in (("texte", 1), ("texte", None), ("drapeau", 1), ("drapeau", "true"), ("zone", 0.5)):
            with self.subTest((cle, valeur)):
                requete = {"op": "CorrigeDansTexteur", "zone": 0, "debut": 0, "fin": 0, "texte": "",
                           "drapeau": True} | {cle: valeur}
                self.assertIn(cle, self.erreur(CREE, {"op": "DonneZones"}, requete))
        for infos in ([], "x", {"Classe": 1}, {"Genre": "1"}, {"Genre": 0.5}):
            with self.subTest(infos):
                self.erreur(CREE | {"infos": infos})
        self.assertIn("vide", self.erreur(CREE, {"op": "DonneZones", "vide": 1}))
        self.assertIn("styles", self.erreur(CREE, {"op": "TraiteTexteLu", "texte": "", "styles": [1]}))

    def test_the_whole_range_of_32_bits_is_taken(self):
        reponses = self.lignes(json.dumps(CREE).encode() + b"""
            {"op":"InitialisePour","mode":2147483647}
            {"op":"InitialisePour","mode":-2147483648}
            {"op":"InitialisePour","mode":0.0}
            {"op":"InitialisePour","mode":2e0}""")
        self.assertEqual([r.get("resultat", r) for r in reponses[1:]], [None] * 4)

    def test_an_unknown_operation_is_refused_by_its_name(self):
        for op in ("Inconnue", "", "donnezones", "Capacite8", "~Agent", "\u0000"):
            with self.subTest(op):
                reponse = self.demande({"op": op})[0]
                self.assertEqual(list(reponse), ["op", "erreur"])
                self.assertEqual(reponse["op"], op)

    def test_a_line_that_is_no_request_is_answered_and_the_dialogue_goes_on(self):
        profonde = b'{"op":' + b"[" * 100000 + b"]" * 100000 + b"}"
        for ligne in (b"", b" ", b"nul", b"null", b"[]", b"[1]", b'"op"', b"{", b'{"op"}', b"{}",
                      b'{"op":1}', b'{"op":null}', b'{"op":["EstLie"]}', b"\0", b'{"op":"\xff\xfe"}',
                      b'{"op":"\xed\xa0\x80"}', b'{"op":"EstLie"} {}', b"\x1b[2J", profonde,
                      b'{"op":"' + b"A" * 3000000 + b'"}'):
            with self.subTest(ligne[:20]):
                reponses = self.lignes(ligne + b'\n{"op":"CreeTexteur"}\n')
                self.assertEqual(len(reponses), 2)
                self.assertEqual(list(reponses[0]), ["op", "erreur"])
                self.assertEqual(reponses[1]["resultat"], None)

    def test_whatever_is_asked_each_line_has_one_answer(self):
        hasard = random.Random(20261121)
        valeurs = [0, 1, -1, 7, 2**31 - 1, -2**31, 2**31, 2**63, 1e300, 1.5, True, False, None, "", "chat",
                   "\ud83d", "a\x00b", [], {}, [1], {"a": 1}, [{"debut": 0, "longueur": 2, "style": 70000}]]
        sensees = {"infos": CREE["infos"], "idDocument": "i~d", "zone": 0, "debut": 0, "fin": 2, "debut2": 0,
                   "fin2": 1, "texte": "mot", "drapeau": True, "mode": 1, "vide": True, "styles": []}
        lignes = []
        for _ in range(3000):
            requete = {"op": hasard.choice(TOUTES)}
            for nom, sensee in sensees.items():
                if hasard.random() < 0.9:
                    requete[nom] = sensee if hasard.random() < 0.8 else hasard.choice(valeurs)
            ligne = bytearray(json.dumps(requete).encode())
            if hasard.random() < 0.1:
                ligne[hasard.randrange(len(ligne))] = hasard.choice([b for b in range(256) if b != 10])
            lignes.append(bytes(ligne))
        reponses = self.lignes(b"\n".join(lignes))
        self.assertEqual(len(reponses), len(lignes))
        self.assertEqual({tuple(r) for r in reponses}, {("op", "resultat", "alertes"), ("op", "erreur")})
        # Not all of it was nonsense.
        self.assertEqual({r["op"] for r in reponses if "resultat" in r}, set(TOUTES) - {"Inconnue"})

    def test_the_operation_of_a_wrong_line_is_null(self):
        self.assertIsNone(self.lignes(b"x\n")[0]["op"])
        self.assertIsNone(self.lignes(b'{"op":3}\n')[0]["op"])

    def test_a_last_line_without_a_line_feed_is_served(self):
        self.assertEqual(len(self.lignes(b'{"op":"CreeTexteur"}\n{"op":"CreeTexteur"}')), 2)

    def test_lines_may_end_as_on_other_systems(self):
        self.assertNotIn("erreur", self.lignes(b'{"op":"CreeTexteur"}\r\n')[0])

    def test_no_input_is_no_dialogue(self):
        self.assertEqual(self.lignes(b""), [])

    def test_texts_keep_their_units_there_and_back(self):
        for texte in ("\ud800", "\udc00\ud800", "a\u0000b", "\U0001f600", "e\u0301", "\u2028\u2029\x85\x7f",
                      "\"\\/\b\f\n\r\t", "\ufffe\uffff"):
            with self.subTest(ascii(texte)):
                # `idDocument` comes back untouched from a window that is not served.
                sortie = self.hote("pilote", entree=json.dumps(
                    {"op": "DonneIdentificateurDocumentCourant", "infos": {}, "idDocument": texte}).encode()).stdout
                self.assertEqual(len(sortie.splitlines()), 1)
                self.assertEqual(len(sortie.decode().splitlines()), 1)
                self.assertEqual(json.loads(sortie)["resultat"]["idDocument"], texte)


class Bornes(Pilote):

    def test_a_line_past_the_limit_is_passed_over_in_bounded_memory(self):
        limite = 64 * 1024 * 1024
        with subprocess.Popen([HOTE, "pilote"], env=self.env, stdin=subprocess.PIPE,
                              stdout=subprocess.PIPE) as hote:
            bloc = b"x" * (1024 * 1024)
            for _ in range(400):
                hote.stdin.write(bloc)
            hote.stdin.write(b'\n{"op":"CreeTexteur"}\n')
            hote.stdin.flush()
            premiere = json.loads(hote.stdout.readline())
            seconde = json.loads(hote.stdout.readline())
            with open(f"/proc/{hote.pid}/status", encoding="ascii") as etat:
                [crete] = [int(l.split()[1]) for l in etat if l.startswith("VmHWM")]
            hote.stdin.close()
            self.assertEqual(hote.wait(PATIENCE), 0)
        self.assertEqual(list(premiere), ["op", "erreur"])
        self.assertIn(str(limite), premiere["erreur"])
        self.assertIsNone(seconde["resultat"])
        # Four hundred megabytes went in. (Sanitizers take memory of their own.)
        self.assertLess(crete, 380 * 1024)

    def test_a_long_text_within_the_limit_goes_through(self):
        texte = "é" * 5000000
        self.assertEqual(self.resultat(CREE, {"op": "RemplaceEtReselectionne", "texte": texte}), 5000000)

    def test_answers_come_one_by_one_while_the_dialogue_lasts(self):
        with subprocess.Popen([HOTE, "pilote"], env=self.env, stdin=subprocess.PIPE,
                              stdout=subprocess.PIPE) as hote:
            for _ in range(3):
                hote.stdin.write(b'{"op":"CreeTexteur"}\n')
                hote.stdin.flush()
                self.assertIn("resultat", json.loads(hote.stdout.readline()))
            hote.stdin.write(b'{"op":')
            hote.stdin.flush()
            hote.stdin.write(b'"CreeTexteur"}\n')
            hote.stdin.flush()
            self.assertIn("resultat", json.loads(hote.stdout.readline()))
            hote.stdin.close()
            self.assertEqual(hote.wait(PATIENCE), 0)

    def test_a_reader_that_goes_away_ends_the_dialogue_quietly(self):
        with subprocess.Popen([HOTE, "pilote"], env=self.env, stdin=subprocess.PIPE,
                              stdout=subprocess.PIPE, stderr=subprocess.PIPE) as hote:
            hote.stdin.write(json.dumps(CREE).encode() + b"\n")
            hote.stdin.flush()
            hote.stdout.readline()
            hote.stdout.close()
            hote.stdin.write(b'{"op":"CreeTexteur"}\n')
            hote.stdin.flush()
            self.assertEqual(hote.wait(PATIENCE), 0)
            self.assertEqual(hote.stderr.read(), b"")
        self.assertEqual(self.appels()[-1], "~Agent")

    def test_an_output_that_is_full_is_told(self):
        with open("/dev/full", "wb") as plein:
            fini = subprocess.run([HOTE, "pilote"], env=self.env, input=b'{"op":"CreeTexteur"}\n',
                                  stdout=plein, stderr=subprocess.PIPE, timeout=PATIENCE, check=False)
        self.assertEqual(fini.returncode, 7)
        self.assertIn(b"cannot be written", fini.stderr)

    def test_streams_that_are_closed_from_the_start_do_no_harm(self):
        fini = subprocess.run(["sh", "-c", '"$0" pilote <&- >&- 2>&-', HOTE], env=self.env,
                              timeout=PATIENCE, check=False)
        self.assertEqual(fini.returncode, 0)

    def test_what_the_connector_prints_does_not_break_the_dialogue(self):
        self.joue([], [{"op": "CreeTexteur", "imprime": "bavardage"}])
        fini = self.hote("pilote", entree=b'{"op":"CreeTexteur"}\n')
        self.assertEqual(len(fini.stdout.splitlines()), 1)
        self.assertIn(b"bavardage", fini.stderr)


class Greffons(Pilote):

    def test_an_exception_of_any_operation_is_told_and_the_dialogue_goes_on(self):
        self.joue(["a"], [{"op": op, "leve": "raté é"} for op in
                          ("DonneNomsTexteurs", "CreeTexteur", "DonneIdentificateurDocumentCourant", "EstLie",
                           "DonneTitreDocument", "DonneContexte", "PeutCorriger", "DonneTexte")])
        reponses = self.demande(
            {"op": "DonneNomsTexteurs"}, {"op": "CreeTexteur"},
            {"op": "DonneIdentificateurDocumentCourant", "infos": {}}, CREE, {"op": "EstLie"},
            {"op": "DonneTitreDocument"}, {"op": "DonneContexte"}, {"op": "DonneZones"},
            {"op": "PeutCorriger", "zone": 0, "debut": 0, "fin": 0, "texte": ""},
            {"op": "DonneTexte", "zone": 0}, {"op": "DonneLongueur", "zone": 0})
        for reponse in reponses[:3] + reponses[4:10]:
            self.assertEqual(reponse, {"op": reponse["op"], "erreur": "raté é"})
        self.assertEqual(reponses[10]["resultat"], 1)

    def test_an_exception_that_is_no_object_is_told_too(self):
        self.joue([], [{"op": "CreeTexteur", "leveEntier": 3}])
        self.assertNotEqual(self.erreur({"op": "CreeTexteur"}), "")

    def test_alerts_stand_beside_the_result_that_they_came_with(self):
        self.joue([], [{"op": "CreeTexteur", "avertis": "Sûr ?"},
                       {"op": "CreeTexteurPalette", "appel": 2, "leve": "x"}])
        alerte = {"genre": 1, "texte": "Sûr ?", "information": "", "details": ""}
        reponses = self.demande({"op": "CreeTexteur"}, {"op": "CreeTexteurPalette"})
        self.assertEqual([r["alertes"] for r in reponses], [[alerte], []])

    def test_alerts_before_an_exception_stand_beside_it_and_not_beside_the_next_result(self):
        self.joue([], [{"op": "CreeTexteur", "avertis": "Sûr ?", "leve": "panne"}])
        alerte = {"genre": 1, "texte": "Sûr ?", "information": "", "details": ""}
        self.assertEqual(self.demande({"op": "CreeTexteur"}, {"op": "CreeTexteurPalette"}),
                         [{"op": "CreeTexteur", "erreur": "panne", "alertes": [alerte]},
                          {"op": "CreeTexteurPalette", "resultat": None, "alertes": []}])

    def test_answers_beyond_sense_are_passed_on(self):
        self.joue(["abc"], [{"op": "DonneLongueur", "reponse": -2147483648},
                            {"op": "DonneDebutSelection", "reponse": 2147483647}])
        zone = self.resultat(CREE, {"op": "DonneZones"})["zones"][0]
        self.assertEqual((zone["longueur"], zone["debutSelection"]), (-2147483648, 2147483647))

    def test_a_missing_export_is_named(self):
        exports = ["DonneNomsTexteurs", "CreeTexteur", "CreeTexteurPalette",
                   "DonneIdentificateurDocumentCourant", "CreeAgentTexteur"]
        for numero, nom in enumerate(exports, 1):
            with self.subTest(nom):
                fini = self.hote("pilote", "--greffon", GREFFONS / f"greffon_sans_{numero}.so", statut=4)
                self.assertIn(f"function {nom}.".encode(), fini.stderr)
                self.assertEqual(fini.stdout, b"")

    def test_what_is_no_plugin_is_told(self):
        texte = self.dossier / "texte.so"
        texte.write_text("bonjour")
        for fichier in (texte, self.dossier, self.dossier / "absent.so", "/dev/null"):
            with self.subTest(str(fichier)):
                fini = self.hote("pilote", "--greffon", fichier, statut=4)
                self.assertIn(str(fichier).encode(), fini.stderr)

    def test_a_plugin_that_throws_while_it_is_loaded_is_told(self):
        fini = self.hote("pilote", "--greffon", GREFFONS / "greffon_leve_au_chargement.so", statut=4)
        self.assertIn(b"cannot be loaded: au chargement", fini.stderr)

    def test_the_command_line_wins_over_the_environment(self):
        self.env["VOCALYNE_GREFFON"] = "/absent.so"
        self.hote("pilote", statut=4)
        self.assertEqual(len(self.lignes(b'{"op":"CreeTexteur"}', "--greffon", str(FAUX))), 1)

    def test_a_plugin_named_without_a_folder_is_one_of_this_folder(self):
        os.symlink(FAUX, self.dossier / "ici.so")
        fini = subprocess.run([HOTE, "pilote", "--greffon", "ici.so"], env=self.env, cwd=self.dossier,
                              input=b'{"op":"CreeTexteur"}\n', capture_output=True, timeout=PATIENCE, check=False)
        self.assertEqual((fini.returncode, len(fini.stdout.splitlines())), (0, 1))


if __name__ == "__main__":
    unittest.main()
