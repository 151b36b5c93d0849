// SPDX-License-Identifier: MPL-2.0
#pragma once

namespace extension {

class CarnetDeZones;

/// What the book of a document's zones keeps for one object of the office: a zone, or a text whose
/// paragraphs are zones. Main thread only.
class Inscrit {
  public:
    Inscrit() = default;
    Inscrit(Inscrit const&) = delete;
    Inscrit& operator=(Inscrit const&) = delete;
    virtual ~Inscrit() = default;

    /// Its object has left the document: takes the keys of its zones out of the book.
    virtual void Quitte(CarnetDeZones& carnet) = 0;
};

} // namespace extension
