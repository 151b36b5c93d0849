// SPDX-License-Identifier: MPL-2.0
#include "CommentaireWriter.h"

#include "Langues.h"
#include "commun/ChainesUno.h"
#include "document/SelectionDuBureau.h"

#include <com/sun/star/beans/XPropertySet.hpp>
#include <com/sun/star/text/XTextContent.hpp>

#include <algorithm>
#include <utility>

using namespace com::sun::star;

namespace extension {

namespace {

/// Has any letter a format? A language is none.
bool AUnFormat(compagnon::PlanDePortions const& plan) {
    return std::any_of(plan.DonneStyles().begin(), plan.DonneStyles().end(),
                       [](compagnon::PlageDeStyle const& plage) {
                           return (plage.style & ~contrat::kMasqueLangue) != 0;
                       });
}

class Commentaire : public TexteDessine {
  public:
    using TexteDessine::TexteDessine;

    bool SAnnuleSeul() const override { return true; }

    bool Remplace(std::size_t rang, std::size_t debut, std::u16string const& avant,
                  std::u16string const& apres) override {
        std::vector<ParagrapheLu> const lus = LisTout();
        auto const etapes = Prepare(lus, rang, debut, avant, apres);
        if (!etapes) {
            return false;
        }
        std::u16string tout;
        for (std::size_t i = 0; i < lus.size(); ++i) {
            compagnon::PlanDePortions const& plan = lus[i].plan;
            if (plan.DonnePortions().size() > 1 || AUnFormat(plan)) {
                return false;
            }
            std::u16string paragraphe =
                plan.DonnePortions().empty() ? std::u16string() : plan.DonnePortions()[0].source;
            if (i == rang) {
                for (compagnon::EtapeEdition const& etape : *etapes) {
                    paragraphe.replace(etape.debut, etape.fin - etape.debut, etape.ajout);
                }
            }
            tout += (i == 0 ? u"" : u"\n") + paragraphe;
        }
        Champ()->setPropertyValue("Content", uno::Any(EnUno(tout)));
        return true;
    }

    void Selectionne() override {
        uno::Reference<text::XTextContent> const contenu(DonneObjet(), uno::UNO_QUERY_THROW);
        SelectionneDans(DonneModele(), uno::Any(contenu->getAnchor()));
    }

  protected:
    uno::Reference<text::XText> DonneTexte() const override {
        uno::Reference<text::XText> texte;
        Champ()->getPropertyValue("TextRange") >>= texte;
        return uno::Reference<text::XText>(texte, uno::UNO_SET_THROW);
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
