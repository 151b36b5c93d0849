# SPDX-License-Identifier: MPL-2.0
"""Letting go of a document."""

from ..registre import ACCORD, regle
from .droit import MOTS


@regle("liens.correcteur", ACCORD,
       "Après RompsLienCorrecteur le document reste nommé ; ses zones sont à redemander.",
       "After RompsLienCorrecteur the document stays named; its zones must be asked for again.")
def _(e):
    pose = e.pose(MOTS)
    titre = e.reussit(pose.hote, "DonneTitreDocument")
    e.reussit(pose.hote, "RompsLienCorrecteur")
    e.repond(titre, pose.hote, "DonneTitreDocument")
    _oubliee(e, pose)
    e.repond(titre, pose.hote, "DonneTitreDocument")
    e.zones(pose.hote)
    e.repond(True, pose.hote, "PeutCorriger", pose.nom, *pose.place("chat"), "chat")


@regle("liens.texteur", ACCORD,
       "Après RompsLienTexteur aucun document n'est nommé, et ses zones sont à redemander.",
       "After RompsLienTexteur no document is named, and its zones must be asked for again.")
def _(e):
    pose = e.pose(MOTS)
    e.reussit(pose.hote, "RompsLienTexteur")
    e.refuse("AucunDocument", pose.hote, "DonneTitreDocument")
    _oubliee(e, pose)
    e.refuse("AucunDocument", pose.hote, "DonneTitreDocument")
    e.zones(pose.hote)
    e.repond(True, pose.hote, "PeutCorriger", pose.nom, *pose.place("chat"), "chat")


def _oubliee(e, pose) -> None:
    plage = pose.place("chat")
    e.repond(False, pose.hote, "PeutCorriger", pose.nom, *plage, "chat")
    e.refuse("ZoneInconnue", pose.hote, "CorrigeDansTexteur", pose.nom, *plage, "x", False)
    e.refuse("ZoneInconnue", pose.hote, "SelectionneIntervalle", pose.nom, *plage)
    e.inchange(pose)


@regle("liens.jamais-d-erreur", ACCORD,
       "Lâcher le document ou suspendre n'est jamais une erreur, même sans document, même deux fois.",
       "Letting go of the document or pausing is never an error, without a document or twice over.")
def _(e):
    hote = e.hote()
    for _ in range(2):
        for methode in ("Suspends", "RompsLienCorrecteur", "RompsLienTexteur"):
            e.repond(None, hote, methode)
        e.reussit(hote, "InitialiseTexteur", e.cle)


@regle("liens.suspends", ACCORD,
       "Suspends ne change rien : ni le document nommé, ni ce que l'appelant sait de ses zones.",
       "Suspends changes nothing: neither the document named nor what the caller knows of its zones.")
def _(e):
    pose = e.pose(MOTS)
    titre = e.reussit(pose.hote, "DonneTitreDocument")
    e.reussit(pose.hote, "Suspends")
    e.repond(titre, pose.hote, "DonneTitreDocument")
    e.repond(True, pose.hote, "PeutCorriger", pose.nom, *pose.place("chat"), "chat")
    e.reussit(pose.hote, "CorrigeDansTexteur", pose.nom, *pose.place("chat"), "chats", False)
    e.inchange_apres(pose, "chat", "chats")
