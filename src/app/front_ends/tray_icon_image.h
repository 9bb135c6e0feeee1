// Fits a status item's picture into the square icon that system trays show.
#pragma once

#include <QImage>

// The picture centred on a transparent square as wide as its longer side, in pixels, with the
// same pixel ratio. Trays scale any icon into a square slot; padding first keeps the picture's
// proportions instead of letting the tray squeeze a wide graph.
QImage squareTrayImage(const QImage& picture);
