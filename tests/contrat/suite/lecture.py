# SPDX-License-Identifier: MPL-2.0
"""Strict reading of a zone document: the zones, and whatever is wrong with how they are written."""

import base64
import binascii
import json
import re
from dataclasses import dataclass, field

from . import textes
from .langue import Bilingue, abrege
from .protocole import BITS_DE_STYLE, LIMITE_REPONSE

ALPHABET = re.compile(r"([A-Za-z0-9+/]{4})*([A-Za-z0-9+/]{2}==|[A-Za-z0-9+/]{3}=)?")
POSITION_MAX = 2**31 - 1


@dataclass
class Zone:
    nom: str
    texte: str
    selection: tuple[int, int]
    styles: list[tuple[int, int, int]]

    def __len__(self) -> int:
        return textes.unites(self.texte)

    def __bool__(self) -> bool:
        return True


@dataclass
class Lecture:
    """What was read. `fautes` of its form, `bornes` of its selections, `runs` of its styles."""
    zones: list[Zone] = field(default_factory=list)
    fautes: list[Bilingue] = field(default_factory=list)
    bornes: list[Bilingue] = field(default_factory=list)
    plages: list[Bilingue] = field(default_factory=list)

    def faute(self, francais: str, anglais: str):
        self.fautes.append(Bilingue(francais, anglais))


def lis(brut: str) -> Lecture:
    lecture = Lecture()
    if not brut.isascii():
        lecture.faute("le document de zones n'est pas en ASCII", "the zone document is not ASCII")
    if len(brut) > LIMITE_REPONSE:
        lecture.faute(f"{len(brut)} octets, {LIMITE_REPONSE} au plus",
                      f"{len(brut)} bytes, {LIMITE_REPONSE} at most")
    try:
        racine = json.loads(brut)
    except ValueError as erreur:
        lecture.faute(f"ce n'est pas du JSON : {erreur}", f"is not JSON: {erreur}")
        return lecture
    zones = racine.get("Zones", []) if isinstance(racine, dict) else None
    if not isinstance(zones, list):
        lecture.faute(f"ni objet ni liste de zones : {abrege(racine)}",
                      f"no object, or no array of zones: {abrege(racine)}")
        return lecture
    for rang, zone in enumerate(zones):
        _lis_zone(lecture, rang, zone)
    return lecture


def _lis_zone(lecture: Lecture, rang: int, zone) -> None:
    if not isinstance(zone, dict):
        lecture.faute(f"zone {rang} : pas un objet", f"zone {rang}: no object")
        return
    nom, texte = (_decode(lecture, rang, cle, zone.get(cle)) for cle in ("Nom", "Texte"))
    if nom is None or texte is None:
        return
    selection = tuple(_entier(lecture, rang, cle, zone.get(cle, 0), POSITION_MAX)
                      for cle in ("DebutSel", "FinSel"))
    _examine(lecture.bornes, rang, texte, *selection)
    brutes = zone.get("InfosStyle", [])
    if not isinstance(brutes, list) or not all(isinstance(b, dict) for b in brutes):
        lecture.faute(f"zone {rang} : InfosStyle n'est pas une liste d'objets",
                      f"zone {rang}: InfosStyle is no array of objects")
        brutes = []
    styles = [(_entier(lecture, rang, "Debut", b.get("Debut"), POSITION_MAX),
               _entier(lecture, rang, "Fin", b.get("Fin"), POSITION_MAX),
               _entier(lecture, rang, "Style", b.get("Style"), 65535)) for b in brutes]
    _examine_styles(lecture, rang, texte, styles)
    lecture.zones.append(Zone(nom, texte, selection, styles))


def _decode(lecture: Lecture, rang: int, cle: str, brut) -> str | None:
    if not isinstance(brut, str) or not ALPHABET.fullmatch(brut):
        lecture.faute(f"zone {rang} : {cle} n'est pas en Base64 : {abrege(brut)}",
                      f"zone {rang}: {cle} is not Base64: {abrege(brut)}")
        return None
    try:
        octets = base64.b64decode(brut, validate=True)
        texte = octets.decode("utf-8")
    except (binascii.Error, UnicodeDecodeError) as erreur:
        lecture.faute(f"zone {rang} : {cle} n'est pas de l'UTF-8 : {erreur}",
                      f"zone {rang}: {cle} is not UTF-8: {erreur}")
        return None
    if "\0" in texte:
        lecture.faute(f"zone {rang} : {cle} contient U+0000", f"zone {rang}: {cle} holds U+0000")
    return texte


def _entier(lecture: Lecture, rang: int, cle: str, valeur, maximum: int) -> int:
    if isinstance(valeur, bool) or not isinstance(valeur, int) or not 0 <= valeur <= maximum:
        lecture.faute(f"zone {rang} : {cle} n'est pas un entier de 0 à {maximum} : {abrege(valeur)}",
                      f"zone {rang}: {cle} is no integer from 0 to {maximum}: {abrege(valeur)}")
        return 0
    return valeur


def _examine(fautes: list[Bilingue], rang: int, texte: str, debut: int, fin: int) -> bool:
    taille = textes.unites(texte)
    if not debut <= fin <= taille:
        fautes.append(Bilingue(f"zone {rang} : {debut}..{fin} sort de ses {taille} unités",
                               f"zone {rang}: {debut}..{fin} leaves its {taille} units"))
        return False
    if textes.coupe_paire(texte, debut) or textes.coupe_paire(texte, fin):
        fautes.append(Bilingue(f"zone {rang} : {debut}..{fin} coupe une paire",
                               f"zone {rang}: {debut}..{fin} parts a surrogate pair"))
        return False
    return True


def _examine_styles(lecture: Lecture, rang: int, texte: str, styles) -> None:
    precedente = (0, 0, 0)
    for debut, fin, style in styles:
        dite = f"{debut}..{fin} (style {style})"
        if not _examine(lecture.plages, rang, texte, debut, fin):
            continue
        if debut == fin or style == 0 or style & ~BITS_DE_STYLE:
            lecture.plages.append(Bilingue(f"zone {rang} : plage vide ou bits inconnus : {dite}",
                                           f"zone {rang}: empty run, or unknown bits: {dite}"))
        if debut < precedente[1]:
            lecture.plages.append(Bilingue(f"zone {rang} : {dite} n'est pas dans l'ordre",
                                           f"zone {rang}: {dite} is out of order"))
        elif debut == precedente[1] and style == precedente[2]:
            lecture.plages.append(Bilingue(f"zone {rang} : {dite} continue la plage d'avant",
                                           f"zone {rang}: {dite} goes on with the run before"))
        precedente = (debut, fin, style)
