// SPDX-License-Identifier: MPL-2.0
#include "ParcoursWriter.h"

#include "CommentaireWriter.h"
#include "commun/ChainesUno.h"
#include "commun/Proprietes.h"
#include "dessin/TexteDeForme.h"

#include <com/sun/star/container/XContentEnumerationAccess.hpp>
#include <com/sun/star/container/XEnumerationAccess.hpp>
#include <com/sun/star/container/XIndexAccess.hpp>
#include <com/sun/star/container/XNameAccess.hpp>
#include <com/sun/star/container/XNamed.hpp>
#include <com/sun/star/drawing/XDrawPageSupplier.hpp>
#include <com/sun/star/drawing/XShapes.hpp>
#include <com/sun/star/style/XStyle.hpp>
#include <com/sun/star/style/XStyleFamiliesSupplier.hpp>
#include <com/sun/star/text/TextContentAnchorType.hpp>
#include <com/sun/star/text/XTextDocument.hpp>
#include <com/sun/star/text/XTextFrame.hpp>
#include <com/sun/star/text/XTextSectionsSupplier.hpp>

using namespace com::sun::star;
using rtl::OUString;

namespace extension {

namespace {

uno::Reference<drawing::XDrawPage> PageDeDessin(uno::Reference<frame::XModel> const& modele) {
    uno::Reference<drawing::XDrawPageSupplier> const document(modele, uno::UNO_QUERY_THROW);
    // Deprecated in favour of several pages; Writer has one, and no other way to it.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
    return document->getDrawPage();
#pragma GCC diagnostic pop
}

using EndroitPartage = std::shared_ptr<Endroit const>;

EndroitPartage FaisEndroit(Endroit::Genre genre, int numero, OUString const& nom = {},
                           EndroitPartage const& autour = {}) {
    return std::make_shared<Endroit const>(
        Endroit{genre, numero, std::u16string(Vue(nom)), autour});
}

std::shared_ptr<Contenant> Contient(uno::Reference<text::XText> const& texte,
                                    EndroitPartage endroit) {
    auto contenant = std::make_shared<Contenant>();
    contenant->texte = texte;
    contenant->endroit = std::move(endroit);
    return contenant;
}

OUString NomDe(uno::Reference<uno::XInterface> const& objet) {
    uno::Reference<container::XNamed> const nomme(objet, uno::UNO_QUERY);
    return nomme.is() ? nomme->getName() : OUString();
}

} // namespace

ParcoursWriter::ParcoursWriter(std::shared_ptr<FondWriter const> fond, CarnetDeZones& carnet,
                               RecueilDeZones const& recueil)
    : fond_(std::move(fond))
    , carnet_(carnet)
    , recueil_(recueil) {}

void ParcoursWriter::Parcours() {
    uno::Reference<text::XTextDocument> const document(fond_->modele, uno::UNO_QUERY_THROW);
    uno::Reference<text::XTextSectionsSupplier> const sections(document, uno::UNO_QUERY);
    aDesSections_ = sections.is() && sections->getTextSections()->hasElements();
    aDesCadres_ = PageDeDessin(fond_->modele)->getCount() > 0;

    ParcoursEntetes(Endroit::Genre::EnTete, "HeaderIsOn", "Header");
    ParcoursTexte(Contient(document->getText(), FaisEndroit(Endroit::Genre::Corps, 0)));
    if (aDesCadres_) {
        ParcoursPages();
    }
    auto const notes = std::exchange(notesDeFin_, {});
    for (auto const& [note, contenant] : notes) {
        auto dedans = Contient(uno::Reference<text::XText>(note.objet, uno::UNO_QUERY_THROW),
                               FaisEndroit(Endroit::Genre::NoteDeFin, ++finales_));
        dedans->parent = contenant;
        ParcoursTexte(dedans);
    }
    ParcoursEntetes(Endroit::Genre::PiedDePage, "FooterIsOn", "Footer");
}

void ParcoursWriter::ParcoursTexte(std::shared_ptr<Contenant const> const& contenant) {
    uno::Reference<container::XEnumerationAccess> const paragraphes(contenant->texte,
                                                                    uno::UNO_QUERY_THROW);
    uno::Reference<container::XEnumeration> const suite = paragraphes->createEnumeration();
    int suppressions = 0;
    int rang = 0;
    while (suite->hasMoreElements()) {
        recueil_.Souffle();
        // As the enumeration gives it: a query for what is there already takes its time, and one
        // for what is not takes longest. So a table is asked for only where there are no portions.
        uno::Reference<text::XTextContent> element;
        suite->nextElement() >>= element;
        uno::Reference<container::XEnumerationAccess> const portions(element, uno::UNO_QUERY);
        if (portions.is()) {
            ParcoursParagraphe(element, portions, contenant, ++rang, suppressions);
        } else {
            ParcoursTableau(uno::Reference<text::XTextTable>(element, uno::UNO_QUERY_THROW),
                            contenant);
        }
    }
}

void ParcoursWriter::ParcoursTableau(uno::Reference<text::XTextTable> const& tableau,
                                     std::shared_ptr<Contenant const> const& parent) {
    EndroitPartage const endroit = FaisEndroit(Endroit::Genre::Tableau, 0, NomDe(tableau));
    for (OUString const& nom : tableau->getCellNames()) {
        uno::Reference<table::XCell> const cellule = tableau->getCellByName(nom);
        uno::Reference<text::XText> const texte(cellule, uno::UNO_QUERY);
        if (!texte.is()) {
            continue;
        }
        auto contenant =
            Contient(texte, FaisEndroit(Endroit::Genre::CelluleDeTableau, 0, nom, endroit));
        contenant->protecteur.set(cellule, uno::UNO_QUERY);
        contenant->propriete = "IsProtected";
        contenant->parent = parent;
        ParcoursTexte(contenant);
    }
}

void ParcoursWriter::ParcoursParagraphe(
    uno::Reference<text::XTextContent> const& paragraphe,
    uno::Reference<container::XEnumerationAccess> const& portions,
    std::shared_ptr<Contenant const> const& contenant, int rang, int& suppressions) {
    uno::Reference<uno::XInterface> const objet = Identite(paragraphe);
    auto zone = carnet_.Retrouve<ParagrapheWriter>(objet);
    if (!zone) {
        zone =
            std::make_shared<ParagrapheWriter>(carnet_.NouvelleCle(), paragraphe, contenant, fond_);
        carnet_.Inscris(objet, zone);
        carnet_.InscrisCle(zone);
    }
    ParagrapheLu lu = fond_->lecteur.Lis(portions, suppressions);
    std::vector<Rencontre> const rencontres = std::move(lu.rencontres);
    lu.etendues.clear(); // nothing of a portion may be held where the walk is left
    uno::Reference<beans::XPropertySet> proprietes;
    if (aDesSections_ || aDesCadres_ || !rencontres.empty()) {
        proprietes.set(paragraphe, uno::UNO_QUERY_THROW);
    }
    if (auto const raison = aDesSections_ ? RaisonDeNePasLire(proprietes) : std::nullopt) {
        recueil_.Omets(*raison);
        zone->MetsLieu({}); // it may have been read before
        return;
    }
    zone->MetsLieu({contenant->endroit, rang});
    recueil_(zone, std::move(lu.plan));
    for (Rencontre const& rencontre : rencontres) {
        ParcoursRencontre(rencontre, contenant, proprietes);
    }
    if (!aDesCadres_) {
        return;
    }
    uno::Reference<container::XContentEnumerationAccess> const contenus(paragraphe,
                                                                        uno::UNO_QUERY_THROW);
    uno::Reference<container::XEnumeration> const suite =
        contenus->createContentEnumeration("com.sun.star.text.TextContent");
    while (suite.is() && suite->hasMoreElements()) {
        uno::Reference<uno::XInterface> const cadre(suite->nextElement(), uno::UNO_QUERY);
        ParcoursCadre(cadre, contenant, proprietes);
    }
}

void ParcoursWriter::ParcoursRencontre(Rencontre const& rencontre,
                                       std::shared_ptr<Contenant const> const& contenant,
                                       uno::Reference<beans::XPropertySet> const& ancre) {
    switch (rencontre.genre) {
    case Rencontre::Genre::Cadre:
        ParcoursCadre(rencontre.objet, contenant, ancre);
        return;
    case Rencontre::Genre::Commentaire: {
        auto dessine = std::make_shared<Contenant>();
        dessine->ancre = ancre;
        dessine->parent = contenant;
        if (vus_.Ajoute(rencontre.objet)) {
            ParcoursTexteDessine(
                rencontre.objet,
                [&] { return TexteDeCommentaire(rencontre.objet, fond_->modele, dessine); },
                FaisEndroit(Endroit::Genre::Commentaire, ++commentaires_), carnet_, recueil_);
        }
        return;
    }
    case Rencontre::Genre::Note:
    case Rencontre::Genre::NoteDeFin:
        break;
    }
    bool const deFin = rencontre.genre == Rencontre::Genre::NoteDeFin;
    auto dedans = Contient(uno::Reference<text::XText>(rencontre.objet, uno::UNO_QUERY_THROW),
                           deFin ? nullptr : FaisEndroit(Endroit::Genre::Note, ++notes_));
    dedans->ancre = ancre;
    dedans->parent = contenant;
    if (deFin) {
        notesDeFin_.emplace_back(rencontre, dedans);
    } else {
        ParcoursTexte(dedans);
    }
}

void ParcoursWriter::ParcoursCadre(uno::Reference<uno::XInterface> const& objet,
                                   std::shared_ptr<Contenant const> const& parent,
                                   uno::Reference<beans::XPropertySet> const& ancre) {
    recueil_.Souffle();
    if (!objet.is() || !vus_.Ajoute(objet)) {
        return;
    }
    uno::Reference<beans::XPropertySet> const proprietes(objet, uno::UNO_QUERY);
    if (!Vaut(proprietes, "Visible", true)) {
        recueil_.Omets(compagnon::RaisonNonLu::Masque);
        return;
    }
    uno::Reference<text::XTextFrame> const cadre(objet, uno::UNO_QUERY);
    uno::Reference<drawing::XShapes> const groupe(objet, uno::UNO_QUERY);
    uno::Reference<text::XText> const texte(objet, uno::UNO_QUERY);
    if (groupe.is()) {
        for (sal_Int32 i = 0; i < groupe->getCount(); ++i) {
            ParcoursCadre(uno::Reference<uno::XInterface>(groupe->getByIndex(i), uno::UNO_QUERY),
                          parent, ancre);
        }
    } else if (cadre.is()) {
        auto dedans =
            Contient(cadre->getText(), FaisEndroit(Endroit::Genre::Cadre, 0, NomDe(objet)));
        dedans->protecteur = proprietes;
        dedans->propriete = "ContentProtected";
        dedans->ancre = ancre;
        dedans->parent = parent;
        ParcoursTexte(dedans);
    } else if (texte.is()) {
        auto dedans = Contient(texte, FaisEndroit(Endroit::Genre::Forme, ++formes_, NomDe(objet)));
        dedans->ancre = ancre;
        dedans->parent = parent;
        if (Vaut(proprietes, "TextBox", false)) {
            ParcoursTexte(dedans); // a shape whose text is a frame of Writer's own
        } else {
            ParcoursTexteDessine(
                objet, [&] { return TexteDeForme(objet, objet, fond_->modele, dedans); },
                dedans->endroit, carnet_, recueil_);
        }
    }
}

void ParcoursWriter::ParcoursPages() {
    uno::Reference<drawing::XDrawPage> const page = PageDeDessin(fond_->modele);
    for (sal_Int32 i = 0; i < page->getCount(); ++i) {
        uno::Reference<uno::XInterface> const objet(page->getByIndex(i), uno::UNO_QUERY);
        text::TextContentAnchorType ancrage = text::TextContentAnchorType_AT_PARAGRAPH;
        uno::Reference<beans::XPropertySet> const proprietes(objet, uno::UNO_QUERY);
        ValeurSiConnue(proprietes, "AnchorType") >>= ancrage;
        // What hangs on a paragraph was met with it, unless nobody is to read that one.
        if (ancrage == text::TextContentAnchorType_AT_PAGE) {
            ParcoursCadre(objet, nullptr, {});
        }
    }
}

void ParcoursWriter::ParcoursEntetes(Endroit::Genre genre, char const* actif, char const* texte) {
    uno::Reference<style::XStyleFamiliesSupplier> const document(fond_->modele,
                                                                 uno::UNO_QUERY_THROW);
    uno::Reference<container::XIndexAccess> const styles(
        document->getStyleFamilies()->getByName("PageStyles"), uno::UNO_QUERY_THROW);
    for (sal_Int32 i = 0; i < styles->getCount(); ++i) {
        uno::Reference<style::XStyle> const style(styles->getByIndex(i), uno::UNO_QUERY_THROW);
        uno::Reference<beans::XPropertySet> const proprietes(style, uno::UNO_QUERY_THROW);
        if (!style->isInUse() || !Vaut(proprietes, actif, false)) {
            continue;
        }
        OUString titre;
        proprietes->getPropertyValue("DisplayName") >>= titre;
        OUString const nom = OUString::createFromAscii(texte) + "Text";
        bool const partage = Vaut(proprietes, (std::string(texte) + "IsShared").c_str(), true);
        bool const premierPartage = Vaut(proprietes, "FirstIsShared", true);
        std::vector<OUString> variantes{nom};
        if (!partage) {
            variantes.push_back(nom + "Left");
        }
        if (!premierPartage) {
            variantes.push_back(nom + "First");
        }
        for (OUString const& variante : variantes) {
            uno::Reference<text::XText> entete;
            proprietes->getPropertyValue(variante) >>= entete;
            if (entete.is()) {
                // Most documents have one style of pages, whose name tells a person nothing.
                ParcoursTexte(Contient(
                    entete,
                    FaisEndroit(genre, 0, style->getName() == "Standard" ? OUString() : titre)));
            }
        }
    }
}

} // namespace extension
