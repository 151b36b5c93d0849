# SPDX-License-Identifier: MPL-2.0
"""What the tests of the menu share: its addresses, and a host and a terminal that take notes."""

import json
import pathlib
import sys

import banc

PROTOCOLE = "com.ombrel.vocalyne:"
BARRE = "private:resource/toolbar/addon_com.ombrel.vocalyne"

HOTE = """#!{python}
import json, os, pathlib, sys
if sys.argv[1] == "diagnostic":
    print("the host is well")
    sys.exit(0)
pathlib.Path({notes!r}).write_text(json.dumps(
    {{"arguments": sys.argv[1:], "environnement": dict(os.environ)}}))
print("the host was here")
"""

# A terminal as real ones are: a command after -e, on a pseudo-terminal that ends with it.
TERMINAL = """#!{python}
import json, os, pathlib, pty, sys, termios
option, *commande = sys.argv[1:]
a_part = os.getsid(0) == os.getpid()
assert option == "-e", option
pid, maitre = pty.fork()
if pid == 0:
    os.execv(commande[0], commande)
dit = b""
demandes = 0
reponses = os.environ.get("VOCALYNE_ESSAI_REPONSES", "").split()
while not any(invite.encode() in dit for invite in ("Entrée pour fermer", "Enter to close")):
    dit += os.read(maitre, 4096)
    while demandes < dit.count(b" > "):
        lignes = termios.tcgetattr(maitre)[3] & termios.ICANON
        os.write(maitre, reponses[demandes].encode() + (b"\\n" if lignes else b""))
        demandes += 1
reste_ouvert = os.waitpid(pid, os.WNOHANG) == (0, 0)
os.write(maitre, b"\\n")
os.waitpid(pid, 0)
pathlib.Path({notes!r} + ".neuf").write_text(json.dumps(
    {{"dit": dit.decode(), "reste_ouvert": reste_ouvert, "a_part": a_part}}))
os.rename({notes!r} + ".neuf", {notes!r})
"""


class Outils:
    """A host and a terminal of the test's own, in a folder with a name that shells would trip over.
    The terminal types the words of VOCALYNE_ESSAI_REPONSES, one at each question of a host, and Enter
    where a line is waited for, not a key."""

    def __init__(self, nom):
        self.dossier = banc.DOSSIER / f"outils de l'essai; {nom}"
        self.dossier.mkdir()
        self.notes_hote = self.dossier / "hote.json"
        self.notes_terminal = self.dossier / "terminal.json"
        self.hote = self._programme("vocalyne-hote", HOTE, self.notes_hote)
        self.terminal = self._programme("terminal", TERMINAL, self.notes_terminal)
        self.environnement = {"VOCALYNE_HOTE": str(self.hote),
                              "VOCALYNE_TERMINAL": f'"{self.terminal}"'}

    def _programme(self, nom, modele, notes):
        programme = self.dossier / nom
        programme.write_text(modele.format(python=sys.executable, notes=str(notes)))
        programme.chmod(0o755)
        return programme

    def attends(self):
        """What host and terminal noted of one run, which is then forgotten."""
        banc.attends(self.notes_terminal.exists, "the terminal to end")
        notes = [json.loads(n.read_text()) if n.exists() else None
                 for n in (self.notes_hote, self.notes_terminal)]
        self.notes_hote.unlink(missing_ok=True)
        self.notes_terminal.unlink()
        return notes

    def attends_la_fenetre(self):
        """What the host noted of one run without a terminal, which is then forgotten."""
        def lis():
            try:
                return json.loads(self.notes_hote.read_text())
            except (FileNotFoundError, json.JSONDecodeError):
                return None  # not written, or not whole
        notes = banc.attends(lis, "the host to start")
        self.notes_hote.unlink()
        assert not self.notes_terminal.exists(), "a terminal was opened"
        return notes


def demande(bureau, cadre, commande):
    """Carries out what a menu entry would, on that window."""
    bureau.cree("com.sun.star.frame.DispatchHelper").executeDispatch(
        cadre, PROTOCOLE + commande, "_self", 0, ())


def met_en_francais(profil):
    """A profile whose office speaks French from its first start."""
    dossier = pathlib.Path(banc.DOSSIER, profil, "user")
    dossier.mkdir(parents=True)
    (dossier / "registrymodifications.xcu").write_text(
        """<?xml version="1.0" encoding="UTF-8"?>
<oor:items xmlns:oor="http://openoffice.org/2001/registry">
<item oor:path="/org.openoffice.Office.Linguistic/General">
<prop oor:name="UILocale" oor:op="fuse"><value>fr</value></prop></item>
</oor:items>
""")
