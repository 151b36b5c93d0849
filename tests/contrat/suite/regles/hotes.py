# SPDX-License-Identifier: MPL-2.0
"""Several callers at once: each has what it was told, and none an edit in the wrong place."""

from gi.repository import GLib

from ..hote import Hote
from ..registre import ACCORD, NonEssayee, regle
from .documents import SANS_DOCUMENT
from .droit import MOTS

APPELANTS = 256


@regle("hotes.nomme", ACCORD,
       "Le document nommé est celui de l'appelant, non du compagnon : un autre n'en a aucun.",
       "The document named is the caller's, not the companion's: another one has none.")
def _(e):
    e.lie()
    autre = e.hote()
    for methode in ("DonneTitreDocument", "DonneContexteSelection"):
        e.refuse("AucunDocument", autre, methode, *SANS_DOCUMENT[methode])


@regle("hotes.decale", ACCORD,
       "Une plage que la correction d'un autre a déplacée est retrouvée ou refusée, jamais manquée.",
       "A range that another's correction has moved is found again or refused, never missed.")
def _(e):
    pose = e.pose(" un deux trois quatre")
    autre = e.second(pose)
    e.reussit(autre.hote, "CorrigeDansTexteur", autre.nom, *autre.place("un"), "\U0001f600 mille",
              False)
    attendu = pose.entier.replace(" un deux", " \U0001f600 mille deux", 1)
    permis = e.reussit(pose.hote, "PeutCorriger", pose.nom, *pose.place("trois"), "trois")
    faite = pose.hote.appelle("CorrigeDansTexteur", pose.nom, *pose.place("trois"), "3", False)
    if faite.erreur:
        e.egal("PlageRefusee", faite.erreur, faite.appel)
    else:
        attendu = attendu.replace(" deux trois", " deux 3", 1)
    e.egal(not faite.erreur, permis, "PeutCorriger")
    e.egal(attendu, e.texte(pose), faite.appel)


@regle("hotes.perimee", ACCORD,
       "Une plage dont un autre a changé le texte est refusée ; sa correction reste.",
       "A range whose text another has changed is refused; the other's correction stays.")
def _(e):
    pose = e.pose(MOTS)
    autre = e.second(pose)
    e.reussit(autre.hote, "CorrigeDansTexteur", autre.nom, *autre.place("chat"), "chiot", False)
    e.repond(False, pose.hote, "PeutCorriger", pose.nom, *pose.place("chat"), "chat")
    e.refuse("PlageRefusee", pose.hote, "SelectionneIntervalle", pose.nom, *pose.place("chat"))
    e.refuse("PlageRefusee", pose.hote, "CorrigeDansTexteur", pose.nom, *pose.place("chat"),
             "chats", False)
    e.inchange_apres(pose, "chat", "chiot")


@regle("hotes.raccourcie", ACCORD,
       "Une plage qu'un autre a effacée est refusée, jamais reportée sur le texte suivant.",
       "A range that another has deleted is refused, never carried over to the text behind.")
def _(e):
    pose = e.pose(" un deux trois quatre")
    autre = e.second(pose)
    debut, fin = autre.place("deux trois ")
    e.reussit(autre.hote, "CorrigeDansTexteur", autre.nom, debut, fin, "", False)
    for mot in ("trois", "deux"):
        e.repond(False, pose.hote, "PeutCorriger", pose.nom, *pose.place(mot), mot)
        e.refuse("PlageRefusee", pose.hote, "CorrigeDansTexteur", pose.nom, *pose.place(mot), "x",
                 False)
    e.inchange_apres(pose, "deux trois ", "")


@regle("hotes.depart", ACCORD,
       "Un appelant qui part, même sans attendre sa réponse, ne change rien aux autres.",
       "A caller that leaves, even without waiting for its reply, changes nothing for the others.")
def _(e):
    pose = e.pose(MOTS)
    for _ in range(10):
        passant = Hote(e.cible)
        passant.lance("SynchronisePositions", e.identifiant, attend=True)
        passant.bus.flush_sync(None)
        passant.ferme()
    e.repond(True, pose.hote, "PeutCorriger", pose.nom, *pose.place("chat"), "chat")
    e.reussit(pose.hote, "CorrigeDansTexteur", pose.nom, *pose.place("chat"), "chats", False)
    e.inchange_apres(pose, "chat", "chats")


@regle("hotes.nombreux", ACCORD,
       f"{APPELANTS} appelants sont retenus à la fois.",
       f"{APPELANTS} callers are remembered at a time.")
def _(e):
    hote, zones = e.lie()
    zone = e.zone_de_travail(hote, zones)
    try:
        for _ in range(APPELANTS - 1):
            e.reussit(e.hote(), "InitialiseTexteur", e.cle)
    except GLib.Error as erreur:
        raise NonEssayee(f"le bus n'admet pas {APPELANTS} connexions : {erreur.message}",
                         f"the bus does not take {APPELANTS} connections: {erreur.message}") from None
    e.repond(True, hote, "PeutCorriger", zone.nom, 0, len(zone), zone.texte)
