// SPDX-License-Identifier: MPL-2.0
#include "CommentaireWriter.h"

#include "Langues.h"
#include "commun/ChainesUno.h"
#include "document/SelectionDuBureau.h"
#include "lecture/FormatPropre.h"

#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/container/XEnumerationAccess.hpp>
#include <com/sun/star/text/XTextContent.hpp>

#include <algorithm>
#include <utility>

using namespace com::sun::star;

namespace extension {

namespace {

std::u16string Lettres(ParagrapheLu const& lu) {
    std::u16string lettres;
    for (compagnon::Portion const& portion : lu.plan.DonnePortions()) {
        lettres += portion.source;
    }
    return lettres;
}

bool AUnFormat(uno::Reference<text::XText> const& texte, std::vector<ParagrapheLu> const& lus) {
    auto const aUnFormat = [](auto const& objet) { return AUnFormatPropre(objet); };
    uno::Reference<container::XEnumerationAccess> const paragraphes(texte, uno::UNO_QUERY_THROW);
    uno::Reference<container::XEnumeration> const suite = paragraphes->createEnumeration();
    while (suite->hasMoreElements()) {
        if (aUnFormat(uno::Reference<uno::XInterface>(suite->nextElement(), uno::UNO_QUERY))) {
            return true;
        }
    }
    return std::any_of(lus.begin(), lus.end(), [&](ParagrapheLu const& lu) {
        return std::any_of(lu.etendues.begin(), lu.etendues.end(), aUnFormat);
    });
}

/// Can it be written as plain text, and be all that it was? The office throws every format away,
/// and empty paragraphs at the end.
bool EstNu(uno::Reference<text::XText> const& texte, std::vector<ParagrapheLu> const& lus) {
    bool const finitVide = lus.size() > 1 && Lettres(lus.back()).empty();
    bool const enPieces =
        std::any_of(lus.begin(), lus.end(), [](auto const& lu) { return lu.etendues.size() > 1; });
    return !finitVide && !enPieces && !AUnFormat(texte, lus);
}

class Commentaire : public TexteDessine {
  public:
    using TexteDessine::TexteDessine;

    bool SAnnuleSeul() const override { return true; }

    std::optional<Gestes> Remplace(std::size_t rang, std::size_t debut, std::u16string const& avant,
                                   std::u16string const& apres) override {
        std::vector<ParagrapheLu> const lus = LisTout();
        auto const etapes = Prepare(lus, rang, debut, avant, apres);
        if (!etapes) {
            return std::nullopt;
        }
        std::u16string tout;
        std::u16string paragraphe;
        for (std::size_t i = 0; i < lus.size(); ++i) {
            paragraphe = Lettres(lus[i]);
            if (i == rang) {
                for (compagnon::EtapeEdition const& etape : *etapes) {
                    paragraphe.replace(etape.debut, etape.fin - etape.debut, etape.ajout);
                }
            }
            tout += (i == 0 ? u"" : u"\n") + paragraphe;
        }
        if (lus.size() > 1 && paragraphe.empty()) {
            return std::nullopt; // an empty paragraph at the end would be lost
        }
        Champ()->setPropertyValue("Content", uno::Any(EnUno(tout)));
        return Gestes();
    }

    void Selectionne() override {
        uno::Reference<text::XTextContent> const contenu(DonneObjet(), uno::UNO_QUERY_THROW);
        SelectionneDans(DonneModele(), uno::Any(contenu->getAnchor()));
    }

  protected:
    /// A copy, all that the office gives.
    uno::Reference<text::XText> DonneTexte() const override {
        uno::Reference<text::XText> texte;
        Champ()->getPropertyValue("TextRange") >>= texte;
        return uno::Reference<text::XText>(texte, uno::UNO_SET_THROW);
    }

    std::vector<ParagrapheLu> LisTout() const override {
        std::vector<ParagrapheLu> lus = TexteDessine::LisTout();
        if (!EstNu(DonneTexte(), lus)) {
            for (ParagrapheLu& lu : lus) {
                lu.plan.Fige();
            }
        }
        return lus;
    }

  private:
    uno::Reference<beans::XPropertySet> Champ() const {
        return uno::Reference<beans::XPropertySet>(DonneObjet(), uno::UNO_QUERY_THROW);
    }
};

} // namespace

std::shared_ptr<TexteDessine> TexteDeCommentaire(uno::Reference<uno::XInterface> const& champ,
                                                 uno::Reference<frame::XModel> const& modele,
                                                 std::shared_ptr<Contenant const> contenant) {
    return std::make_shared<Commentaire>(champ, modele, std::move(contenant));
}

} // namespace extension
