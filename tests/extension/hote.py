# SPDX-License-Identifier: MPL-2.0
"""The host and the plug-in of the build, run as a person or a program runs them."""

import json
import os
import subprocess

import banc

PROGRAMME = banc.DOSSIER / "prefixe/bin/vocalyne-hote"
CLASSE = "VCLSalFrame:OpenOffice.org 4.0"


class Hote:
    """Calls of vocalyne-hote on one bus."""

    def __init__(self, adresse_du_bus):
        self.env = dict(os.environ, DBUS_SESSION_BUS_ADDRESS=adresse_du_bus, LANG="C.UTF-8",
                        NO_COLOR="1")

    def lance(self, *options, statut=0):
        fini = subprocess.run([PROGRAMME, *options], env=self.env, capture_output=True, text=True,
                              stdin=subprocess.DEVNULL, timeout=banc.PATIENCE, check=False)
        assert fini.returncode == statut, (options, fini.returncode, fini.stdout, fini.stderr)
        return fini.stdout

    def documents(self):
        return json.loads(self.lance("documents", "--sortie", "json"))

    def identifiant(self, titre):
        """The document of that title, once it is listed."""
        def cherche():
            return [d["id"] for d in self.documents() if d["titre"] == titre]
        [identifiant] = banc.attends(cherche, f"{titre} to be listed")
        return identifiant

    def corrige(self, identifiant, langue="fr", statut=0):
        return json.loads(self.lance("corrige", identifiant, "--langue", langue, "--automatique",
                                     "--tout", "--sortie", "json", statut=statut))


class Pilote:
    """One `vocalyne-hote pilote`, kept open: a request, an answer."""

    def __init__(self, hote):
        self.processus = subprocess.Popen([PROGRAMME, "pilote"], env=hote.env, text=True,
                                          stdin=subprocess.PIPE, stdout=subprocess.PIPE)

    def ferme(self):
        self.processus.stdin.close()
        self.processus.wait(banc.PATIENCE)
        self.processus.stdout.close()

    def __call__(self, op, **arguments):
        self.processus.stdin.write(json.dumps({"op": op, **arguments}) + "\n")
        self.processus.stdin.flush()
        reponse = json.loads(self.processus.stdout.readline())
        assert reponse["op"] == op and "erreur" not in reponse, reponse
        return reponse["resultat"]

    def ouvre(self, identifiant):
        """An agent on that document, made as a host makes it; false when there is none to be had."""
        infos = {"Id": identifiant, "ClasseInitialisation": CLASSE, "Genre": 1, "Classe": CLASSE}
        if not self("CreeAgentTexteur", idDocument=identifiant, infos=infos):
            return False
        self("InitialisePour", mode=0)
        self("ActivePour", mode=0)
        return True

    def zones(self):
        return self("DonneZones", vide=True)["zones"]

    def corrige(self, zone, cherche, remplace, zones):
        """Sent without waiting for it: the next answer tells that it was served."""
        debut = banc.unites(zones[zone]["texte"][:zones[zone]["texte"].index(cherche)])
        fin = debut + banc.unites(cherche)
        return self("CorrigeDansTexteur", zone=zone, debut=debut, fin=fin, texte=remplace,
                    drapeau=False)

    def peut(self, zone, cherche, zones):
        debut = banc.unites(zones[zone]["texte"][:zones[zone]["texte"].index(cherche)])
        return self("PeutCorriger", zone=zone, debut=debut, fin=debut + banc.unites(cherche),
                    texte=cherche)
