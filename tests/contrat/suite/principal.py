# SPDX-License-Identifier: MPL-2.0
"""The command: its options, its exit codes."""

import argparse
import contextlib
import json
import os
import pathlib
import signal
import sys

from .langue import Bilingue, parle_francais

TENU, VIOLE, USAGE, INJOIGNABLE, PAS_REMIS = 0, 1, 2, 3, 4
INTERROMPU = 130

AIDE = Bilingue("""\
Tient un compagnon au contrat de protocol/ : appelle toutes ses méthodes sur le bus de session, et dit
chaque règle qu'il viole, avec l'endroit où la lire.

Le document est modifié pendant l'essai, puis remis comme avant (texte et sélection) ; sa liste
d'annulations en garde la trace, et le curseur peut avoir bougé. Donnez-lui une copie.
""", """\
Holds a companion to the contract in protocol/: calls all its methods on the session bus, and tells
each rule that it breaks, with the place to read about it.

The document is edited on the way, then put back as before (text and selection); its undo list keeps
a trace, and the caret may have moved. Give it a copy.
""")
CODES = Bilingue("""\
Codes de sortie : 0 toutes les règles essayées sont tenues ; 1 une est violée ; 2 mauvaise option ;
3 rien n'a pu être essayé (bus, service, document, python3-gi) ; 4 un document n'est pas comme avant ;
130 interrompu (les documents sont remis).
""", """\
Exit codes: 0 all rules that were tried are held; 1 one is broken; 2 wrong option; 3 nothing could be
tried (bus, service, document, python3-gi); 4 a document is not as it was; 130 interrupted (the
documents are put back).
""")


class Lecteur(argparse.ArgumentParser):
    """Python's own has no French."""

    def error(self, message: str):
        print(self.format_usage() + f"{self.prog}: "
              + str(Bilingue(f"arguments refusés : {message}", message)), file=sys.stderr)
        sys.exit(USAGE)


def analyse() -> argparse.ArgumentParser:
    def dis(francais: str, anglais: str) -> str:
        return francais if parle_francais() else anglais
    lecteur = Lecteur(
        prog="outils/contrat", description=str(AIDE), epilog=str(CODES), add_help=False,
        formatter_class=argparse.RawDescriptionHelpFormatter)
    lecteur._positionals.title, lecteur._optionals.title = "arguments", "options"
    lecteur.add_argument("service", metavar="SERVICE", nargs="?", help=dis(
        "nom sur le bus, ou l'instance seule", "name on the bus, or the instance alone"))
    lecteur.add_argument("document", metavar="DOCUMENT", nargs="?", help=dis(
        "identifiant INSTANCE~DOCUMENT, ou sa seconde partie ; sans lui, les documents servis sont dits",
        "identifier INSTANCE~DOCUMENT, or its second part; without it, tells which are served"))
    lecteur.add_argument("--autre", metavar="DOCUMENT", help=dis(
        "un second document du même compagnon : lu, activé, jamais modifié",
        "a second document of the same companion: read, brought to the front, never edited"))
    lecteur.add_argument("--lecture-seule", metavar="DOCUMENT", help=dis(
        "un document en lecture seule du même compagnon",
        "a read-only document of the same companion"))
    lecteur.add_argument("--enregistre", action="store_true", help=dis(
        "permet d'enregistrer DOCUMENT dans son fichier",
        "allows saving DOCUMENT to its file"))
    lecteur.add_argument("--regle", metavar="ID", action="append", help=dis(
        "n'essaie que cette règle ; répétable", "tries this rule only; may be given again"))
    lecteur.add_argument("--patience", metavar="S", type=int, default=60, help=dis(
        "secondes laissées à chaque appel (60)", "seconds that each call is given (60)"))
    lecteur.add_argument("--sortie", choices=("texte", "json"), default="texte", help=dis(
        "forme du résultat", "form of the result"))
    lecteur.add_argument("--liste", action="store_true", help=dis(
        "dit toutes les règles, sans rien essayer", "prints all the rules, tries none"))
    lecteur.add_argument("--protocole", metavar="DIR", type=pathlib.Path, help=dis(
        "dossier des fichiers du contrat", "folder of the contract's files"))
    lecteur.add_argument("-h", "--help", action="help", help=dis("cette aide", "this help"))
    return lecteur


def abandonne(francais: str, anglais: str) -> int:
    print(f"outils/contrat: {Bilingue(francais, anglais)}", file=sys.stderr)
    return INJOIGNABLE


def main() -> int:
    lecteur = analyse()
    voulu = lecteur.parse_args()
    try:
        import gi
        gi.require_version("Gio", "2.0")
        from gi.repository import Gio, GLib
    except (ImportError, ValueError):
        return abandonne("il manque python3-gi : sudo apt-get install python3-gi",
                         "python3-gi is missing: sudo apt-get install python3-gi")
    from . import protocole, regles  # noqa: F401
    from .deroulement import deroule
    from .essai import Options
    from .hote import Cible, Perdu
    from .rapport import Json, Texte
    from .registre import REGLES

    try:
        contrat = protocole.Protocole(voulu.protocole or protocole.DOSSIER)
    except OSError as erreur:
        return abandonne(f"contrat introuvable (--protocole) : {erreur}",
                         f"the contract is not there (--protocole): {erreur}")
    if voulu.liste:
        for regle in REGLES.values():
            print(f"{regle.identifiant}\n    {regle.phrase}\n    {contrat.lieu(regle.section)}")
        return TENU
    if not voulu.service:
        lecteur.error(str(Bilingue("il faut SERVICE", "SERVICE is needed")))
    if inconnues := set(voulu.regle or ()) - set(REGLES):
        lecteur.error(str(Bilingue(f"règle inconnue : {', '.join(sorted(inconnues))} (--liste)",
                                   f"unknown rule: {', '.join(sorted(inconnues))} (--liste)")))
    instance = voulu.service.removeprefix(protocole.SERVICE)
    if not protocole.est_instance(instance):
        return abandonne(
            f"« {instance} » ne peut pas nommer une instance : {contrat.lieu('Names')}",
            f"\"{instance}\" cannot name an instance: {contrat.lieu('Names')}")
    adresse = os.environ.get("DBUS_SESSION_BUS_ADDRESS")
    try:
        adresse = adresse or Gio.dbus_address_get_for_bus_sync(Gio.BusType.SESSION, None)
        cible = Cible(instance, contrat, adresse, voulu.patience * 1000)
        if not voulu.document:
            return dis_documents(cible)
    except (GLib.Error, Perdu) as erreur:
        return abandonne(f"pas de compagnon « {instance} » sur le bus de session : {erreur}",
                         f"no companion \"{instance}\" on the session bus: {erreur}")

    def entier(identifiant: str | None) -> str | None:
        return identifiant and (identifiant if "~" in identifiant
                                else f"{cible.instance}~{identifiant}")
    options = Options(entier(voulu.document), entier(voulu.autre), entier(voulu.lecture_seule),
                      voulu.enregistre)
    choisies = [r for r in REGLES.values() if not voulu.regle or r.identifiant in voulu.regle]
    rapport = (Json(contrat, len(choisies), options.document) if voulu.sortie == "json"
               else Texte(contrat, len(choisies)))
    print(Bilingue(f"{options.document} est modifié pendant l'essai, puis remis comme avant.",
                   f"{options.document} is edited on the way, then put back as before."),
          file=sys.stderr)
    interrompable()
    try:
        bilan = deroule(cible, options, choisies, rapport.annonce, rapport.commence)
        rapport.conclus(bilan)
    except BrokenPipeError:  # nobody reads on
        with contextlib.suppress(OSError):
            os.dup2(os.open(os.devnull, os.O_WRONLY), sys.stdout.fileno())
        return INTERROMPU
    except (GLib.Error, Perdu, ValueError) as erreur:
        return abandonne(f"rien n'a pu être essayé : {erreur}", f"nothing could be tried: {erreur}")
    except KeyboardInterrupt:
        return INTERROMPU
    if bilan.ecarts:
        return PAS_REMIS
    return VIOLE if bilan.de_statut("violee") else TENU


def interrompable() -> None:
    """Asked to end, the run ends by putting the documents back; asked again meanwhile, it goes on."""
    signaux = (signal.SIGINT, signal.SIGTERM, signal.SIGHUP)

    def arrete(*_):
        for signal_ in signaux:
            signal.signal(signal_, signal.SIG_IGN)
        raise KeyboardInterrupt
    for signal_ in signaux:
        signal.signal(signal_, arrete)


def dis_documents(cible) -> int:
    """Nothing is edited that was not named: tells what could be."""
    from .hote import Hote
    hote = Hote(cible)
    reponse = hote.documents()
    hote.ferme()
    print(Bilingue("outils/contrat: il faut DOCUMENT ; ce compagnon sert :",
                   "outils/contrat: DOCUMENT is needed; this companion serves:"), file=sys.stderr)
    try:
        for document in json.loads(reponse.valeur):
            print(f"    {document['id']}  {document['titre']}", file=sys.stderr)
    except (TypeError, ValueError, KeyError):  # it does not keep to the contract
        print(f"    {reponse}", file=sys.stderr)
    return USAGE
