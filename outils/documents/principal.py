# SPDX-License-Identifier: MPL-2.0
"""The command: its options, its exit codes."""

import argparse
import contextlib
import fnmatch
import pathlib
import shutil
import signal
import sys

from suite.langue import Bilingue, parle_francais
from suite.principal import Lecteur

from .equipe import DEPOT, Equipe, Reglages
from .rapport import Rapport, est_propre

PROPRE, TROUVE, USAGE, IMPOSSIBLE, INTERROMPU = 0, 1, 2, 3, 130
SUFFIXES = set(""".odt .ott .fodt .sxw .odm .doc .docx .docm .dotx .dot .rtf .wps .wpd .txt
    .ods .ots .fods .sxc .xls .xlsx .xlsm .xlt .xltx .csv
    .odp .otp .fodp .sxi .ppt .pptx .pptm .pps .potx .odg .otg .fodg""".split())

AIDE = Bilingue("""\
Éprouve l'extension LibreOffice sur tous les documents d'un dossier : des copies sont lues, corrigées
au hasard, enregistrées, annulées, et comparées avec le XML de ce qui était enregistré avant. Les
originaux ne sont pas touchés. Une différence que le bureau fait aussi sans l'extension est dite
« bureau », toute autre est une faute.
""", """\
Tries the LibreOffice extension on all documents of a folder: copies are read, corrected at random,
saved, undone, and compared with the XML of what was saved before. The originals are left alone. A
difference that the office makes without the extension as well is told as "office", any other is a fault.
""")
CODES = Bilingue("""\
Codes de sortie : 0 aucune faute ; 1 une faute ; 2 mauvaise option ; 3 rien n'a pu être essayé ;
130 interrompu.
""", """\
Exit codes: 0 no fault; 1 a fault; 2 wrong option; 3 nothing could be tried; 130 interrupted.
""")


def analyse() -> argparse.ArgumentParser:
    def dis(francais: str, anglais: str) -> str:
        return francais if parle_francais() else anglais
    lecteur = Lecteur(prog="outils/torture", description=str(AIDE), epilog=str(CODES),
                      add_help=False, formatter_class=argparse.RawDescriptionHelpFormatter)
    lecteur._positionals.title, lecteur._optionals.title = "arguments", "options"
    lecteur.add_argument("dossier", metavar="DOSSIER", type=pathlib.Path, help=dis(
        "dossier de documents, sous-dossiers compris, ou un seul document",
        "a folder of documents, with its subfolders, or one document"))
    lecteur.add_argument("--graine", metavar="N", type=int, default=1, help=dis(
        "d'autres corrections, les mêmes pour le même nombre (1)",
        "other corrections, the same for the same number (1)"))
    lecteur.add_argument("--corrections", metavar="N", type=_entre(0, 99), default=20, help=dis(
        "corrections par document (20)", "corrections in each document (20)"))
    lecteur.add_argument("--seulement", metavar="MOTIF", action="append", help=dis(
        "seulement les documents de ce nom (* et ? permis) ; répétable",
        "only documents of that name (* and ? allowed); may be given again"))
    lecteur.add_argument("--jusqua", metavar="N", type=_entre(1, 10**9), help=dis(
        "seulement les N premiers", "the first N only"))
    lecteur.add_argument("--places", metavar="N", type=_entre(1, 16), default=1, help=dis(
        "bureaux à la fois (1)", "offices at a time (1)"))
    lecteur.add_argument("--patience", metavar="S", type=_entre(1, 86400), default=180, help=dis(
        "secondes par document, avant d'arrêter le bureau (180)",
        "seconds for each document, before the office is ended (180)"))
    lecteur.add_argument("--par-bureau", metavar="N", type=_entre(1, 10**9), default=15, help=dis(
        "documents avant de relancer le bureau (15)", "documents before a new office is started (15)"))
    lecteur.add_argument("--json", metavar="FICHIER", type=argparse.FileType("w", encoding="utf-8"),
                         help=dis("une ligne JSON par document", "a line of JSON for each document"))
    lecteur.add_argument("--oxt", metavar="OXT", type=pathlib.Path, help=dis(
        "paquet de l'extension ; sans lui, celui qui vient d'être construit",
        "the extension's package; by default the one built last"))
    lecteur.add_argument("-h", "--help", action="help", help=dis("cette aide", "this help"))
    return lecteur


def _entre(minimum: int, maximum: int):
    def lis(dit: str) -> int:
        if not dit.isdecimal() or not minimum <= int(dit) <= maximum:
            raise argparse.ArgumentTypeError(f"{dit} ({minimum}…{maximum})")
        return int(dit)
    return lis


def documents(dossier: pathlib.Path, motifs: list[str] | None) -> list[tuple[str, pathlib.Path]]:
    """What can be opened there, by its name in the folder."""
    if dossier.is_file():
        return [(dossier.name, dossier)]
    tous = sorted((str(chemin.relative_to(dossier)), chemin) for chemin in dossier.rglob("*")
                  if chemin.suffix.lower() in SUFFIXES and chemin.is_file()
                  and not chemin.name.startswith((".~lock", "~$")))
    return [(nom, chemin) for nom, chemin in tous
            if not motifs or any(fnmatch.fnmatchcase(nom, m) or fnmatch.fnmatchcase(chemin.name, m)
                                 for m in motifs)]


def paquet(voulu: pathlib.Path | None) -> pathlib.Path | None:
    construits = [voulu] if voulu else DEPOT.glob("build/*/share/vocalyne/vocalyne-libreoffice.oxt")
    presents = [oxt for oxt in construits if oxt.is_file()]
    return max(presents, key=lambda oxt: oxt.stat().st_mtime, default=None)


def abandonne(francais: str, anglais: str, code: int) -> int:
    print(f"outils/torture: {Bilingue(francais, anglais)}", file=sys.stderr)
    return code


def main() -> int:
    voulu = analyse().parse_args()
    trouves = documents(voulu.dossier, voulu.seulement)[:voulu.jusqua]
    if not trouves:
        return abandonne(f"aucun document dans {voulu.dossier}",
                         f"there is no document in {voulu.dossier}", USAGE)
    oxt = paquet(voulu.oxt)
    if not oxt:
        return abandonne("l'extension n'est pas construite : cible vocalyne_oxt (ou --oxt)",
                         "the extension is not built: target vocalyne_oxt (or --oxt)", IMPOSSIBLE)
    if not shutil.which("soffice"):
        return abandonne("il manque LibreOffice : outils/paquets extension",
                         "LibreOffice is missing: outils/paquets extension", IMPOSSIBLE)
    for signal_ in (signal.SIGTERM, signal.SIGHUP):
        signal.signal(signal_, signal.default_int_handler)
    rapport = Rapport(len(trouves), voulu.json)
    equipe = Equipe(Reglages(oxt, voulu.graine, voulu.corrections, voulu.patience,
                             voulu.par_bureau), trouves)
    propre = True
    try:
        with contextlib.closing(equipe.deroule(min(voulu.places, len(trouves)),
                                               rapport.commence)) as bilans:
            for bilan in bilans:
                rapport.annonce(bilan)
                propre = propre and est_propre(bilan)
    except KeyboardInterrupt:
        return INTERROMPU
    rapport.conclus()
    return PROPRE if propre else TROUVE
