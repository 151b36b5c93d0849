# SPDX-License-Identifier: MPL-2.0
"""fais.py PROGRAM VERSION FOLDER: its manual in French and English, and its completions, below share/."""
import pathlib
import sys

import completion
import manuel
from aide import demande


def main(programme: str, version: str, dossier: str) -> None:
    anglais, francais = demande(programme, "C.UTF-8"), demande(programme, "fr_FR.UTF-8")
    nom = anglais.programme
    pages = {f"man/man1/{nom}.1": manuel.page(anglais, "en", version),
             f"man/fr/man1/{nom}.1": manuel.page(francais, "fr", version),
             f"bash-completion/completions/{nom}": completion.bash(anglais),
             f"zsh/site-functions/_{nom}": completion.zsh(anglais),
             f"fish/vendor_completions.d/{nom}.fish": completion.fish(anglais)}
    for lieu, texte in pages.items():
        fichier = pathlib.Path(dossier, "share", lieu)
        fichier.parent.mkdir(parents=True, exist_ok=True)
        fichier.write_text(texte, encoding="utf-8")


if __name__ == "__main__":
    main(*sys.argv[1:])
