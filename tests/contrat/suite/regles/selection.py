# SPDX-License-Identifier: MPL-2.0
"""The selection: put somewhere, and asked for."""

from ..registre import ACCORD, CONTRAT, ERREURS, regle
from ..textes import tranche
from .droit import MOTS, moities, plages_fausses, zones_inconnues


def vue(e, hote) -> tuple[str, int, int]:
    """The selection by the questions about its zone."""
    return (e.reussit(hote, "DonneContenuSelection"), e.reussit(hote, "DonneDebutSelection"),
            e.reussit(hote, "DonneFinSelection"))


def selectionne(e, pose, mot: str) -> tuple[str, int, int]:
    e.reussit(pose.hote, "SelectionneIntervalle", pose.nom, *pose.place(mot))
    return (mot, *pose.place(mot))


@regle("selection.intervalle", CONTRAT,
       "Ce que SelectionneIntervalle choisit est ce que les questions sur la sélection disent.",
       "What SelectionneIntervalle chooses is what the questions about the selection tell.")
def _(e):
    pose = e.pose(MOTS)
    for mot in ("chat", "\U0001f600", MOTS, "dort"):
        attendu = selectionne(e, pose, mot)
        e.egal(attendu, vue(e, pose.hote), f"SelectionneIntervalle {mot!r}")
    e.inchange(pose)


@regle("selection.vide", CONTRAT,
       "Une plage vide met le curseur : contenu vide, début et fin égaux.",
       "An empty range puts the caret: empty content, start and end equal.")
def _(e):
    pose = e.pose(MOTS)
    debut, _ = pose.place("chat")
    e.reussit(pose.hote, "SelectionneIntervalle", pose.nom, debut, debut)
    e.egal(("", debut, debut), vue(e, pose.hote), "SelectionneIntervalle")


@regle("selection.contexte", CONTRAT,
       "Le contexte entoure la sélection, et ses deux positions l'y désignent.",
       "The context surrounds the selection, and its two positions point at it there.")
def _(e):
    pose = e.pose(MOTS)
    for mot in ("chat", "\U0001f600", " dort"):
        selectionne(e, pose, mot)
        contexte = e.reussit(pose.hote, "DonneContexteSelection")
        debut = e.reussit(pose.hote, "DonneDebutSelectionDansSonContexte")
        fin = e.reussit(pose.hote, "DonneFinSelectionDansSonContexte")
        e.egal(mot, tranche(contexte, debut, fin), f"contexte[{debut}:{fin}]")
        if pose.entier.find(contexte) < 0:
            e.egal(pose.entier, contexte, "DonneContexteSelection")


@regle("selection.refusee", ERREURS,
       "Une plage impossible reçoit PlageRefusee, une zone inconnue ou non donnée ZoneInconnue ; la "
       "sélection reste.",
       "An impossible range gets PlageRefusee, a zone unknown or not given ZoneInconnue; the "
       "selection stays.")
def _(e):
    pose = e.pose(MOTS)
    attendu = selectionne(e, pose, "chat")
    for debut, fin in plages_fausses(pose.entier) + moities(pose):
        e.refuse("PlageRefusee", pose.hote, "SelectionneIntervalle", pose.nom, debut, fin)
    for nom in zones_inconnues(pose):
        e.refuse("ZoneInconnue", pose.hote, "SelectionneIntervalle", nom, 0, 0)
    intrus = e.hote()
    e.refuse("ZoneInconnue", intrus, "SelectionneIntervalle", pose.nom, 0, 0)
    e.egal(attendu, vue(e, pose.hote), "SelectionneIntervalle")


@regle("selection.marque-d-ordre", ACCORD,
       "Une réponse ne commence jamais par U+FEFF : U+0007 y tient sa place.",
       "A reply never begins with U+FEFF: U+0007 stands there in its place.")
def _(e):
    pose = e.pose(" a\ufeffb dort")
    debut, _ = pose.place("\ufeff")
    e.reussit(pose.hote, "SelectionneIntervalle", pose.nom, debut, debut + 2)
    contenu = e.reussit(pose.hote, "DonneContenuSelection")
    e.egal("\ab", contenu, "DonneContenuSelection")
