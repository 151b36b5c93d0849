// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "ChercheMots.h"
#include "bus/Renseignements.h"
#include "fenetre/echange/Lecture.h"
#include "greffon/Document.h"

#include <QElapsedTimer>
#include <QJsonObject>

#include <functional>

namespace hote {

/// A document served to a window, request by request: what may block, on the plug-in's own thread.
///
/// A reading has a number, and so has every request about a place in it. The number goes up when a
/// reading finds something changed; a request about an older one is answered "perimee" and does
/// nothing. Main thread.
class Relais {
  public:
    /// Takes an answer: a JSON object.
    using Ecris = std::function<void(QJsonObject const&)>;

    /// Opens the document and says so. Throws ErreurHote where it cannot.
    Relais(Greffon const& greffon, QString const& id, Ecris ecris);

    /// Carries out a request, with its answers. What ends the work, a document that has gone or a
    /// plug-in that fails, is thrown.
    void Traite(QJsonObject const& requete);

  private:
    void Lis();
    void Corrige(QJsonObject const& requete);
    void Selectionne(QJsonObject const& requete);
    void Nomme();
    void ChercheLesMots();
    void RemplaceLeMot(QJsonObject const& requete);
    QString DonneLangue(QString const& texte, int position) const;
    QString DonneRaison(int zone);
    std::vector<ParagrapheDuDocument> DonneParagraphes();
    PlaceDuCurseur ChercheEndroit();
    bool EstActuelle(QJsonObject const& requete) const;

    Document document_;
    Renseignements renseignements_;
    Ecris ecris_;
    QString langue_;                        ///< of text that says none; empty: not known yet
    std::vector<ParagrapheDuDocument> lus_; ///< as the window has them
    ChercheMots mots_;
    std::vector<QString> cles_; ///< of the zones, as the names were last asked for
    int version_ = 0;
};

} // namespace hote
