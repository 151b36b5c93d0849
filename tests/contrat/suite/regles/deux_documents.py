# SPDX-License-Identifier: MPL-2.0
"""Two documents of one companion, for the same caller."""

from ..registre import ACCORD, NonEssayee, regle
from .droit import MOTS


@regle("documents.nomme-par-zone", ACCORD,
       "Une zone que l'appelant a reçue nomme son document, une zone inconnue n'en nomme aucun.",
       "A zone that the caller was given names its document, an unknown zone names none.")
def _(e):
    autre = e.autre()
    pose = e.pose(MOTS)
    titre = e.reussit(pose.hote, "DonneTitreDocument")
    e.zones(pose.hote, autre)
    second = e.reussit(pose.hote, "DonneTitreDocument")
    if titre == second:
        raise NonEssayee(f"deux documents de même titre, {titre!r}",
                         f"two documents entitled {titre!r}")
    pose.hote.appelle("PeutCorriger", pose.nom + "?", 0, 0, "")
    e.repond(second, pose.hote, "DonneTitreDocument")
    e.repond(True, pose.hote, "PeutCorriger", pose.nom, *pose.place("chat"), "chat")
    e.repond(titre, pose.hote, "DonneTitreDocument")
    e.zones(pose.hote, autre)
    e.reussit(pose.hote, "SelectionneIntervalle", pose.nom, *pose.place("chat"))
    e.repond("chat", pose.hote, "DonneContenuSelection")
    e.zones(pose.hote, autre)
    e.reussit(pose.hote, "CorrigeDansTexteur", pose.nom, *pose.place("chat"), "chats", False)
    e.repond(titre, pose.hote, "DonneTitreDocument")


@regle("documents.zones-gardees", ACCORD,
       "Synchroniser un document laisse à l'appelant ce qu'il a reçu de l'autre.",
       "Synchronising one document leaves the caller what it was given of the other.")
def _(e):
    autre = e.autre()
    pose = e.pose(MOTS)
    e.zones(pose.hote, autre)
    e.reussit(pose.hote, "CorrigeDansTexteur", pose.nom, *pose.place("chat"), "chats", False)
    e.inchange_apres(pose, "chat", "chats")


@regle("documents.lies-a-part", ACCORD,
       "Lâcher un document laisse à l'appelant ce qu'il a reçu de l'autre.",
       "Letting go of one document leaves the caller what it was given of the other.")
def _(e):
    autre = e.autre()
    pose = e.pose(MOTS)
    for methode in ("RompsLienCorrecteur", "RompsLienTexteur"):
        e.zones(pose.hote, autre)
        e.reussit(pose.hote, methode)
        e.repond(True, pose.hote, "PeutCorriger", pose.nom, *pose.place("chat"), "chat")


@regle("documents.a-part", ACCORD,
       "Une correction dans un document ne change pas l'autre.",
       "A correction in one document leaves the other alone.")
def _(e):
    autre = e.autre()
    temoin, avant = e.lie(autre)
    pose = e.pose(MOTS)
    e.reussit(pose.hote, "CorrigeDansTexteur", pose.nom, *pose.place("chat"), "chats", False)
    e.egal([(z.nom, z.texte) for z in avant],
           [(z.nom, z.texte) for z in e.zones(temoin, autre)], autre)
    siennes = {z.nom for z in avant}
    e.egal(set(), siennes & {z.nom for z in e.zones(pose.hote)}, "Nom")
