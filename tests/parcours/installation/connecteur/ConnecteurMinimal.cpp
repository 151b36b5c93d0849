// SPDX-License-Identifier: MPL-2.0
// The smallest whole connector: one document, kept in memory, that the host can read and correct.
#include <AlertesConnecteur.h>
#include <Exports.h>
#include <ImplAgentTexteur.h>
#include <RoutinesAgentTexteur.h>

#include <memory>

#ifdef FONCTION_OUBLIEE
void FonctionOubliee(); // declared, and defined nowhere
#endif

namespace {

UniChaine Litteral(char const* texte) {
    return UniChaine(texte, UniChaine::kCodageLitteral, -1);
}

class AgentMinimal : public virtual ImplAgentTexteur {
  public:
    explicit AgentMinimal(UniChaine const& identificateur)
        : InterfaceTexteur(identificateur) {}

    bool Capacite1() override { return true; }
    bool Capacite2() override { return true; }
    bool Capacite3() override { return true; }
    bool Capacite4() override { return true; }
    bool Capacite5() override { return true; }
    bool Capacite6() override { return true; }
    bool Capacite7() override { return true; }

    bool InitialiseTexteur(UniChaine const& classe, UniChaine&, int) override {
        if (classe == Litteral("a window of another program")) {
            AlerteConnecteurRequis(Litteral("Essai"));
            return false;
        }
#ifdef FONCTION_OUBLIEE
        FonctionOubliee();
#endif
        return true;
    }
    bool DocEstMort() override {
        return false;
    }
    UniChaine DonneFinDeParagraphe() override {
        return Litteral("\r");
    }
    UniChaine DonneTitreDocument() override {
        return DonneIdentificateur();
    }
    void InitialisePour(int) override {}
    bool EstLie() override {
        return true;
    }
    bool PermetsRetourDeCharriot() override {
        return true;
    }
    void ActivePour(int) override {}
    void RompsLienCorrecteur() override {}
    void RompsLienTexteur() override {}

    int DonneLongueurTexte() override {
        return texte_.Longueur();
    }
    bool PeutCorrigerZone(int debut, int fin, UniChaine const& texte) override {
        return texte_.Extrais(debut, fin - debut) == texte;
    }
    TexteAvecAttributs DonneTexteAvecAttributs(int debut, int fin) override {
        return TexteAvecAttributs(sdd::T(texte_.Extrais(debut, fin - debut)));
    }
    void RemplaceDansTexteur(int debut, int fin, int, UniChaine const& texte, bool) override {
        texte_.Remplace(debut, fin - debut, texte);
    }

  private:
    UniChaine texte_ = Litteral("Une faute d'ortographe.");
};

} // namespace

void DonneNomsTexteurs(UniChaine* noms) {
    *noms = Litteral("ConnecteurMinimal");
}

InterfaceTexteur* CreeTexteur() {
    return nullptr;
}

InterfaceTexteur* CreeTexteurPalette() {
    return nullptr;
}

bool DonneIdentificateurDocumentCourant(InfosApplication const* infos, UniChaine* idDocument) {
    *idDocument = infos->Id;
    return true;
}

InterfaceAgentTexteur* CreeAgentTexteur(InfosApplication const* infos,
                                        UniChaine const* idDocument) {
    auto agent = std::make_unique<AgentMinimal>(*idDocument);
    return InitialiseAgentSelonInfos(agent.get(), *infos) ? agent.release() : nullptr;
}
