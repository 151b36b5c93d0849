# SPDX-License-Identifier: MPL-2.0
"""What a companion has to say of its documents beyond their text, where it offers to."""

import json
import re

from ..protocole import DOCUMENTS
from ..registre import ACCORD, CONTRAT, RECIT, NonEssayee, regle
from ..textes import unites
from .documents import identifiants_inconnus, liste
from .droit import MOTS, zones_inconnues

GENRES = ("writer", "calc", "impress", "draw", "texte")
ETIQUETTE = re.compile(r"[A-Za-z]{2,8}(-[A-Za-z0-9]{1,8})*")  # BCP 47, in outline


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


def objet(e, hote, methode: str, identifiant: str) -> dict:
    """The JSON object that the method gives of a document."""
    reponse = demande(e, hote, methode, identifiant)
    try:
        assert not reponse.erreur and reponse.est_du_bon_type
        lu = json.loads(reponse.valeur)
        assert isinstance(lu, dict)
        return lu
    except (AssertionError, ValueError):
        e.constate(f"{methode} : pas un objet JSON : {reponse}", f"{methode}: no JSON object: {reponse}")
        return {}


def texte_non_vide(valeur) -> bool:
    return isinstance(valeur, str) and bool(valeur.strip())


@regle("documents.genre", CONTRAT,
       "Le genre d'un document est un de la liste, et sa langue une étiquette BCP 47.",
       "The kind of a document is one of the list, and its language a BCP 47 tag.")
def _(e):
    documents = [d for d in liste(e) if "genre" in d or "langue" in d]
    if not documents:
        raise NonEssayee("ce compagnon ne dit ni genre ni langue",
                         "this companion tells neither kind nor language")
    for document in documents:
        genre, langue = document.get("genre", GENRES[0]), document.get("langue", "fr")
        if genre not in GENRES:
            e.constate(f"genre {genre!r}", f"kind {genre!r}")
        if not isinstance(langue, str) or not ETIQUETTE.fullmatch(langue):
            e.constate(f"langue {langue!r}", f"language {langue!r}")


@regle("noms.zones", RECIT,
       "DonneNomsDeZones nomme des zones que l'appelant a reçues, et elles seules, sans nommer le "
       "document.",
       "DonneNomsDeZones names zones that the caller was given, and those alone, without naming the "
       "document.")
def _(e):
    hote = e.hote()
    e.egal({}, objet(e, hote, "DonneNomsDeZones", e.identifiant), "DonneNomsDeZones")
    e.refuse("AucunDocument", hote, "DonneTitreDocument")
    cles = {zone.nom for zone in e.zones(hote)}
    noms = objet(e, hote, "DonneNomsDeZones", e.identifiant)
    if cles and not noms:
        e.constate("aucun nom", "no name at all")
    for cle, nom in noms.items():
        if cle not in cles or not texte_non_vide(nom):
            e.constate(f"zone {cle!r} : {nom!r}", f"zone {cle!r}: {nom!r}")
    e.egal({}, objet(e, e.hote(), "DonneNomsDeZones", e.identifiant), "DonneNomsDeZones")
    for identifiant in identifiants_inconnus(e):
        e.refuse("DocumentInconnu", hote, "DonneNomsDeZones", identifiant, interface=DOCUMENTS)


@regle("rapport.forme", RECIT,
       "DonneRapport dit le genre, le nombre de zones et ce qui est laissé, avec un code, un nombre et "
       "une phrase.",
       "DonneRapport tells the kind, the number of zones and what is left out, with a code, a number "
       "and a sentence.")
def _(e):
    hote, zones = e.lie()
    rapport = objet(e, hote, "DonneRapport", e.identifiant)
    if rapport.get("genre") not in GENRES:
        e.constate(f"genre {rapport.get('genre')!r}", f"kind {rapport.get('genre')!r}")
    e.egal(len(zones), rapport.get("zones"), "zones")
    if not isinstance(rapport.get("lectureSeule"), bool):
        e.constate("lectureSeule n'est pas un booléen", "lectureSeule is no boolean")
    laisses = rapport.get("laisses")
    if not isinstance(laisses, list):
        e.constate("laisses n'est pas une liste", "laisses is no array")
        laisses = []
    for reste in laisses:
        if not (isinstance(reste, dict) and texte_non_vide(reste.get("code"))
                and isinstance(reste.get("nombre"), int) and reste["nombre"] > 0
                and texte_non_vide(reste.get("phrase"))):
            e.constate(f"laisses : {reste!r}", f"laisses: {reste!r}")
    for identifiant in identifiants_inconnus(e):
        e.refuse("DocumentInconnu", hote, "DonneRapport", identifiant, interface=DOCUMENTS)


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
