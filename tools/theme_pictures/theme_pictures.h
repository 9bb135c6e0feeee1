// The picture sets of a theme: module labels, Volume pictures and drop-down menu pictures.
#pragma once

#include "picture_canvas.h"

#include <QVariantMap>

// L01-L08 (12 x 22 points) and the status item pictures N01, N03 (22 x 22 points).
void addLabelPictures(QVariantMap& theme, const PictureInks& inks);

// M01-M06, the volume kinds (36 x 36 points), and the Volume menu pictures M11, M12 (18 x 18).
void addVolumePictures(QVariantMap& theme, const PictureInks& inks);

// The O pictures of the drop-down menus (18 x 18 points).
void addMenuPictures(QVariantMap& theme, const PictureInks& inks);
