# SPDX-License-Identifier: MPL-2.0
"""Which files were found clean, by all that they are made of."""
import functools
import hashlib
import os
import pathlib
import re
import subprocess

from .commandes import Commande

VALIDE = re.compile(r"^(\S.*): #deps \d+, deps mtime (\d+) \(VALID\)$")


def dossier() -> pathlib.Path:
    maison = os.environ.get("XDG_CACHE_HOME") or os.path.expanduser("~/.cache")
    return pathlib.Path(os.environ.get("VOCALYNE_CACHE") or maison + "/vocalyne") / "tidy"


class Cache:
    """One mark a clean file, in a folder that clones share."""

    def __init__(self, arbre: pathlib.Path, construction: pathlib.Path, identite: bytes):
        self.arbre, self.construction, self.identite = arbre, construction, identite
        dossier().mkdir(parents=True, exist_ok=True)

    def connait(self, commande: Commande) -> bool:
        marque = self.marque(commande)
        if marque is None or not marque.exists():
            return False
        os.utime(marque)
        return True

    def retient(self, commande: Commande) -> None:
        if marque := self.marque(commande):
            marque.touch()

    @functools.cached_property
    def inclusions(self) -> dict[str, tuple[int, list[str]]]:
        """What the compiler said that each result is made of, and when (nanoseconds)."""
        dites, lues = {}, None
        sortie = subprocess.run(["ninja", "-C", self.construction, "-t", "deps"], check=False,
                                stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True).stdout
        for ligne in sortie.splitlines():
            if trouve := VALIDE.match(ligne):
                lues = []
                dites[trouve.group(1)] = (int(trouve.group(2)), lues)
            elif not ligne.startswith(" "):
                lues = None
            elif lues is not None:
                lues.append(ligne.strip())
        return dites

    @functools.cache
    def marque(self, commande: Commande) -> pathlib.Path | None:
        matiere = self.des_inclusions(commande) or self.du_preprocesseur(commande)
        if matiere is None:
            return None
        drapeaux = self.sans_lieu(" ".join(commande.drapeaux))
        parties = [matiere, drapeaux.encode(), self.configurations(commande), self.identite]
        return dossier() / hashlib.sha256(b"\0".join(parties)).hexdigest()

    def des_inclusions(self, commande: Commande) -> bytes | None:
        """The files' own marks; None where a file is newer than what the compiler said."""
        date, fichiers = self.inclusions.get(commande.resultat, (0, []))
        if not fichiers:
            return None
        empreintes = []
        for nom in fichiers:
            quand, empreinte = self.empreinte(commande.dossier, nom)
            if not empreinte or quand > date:
                return None
            empreintes.append(empreinte)
        return "\n".join(sorted(set(empreintes))).encode()

    def est_notre(self, chemin: pathlib.Path) -> bool:
        return chemin.is_relative_to(self.arbre) or chemin.is_relative_to(self.construction)

    @functools.cache
    def empreinte(self, dossier_de_construction: pathlib.Path, nom: str) -> tuple[int, str]:
        """(date, name and mark) of a file: its content for ours, else its size and date."""
        try:
            chemin = (dossier_de_construction / nom).resolve()
            etat = chemin.stat()
            if not self.est_notre(chemin):
                return 0, f"{chemin} {etat.st_size} {etat.st_mtime_ns}"
            contenu = self.sans_lieu(chemin.read_text(encoding="utf-8", errors="surrogateescape"))
            somme = hashlib.sha256(contenu.encode("utf-8", "surrogateescape")).hexdigest()
            return etat.st_mtime_ns, f"{self.sans_lieu(str(chemin))} {somme}"
        except OSError:
            return 0, ""

    def du_preprocesseur(self, commande: Commande) -> bytes | None:
        """The whole text, its comments too, as they hold the NOLINTs. Slow: for what is not built."""
        vu = subprocess.run(["c++", *commande.drapeaux, "-E", "-CC", "-o", "-", commande.fichier],
                            cwd=commande.dossier, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                            check=False)
        # Line markers stay, as findings name lines.
        return vu.stdout.replace(os.fsencode(self.arbre), b".") if vu.returncode == 0 else None

    def sans_lieu(self, texte: str) -> str:
        return texte.replace(str(self.construction), "=").replace(str(self.arbre), ".")

    def configurations(self, commande: Commande) -> bytes:
        """Every .clang-tidy that holds for the file, nearest first."""
        fichiers = (d / ".clang-tidy" for d in commande.fichier.parents
                    if d == self.arbre or self.arbre in d.parents)
        return b"\0".join(f.read_bytes() for f in fichiers if f.exists())
