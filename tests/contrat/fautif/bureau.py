# SPDX-License-Identifier: MPL-2.0
"""A small companion that keeps the contract, but where it was asked to break it. Texts are held as
strings of UTF-16 units, one character each, so that slices are the contract's positions."""

import unicodedata
from dataclasses import dataclass, field

from suite.protocole import UNITES_REMPLACEMENT_MAX

INTERDITS = set(map(chr, range(32))) - {"\t"} | {"\x7f"}
LIMITE = UNITES_REMPLACEMENT_MAX


def en_unites(texte: str) -> str:
    octets = texte.encode("utf-16-le", "surrogatepass")
    return "".join(chr(octets[i] | octets[i + 1] << 8) for i in range(0, len(octets), 2))


def en_texte(unites: str) -> str:
    return unites.encode("utf-16-le", "surrogatepass").decode("utf-16-le", "replace")


def coupe(unites: str, position: int) -> bool:
    return (0 < position < len(unites) and "\ud800" <= unites[position - 1] <= "\udbff"
            and "\udc00" <= unites[position] <= "\udfff")


class Refus(Exception):
    def __init__(self, nom: str, message: str = "refused"):
        super().__init__(message)
        self.nom = nom


@dataclass
class Zone:
    nom: str
    texte: str
    styles: list = field(default_factory=list)
    protegee: bool = False


@dataclass
class Document:
    cle: str
    titre: str
    zones: list
    lecture_seule: bool = False
    selection: tuple = (0, 0, 0)  # rank of the zone, start, end
    est_enregistre: bool = True


@dataclass
class Croyance:
    texte: str
    borne: int


@dataclass
class Appelant:
    document: str = ""
    croyances: dict = field(default_factory=dict)  # by document key, then zone
    dite: tuple | None = None


class Bureau:
    """The contract's methods, each with the caller first; errors are `Refus`."""

    def __init__(self, instance: str, fautes: set[str]):
        self.instance, self.fautes = instance, fautes
        self.appelants: dict[str, Appelant] = {}
        self.compte = 0
        numero = iter(range(1, 100))

        def zone(texte, **reste):
            return Zone(f"z{next(numero)}", en_unites(texte), **reste)
        premiere = "essai-un" if "cle-bavarde" in fautes else "k1"
        self.documents = [
            Document(premiere, "essai-un.txt", [
                zone("Les chats dorment ici."), zone("Un champ \a dans la phrase."),
                zone("Voici un texte prot\u00e9g\u00e9.", protegee=True),
                zone("Du gras par ici.", styles=[(3, 7, 1), (8, 11, 3)])]),
            Document("k2", "essai-deux.txt", [zone("Deux mots de plus.")]),
            Document("k3", "essai-trois.txt", [zone("Ne touchez pas.")], lecture_seule=True)]
        if "cles-par-document" in fautes:
            self.documents[1].zones[0].nom = "z1"

    def a(self, faute: str) -> bool:
        return faute in self.fautes

    # Who, what, where.

    def appelant(self, qui: str) -> Appelant:
        if self.a("document-commun"):
            qui = "tous"
        if qui not in self.appelants and len(self.appelants) >= (10 if self.a("dix-appelants")
                                                                 else 1000):
            del self.appelants[next(iter(self.appelants))]
        return self.appelants.setdefault(qui, Appelant())

    def part(self, qui: str) -> None:
        if self.a("depart-oublie-tous") and qui in self.appelants:
            self.appelants.clear()
        self.appelants.pop(qui, None)

    def par_cle(self, cle: str) -> Document | None:
        return next((d for d in self.documents if d.cle == cle), None)

    def par_identifiant(self, identifiant: str) -> Document | None:
        instance, _, cle = identifiant.partition("~")
        return self.par_cle(cle) if instance == self.instance else None

    def courant(self, qui: str) -> Document:
        document = self.par_cle(self.appelant(qui).document)
        if document is None and self.a("document-implicite"):
            return self.documents[0]
        if document is None:
            raise Refus("AucunDocument")
        return document

    def place(self, qui: str, nom: str) -> tuple[Document, Zone, Croyance]:
        appelant = self.appelant(qui)
        for document in self.documents:
            for zone in document.zones:
                if zone.nom == nom or self.a("zone-premiere"):
                    siennes = appelant.croyances.setdefault(document.cle, {})
                    if self.a("zone-a-tous"):
                        siennes.setdefault(nom, Croyance(zone.texte, len(zone.texte)))
                    if self.a("zone-premiere"):
                        return document, zone, siennes.get(zone.nom, Croyance(zone.texte, 99))
                    if nom in siennes:
                        if not self.a("zone-sans-nommer"):
                            appelant.document = document.cle
                        return document, zone, siennes[nom]
        raise Refus("ZoneInconnue")

    def localise(self, zone: Zone, croyance: Croyance, debut: int, fin: int) -> tuple[int, int]:
        """Where the caller's range stands now: the part in common at the start, or at the end."""
        vue, texte = croyance.texte, zone.texte
        if self.a("positions-en-lettres"):
            debut, fin = (len(en_unites(en_texte(vue)[:max(0, p)])) for p in (debut, fin))
        if self.a("plage-rognee"):
            debut = max(0, min(debut, len(vue)))
            fin = max(debut, min(fin, len(vue)))
        if not 0 <= debut <= fin <= len(vue):
            raise Refus("PlageRefusee")
        if coupe(vue, debut) or coupe(vue, fin):
            if not self.a("coupe-paire"):
                raise Refus("PlageRefusee")
            debut, fin = debut - coupe(vue, debut), fin + coupe(vue, fin)
        if fin > croyance.borne:
            raise Refus("PlageRefusee")
        if vue == texte:
            return debut, fin
        if self.a("sans-suivi"):
            return min(debut, len(texte)), min(fin, len(texte))
        avant = 0
        while avant < min(len(vue), len(texte)) and vue[avant] == texte[avant]:
            avant += 1
        apres = 0
        while apres < min(len(vue), len(texte)) - avant and vue[-1 - apres] == texte[-1 - apres]:
            apres += 1
        if fin < avant:
            return debut, fin
        if debut > len(vue) - apres:
            return debut + len(texte) - len(vue), fin + len(texte) - len(vue)
        raise Refus("PlageRefusee")

    def examine(self, document: Document, zone: Zone) -> None:
        if document.lecture_seule and not self.a("lecture-seule-ecrite"):
            raise Refus("LectureSeule")
        if zone.protegee:
            raise Refus("Protege")

    def mesure(self, texte: str) -> None:
        """Refuses what is too long to be put in anywhere."""
        if len(en_unites(texte)) > LIMITE and not self.a("grand-passe"):
            raise Refus("Interne" if self.a("grand-interne") else "TropGrand")

    def nouveau(self, zone: Zone, debut: int, fin: int, texte: str) -> str:
        """The text to put in; refused where the zone cannot take it."""
        if self.a("retour-passe"):
            texte = texte.replace("\r", " ")
        if self.a("fin-de-ligne-passe"):
            texte = texte.replace("\n", " ")
        if self.a("controle-avale"):
            texte = "".join(u for u in texte if u not in INTERDITS or u in "\r\n")
        if self.a("normalise"):
            texte = en_unites(unicodedata.normalize("NFKC", en_texte(texte)))
        if self.a("tronque"):
            texte = texte[:1000]
        if INTERDITS & set(texte):
            raise Refus("FinDeLigne")
        if "\a" in zone.texte[debut:fin]:
            raise Refus("PlageRefusee" if self.a("champ-mal-nomme") else "ChampDetruit")
        return texte
