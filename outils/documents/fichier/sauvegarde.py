# SPDX-License-Identifier: MPL-2.0
"""A document saved as ODF, as trees of XML."""

import pathlib
import zipfile
from xml.etree import ElementTree

# The prefixes that this tool speaks of; any other namespace keeps its last words as a prefix.
_OASIS = "urn:oasis:names:tc:opendocument:xmlns:"
_PREFIXES = {
    _OASIS + "office:1.0": "office", _OASIS + "style:1.0": "style", _OASIS + "text:1.0": "text",
    _OASIS + "table:1.0": "table", _OASIS + "drawing:1.0": "draw", _OASIS + "chart:1.0": "chart",
    _OASIS + "presentation:1.0": "presentation", _OASIS + "form:1.0": "form",
    _OASIS + "xsl-fo-compatible:1.0": "fo", _OASIS + "svg-compatible:1.0": "svg",
    _OASIS + "datastyle:1.0": "number", _OASIS + "meta:1.0": "meta",
    "http://www.w3.org/1999/xlink": "xlink", "http://purl.org/dc/elements/1.1/": "dc",
    "http://www.w3.org/XML/1998/namespace": "xml",
    "http://openoffice.org/2009/office": "officeooo",
    "urn:org:documentfoundation:names:experimental:office:xmlns:loext:1.0": "loext",
    "urn:org:documentfoundation:names:experimental:calc:xmlns:calcext:1.0": "calcext",
}
_CONNUS: dict[str, str] = {}


def nom_court(nom: str) -> str:
    """`text:p` for "{urn:oasis:…:text:1.0}p"."""
    connu = _CONNUS.get(nom)
    if connu is None:
        connu = nom
        if nom.startswith("{"):
            espace, local = nom[1:].split("}")
            mots = espace.rstrip("/").replace("/", ":").split(":")
            connu = _PREFIXES.get(espace, "-".join(mots[-2:])) + ":" + local
        _CONNUS[nom] = connu
    return connu


def attributs(element) -> dict[str, str]:
    return {nom_court(nom): valeur for nom, valeur in element.attrib.items()}


class Sauvegarde:
    """The trees of one file: `contenu` (content.xml) and `styles` (styles.xml)."""

    def __init__(self, chemin: pathlib.Path):
        with zipfile.ZipFile(chemin) as archive:
            self.contenu = ElementTree.fromstring(archive.read("content.xml"))
            self.styles = ElementTree.fromstring(archive.read("styles.xml"))

    @staticmethod
    def partie(racine, nom: str) -> list:
        """The children of the part of that name: `office:body`, `office:automatic-styles`…"""
        return [enfant for partie in racine if nom_court(partie.tag) == nom for enfant in partie]
