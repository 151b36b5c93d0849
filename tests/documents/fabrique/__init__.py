# SPDX-License-Identifier: MPL-2.0
"""Makes documents with every construct that a corrector may meet, through the office itself."""

import banc

from . import diapos, ecrits, feuilles

# What is made, and in which of the office's formats besides its own it is saved, too.
DOCUMENTS = {
    "formats.odt": (ecrits.formats, (("docx", "MS Word 2007 XML"), ("rtf", "Rich Text Format"))),
    "fields.odt": (ecrits.champs, (("docx", "MS Word 2007 XML"),)),
    "controls.odt": (ecrits.controles, (("docx", "MS Word 2007 XML"),)),
    "tables.odt": (ecrits.tableaux, (("docx", "MS Word 2007 XML"), ("doc", "MS Word 97"))),
    "frames.odt": (ecrits.cadres, (("docx", "MS Word 2007 XML"),)),
    "comments.odt": (ecrits.commentaires, (("docx", "MS Word 2007 XML"),)),
    "changes.odt": (ecrits.suivi, ()),
    "headers.odt": (ecrits.entetes, ()),
    "hidden.odt": (ecrits.caches, ()),
    "sheets.ods": (feuilles.feuilles, (("xlsx", "Calc MS Excel 2007 XML"), ("xls", "MS Excel 97"))),
    "protected.ods": (feuilles.protegee, ()),
    "slides.odp": (diapos.presentation, (("pptx", "Impress MS PowerPoint 2007 XML"),)),
    "drawing.odg": (diapos.dessin, ()),
}


def fabrique(bureau: banc.Bureau, nom: str, dossier) -> list:
    """Writes that document into the folder, in each of its formats; the files."""
    fais, autres = DOCUMENTS[nom]
    document = fais(bureau)
    fichiers = [dossier / nom]
    document.storeToURL(fichiers[0].as_uri(), ())
    for suffixe, filtre in autres:
        fichiers.append(fichiers[0].with_suffix("." + suffixe))
        document.storeToURL(fichiers[-1].as_uri(), (banc.pv("FilterName", filtre),))
    document.close(True)
    return fichiers
