# SPDX-License-Identifier: MPL-2.0
"""The connector of the examples, built from an installed prefix and tried through the host."""
import json
import subprocess
import unittest

from commun import dialogue, lance
from prefixe import CMAKE, PrefixeInstalle

TEXTE = """---
titre: une entete avec des fotes
---

# Les chats et leurs abitudes

Un bel acceuil pour `un_mot_de_codde` et [le site](https://exemple.org/abitudes).
Une seconde ligne avec une adrese : moi@exemple.org.

- Le premier point dort.
- Le second paragaphe mange.

```sh
echo "codde pas corige"
```

Fin du texte 😀.
"""
CORRIGE = (TEXTE.replace("leurs abitudes", "leurs habitudes").replace("acceuil", "accueil")
           .replace("adrese", "adresse").replace("paragaphe", "paragraphe"))
HORS_CORRECTION = 64


class Markdown(PrefixeInstalle):
    """One connector for all: building it takes longer than the rest."""

    def setUp(self):
        super().setUp()
        construction = self.dossier / "connecteur"
        exemple = self.prefixe / "share/doc/VocalyneConnecteur/exemples/connecteur-markdown"
        lance(CMAKE, "-G", "Ninja", "-S", exemple, "-B", construction,
              f"-DCMAKE_PREFIX_PATH={self.prefixe}",
              "-DCMAKE_CXX_FLAGS=-Wall -Wextra -Wpedantic -Wshadow -Werror", env=self.env)
        lance(CMAKE, "--build", construction, env=self.env)
        self.connecteur = construction / "libConnecteurMarkdown.so"
        self.hote = self.prefixe / "bin/vocalyne-hote"
        self.document = self.dossier / "notes.md"
        self.document.write_text(TEXTE, encoding="utf-8")

    def lu(self) -> str:
        return self.document.read_text(encoding="utf-8")

    def dialogue(self, *requetes: dict) -> list:
        infos = {"Id": str(self.document), "Classe": "org.example.Markdown", "Genre": 1}
        cree = {"op": "CreeAgentTexteur", "idDocument": str(self.document), "infos": infos}
        reponses = dialogue(self.hote, [cree, *requetes], self.env, "--greffon", self.connecteur)
        return [r["resultat"] for r in reponses[1:]]

    def test_the_markdown_connector_reads_blocks_corrects_the_file_and_keeps_the_contract(self):
        self.lit_bloc_par_bloc()
        self.garde_la_selection()
        self.refuse_ce_qui_n_est_pas_un_mot_du_texte_lu()
        self.laisse_un_fichier_que_l_on_a_change_entre_temps()
        self.tient_le_contrat()
        self.corrige_les_mots_et_rien_d_autre()

    def lit_bloc_par_bloc(self):
        [lecture] = self.dialogue({"op": "DonneZones"})
        zones = lecture["zones"]
        self.assertEqual("".join(z["texte"] for z in zones), TEXTE)
        self.assertEqual([z["texte"].split()[0] for z in zones], ["---", "#", "Un", "-", "-", "```sh", "Fin"])
        laisses = [z["texte"][s["debut"]:s["debut"] + s["longueur"]] for z in zones for s in z["styles"]
                   if s["style"] == HORS_CORRECTION]
        self.assertEqual([l.strip() for l in laisses],
                         [TEXTE[:TEXTE.index("#")].strip(), "`un_mot_de_codde`",
                          "(https://exemple.org/abitudes)", "moi@exemple.org",
                          '```sh\necho "codde pas corige"\n```'])

    def garde_la_selection(self):
        _, choisi, lecture, contexte, remplace, apres, retour = self.dialogue(
            {"op": "DonneZones"}, {"op": "SelectionneIntervalle", "zone": 2, "debut": 3, "fin": 6},
            {"op": "SynchronisePositions"}, {"op": "DonneContexte"},
            {"op": "RemplaceEtReselectionne", "texte": "grand"}, {"op": "DonneContexte"},
            {"op": "RemplaceEtReselectionne", "texte": "bel"})
        self.assertIs(choisi, True)
        self.assertEqual([(z["debutSelection"], z["finSelection"]) for z in lecture["zones"]],
                         [(0, 0), (0, 0), (3, 6), (0, 0), (0, 0), (0, 0), (0, 0)])
        self.assertEqual((contexte["texte"], remplace, apres["texte"], retour), ("bel", 5, "grand", 3))
        self.assertEqual(self.lu(), TEXTE)

    def refuse_ce_qui_n_est_pas_un_mot_du_texte_lu(self):
        _, mot, code, autre = self.dialogue(
            {"op": "DonneZones"},
            {"op": "PeutCorriger", "zone": 2, "debut": 7, "fin": 14, "texte": "acceuil"},
            {"op": "PeutCorriger", "zone": 2, "debut": 21, "fin": 23, "texte": "un"},
            {"op": "PeutCorriger", "zone": 2, "debut": 7, "fin": 14, "texte": "accueil"})
        self.assertEqual((mot, code, autre), (True, False, False))

    def laisse_un_fichier_que_l_on_a_change_entre_temps(self):
        infos = {"Id": str(self.document), "Classe": "org.example.Markdown", "Genre": 1}
        correction = {"zone": 2, "debut": 7, "fin": 14}
        with subprocess.Popen([self.hote, "pilote", "--greffon", self.connecteur], env=self.env, text=True,
                              stdin=subprocess.PIPE, stdout=subprocess.PIPE) as pilote:
            def demande(**requete):
                print(json.dumps(requete), file=pilote.stdin, flush=True)
                return json.loads(pilote.stdout.readline())["resultat"]
            demande(op="CreeAgentTexteur", infos=infos, idDocument=str(self.document))
            demande(op="DonneZones")
            self.document.write_text("Avant. " + TEXTE, encoding="utf-8")
            self.assertIs(demande(op="PeutCorriger", texte="acceuil", **correction), False)
            demande(op="CorrigeDansTexteur", texte="accueil", drapeau=False, **correction)
            pilote.stdin.close()
        self.assertEqual(self.lu(), "Avant. " + TEXTE)
        self.document.write_text(TEXTE, encoding="utf-8")

    def tient_le_contrat(self):
        bilan = json.loads(lance(self.hote, "verifie", self.connecteur, self.document, "--sortie", "json",
                                 env=self.env, statut=None).stdout)
        self.assertEqual({r["nom"]: r["constats"] for r in bilan["regles"] if r["etat"] == "violee"}, {})
        self.assertLessEqual({r["nom"] for r in bilan["regles"] if r["etat"] == "nonEssayee"},
                             {"memoire.valgrind"})
        self.assertEqual(self.lu(), TEXTE)

    def corrige_les_mots_et_rien_d_autre(self):
        lance(self.hote, "corrige", self.document, "--langue", "fr", "--automatique", "--greffon",
              self.connecteur, env=self.env)
        self.assertEqual(self.lu(), CORRIGE)


if __name__ == "__main__":
    unittest.main()
