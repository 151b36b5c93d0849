// SPDX-License-Identifier: MPL-2.0
#include "AlertesConsole.h"
#include "Avertissement.h"
#include "BilanJson.h"
#include "ChoixDocument.h"
#include "ChoixLangue.h"
#include "Commandes.h"
#include "ExamenParAtelier.h"
#include "ExecuteSurGreffon.h"
#include "InterlocuteurRegle.h"
#include "InterlocuteurTerminal.h"
#include "commun/ErreurHote.h"
#include "commun/MessagesHote.h"
#include "correction/Correcteur.h"
#include "greffon/LocaliseGreffon.h"
#include "langue/Contexte.h"
#include "langue/DictionnaireHunspell.h"
#include "moteurs/ensemble/Fabriques.h"

#include <unistd.h>

#include <iostream>
#include <utility>

namespace hote {

namespace {

/// A correction of one document, with what it needs, in the order in which things depend on each
/// other.
class Seance {
  public:
    Seance(OptionsHote const& options, std::unique_ptr<Lexique> lexique, Greffon const& greffon)
        : options_(options)
        , choix_{std::move(lexique), false}
        , id_(options.id.isEmpty() ? ChoisisDocument() : options.id)
        , document_(greffon, id_)
        , titre_(document_.DonneTitre())
        , interactive_(!options.json && !options.automatique && isatty(STDIN_FILENO) == 1 &&
                       isatty(STDOUT_FILENO) == 1)
        , sortie_(STDOUT_FILENO)
        , presentation_(Couleurs(STDOUT_FILENO)) {
        document_.Lis();
    }

    eCodeSortie Execute() {
        if (!choix_.lexique) {
            choix_ = ChoisisLangue(document_.DonneTextes());
        }
        Annonce();
        ExamenParAtelier examen(FaisReglage(DonneReglages(), id_),
                                DonneCodeLangue(choix_.lexique->DonneLangue()));
        Progression progression;
        Bilan const bilan = Corrige(examen, progression);
        progression.Efface();
        for (QString const& plainte : examen.PrendsPlaintes()) {
            Avertis(plainte.toStdString());
        }
        if (options_.json) {
            sortie_.Ecris(
                DonneBilanJson({id_, titre_, choix_.lexique->DonneLangue(), choix_.trouvee},
                               options_.automatique, bilan));
        } else {
            sortie_.Ecris(presentation_.DonneFin(bilan, options_.automatique || interactive_));
        }
        return DonneCode(bilan);
    }

  private:
    static std::shared_ptr<ReglagesHote> DonneReglages() {
        auto reglages = std::make_shared<ReglagesHote>();
        reglages->Charge();
        for (QString const& dossier : ReglagesHote::DonneDossiersDuBureau()) {
            reglages->LisDictionnairesDuBureau(dossier);
        }
        return reglages;
    }

    void Annonce() {
        if (options_.json) {
            return;
        }
        std::string const langue = DonneNomLangue(choix_.lexique->DonneLangue());
        sortie_.Ecris(
            Tr("Document : {1} ({2})", DonnePourTerminal(titre_), DonnePourTerminal(id_)) + '\n' +
            (choix_.trouvee ? Tr("Langue : {1}, d’après le texte", langue)
                            : Tr("Langue : {1}", langue)) +
            '\n');
    }

    Bilan Corrige(Examen& examen, Progression& progression) {
        InterlocuteurTerminal personne(std::cin, sortie_, presentation_, progression);
        InterlocuteurRegle regle(DonneHardiesse(), options_.json ? nullptr : &sortie_,
                                 presentation_, progression);
        Interlocuteur& interlocuteur = interactive_ ? static_cast<Interlocuteur&>(personne) : regle;
        return Correcteur(document_, examen, interlocuteur, options_.automatique).Execute();
    }

    Hardiesse DonneHardiesse() const {
        if (options_.tout) {
            return Hardiesse::Tout;
        }
        return options_.automatique ? Hardiesse::Sur : Hardiesse::Rien;
    }

    eCodeSortie DonneCode(Bilan const& bilan) const {
        if (bilan.erreur) {
            Avertis(bilan.erreur->what());
            return bilan.erreur->DonneCode();
        }
        sortie_.Verifie();
        if (sortie_.EstRompue()) {
            return kSortieInterne;
        }
        return bilan.Compte(EtatFaute::Refusee) > 0 ? kSortiePartielle : kSortieReussie;
    }

    OptionsHote const& options_;
    ChoixLangue choix_;
    QString id_;
    Document document_;
    QString titre_;
    bool interactive_;
    Sortie sortie_;
    PresentationTexte presentation_;
};

} // namespace

eCodeSortie ExecuteCorrige(OptionsHote const& options) {
    // What is missing is said before anything is touched.
    auto lexique = options.langue ? OuvreDictionnaire(*options.langue) : nullptr;
    AlertesConsole alertes;
    auto const greffon = Greffon::Charge(LocaliseGreffon(options.greffon));
    return ExecuteSurGreffon(
        [&] { return Seance(options, std::move(lexique), *greffon).Execute(); });
}

} // namespace hote
