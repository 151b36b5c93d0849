#!/usr/bin/python3
# SPDX-License-Identifier: MPL-2.0
"""compagnon.py FILE...: the smallest companion. Serves text files, a line a zone, on the session bus;
prints each document's identifier once it can be called. Needs PyGObject; SIGTERM saves and ends it."""
import base64
import json
import os
import pathlib
import signal
import sys

import gi

gi.require_version("Gio", "2.0")
from gi.repository import Gio, GLib  # noqa: E402

NOM = "com.ombrel.vocalyne.texteurs."
PROXY = NOM + "openoffice.proxy.interface"
DOCUMENTS = NOM + "openoffice.documents.interface"
UNITES_MAX = 8192
INTERDITS = set(map(chr, range(32))) - {"\t"} | {"\x7f"}
ICI = pathlib.Path(__file__).resolve()
# Beside the sources, or in an installed prefix: share/doc/NAME/exemples/compagnon-python/.
PROTOCOLE = next(d for d in (ICI.parents[2] / "protocol", ICI.parents[4] / "vocalyne/protocol") if d.is_dir())


def unites(texte):
    """Positions count UTF-16 units, so texts are held with one character for each."""
    octets = texte.encode("utf-16-le", "surrogatepass")
    return "".join(chr(octets[i] | octets[i + 1] << 8) for i in range(0, len(octets), 2))


def lettres(suite):
    return suite.encode("utf-16-le", "surrogatepass").decode("utf-16-le", "replace")


def coupe(texte, place):
    """Whether the place is inside of a surrogate pair."""
    return 0 < place < len(texte) and "\ud800" <= texte[place - 1] < "\udc00" <= texte[place] < "\ue000"


class Refus(Exception):
    """An error of the contract, by its name."""


class Document:
    def __init__(self, cle, chemin):
        self.cle, self.chemin = cle, chemin.resolve()
        # Line ends other than LF stay where they are, as fillers would: nobody may put one in.
        self.zones = {f"{cle}-{rang}": unites(ligne) for rang, ligne in
                      enumerate(chemin.read_bytes().decode("utf-8").split("\n"))}
        self.selection, self.change = (next(iter(self.zones)), 0, 0), False

    def enregistre(self):
        if not self.change:
            return False
        provisoire = self.chemin.with_name(self.chemin.name + ".nouveau")
        provisoire.write_bytes("\n".join(map(lettres, self.zones.values())).encode("utf-8"))
        provisoire.replace(self.chemin)
        self.change = False
        return True


class Appelant:
    """What one connection was given: by document, the text of each zone, and up to where that holds."""

    def __init__(self):
        self.document, self.donnees, self.dite, self.refus = None, {}, None, {}


class Compagnon:
    """The contract's methods, by their names, the caller first."""

    def __init__(self, fichiers):
        self.instance = f"python_{os.getpid()}"
        self.documents = [Document(f"d{rang}", pathlib.Path(f)) for rang, f in enumerate(fichiers, 1)]
        self.appelants = {}

    def DonneDocuments(self, _):
        return json.dumps([{"id": f"{self.instance}~{d.cle}", "titre": d.chemin.name, "chemin": str(d.chemin),
                            "genre": "texte"} for d in self.documents])

    def Enregistre(self, _, identifiant):
        return self.identifie(identifiant).enregistre()

    def identifie(self, identifiant):
        document = next((d for d in self.documents if f"{self.instance}~{d.cle}" == identifiant), None)
        if document is None:
            raise Refus("DocumentInconnu")
        return document

    def InitialiseTexteur(self, qui, cle):
        qui.document = self.identifie(f"{self.instance}~{cle}")

    def DocEstMort(self, _, cle):
        return cle not in (d.cle for d in self.documents)

    def courant(self, qui):
        if qui.document is None:
            raise Refus("AucunDocument")
        return qui.document

    def DonneTitreDocument(self, qui):
        return self.courant(qui).chemin.name

    def DonneCheminDocument(self, qui):
        return str(self.courant(qui).chemin)

    def PermetsRetourDeCharriot(self, qui):
        return self.courant(qui) is None  # a zone is a line

    def ActivePourCorrecteur(self, qui):
        self.documents.sort(key=lambda d: d is not self.courant(qui))

    ActivePourOutils = ActivePourCorrecteur

    def InitialisePourCorrecteur(self, qui, _=False):
        self.courant(qui)
        qui.dite = None

    InitialisePourOutils = InitialisePourCorrecteur

    def Suspends(self, qui):
        """Nothing to pause."""

    def RompsLienCorrecteur(self, qui):
        if qui.document is not None:
            qui.donnees.pop(qui.document.cle, None)

    def RompsLienTexteur(self, qui):
        self.RompsLienCorrecteur(qui)
        qui.document = None

    def SynchronisePositions(self, qui, identifiant):
        qui.document = document = self.identifie(identifiant)
        qui.donnees[document.cle] = {nom: (texte, len(texte)) for nom, texte in document.zones.items()}
        code = lambda texte: base64.b64encode(texte.encode("utf-8")).decode()  # noqa: E731
        zones = [{"Nom": code(nom), "Texte": code(lettres(texte))} for nom, texte in document.zones.items()]
        choisie, debut, fin = document.selection
        zones[list(document.zones).index(choisie)] |= {"DebutSel": debut, "FinSel": fin}
        return json.dumps({"Zones": zones})

    def zone(self, qui, nom):
        """The document of a zone that the caller was given, which becomes the one it last named."""
        for document in self.documents:
            if nom in qui.donnees.get(document.cle, {}):
                qui.document = document
                return document
        raise Refus("ZoneInconnue")

    def place(self, qui, nom, debut, fin):
        """Where the range that the caller means stands now: in front of, or behind, what changed since."""
        document = self.zone(qui, nom)
        texte, (vue, borne) = document.zones[nom], qui.donnees[document.cle][nom]
        if not 0 <= debut <= fin <= borne or coupe(vue, debut) or coupe(vue, fin):
            raise Refus("PlageRefusee")
        avant = len(os.path.commonprefix([vue, texte]))
        apres = min(len(os.path.commonprefix([vue[::-1], texte[::-1]])), min(len(vue), len(texte)) - avant)
        if vue == texte or fin < avant:
            return debut, fin
        if debut > len(vue) - apres:
            return debut + len(texte) - len(vue), fin + len(texte) - len(vue)
        raise Refus("PlageRefusee")

    @staticmethod
    def examine(document):
        if not os.access(document.chemin, os.W_OK):
            raise Refus("LectureSeule")

    def PeutCorriger(self, qui, nom, debut, fin, attendu):
        try:
            self.examine(self.zone(qui, nom))
            debut, fin = self.place(qui, nom, debut, fin)
        except Refus as refus:
            qui.refus[nom] = str(refus)
            return False
        permis = qui.document.zones[nom][debut:fin] == unites(attendu)
        qui.refus[nom] = "" if permis else "PlageRefusee"
        return permis

    def CorrigeDansTexteur(self, qui, nom, debut, fin, texte, _automatique):
        document, nouveau = self.zone(qui, nom), unites(texte)
        vue, borne = qui.donnees[document.cle][nom]
        try:
            self.ecris(document, nom, nouveau, lambda: self.place(qui, nom, debut, fin))
        except Refus as refus:
            # The caller may count from either text behind that.
            qui.donnees[document.cle][nom] = (vue, min(borne, max(0, min(debut, fin))))
            qui.refus[nom] = str(refus)
            raise
        qui.refus[nom] = ""
        qui.donnees[document.cle][nom] = (vue[:debut] + nouveau + vue[fin:], borne + len(nouveau) - fin + debut)

    def ecris(self, document, nom, nouveau, trouve):
        """Puts the new text where `trouve` says, or nothing at all."""
        if len(nouveau) > UNITES_MAX:
            raise Refus("TropGrand")
        self.examine(document)
        debut, fin = trouve()
        if INTERDITS & set(nouveau):
            raise Refus("FinDeLigne")
        texte = document.zones[nom]
        if INTERDITS & set(texte[debut:fin]):
            raise Refus("ChampDetruit")
        document.zones[nom], document.change = texte[:debut] + nouveau + texte[fin:], True

    def DonneRefus(self, qui, nom):
        if not any(nom in zones for zones in qui.donnees.values()):
            raise Refus("ZoneInconnue")
        code = qui.refus.get(nom, "")
        return code, f"This was not corrected ({code})." if code else ""

    def SelectionneIntervalle(self, qui, nom, debut, fin):
        debut, fin = self.place(qui, nom, debut, fin)
        qui.document.selection = (nom, debut, fin)
        self.dis(qui)

    def dis(self, qui):
        """Tells the caller the selection, and remembers what it was told."""
        document = self.courant(qui)
        qui.dite = (*document.selection, document.zones[document.selection[0]])
        return qui.dite

    def DonneContenuSelection(self, qui):
        _, debut, fin, texte = self.dis(qui)
        return self.en_reponse(texte[debut:fin])

    def DonneContexteSelection(self, qui):
        return self.en_reponse(self.dis(qui)[3])

    @staticmethod
    def en_reponse(texte):
        return lettres("\a" + texte[1:] if texte.startswith("\ufeff") else texte)  # Qt's readers drop it

    def DonneDebutSelection(self, qui):
        return self.dis(qui)[1]

    def DonneFinSelection(self, qui):
        return self.dis(qui)[2]

    DonneDebutSelectionDansSonContexte = DonneDebutSelection
    DonneFinSelectionDansSonContexte = DonneFinSelection

    def AjusteSelectionPourOutils(self, qui, delta_debut, delta_fin):
        nom, debut, fin = self.courant(qui).selection
        texte, debut, fin = qui.document.zones[nom], debut + delta_debut, fin + delta_fin
        if not 0 <= debut <= fin <= len(texte) or coupe(texte, debut) or coupe(texte, fin):
            raise Refus("SelectionImpossible")
        qui.document.selection = (nom, debut, fin)
        self.dis(qui)

    def RemplaceEtReselectionne(self, qui, mot):
        document, nouveau = self.courant(qui), unites(mot)
        nom, debut, fin = document.selection

        def trouve():
            if qui.dite not in (None, (nom, debut, fin, document.zones[nom])):
                raise Refus("PlageRefusee")
            return debut, fin
        self.ecris(document, nom, nouveau, trouve)
        document.selection = (nom, debut, debut + len(nouveau))
        self.dis(qui)


class Service:
    """The companion on the bus: calls come one by one, in their order."""

    def __init__(self, compagnon):
        self.compagnon, self.connexion = compagnon, Gio.bus_get_sync(Gio.BusType.SESSION, None)
        for interface in (PROXY, DOCUMENTS):
            noeud = Gio.DBusNodeInfo.new_for_xml((PROTOCOLE / f"{interface}.xml").read_text(encoding="utf-8"))
            self.connexion.register_object("/" + f"{NOM}OpenOffice.{compagnon.instance}".replace(".", "/"),
                                           noeud.interfaces[0], self.sers, None, None)
        self.connexion.signal_subscribe(
            "org.freedesktop.DBus", "org.freedesktop.DBus", "NameOwnerChanged", "/org/freedesktop/DBus", None,
            Gio.DBusSignalFlags.NONE, lambda *s: s[5][2] or compagnon.appelants.pop(s[5][0], None))
        Gio.bus_own_name_on_connection(self.connexion, f"{NOM}OpenOffice.{compagnon.instance}",
                                       Gio.BusNameOwnerFlags.DO_NOT_QUEUE, self.annonce, None)

    def annonce(self, *_):
        for document in self.compagnon.documents:
            print(f"{self.compagnon.instance}~{document.cle}", document.chemin, flush=True)

    def sers(self, _connexion, qui, _chemin, _interface, methode, arguments, invocation):
        appelant = self.compagnon.appelants.setdefault(qui, Appelant())
        sortie = "".join(argument.signature for argument in invocation.get_method_info().out_args)
        try:
            valeur = getattr(self.compagnon, methode)(appelant, *arguments)
            valeurs = () if not sortie else valeur if isinstance(valeur, tuple) else (valeur,)
            invocation.return_value(GLib.Variant(f"({sortie})", valeurs))
        except Refus as refus:
            invocation.return_dbus_error(f"{NOM}Erreur.{refus}", f"Refused: {refus}")
        except Exception as panne:  # the caller hears of it, and the companion goes on
            code = "org.freedesktop.DBus.Error.UnknownMethod" if isinstance(panne, AttributeError) \
                and not hasattr(self.compagnon, methode) else f"{NOM}Erreur.Interne"
            invocation.return_dbus_error(code, repr(panne))


if __name__ == "__main__":
    boucle, compagnon = GLib.MainLoop(), Compagnon(sys.argv[1:])
    service = Service(compagnon)
    GLib.unix_signal_add(GLib.PRIORITY_DEFAULT, signal.SIGTERM, boucle.quit)
    boucle.run()
    for document_ouvert in compagnon.documents:
        document_ouvert.enregistre()
