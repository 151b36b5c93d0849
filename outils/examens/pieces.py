# SPDX-License-Identifier: MPL-2.0
"""Includes go downward only, as outils/pieces.liste says, and name the room that they go to."""
import dataclasses
import pathlib
import re

from .arbre import SOURCES, Arbre

LISTE = pathlib.PurePosixPath("outils/pieces.liste")
INCLUSION = re.compile(r'^[ \t]*#[ \t]*include[ \t]*["<]([^">\n]+)[">]', re.M)


@dataclasses.dataclass
class Plan:
    """What the list says."""
    permis: dict[str, set[str]] = dataclasses.field(default_factory=dict)
    publiques: set[str] = dataclasses.field(default_factory=set)
    libres: set[str] = dataclasses.field(default_factory=set)
    genere: dict[str, str] = dataclasses.field(default_factory=dict)
    fautes: list[str] = dataclasses.field(default_factory=list)


def lis_plan(texte: str) -> Plan:
    """Reads the list; a line that names a room not yet written above it is a fault."""
    plan = Plan()
    for numero, ligne in enumerate(texte.splitlines(), 1):
        mots = ligne.split("#")[0].replace(":", " : ").split()
        if not mots:
            continue
        genre, nom, suite = mots[0], mots[1] if len(mots) > 1 else "", mots[2:]
        if not nom or genre not in ("room", "public", "free", "generated") or (suite and suite[0] != ":"):
            plan.fautes.append(f"{LISTE}:{numero}: not understood: {ligne.strip()}")
            continue
        vues = set()
        for cible in suite[1:]:
            designees = {p for p in plan.permis if p == cible or p.startswith(cible + "/")}
            if not designees:
                plan.fautes.append(f"{LISTE}:{numero}: {cible} is no room of a line above")
            vues |= designees
        if genre == "free":
            plan.libres.add(nom)
        elif genre == "generated":
            plan.genere[nom] = next(iter(vues), "")
        else:
            if nom in plan.permis:
                plan.fautes.append(f"{LISTE}:{numero}: {nom} stands twice")
            plan.permis[nom] = vues
            if genre == "public":
                plan.publiques.add(nom)
    return plan


def en_dessous(nom: pathlib.PurePosixPath, dossiers: set[str]) -> bool:
    return any(nom.is_relative_to(dossier) for dossier in dossiers)


def destination(inclus: str, depuis: pathlib.PurePosixPath, entetes: list[pathlib.PurePosixPath],
                plan: Plan) -> tuple[str | None, str]:
    """(room that the include goes to, fault): a room, a fault, or neither for what is not ours."""
    if depuis.parent / inclus in entetes:
        return str(depuis.parent), ""
    if inclus in plan.genere:
        return plan.genere[inclus], ""
    trouves = [e for e in entetes if str(e) == inclus or str(e).endswith("/" + inclus)]
    if not trouves:
        return None, "unknown"
    if len(trouves) > 1:
        return None, "is one of " + ", ".join(map(str, trouves))
    vers = trouves[0]
    piece = str(vers.parent)
    if piece not in plan.permis:
        return None, f"goes to {piece}, which is no room to include from"
    if "/" not in inclus and piece not in plan.publiques:
        return None, f'name the room: "{vers.parent.name}/{inclus}"'
    return piece, ""


def examine(arbre: Arbre) -> str:
    if LISTE not in arbre.noms:
        return f"{LISTE}: missing"
    plan = lis_plan(arbre.texte(LISTE))
    fautes = list(plan.fautes)
    sources = [nom for nom in arbre.noms if nom.suffix in SOURCES]
    entetes = [nom for nom in sources if nom.suffix == ".h"]
    fautes += [f"{LISTE}: {piece} is no folder" for piece in sorted({*plan.permis, *plan.libres})
               if pathlib.PurePosixPath(piece) not in arbre.dossiers]
    for nom in sources:
        if en_dessous(nom, plan.libres):
            continue
        piece = str(nom.parent)
        if piece not in plan.permis:
            fautes.append(f"{nom}: {piece} is not in {LISTE}")
            continue
        for trouve in INCLUSION.finditer(arbre.texte(nom)):
            vers, faute = destination(trouve.group(1), nom, entetes, plan)
            # What is between < > and not in the tree is a library's.
            if faute == "unknown" and trouve.group().endswith(">"):
                continue
            if not faute and vers != piece and vers not in plan.permis[piece]:
                faute = f"{piece} may not include from {vers}"
            if faute:
                fautes.append(f"{nom}: {trouve.group(1)}: {faute}")
    return "\n".join(fautes)
