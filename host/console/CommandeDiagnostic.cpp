// SPDX-License-Identifier: MPL-2.0
#include "AlertesConsole.h"
#include "Commandes.h"
#include "EtatDesMoteurs.h"
#include "Sortie.h"
#include "bus/EnumereDocuments.h"
#include "commun/MessagesHote.h"
#include "greffon/Greffon.h"
#include "greffon/LocaliseGreffon.h"
#include "langue/DictionnaireHunspell.h"
#include "langue/ThesaurusMyThes.h"

#include <unistd.h>

#include <algorithm>

namespace hote {

namespace {

/// What was found, in the order in which things are needed.
class Constatations {
  public:
    /// Does something that may fail, and notes how it went. `essentiel`: without it the host does
    /// not work.
    template <class Essai>
    void Essaie(std::string const& quoi, bool essentiel, Essai essai) {
        try {
            std::string const comment = essai();
            texte_ += Tr("{1} : {2}", quoi, comment) + '\n';
        } catch (ErreurHote const& erreur) {
            texte_ += Tr("{1} : {2}", quoi, Tr("en panne")) + '\n';
            Note(erreur.what());
            if (essentiel && code_ == kSortieReussie) {
                code_ = erreur.DonneCode();
            }
        }
    }

    void Ajoute(std::string const& ligne) { texte_ += ligne; }
    void Note(std::string const& remede) { remedes_.push_back(remede); }

    std::string DonneTexte() const {
        if (remedes_.empty()) {
            return texte_ + Tr("Tout va bien.") + '\n';
        }
        std::string texte = texte_ +
                            (code_ == kSortieReussie ? Tr("Tout marche. On peut ajouter :")
                                                     : Tr("Ce qui ne va pas :")) +
                            '\n';
        for (std::string const& remede : remedes_) {
            texte += "- " + remede + '\n';
        }
        return texte;
    }
    eCodeSortie DonneCode() const noexcept { return code_; }

  private:
    std::string texte_;
    std::vector<std::string> remedes_;
    eCodeSortie code_ = kSortieReussie;
};

void ExamineDictionnaires(Constatations& constatations) {
    for (Langue const langue : {Langue::Francais, Langue::Anglais}) {
        std::string const nom = langue == Langue::Francais ? Tr("français") : Tr("anglais");
        constatations.Essaie(Tr("Dictionnaire, {1}", nom), true, [langue] {
            OuvreDictionnaire(langue);
            return Tr("prêt");
        });
        constatations.Essaie(Tr("Synonymes, {1}", nom), false, [langue] {
            OuvreThesaurus(langue);
            return Tr("prêt");
        });
    }
}

void ExamineLesMoteurs(Constatations& constatations, bool demarre) {
    ReglagesHote reglages;
    reglages.Charge();
    for (LigneMoteur const& ligne : ExamineMoteurs(reglages, demarre)) {
        LigneMoteur sansMessage = ligne;
        sansMessage.message.clear();
        constatations.Ajoute(DonneTexte(sansMessage));
        // One that is off is so because the person wants it.
        if (!ligne.message.empty() && ligne.etat != kEteint) {
            constatations.Note(ligne.message);
        }
    }
}

} // namespace

eCodeSortie ExecuteDiagnostic(OptionsHote const& options) {
    AlertesConsole const alertes;
    Constatations constatations;
    constatations.Ajoute("vocalyne-hote " VOCALYNE_VERSION "\n");
    constatations.Essaie(Tr("Connecteur"), true, [&options] {
        std::string const fichier = LocaliseGreffon(options.greffon);
        auto const greffon = Greffon::Charge(fichier);
        return fichier + ", " + Tr("prêt");
    });
    ExamineDictionnaires(constatations);
    ExamineLesMoteurs(constatations, !options.bref);
    if (!options.bref) {
        constatations.Essaie(Tr("Documents à portée"), true, [&constatations] {
            auto const liste = EnumereDocuments(kDelaiDocumentsMs);
            for (std::string const& avertissement : liste.avertissements) {
                constatations.Note(avertissement);
            }
            return std::to_string(liste.documents.size());
        });
    }
    Sortie sortie(STDOUT_FILENO);
    sortie.Ecris(constatations.DonneTexte());
    sortie.Verifie();
    return constatations.DonneCode();
}

} // namespace hote
