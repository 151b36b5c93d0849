// SPDX-License-Identifier: MPL-2.0
#pragma once

#include "ExportGui.h"

#include <QPixmap>

/// An image as the host hands it around. Main thread, while a Qt application object exists: it
/// holds a QPixmap.
class VOCALYNE_GUI ImageCommune {
  public:
    /// No image.
    ImageCommune();
    ~ImageCommune();

    /// Takes `image` in place of the one held; a null pixmap leaves none.
    void Prends(QPixmap const& image);

    bool EstVide() const;
    /// The image held, null when there is none.
    QPixmap const& DonnePixmap() const noexcept { return image_; }

  private:
    QPixmap image_;
};
