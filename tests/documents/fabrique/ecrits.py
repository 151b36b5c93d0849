# SPDX-License-Identifier: MPL-2.0
"""Texts."""

import uno
from com.sun.star.awt import Point, Size
from com.sun.star.lang import Locale

import banc
from ecrivain import ANCRE, Ecrivain, plage

GRAS = {"CharWeight": 150.0}
MAIGRE = {"CharWeight": 100.0}
ITALIQUE = {"CharPosture": uno.Enum("com.sun.star.awt.FontSlant", "ITALIC")}
DROIT = {"CharPosture": uno.Enum("com.sun.star.awt.FontSlant", "NONE")}
CHAMP = "com.sun.star.text.textfield."


def _neuf(bureau) -> tuple:
    document = bureau.ouvre()
    return document, Ecrivain(document)


def _du_dernier(e: Ecrivain, debut: int, fin: int):
    """A cursor over those characters of the last paragraph."""
    curseur = e.fin()
    curseur.gotoStartOfParagraph(False)
    curseur.goRight(debut, False)
    curseur.goRight(fin - debut, True)
    return curseur


def formats(bureau):
    document, e = _neuf(bureau)
    e.ecrit("Du texte ").ecrit("gras ", **GRAS).ecrit("et ", **ITALIQUE)
    e.ecrit("maigre, droit", **MAIGRE, **DROIT).paragraphe()
    e.ecrit("un lien ici")
    _du_dernier(e, 3, 7).HyperLinkURL = "https://example.org/"
    e.paragraphe().ecrit("rouge", CharColor=0xFF0000).ecrit("vert", CharColor=0x00FF00)
    e.ecrit("noir", CharColor=-1).paragraphe()
    e.ecrit("accentué simple")
    _du_dernier(e, 0, 8).CharStyleName = "Emphasis"
    e.paragraphe()
    e.ecrit("exposant", CharEscapement=33, CharEscapementHeight=58)
    e.ecrit(" normal", CharEscapement=0, CharEscapementHeight=100).paragraphe()
    e.ecrit("Ein Wort", CharLocale=Locale("de", "DE", "")).ecrit(" mot", CharLocale=Locale("fr", "FR", ""))
    e.paragraphe().ecrit("مرحبا بالعالم with Latin שלום", CharWeightComplex=150.0).paragraphe()
    e.ecrit("漢字かな交じり文", CharWeightAsian=150.0).ecrit(" mêlé 😀𝄞 e\u0301", CharWeightAsian=100.0)
    e.paragraphe().ecrit("ru東京by")
    _du_dernier(e, 2, 4).RubyText = "とうきょう"
    e.paragraphe()
    e.ecrit("in\u00adsé\u00adcable\u00a0: tab\tulation\nligne\u200bzéro \u2011 fin")
    return document


def champs(bureau):
    document, e = _neuf(bureau)
    e.ecrit("page ")
    e.met(CHAMP + "PageNumber", NumberingType=4)
    e.ecrit(" sur ", **GRAS)
    e.met(CHAMP + "PageCount", NumberingType=4)
    e.ecrit(" fin", **MAIGRE).paragraphe()
    e.met(CHAMP + "Author", IsFixed=True, Content="Ana", FullName=True)
    e.ecrit(" a écrit")
    e.met(CHAMP + "Input", Content="saisi", Hint="?")
    e.ecrit("et").paragraphe().ecrit("choix ")
    e.met(CHAMP + "DropDown", Items=("un", "deux"), SelectedItem="deux")
    e.ecrit(" après").paragraphe().ecrit("repère ici puis là")
    e.met("com.sun.star.text.ReferenceMark", absorbe=_du_dernier(e, 0, 6), Name="rep")
    e.met("com.sun.star.text.Bookmark", Name="point")
    e.paragraphe().ecrit("mot visé et suite").paragraphe().ecrit("note")
    e.note("au bas de la page")
    e.ecrit(" milieu")
    e.note("à la fin", "com.sun.star.text.Endnote")
    e.ecrit(" bout")
    e.met("com.sun.star.text.ReferenceMark", Name="r")
    e.met("com.sun.star.text.DocumentIndexMark", AlternativeText="entrée")
    e.ecrit(" encore")
    e.met("com.sun.star.text.Bookmark", absorbe=e.plage(0, 4), Name="plage")
    return document


def controles(bureau):
    document, e = _neuf(bureau)
    e.ecrit("avant la VAT après")
    e.met("com.sun.star.text.ContentControl", absorbe=_du_dernier(e, 9, 12))
    e.paragraphe().ecrit("avec des données dedans")
    e.met("com.sun.star.text.InContentMetadata", absorbe=_du_dernier(e, 9, 16))
    e.paragraphe().ecrit("liste choisir puis")
    liste = e.met("com.sun.star.text.ContentControl", absorbe=_du_dernier(e, 6, 13))
    choix = (banc.pv("DisplayText", "choisir"), banc.pv("Value", "c"))
    uno.invoke(liste, "setPropertyValue", ("ListItems", uno.Any(
        "[][]com.sun.star.beans.PropertyValue", (choix,))))
    e.paragraphe().ecrit("case \u2610 cochée")
    e.met("com.sun.star.text.ContentControl", absorbe=_du_dernier(e, 5, 6), Checkbox=True,
          CheckedState="\u2612", UncheckedState="\u2610")
    return document


def tableaux(bureau):
    document, e = _neuf(bureau)
    e.ecrit("avant").paragraphe()
    tableau = e.tableau(3, 3)
    for nom in tableau.getCellNames():
        tableau.getCellByName(nom).setString(f"case {nom}")
    fusion = tableau.createCursorByCellName("A1")
    fusion.goRight(1, True)
    fusion.mergeRange()
    interieur = Ecrivain(document, tableau.getCellByName("C2")).tableau(1, 2)
    for nom in interieur.getCellNames():
        interieur.getCellByName(nom).setString(f"dedans {nom}")
    e.ecrit("après").paragraphe()
    regles = document.createInstance("com.sun.star.text.NumberingRules")
    for texte, niveau in (("point un", 0), ("sous-point", 1), ("point deux", 0)):
        curseur = e.fin()
        curseur.NumberingRules, curseur.NumberingLevel = regles, niveau
        e.ecrit(texte).paragraphe()
    curseur = e.fin()
    curseur.NumberingRules = None
    curseur.ParaStyleName = "Heading 1"
    e.ecrit("Un titre").paragraphe().ecrit("dans une section").paragraphe().ecrit("protégé").paragraphe()
    e.ecrit("dernier")
    for rang, proprietes in ((0, {}), (1, {"IsProtected": True})):
        paragraphe = _paragraphe(document, ("dans une section", "protégé")[rang])
        e.met("com.sun.star.text.TextSection",
              absorbe=e.texte.createTextCursorByRange(paragraphe), **proprietes)
    index = document.createInstance("com.sun.star.text.ContentIndex")
    index.CreateFromOutline = True
    document.Text.insertTextContent(document.Text.Start, index, False)
    index.update()
    return document


def _paragraphe(document, texte):
    suite = document.Text.createEnumeration()
    while suite.hasMoreElements():
        paragraphe = suite.nextElement()
        if hasattr(paragraphe, "getString") and paragraphe.getString() == texte:
            return paragraphe
    raise AssertionError(texte)


def cadres(bureau):
    document, e = _neuf(bureau)
    e.ecrit("dans la ")
    e.cadre("cadre en ligne")
    e.ecrit("ligne").paragraphe().ecrit("second")
    e.cadre("cadre au paragraphe", "AT_PARAGRAPH").Text.getEnd().CharWeight = 150.0
    e.forme("forme\rde deux")
    e.ecrit(" fin").paragraphe()
    dessus = e.forme("avec un cadre dedans")
    dessus.TextBox = True
    formes = bureau.cree("com.sun.star.drawing.ShapeCollection")
    for rang in range(3):
        forme = e.forme(f"du groupe {rang}")
        forme.setPosition(Point(1000 * rang, 500))
        forme.setSize(Size(900, 400))
        formes.add(forme)
    document.DrawPage.group(formes).AnchorType = uno.Enum(ANCRE, "AT_PARAGRAPH")
    e.paragraphe().ecrit("image ")
    e.met("com.sun.star.text.TextGraphicObject", AnchorType=uno.Enum(ANCRE, "AS_CHARACTER"))
    e.ecrit(" après")
    page = document.createInstance("com.sun.star.text.TextFrame")
    page.AnchorType = uno.Enum(ANCRE, "AT_PAGE")
    page.AnchorPageNo = 1
    document.Text.insertTextContent(document.Text.End, page, False)
    page.Text.setString("sur la page")
    return document


def commentaires(bureau):
    document, e = _neuf(bureau)
    e.ecrit("un mot commenté").paragraphe().ecrit("puis ")
    e.met(CHAMP + "Annotation", Content="une remarque", Author="A")
    e.ecrit("la suite ").ecrit("grasse", **GRAS)
    e.met(CHAMP + "Annotation", Content="premier\nsecond paragraphe", Author="B")
    e.ecrit(" maigre", **MAIGRE)
    e.met(CHAMP + "Annotation", absorbe=e.plage(3, 6), Content="sur une étendue", Author="C")
    formatee = e.met(CHAMP + "Annotation", Content="des mots gras", Author="D")
    plage(formatee.TextRange, 4, 8).CharWeight = 150.0
    return document


def suivi(bureau):
    document, e = _neuf(bureau)
    e.ecrit("des mots d'avant le suivi").paragraphe().ecrit("un autre paragraphe").paragraphe()
    e.ecrit("le troisième")
    document.RecordChanges = True
    e.plage(4, 8).setString("")
    e.ecrit(" avec un ajout")
    e.plage(20, 30).setString("remplacé")
    document.RecordChanges = False
    e.ecrit(" sans suivi")
    document.RecordChanges = True
    return document


def entetes(bureau):
    document, e = _neuf(bureau)
    styles = document.StyleFamilies.getByName("PageStyles")
    style = styles.getByName("Standard")
    style.HeaderIsOn = style.FooterIsOn = True
    style.HeaderIsShared = style.FirstIsShared = False
    for nom, texte in (("HeaderText", "à droite"), ("HeaderTextLeft", "à gauche"),
                       ("HeaderTextFirst", "la première"), ("FooterText", "le pied")):
        getattr(style, nom).setString(texte)
    autre = document.createInstance("com.sun.star.style.PageStyle")
    styles.insertByName("Autre", autre)
    autre.HeaderIsOn = True
    autre.HeaderText.setString("entête d'ailleurs")
    e.ecrit("le corps").paragraphe()
    e.ecrit("plus loin", PageDescName="Autre")
    pied = Ecrivain(document, style.FooterText)
    pied.ecrit(" page ")
    pied.met(CHAMP + "PageNumber", NumberingType=4)
    return document


def caches(bureau):
    document, e = _neuf(bureau)
    e.ecrit("vu ").ecrit("caché ", CharHidden=True).ecrit("revu", CharHidden=False).paragraphe()
    e.ecrit("selon ")
    e.met(CHAMP + "ConditionalText", Condition="1", TrueContent="oui", FalseContent="non")
    e.ecrit(" et ")
    e.met(CHAMP + "HiddenText", Condition="1", Content="tu")
    e.ecrit(" fin").paragraphe().ecrit("dans une section cachée").paragraphe().ecrit("dernier")
    section = _paragraphe(document, "dans une section cachée")
    e.met("com.sun.star.text.TextSection", absorbe=e.texte.createTextCursorByRange(section),
          IsVisible=False)
    return document
