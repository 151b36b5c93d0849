// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "AgentTenu.h"
#include "Greffon.h"

#include "ChaineTemplateAvecAttributs.h"

#include <QString>

#include <vector>

namespace hote {

/// One document, spoken to through a plug-in's agent: its zones as they were last read, with our
/// own corrections since.
///
/// Positions are UTF-16 units of a zone's text. Every operation may block while the word processor
/// is asked, and lets the plug-in's exceptions through. Main thread.
class Document {
  public:
    struct Intervalle {
        int debut;
        int fin;
    };

    /// Attaches to the document `id` (UTF-16, whole identifier). The plug-in must outlive the
    /// object. Throws ErreurHote (kSortieDocument) when the plug-in does not serve it, or cannot
    /// reach it.
    Document(Greffon const& greffon, QString const& id);

    /// Breaks the link that the construction made.
    ~Document();
    Document(Document const&) = delete;
    Document& operator=(Document const&) = delete;

    QString DonneTitre();
    /// Of its file; empty when it has none.
    QString DonneChemin();

    /// Reads all zones anew. Throws ErreurHote when the document cannot be read the first time
    /// (kSortieDocument), or has gone away since (kSortieDocumentMort): the word processor says so,
    /// it cannot be read any more, or there is no zone where there were some.
    void Lis();

    int DonneNombre() const noexcept { return static_cast<int>(textes_.size()); }
    /// The zones' texts as this side believes them to be.
    std::vector<QString> const& DonneTextes() const noexcept { return textes_; }
    /// The style runs of a zone, as it was last read: corrections do not move them.
    std::vector<sdd::PlageAttribut> DonnePlages(int zone);

    /// May [debut, fin) of the zone be changed now, and does it hold `attendu`?
    bool PeutCorriger(int zone, int debut, int fin, QString const& attendu);
    /// Sends a correction. Whether it was made shows when the document is read again.
    void Corrige(int zone, int debut, int fin, QString const& texte, bool automatique);
    /// Selects [debut, fin) of the zone in the word processor, which shows it. Not waited for.
    void Selectionne(int zone, int debut, int fin);
    /// What was selected in the zone when it was last read; 0 and 0 where nothing was.
    Intervalle DonneSelection(int zone);
    /// The agent, for what concerns no zone. Its zones stay this object's.
    InterfaceAgentTexteur& DonneAgent() noexcept { return *tenu_.DonneAgent(); }
    /// Throws ErreurHote (kSortieDocumentMort) when the document says that it has gone away.
    void VerifieVivant();

  private:
    InterfaceZoneDeTexte& DonneZone(int zone);

    AgentTenu tenu_;
    std::vector<QString> textes_;
    bool lu_ = false;
};

} // namespace hote
