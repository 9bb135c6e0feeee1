// The small mark a status-item picture carries while one of its module's alert rules is firing.
#pragma once

#include <QImage>

namespace TvlClasses {

// The picture with a filled red triangle in its top-right corner, drawn in points at the
// picture's own device pixel ratio; a null picture stays null. Red rather than a theme
// colour: it must stand out against any theme, light or dark.
QImage tvlMarkedForAlert(const QImage& picture);

} // namespace TvlClasses
