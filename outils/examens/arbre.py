# SPDX-License-Identifier: MPL-2.0
"""A work tree: its files, and the few questions that several looks ask of them."""
import functools
import pathlib
import re
import subprocess

SOURCES = (".h", ".cpp")
# A comment, or a literal: what looks like code in them is none.
HORS_CODE = re.compile(r'//[^\n]*|/\*.*?\*/|R"(\w*)\(.*?\)\1"|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])*\'',
                       re.S)


class Arbre:
    """The text files of one work tree, by their paths in it."""

    def __init__(self, racine: pathlib.Path):
        self.racine = racine

    @functools.cached_property
    def chemins(self) -> list[pathlib.Path]:
        """Absolute paths: new files included, ignored and binary ones not."""
        return [c for c in self.tous if b"\0" not in c.read_bytes()[:8192]]

    @functools.cached_property
    def tous(self) -> list[pathlib.Path]:
        """The same with the binary ones."""
        noms = subprocess.run(["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"],
                              cwd=self.racine, stdout=subprocess.PIPE, check=True).stdout
        chemins = [self.racine / nom for nom in sorted(set(noms.decode().split("\0"))) if nom]
        return [c for c in chemins if c.is_file()]

    @functools.cached_property
    def noms(self) -> list[pathlib.PurePosixPath]:
        """Every file's path in the tree."""
        return [pathlib.PurePosixPath(c.relative_to(self.racine)) for c in self.tous]

    @functools.cached_property
    def dossiers(self) -> set[pathlib.PurePosixPath]:
        return {dossier for nom in self.noms for dossier in nom.parents}

    def texte(self, nom: pathlib.PurePosixPath) -> str:
        return (self.racine / nom).read_text(encoding="utf-8", errors="replace")


def code_seul(texte: str) -> str:
    """The text without comments and without what literals hold; its lines stay where they are."""
    return HORS_CODE.sub(lambda trouve: re.sub(r"[^\n]", " ", trouve.group()), texte)
