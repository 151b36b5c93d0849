// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "LienBus.h"

#include <QJsonArray>

#include <string>

/// The control interface of a text office, as `outils/bureau/README.md` describes it. A call that
/// the office refuses fails the test.
class CommandeBureau {
  public:
    struct SelectionVue {
        std::string zone;
        int debut = 0;
        int fin = 0;
    };

    /// `nomUnique`: the office's connection, so that it is reached when it has given up its name.
    explicit CommandeBureau(QString const& nomUnique);

    void Deregle(std::string const& methode, std::string const& comment,
                 std::string const& detail = {}, int fois = 0);
    void Retablis();
    void QuitteLeNom();
    void ReprendsLeNom();
    void Tape(std::string const& zone, int debut, int fin, std::string const& texte);
    void TapeAvant(std::string const& methode, std::string const& zone, int debut, int fin,
                   std::string const& texte);
    std::string InsereZone(std::string const& zone, std::string const& texte);
    void SupprimeZone(std::string const& zone);
    void MetsSelection(std::string const& zone, int debut, int fin);
    void FermeDocument(std::string const& cle);
    std::string DonneTexte(std::string const& cle);
    SelectionVue DonneSelection(std::string const& cle);
    /// One object a call, with its members as the interface describes them.
    QJsonArray DonneJournal();
    void VideJournal();
    /// The methods called, in order, joined by spaces.
    std::string DonneMethodes();
    /// Waits until the office has received so many; fails the test past the usual delay.
    int AttendsAppels(std::string const& methode, int nombre);
    int DonneNombreAppelants();

    LienBus& Lien() noexcept { return lien_; }

  private:
    QVariantList Demande(char const* methode, QVariantList const& arguments = {});

    LienBus lien_;
};
