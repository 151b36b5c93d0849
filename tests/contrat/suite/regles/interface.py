# SPDX-License-Identifier: MPL-2.0
"""Names, and the methods that are published."""

import pathlib
import re
import xml.etree.ElementTree as arbre

from gi.repository import GLib

from ..protocole import DOCUMENTS, PROXY, signatures
from ..registre import CONTRAT, ERREURS, NOMS, regle

TITRE_MIN = 6  # letters: a shorter title may stand in a key by chance


@regle("nom.opaque", NOMS,
       "Un identifiant est INSTANCE~DOCUMENT, et ne montre ni titre ni chemin.",
       "An identifier is INSTANCE~DOCUMENT, and shows neither title nor path.")
def _(e):
    hote, _ = e.lie()
    titre = e.reussit(hote, "DonneTitreDocument")
    chemin = e.reussit(hote, "DonneCheminDocument")
    e.egal(e.cible.instance, e.identifiant.partition("~")[0], "INSTANCE")
    for nom in sorted({pathlib.Path(titre).stem, pathlib.Path(chemin).stem}):
        if len(nom) >= TITRE_MIN and nom.lower() in e.identifiant.lower():
            e.constate(f"{e.identifiant} contient {nom!r}", f"{e.identifiant} holds {nom!r}")


def _compare(e, interface: str, facultatives: tuple[str, ...] = ()) -> None:
    racine = arbre.fromstring(re.sub(r"<!DOCTYPE[^>]*>", "", e.hote().introspection()))
    publiee = next((n for n in racine.findall("interface") if n.get("name") == interface), None)
    if publiee is None:
        e.constate(f"{interface} n'est pas publiée", f"{interface} is not published")
        return
    publiees = signatures(publiee)
    for methode, signature in e.cible.protocole.methodes[interface].items():
        if methode in publiees or methode not in facultatives:
            e.egal(signature, publiees.get(methode), methode)


@regle("interface.methodes", CONTRAT,
       "Les 24 méthodes sont publiées avec les arguments du contrat.",
       "The 24 methods are published with the contract's arguments.")
def _(e):
    _compare(e, PROXY)


@regle("interface.documents", CONTRAT,
       "L'interface des documents est publiée ; seule DonneDocuments y est obligatoire.",
       "The documents interface is published; DonneDocuments alone is obligatory in it.")
def _(e):
    _compare(e, DOCUMENTS, facultatives=tuple(
        methode for methode in e.cible.protocole.methodes[DOCUMENTS] if methode != "DonneDocuments"))


@regle("interface.mauvais-appels", ERREURS,
       "Une méthode inconnue, ou des arguments d'un autre type, reçoivent une erreur.",
       "An unknown method, or arguments of another type, get an error.")
def _(e):
    hote, _ = e.lie()
    for methode, arguments in (("NImporteQuoi", None), ("DocEstMort", None),
                               ("DocEstMort", GLib.Variant("(i)", (1,))),
                               ("AjusteSelectionPourOutils", GLib.Variant("(ss)", ("0", "0")))):
        if not hote.appelle_mal(methode, arguments):
            types = arguments.get_type_string() if arguments else "()"
            e.constate(f"{methode}{types} : aucune erreur", f"{methode}{types}: no error")
    e.reussit(hote, "DonneTitreDocument")
