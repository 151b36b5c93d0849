# SPDX-License-Identifier: MPL-2.0
"""What holds for every reply: judged over all calls of the run, whichever rule made them."""

from ..protocole import PROXY
from ..registre import CONTRAT, ERREURS, regle
from .documents import SANS_DOCUMENT
from .droit import MOTS

CONSTATS_MAX = 10


def _juge(e, constats) -> None:
    e.constats += list(dict.fromkeys(constats))[:CONSTATS_MAX]


@regle("reponse.types", CONTRAT,
       "Chaque méthode répond, et du type que dit le contrat.",
       "Every method replies, with the type that the contract says.")
def _(e):
    try:
        _appelle_tout(e)
    finally:
        _juge(e, e.journal.types)
    for methode in (*e.cible.protocole.methodes[PROXY], "DonneDocuments"):
        if methode not in e.journal.servies:
            e.constate(f"{methode} n'a jamais répondu", f"{methode} has never replied")


def _appelle_tout(e) -> None:
    pose = e.pose(MOTS)
    debut, fin = pose.place("chat")
    for methode, arguments in (
            ("DocEstMort", (e.cle,)), ("SelectionneIntervalle", (pose.nom, debut, fin)),
            *SANS_DOCUMENT.items(), ("PeutCorriger", (pose.nom, debut, fin, "chat")),
            ("CorrigeDansTexteur", (pose.nom, pose.base, pose.base, "x", False)),
            ("Suspends", ()), ("RompsLienCorrecteur", ()), ("RompsLienTexteur", ())):
        pose.hote.appelle(methode, *arguments)
    pose.hote.documents()


@regle("reponse.noms-d-erreur", ERREURS,
       "Une erreur porte un nom de la liste.",
       "An error has a name of the list.")
def _(e):
    e.hote().appelle("InitialiseTexteur", "x")
    _juge(e, e.journal.erreurs)


@regle("reponse.messages", ERREURS,
       "Une erreur a un message pour la personne.",
       "An error has a message for the person.")
def _(e):
    e.hote().appelle("InitialiseTexteur", "x")
    _juge(e, e.journal.messages)


@regle("reponse.rendue", CONTRAT,
       "Chaque appel reçoit sa réponse, et le compagnon reste sur le bus.",
       "Every call gets its reply, and the companion stays on the bus.")
def _(e):
    _juge(e, e.journal.muets)
    if not e.cible.perdu:
        e.repond(False, e.hote(), "DocEstMort", e.cle)
