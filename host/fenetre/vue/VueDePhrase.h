// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "Textes.h"

#include <QTextEdit>

namespace hote {

/// A sentence with its mistake marked, to be read.
class VueDePhrase : public QTextEdit {
    Q_OBJECT

  public:
    explicit VueDePhrase(QWidget* parent = nullptr);

    void Montre(PhraseMontree const& phrase);

  protected:
    void changeEvent(QEvent* evenement) override;

  private:
    void Marque();

    PhraseMontree phrase_{};
};

} // namespace hote
