# SPDX-License-Identifier: MPL-2.0
"""What a document holds and does not show, by its styles and attributes."""

from .sauvegarde import Sauvegarde, attributs, nom_court


class Caches:
    def __init__(self, sauvegarde: Sauvegarde):
        self._bavards: set[str] = set()  # number formats with words of their own
        self._styles: dict[tuple[str, str], dict] = {}
        for racine, partie in ((sauvegarde.styles, "office:styles"),
                               (sauvegarde.styles, "office:automatic-styles"),
                               (sauvegarde.contenu, "office:automatic-styles")):
            for element in Sauvegarde.partie(racine, partie):
                self._retiens(element)
        self._jonctions = {
            attributs(region).get("text:id") for region in sauvegarde.contenu.iter()
            if nom_court(region.tag) == "text:changed-region"
            and sum(nom_court(dedans.tag) in ("text:p", "text:h") for dedans in region.iter()) > 1}
        self._pages_demandees = self._demandees(sauvegarde)
        self._pages_suivantes = self._suivantes(sauvegarde)

    def _retiens(self, element) -> None:
        siens = attributs(element)
        if "style:name" in siens:
            self._bavards |= {siens["style:name"]} if any(
                nom_court(dedans.tag) == "number:text" for dedans in element) else set()
            dit = {"parent": siens.get("style:parent-style-name"),
                   "style:data-style-name": siens.get("style:data-style-name"),
                   "page": siens.get("style:master-page-name")}
            for proprietes in element:
                dit.update(attributs(proprietes))
            self._styles[siens.get("style:family", ""), siens["style:name"]] = dit

    def propriete(self, famille: str, nom: str | None, propriete: str) -> str | None:
        """Its value in that style, or in those that it stands on."""
        for _ in range(50):
            style = self._styles.get((famille, nom or ""))
            if style is None:
                return None
            if style.get(propriete) is not None:
                return style[propriete]
            nom = style["parent"]
        return None

    def joint_des_paragraphes(self, suppression) -> bool:
        """Whether paragraphs that were parted stand as one since a tracked deletion between them."""
        return attributs(suppression).get("text:change-id") in self._jonctions

    def ajoute_des_mots(self, style_de_cellule: str | None) -> bool:
        """Whether a cell shows more than what was typed."""
        return self.propriete("table-cell", style_de_cellule, "style:data-style-name") in self._bavards

    def _demandees(self, sauvegarde: Sauvegarde) -> set[str]:
        """The page styles that paragraphs and tables ask for, and the one that a text begins with."""
        pages = {style["page"] for style in self._styles.values() if style["page"]}
        for element in sauvegarde.contenu.iter():
            genre = nom_court(element.tag)
            if genre in ("text:p", "text:h", "table:table"):
                famille = "table" if genre == "table:table" else "paragraph"
                nom = attributs(element).get(f"{genre.split(':')[0]}:style-name")
                return pages | {self.propriete(famille, nom, "page") or "Standard"}
        return pages | {"Standard"}

    def _suivantes(self, sauvegarde: Sauvegarde) -> set[str]:
        """Those that follow on them, if a page comes after."""
        maitres = {attributs(m).get("style:name"): attributs(m).get("style:next-style-name")
                   for m in Sauvegarde.partie(sauvegarde.styles, "office:master-styles")}
        pages = set(self._pages_demandees)
        while suite := {maitres[p] for p in pages if maitres.get(p)} - pages:
            pages |= suite
        return pages

    def raison_de_la_page(self, nom: str) -> str | None:
        """Why the headers of that page style are not for correcting."""
        if nom in self._pages_demandees:
            return None
        return "?" if nom in self._pages_suivantes else "unused page style"

    def raison(self, element, genre: str) -> str | None:
        siens = attributs(element)
        if genre == "text:section" and siens.get("text:display") in ("none", "condition"):
            return "hidden section" if siens.get("text:display") == "none" else "?"
        if siens.get("presentation:placeholder") == "true":
            return "placeholder"
        if genre.startswith("draw:"):
            if siens.get("draw:display") in ("none", "printer"):
                return "hidden shape"
            style = siens.get("draw:style-name")
            if self.propriete("graphic", style, "loext:visible") == "false":
                return "hidden shape"
        return None

    def raison_du_paragraphe(self, paragraphe) -> str | None:
        nom = attributs(paragraphe).get("text:style-name")
        if self.propriete("paragraph", nom, "text:display") == "none":
            return "hidden"
        for champ in paragraphe.iter():
            if nom_court(champ.tag) == "text:hidden-paragraph":
                # Whether it is in view depends on its condition, which only an office works out.
                return "?"
        return None

    def raison_des_lettres(self, element, genre: str) -> str | None:
        siens = attributs(element)
        if genre == "loext:content-control":
            choisi = any(nom_court(e.tag) == "loext:list-item" for e in element) or any(
                siens.get(f"loext:{nom}") == "true" for nom in ("checkbox", "picture", "date"))
            return "closed control" if choisi else None
        if genre == "text:span":
            nom = siens.get("text:style-name")
            if self.propriete("text", nom, "text:display") == "none":
                return "hidden"
        return None
