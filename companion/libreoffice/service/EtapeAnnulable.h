// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "document/DocumentOuvert.h"

#include <com/sun/star/document/XUndoManager.hpp>

#include <string>

namespace extension {

/// Groups what happens during its life into one step of the document's undo list, of that name.
/// Main thread only; may throw UNO exceptions at its start, never at its end.
class EtapeAnnulable {
  public:
    EtapeAnnulable(DocumentOuvert const& document, std::u16string const& nom);
    EtapeAnnulable(EtapeAnnulable const&) = delete;
    EtapeAnnulable& operator=(EtapeAnnulable const&) = delete;
    ~EtapeAnnulable();

  private:
    css::uno::Reference<css::document::XUndoManager> pile_;
};

} // namespace extension
