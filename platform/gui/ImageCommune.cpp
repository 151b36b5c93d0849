// SPDX-License-Identifier: MPL-2.0
#include "ImageCommune.h"

ImageCommune::ImageCommune() = default;
ImageCommune::~ImageCommune() = default;

void ImageCommune::Prends(QPixmap const& image) {
    image_ = image;
}

bool ImageCommune::EstVide() const {
    return image_.isNull();
}
