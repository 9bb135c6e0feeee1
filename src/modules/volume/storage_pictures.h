// Which theme picture stands for a volume or a disk, and how it is drawn behind their elements.
#pragma once

#include "collect/storage_descriptions.h"

#include <QImage>
#include <QPainter>
#include <QRectF>
#include <QString>

// The theme's kind pictures: M01 internal, M02 external, M03 removable, M04 network,
// M05 optical, M06 disk image. The description knows only internal, external and network;
// the kernel's name tells optical drives (sr) and disk images (loop) apart, and a removable
// medium is told from a fixed external disk by its flag.
QString volumePictureKey(VolumeIconKind kind, const QString& bsdName, bool removable = false);

// The same picture key for the menu-sized disk pictures: O31 internal, O32 external.
QString diskMenuPictureKey(VolumeIconKind kind);

// Draws the picture faintly into a 14-point square at the left of a set's elements (no wider
// than span, between bottom and top, centred in height), so the elements drawn over it stay
// readable. The painter is y-up.
void drawBackgroundPicture(QPainter& painter, const QImage& picture, double left, double span, double bottom,
                           double top);
