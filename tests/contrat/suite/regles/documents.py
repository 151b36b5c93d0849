# SPDX-License-Identifier: MPL-2.0
"""Which documents there are, and which one is meant."""

import json
import time

from ..protocole import DOCUMENTS
from ..registre import ACCORD, CONTRAT, ERREURS, NOMS, NonEssayee, regle

SANS_DOCUMENT = {  # what concerns the document last named, with arguments that do nothing
    "ActivePourCorrecteur": (), "ActivePourOutils": (), "AjusteSelectionPourOutils": (0, 0),
    "DonneCheminDocument": (), "DonneContenuSelection": (), "DonneContexteSelection": (),
    "DonneDebutSelection": (), "DonneDebutSelectionDansSonContexte": (), "DonneFinSelection": (),
    "DonneFinSelectionDansSonContexte": (), "DonneTitreDocument": (),
    "InitialisePourCorrecteur": (), "InitialisePourOutils": (True,), "PermetsRetourDeCharriot": (),
    "RemplaceEtReselectionne": ("x",),
}


def liste(e) -> list[dict]:
    """What DonneDocuments lists; whatever is no object is left out, and told."""
    brute = e.reussit(e.hote(), "DonneDocuments", interface=DOCUMENTS)
    try:
        documents = json.loads(brute)
        assert isinstance(documents, list) and all(isinstance(d, dict) for d in documents)
        return documents
    except (ValueError, AssertionError):
        e.constate(f"DonneDocuments : pas une liste JSON d'objets : {brute[:60]!r}",
                   f"DonneDocuments: no JSON array of objects: {brute[:60]!r}")
        return []


def inconnues(e) -> list[str]:
    """Keys that name no document, however close to one."""
    return ["", "x", e.cle + " ", e.cle + "~", e.identifiant, "é\U0001f600", "../etc", "x" * 100000]


def identifiants_inconnus(e) -> list[str]:
    return ["", e.cle, e.cible.instance, e.cible.instance + "~", "~" + e.cle, "x" + e.identifiant,
            e.identifiant + "x", e.identifiant + "~" + e.cle, "x" * 100000]


@regle("documents.liste", CONTRAT,
       "DonneDocuments nomme ce document, avec le titre et le chemin qu'il donne lui-même.",
       "DonneDocuments names this document, with the title and the path that it gives itself.")
def _(e):
    documents = liste(e)
    hote, _ = e.lie()
    attendu = {"id": e.identifiant, "titre": e.reussit(hote, "DonneTitreDocument"),
               "chemin": e.reussit(hote, "DonneCheminDocument")}
    vus = [{cle: d.get(cle) for cle in attendu} for d in documents if d.get("id") == e.identifiant]
    e.egal([attendu], vus, "DonneDocuments")
    for document in documents:
        if not str(document.get("id")).startswith(e.cible.instance + "~"):
            e.constate(f"id {document.get('id')!r}", f"id {document.get('id')!r}")


@regle("documents.devant", CONTRAT,
       "Le document que ActivePour… met devant est le premier de DonneDocuments.",
       "The document that ActivePour… brings to the front is the first of DonneDocuments.")
def _(e):
    autre = e.autre()
    for identifiant, methode in ((autre, "ActivePourCorrecteur"), (e.identifiant, "ActivePourOutils"),
                                 (autre, "ActivePourOutils"),
                                 (e.identifiant, "ActivePourCorrecteur")):
        hote, _ = e.lie(identifiant)
        e.reussit(hote, methode)
        fin = time.monotonic() + 5  # a window manager may take its time
        while (devant := [d.get("id") for d in liste(e)][:1]) != [identifiant]:
            if time.monotonic() > fin:
                e.egal([identifiant], devant, f"DonneDocuments, {methode}")
                return
            time.sleep(0.02)


@regle("documents.enregistre", CONTRAT,
       "Enregistre répond vrai quand il a écrit le fichier, faux quand celui-ci était à jour.",
       "Enregistre answers true when it has written the file, false when that was up to date.")
def _(e):
    hote = e.hote()
    reponse = hote.appelle("Enregistre", e.identifiant + "x", interface=DOCUMENTS)
    if reponse.erreur.endswith(".UnknownMethod"):
        raise NonEssayee("ce compagnon n'offre pas Enregistre", "this companion offers no Enregistre")
    e.egal("DocumentInconnu", reponse.erreur, reponse.appel)
    if not e.options.enregistre:
        raise NonEssayee("il faut la permission d'enregistrer (--enregistre)",
                         "the permission to save is needed (--enregistre)")
    e.reussit(hote, "Enregistre", e.identifiant, interface=DOCUMENTS)
    e.egal(False, e.reussit(hote, "Enregistre", e.identifiant, interface=DOCUMENTS), "Enregistre")
    pose = e.pose(" Le chat dort")
    e.egal(True, e.reussit(hote, "Enregistre", e.identifiant, interface=DOCUMENTS), "Enregistre")
    debut, fin = pose.place(" Le chat dort")
    e.reussit(pose.hote, "CorrigeDansTexteur", pose.nom, debut, fin, "", False)
    e.reussit(hote, "Enregistre", e.identifiant, interface=DOCUMENTS)


@regle("document.inconnu", ERREURS,
       "Un identifiant qui n'est celui d'aucun document ouvert reçoit DocumentInconnu.",
       "An identifier of no open document gets DocumentInconnu.")
def _(e):
    hote = e.hote()
    for cle in inconnues(e):
        e.refuse("DocumentInconnu", hote, "InitialiseTexteur", cle)
    for identifiant in identifiants_inconnus(e):
        e.refuse("DocumentInconnu", hote, "SynchronisePositions", identifiant)


@regle("document.mort", ACCORD,
       "DocEstMort répond faux pour un document ouvert, vrai pour tout le reste, jamais d'erreur.",
       "DocEstMort answers false for an open document, true for anything else, never an error.")
def _(e):
    hote = e.hote()
    e.repond(False, hote, "DocEstMort", e.cle)
    for cle in inconnues(e):
        e.repond(True, hote, "DocEstMort", cle)


@regle("document.aucun", ERREURS,
       "Ce qui concerne le document nommé en dernier reçoit AucunDocument tant qu'aucun ne l'a été.",
       "What concerns the document last named gets AucunDocument as long as none was.")
def _(e):
    hote = e.hote()
    for methode, arguments in SANS_DOCUMENT.items():
        e.refuse("AucunDocument", hote, methode, *arguments)


@regle("document.nomme", NOMS,
       "InitialiseTexteur nomme le document de l'appelant ; SynchronisePositions aussi.",
       "InitialiseTexteur names the caller's document; so does SynchronisePositions.")
def _(e):
    premier, second = e.hote(), e.hote()
    e.reussit(premier, "InitialiseTexteur", e.cle)
    titre = e.reussit(premier, "DonneTitreDocument")
    e.zones(second)
    e.repond(titre, second, "DonneTitreDocument")


@regle("document.erreur-sans-effet", ACCORD,
       "Une erreur laisse à l'appelant le document qu'il avait nommé, et ce qu'il sait de ses zones.",
       "An error leaves the caller the document that it had named, and what it knows of its zones.")
def _(e):
    hote, zones = e.lie()
    titre = e.reussit(hote, "DonneTitreDocument")
    hote.appelle("InitialiseTexteur", "x")
    hote.appelle("SynchronisePositions", "x")
    hote.appelle("CorrigeDansTexteur", "?", 0, 0, "x", False)
    e.repond(titre, hote, "DonneTitreDocument")
    zone = e.zone_de_travail(hote, zones)
    e.repond(True, hote, "PeutCorriger", zone.nom, 0, len(zone), zone.texte)


@regle("document.preparatifs", CONTRAT,
       "Activer et préparer le document n'en change pas le texte.",
       "Bringing the document to the front and getting it ready leave its text alone.")
def _(e):
    hote, avant = e.lie()
    for methode, arguments in (("ActivePourCorrecteur", ()), ("ActivePourOutils", ()),
                               ("InitialisePourCorrecteur", ()), ("InitialisePourOutils", (True,)),
                               ("InitialisePourOutils", (False,)), ("Suspends", ())):
        e.reussit(hote, methode, *arguments)
        apres = e.zones(hote)
        e.egal([z.texte for z in avant], [z.texte for z in apres], methode)
