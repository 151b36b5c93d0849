# SPDX-License-Identifier: MPL-2.0
"""A program's completions for three shells."""
import re

from aide import Aide, Commande

# Names of arguments that stand for files, and for the documents that can be had now.
FICHIERS = {"FILE", "CONNECTOR"}
IDENTIFIANTS = {"ID"}
ENTETE = "# Made from what the program says with --help.\n"


def fonction(aide: Aide) -> str:
    return "_" + aide.programme.replace("-", "_")


def valeurs(commandes: list[Commande]) -> dict[str, str | None]:
    """The options of all commands with their values."""
    return {o: v for c in commandes for o, v in c.options.items()}


def listes(valeur: str | None) -> str:
    return " ".join(valeur.split("|")) if valeur and "|" in valeur else ""


def bash(aide: Aide) -> str:
    commandes = aide.commandes()
    nommees = [c for c in commandes if c.nom]
    cas = []
    for option, valeur in valeurs(commandes).items():
        if valeur:
            suite = f'COMPREPLY=($(compgen -W "{listes(valeur)}" -- "$mot"))' if listes(valeur) else \
                "compopt -o default" if valeur in FICHIERS else ":"
            cas.append(f"        {option}) {suite}; return ;;")
    choix = []
    for commande in commandes:
        mots = " ".join([*commande.mots, *commande.options])
        action = ' mots+=" $(' + aide.programme + " documents 2>/dev/null | cut -d' ' -f1)\";" \
            if IDENTIFIANTS & set(commande.arguments) else ""
        fichiers = " compopt -o default;" if FICHIERS & set(commande.arguments) else ""
        choix.append(f'        {commande.nom or "*"}) mots="{mots}";{action}{fichiers} ;;')
    premiers = " ".join([c.nom for c in nommees] + [o for c in commandes if not c.nom for o in c.options])
    premier = f"""    if [ "$COMP_CWORD" -eq 1 ]; then
        COMPREPLY=($(compgen -W "{premiers}" -- "$mot"))
        return
    fi
""" if nommees else ""
    choix.sort(key=lambda ligne: ligne.lstrip().startswith("*"))
    return f"""{ENTETE}{fonction(aide)}() {{
    local mot=${{COMP_WORDS[COMP_CWORD]}} mots=
    COMPREPLY=()
    case ${{COMP_WORDS[COMP_CWORD - 1]}} in
{chr(10).join(cas)}
    esac
{premier}    case ${{COMP_WORDS[1]}} in
{chr(10).join(choix)}
    esac
    COMPREPLY=($(compgen -W "$mots" -- "$mot"))
}}
complete -F {fonction(aide)} {aide.programme}
"""


def textes(aide: Aide) -> dict[str, str]:
    """What is said of each option and command, by its name."""
    dits = {}
    for entree in aide.entrees():
        for nom in re.findall(r"--[a-z][a-z-]*|^[a-z]+", entree.terme):
            dits.setdefault(nom, re.split(r"[.;:,](?:\s|$)", entree.texte)[0].replace("'", "’"))
    return dits


def fish(aide: Aide) -> str:
    dits, lignes = textes(aide), []
    for commande in aide.commandes():
        condition = f" -n '__fish_seen_subcommand_from {commande.nom}'" if commande.nom else ""
        if commande.nom:
            lignes.append(f"complete -c {aide.programme} -n __fish_use_subcommand -f -a {commande.nom}"
                          f" -d '{dits.get(commande.nom, '')}'")
        for mot in commande.mots:
            lignes.append(f"complete -c {aide.programme}{condition} -f -a {mot}")
        for option, valeur in commande.options.items():
            genre = f" -x -a '{listes(valeur)}'" if listes(valeur) else " -r" if valeur in FICHIERS else \
                " -x" if valeur else ""
            lignes.append(f"complete -c {aide.programme}{condition} -l {option[2:]}{genre}"
                          f" -d '{dits.get(option, '')}'")
    return ENTETE + "\n".join(lignes) + "\n"


def zsh_option(option: str, valeur: str | None, texte: str) -> str:
    texte = re.sub(r"[][:]", " ", texte)
    suite = f":value:({listes(valeur)})" if listes(valeur) else ":file:_files" if valeur in FICHIERS else \
        f":{valeur}:" if valeur else ""
    return f"'{option}[{texte}]{suite}'"


def zsh(aide: Aide) -> str:
    dits, cas, noms = textes(aide), [], []
    for commande in aide.commandes():
        arguments = [zsh_option(o, v, dits.get(o, "")) for o, v in commande.options.items()]
        if commande.mots:
            arguments.append(f"'1:word:({' '.join(commande.mots)})'")
        if FICHIERS & set(commande.arguments):
            arguments.append("'*:file:_files'")
        appel = "_arguments " + " ".join(arguments) if arguments else "_message 'no arguments'"
        if commande.nom:
            noms.append(f"'{commande.nom}:{dits.get(commande.nom, '')}'")
        cas.append((commande.nom, appel))
    if not noms:
        return f"#compdef {aide.programme}\n{ENTETE}{cas[0][1]}\n"
    branches = "\n".join(f"    {nom or '*'}) {appel} ;;" for nom, appel in sorted(cas, key=lambda c: not c[0]))
    return f"""#compdef {aide.programme}
{ENTETE}local -a commandes
commandes=({' '.join(noms)})
if (( CURRENT == 2 )); then
    _describe command commandes
    return
fi
local commande=$words[2]
shift words
(( CURRENT-- ))
case $commande in
{branches}
esac
"""
