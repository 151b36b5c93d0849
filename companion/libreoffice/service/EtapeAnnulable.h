// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "document/DocumentOuvert.h"

#include <string>

namespace extension {

/// Whose correction it is.
struct Auteur {
    std::string appelant; ///< its unique name on the bus
    bool automatique;     ///< made without asking the person
};

/// Groups what happens during its life into one step of the document's undo list, of that name; or,
/// for an automatic correction, into the step of the run that it goes on with. Main thread only;
/// may throw UNO exceptions at its start, never at its end.
class EtapeAnnulable {
  public:
    EtapeAnnulable(DocumentOuvert& document, std::u16string const& nom, Auteur const& auteur);
    EtapeAnnulable(EtapeAnnulable const&) = delete;
    EtapeAnnulable& operator=(EtapeAnnulable const&) = delete;
    ~EtapeAnnulable() { pile_.Sors(); }

  private:
    PileDAnnulation& pile_;
};

} // namespace extension
