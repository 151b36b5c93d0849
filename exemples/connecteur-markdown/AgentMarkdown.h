// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "BlocsMarkdown.h"
#include "FichierMarkdown.h"

#include <ImplAgentTexteur.h>

#include <vector>

/// The agent of one Markdown file, whose path is the document's identifier. Each block is a zone;
/// code and addresses are in it, with the style that says that they are not to be proofed. A
/// correction is written to the file at once. The selection is the agent's own: a file has none.
class AgentMarkdown : public virtual ImplAgentTexteur {
  public:
    // The most derived class constructs the virtual base: this line is where the identifier is
    // kept.
    explicit AgentMarkdown(UniChaine const& identificateur)
        : InterfaceTexteur(identificateur)
        , fichier_(identificateur.VersQString()) {}

    bool Capacite1() override { return true; }
    bool Capacite2() override { return true; }
    bool Capacite3() override { return true; }
    bool Capacite4() override { return true; }
    bool Capacite5() override { return true; }
    bool Capacite6() override { return true; }
    bool Capacite7() override { return true; }

    bool InitialiseTexteur(UniChaine const& classe, UniChaine& message, int mode) override;
    bool DocEstMort() override { return !fichier_.Existe(); }
    UniChaine DonneCheminDocument() override;
    UniChaine DonneNomApplication() override;
    UniChaine DonneFinDeParagraphe() override;
    UniChaine DonneTitreDocument() override;
    void InitialisePour(int /*mode*/) override {}
    void ActivePour(int /*mode*/) override {}
    bool EstLie() override { return true; }
    bool PermetsRetourDeCharriot() override { return true; }
    void RompsLienCorrecteur() override {}
    void RompsLienTexteur() override {}

    void PrepareLecture() override;
    int DonneLongueurTexte() override { return DonneTexte().size(); }
    int DonneFinZone(int position) override;
    TexteAvecAttributs DonneTexteAvecAttributs(int debut, int fin) override;

    int DonneDebutSelectionTexte() override { return selection_.debut; }
    int DonneFinSelectionTexte() override { return selection_.fin; }
    UniChaine DonneTexteSelection() override;
    int SelectionneDansTexteur(int debut, int fin) override;

    bool PeutModifier() override { return fichier_.EstModifiable(); }
    bool PeutCorrigerZone(int debut, int fin, UniChaine const& texte) override;
    void RemplaceDansTexteur(int debut, int fin, int finZone, UniChaine const& texte,
                             bool drapeau) override;
    void AvantRemplacement(UniChaine const& texte) override;

  private:
    QString const& DonneTexte() const noexcept { return fichier_.DonneTexte(); }
    bool Contient(int debut, int fin) const noexcept;
    bool Remplace(int debut, int fin, QString const& texte);
    void Analyse();

    FichierMarkdown fichier_;
    std::vector<markdown::BlocMarkdown> blocs_;
    std::vector<markdown::PlageMarkdown> exclusions_;
    markdown::PlageMarkdown selection_{0, 0};
};
