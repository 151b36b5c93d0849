# SPDX-License-Identifier: MPL-2.0
"""What a companion has to say of its documents beyond their text, where it offers to."""

from ..protocole import DOCUMENTS
from ..registre import ACCORD, NonEssayee, regle
from ..textes import unites
from .droit import MOTS, zones_inconnues


def demande(e, hote, methode: str, *arguments):
    """The reply of a method that a companion need not offer."""
    reponse = hote.appelle(methode, *arguments, interface=DOCUMENTS)
    if reponse.erreur.endswith(".UnknownMethod"):
        raise NonEssayee(f"ce compagnon n'offre pas {methode}", f"this companion offers no {methode}")
    return reponse


def dit(e, hote, nom: str, code: str) -> None:
    """DonneRefus must tell that code, with a sentence; nothing at all for an empty one."""
    reponse = demande(e, hote, "DonneRefus", nom)
    if reponse.erreur or not reponse.est_du_bon_type:
        e.constate(f"{reponse.appel} : {reponse}", f"{reponse.appel}: {reponse}")
        return
    recu, phrase = reponse.valeur
    e.egal(code, recu, reponse.appel)
    if bool(phrase.strip()) != bool(code):
        e.constate(f"{reponse.appel} : phrase {phrase!r}", f"{reponse.appel}: sentence {phrase!r}")


@regle("refus.raison", ACCORD,
       "DonneRefus dit à l'appelant, et à lui seul, son dernier refus dans une zone, même après une "
       "synchronisation, jusqu'à ce qu'elle puisse être corrigée.",
       "DonneRefus tells the caller, and nobody else, its last refusal in a zone, also after a "
       "synchronisation, until it may be corrected.")
def _(e):
    pose = e.pose(MOTS)
    hote, (debut, fin) = pose.hote, pose.place("chat")
    dit(e, hote, pose.nom, "")
    autre, _ = e.lie()
    e.repond(False, hote, "PeutCorriger", pose.nom, 0, unites(pose.entier) + 1, "")
    dit(e, hote, pose.nom, "PlageRefusee")
    e.repond(True, hote, "PeutCorriger", pose.nom, debut, fin, "chat")
    dit(e, hote, pose.nom, "")
    e.refuse("FinDeLigne", hote, "CorrigeDansTexteur", pose.nom, debut, fin, "a\rb", False)
    dit(e, hote, pose.nom, "FinDeLigne")
    e.zones(hote)
    dit(e, hote, pose.nom, "FinDeLigne")
    dit(e, autre, pose.nom, "")
    e.reussit(hote, "CorrigeDansTexteur", pose.nom, debut, fin, "chien", False)
    dit(e, hote, pose.nom, "")


@regle("refus.raison-inconnue", ACCORD,
       "DonneRefus reçoit ZoneInconnue pour une zone que l'appelant n'a pas, ou n'a plus.",
       "DonneRefus gets ZoneInconnue for a zone that the caller was not given, or has let go.")
def _(e):
    pose = e.pose(MOTS)
    for nom in zones_inconnues(pose):
        e.egal("ZoneInconnue", demande(e, pose.hote, "DonneRefus", nom).erreur, f"DonneRefus({nom!r})")
    e.egal("ZoneInconnue", demande(e, e.hote(), "DonneRefus", pose.nom).erreur, "DonneRefus")
    e.reussit(pose.hote, "RompsLienCorrecteur")
    e.egal("ZoneInconnue", demande(e, pose.hote, "DonneRefus", pose.nom).erreur, "DonneRefus")
