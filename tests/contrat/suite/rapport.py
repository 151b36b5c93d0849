# SPDX-License-Identifier: MPL-2.0
"""What the person, or a program, reads of a run."""

import json
import sys

from .deroulement import NON_ESSAYEE, TENUE, VIOLEE, Bilan, Resultat
from .langue import Bilingue
from .protocole import Protocole
from .registre import Regle

MARQUES = {TENUE: Bilingue("tenue      ", "held     "), VIOLEE: Bilingue("VIOLÉE     ", "BROKEN   "),
           NON_ESSAYEE: Bilingue("non essayée", "not tried")}
CONSTATS_MAX = 8  # of a rule, for a person; a program gets all


class Texte:
    """A line for each rule as soon as it was tried; under a breach, what was seen."""

    def __init__(self, protocole: Protocole, nombre: int):
        self.protocole, self.nombre, self.faites = protocole, nombre, 0
        self.montre = sys.stderr.isatty() and sys.stdout.isatty()

    def commence(self, regle: Regle) -> None:
        self.faites += 1
        if self.montre:
            print(f"\r\033[K{self.faites}/{self.nombre} {regle.identifiant}", end="",
                  file=sys.stderr, flush=True)

    def annonce(self, resultat: Resultat) -> None:
        if self.montre:
            print("\r\033[K", end="", file=sys.stderr, flush=True)
        regle = resultat.regle
        print(f"{MARQUES[resultat.statut]}  {regle.identifiant}: {regle.phrase}")
        for constat in resultat.constats[:CONSTATS_MAX]:
            print(f"             {constat}")
        if (reste := len(resultat.constats) - CONSTATS_MAX) > 0:
            print("             " + str(Bilingue(f"… et {reste} autres", f"… and {reste} more")))
        if resultat.statut == VIOLEE:
            print(f"             → {self.protocole.lieu(regle.section)}")
        sys.stdout.flush()

    def conclus(self, bilan: Bilan) -> None:
        nombres = [len(bilan.de_statut(s)) for s in (TENUE, VIOLEE, NON_ESSAYEE)]
        print()
        for ecart in bilan.ecarts:
            print(Bilingue(f"N'EST PAS COMME AVANT : {ecart}", f"IS NOT AS BEFORE: {ecart}"))
        print(Bilingue("{} règles tenues, {} violées, {} non essayées", "{} rules held, {} broken, "
                       "{} not tried").__str__().format(*nombres))


class Json:
    """One object at the end; meanwhile nothing but a count for a person at the terminal."""

    def __init__(self, protocole: Protocole, nombre: int, document: str):
        self.texte = Texte(protocole, nombre)
        self.texte.montre = sys.stderr.isatty()
        self.protocole, self.document = protocole, document

    def commence(self, regle: Regle) -> None:
        self.texte.commence(regle)

    def annonce(self, resultat: Resultat) -> None:
        pass

    def conclus(self, bilan: Bilan) -> None:
        json.dump({
            "document": self.document,
            "regles": [{"id": r.regle.identifiant, "statut": r.statut,
                        "phrase": str(r.regle.phrase),
                        "section": self.protocole.lieu(r.regle.section),
                        "constats": [str(c) for c in r.constats]} for r in bilan.resultats],
            "ecarts": [str(e) for e in bilan.ecarts],
        }, sys.stdout, ensure_ascii=False, indent=1)
        print()
