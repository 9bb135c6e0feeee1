// The Disk and Volume pictures' part of the picture benchmark.
#pragma once

#include <QVariantMap>

// Prints the cost of one Disk and one Volume picture at HiDPI scale, full history, first-run
// settings and with every element shown, per disk or volume.
void benchStoragePictures(const QVariantMap& theme, int pictures);
