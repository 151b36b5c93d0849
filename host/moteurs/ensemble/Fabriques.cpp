// SPDX-License-Identifier: MPL-2.0
#include "Fabriques.h"

#include "Decouverte.h"
#include "langue/Decoupeur.h"
#include "langue/LocaliseDictionnaire.h"
#include "moteurs/externes/MoteurExterne.h"
#include "moteurs/internes/MoteurHunspell.h"
#include "moteurs/internes/MoteurRegles.h"
#include "moteurs/internes/Preparateur.h"

#include <algorithm>

namespace hote {

namespace {

/// The language of the place where a remark begins.
QString DonneLangue(ParagrapheAExaminer const& paragraphe, int position) {
    for (EtendueDeLangue const& etendue : paragraphe.langues) {
        if (position < etendue.fin) {
            return etendue.langue;
        }
    }
    return {};
}

EstRefusee FaisRefus(std::shared_ptr<ReglagesHote const> const& reglages, QString const& document) {
    return [reglages, document](Remarque const& remarque, ParagrapheAExaminer const& paragraphe) {
        if (reglages->EstRegleEteinte(remarque.moteur, remarque.regle)) {
            return true;
        }
        if (remarque.genre != GenreDeRemarque::Orthographe) {
            return false;
        }
        QString const mot =
            DonneForme(paragraphe.texte.mid(remarque.debut, remarque.fin - remarque.debut));
        return reglages->EstAccepte(mot, DonneLangue(paragraphe, remarque.debut)) ||
               reglages->EstIgnore(mot, document);
    };
}

/// Is it there, and switched on where that takes a setting?
bool EstUtile(DescriptionMoteur const& description, ReglagesHote const& reglages) {
    bool const voulu =
        description.reglage.isEmpty() || !reglages.DonneAdresse(description.reglage).isEmpty();
    return voulu && !reglages.EstMoteurEteint(description.nom);
}

} // namespace

Atelier::Reglage FaisReglage(std::shared_ptr<ReglagesHote const> reglages,
                             QString const& document) {
    auto const dossiers = DonneDossiersDictionnaires();
    auto const preparateur = std::make_shared<Preparateur>(dossiers);
    QStringList fautes; // told by `vocalyne-hote moteurs`
    auto const externes = DecouvreMoteurs(*reglages, fautes);
    bool const espacesJugees = std::any_of(externes.begin(), externes.end(), [&](auto const& d) {
        return d.nom == QLatin1String("grammalecte") && d.EstPresent() && EstUtile(d, *reglages);
    });
    Atelier::Reglage reglage;
    reglage.prepare = [preparateur](ParagrapheAExaminer& paragraphe) {
        preparateur->Prepare(paragraphe);
    };
    reglage.refuse = FaisRefus(reglages, document);
    std::vector<MoteurFabrique> const internes = {
        {QStringLiteral("hunspell"),
         [dossiers] { return std::make_unique<MoteurHunspell>(dossiers); }, 1},
        {QStringLiteral("regles"),
         [espacesJugees] { return std::make_unique<MoteurRegles>(!espacesJugees); }, 1},
    };
    for (MoteurFabrique const& fabrique : internes) {
        if (!reglages->EstMoteurEteint(fabrique.nom)) {
            reglage.fabriques.push_back(fabrique);
        }
    }
    for (DescriptionMoteur const& description : externes) {
        if (EstUtile(description, *reglages)) {
            reglage.fabriques.push_back(
                {description.nom,
                 [description] { return std::make_unique<MoteurExterne>(description); },
                 description.exemplaires});
        }
    }
    return reglage;
}

} // namespace hote
